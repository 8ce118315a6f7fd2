#include "business/models/SelectionBuilderTreeModel.h"

#include "tests/business/models/OpenSelection.h"
#include "tests/support/LogCatcher.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, SelectionBuilderTreeModel>);
static_assert(std::is_constructible_v<SelectionBuilderTreeModel, QObject *, SelectionTreeUnit *, bool, bool>);
static_assert(std::is_convertible_v<decltype(&SelectionBuilderTreeModel::recorrerStructuraArbol),
    QModelIndex (SelectionBuilderTreeModel::*)(SelectionTreeUnit *, SelectionTreeUnit *, SelectionTreeUnit *)
        const>);
static_assert(std::is_convertible_v<decltype(&SelectionBuilderTreeModel::getItemData),
    QVariant (SelectionBuilderTreeModel::*)(SelectionTreeUnit *, int) const>);
static_assert(std::is_same_v<decltype(&SelectionBuilderTreeModel::getData),
    QList<SelectionTreeUnit *> (SelectionBuilderTreeModel::*)() const>);

class tst_SelectionBuilderTreeModel : public QObject {
    Q_OBJECT

private slots:
    void theTreeIsShownWholeAndInOrder_data()
    {
        QTest::addColumn<QString>("tree");
        for (const char *tree : {"A", "A(B)", "A(B C D)", "A(B(C(D(E))))", "A(B(C D) E(F G(H)) I)"})
            QTest::newRow(tree) << tree;
    }
    void theTreeIsShownWholeAndInOrder()
    {
        QFETCH(QString, tree);
        const auto root = treeFrom<Unit>(tree.toLatin1().constData());
        QCOMPARE(drawn<Unit>(OpenSelection(root.get())), tree);
    }

