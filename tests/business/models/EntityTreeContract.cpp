#include "tests/business/models/EntityTreeContract.h"

#include "tests/business/models/TreeText.h"

#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

std::unique_ptr<TDmEntity> land()
{
    return treeFrom<TDmEntity>("LAND(HOUSE(PERSON(JOB) DEATH ROOM(BED)) FARM ROAD(CAR(SEAT)))");
}

} // namespace

void EntityTreeContract::theTreeIsShownWholeAndInOrder_data()
{
    QTest::addColumn<QString>("tree");
    for (const char *tree :
        {"A", "A(B)", "A(B C D)", "A(B(C(D(E))))", "A(B(C D) E(F G(H)) I)", "A(B C(D E(F G)))"})
        QTest::newRow(tree) << tree;
}
void EntityTreeContract::theTreeIsShownWholeAndInOrder()
{
    QFETCH(QString, tree);
    const auto root = treeFrom<TDmEntity>(tree.toLatin1().constData());
    const auto tested = open(root.get());
    QCOMPARE(drawn<TDmEntity>(tested->model()), tree);
}

void EntityTreeContract::indexesAreThoseOfTheEntities_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("expected");
    const QString top;
    QTest::newRow("the root") << top << 0 << 0 << "0, 0, LAND";
    QTest::newRow("no second root") << top << 1 << 0 << "invalid";
    QTest::newRow("top, row -1") << top << -1 << 0 << "invalid";
    QTest::newRow("top, highest row") << top << INT_MAX << 0 << "invalid";
    QTest::newRow("top, lowest row") << top << INT_MIN << 0 << "invalid";
    QTest::newRow("top, column -1") << top << 0 << -1 << "invalid";
    QTest::newRow("top, column 1") << top << 0 << 1 << "invalid";
    QTest::newRow("top, highest column") << top << 0 << INT_MAX << "invalid";
    QTest::newRow("first child") << "LAND" << 0 << 0 << "0, 0, HOUSE";
    QTest::newRow("middle child") << "LAND" << 1 << 0 << "1, 0, FARM";
    QTest::newRow("last child") << "LAND" << 2 << 0 << "2, 0, ROAD";
    QTest::newRow("behind the last child") << "LAND" << 3 << 0 << "invalid";
    QTest::newRow("grandchild") << "HOUSE" << 2 << 0 << "2, 0, ROOM";
    QTest::newRow("below a leaf") << "FARM" << 0 << 0 << "invalid";
    QTest::newRow("below, row -1") << "LAND" << -1 << 0 << "invalid";
    QTest::newRow("below, highest row") << "LAND" << INT_MAX << 0 << "invalid";
    QTest::newRow("below, lowest row") << "LAND" << INT_MIN << 0 << "invalid";
    QTest::newRow("below, column -1") << "LAND" << 0 << -1 << "invalid";
    QTest::newRow("below, column 1") << "LAND" << 0 << 1 << "invalid";
    QTest::newRow("below, highest column") << "LAND" << 0 << INT_MAX << "invalid";
    QTest::newRow("below, lowest column") << "LAND" << 0 << INT_MIN << "invalid";
}
void EntityTreeContract::indexesAreThoseOfTheEntities()
{
    QFETCH(QString, parent);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, expected);
    const auto root = land();
    const auto tested = open(root.get());
    const QModelIndex above =
        parent.isEmpty() ? QModelIndex() : indexOf(tested->model(), find(root.get(), parent));
    QCOMPARE(above.isValid(), !parent.isEmpty());
    QCOMPARE(written<TDmEntity>(tested->model().index(row, column, above)), expected);
}

void EntityTreeContract::rowsAreTheChildren_data()
{
    QTest::addColumn<QString>("entity");
    QTest::addColumn<int>("rows");
    QTest::newRow("the root") << "LAND" << 3;
    QTest::newRow("a child with children") << "HOUSE" << 3;
    QTest::newRow("a leaf") << "FARM" << 0;
    QTest::newRow("an only child") << "CAR" << 1;
    QTest::newRow("the deepest") << "SEAT" << 0;
}
void EntityTreeContract::rowsAreTheChildren()
{
    QFETCH(QString, entity);
    QFETCH(int, rows);
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity *asked = find(root.get(), entity);
    QCOMPARE(tested->model().rowCount(tested->made(0, 0, asked)), rows);
    // Neither the row nor the column of a parent tells anything; only its entity does.
    QCOMPARE(tested->model().rowCount(tested->made(17, 4, asked)), rows);
    QCOMPARE(tested->model().hasChildren(tested->made(0, 0, asked)), rows > 0);
}

