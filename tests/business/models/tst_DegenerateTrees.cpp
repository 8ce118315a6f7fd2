#include "business/models/DictionaryTreeModel.h"
#include "business/models/EntityModel.h"
#include "business/models/SelectionBuilderTreeModel.h"
#include "business/models/dictionaryTreeModelDownload.h"

#include "tests/model/SmallStack.h"

#include <QElapsedTimer>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>

namespace {

enum Shape { OnlyChildren, LastOfTwo, OneParent };
enum Kind { Dictionary, Download, Entity, Selection };

constexpr int kChain = 250'000;
constexpr int kSiblings = 20'000;

/// A tree that goes on in the last child alone, or has all its nodes below the root.
template<typename Node>
std::unique_ptr<Node> degenerate(Shape shape)
{
    auto root = std::make_unique<Node>();
    root->setLevel(1);
    const auto append = [](Node *parent) {
        auto *node = new Node;
        node->setLevel(parent->getLevel() + 1);
        parent->getChildren()->append(node);
        return node;
    };
    if (shape == OneParent) {
        for (int i = 0; i < kSiblings; ++i)
            append(root.get());
        return root;
    }
    Node *last = root.get();
    for (int i = 0; i < kChain; ++i) {
        if (shape == LastOfTwo)
            append(last);
        last = append(last);
    }
    return root;
}

template<typename Node>
struct Deepest {
    Node *node = nullptr;
    Node *parent = nullptr;
};

/// The last of the last; found by a walk that looks at every node once.
template<typename Node>
Deepest<Node> walk(Node *root)
{
    Deepest<Node> found{root, root};
    while (!found.node->getChildren()->isEmpty()) {
        const QList<Node *> *children = found.node->getChildren();
        for (const Node *child : *children) {
            if (child->getLevel() < 0 || (child != children->last() && !child->getChildren()->isEmpty()))
                return {};
        }
        found = {children->last(), found.node};
    }
    return found;
}

/// What one call takes at best, in nanoseconds.
template<typename Work>
qint64 best(Work work)
{
    qint64 least = std::numeric_limits<qint64>::max();
    for (int round = 0; round < 5; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        least = std::min(least, timer.nsecsElapsed());
    }
    return std::max<qint64>(least, 1);
}

template<typename Model, typename... Flags>
struct Open : Model {
    template<typename Node>
    Open(Node *top, Flags... flags)
        : Model(nullptr, top, flags...)
    {
    }
    using Model::createIndex;
};

template<typename OpenModel, typename Node, typename... Flags>
void checkTheDeepest(Shape shape, Flags... flags)
{
    const std::unique_ptr<Node> root = degenerate<Node>(shape);
    const OpenModel model(root.get(), flags...);
    const Deepest<Node> deepest = walk(root.get());
    QVERIFY(deepest.node);
    const QModelIndex asked = model.createIndex(0, 0, deepest.node);
    Node stranger;
    stranger.setLevel(2);

    QModelIndex parent;
    QModelIndex found;
    QModelIndex none = asked;
    QVERIFY(tessel::test::runOnSmallStack([&] {
        parent = model.parent(asked);
        found = model.recorrerStructuraArbol(deepest.node, root.get(), root.get());
        none = model.recorrerStructuraArbol(&stranger, root.get(), root.get());
    }));
    QCOMPARE(parent.internalPointer(), static_cast<void *>(deepest.parent));
    QCOMPARE(parent.row(), deepest.node->getLevel());
    QCOMPARE(found, parent);
    QVERIFY(!none.isValid());

    const qint64 walking = best([&] { walk(root.get()); });
    const qint64 searching = best([&] { model.parent(asked); });
    QVERIFY2(searching <= 20 * walking,
        qPrintable(QStringLiteral("searched %1 ns, walked %2 ns").arg(searching).arg(walking)));
}

/// A node that counts how often somebody looked below it.
struct CountingNode {
    CountingNode() = default;
    ~CountingNode() { qDeleteAll(children); }
    QList<CountingNode *> *getChildren() const
    {
        ++looks;
        return &children;
    }
    int getLevel() const { return level; }