    void indexesAreThoseOfTheUnitsAndCarryAnyColumn_data()
    {
        QTest::addColumn<QString>("parent");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the root") << "" << 0 << 0 << "0, 0, LAND";
        QTest::newRow("the root in another column") << "" << 0 << 7 << "0, 7, LAND";
        QTest::newRow("the root in the highest column") << "" << 0 << INT_MAX << "0, 2147483647, LAND";
        QTest::newRow("a negative column makes no valid index") << "" << 0 << -1 << "invalid";
        QTest::newRow("no second root") << "" << 1 << 0 << "invalid";
        QTest::newRow("top, row -1") << "" << -1 << 0 << "invalid";
        QTest::newRow("top, highest row") << "" << INT_MAX << 0 << "invalid";
        QTest::newRow("top, lowest row") << "" << INT_MIN << 0 << "invalid";
        QTest::newRow("first child") << "LAND" << 0 << 0 << "0, 0, NORTH";
        QTest::newRow("last child") << "LAND" << 2 << 0 << "2, 0, SOUTH";
        QTest::newRow("a child in another column") << "LAND" << 1 << 1 << "1, 1, EAST";
        QTest::newRow("behind the last child") << "LAND" << 3 << 0 << "invalid";
        QTest::newRow("below a leaf") << "EAST" << 0 << 0 << "invalid";
        QTest::newRow("below, row -1") << "LAND" << -1 << 0 << "invalid";
        QTest::newRow("below, highest row") << "LAND" << INT_MAX << 0 << "invalid";
    }
    void indexesAreThoseOfTheUnitsAndCarryAnyColumn()
    {
        QFETCH(QString, parent);
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, expected);
        const Areas areas;
        const QModelIndex above = parent.isEmpty() ? QModelIndex() : areas.madeFor(parent);
        QCOMPARE(written<Unit>(areas.model.index(row, column, above)), expected);
    }

    void rowsAreTheChildrenAndTheTopHasOneWhateverTheSize()
    {
        const Areas areas;
        QCOMPARE(areas.model.rowCount(), 1);
        QCOMPARE(areas.model.rowCount(areas.madeFor("LAND")), 3);
        QCOMPARE(areas.model.rowCount(areas.madeFor("CITY")), 1);
        QCOMPARE(areas.model.rowCount(areas.madeFor("EAST")), 0);
        QCOMPARE(areas.model.rowCount(areas.model.made(4, 9, areas.unit("NORTH"))), 3);
        const auto alone = treeFrom<Unit>("ALONE");
        QCOMPARE(OpenSelection(alone.get()).rowCount(), 1);
        QCOMPARE(areas.model.columnCount(), 1);
        QCOMPARE(areas.model.columnCount(areas.madeFor("CITY")), 1);
        QCOMPARE(areas.model.columnCount(areas.model.made(0, 0, nullptr)), 1);
    }

    void aNullUnitHasNoRowsAndSaysSoInTheLog()
    {
        const Areas areas;
        const LogCatcher log;
        QCOMPARE(areas.model.rowCount(areas.model.made(0, 0, nullptr)), 0);
        QCOMPARE(log.messages(), QStringList("debug default: Row Count 3"));
        QVERIFY(!areas.model.index(0, 0, areas.model.made(0, 0, nullptr)).isValid());
        QVERIFY(!areas.model.parent(areas.model.made(0, 0, nullptr)).isValid());
        QCOMPARE(areas.model.rowCount(), 1);
        QCOMPARE(areas.model.rowCount(areas.madeFor("EAST")), 0);
        QCOMPARE(log.messages().size(), 1);
    }

    void theRowOfAParentIsTheLevelOfTheChildAndIsKeptInTheChild_data()
    {
        QTest::addColumn<QString>("child");
        QTest::addColumn<QString>("expected");
        QTest::newRow("first child of the root") << "NORTH"
                                                 << "2, 0, LAND";
        QTest::newRow("middle child of the root") << "EAST"
                                                  << "2, 0, LAND";
        QTest::newRow("last child of the root") << "SOUTH"
                                                << "2, 0, LAND";
        QTest::newRow("first grandchild") << "TOWN"
                                          << "3, 0, NORTH";
        QTest::newRow("middle grandchild") << "VILLAGE"
                                           << "3, 0, NORTH";
        QTest::newRow("last grandchild below the first child") << "PORT"
                                                               << "3, 0, NORTH";
        QTest::newRow("only grandchild below the last child") << "CITY"
                                                              << "3, 0, SOUTH";
        QTest::newRow("below the last of the first") << "PIER"
                                                     << "4, 0, PORT";
        QTest::newRow("below the last of the last") << "SQUARE"
                                                    << "4, 0, CITY";
    }
    void theRowOfAParentIsTheLevelOfTheChildAndIsKeptInTheChild()
    {
        QFETCH(QString, child);
        QFETCH(QString, expected);
        const Areas areas;
        Unit *unit = areas.unit(child);
        QCOMPARE(unit->getIndex(), QModelIndex());
        const QModelIndex parent = areas.model.parent(areas.madeFor(child));
        QCOMPARE(written<Unit>(parent), expected);
        QCOMPARE(unit->getIndex(), parent);
        QCOMPARE(areas.model.parent(areas.model.made(3, 8, unit)), parent);
        QCOMPARE(areas.model.recorrerStructuraArbol(unit, areas.root.get(), areas.root.get()), parent);
        unit->setLevel(77);
        QCOMPARE(areas.model.parent(areas.madeFor(child)).row(), 77);
        QCOMPARE(unit->getIndex().row(), 77);
    }

    void onlyAskingForTheParentKeepsAnIndex()
    {
        const Areas areas;
        const QModelIndex city = areas.madeFor("CITY");
        areas.model.recorrerStructuraArbol(areas.unit("CITY"), areas.root.get(), areas.root.get());
        areas.model.rowCount(city);
        areas.model.index(0, 0, city);
        areas.model.data(city);
        QCOMPARE(areas.unit("CITY")->getIndex(), QModelIndex());
    }

    void aUnitOfLevelOneHasNoParentAndKeepsItsIndex()
    {
        const Areas areas;
        const QModelIndex kept = areas.madeFor("PIER");
        for (const char *name : {"LAND", "PORT"}) {
            Unit *unit = areas.unit(QString::fromLatin1(name));
            unit->setLevel(1);
            unit->setIndex(kept);
            QVERIFY(!areas.model.parent(areas.model.made(0, 0, unit)).isValid());
            QCOMPARE(unit->getIndex(), kept);
        }
        QVERIFY(!areas.model.parent(QModelIndex()).isValid());
    }

    void aUnitOutsideTheTreeIsGivenAnInvalidIndexToKeep()
    {
        const Areas areas;
        const auto stranger = treeFrom<Unit>("ELSEWHERE(CITY)");
        Unit *city = stranger->getChildren()->first();
        city->setIndex(areas.madeFor("PIER"));
        QVERIFY(!areas.model.parent(areas.model.made(0, 0, city)).isValid());
        QVERIFY(!city->getIndex().isValid());
    }

    void aRootOfAnotherLevelIsItsOwnParent()
    {
        const Areas areas;
        areas.root->setLevel(3);
        QCOMPARE(written<Unit>(areas.model.parent(areas.model.index(0, 0))), QString("3, 0, LAND"));
    }

    void theSearchBeginsAnywhere()
    {
        const Areas areas;
        const auto searched = [&](const QString &target, const QString &node, const QString &nodeParent) {
            return written<Unit>(areas.model.recorrerStructuraArbol(
                areas.unit(target), areas.unit(node), areas.unit(nodeParent)));
        };
        QCOMPARE(searched("PORT", "PORT", "SOUTH"), QString("3, 0, SOUTH"));
        QCOMPARE(searched("PORT", "PORT", ""), QString("3, 0, null"));
        QCOMPARE(searched("PIER", "NORTH", "SOUTH"), QString("4, 0, PORT"));
        QCOMPARE(searched("EAST", "NORTH", "LAND"), QString("invalid"));
        QCOMPARE(searched("SQUARE", "EAST", "LAND"), QString("invalid"));
        QCOMPARE(searched("SQUARE", "", ""), QString("invalid"));
    }

    void theFirstColumnCanBeCheckedByNobody()
    {
        const auto root = treeFrom<Unit>("LAND(NORTH)");
        OpenSelection model(root.get());
        const Qt::ItemFlags base = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        const QModelIndex north = model.index(0, 0, model.index(0, 0));
        QCOMPARE(model.flags(model.index(0, 0)), base | Qt::ItemIsUserCheckable);
        QCOMPARE(model.flags(north), base | Qt::ItemIsUserCheckable);
        QCOMPARE(model.flags(model.index(0, 1)), base);
        QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));

        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        for (int role = 0; role <= Qt::UserRole + 2; ++role)
            QVERIFY(!model.setData(north, Qt::Checked, role));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(root->getChildren()->first()->getUnitState(), 0);
        QCOMPARE(root->getChildren()->first()->getName(), QString("NORTH"));
    }

    void theDataAreACopyOfTheTopLevel()
    {
        const Areas areas;
        QList<Unit *> copy = areas.model.getData();
        QCOMPARE(copy, QList<Unit *>({areas.root.get()}));
        copy.clear();
        QCOMPARE(areas.model.getData().size(), 1);
        QCOMPARE(areas.model.rowCount(), 1);
    }

    void indexesOfAnotherModelAreLikeThoseWithoutUnit()
    {
        const Areas areas;
        const Areas others;
        QStandardItemModel otherClass(1, 1);
        otherClass.setItem(0, new QStandardItem("ITEM"));
        otherClass.item(0)->appendRow(new QStandardItem("BELOW"));
        for (const QModelIndex &index : {others.madeFor("PORT"), otherClass.index(0, 0),
                 otherClass.index(0, 0, otherClass.index(0, 0))}) {
            const LogCatcher log;
            QVERIFY(index.isValid());
            QCOMPARE(areas.model.rowCount(index), 0);
            QCOMPARE(log.messages(), QStringList("debug default: Row Count 3"));
            QVERIFY(!areas.model.index(0, 0, index).isValid());
            QVERIFY(!areas.model.parent(index).isValid());
            QCOMPARE(rolesAnswered(areas.model, index), QList<int>());
        }
        QCOMPARE(others.unit("PORT")->getIndex(), QModelIndex());
    }

    void nullChildrenAndANullRootCrashNowhere()
    {
        const Areas areas;
        areas.root->getChildren()->prepend(nullptr);
        areas.root->getChildren()->append(nullptr);
        const LogCatcher log;
        const QModelIndex empty = areas.model.index(0, 0, areas.model.index(0, 0));
        QCOMPARE(written<Unit>(empty), QString("0, 0, null"));
        QCOMPARE(areas.model.rowCount(empty), 0);
        QCOMPARE(written<Unit>(areas.model.parent(areas.madeFor("PIER"))), QString("4, 0, PORT"));

        const OpenSelection none(nullptr);
        QCOMPARE(written<Unit>(none.index(0, 0)), QString("0, 0, null"));
        QCOMPARE(none.rowCount(none.index(0, 0)), 0);
        QVERIFY(!none.parent(none.index(0, 0)).isValid());
        QCOMPARE(rolesAnswered(none, none.index(0, 0)), QList<int>());
        QCOMPARE(log.messages(), QStringList({"debug default: Row Count 3", "debug default: Row Count 3"}));
    }
};

QTEST_MAIN(tst_SelectionBuilderTreeModel)
#include "tst_SelectionBuilderTreeModel.moc"
