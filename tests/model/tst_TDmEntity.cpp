#include "model/TDmEntity.h"

#include "model/TDmVariable.h"
#include "tests/model/Fields.h"
#include "tests/model/SmallStack.h"

#include <QtTest>

#include <memory>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isNeitherCopiedNorMoved<TDmEntity>);
static_assert(!std::is_polymorphic_v<TDmEntity>);
static_assert(std::is_same_v<decltype(&TDmEntity::getChildren), QList<TDmEntity *> *(TDmEntity::*)() const>);
static_assert(std::is_same_v<decltype(&TDmEntity::setChildren), void (TDmEntity::*)(QList<TDmEntity *> *)>);
static_assert(
    std::is_same_v<decltype(&TDmEntity::getVariables), QList<TDmVariable *> *(TDmEntity::*)() const>);
static_assert(std::is_same_v<decltype(&TDmEntity::addVariables), void (TDmEntity::*)(TDmVariable *)>);

namespace {

const Fields<TDmEntity> kFields = {
    field("name", &TDmEntity::getName, &TDmEntity::setName),
    field("alias", &TDmEntity::getAlias, &TDmEntity::setAlias),
    field("label", &TDmEntity::getLabel, &TDmEntity::setLabel),
    field("refCode", &TDmEntity::getRefCode, &TDmEntity::setRefCode),
    field("refLabel", &TDmEntity::getRefLabel, &TDmEntity::setRefLabel),
    field("weightVariable", &TDmEntity::getWeightVariable, &TDmEntity::setWeightVariable),
    field("documentationEntity", &TDmEntity::getDocumentationEntity, &TDmEntity::setDocumentationEntity),
    field("isvirtual", &TDmEntity::getIsvirtual, &TDmEntity::setIsvirtual),
    field("selectable", &TDmEntity::getSelectable, &TDmEntity::setSelectable),
    field("level", &TDmEntity::getLevel, &TDmEntity::setLevel, 7),
    field("checkDelete", &TDmEntity::getCheckDelete, &TDmEntity::setCheckDelete),
};

TDmEntity *namedEntity(const QString &name)
{
    auto *entity = new TDmEntity;
    entity->setName(name);
    return entity;
}

QStringList childNames(const TDmEntity &entity)
{
    QStringList names;
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        names += child->getName();
    return names;
}

/// A root with \a depth entities below one another; each has \a leavesBefore leaves before the one that goes
/// on.
std::unique_ptr<TDmEntity> newChain(int depth, int leavesBefore)
{
    auto root = std::make_unique<TDmEntity>();
    TDmEntity *last = root.get();
    for (int level = 0; level < depth; ++level) {
        for (int leaf = 0; leaf < leavesBefore; ++leaf)
            last->getChildren()->append(new TDmEntity);
        auto *next = new TDmEntity;
        last->getChildren()->append(next);
        last = next;
    }
    return root;
}

} // namespace

