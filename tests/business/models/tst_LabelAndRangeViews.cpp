#include "business/models/VarRangeModel.h"
#include "business/models/VarRangeProxyModel.h"
#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"

#include "tests/business/models/TwoColumnRows.h"
#include "tests/support/LogCatcher.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace tessel::test;

namespace {

/// The value labels or the ranges of a variable in a table with clickable headers, as the front end shows
/// them.
class Shown {
public:
    /// \a type is the variable's; without one, the rows are value labels.
    explicit Shown(const QStringList &rows, const QString &type = QString())
    {
        if (type.isNull()) {
            variable = variableWith<ValueLabelElement>(rows);
            model = std::make_unique<VarValueLabelDiccionaryModel>(nullptr, variable.get());
            proxy = std::make_unique<VarValueLabelDiccionaryProxyModel>(nullptr);
        } else {
            variable = variableWith<Range>(rows);
            variable->setVarType(type);
            model = std::make_unique<VarRangeModel>(nullptr, variable.get());
            proxy = std::make_unique<VarRangeProxyModel>(nullptr);
        }
        proxy->setSourceModel(model.get());
        view.setModel(proxy.get());
        view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        view.setSortingEnabled(true);
        view.resize(400, 300);
        view.show();
    }

    bool isReady()
    {
        view.activateWindow();
        return QTest::qWaitForWindowActive(&view);
    }

