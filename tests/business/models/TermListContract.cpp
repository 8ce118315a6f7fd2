#include "tests/business/models/TermListContract.h"

#include "tests/business/models/Announcements.h"
#include "tests/support/LogCatcher.h"

#include <QListView>
#include <QtTest>

#include <climits>

namespace tessel::test {

QString TermListContract::textOf(const QString &name, int mode) const
{
    const QString label = QStringLiteral("label of ") + name;
    if (mode == 0)
        return name;
    return mode == 1 ? label : name + QStringLiteral(" - ") + label;
}

void TermListContract::emptyTextsLeaveTheHyphenAndItsBlanks()
{
    const auto tested = open({"A"}, ShowNameAndLabel);
    tested->rename("A", QString());
    QCOMPARE(tested->model().index(0, 0).data(), QVariant(" - label of A"));
    const auto named = open({"A"}, ShowName);
    named->rename("A", QString());
    QCOMPARE(named->model().index(0, 0).data(), QVariant(QString("")));
    QCOMPARE(named->model().index(0, 0).data().userType(), int(QMetaType::QString));
}

void TermListContract::theLogComesBeforeTheAnnouncementOfARemoval()
{
    const auto tested = open({"A", "B"});
    const LogCatcher log;
    QList<int> linesBefore;
    connect(&tested->model(), &QAbstractItemModel::rowsAboutToBeRemoved, this,
        [&] { linesBefore += log.messages().size(); });
    tested->model().removeRows(0, 1);
    tested->model().removeRows(7, 0);
    QCOMPARE(linesBefore, QList<int>({1, 2}));
    QCOMPARE(log.messages().size(), 2);
}

void TermListContract::exactlyOneIsAppendedWhateverIsAnnounced_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("last");
    QTest::newRow("one at the end") << 3 << 1 << 3;
    QTest::newRow("one at the front") << 0 << 1 << 0;
    QTest::newRow("three at the front") << 0 << 3 << 2;
    QTest::newRow("two in the middle") << 1 << 2 << 2;
    QTest::newRow("far behind the end") << 100 << 2 << 101;
    QTest::newRow("none") << 1 << 0 << 0;
    QTest::newRow("none at the front") << 0 << 0 << -1;
    QTest::newRow("count -4") << 2 << -4 << -3;
    QTest::newRow("row -1") << -1 << 1 << -1;
    QTest::newRow("highest count") << 0 << INT_MAX << INT_MAX - 1;
    QTest::newRow("highest row but one") << INT_MAX - 1 << 1 << INT_MAX - 1;
    QTest::newRow("lowest row, two") << INT_MIN << 2 << INT_MIN + 1;
}
void TermListContract::exactlyOneIsAppendedWhateverIsAnnounced()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, last);
    const auto tested = open({"A", "B", "C"});
    Announcements announced(tested->model());
    const LogCatcher log;
    QVERIFY(tested->model().insertRows(row, count, tested->model().index(1, 0)));
    QCOMPARE(tested->listed(), QStringList({"A", "B", "C", "B"}));
    const QString rows = QStringLiteral("%1-%2").arg(row).arg(last);
    QCOMPARE(announced.take(),
        QStringList({QStringLiteral("inserting %1, 3 there").arg(rows),
            QStringLiteral("inserted %1, 4 there").arg(rows)}));
    QCOMPARE(log.messages(), QStringList());
}

void TermListContract::anAdditionIsAnnouncedAsAskedUpToTheEndsOfInt_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("last");
    QTest::newRow("up to the highest number") << 1 << INT_MAX << INT_MAX;
    QTest::newRow("the highest row") << INT_MAX << 1 << INT_MAX;
    QTest::newRow("the lowest row") << INT_MIN << 1 << INT_MIN;
}
void TermListContract::anAdditionIsAnnouncedAsAskedUpToTheEndsOfInt()
{
    exactlyOneIsAppendedWhateverIsAnnounced();
}

void TermListContract::anAdditionBeyondWhatAnIntHoldsIsStillOne()
{
    const auto tested = open({"A", "B", "C"});
    QList<int> lasts;
    connect(&tested->model(), &QAbstractItemModel::rowsAboutToBeInserted, this,
        [&](const QModelIndex &, int, int last) { lasts += last; });
    for (const int count : {INT_MAX, 2}) {
        QVERIFY(tested->model().insertRows(INT_MAX, count, tested->model().index(0, 0)));
        QVERIFY(tested->model().insertRows(INT_MIN, -count, tested->model().index(0, 0)));
    }
    QCOMPARE(tested->listed().join(QString()), QString("ABCAAAA"));
    // The very last number may be kept from those who count one beyond.
    QCOMPARE(lasts.size(), 4);
    QVERIFY(lasts.at(0) >= INT_MAX - 1 && lasts.at(2) >= INT_MAX - 1);
    QVERIFY(lasts.at(1) <= INT_MIN + 1 && lasts.at(3) <= INT_MIN + 1);
}

