#include "editor/EntityTreeProxy.h"

#include "business/models/DictionaryTreeModel.h"
#include "business/models/EntityModel.h"
#include "business/models/dictionaryTreeModelDownload.h"
#include "tests/business/models/TreeText.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

constexpr const char *kTree = "LAND(NORTH(N1 N2(HOUSE(PERSON)) N3) SOUTH(S1(FARM) S2))";

std::unique_ptr<QAbstractItemModel> newModel(const QByteArray &kind, TDmEntity *root)
{
    if (kind == "dictionary")
        return std::make_unique<DictionaryTreeModel>(nullptr, root);
    if (kind == "download")
        return std::make_unique<dictionaryTreeModelDownload>(nullptr, root);
    return std::make_unique<EntityModel>(nullptr, root);
}

void addKinds()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"dictionary", "download", "entity"})
        QTest::newRow(kind) << QByteArray(kind);
}

/// "NAME < PARENT@ROW" of all entities below \a parent, as the proxy answers.
QStringList parentsIn(const EntityTreeProxy &proxy, const QModelIndex &parent = {})
{
    QStringList list;
    for (int row = 0; row < proxy.rowCount(parent); ++row) {
        const QModelIndex index = proxy.index(row, 0, parent);
        const QModelIndex above = index.parent();
        list.append(
            QString("%1 < %2@%3").arg(index.data().toString(), above.data().toString()).arg(above.row()));
        list += parentsIn(proxy, index);
    }
    return list;
}

/// A proxy over the model of the run wizard.
struct Fixture {
    explicit Fixture(const char *text = kTree)
        : root(treeFrom<TDmEntity>(text))
        , model(nullptr, root.get())
        , proxy(root.get())
    {
        proxy.setSourceModel(&model);
    }

    QModelIndex at(const char *name) const { return proxy.indexOf(find(root.get(), QString(name))); }

    std::unique_ptr<TDmEntity> root;
    dictionaryTreeModelDownload model;
    EntityTreeProxy proxy;
};

} // namespace

class tst_EntityTreeProxy : public QObject {
    Q_OBJECT

private slots:
    void theProxyFollowsTheRulesOfTrees_data() { addKinds(); }
    void theProxyFollowsTheRulesOfTrees()
    {
        QFETCH(QByteArray, kind);
        const auto root = treeFrom<TDmEntity>(kTree);
        const auto model = newModel(kind, root.get());
        EntityTreeProxy proxy(root.get());
        proxy.setSourceModel(model.get());
        const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(proxy.rowCount(), 1);
        QCOMPARE(proxy.columnCount(), 1);
    }

    void parentsHaveTheirTrueRows_data() { addKinds(); }
    void parentsHaveTheirTrueRows()
    {
        QFETCH(QByteArray, kind);
        const auto root = treeFrom<TDmEntity>(kTree);
        const auto model = newModel(kind, root.get());
        EntityTreeProxy proxy(root.get());
        proxy.setSourceModel(model.get());
        QCOMPARE(parentsIn(proxy),
            QStringList({"LAND < @-1", "NORTH < LAND@0", "N1 < NORTH@0", "N2 < NORTH@0", "HOUSE < N2@1",
                "PERSON < HOUSE@0", "N3 < NORTH@0", "SOUTH < LAND@0", "S1 < SOUTH@1", "FARM < S1@0",
                "S2 < SOUTH@1"}));
        // The model itself answers with the level.
        const QModelIndex house = indexOf(*model, find(root.get(), QString("HOUSE")));
        QCOMPARE(house.parent().row(), 4);
    }

    void theParentIsTheIndexThatTheProxyGives()
    {
        const Fixture f;
        const QModelIndex south = f.proxy.index(1, 0, f.proxy.index(0, 0));
        QCOMPARE(f.proxy.index(0, 0, south).parent(), south);
        QCOMPARE(f.proxy.index(0, 0, south).parent().internalPointer(), south.internalPointer());
    }

    void levelsDoNotMatter()
    {
        // The models tell the root by its level, the proxy by itself.
        Fixture f;
        find(f.root.get(), QString("SOUTH"))->setLevel(1);
        QCOMPARE(f.at("SOUTH").parent(), f.at("LAND"));
        f.root->setLevel(7);
        QCOMPARE(f.at("LAND").parent(), QModelIndex());
    }

    void nodesAndIndexesLeadToEachOther()
    {
        const Fixture f;
        for (const char *name : {"LAND", "NORTH", "N3", "PERSON", "S2"}) {
            TDmEntity *entity = find(f.root.get(), QString(name));
            const QModelIndex index = f.proxy.indexOf(entity);
            QCOMPARE(index.data().toString(), QString(name));
            QCOMPARE(index.model(), &f.proxy);
            QCOMPARE(f.proxy.nodeAt(index), entity);
        }
        QCOMPARE(f.at("N3").row(), 2);
        QCOMPARE(f.at("LAND").row(), 0);
    }

