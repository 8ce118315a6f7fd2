#include "editor/Structure.h"

#include "tests/editor/SmallCensus.h"

#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// The items of \a list at \a rows ("02": the first and the third).
template<typename Item>
QList<Item *> itemsAt(const QList<Item *> &list, const QString &rows)
{
    QList<Item *> items;
    for (const QChar row : rows)
        items.append(list.at(row.digitValue()));
    return items;
}

} // namespace

class tst_Structure : public QObject {
    Q_OBJECT

private slots:
    void aNewEntityHasALevelAndHangsBehindAllOthers()
    {
        SmallCensus census;
        Structure structure(census.document);
        TDmEntity *top = structure.addEntity(census.document.root());
        TDmEntity *below = structure.addEntity(census.house);
        QCOMPARE(namesOf(*census.document.root().getChildren()), QStringLiteral("HOUSE ENTITY_1"));
        QCOMPARE(namesOf(*census.house.getChildren()), QStringLiteral("PERSON DEATH ENTITY_2"));
        QCOMPARE(census.document.root().getChildren()->last(), top);
        QCOMPARE(census.house.getChildren()->last(), below);
        QCOMPARE(top->getLevel(), 2);
        QCOMPARE(below->getLevel(), 3);
    }

    void aNewEntitysNameIsTheFirstThatNobodyHas_data()
    {
        QTest::addColumn<QString>("entityName");
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("name");
        const QString none;
        const auto n = [](int number) { return QStringLiteral("ENTITY_%1").arg(number); };
        QTest::newRow("nobody has one") << none << none << none << n(1);
        QTest::newRow("an entity's name") << n(1) << none << none << n(2);
        QTest::newRow("an entity's alias") << none << n(1) << none << n(2);
        QTest::newRow("a variable's group") << none << none << n(1) << n(2);
        QTest::newRow("all three") << n(2) << n(1) << n(3) << n(4);
        QTest::newRow("a gap is filled") << n(2) << n(3) << none << n(1);
        QTest::newRow("letter case counts") << QStringLiteral("entity_1") << none << none << n(1);
    }

    void aNewEntitysNameIsTheFirstThatNobodyHas()
    {
        QFETCH(QString, entityName);
        QFETCH(QString, alias);
        QFETCH(QString, group);
        SmallCensus census;
        if (!entityName.isEmpty())
            census.death.setName(entityName);
        census.person.setAlias(alias);
        census.work.setGroup(group);
        QTEST(Structure(census.document).addEntity(census.house)->getName(), "name");
    }

    void anEntityComesBackWithAllThatHungBelowIt()
    {
        SmallCensus census;
        QVERIFY(Structure(census.document).removeEntity(census.house));
        QVERIFY(census.document.root().getChildren()->isEmpty());
        census.document.undoStack()->undo();
        QCOMPARE(census.document.root().getChildren()->value(0), &census.house);
        QCOMPARE(namesOf(*census.house.getChildren()), QStringLiteral("PERSON DEATH"));
        QCOMPARE(namesOf(*census.person.getVariables()), QStringLiteral("SEX AGE TIES WORK"));
    }

    void anEntityOfNoTreeIsRefused()
    {
        SmallCensus census;
        TDmEntity stranger;
        Structure structure(census.document);
        QVERIFY(!structure.removeEntity(stranger));
        QVERIFY(!structure.moveEntity(stranger, 0));
        QVERIFY(!structure.parentOf(stranger));
        QCOMPARE(census.document.undoStack()->count(), 0);
    }

    void theParentIsFound()
    {
        SmallCensus census;
        const Structure structure(census.document);
        QCOMPARE(structure.parentOf(census.document.root()), nullptr);
        QCOMPARE(structure.parentOf(census.house), &census.document.root());
        QCOMPARE(structure.parentOf(census.person), &census.house);
        QCOMPARE(structure.parentOf(census.death), &census.house);
    }