void TermListContract::theParentCarriesTheObjectToAdd()
{
    const auto tested = open({"A", "B"});
    const auto other = open({"X", "Y"});
    Announcements announced(tested->model());
    // Another list's row, as a drop from there brings it, and an index that no view would make.
    QVERIFY(tested->model().insertRows(0, 1, other->model().index(1, 0)));
    QVERIFY(tested->model().insertRow(2, tested->made(77, 5, "A")));
    QCOMPARE(tested->listed(), QStringList({"A", "B", "Y", "A"}));
    QCOMPARE(tested->model().index(2, 0).data(), QVariant("Y"));
    // Announced at the top, whatever the parent.
    QCOMPARE(announced.take(),
        QStringList({"inserting 0-0, 2 there", "inserted 0-0, 3 there", "inserting 2-2, 3 there",
            "inserted 2-2, 4 there"}));
    QCOMPARE(other->listed(), QStringList({"X", "Y"}));
    tested->model().removeRows(2, 1);
}

void TermListContract::aParentWithoutObjectAddsARowWithoutObject()
{
    const auto tested = open({"A"});
    QVERIFY(tested->model().insertRows(0, 2));
    QVERIFY(tested->model().insertRows(0, 1, tested->made(0, 0, "null")));
    QCOMPARE(tested->listed(), QStringList({"A", "null", "null"}));
    QVERIFY(!tested->model().index(1, 0).data().isValid());
}

void TermListContract::theSameObjectMayStandTwice()
{
    const auto tested = open({"A", "B"});
    const LogCatcher log;
    tested->model().insertRows(0, 1, tested->model().index(0, 0));
    tested->model().removeRows(0, 1);
    QCOMPARE(tested->listed(), QStringList({"B", "A"}));
}

void TermListContract::anEmptyListTakesItsFirst()
{
    const auto giver = open({"A"});
    const auto tested = openWithoutList();
    QVERIFY(tested->model().insertRows(0, 1, giver->model().index(0, 0)));
    QCOMPARE(tested->listed(), QStringList({"A"}));
    tested->model().index(0, 0).data();
    QCOMPARE(tested->model().index(0, 0).data(), QVariant("A"));
}

void TermListContract::aViewWithASelectedRowSurvivesOddInsertions_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::newRow("three at the front") << 0 << 3;
    QTest::newRow("none") << 1 << 0;
    QTest::newRow("count -5") << 1 << -5;
    QTest::newRow("row -1") << -1 << 2;
    QTest::newRow("far behind the end") << 100 << 2;
    QTest::newRow("highest count") << 0 << INT_MAX;
    QTest::newRow("highest count from the selected row") << 1 << INT_MAX;
    QTest::newRow("highest row and count") << INT_MAX << INT_MAX;
    QTest::newRow("lowest row") << INT_MIN << 1;
    QTest::newRow("lowest row, highest count") << INT_MIN << INT_MAX;
    QTest::newRow("lowest row and count") << INT_MIN << INT_MIN;
}
void TermListContract::aViewWithASelectedRowSurvivesOddInsertions()
{
    QFETCH(int, row);
    QFETCH(int, count);
    const auto tested = open({"A", "B", "C"});
    QListView view;
    view.setModel(&tested->model());
    view.resize(200, 200);
    view.show();
    view.setCurrentIndex(tested->model().index(1, 0));
    // Qt complains of announcements that do not fit.
    const LogCatcher log;
    QVERIFY(tested->model().insertRows(row, count, tested->model().index(0, 0)));
    QCOMPARE(tested->listed(), QStringList({"A", "B", "C", "A"}));
    QCoreApplication::processEvents();
    QVERIFY(!view.grab().isNull());
    QVERIFY(!view.currentIndex().isValid() || view.currentIndex().row() < 4);
    view.reset();
    view.setCurrentIndex(tested->model().index(3, 0));
    QCOMPARE(view.currentIndex().data(), QVariant("A"));
}

} // namespace tessel::test
