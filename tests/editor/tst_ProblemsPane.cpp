#include "editor/views/ProblemsPane.h"

#include "editor/DictionaryDocument.h"
#include "editor/Structure.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/editor/EditorFixtures.h"

#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

const QByteArray kFaulty = R"({"name": "DICTIONARY", "entities": [
    {"name": "HOUSE", "codeVar": "NONE", "weightVar": "NONE", "variables": [
        {"name": "ROOMS", "type": "integer"},
        {"name": "ROOMS", "type": "number", "metadata": {"range": [{"min": 9, "max": 1}]}}
    ]}
]})";

/// The problems of a document.
struct Problems {
    explicit Problems(const QByteArray &bytes = kFaulty)
    {
        pane.resize(800, 200);
        bringUp(pane);
        load(document, bytes);
        list = pane.findChild<QTreeWidget *>("problems");
    }

    QStringList codes() const
    {
        QStringList texts;
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            texts += list->topLevelItem(row)->text(2);
        return texts;
    }
    QString current() const { return list->currentItem() ? list->currentItem()->text(2) : QString(); }

    DictionaryDocument document;
    ProblemsPane pane{document};
    QTreeWidget *list;
};

} // namespace

class tst_ProblemsPane : public QObject {
    Q_OBJECT

private slots:
    void theCheckIsShownWithPlaceSentenceAndCode()
    {
        Problems problems;
        QCOMPARE(problems.pane.count(), 0);
        QSignalSpy counted(&problems.pane, &ProblemsPane::countChanged);
        problems.pane.check();
        QCOMPARE(problems.codes(),
            QStringList({"entity-code-unknown", "entity-weight-unknown", "variable-name-duplicate",
                "variable-type-unknown", "range-reversed"}));
        QCOMPARE(problems.pane.count(), 5);
        QCOMPARE(counted, QList<QVariantList>{{5}});
        const QTreeWidgetItem *item = problems.list->topLevelItem(2);
        QCOMPARE(item->text(0), QString("HOUSE/ROOMS"));
        QVERIFY(!item->text(1).isEmpty());
        QCOMPARE(item->toolTip(1), item->text(1));
        QCOMPARE(problems.list->headerItem()->text(0), QString("Place"));
        QCOMPARE(problems.list->headerItem()->text(1), QString("Problem"));
        QCOMPARE(problems.list->headerItem()->text(2), QString("Code"));
    }

    void aSoundDictionaryHasNone()
    {
        Problems problems(smallDictionary());
        problems.pane.check();
        QCOMPARE(problems.codes(), QStringList());
        QSignalSpy gone(&problems.pane, &ProblemsPane::goTo);
        problems.pane.step(1);
        problems.pane.step(-1);
        QVERIFY(gone.isEmpty());
    }

    void itFollowsAMomentAfterOpeningAndAfterAnEdit()
    {
        Problems problems;
        QTRY_COMPARE(problems.pane.count(), 5);
        TDmEntity &house = entityIn(problems.document, "HOUSE");
        Structure(problems.document).removeVariables(house, {house.getVariables()->at(1)});
        QCOMPARE(problems.pane.count(), 5);
        QTRY_COMPARE(problems.codes(), QStringList({"entity-code-unknown", "entity-weight-unknown"}));
        problems.document.undoStack()->undo();
        QTRY_COMPARE(problems.pane.count(), 5);
        problems.document.clear();
        QTRY_COMPARE(problems.pane.count(), 0);
    }

    void stepsGoThroughAllAndAroundTheEnd()
    {
        Problems problems;
        problems.pane.check();
        QSignalSpy gone(&problems.pane, &ProblemsPane::goTo);
        for (int i = 0; i < 6; ++i)
            problems.pane.step(1);
        problems.pane.step(-1);
        problems.pane.step(-1);
        QStringList paths;
        for (const QVariantList &arguments : qAsConst(gone))
            paths += arguments.first().toString();
        QCOMPARE(paths,
            QStringList({"/entities/0", "/entities/0", "/entities/0/variables/1", "/entities/0/variables/1",
                "/entities/0/variables/1/metadata/range/0", "/entities/0",
                "/entities/0/variables/1/metadata/range/0", "/entities/0/variables/1"}));
    }

    void theFirstStepBackIsTheLastProblem()
    {
        Problems problems;
        problems.pane.check();
        problems.pane.step(-1);
        QCOMPARE(problems.current(), QString("range-reversed"));
    }

    void aStepRightAfterAnEditDoesNotWaitForTheCheck()
    {
        Problems problems;
        QSignalSpy gone(&problems.pane, &ProblemsPane::goTo);
        problems.pane.step(1);
        QCOMPARE(problems.pane.count(), 5);
        QCOMPARE(gone, QList<QVariantList>{{"/entities/0"}});
    }

    void theChosenProblemStaysChosen()
    {
        Problems problems;
        problems.pane.check();
        // Two problems of one place.
        problems.pane.step(1);
        problems.pane.step(1);
        QCOMPARE(problems.current(), QString("entity-weight-unknown"));
        problems.pane.check();
        QCOMPARE(problems.current(), QString("entity-weight-unknown"));
        problems.pane.step(1);
        QCOMPARE(problems.current(), QString("variable-name-duplicate"));
    }

    void returnAndDoubleClickGoThereAndSayWhy()
    {
        Problems problems;
        problems.pane.check();
        QSignalSpy gone(&problems.pane, &ProblemsPane::goTo);
        QSignalSpy told(&problems.pane, &ProblemsPane::told);
        const QRect row = problems.list->visualItemRect(problems.list->topLevelItem(3));
        QTest::mouseClick(problems.list->viewport(), Qt::LeftButton, {}, row.center());
        QVERIFY(gone.isEmpty());
        QTest::mouseDClick(problems.list->viewport(), Qt::LeftButton, {}, row.center());
        QTest::keyClick(problems.list, Qt::Key_Down);
        QTest::keyClick(problems.list, Qt::Key_Return);
        QCOMPARE(gone,
            (QList<QVariantList>{{"/entities/0/variables/1"}, {"/entities/0/variables/1/metadata/range/0"}}));
        QCOMPARE(told.first().first().toString(), "HOUSE/ROOMS: " + problems.list->topLevelItem(3)->text(1));
    }
};

QTEST_MAIN(tst_ProblemsPane)
#include "tst_ProblemsPane.moc"