    void clickHeader(int column)
    {
        const QHeaderView *header = view.horizontalHeader();
        const QPoint middle(
            header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    }

    /// The rows from top to bottom, as far as they can be seen.
    QStringList rows() const
    {
        QStringList texts;
        for (int y = 1; view.rowAt(y) >= 0; y += view.rowHeight(view.rowAt(y))) {
            const int row = view.rowAt(y);
            texts += proxy->index(row, 0).data().toString() + '|' + proxy->index(row, 1).data().toString();
        }
        return texts;
    }

    /// Opens the editor of a cell, types, presses Return.
    void type(int row, int column, const QString &text)
    {
        const QPoint middle = view.visualRect(proxy->index(row, column)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
        auto *editor = view.viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        // The closed editor goes with the next round of events.
        QTRY_VERIFY(!view.viewport()->findChild<QLineEdit *>());
    }

    /// What was written to the log, apart from what the platform of the tests says of itself.
    QStringList warnings() const
    {
        QStringList lines = log.messages();
        lines.removeAll("warning default: This plugin does not support propagateSizeHints()");
        return lines;
    }

    LogCatcher log;
    std::unique_ptr<TDmVariable> variable;
    std::unique_ptr<QAbstractItemModel> model;
    std::unique_ptr<QSortFilterProxyModel> proxy;
    QTableView view;

private:
    Q_DISABLE_COPY_MOVE(Shown)
};

const QString kLabels;
const QString kInteger = QStringLiteral("INTEGER");
const QString kReal = QStringLiteral("REAL");

} // namespace

class tst_LabelAndRangeViews : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void aClickOnTheHeaderSortsAndASecondOneTurnsRound_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("ascending");
        QTest::addColumn<QStringList>("descending");
        const QStringList labels{"2|b", "10|a", "x|c", "-1|5", "02|-5"};
        QTest::newRow("codes sort as numbers, ties and texts keep their order")
            << kLabels << labels << 0 << QStringList{"-1|5", "x|c", "2|b", "02|-5", "10|a"}
            << QStringList{"10|a", "2|b", "02|-5", "x|c", "-1|5"};
        QTest::newRow("labels that are no numbers stand between those that are")
            << kLabels << labels << 1 << QStringList{"02|-5", "2|b", "10|a", "x|c", "-1|5"}
            << QStringList{"-1|5", "2|b", "10|a", "x|c", "02|-5"};
        const QStringList ranges{"2|9.5", "10|10.5", "1|-3", "2.5|0"};
        QTest::newRow("minima of whole numbers")
            << kInteger << ranges << 0 << QStringList{"1|-3", "2|9", "2|0", "10|10"}
            << QStringList{"10|10", "2|9", "2|0", "1|-3"};
        QTest::newRow("maxima of whole numbers")
            << kInteger << ranges << 1 << QStringList{"1|-3", "2|0", "2|9", "10|10"}
            << QStringList{"10|10", "2|9", "2|0", "1|-3"};
        QTest::newRow("minima of other numbers sort as text")
            << kReal << ranges << 0 << QStringList{"1|-3", "10|10.5", "2|9.5", "2.5|0"}
            << QStringList{"2.5|0", "2|9.5", "10|10.5", "1|-3"};
        QTest::newRow("maxima of other numbers sort as text")
            << kReal << ranges << 1 << QStringList{"1|-3", "2.5|0", "10|10.5", "2|9.5"}
            << QStringList{"2|9.5", "10|10.5", "2.5|0", "1|-3"};
        QTest::newRow("no rows") << kLabels << QStringList() << 0 << QStringList() << QStringList();
    }
    void aClickOnTheHeaderSortsAndASecondOneTurnsRound()
    {
        QFETCH(QString, type);
        QFETCH(QStringList, rows);
        QFETCH(int, column);
        Shown shown(rows, type);
        QCOMPARE(shown.rows(), shownRows(*shown.model));
        shown.clickHeader(column);
        QCOMPARE(shown.view.horizontalHeader()->sortIndicatorSection(), column);
        QCOMPARE(shown.view.horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
        QTEST(shown.rows(), "ascending");
        shown.clickHeader(column);
        QCOMPARE(shown.view.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
        QTEST(shown.rows(), "descending");
        shown.clickHeader(column);
        QTEST(shown.rows(), "ascending");
        QCOMPARE(shown.warnings(), QStringList());
    }

    void clicksOnBothHeadersSortByTheLastAndTiesKeepTheOrderBefore()
    {
        Shown shown({"2|1", "1|1", "2|0", "1|0"});
        shown.clickHeader(0);
        QCOMPARE(shown.rows(), QStringList({"1|1", "1|0", "2|1", "2|0"}));
        shown.clickHeader(1);
        QCOMPARE(shown.rows(), QStringList({"1|0", "2|0", "1|1", "2|1"}));
        shown.clickHeader(1);
        QCOMPARE(shown.rows(), QStringList({"1|1", "2|1", "1|0", "2|0"}));
    }

    void theHeadersAreThoseOfTheModelEvenWithoutRows_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("headers");
        QTest::newRow("value labels") << kLabels << "Code|Label";
        QTest::newRow("ranges of whole numbers") << kInteger << "Minimum|Maximum";
        QTest::newRow("ranges of other numbers") << kReal << "Minimum|Maximum";
    }
    void theHeadersAreThoseOfTheModelEvenWithoutRows()
    {
        QFETCH(QString, type);
        QFETCH(QString, headers);
        Shown shown({"1|2"}, type);
        for (const char *pattern : {"", "["}) {
            shown.proxy->setFilterRegExp(pattern);
            QCOMPARE(shown.rows().size(), *pattern ? 0 : 1);
            QCOMPARE(shown.proxy->headerData(0, Qt::Horizontal).toString() + '|'
                    + shown.proxy->headerData(1, Qt::Horizontal).toString(),
                headers);
        }
        QCOMPARE(shown.warnings(), QStringList());
    }

    void theFilterKeepsTheOrder()
    {
        Shown shown({"3|Urban", "20|Rural", "1|urban area", "100|other"});
        shown.clickHeader(0);
        shown.proxy->setFilterRegExp("R");
        QCOMPARE(shown.rows(), QStringList({"1|urban area", "3|Urban", "20|Rural", "100|other"}));
        shown.proxy->setFilterRegExp("UR");
        QCOMPARE(shown.rows(), QStringList({"1|urban area", "3|Urban", "20|Rural"}));
        shown.clickHeader(0);
        QCOMPARE(shown.rows(), QStringList({"20|Rural", "3|Urban", "1|urban area"}));
        shown.proxy->setFilterRegExp("ur");
        QCOMPARE(shown.rows(), QStringList());
        shown.proxy->setFilterRegExp(QRegExp("^ur", Qt::CaseInsensitive));
        QCOMPARE(shown.rows(), QStringList({"3|Urban", "1|urban area"}));
        shown.proxy->setFilterRegExp("0");
        QCOMPARE(shown.rows(), QStringList({"100|other", "20|Rural"}));
        shown.proxy->setFilterRegExp("0[");
        QCOMPARE(shown.rows(), QStringList());
        shown.proxy->setFilterRegExp("");
        QCOMPARE(shown.rows(), QStringList({"100|other", "20|Rural", "3|Urban", "1|urban area"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aTypedCodeMovesItsRow()
    {
        Shown shown({"2|b", "10|a", "1|c"});
        QVERIFY(shown.isReady());
        shown.clickHeader(0);
        shown.type(0, 0, "30");
        QCOMPARE(shown.rows(), QStringList({"2|b", "10|a", "30|c"}));
        QCOMPARE(stored<ValueLabelElement>(*shown.variable), QStringList({"2|b", "10|a", "30|c"}));
        shown.type(1, 0, "");
        QCOMPARE(shown.rows(), QStringList({"|a", "2|b", "30|c"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aTypedLabelThatDoesNotMatchHidesItsRow()
    {
        Shown shown({"1|Urban", "2|Urban area"});
        QVERIFY(shown.isReady());
        shown.proxy->setFilterRegExp("URBAN");
        shown.type(0, 1, "Rural");
        QCOMPARE(shown.rows(), QStringList{"2|Urban area"});
        QCOMPARE(stored<ValueLabelElement>(*shown.variable), QStringList({"1|Rural", "2|Urban area"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aTypedWholeBoundMovesItsRow()
    {
        Shown shown({"2.9|5", "10|20"}, kInteger);
        QVERIFY(shown.isReady());
        shown.clickHeader(0);
        shown.type(0, 0, "12");
        QCOMPARE(shown.rows(), QStringList({"10|20", "12|5"}));
        QCOMPARE(stored<Range>(*shown.variable), QStringList({"12|5", "10|20"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aTypedBoundWithDecimalsMovesItsRow()
    {
        Shown shown({"2.9|5", "10|20"}, kReal);
        QVERIFY(shown.isReady());
        shown.clickHeader(1);
        QCOMPARE(shown.rows(), QStringList({"10|20", "2.9|5"}));
        shown.type(1, 1, "10.5");
        QCOMPARE(shown.rows(), QStringList({"2.9|10.5", "10|20"}));
        QCOMPARE(stored<Range>(*shown.variable), QStringList({"2.9|10.5", "10|20"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void anotherVariableIsShownByAnotherModel()
    {
        Shown shown({"2|b", "1|a"});
        shown.clickHeader(0);
        const auto other = variableWith<ValueLabelElement>({"30|x", "4|y", "200|z"});
        VarValueLabelDiccionaryModel model(nullptr, other.get());
        shown.proxy->setSourceModel(&model);
        QCOMPARE(shown.rows(), QStringList({"4|y", "30|x", "200|z"}));
        shown.proxy->setSourceModel(nullptr);
    }

    void rowsWithoutObjectsAreShownEmpty()
    {
        Shown shown({"2|b", "null", "-1|a"});
        QVERIFY(shown.isReady());
        QCOMPARE(shown.rows(), QStringList({"2|b", "|", "-1|a"}));
        shown.type(1, 0, "7");
        QCOMPARE(shown.rows(), QStringList({"2|b", "|", "-1|a"}));
        shown.proxy->setFilterRegExp("^$");
        QCOMPARE(shown.rows(), QStringList{"|"});
        QCOMPARE(shown.warnings(), QStringList());
    }
};

QTEST_MAIN(tst_LabelAndRangeViews)
#include "tst_LabelAndRangeViews.moc"