void EntityTreeContract::aRootWithoutChildrenIsTheOnlyRow()
{
    const auto root = treeFrom<TDmEntity>("LAND");
    const auto tested = open(root.get());
    const QModelIndex top = tested->model().index(0, 0);
    QCOMPARE(tested->model().rowCount(), 1);
    QCOMPARE(written<TDmEntity>(top), QString("0, 0, LAND"));
    QCOMPARE(tested->model().rowCount(top), 0);
    QVERIFY(!tested->model().parent(top).isValid());
}

void EntityTreeContract::thereIsAlwaysOneColumn()
{
    const auto root = land();
    const auto tested = open(root.get());
    QCOMPARE(tested->model().columnCount(), 1);
    for (TDmEntity *entity : {root.get(), find(root.get(), "SEAT"), static_cast<TDmEntity *>(nullptr)})
        QCOMPARE(tested->model().columnCount(tested->made(0, 0, entity)), 1);
    QCOMPARE(tested->model().columnCount(tested->made(0, 3, root.get())), 1);
}

void EntityTreeContract::theRowOfAParentIsTheLevelOfTheChild_data()
{
    QTest::addColumn<QString>("child");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the root") << "LAND"
                              << "invalid";
    QTest::newRow("first child of the root") << "HOUSE"
                                             << "2, 0, LAND";
    QTest::newRow("middle child of the root") << "FARM"
                                              << "2, 0, LAND";
    QTest::newRow("last child of the root") << "ROAD"
                                            << "2, 0, LAND";
    QTest::newRow("first grandchild") << "PERSON"
                                      << "3, 0, HOUSE";
    QTest::newRow("middle grandchild") << "DEATH"
                                       << "3, 0, HOUSE";
    QTest::newRow("last grandchild below the first child") << "ROOM"
                                                           << "3, 0, HOUSE";
    QTest::newRow("only grandchild below the last child") << "CAR"
                                                          << "3, 0, ROAD";
    QTest::newRow("below the first of the first") << "JOB"
                                                  << "4, 0, PERSON";
    QTest::newRow("below the last of the first") << "BED"
                                                 << "4, 0, ROOM";
    QTest::newRow("below the last of the last") << "SEAT"
                                                << "4, 0, CAR";
}
void EntityTreeContract::theRowOfAParentIsTheLevelOfTheChild()
{
    QFETCH(QString, child);
    QFETCH(QString, expected);
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity *asked = find(root.get(), child);
    const QModelIndex parent = tested->model().parent(indexOf(tested->model(), asked));
    QCOMPARE(written<TDmEntity>(parent), expected);
    if (parent.isValid())
        QCOMPARE(written<TDmEntity>(tested->searched(asked, root.get(), root.get())), expected);
}

void EntityTreeContract::theRowOfAParentFollowsTheLevelAndNotTheDepth()
{
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity *first = find(root.get(), "PERSON");
    TDmEntity *last = find(root.get(), "SEAT");
    for (const int level : {0, 2, 77, INT_MAX}) {
        first->setLevel(level);
        last->setLevel(level);
        QCOMPARE(written<TDmEntity>(tested->model().parent(tested->made(0, 0, first))),
            QStringLiteral("%1, 0, HOUSE").arg(level));
        QCOMPARE(written<TDmEntity>(tested->model().parent(tested->made(0, 0, last))),
            QStringLiteral("%1, 0, CAR").arg(level));
    }
}

void EntityTreeContract::aParentIsTheSameFromEveryColumn()
{
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity *room = find(root.get(), "ROOM");
    for (const int column : {0, 1, INT_MAX})
        QCOMPARE(written<TDmEntity>(tested->model().parent(tested->made(5, column, room))),
            QString("3, 0, HOUSE"));
    QVERIFY(!tested->model().parent(tested->made(0, -1, room)).isValid());
    QVERIFY(!tested->model().parent(tested->made(-1, 0, room)).isValid());
}

void EntityTreeContract::whatHasNoEntityHasNoParent()
{
    const auto root = land();
    const auto tested = open(root.get());
    QVERIFY(!tested->model().parent(QModelIndex()).isValid());
    QVERIFY(!tested->model().parent(tested->made(0, 0, nullptr)).isValid());
    QVERIFY(!tested->model().index(0, 0, tested->made(0, 0, nullptr)).isValid());
    QCOMPARE(tested->model().rowCount(tested->made(0, 0, nullptr)), 0);
}

