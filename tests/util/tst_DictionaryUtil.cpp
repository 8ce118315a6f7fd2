#include "util/DictionaryUtil.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/model/SmallStack.h"

#include <QtTest>

#include <memory>
#include <type_traits>

using Collector = QStringList (DictionaryUtil::*)(TDmEntity *, QStringList);
using EntityList = QList<TDmEntity *>;

static_assert(std::is_default_constructible_v<DictionaryUtil>);
static_assert(std::is_empty_v<DictionaryUtil>);
static_assert(std::is_same_v<decltype(&DictionaryUtil::getNamesEntitiesDictionary), Collector>);
static_assert(std::is_same_v<decltype(&DictionaryUtil::getAliasEntitiesDictionary), Collector>);
static_assert(std::is_same_v<decltype(&DictionaryUtil::getGroupEntitiesDictionary), Collector>);
static_assert(std::is_same_v<decltype(&DictionaryUtil::getNamesVariablesByEntities), Collector>);
static_assert(std::is_same_v<decltype(&DictionaryUtil::getAliasVariableByEntity), Collector>);
static_assert(std::is_same_v<decltype(&DictionaryUtil::getChildEntitiesChecked),
    EntityList *(DictionaryUtil::*)(TDmEntity *, EntityList *)>);

Q_DECLARE_METATYPE(Collector)

namespace {

constexpr int kDeep = 250'000;

TDmVariable *variableOf(const QString &text)
{
    if (text == QLatin1String("-"))
        return nullptr;
    const QStringList parts = text.split(QLatin1Char(':'));
    auto *variable = new TDmVariable;
    variable->setName(parts.value(0));
    variable->setAlias(parts.value(1));
    variable->setGroup(parts.value(2));
    return variable;
}

/// The entity of one line "*NAME|ALIAS|NAME:ALIAS:GROUP,...": a star marks it selectable, "-" is a null
/// pointer.
TDmEntity *entityOf(const QString &line)
{
    if (line == QLatin1String("-"))
        return nullptr;
    const QStringList parts = line.split(QLatin1Char('|'));
    auto *entity = new TDmEntity;
    entity->setSelectable(line.startsWith(QLatin1Char('*')));
    entity->setName(parts.value(0).mid(entity->getSelectable() ? 1 : 0));
    entity->setAlias(parts.value(1));
    const QStringList variables = parts.value(2).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &variable : variables)
        entity->addVariables(variableOf(variable));
    return entity;
}

/// The tree of an outline: one entity a line, each dot at the beginning one level further down.
std::unique_ptr<TDmEntity> treeOf(const QString &outline)
{
    QVector<TDmEntity *> path;
    const QStringList lines = outline.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        int depth = 0;
        while (line.mid(depth, 1) == QLatin1String("."))
            ++depth;
        TDmEntity *entity = entityOf(line.mid(depth));
        path.resize(depth);
        if (depth > 0)
            path.last()->getChildren()->append(entity);
        path.append(entity);
    }
    return std::unique_ptr<TDmEntity>(path.first());
}

/// A root with \a depth entities below one another, all selectable and alike; a leaf stands before each, or
/// behind it.
std::unique_ptr<TDmEntity> newChain(int depth, bool leavesBefore)
{
    const QString line = QStringLiteral("*E|A|V::G");
    std::unique_ptr<TDmEntity> root(entityOf(line));
    TDmEntity *last = root.get();
    for (int level = 0; level < depth; ++level) {
        TDmEntity *next = entityOf(line);
        last->getChildren()->append(leavesBefore ? entityOf(line) : next);
        last->getChildren()->append(leavesBefore ? next : entityOf(line));
        last = next;
    }
    return root;
}

QString namesOf(const EntityList &list)
{
    QStringList names;
    for (const TDmEntity *entity : list)
        names += entity->getName();
    return names.join(QLatin1Char(' '));
}

void addCollectors()
{
    QTest::addColumn<Collector>("collector");
    QTest::newRow("names of entities") << Collector(&DictionaryUtil::getNamesEntitiesDictionary);
    QTest::newRow("aliases of entities") << Collector(&DictionaryUtil::getAliasEntitiesDictionary);
    QTest::newRow("groups of entities") << Collector(&DictionaryUtil::getGroupEntitiesDictionary);
    QTest::newRow("names of variables") << Collector(&DictionaryUtil::getNamesVariablesByEntities);
    QTest::newRow("aliases of variables") << Collector(&DictionaryUtil::getAliasVariableByEntity);
}

} // namespace