    void entitiesMoveAmongTheirSiblings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("steps");
        QTest::addColumn<QString>("order");
        QTest::newRow("down") << "A" << 1 << "B A C";
        QTest::newRow("far down") << "A" << 2 << "B C A";
        QTest::newRow("up") << "C" << -1 << "A C B";
        QTest::newRow("far up") << "C" << -2 << "C A B";
        QTest::newRow("above the first") << "A" << -1 << "A B C";
        QTest::newRow("below the last") << "C" << 1 << "A B C";
        QTest::newRow("too far down") << "B" << 2 << "A B C";
        QTest::newRow("nowhere") << "B" << 0 << "A B C";
    }

    void entitiesMoveAmongTheirSiblings()
    {
        QFETCH(QString, name);
        QFETCH(int, steps);
        QFETCH(QString, order);
        DictionaryDocument document;
        for (const char *sibling : {"A", "B", "C"})
            SmallCensus::addEntity(document.root(), sibling);
        TDmEntity *entity = document.root().getChildren()->at(name.at(0).unicode() - 'A');
        const bool isMoved = order != QLatin1String("A B C");
        QCOMPARE(Structure(document).moveEntity(*entity, steps), isMoved);
        QCOMPARE(namesOf(*document.root().getChildren()), order);
        QCOMPARE(document.undoStack()->count(), isMoved ? 1 : 0);
    }

    void aNewVariableIsPlacedAtItsRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("order");
        QTest::newRow("behind all others") << -1 << "ROOMS KIND VARIABLE_1";
        QTest::newRow("before all others") << 0 << "VARIABLE_1 ROOMS KIND";
        QTest::newRow("between") << 1 << "ROOMS VARIABLE_1 KIND";
        QTest::newRow("at the row behind the last") << 2 << "ROOMS KIND VARIABLE_1";
        QTest::newRow("at a row that is not there") << 3 << "ROOMS KIND VARIABLE_1";
        QTest::newRow("at a row before the first") << -7 << "ROOMS KIND VARIABLE_1";
    }

    void aNewVariableIsPlacedAtItsRow()
    {
        QFETCH(int, row);
        SmallCensus census;
        const TDmVariable *variable = Structure(census.document).addVariable(census.house, row);
        QTEST(namesOf(*census.house.getVariables()), "order");
        QCOMPARE(variable->getName(), QStringLiteral("VARIABLE_1"));
        QCOMPARE(variable->getVarType(), QStringLiteral("INTEGER"));
        QCOMPARE(variable->getLevel(), 1);
    }

    void withoutARowAllIsAddedAtTheEnd()
    {
        SmallCensus census;
        Structure structure(census.document);
        QCOMPARE(census.house.getVariables()->indexOf(structure.addVariable(census.house)), 2);
        QCOMPARE(census.sex.getValueLabelElementList()->indexOf(structure.addLabel(census.sex)), 2);
        QCOMPARE(census.age.getMetadataVariables()->getRange()->indexOf(structure.addRange(census.age)), 2);
    }

    void aNewVariablesNameIsTheFirstFreeOneOfItsEntity_data()
    {
        QTest::addColumn<QString>("here");
        QTest::addColumn<QString>("elsewhere");
        QTest::addColumn<QString>("entityName");
        QTest::addColumn<QString>("name");
        const QString none;
        const auto n = [](int number) { return QStringLiteral("VARIABLE_%1").arg(number); };
        QTest::newRow("nobody has one") << none << none << none << n(1);
        QTest::newRow("a variable of the entity") << n(1) << none << none << n(2);
        QTest::newRow("a variable of another entity") << none << n(1) << none << n(1);
        QTest::newRow("some entity") << none << none << n(1) << n(2);
        QTest::newRow("a gap is filled") << n(1) << none << n(3) << n(2);
    }

    void aNewVariablesNameIsTheFirstFreeOneOfItsEntity()
    {
        QFETCH(QString, here);
        QFETCH(QString, elsewhere);
        QFETCH(QString, entityName);
        SmallCensus census;
        census.work.setName(here);
        census.rooms.setName(elsewhere);
        census.death.setName(entityName);
        QTEST(Structure(census.document).addVariable(census.person)->getName(), "name");
    }

    void whatIsSelectedMovesTogether_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<int>("steps");
        QTest::addColumn<QString>("order");
        const QString same = QStringLiteral("SEX AGE TIES WORK");
        QTest::newRow("one down") << "0" << 1 << "AGE SEX TIES WORK";
        QTest::newRow("one up") << "3" << -1 << "SEX AGE WORK TIES";
        QTest::newRow("neighbours down") << "01" << 1 << "TIES SEX AGE WORK";
        QTest::newRow("neighbours up") << "23" << -1 << "SEX TIES WORK AGE";
        QTest::newRow("the order of selection does not count, down") << "10" << 1 << "TIES SEX AGE WORK";
        QTest::newRow("the order of selection does not count, up") << "32" << -1 << "SEX TIES WORK AGE";
        QTest::newRow("those apart go down past one each") << "02" << 1 << "AGE SEX WORK TIES";
        QTest::newRow("those apart go up past one each") << "13" << -1 << "AGE SEX WORK TIES";
        QTest::newRow("two steps down") << "01" << 2 << "TIES WORK SEX AGE";
        QTest::newRow("two steps up") << "23" << -2 << "TIES WORK SEX AGE";
        QTest::newRow("the first is at the edge") << "02" << -1 << same;
        QTest::newRow("the last is at the edge") << "13" << 1 << same;
        QTest::newRow("all down") << "0123" << 1 << same;
        QTest::newRow("all up") << "0123" << -1 << same;
        QTest::newRow("further than there is room") << "01" << 3 << same;
        QTest::newRow("no step") << "12" << 0 << same;
    }

    void whatIsSelectedMovesTogether()
    {
        QFETCH(QString, rows);
        QFETCH(int, steps);
        QFETCH(QString, order);
        SmallCensus census;
        Structure structure(census.document);
        const QList<TDmVariable *> variables = itemsAt(*census.person.getVariables(), rows);
        const bool isMoved = order != namesOf(*census.person.getVariables());
        QCOMPARE(structure.moveVariables(census.person, variables, steps), isMoved);
        QCOMPARE(namesOf(*census.person.getVariables()), order);
        QCOMPARE(census.document.undoStack()->count(), isMoved ? 1 : 0);

        // Labels and ranges move by the same rule.
        for (const char *name : {"SEX", "AGE", "TIES", "WORK"})
            SmallCensus::addLabel(census.work, name, "");
        structure.moveLabels(census.work, itemsAt(*census.work.getValueLabelElementList(), rows), steps);
        QCOMPARE(labelsOf(census.work).remove(QLatin1Char('=')).replace(QLatin1Char('|'), QLatin1Char(' ')),
            order);
        for (int i = 0; i < 4; ++i)
            SmallCensus::addRange(census.work, i, i);
        structure.moveRanges(
            census.work, itemsAt(*census.work.getMetadataVariables()->getRange(), rows), steps);
        QStringList expected;
        for (const QString &name : order.split(QLatin1Char(' ')))
            expected << QStringLiteral("%1..%1").arg(QStringList{"SEX", "AGE", "TIES", "WORK"}.indexOf(name));
        QCOMPARE(rangesOf(census.work), expected.join(QLatin1Char('|')));
    }

    void aSelectionThatIsNotAllInTheListStays()
    {
        SmallCensus census;
        QVERIFY(!Structure(census.document).moveVariables(census.person, {&census.sex, &census.rooms}, 1));
        QCOMPARE(namesOf(*census.person.getVariables()), QStringLiteral("SEX AGE TIES WORK"));
        QCOMPARE(census.document.undoStack()->count(), 0);
    }

    void onlyWhatIsSelectedIsTakenOut()
    {
        SmallCensus census;
        Structure structure(census.document);
        QVERIFY(structure.removeVariables(census.person, {&census.work, &census.rooms, &census.sex}));
        QCOMPARE(namesOf(*census.person.getVariables()), QStringLiteral("AGE TIES"));
        QCOMPARE(namesOf(*census.house.getVariables()), QStringLiteral("ROOMS KIND"));
        QVERIFY(structure.removeLabels(census.sex, {census.sex.getValueLabelElementList()->at(0)}));
        QCOMPARE(labelsOf(census.sex), QStringLiteral("2=Female"));
        QVERIFY(structure.removeRanges(census.age, {census.age.getMetadataVariables()->getRange()->at(1)}));
        QCOMPARE(rangesOf(census.age), QStringLiteral("0..14"));
    }

    void aNewRangeIsEmptyAndPlacedAtItsRow()
    {
        SmallCensus census;
        Structure(census.document).addRange(census.age, 1);
        QCOMPARE(rangesOf(census.age), QStringLiteral("0..14|0..0|15..120"));
    }
};

QTEST_APPLESS_MAIN(tst_Structure)
#include "tst_Structure.moc"
