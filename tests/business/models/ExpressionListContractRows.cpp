#include "tests/business/models/ExpressionListContract.h"

#include "tests/business/models/Announcements.h"
#include "tests/support/LogCatcher.h"

#include <QListView>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

const QStringList kSix = {"A", "B", "C", "D", "E", "F"};
constexpr int kLastRole = Qt::UserRole + 5;

} // namespace

void ExpressionListContract::anEditIsAnnouncedForEveryRoleAndChangesNothing()
{
    const auto tested = open(kSix, ShowNameAndLabel);
    QAbstractItemModel &model = tested->model();
    Announcements announced(model);
    for (int role = -1; role <= kLastRole; ++role) {
        for (const QVariant &value : {QVariant("NEW"), QVariant(), QVariant(Qt::Checked)}) {
            QVERIFY(model.setData(model.index(2, 0), value, role));
            QCOMPARE(announced.take(), QStringList("changed 2,0 to 2,0, 0 roles"));
        }
    }
    QVERIFY(model.setData(model.index(5, 0), "NEW"));
    QCOMPARE(announced.take(), QStringList("changed 5,0 to 5,0, 0 roles"));
    QCOMPARE(tested->objectNames(), kSix);
    QCOMPARE(tested->listed(), kSix);
    QCOMPARE(model.index(2, 0).data(), QVariant(textOf("C", ShowNameAndLabel)));
}

void ExpressionListContract::anEditOfAnyColumnIsAnnouncedThere()
{
    const auto tested = open(kSix);
    Announcements announced(tested->model());
    QVERIFY(tested->model().setData(tested->model().index(1, 4), "NEW"));
    QCOMPARE(announced.take(), QStringList("changed 1,4 to 1,4, 0 roles"));
    QCOMPARE(tested->objectNames(), kSix);
}

void ExpressionListContract::aRemovalIsAnnouncedAsAskedAndTakesWhatIsThere_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("left");
    QTest::newRow("the first") << 0 << 1 << 0 << "BCDEF";
    QTest::newRow("the last") << 5 << 1 << 5 << "ABCDE";
    QTest::newRow("two in the middle") << 2 << 2 << 3 << "ABEF";
    QTest::newRow("all") << 0 << 6 << 5 << "";
    QTest::newRow("all but the first") << 1 << 5 << 5 << "A";
    QTest::newRow("the last and one more") << 5 << 2 << 6 << "ABCDE";
    QTest::newRow("more than all") << 0 << 7 << 6 << "";
    QTest::newRow("many more than are behind") << 3 << 1000 << 1002 << "ABC";
    QTest::newRow("behind the last") << 6 << 1 << 6 << "ABCDEF";
    QTest::newRow("far behind the last") << 100 << 3 << 102 << "ABCDEF";
    QTest::newRow("none") << 2 << 0 << 1 << "ABCDEF";
    QTest::newRow("none, from the first") << 0 << 0 << -1 << "ABCDEF";
    QTest::newRow("count -1") << 2 << -1 << 0 << "ABCDEF";
    QTest::newRow("count -5") << 2 << -5 << -4 << "ABCDEF";
    QTest::newRow("row -1") << -1 << 1 << -1 << "ABCDEF";
    QTest::newRow("row -1, into the list") << -1 << 3 << 1 << "ABCDEF";
    QTest::newRow("row and count negative") << -2 << -3 << -6 << "ABCDEF";
    QTest::newRow("highest count") << 0 << INT_MAX << INT_MAX - 1 << "";
    QTest::newRow("highest count from row -1") << -1 << INT_MAX << INT_MAX - 2 << "ABCDEF";
    QTest::newRow("lowest row, highest count") << INT_MIN << INT_MAX << -2 << "ABCDEF";
    QTest::newRow("highest row, lowest count") << INT_MAX << INT_MIN << -2 << "ABCDEF";
    QTest::newRow("lowest count from row 2") << 2 << INT_MIN << INT_MIN + 1 << "ABCDEF";
    QTest::newRow("highest row but one") << INT_MAX - 1 << 1 << INT_MAX - 1 << "ABCDEF";
    QTest::newRow("lowest row, two") << INT_MIN << 2 << INT_MIN + 1 << "ABCDEF";
}
void ExpressionListContract::aRemovalIsAnnouncedAsAskedAndTakesWhatIsThere()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, last);
    QFETCH(QString, left);
    const auto tested = open(kSix);
    Announcements announced(tested->model());
    const LogCatcher log;
    QVERIFY(tested->model().removeRows(row, count));
    QCOMPARE(tested->listed().join(QString()), left);
    const QString rows = QStringLiteral("%1-%2").arg(row).arg(last);
    QCOMPARE(announced.take(),
        QStringList({QStringLiteral("removing %1 of 6").arg(rows),
            QStringLiteral("removed %1, %2 left").arg(rows).arg(left.size())}));
    QCOMPARE(log.messages(), linesOfARemoval());
    QCOMPARE(tested->objectNames(), kSix);
}