class tst_DictionaryUtil : public QObject {
    Q_OBJECT

private slots:
    void entitiesAreGatheredFromTheWholeTreeInDocumentOrder_data()
    {
        QTest::addColumn<QString>("outline");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("aliases");
        QTest::addColumn<QString>("groups");
        QTest::newRow("a single entity is gathered itself") << "E|A|V::G"
                                                            << "E"
                                                            << "A"
                                                            << "G";
        QTest::newRow("an entity without texts adds nothing") << "||V"
                                                              << ""
                                                              << ""
                                                              << "";
        QTest::newRow("a parent stands before its children") << "R|a|V::x\n.S|b|V::y\n.T|c|V::z"
                                                             << "R S T"
                                                             << "a b c"
                                                             << "x y z";
        QTest::newRow("a whole branch stands before the next sibling")
            << "R|r|V::1\n.A|a|V::2\n..B|b|V::3\n...C|c|V::4\n..D|d|V::5\n.E|e|V::6"
            << "R A B C D E"
            << "r a b c d e"
            << "1 2 3 4 5 6";
        QTest::newRow("the order is the document's, not the alphabet's") << "M|z|V::c\n.Z|m|V::b\n.A|a|V::a"
                                                                         << "M Z A"
                                                                         << "z m a"
                                                                         << "c b a";
        QTest::newRow("empty texts are left out") << "|r|V\n.A||V::g\n.|b|V"
                                                  << "A"
                                                  << "r b"
                                                  << "g";
        QTest::newRow("names and aliases are repeated, a group stands once, where it came first")
            << "E|A|V::g,W::h\n.E|A|V::h,W::g\n.E|A|V::g,W::i"
            << "E E E"
            << "A A A"
            << "g h i";
        QTest::newRow("letter case and blanks make texts differ") << "E|a|V::g\n.e|A|V::G\n.E|a |V::g "
                                                                  << "E e E"
                                                                  << "a A a "
                                                                  << "g G g ";
        QTest::newRow("null children add nothing") << "R|r|V::x\n.-\n.A|a|V::y\n..-\n.-"
                                                   << "R A"
                                                   << "r a"
                                                   << "x y";
        QTest::newRow("null variables add nothing") << "R|r|-,V::x,-\n.A|a|-"
                                                    << "R A"
                                                    << "r a"
                                                    << "x";
        QTest::newRow("variables' names and aliases are not those of entities") << "R||V:B:\n.S||W:C:"
                                                                                << "R S"
                                                                                << ""
                                                                                << "";
    }

    void entitiesAreGatheredFromTheWholeTreeInDocumentOrder()
    {
        QFETCH(QString, outline);
        const std::unique_ptr<TDmEntity> root = treeOf(outline);
        DictionaryUtil util;
        const QString blank(QLatin1Char(' '));
        QTEST(util.getNamesEntitiesDictionary(root.get(), {}).join(blank), "names");
        QTEST(util.getAliasEntitiesDictionary(root.get(), {}).join(blank), "aliases");
        QTEST(util.getGroupEntitiesDictionary(root.get(), {}).join(blank), "groups");
    }

    void variablesAreGatheredFromTheGivenEntityAlone_data()
    {
        QTest::addColumn<QString>("outline");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("aliases");
        QTest::newRow("no variables") << "E|A"
                                      << ""
                                      << "";
        QTest::newRow("record order") << "E|A|SEX:z:g,AGE:y:g,NAME:x:g"
                                      << "SEX AGE NAME"
                                      << "z y x";
        QTest::newRow("repetition stays") << "E|A|V:a:,V:a:,W:a:"
                                          << "V V W"
                                          << "a a a";
        QTest::newRow("empty texts are left out") << "E|A|V::,:b:,::g,W:c:"
                                                  << "V W"
                                                  << "b c";
        QTest::newRow("null variables add nothing") << "E|A|-,V:a:,-"
                                                    << "V"
                                                    << "a";
        QTest::newRow("entities below are not visited") << "E|A|V:a:\n.F|B|W:b:"
                                                        << "V"
                                                        << "a";
    }