    void whatIsNotInTheTreeHasNoIndex()
    {
        const Fixture f;
        TDmEntity stranger;
        QCOMPARE(f.proxy.indexOf(&stranger), QModelIndex());
        QCOMPARE(f.proxy.indexOf(nullptr), QModelIndex());
        QCOMPARE(f.proxy.nodeAt(QModelIndex()), nullptr);
        // An index of the model below is not one of the proxy.
        QCOMPARE(f.proxy.nodeAt(f.model.index(0, 0)), nullptr);
        QCOMPARE(f.proxy.parent(QModelIndex()), QModelIndex());
    }

    void anEntityThatWasTakenOutHasNoParent()
    {
        Fixture f;
        const QModelIndex s1 = f.at("S1");
        const std::unique_ptr<TDmEntity> taken(
            find(f.root.get(), QString("SOUTH"))->getChildren()->takeAt(0));
        QCOMPARE(f.proxy.parent(s1), QModelIndex());
    }

    void aMovedEntityIsFoundAtItsNewPlace()
    {
        Fixture f;
        f.root->getChildren()->move(1, 0);
        QCOMPARE(f.at("S1").parent().row(), 0);
        QCOMPARE(f.at("N1").parent().row(), 1);
    }

    void anotherRootMayFollow()
    {
        Fixture f;
        const auto other = treeFrom<TDmEntity>("A(B C(D))");
        dictionaryTreeModelDownload model(nullptr, other.get());
        f.proxy.setRoot(other.get());
        f.proxy.setSourceModel(&model);
        QCOMPARE(parentsIn(f.proxy), QStringList({"A < @-1", "B < A@0", "C < A@0", "D < C@1"}));
    }

    void withoutARootNothingHasAParent()
    {
        const auto root = treeFrom<TDmEntity>("A(B)");
        dictionaryTreeModelDownload model(nullptr, root.get());
        EntityTreeProxy proxy(nullptr);
        proxy.setSourceModel(&model);
        QCOMPARE(proxy.index(0, 0, proxy.index(0, 0)).parent(), QModelIndex());
        QCOMPARE(proxy.indexOf(root.get()), QModelIndex());
    }

    void aLongChainIsWalkedOnASmallStack()
    {
        constexpr int length = 200'000;
        TDmEntity root;
        root.setLevel(1);
        TDmEntity *last = &root;
        for (int i = 0; i < length; ++i) {
            last->getChildren()->append(new TDmEntity);
            last = last->getChildren()->first();
            last->setLevel(i + 2);
        }
        dictionaryTreeModelDownload model(nullptr, &root);
        EntityTreeProxy proxy(&root);
        proxy.setSourceModel(&model);
        const QModelIndex deepest = proxy.indexOf(last);
        QCOMPARE(proxy.nodeAt(deepest), last);
        QCOMPARE(proxy.nodeAt(deepest.parent())->getLevel(), length);
    }

    void editsReachTheModelAndComeBack()
    {
        const auto root = treeFrom<TDmEntity>(kTree);
        DictionaryTreeModel model(nullptr, root.get());
        EntityTreeProxy proxy(root.get());
        proxy.setSourceModel(&model);
        QSignalSpy changed(&proxy, &QAbstractItemModel::dataChanged);
        const QModelIndex farm = proxy.indexOf(find(root.get(), QString("FARM")));
        QVERIFY(proxy.setData(farm, "RANCH"));
        QCOMPARE(farm.data().toString(), QString("RANCH"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), farm);
    }

    void theLeftKeyClosesAndThenGoesToTheParent()
    {
        Fixture f;
        QTreeView view;
        view.setModel(&f.proxy);
        view.expandAll();
        view.show();
        view.setCurrentIndex(f.at("HOUSE"));
        QTest::keyClick(&view, Qt::Key_Left);
        QVERIFY(!view.isExpanded(f.at("HOUSE")));
        QCOMPARE(view.currentIndex(), f.at("HOUSE"));
        for (const char *name : {"N2", "N2", "NORTH", "NORTH", "LAND"}) {
            QTest::keyClick(&view, Qt::Key_Left);
            QCOMPARE(view.currentIndex().data().toString(), QString(name));
        }
        QTest::keyClick(&view, Qt::Key_Left);
        QVERIFY(!view.isExpanded(f.at("LAND")));
    }

    void scrollingToARowOpensWhatIsAboveIt()
    {
        Fixture f;
        QTreeView view;
        view.setModel(&f.proxy);
        view.show();
        view.scrollTo(f.at("PERSON"));
        for (const char *name : {"LAND", "NORTH", "N2", "HOUSE"})
            QVERIFY2(view.isExpanded(f.at(name)), name);
        QVERIFY(!view.isExpanded(f.at("SOUTH")));
    }
};

QTEST_MAIN(tst_EntityTreeProxy)
#include "tst_EntityTreeProxy.moc"