    mutable QList<CountingNode *> children;
    mutable int looks = 0;
    int level = 1;

private:
    Q_DISABLE_COPY_MOVE(CountingNode)
};

class CountingModel : public tessel::detail::TreeModel<CountingNode> {
public:
    explicit CountingModel(CountingNode *top)
        : TreeModel(nullptr, top)
    {
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }
    using TreeModel::createIndex;
};

/// A tree of \a depth more levels, three children each, in the order in which it is searched.
void grow(CountingNode *node, int depth, QList<CountingNode *> *all)
{
    all->append(node);
    for (int i = 0; depth > 0 && i < 3; ++i) {
        node->children.append(new CountingNode);
        node->children.last()->level = node->level + 1;
        grow(node->children.last(), depth - 1, all);
    }
}

int looksBelow(const QList<CountingNode *> &nodes)
{
    int most = 0;
    for (CountingNode *node : nodes) {
        most = std::max(most, node->looks);
        node->looks = 0;
    }
    return most;
}

} // namespace

class tst_DegenerateTrees : public QObject {
    Q_OBJECT

private slots:
    void theDeepestIsFoundOnASmallStackInTheTimeOfAWalk_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("shape");
        const char *kinds[] = {"dictionary", "download", "entity", "selection"};
        const char *shapes[] = {"a chain of only children", "a chain of last children", "one parent"};
        for (const int kind : {Dictionary, Download, Entity, Selection}) {
            for (const int shape : {OnlyChildren, LastOfTwo, OneParent})
                QTest::addRow("%s, %s", kinds[kind], shapes[shape]) << kind << shape;
        }
    }
    void theDeepestIsFoundOnASmallStackInTheTimeOfAWalk()
    {
        QFETCH(int, kind);
        QFETCH(int, shape);
        switch (kind) {
        case Dictionary:
            return checkTheDeepest<Open<DictionaryTreeModel>, TDmEntity>(Shape(shape));
        case Download:
            return checkTheDeepest<Open<dictionaryTreeModelDownload>, TDmEntity>(Shape(shape));
        case Entity:
            return checkTheDeepest<Open<EntityModel>, TDmEntity>(Shape(shape));
        case Selection:
            return checkTheDeepest<Open<SelectionBuilderTreeModel, bool, bool>, SelectionTreeUnit>(
                Shape(shape), true, true);
        default:
            QFAIL("no such model");
        }
    }

    void theSearchLooksBelowEachNodeOnce()
    {
        CountingNode root;
        QList<CountingNode *> all;
        grow(&root, 5, &all);
        QCOMPARE(all.size(), 364);
        const CountingModel model(&root);
        looksBelow(all);
        for (CountingNode *node : qAsConst(all)) {
            model.parent(model.createIndex(0, 0, node));
            QVERIFY(looksBelow(all) <= 1);
        }
        CountingNode stranger;
        stranger.level = 2;
        QVERIFY(!model.parent(model.createIndex(0, 0, &stranger)).isValid());
        for (const CountingNode *node : qAsConst(all))
            QCOMPARE(node->looks, 1);
    }

    void theSearchEndsWhereTheTargetIsFound()
    {
        CountingNode root;
        QList<CountingNode *> all;
        grow(&root, 3, &all);
        const CountingModel model(&root);
        const int target = 7;
        looksBelow(all);
        QVERIFY(model.parent(model.createIndex(0, 0, all.at(target))).isValid());
        for (int i = target; i < all.size(); ++i)
            QCOMPARE(all.at(i)->looks, 0);
    }
};

QTEST_APPLESS_MAIN(tst_DegenerateTrees)
#include "tst_DegenerateTrees.moc"