    void variablesAreGatheredFromTheGivenEntityAlone()
    {
        QFETCH(QString, outline);
        const std::unique_ptr<TDmEntity> entity = treeOf(outline);
        DictionaryUtil util;
        const QString blank(QLatin1Char(' '));
        QTEST(util.getNamesVariablesByEntities(entity.get(), {}).join(blank), "names");
        QTEST(util.getAliasVariableByEntity(entity.get(), {}).join(blank), "aliases");
    }

    void aNullEntityAddsNothing_data() { addCollectors(); }

    void aNullEntityAddsNothing()
    {
        QFETCH(Collector, collector);
        DictionaryUtil util;
        QCOMPARE((util.*collector)(nullptr, {}), QStringList());
        QCOMPARE((util.*collector)(nullptr, {"x", "", "x"}), (QStringList{"x", "", "x"}));
    }

    void anEntityWithANullListOfChildrenIsALeaf_data() { addCollectors(); }

    void anEntityWithANullListOfChildrenIsALeaf()
    {
        QFETCH(Collector, collector);
        const std::unique_ptr<TDmEntity> entity = treeOf("T|T|T:T:T");
        entity->setChildren(nullptr);
        DictionaryUtil util;
        QCOMPARE((util.*collector)(entity.get(), {}), QStringList("T"));
        EntityList found;
        QCOMPARE(util.getChildEntitiesChecked(entity.get(), &found), &found);
        QCOMPARE(found, EntityList());
    }

    void whatWasGivenStandsFirstAndAsItWas_data() { addCollectors(); }

    void whatWasGivenStandsFirstAndAsItWas()
    {
        QFETCH(Collector, collector);
        const std::unique_ptr<TDmEntity> entity = treeOf("T|T|T:T:T");
        const QStringList seed{"b", "", "a", "b"};
        DictionaryUtil util;
        QCOMPARE((util.*collector)(entity.get(), seed), (QStringList{"b", "", "a", "b", "T"}));
        QCOMPARE(seed, (QStringList{"b", "", "a", "b"}));
    }

    void aGroupThatWasGivenIsNotRepeatedOtherTextsAre()
    {
        const std::unique_ptr<TDmEntity> entity = treeOf("T|T|T:T:T");
        DictionaryUtil util;
        const QStringList seed("T");
        const QStringList twice{"T", "T"};
        QCOMPARE(util.getGroupEntitiesDictionary(entity.get(), seed), seed);
        QCOMPARE(util.getNamesEntitiesDictionary(entity.get(), seed), twice);
        QCOMPARE(util.getAliasEntitiesDictionary(entity.get(), seed), twice);
        QCOMPARE(util.getNamesVariablesByEntities(entity.get(), seed), twice);
        QCOMPARE(util.getAliasVariableByEntity(entity.get(), seed), twice);
    }

    void textsAreGatheredAsTheyAre_data() { addCollectors(); }