void EntityTreeContract::anEntityOfLevelOneHasNoParentWhereverItIs()
{
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity *room = find(root.get(), "ROOM");
    room->setLevel(1);
    QVERIFY(!tested->model().parent(tested->made(2, 0, room)).isValid());
    // The search itself knows nothing of that.
    QCOMPARE(written<TDmEntity>(tested->searched(room, root.get(), root.get())), QString("1, 0, HOUSE"));
}

void EntityTreeContract::aRootOfAnotherLevelIsItsOwnParent()
{
    const auto root = land();
    const auto tested = open(root.get());
    root->setLevel(3);
    QCOMPARE(written<TDmEntity>(tested->model().parent(tested->model().index(0, 0))), QString("3, 0, LAND"));
}

void EntityTreeContract::anEntityOutsideTheTreeHasNoParent()
{
    const auto root = land();
    const auto tested = open(root.get());
    const auto stranger = treeFrom<TDmEntity>("ELSEWHERE(HOUSE)");
    TDmEntity *house = stranger->getChildren()->first();
    QVERIFY(!tested->model().parent(tested->made(0, 0, house)).isValid());
    QVERIFY(!tested->searched(house, root.get(), root.get()).isValid());
}

void EntityTreeContract::anEntityOfNegativeLevelHasNoValidParent()
{
    const auto root = land();
    const auto tested = open(root.get());
    for (const char *name : {"PERSON", "SEAT"}) {
        TDmEntity *entity = find(root.get(), name);
        entity->setLevel(-1);
        QVERIFY(!tested->model().parent(tested->made(0, 0, entity)).isValid());
    }
}

void EntityTreeContract::anEntityThatStandsTwiceBelongsToTheFirstParentFound_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("expected");
    QTest::newRow("below two that are not the last") << "HOUSE"
                                                     << "FARM"
                                                     << "9, 0, HOUSE";
    QTest::newRow("deeper, but in front") << "BED"
                                          << "LAND"
                                          << "9, 0, BED";
    QTest::newRow("below the root's first and as the root's last") << "HOUSE"
                                                                   << "LAND"
                                                                   << "9, 0, HOUSE";
    QTest::newRow("below the last but one and below the last") << "FARM"
                                                               << "ROAD"
                                                               << "9, 0, FARM";
    QTest::newRow("below a child, and behind that child") << "ROAD"
                                                          << "SEAT"
                                                          << "9, 0, SEAT";
}
void EntityTreeContract::anEntityThatStandsTwiceBelongsToTheFirstParentFound()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QFETCH(QString, expected);
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity twice;
    twice.setLevel(9);
    // Last in both lists, so that all that stands in front of it is searched first.
    for (const QString &name : {one, other})
        find(root.get(), name)->getChildren()->append(&twice);
    const QString parent = written<TDmEntity>(tested->model().parent(tested->made(0, 0, &twice)));
    for (const QString &name : {one, other})
        find(root.get(), name)->getChildren()->removeLast();
    QCOMPARE(parent, expected);
}

void EntityTreeContract::theSearchBeginsAnywhere_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("nodeParent");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the node itself has the parent that was named") << "ROOM"
                                                                   << "ROOM"
                                                                   << "ROAD"
                                                                   << "3, 0, ROAD";
    QTest::newRow("a parent that is null is taken as given") << "ROOM"
                                                             << "ROOM"
                                                             << ""
                                                             << "3, 0, null";
    QTest::newRow("a child") << "ROOM"
                             << "HOUSE"
                             << "ROAD"
                             << "3, 0, HOUSE";
    QTest::newRow("a grandchild") << "BED"
                                  << "HOUSE"
                                  << "ROAD"
                                  << "4, 0, ROOM";
    QTest::newRow("the last of the last") << "SEAT"
                                          << "ROAD"
                                          << ""
                                          << "4, 0, CAR";
    QTest::newRow("beside the node") << "FARM"
                                     << "HOUSE"
                                     << "LAND"
                                     << "invalid";
    QTest::newRow("above the node") << "LAND"
                                    << "HOUSE"
                                    << "LAND"
                                    << "invalid";
    QTest::newRow("in a leaf") << "SEAT"
                               << "FARM"
                               << "LAND"
                               << "invalid";
    QTest::newRow("in no node") << "SEAT"
                                << ""
                                << ""
                                << "invalid";
}
void EntityTreeContract::theSearchBeginsAnywhere()
{
    QFETCH(QString, target);
    QFETCH(QString, node);
    QFETCH(QString, nodeParent);
    QFETCH(QString, expected);
    const auto root = land();
    const auto tested = open(root.get());
    const QModelIndex found =
        tested->searched(find(root.get(), target), find(root.get(), node), find(root.get(), nodeParent));
    QCOMPARE(written<TDmEntity>(found), expected);
}

} // namespace tessel::test