void ExpressionListContract::aRemovalIsAnnouncedAsAskedUpToTheEndsOfInt_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("left");
    QTest::newRow("up to the highest number") << 1 << INT_MAX << INT_MAX << "A";
    QTest::newRow("the highest row") << INT_MAX << 1 << INT_MAX << "ABCDEF";
    QTest::newRow("the lowest row") << INT_MIN << 1 << INT_MIN << "ABCDEF";
    QTest::newRow("down to the lowest number") << 1 << INT_MIN << INT_MIN << "ABCDEF";
}
void ExpressionListContract::aRemovalIsAnnouncedAsAskedUpToTheEndsOfInt()
{
    aRemovalIsAnnouncedAsAskedAndTakesWhatIsThere();
}

void ExpressionListContract::aRemovalBeyondWhatAnIntHoldsIsAnnouncedUpToTheEnd_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isHighest");
    QTest::addColumn<QString>("left");
    QTest::newRow("highest count from row 2") << 2 << INT_MAX << true << "AB";
    QTest::newRow("highest count from the last") << 5 << INT_MAX << true << "ABCDE";
    QTest::newRow("highest row and count") << INT_MAX << INT_MAX << true << "ABCDEF";
    QTest::newRow("highest row, two") << INT_MAX << 2 << true << "ABCDEF";
    QTest::newRow("lowest count") << 0 << INT_MIN << false << "ABCDEF";
    QTest::newRow("lowest row, none") << INT_MIN << 0 << false << "ABCDEF";
    QTest::newRow("lowest row and count") << INT_MIN << INT_MIN << false << "ABCDEF";
}
void ExpressionListContract::aRemovalBeyondWhatAnIntHoldsIsAnnouncedUpToTheEnd()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(bool, isHighest);
    QFETCH(QString, left);
    const auto tested = open(kSix);
    QList<int> firsts;
    QList<int> lasts;
    const auto note = [&](const QModelIndex &, int first, int last) {
        firsts += first;
        lasts += last;
    };
    connect(&tested->model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, note);
    connect(&tested->model(), &QAbstractItemModel::rowsRemoved, this, note);
    const LogCatcher log;
    QVERIFY(tested->model().removeRows(row, count));
    QCOMPARE(tested->listed().join(QString()), left);
    QCOMPARE(firsts, QList<int>({row, row}));
    QCOMPARE(lasts.size(), 2);
    QCOMPARE(lasts.at(0), lasts.at(1));
    // The very last number may be kept from those who count one beyond.
    QVERIFY(isHighest ? lasts.at(0) >= INT_MAX - 1 : lasts.at(0) <= INT_MIN + 1);
}

void ExpressionListContract::theParentOfARemovalIsNotLookedAt()
{
    const auto tested = open(kSix);
    const auto other = open(kSix);
    Announcements announced(tested->model());
    const LogCatcher log;
    QVERIFY(tested->model().removeRows(1, 1, tested->model().index(4, 0)));
    QVERIFY(tested->model().removeRows(1, 1, other->model().index(0, 0)));
    QVERIFY(tested->model().removeRow(1, tested->made(9, 9, "null")));
    QCOMPARE(tested->listed(), QStringList({"A", "E", "F"}));
    QCOMPARE(announced.take(),
        QStringList({"removing 1-1 of 6", "removed 1-1, 5 left", "removing 1-1 of 5", "removed 1-1, 4 left",
            "removing 1-1 of 4", "removed 1-1, 3 left"}));
}