    void textsAreGatheredAsTheyAre()
    {
        QFETCH(Collector, collector);
        TDmEntity entity;
        entity.addVariables(new TDmVariable);
        TDmVariable &variable = *entity.getVariables()->first();
        const QStringList odd{" ", " x ", "<b>&amp;</b>", QString(QChar(0)), QString(QChar(0xd800)),
            QString(100'000, QLatin1Char('x'))};
        for (const QString &text : odd) {
            entity.setName(text);
            entity.setAlias(text);
            variable.setName(text);
            variable.setAlias(text);
            variable.setGroup(text);
            QCOMPARE((DictionaryUtil().*collector)(&entity, {}), QStringList(text));
        }
    }

    void everyCallLooksAtTheTreeAsItStands_data() { addCollectors(); }

    void everyCallLooksAtTheTreeAsItStands()
    {
        QFETCH(Collector, collector);
        const std::unique_ptr<TDmEntity> entity = treeOf("T|T|T:T:T");
        DictionaryUtil util;
        QCOMPARE((util.*collector)(entity.get(), {}), QStringList("T"));
        TDmVariable &variable = *entity->getVariables()->first();
        entity->setName("U");
        entity->setAlias("U");
        variable.setName("U");
        variable.setAlias("U");
        variable.setGroup("U");
        QCOMPARE((util.*collector)(entity.get(), {}), QStringList("U"));
    }

    void selectableEntitiesBelowAreFoundAtAnyDepth_data()
    {
        QTest::addColumn<QString>("outline");
        QTest::addColumn<QString>("found");
        QTest::newRow("a leaf has none") << "*R"
                                         << "";
        QTest::newRow("nothing selectable below") << "*R\n.A\n..B"
                                                  << "";
        QTest::newRow("the given entity itself is not among them") << "*R\n.*A"
                                                                   << "A";
        QTest::newRow("whether the given entity is selectable does not matter") << "R\n.*A"
                                                                                << "A";
        QTest::newRow("children in document order") << "R\n.*B\n.*A\n.C\n.*D"
                                                    << "B A D";
        QTest::newRow("parents stand before their children") << "R\n.*A\n..*B\n...*C\n..*D\n.*E"
                                                             << "A B C D E";
        QTest::newRow("selectable below what is not selectable") << "R\n.A\n..B\n...*C\n.*D"
                                                                 << "C D";
        QTest::newRow("not selectable below what is selectable") << "R\n.*A\n..B\n...*C"
                                                                 << "A C";
        QTest::newRow("null children are passed by") << "R\n.-\n.*A\n..-\n.-\n.*B"
                                                     << "A B";
        QTest::newRow("entities without a name are found too") << "R\n.*\n..*A"
                                                               << " A";
    }

    void selectableEntitiesBelowAreFoundAtAnyDepth()
    {
        QFETCH(QString, outline);
        const std::unique_ptr<TDmEntity> root = treeOf(outline);
        EntityList list;
        QCOMPARE(DictionaryUtil().getChildEntitiesChecked(root.get(), &list), &list);
        QTEST(namesOf(list), "found");
    }

    void whatIsFoundIsAppendedToTheVeryListThatWasGiven()
    {
        const std::unique_ptr<TDmEntity> root = treeOf("R\n.*A\n.*B");
        TDmEntity *first = root->getChildren()->first();
        TDmEntity *second = root->getChildren()->last();
        EntityList list{root.get(), second, nullptr};
        QCOMPARE(DictionaryUtil().getChildEntitiesChecked(root.get(), &list), &list);
        QCOMPARE(list, (EntityList{root.get(), second, nullptr, first, second}));
        QCOMPARE(DictionaryUtil().getChildEntitiesChecked(first, &list), &list);
        QCOMPARE(list, (EntityList{root.get(), second, nullptr, first, second}));
        QCOMPARE(DictionaryUtil().getChildEntitiesChecked(nullptr, &list), &list);
        QCOMPARE(list, (EntityList{root.get(), second, nullptr, first, second}));
    }

    void lookingForSelectableEntitiesChangesNoneOfThem()
    {
        const std::unique_ptr<TDmEntity> root = treeOf("*R\n.*A\n.B");
        EntityList list;
        DictionaryUtil().getChildEntitiesChecked(root.get(), &list);
        QVERIFY(root->getSelectable());
        QVERIFY(root->getChildren()->first()->getSelectable());
        QVERIFY(!root->getChildren()->last()->getSelectable());
    }

    void aDeepTreeIsWalkedOnASmallStack_data()
    {
        QTest::addColumn<bool>("leavesBefore");
        QTest::newRow("goes on in the last child") << true;
        QTest::newRow("goes on in the first child") << false;
    }

    void aDeepTreeIsWalkedOnASmallStack()
    {
        QFETCH(bool, leavesBefore);
        const std::unique_ptr<TDmEntity> root = newChain(kDeep, leavesBefore);
        QStringList names;
        QStringList aliases;
        QStringList groups;
        EntityList found;
        QVERIFY(tessel::test::runOnSmallStack([&] {
            DictionaryUtil util;
            names = util.getNamesEntitiesDictionary(root.get(), {});
            aliases = util.getAliasEntitiesDictionary(root.get(), {});
            groups = util.getGroupEntitiesDictionary(root.get(), {});
            util.getChildEntitiesChecked(root.get(), &found);
        }));
        QCOMPARE(names.size(), 2 * kDeep + 1);
        QCOMPARE(names.count(QStringLiteral("E")), 2 * kDeep + 1);
        QCOMPARE(aliases.size(), 2 * kDeep + 1);
        QCOMPARE(groups, QStringList("G"));
        QCOMPARE(found.size(), 2 * kDeep);
        // Of two siblings, the first stands before all that is below either.
        QCOMPARE(found.first(), root->getChildren()->first());
        QCOMPARE(found.at(leavesBefore ? 1 : 2 * kDeep - 1), root->getChildren()->last());
    }
};

QTEST_APPLESS_MAIN(tst_DictionaryUtil)
#include "tst_DictionaryUtil.moc"
