#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableProxyContract.h"
#include "tests/business/models/VariableRows.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

namespace tessel::test {

void VariableProxyContract::bothBoundsOfTheDatesAreExclusive_data()
{
    QTest::addColumn<QDate>("minimum");
    QTest::addColumn<QDate>("maximum");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("isInRange");
    const QDate none;
    const QDate first(2020, 2, 28);
    const QDate leap(2020, 2, 29);
    const QDate last(2020, 3, 1);
    const auto row = [](const char *tag, QDate minimum, QDate maximum, QDate date, bool isInRange) {
        QTest::newRow(tag) << minimum << maximum << date << isInRange;
    };
    row("no bounds, any date", none, none, leap, true);
    row("no bounds, an early date", none, none, QDate(-4000, 1, 1), true);
    row("no bounds, no date", none, none, none, true);
    row("at the lower bound", leap, none, leap, false);
    row("below the lower bound", leap, none, first, false);
    row("above the lower bound", leap, none, last, true);
    row("far above the lower bound", leap, none, QDate(9999, 12, 31), true);
    row("no date with a lower bound", leap, none, none, false);
    row("at the upper bound", none, leap, leap, false);
    row("below the upper bound", none, leap, first, true);
    row("above the upper bound", none, leap, last, false);
    row("between the bounds", first, last, leap, true);
    row("at the lower of two", first, last, first, false);
    row("at the upper of two", first, last, last, false);
    row("below the lower of two", first, last, first.addDays(-1), false);
    row("above the upper of two", first, last, last.addDays(1), false);
    row("no day between the bounds, at the lower", first, leap, first, false);
    row("no day between the bounds, at the upper", first, leap, leap, false);
    row("equal bounds", leap, leap, leap, false);
    row("bounds the wrong way round", last, first, leap, false);
    row("a bound that is no date", QDate(2021, 2, 29), QDate(2020, 13, 1), leap, true);
    row("a lower bound that is no date, at the upper", QDate(2021, 2, 29), leap, leap, false);
    row("an upper bound that is no date, at the lower", leap, QDate(2020, 13, 1), leap, false);
}
void VariableProxyContract::bothBoundsOfTheDatesAreExclusive()
{
    QFETCH(QDate, minimum);
    QFETCH(QDate, maximum);
    QFETCH(QDate, date);
    QFETCH(bool, isInRange);
    const auto tested = open();
    QVERIFY(tested->isInRange(date));
    tested->setMinimum(minimum);
    tested->setMaximum(maximum);
    QCOMPARE(tested->isInRange(date), isInRange);
    const auto other = open();
    other->setMaximum(maximum);
    other->setMinimum(minimum);
    QCOMPARE(other->isInRange(date), isInRange);
}

void VariableProxyContract::aBoundCanBeMovedAndTakenAway()
{
    const QDate date(2020, 2, 29);
    const auto tested = open();
    tested->setMinimum(date);
    QVERIFY(!tested->isInRange(date));
    tested->setMinimum(date.addDays(-1));
    QVERIFY(tested->isInRange(date));
    tested->setMaximum(date);
    QVERIFY(!tested->isInRange(date));
    tested->setMinimum(QDate());
    QVERIFY(!tested->isInRange(date));
    tested->setMaximum(QDate());
    QVERIFY(tested->isInRange(date));
}

void VariableProxyContract::theDatesTakeNoPartInTheFilter()
{
    CellTable source(8);
    source.add({QDate(1999, 12, 31)});
    source.add({QDateTime(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC)});
    source.add({"2050-01-01"});
    source.add({"x"});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    model.setFilterRegExp(QRegExp("\\d"));
    const QStringList expected = columnTexts(model);
    QCOMPARE(expected.size(), 3);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    for (const QDate &date : {QDate(1000, 1, 1), QDate(2020, 1, 1), QDate(3000, 1, 1), QDate()}) {
        tested->setMinimum(date);
        QCOMPARE(columnTexts(model), expected);
        tested->setMaximum(date.isValid() ? date.addDays(-1) : date);
        QCOMPARE(columnTexts(model), expected);
    }
    QCOMPARE(inserted.count() + removed.count() + layout.count() + reset.count(), 0);
}

void VariableProxyContract::settingADateRunsTheFilterAgain_data()
{
    QTest::addColumn<bool>("isMinimum");
    QTest::addColumn<QDate>("date");
    QTest::newRow("a lower bound") << true << QDate(2020, 1, 1);
    QTest::newRow("no lower bound, as before") << true << QDate();
    QTest::newRow("an upper bound") << false << QDate(2020, 1, 1);
    QTest::newRow("no upper bound, as before") << false << QDate();
}
void VariableProxyContract::settingADateRunsTheFilterAgain()
{
    QFETCH(bool, isMinimum);
    QFETCH(QDate, date);
    CellTable source(8);
    source.add({"AGE", "C"});
    source.add({"SEX", "B"});
    source.add({"OLD AGE", "A"});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    model.setFilterRegExp(QRegExp("AGE"));
    model.sort(1);
    QCOMPARE(columnTexts(model), QStringList({"OLD AGE", "AGE"}));

    // The source says nothing of what becomes of it, so that only a new run can find out.
    source.cells[0][0] = "JOB";
    source.cells[1][0] = "AGE";
    QCOMPARE(columnTexts(model), QStringList({"OLD AGE", "JOB"}));
    source.reads.clear();
    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    for (int times = 0; times < 2; ++times) {
        isMinimum ? tested->setMinimum(date) : tested->setMaximum(date);
        QCOMPARE(source.reads.filter(QRegularExpression("^\\d,0 0$")).size(), 3);
        QCOMPARE(columnTexts(model), QStringList({"OLD AGE", "AGE"}));
        source.reads.clear();
    }
    // Only the filter runs; what it kept before is not sorted again.
    source.cells[2][1] = "Z";
    isMinimum ? tested->setMinimum(date) : tested->setMaximum(date);
    QCOMPARE(columnTexts(model), QStringList({"OLD AGE", "AGE"}));
    QCOMPARE(layout.count(), 0);
}

void VariableProxyContract::settingADateWithoutASourceIsHarmless()
{
    const auto tested = open();
    tested->model().setFilterRegExp(QRegExp("AGE"));
    tested->setMinimum(QDate(2020, 1, 1));
    tested->setMaximum(QDate(2020, 1, 3));
    tested->model().sort(1, Qt::DescendingOrder);
    QVERIFY(tested->isInRange(QDate(2020, 1, 2)));
    QCOMPARE(tested->model().rowCount(), 0);
    QCOMPARE(tested->model().columnCount(), 0);
}

} // namespace tessel::test