void ExpressionListContract::removalsFollowEachOther()
{
    const auto tested = open(kSix);
    const LogCatcher log;
    for (int left = 6; left > 0; --left) {
        QVERIFY(tested->model().removeRows(left / 2, 1));
        QCOMPARE(tested->model().rowCount(), left - 1);
    }
    QVERIFY(tested->model().removeRows(0, 1));
    QCOMPARE(tested->listed(), QStringList());
}

void ExpressionListContract::removedObjectsStayAlive()
{
    const auto tested = open(kSix);
    const LogCatcher log;
    tested->model().removeRows(0, 6);
    QCOMPARE(tested->objectNames(), kSix);
    tested->appendToData("C");
    QCOMPARE(tested->model().index(0, 0).data(), QVariant(textOf("C", ShowName)));
}

void ExpressionListContract::columnsAreNeitherAddedNorTaken()
{
    const auto tested = open(kSix);
    Announcements announced(tested->model());
    QVERIFY(!tested->model().insertColumns(0, 1));
    QVERIFY(!tested->model().removeColumns(0, 1));
    QVERIFY(!tested->model().moveRows({}, 0, 1, {}, 3));
    QVERIFY(!tested->model().setHeaderData(0, Qt::Horizontal, "NEW"));
    QCOMPARE(tested->model().columnCount(), 1);
    QCOMPARE(announced.take(), QStringList());
}

void ExpressionListContract::aViewWithASelectedRowSurvivesOddRemovals_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("left");
    QTest::newRow("the selected row") << 2 << 1 << "ABDEF";
    QTest::newRow("all") << 0 << 6 << "";
    QTest::newRow("more than all") << 0 << 7 << "";
    QTest::newRow("the last and one more") << 5 << 2 << "ABCDE";
    QTest::newRow("none") << 2 << 0 << "ABCDEF";
    QTest::newRow("count -1") << 2 << -1 << "ABCDEF";
    QTest::newRow("row -1, over the selected row") << -1 << 5 << "ABCDEF";
    QTest::newRow("row -1, over all but the last") << -1 << 6 << "ABCDEF";
    QTest::newRow("behind the last") << 6 << 3 << "ABCDEF";
    QTest::newRow("highest count") << 0 << INT_MAX << "";
    QTest::newRow("highest count from row 1") << 1 << INT_MAX << "A";
    QTest::newRow("highest count from the selected row") << 2 << INT_MAX << "AB";
    QTest::newRow("highest count from row -1") << -1 << INT_MAX << "ABCDEF";
    QTest::newRow("highest count from the lowest row") << INT_MIN << INT_MAX << "ABCDEF";
    QTest::newRow("lowest count") << 0 << INT_MIN << "ABCDEF";
    QTest::newRow("lowest count from row 2") << 2 << INT_MIN << "ABCDEF";
    QTest::newRow("highest row") << INT_MAX << 1 << "ABCDEF";
    QTest::newRow("highest row and count") << INT_MAX << INT_MAX << "ABCDEF";
    QTest::newRow("lowest row") << INT_MIN << 1 << "ABCDEF";
    QTest::newRow("lowest row and count") << INT_MIN << INT_MIN << "ABCDEF";
}
void ExpressionListContract::aViewWithASelectedRowSurvivesOddRemovals()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, left);
    for (const auto mode : {QAbstractItemView::SingleSelection, QAbstractItemView::ExtendedSelection}) {
        for (const int selected : {0, 2, 5}) {
            const auto tested = open(kSix);
            QListView view;
            view.setSelectionMode(mode);
            view.setModel(&tested->model());
            view.resize(200, 200);
            view.show();
            view.setCurrentIndex(tested->model().index(selected, 0));
            QCOMPARE(view.selectionModel()->selectedIndexes().size(), 1);
            // Qt complains of announcements that do not fit.
            const LogCatcher log;
            QVERIFY(tested->model().removeRows(row, count));
            QCOMPARE(tested->listed().join(QString()), left);
            QCoreApplication::processEvents();
            QVERIFY(!view.grab().isNull());
            const QModelIndex current = view.currentIndex();
            QVERIFY(!current.isValid() || current.row() < left.size());
            // It goes on working.
            tested->appendToData("A");
            view.reset();
            view.setCurrentIndex(tested->model().index(tested->model().rowCount() - 1, 0));
            QCOMPARE(view.currentIndex().data(), QVariant(textOf("A", ShowName)));
        }
    }
}

} // namespace tessel::test
