#include "tests/business/models/ShownVariables.h"

#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using namespace tessel::test;

namespace {

const char *const kLists[] = {"VariableModel", "VariableModelSplitStep3", "VariableModelDownStep4"};
const char *const kProxies[] = {"VariablesProxyModel", "VariablesDatasetProxyModel",
    "VariablesDictionaryProxyModel", "VariablesProxyModelDownStep4"};

void addPairs()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QByteArray>("proxy");
    for (const char *list : kLists) {
        for (const char *proxy : kProxies)
            QTest::newRow(qPrintable(QStringLiteral("%1 below %2").arg(list, proxy)))
                << QByteArray(list) << QByteArray(proxy);
    }
}

void addProxies()
{
    QTest::addColumn<QByteArray>("proxy");
    for (const char *proxy : kProxies)
        QTest::newRow(proxy) << QByteArray(proxy);
}

} // namespace

class tst_VariableListViews : public QObject {
    Q_OBJECT

private slots:

    void theViewShowsTheListWithItsHeaders_data() { addPairs(); }
    void theViewShowsTheListWithItsHeaders()
    {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, proxy);
        const ShownVariables shown(list, proxy);
        QStringList names = {"CODE", "SEX", "AGE", "NAME", "JOB", "WEIGHT", "WAGE"};
        if (list != "VariableModelSplitStep3") {
            for (const char *reference : {"CODE", "NAME", "WEIGHT"})
                names.removeOne(reference);
        }
        QCOMPARE(shown.names(), names);
        QStringList headers = {"Name", "Label", "Alias", "Group", "Tag"};
        if (list != "VariableModel")
            headers = headers.mid(0, 3);
        QCOMPARE(shown.view.horizontalHeader()->count(), headers.size());
        for (int section = 0; section < headers.size(); ++section)
            QCOMPARE(shown.proxy->headerData(section, Qt::Horizontal), QVariant(headers.at(section)));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aClickOnTheBoxTicksAVariableOfLevelOne_data() { addProxies(); }
    void aClickOnTheBoxTicksAVariableOfLevelOne()
    {
        QFETCH(QByteArray, proxy);
        ShownVariables shown("VariableModel", proxy);
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy passedOn(shown.proxy.get(), &QAbstractItemModel::dataChanged);
        shown.clickBox("AGE");
        QCOMPARE(shown.ticked(), QStringList("AGE"));
        shown.clickBox("JOB");
        QCOMPARE(shown.ticked(), QStringList({"AGE", "JOB"}));
        shown.clickBox("AGE");
        QCOMPARE(shown.ticked(), QStringList("JOB"));
        QCOMPARE(shown.indexOf("JOB").data(Qt::CheckStateRole), QVariant(Qt::Checked));
        QCOMPARE(shown.indexOf("AGE").data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        QCOMPARE(changed.count(), 3);
        QCOMPARE(passedOn.count(), 3);
        QCOMPARE(passedOn.last().at(0).toModelIndex(), shown.indexOf("AGE"));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void theSpaceKeyTicksTheCurrentVariable()
    {
        ShownVariables shown("VariableModel", "VariablesProxyModel");
        shown.view.setCurrentIndex(shown.indexOf("AGE"));
        QTest::keyClick(&shown.view, Qt::Key_Space);
        QCOMPARE(shown.ticked(), QStringList("AGE"));
        QTest::keyClick(&shown.view, Qt::Key_Space);
        QCOMPARE(shown.ticked(), QStringList());
        shown.view.setCurrentIndex(shown.indexOf("AGE").sibling(shown.indexOf("AGE").row(), 1));
        QTest::keyClick(&shown.view, Qt::Key_Space);
        QCOMPARE(shown.ticked(), QStringList());
    }

    void aVariableOfLevelTwoCannotBeTicked()
    {
        ShownVariables shown("VariableModel", "VariablesProxyModel");
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        shown.clickBox("WAGE");
        shown.view.setCurrentIndex(shown.indexOf("WAGE"));
        QTest::keyClick(&shown.view, Qt::Key_Space);
        QVERIFY(!shown.indexOf("WAGE").data(Qt::CheckStateRole).isValid());
        QCOMPARE(shown.ticked(), QStringList());
        QCOMPARE(changed.count(), 0);
    }

    void aClickBesideTheBoxTicksNothingAndSelectsTheCell()
    {
        ShownVariables shown("VariableModel", "VariablesProxyModel");
        for (int column = 0; column < 5; ++column) {
            const QModelIndex cell = shown.indexOf("AGE").sibling(shown.indexOf("AGE").row(), column);
            const QRect rect = shown.view.visualRect(cell);
            shown.click({rect.right() - 3, rect.center().y()});
            QCOMPARE(shown.view.currentIndex(), cell);
        }
        QCOMPARE(shown.ticked(), QStringList());
    }

    void theOtherListsShowABoxThatNoClickChanges_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::newRow("split") << QByteArray("VariableModelSplitStep3");
        QTest::newRow("download") << QByteArray("VariableModelDownStep4");
    }
    void theOtherListsShowABoxThatNoClickChanges()
    {
        QFETCH(QByteArray, list);
        ShownVariables shown(list, "VariablesProxyModelDownStep4");
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        for (const char *name : {"AGE", "WAGE"}) {
            shown.clickBox(name);
            shown.view.setCurrentIndex(shown.indexOf(name));
            QTest::keyClick(&shown.view, Qt::Key_Space);
            QCOMPARE(shown.indexOf(name).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        }
        QCOMPARE(changed.count(), 0);
        // The front end ticks through the proxy, whatever the level.
        for (const char *name : {"AGE", "WAGE"})
            QVERIFY(shown.proxy->setData(shown.indexOf(name), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(shown.ticked(), QStringList({"AGE", "WAGE"}));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(shown.warnings(), QStringList());
    }

    void noEditorOpens_data() { addPairs(); }
    void noEditorOpens()
    {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, proxy);
        ShownVariables shown(list, proxy);
        shown.view.setEditTriggers(QAbstractItemView::AllEditTriggers);
        shown.view.setCurrentIndex(shown.indexOf("AGE"));
        QTest::keyClick(&shown.view, Qt::Key_F2);
        QTest::keyClick(&shown.view, Qt::Key_X);
        QVERIFY(!shown.view.findChild<QLineEdit *>());
        QVERIFY(!shown.proxy->setData(shown.indexOf("AGE"), "NEW"));
        QVERIFY(shown.names().contains("AGE"));
    }

    void aClickOnAHeaderSortsAndASecondOneTurnsTheOrderOver_data()
    {
        QTest::addColumn<QByteArray>("proxy");
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("expected");
        for (const char *proxy : kProxies) {
            const QByteArray kind(proxy);
            const bool isNumber = kind.startsWith("VariablesD");
            const auto row = [&](const char *what, int column, const char *names) {
                QTest::newRow(kind + ", " + what) << kind << column << QString(names).split(' ');
            };
            row("names", 0, "AGE JOB SEX WAGE");
            // Those with an at sign go by the token around it: "work@a", "work@b".
            row("labels", 1, "AGE SEX JOB WAGE");
            row("aliases", 2, "AGE SEX WAGE JOB");
            row("tags", 4, isNumber ? "WAGE SEX AGE JOB" : "AGE JOB WAGE SEX");
        }
    }
    void aClickOnAHeaderSortsAndASecondOneTurnsTheOrderOver()
    {
        QFETCH(QByteArray, proxy);
        QFETCH(int, column);
        QFETCH(QStringList, expected);
        ShownVariables shown("VariableModel", proxy);
        shown.view.setSortingEnabled(true);
        shown.view.sortByColumn(3, Qt::DescendingOrder);
        shown.clickHeader(column);
        QCOMPARE(shown.names(), expected);
        shown.clickHeader(column);
        std::reverse(expected.begin(), expected.end());
        QCOMPARE(shown.names(), expected);
        QCOMPARE(columnTexts(*shown.model), QStringList({"SEX", "AGE", "JOB", "WAGE"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void equalGroupsKeepTheOrderThatTheyHadInBothDirections()
    {
        ShownVariables shown("VariableModel", "VariablesProxyModel");
        shown.view.setSortingEnabled(true);
        shown.view.sortByColumn(0, Qt::AscendingOrder);
        shown.clickHeader(3);
        QCOMPARE(shown.names(), QStringList({"AGE", "SEX", "JOB", "WAGE"}));
        shown.clickHeader(3);
        QCOMPARE(shown.names(), QStringList({"JOB", "WAGE", "AGE", "SEX"}));
    }

    void aTypedPatternNarrowsTheList_data()
    {
        QTest::addColumn<QByteArray>("proxy");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("expected");
        for (const char *proxy : kProxies) {
            const QByteArray kind(proxy);
            const bool hasGroup = kind == "VariablesProxyModel" || kind == "VariablesDictionaryProxyModel";
            const bool hasTag = kind == "VariablesDictionaryProxyModel";
            const QStringList none;
            const auto row = [&](const char *what, const char *pattern, const QStringList &names) {
                QTest::newRow(kind + ", " + what) << kind << QString(pattern) << names;
            };
            row("names", "AGE", {"AGE", "WAGE"});
            row("labels", "WORK@", {"JOB", "WAGE"});
            row("aliases", "P3", {"WAGE"});
            row("groups", "^BASE$", hasGroup ? QStringList({"SEX", "AGE"}) : none);
            row("tags", "^100$", hasTag ? QStringList("JOB") : none);
            row("small letters", "age", none);
            row("an unfinished pattern", "(AGE", none);
            row("nothing", "", {"SEX", "AGE", "JOB", "WAGE"});
        }
    }
    void aTypedPatternNarrowsTheList()
    {
        QFETCH(QByteArray, proxy);
        QFETCH(QString, pattern);
        QFETCH(QStringList, expected);
        ShownVariables shown("VariableModel", proxy);
        shown.type(pattern);
        QCOMPARE(shown.names(), expected);
        QCOMPARE(shown.view.verticalHeader()->count(), expected.size());
        shown.search.clear();
        QCOMPARE(shown.names(), QStringList({"SEX", "AGE", "JOB", "WAGE"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void ticksFollowTheirVariableThroughFilterAndOrder_data() { addProxies(); }
    void ticksFollowTheirVariableThroughFilterAndOrder()
    {
        QFETCH(QByteArray, proxy);
        ShownVariables shown("VariableModel", proxy);
        shown.view.setSortingEnabled(true);
        shown.view.sortByColumn(0, Qt::DescendingOrder);
        shown.type("PERSON");
        QCOMPARE(shown.names(), QStringList({"SEX", "AGE"}));
        shown.clickBox("AGE");
        QCOMPARE(shown.ticked(), QStringList("AGE"));
        shown.type("");
        shown.clickBox("JOB");
        shown.clickHeader(0);
        QCOMPARE(shown.names(), QStringList({"AGE", "JOB", "SEX", "WAGE"}));
        for (const char *name : {"AGE", "JOB"})
            QCOMPARE(shown.indexOf(name).data(Qt::CheckStateRole), QVariant(Qt::Checked));
        QCOMPARE(shown.indexOf("SEX").data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aSecondViewOverTheSameVariablesShowsTheTickWhenItReadsAgain()
    {
        ShownVariables shown("VariableModel", "VariablesProxyModel");
        VariableModelSplitStep3 other(nullptr, nullptr, &shown.variables.list);
        QTableView otherView;
        otherView.setModel(&other);
        otherView.show();
        QSignalSpy changed(&other, &QAbstractItemModel::dataChanged);
        shown.clickBox("AGE");
        QCOMPARE(changed.count(), 0);
        QCOMPARE(other.index(2, 0).data(Qt::CheckStateRole), QVariant(Qt::Checked));
        QVERIFY(!otherView.grab().isNull());
    }

    void rowsWithoutAVariableAreEmptyLinesThatHarmNothing_data() { addPairs(); }
    void rowsWithoutAVariableAreEmptyLinesThatHarmNothing()
    {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, proxy);
        ShownVariables shown(list, proxy);
        QList<TDmVariable *> gaps = {nullptr, shown.variables.list.at(2), nullptr};
        VariableModel withGaps(nullptr, &shown.entity, &gaps);
        shown.proxy->setSourceModel(&withGaps);
        shown.view.setSortingEnabled(true);
        shown.view.sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(shown.names(), QStringList({"", "", "AGE"}));
        shown.click(shown.view.boxOf(shown.proxy->index(0, 0)).center());
        shown.view.setCurrentIndex(shown.proxy->index(1, 0));
        QTest::keyClick(&shown.view, Qt::Key_Space);
        shown.clickHeader(4);
        shown.clickHeader(4);
        QVERIFY(!shown.view.grab().isNull());
        QCOMPARE(shown.ticked(), QStringList());
        shown.type("AGE");
        QCOMPARE(shown.names(), QStringList("AGE"));
        shown.clickBox("AGE");
        QCOMPARE(shown.ticked(), QStringList("AGE"));
        QCOMPARE(shown.warnings(), QStringList());
        shown.proxy->setSourceModel(shown.model.get());
    }
};

QTEST_MAIN(tst_VariableListViews)
#include "tst_VariableListViews.moc"