class tst_TDmEntity : public QObject {
    Q_OBJECT

private slots:
    void everyFieldOfAFreshEntityIsEmptyZeroOrFalse()
    {
        const TDmEntity entity;
        const QStringList expected = {"name: ", "alias: ", "label: ", "refCode: ", "refLabel: ",
            "weightVariable: ", "documentationEntity: ", "isvirtual: false", "selectable: false", "level: 0",
            "checkDelete: false"};
        QCOMPARE(kFields.describe(entity), expected);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void anyLevelIsKeptAsGiven()
    {
        TDmEntity entity;
        for (const int level : {-1, 0, 1, INT_MAX, INT_MIN}) {
            entity.setLevel(level);
            QCOMPARE(entity.getLevel(), level);
        }
    }

    void aFreshEntityHasItsOwnEmptyLists()
    {
        const TDmEntity one;
        const TDmEntity other;
        QVERIFY(one.getChildren());
        QVERIFY(one.getVariables());
        QCOMPARE(one.getChildren()->size(), 0);
        QCOMPARE(one.getVariables()->size(), 0);
        QVERIFY(one.getChildren() != other.getChildren());
        QVERIFY(one.getVariables() != other.getVariables());
    }

    void theChildListIsTheEntitysOwnAndNoCopy()
    {
        TDmEntity parent;
        parent.getChildren()->append(namedEntity("A"));
        parent.getChildren()->append(namedEntity("B"));
        parent.getChildren()->prepend(namedEntity("C"));
        QCOMPARE(childNames(parent), QStringList({"C", "A", "B"}));
        QCOMPARE(parent.getChildren(), parent.getChildren());
    }

    void variablesAreAppendedInOrder()
    {
        TDmEntity entity;
        auto *first = new TDmVariable;
        auto *second = new TDmVariable;
        QList<TDmVariable *> *const list = entity.getVariables();
        entity.addVariables(first);
        entity.addVariables(second);
        QCOMPARE(entity.getVariables(), list);
        QCOMPARE(*list, QList<TDmVariable *>({first, second}));
        QCOMPARE(entity.getChildren()->size(), 0);
    }

    void theVariableListIsTheEntitysOwnAndNoCopy()
    {
        TDmEntity entity;
        auto *variable = new TDmVariable;
        entity.getVariables()->append(variable);
        QCOMPARE(entity.getVariables()->value(0), variable);
        delete entity.getVariables()->takeFirst();
        QCOMPARE(entity.getVariables()->size(), 0);
    }

    void setChildrenTakesTheListItself()
    {
        TDmEntity parent;
        auto *list = new QList<TDmEntity *>({namedEntity("A"), namedEntity("B")});
        parent.setChildren(list);
        QCOMPARE(parent.getChildren(), list);
        list->append(namedEntity("C"));
        QCOMPARE(childNames(parent), QStringList({"A", "B", "C"}));
    }

    void setChildrenLeavesTheEarlierListToTheCaller()
    {
        TDmEntity parent;
        auto *earlier = new QList<TDmEntity *>({namedEntity("A")});
        parent.setChildren(earlier);
        parent.setChildren(new QList<TDmEntity *>({namedEntity("B")}));
        QCOMPARE(earlier->size(), 1);
        QCOMPARE(earlier->first()->getName(), QStringLiteral("A"));
        qDeleteAll(*earlier);
        delete earlier;
        QCOMPARE(childNames(parent), QStringList({"B"}));
    }

    void theListOfTheConstructorStaysWithTheEntityWhenReplaced()
    {
        TDmEntity parent;
        QList<TDmEntity *> *const own = parent.getChildren();
        own->append(namedEntity("A"));
        parent.setChildren(new QList<TDmEntity *>({namedEntity("B")}));
        QCOMPARE(childNames(parent), QStringList({"B"}));
        QCOMPARE(own->size(), 1);
        QCOMPARE(own->first()->getName(), QStringLiteral("A"));
        // The entities in it have no owner any more, the list has.
        delete own->takeFirst();
    }

    void theListOfTheConstructorCanComeBack()
    {
        TDmEntity parent;
        QList<TDmEntity *> *const own = parent.getChildren();
        own->append(namedEntity("A"));
        auto *other = new QList<TDmEntity *>({namedEntity("B")});
        parent.setChildren(other);
        parent.setChildren(own);
        QCOMPARE(parent.getChildren(), own);
        QCOMPARE(childNames(parent), QStringList({"A"}));
        qDeleteAll(*other);
        delete other;
        QCOMPARE(childNames(parent), QStringList({"A"}));
    }

    void handingBackTheHeldChildrenChangesNothing()
    {
        TDmEntity fresh;
        fresh.getChildren()->append(namedEntity("A"));
        fresh.setChildren(fresh.getChildren());
        QCOMPARE(childNames(fresh), QStringList({"A"}));

        TDmEntity replaced;
        replaced.setChildren(new QList<TDmEntity *>({namedEntity("B")}));
        replaced.setChildren(replaced.getChildren());
        QCOMPARE(childNames(replaced), QStringList({"B"}));
    }

    void aNullChildListIsKeptAndFreed()
    {
        TDmEntity parent;
        parent.setChildren(nullptr);
        QCOMPARE(parent.getChildren(), nullptr);
        auto child = std::make_unique<TDmEntity>();
        child->setChildren(nullptr);
        TDmEntity grandparent;
        grandparent.getChildren()->append(child.release());
        QCOMPARE(grandparent.getChildren()->first()->getChildren(), nullptr);
    }

    void nullPointersInTheListsArePassedOverByTheDestructor()
    {
        TDmEntity parent;
        *parent.getChildren() = {nullptr, namedEntity("A"), nullptr};
        parent.addVariables(nullptr);
        parent.addVariables(new TDmVariable);
        QCOMPARE(parent.getChildren()->size(), 3);
        QCOMPARE(parent.getVariables()->size(), 2);
    }

    void deletingAChildLeavesItsSiblingsAlone()
    {
        TDmEntity parent;
        *parent.getChildren() = {namedEntity("A"), namedEntity("B"), namedEntity("C")};
        parent.getChildren()->at(1)->getChildren()->append(namedEntity("D"));
        delete parent.getChildren()->takeAt(1);
        QCOMPARE(childNames(parent), QStringList({"A", "C"}));
    }

    void deletingTheRootFreesAMixedTree()
    {
        // Lists of the constructor, lists set later, variables at every depth: the leak checker counts.
        TDmEntity root;
        for (int branch = 0; branch < 3; ++branch) {
            TDmEntity *entity = namedEntity(QString::number(branch));
            entity->addVariables(new TDmVariable);
            if (branch == 1)
                entity->setChildren(new QList<TDmEntity *>);
            for (int leaf = 0; leaf < 3; ++leaf) {
                entity->getChildren()->append(namedEntity("leaf"));
                entity->getChildren()->last()->addVariables(new TDmVariable);
            }
            root.getChildren()->append(entity);
        }
        QCOMPARE(childNames(root), QStringList({"0", "1", "2"}));
        QCOMPARE(childNames(*root.getChildren()->at(1)), QStringList({"leaf", "leaf", "leaf"}));
    }

    void aDeepTreeIsFreedOnASmallStack_data()
    {
        QTest::addColumn<int>("leavesBefore");
        QTest::newRow("each the only child") << 0;
        QTest::newRow("each the last of two children") << 1;
        QTest::newRow("each the last of three children") << 2;
    }
    void aDeepTreeIsFreedOnASmallStack()
    {
        QFETCH(int, leavesBefore);
        std::unique_ptr<TDmEntity> root = newChain(250'000, leavesBefore);
        QCOMPARE(root->getChildren()->size(), leavesBefore + 1);
        QVERIFY(tessel::test::runOnSmallStack([&root] { root.reset(); }));
        QVERIFY(!root);
    }

    void aDeepTreeWhoseChainGoesOnInTheFirstChildIsFreedOnASmallStack()
    {
        std::unique_ptr<TDmEntity> root = newChain(250'000, 0);
        for (TDmEntity *entity = root.get(); !entity->getChildren()->isEmpty();) {
            TDmEntity *next = entity->getChildren()->first();
            entity->getChildren()->append(new TDmEntity);
            entity = next;
        }
        QCOMPARE(root->getChildren()->size(), 2);
        QVERIFY(tessel::test::runOnSmallStack([&root] { root.reset(); }));
        QVERIFY(!root);
    }

    void aDeepTreeOfListsSetLaterIsFreedOnASmallStack()
    {
        auto root = std::make_unique<TDmEntity>();
        TDmEntity *last = root.get();
        for (int level = 0; level < 250'000; ++level) {
            last->setChildren(new QList<TDmEntity *>({new TDmEntity}));
            last = last->getChildren()->first();
        }
        QVERIFY(tessel::test::runOnSmallStack([&root] { root.reset(); }));
        QVERIFY(!root);
    }

    void twentyThousandChildrenOfOneParentAreFreed()
    {
        auto root = std::make_unique<TDmEntity>();
        for (int child = 0; child < 20'000; ++child) {
            root->getChildren()->append(new TDmEntity);
            root->getChildren()->last()->getChildren()->append(new TDmEntity);
        }
        QCOMPARE(root->getChildren()->size(), 20'000);
        QVERIFY(tessel::test::runOnSmallStack([&root] { root.reset(); }));
        QVERIFY(!root);
    }
};

QTEST_APPLESS_MAIN(tst_TDmEntity)
#include "tst_TDmEntity.moc"
