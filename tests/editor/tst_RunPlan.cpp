#include "editor/wizard/RunPlan.h"

#include "documents/DocumentForm.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/SelectionUnits.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/business/models/TreeText.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace tessel;
using namespace tessel::editor;
using tessel::test::find;
using tessel::test::treeFrom;

namespace {

const QString kSamples = QStringLiteral(TESSEL_SAMPLES "/");

QByteArray bytesOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::unique_ptr<TDmEntity> census()
{
    return choiceTreeOf(*documents::readDictionary(*documents::readObject(kSamples + "census.json").result));
}

/// A tree as treeFrom() makes it, with variables "A", "B", ... in the entity named before the colon:
/// "HOUSE:A B C".
std::unique_ptr<TDmEntity> smallTree(const char *tree, std::initializer_list<const char *> variables)
{
    auto root = treeFrom<TDmEntity>(tree);
    for (const char *line : variables) {
        const QStringList parts = QString(line).split(':');
        TDmEntity *entity = find(root.get(), parts.at(0));
        for (const QString &name : parts.at(1).split(' ')) {
            auto *variable = new TDmVariable;
            variable->setName(name);
            entity->addVariables(variable);
        }
    }
    return root;
}

std::unique_ptr<Config> runFrom(const char *text)
{
    return documents::readRun(QJsonDocument::fromJson(QByteArray(text).replace('\'', '"')).object());
}

/// "NAME all V W" of each entity of \a plan's run, parted by commas; "all" for all variables.
QString textOf(const RunPlan &plan)
{
    QStringList list;
    const std::unique_ptr<Config> config = plan.config();
    for (const ConfigEntities *entity : qAsConst(*config->getEntities())) {
        QStringList words{entity->getName()};
        if (entity->getAllVariables())
            words.append("all");
        if (entity->getVariables())
            words += *entity->getVariables();
        list.append(words.join(' '));
    }
    return list.join(", ");
}

void tick(TDmEntity &entity, const QString &names)
{
    const QStringList list = names.split(' ', Qt::SkipEmptyParts);
    for (TDmVariable *variable : qAsConst(*entity.getVariables()))
        variable->setChecked(list.contains(variable->getName()) ? 1 : 0);
}

QString ticksOf(const TDmEntity &entity)
{
    QStringList list;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
        if (variable->getChecked())
            list.append(variable->getName());
    }
    return list.join(' ');
}

} // namespace

class tst_RunPlan : public QObject {
    Q_OBJECT

private slots:
    void aNewRunTakesTheSelectableEntitiesWithAllTheirVariables()
    {
        const RunPlan plan(*census());
        QCOMPARE(textOf(plan), QString("COUNTRY all, REGION all, PROVINCE all, MUNICIPALITY all"));
        QCOMPARE(plan.database().getName(), QString());
        QCOMPARE(plan.chosenCount(), 4);
        QVERIFY(plan.isChosen("REGION"));
        QVERIFY(!plan.isChosen("PERSON"));
        QVERIFY(!plan.isChosen("ALTAMAR2023"));
        QCOMPARE(plan.losses().size(), 0);
    }

    void aNewRunHasTheRecordTypeThatTheVariablesAgreeOn_data()
    {
        QTest::addColumn<QString>("records");
        QTest::addColumn<QString>("recordType");
        QTest::newRow("one") << "H,H"
                             << "H";
        QTest::newRow("one and none") << "H,"
                                      << "H";
        QTest::newRow("two") << "H,P"
                             << "";
        QTest::newRow("none") << ","
                              << "";
    }
    void aNewRunHasTheRecordTypeThatTheVariablesAgreeOn()
    {
        QFETCH(QString, records);
        QFETCH(QString, recordType);
        const auto root = smallTree("ROOT(HOUSE)", {"HOUSE:A B"});
        TDmEntity *house = root->getChildren()->first();
        house->setSelectable(true);
        for (int i = 0; i < 2; ++i)
            house->getVariables()->at(i)->getMetadataVariables()->setRecord(records.split(',').at(i));
        RunPlan plan(*choiceTreeOf(*root));
        QCOMPARE(plan.chosen().first()->getRecType(), recordType);
        QCOMPARE(plan.chosen().first()->getCheckSequence(), true);
    }

    void theSampleRunComesBackByteForByte()
    {
        const auto tree = census();
        RunPlan plan(*tree);
        QVERIFY(!plan.open(kSamples + "run.json"));
        QCOMPARE(plan.text(), bytesOf(kSamples + "run.json"));
        // Marking the tree and taking all marks back is no change.
        plan.mark(*tree);
        plan.takeEntities(*tree);
        for (const TDmEntity *entity : entitiesBelow(*tree)) {
            if (!plan.takesAllVariables(entity->getName()))
                plan.takeVariables(*entity);
        }
        QCOMPARE(plan.text(), bytesOf(kSamples + "run.json"));
        QCOMPARE(plan.missingIn(*tree), QStringList());
        QCOMPARE(plan.losses().size(), 0);
    }

    void aConfigurationIsTakenWhole()
    {
        const auto tree = census();
        const auto config =
            runFrom("{'database': {'name': 'N', 'folder': 'F', 'sourceFile': 'S', 'filter': 'X'}, 'options': "
                    "{'createNoRanges': true}, 'entities': [{'name': 'PERSON', 'recType': 'P', 'variables': "
                    "['AGE'], 'createSDC': true, 'checkSequence': false, 'createCompound': true}]}");
        const RunPlan plan(*tree, *config);
        QCOMPARE(plan.database().getFilter(), QString("X"));
        QCOMPARE(plan.options().getCreateNoRanges(), true);
        QCOMPARE(plan.options().getCreateNotAppMissingInRange(), false);
        QCOMPARE(plan.text(), documents::runText(*config));
    }

    void marksShowWhatIsChosen()
    {
        const auto tree = census();
        RunPlan plan(*tree);
        QVERIFY(!plan.open(kSamples + "run.json"));
        plan.mark(*tree);
        QStringList lines;
        for (const TDmEntity *entity : entitiesBelow(*tree)) {
            lines.append(QString("%1 %2 %3 of %4")
                             .arg(entity->getName())
                             .arg(entity->getSelectable())
                             .arg(tickedVariables(*entity).size())
                             .arg(offeredVariables(*entity).size()));
        }
        QCOMPARE(lines,
            QStringList({"COUNTRY 1 1 of 1", "REGION 1 1 of 1", "PROVINCE 1 3 of 3", "MUNICIPALITY 1 7 of 7",
                "DWELLING 1 15 of 23", "HOUSEHOLD 1 39 of 39", "PERSON 1 26 of 58"}));
    }

    void marksOfARunReplaceThoseOfTheDictionary()
    {
        const auto tree = smallTree("ROOT(A B)", {"A:V W", "B:V"});
        find(tree.get(), QString("A"))->setSelectable(true);
        tick(*find(tree.get(), QString("B")), "V");
        const RunPlan plan(*tree, *runFrom("{'entities': [{'name': 'B', 'variables': []}]}"));
        plan.mark(*tree);
        QCOMPARE(find(tree.get(), QString("A"))->getSelectable(), false);
        QCOMPARE(find(tree.get(), QString("B"))->getSelectable(), true);
        QCOMPARE(ticksOf(*find(tree.get(), QString("B"))), QString());
        QCOMPARE(textOf(plan), QString("B"));
    }

    void whatTheDictionaryHasNotIsListedAndKept_data()
    {
        QTest::addColumn<QString>("entities");
        QTest::addColumn<QString>("missing");
        QTest::newRow("nothing") << "[{'name':'A','variables':['V']}]"
                                 << "";
        QTest::newRow("an entity") << "[{'name':'X','variables':['V']},{'name':'A'}]"
                                   << "X";
        QTest::newRow("a variable") << "[{'name':'A','variables':['V','X','W']}]"
                                    << "A/X";
        QTest::newRow("both") << "[{'name':'X'},{'name':'A','variables':['Y','Z']}]"
                              << "X|A/Y|A/Z";
        QTest::newRow("in other letter case") << "[{'name':'a'},{'name':'A','variables':['v']}]"
                                              << "a|A/v";
        QTest::newRow("without a name") << "[7]"
                                        << "";
        QTest::newRow("the dictionary itself") << "[{'name':'ROOT'}]"
                                               << "ROOT";
        QTest::newRow("of another entity") << "[{'name':'A','variables':['BV']}]"
                                           << "A/BV";
        QTest::newRow("a reference is there") << "[{'name':'A','variables':['CODE']}]"
                                              << "";
        QTest::newRow("an entity twice") << "[{'name':'A','variables':['X']},{'name':'A','variables':['Y']}]"
                                         << "A/X|A/Y";
    }
    void whatTheDictionaryHasNotIsListedAndKept()
    {
        QFETCH(QString, entities);
        QFETCH(QString, missing);
        const auto tree = smallTree("ROOT(A(B))", {"A:CODE V W", "B:BV"});
        find(tree.get(), QString("A"))->setRefCode("CODE");
        const auto config = runFrom(("{'entities':" + entities + "}").toUtf8());
        RunPlan plan(*tree, *config);
        QCOMPARE(plan.missingIn(*tree).join('|'), missing);
        QCOMPARE(plan.text(), documents::runText(*config));
        plan.mark(*tree);
        plan.takeEntities(*tree);
        QCOMPARE(plan.text(), documents::runText(*config));
    }

    void whatIsNotChosenIsNotMissing()
    {
        const auto tree = smallTree("ROOT(A)", {"A:V"});
        RunPlan plan(*tree, *runFrom("{'entities':[{'name':'A','variables':['X']}]}"));
        QCOMPARE(plan.missingIn(*tree), QStringList("A/X"));
        find(tree.get(), QString("A"))->setSelectable(false);
        plan.takeEntities(*tree);
        QCOMPARE(plan.missingIn(*tree), QStringList());
        QCOMPARE(textOf(plan), QString());
    }

    void newTicksComeBehindTheirNeighbours_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("ticks");
        QTest::addColumn<QString>("after");
        QTest::newRow("one more in the middle") << "A D"
                                                << "A C D"
                                                << "A C D";
        QTest::newRow("one more in front") << "C D"
                                           << "B C D"
                                           << "B C D";
        QTest::newRow("one more at the end") << "A B"
                                             << "A B E"
                                             << "A B E";
        QTest::newRow("several together") << "A E"
                                          << "A B C D E"
                                          << "A B C D E";
        QTest::newRow("one less") << "A B C"
                                  << "A C"
                                  << "A C";
        QTest::newRow("none") << "A B C"
                              << ""
                              << "";
        QTest::newRow("first ones") << ""
                                    << "B D"
                                    << "B D";
        QTest::newRow("an order of its own stays") << "D A"
                                                   << "A B D"
                                                   << "D A B";
        QTest::newRow("a name that is not there stays") << "A X B"
                                                        << "A C"
                                                        << "A C X";
        QTest::newRow("such a name in front") << "X B"
                                              << "A B"
                                              << "A X B";
        QTest::newRow("a name of its own twice") << "B B"
                                                 << "B C"
                                                 << "B C B";
        QTest::newRow("only names that are not there") << "X Y"
                                                       << "B"
                                                       << "B X Y";
    }
    void newTicksComeBehindTheirNeighbours()
    {
        QFETCH(QString, before);
        QFETCH(QString, ticks);
        QFETCH(QString, after);
        const auto tree = smallTree("ROOT(H)", {"H:A B C D E"});
        TDmEntity &house = *find(tree.get(), QString("H"));
        const QString names = before.isEmpty() ? "" : "'" + before.split(' ').join("','") + "'";
        RunPlan plan(*tree, *runFrom(("{'entities':[{'name':'H','variables':[" + names + "]}]}").toUtf8()));
        tick(house, ticks);
        plan.takeVariables(house);
        QCOMPARE(textOf(plan), ("H " + after).trimmed());
    }

    void variablesThatHoldReferencesAreNoTicks()
    {
        const auto tree = smallTree("ROOT(H)", {"H:CODE LABEL WEIGHT A"});
        TDmEntity &house = *find(tree.get(), QString("H"));
        house.setRefCode("CODE");
        house.setRefLabel("LABEL");
        house.setWeightVariable("WEIGHT");
        RunPlan plan(*tree, *runFrom("{'entities':[{'name':'H','variables':['WEIGHT','A']}]}"));
        // Not offered, so neither taken nor dropped.
        tick(house, "CODE LABEL");
        plan.takeVariables(house);
        QCOMPARE(textOf(plan), QString("H WEIGHT"));
        QCOMPARE(offeredVariables(house).size(), 1);
    }

    void aNewEntityComesBehindItsNeighbour()
    {
        const auto tree = smallTree("ROOT(A(B C) D E)", {});
        RunPlan plan(*tree, *runFrom("{'entities':[{'name':'X'},{'name':'D'},{'name':'A'}]}"));
        plan.mark(*tree);
        for (const char *name : {"B", "E"})
            find(tree.get(), QString(name))->setSelectable(true);
        plan.takeEntities(*tree);
        QCOMPARE(textOf(plan), QString("X, D, E all, A, B all"));
        find(tree.get(), QString("D"))->setSelectable(false);
        plan.takeEntities(*tree);
        QCOMPARE(textOf(plan), QString("X, E all, A, B all"));
    }

    void anEntityThatIsChosenAgainHasWhatItHad()
    {
        const auto tree = census();
        RunPlan plan(*tree);
        QVERIFY(!plan.open(kSamples + "run.json"));
        plan.mark(*tree);
        TDmEntity *person = find(tree.get(), QString("PERSON"));
        person->setSelectable(false);
        plan.takeEntities(*tree);
        QCOMPARE(plan.chosenCount(), 6);
        person->setSelectable(true);
        plan.takeEntities(*tree);
        QCOMPARE(plan.text(), bytesOf(kSamples + "run.json"));
    }

    void twoEntitiesOfOneNameAreOne()
    {
        const auto tree = smallTree("ROOT(A(H) B(H))", {});
        tree->getChildren()->at(1)->getChildren()->first()->setSelectable(true);
        RunPlan plan(*tree);
        QCOMPARE(textOf(plan), QString("H all"));
        plan.mark(*tree);
        QCOMPARE(tree->getChildren()->at(0)->getChildren()->first()->getSelectable(), true);
    }

    void allVariablesAreTakenAndGivenBack()
    {
        const auto tree = smallTree("ROOT(H)", {"H:CODE A B C"});
        TDmEntity &house = *find(tree.get(), QString("H"));
        house.setRefCode("CODE");
        RunPlan plan(*tree, *runFrom("{'entities':[{'name':'H','variables':['A']}]}"));
        plan.mark(*tree);
        plan.setAllVariables(house, true);
        QCOMPARE(plan.takesAllVariables("H"), true);
        QCOMPARE(ticksOf(house), QString("CODE A B C"));
        plan.setAllVariables(house, false);
        QCOMPARE(plan.takesAllVariables("H"), false);
        QCOMPARE(ticksOf(house), QString("A"));
        QCOMPARE(textOf(plan), QString("H A"));
    }

    void allVariablesTurnedOffWithoutNamesStayChosenByName()
    {
        const auto tree = smallTree("ROOT(H)", {"H:CODE A B"});
        TDmEntity &house = *find(tree.get(), QString("H"));
        house.setRefCode("CODE");
        house.setSelectable(true);
        RunPlan plan(*tree);
        plan.mark(*tree);
        plan.setAllVariables(house, false);
        QCOMPARE(textOf(plan), QString("H A B"));
        QCOMPARE(tickedVariables(house).size(), 2);
    }

    void whatIsNotKnownChangesNothing()
    {
        const auto tree = smallTree("ROOT(H)", {"H:A"});
        RunPlan plan(*tree);
        const QByteArray before = plan.text();
        TDmEntity stranger;
        stranger.setName("X");
        plan.takeVariables(stranger);
        plan.setAllVariables(stranger, true);
        QCOMPARE(plan.text(), before);
        QCOMPARE(plan.takesAllVariables("X"), false);
        QCOMPARE(plan.isChosen("X"), false);
    }

    void aDictionaryIsRefused()
    {
        RunPlan plan(*census());
        const QByteArray before = plan.text();
        const auto problem = plan.open(kSamples + "census.json");
        QVERIFY(problem);
        QCOMPARE(
            problem->message, QString("is a dictionary, not a run configuration; open it with File, Open"));
        QCOMPARE(problem->line, 0);
        QCOMPARE(plan.text(), before);
    }

    void whatCannotBeReadIsRefused()
    {
        const QTemporaryDir folder;
        QFile broken(folder.filePath("broken.json"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("{\n  \"type\" \"config\"\n}");
        broken.close();
        RunPlan plan(*census());
        const QByteArray before = plan.text();
        const auto problem = plan.open(broken.fileName());
        QVERIFY(problem);
        QCOMPARE(problem->line, 2);
        const auto missing = plan.open(folder.filePath("none.json"));
        QVERIFY(missing);
        QVERIFY2(missing->message.startsWith("cannot be read: "), qPrintable(missing->message));
        QCOMPARE(plan.text(), before);
    }

    void whatSavingDoesNotKeepIsTold()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("run.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"type\": \"config\", \"database\": {\"name\": \"N\", \"filter\": \"AGE > 5\"}}");
        file.close();
        RunPlan plan(*census());
        QVERIFY(!plan.open(file.fileName()));
        QCOMPARE(plan.losses().size(), 1);
        QCOMPARE(plan.losses().first().path, QString("/database/filter"));
        // Another run has losses of its own.
        QVERIFY(!plan.open(kSamples + "run.json"));
        QCOMPARE(plan.losses().size(), 0);
    }

    void savingWritesTheRunAndAFailureIsTold()
    {
        const QTemporaryDir folder;
        RunPlan plan(*census());
        QVERIFY(!plan.open(kSamples + "run.json"));
        const QString name = folder.filePath("saved.json");
        QVERIFY(!plan.save(name));
        QCOMPARE(bytesOf(name), bytesOf(kSamples + "run.json"));
        const auto problem = plan.save(folder.path());
        QVERIFY(problem);
        QCOMPARE(problem->message, QString("cannot be written: it is a folder; name a file"));
    }

    void aCopyIsIndependent()
    {
        RunPlan plan(*census());
        RunPlan copy = plan;
        copy.database().setName("COPY");
        copy.chosen().first()->addVariables("X");
        QCOMPARE(plan.database().getName(), QString());
        QCOMPARE(textOf(plan), QString("COUNTRY all, REGION all, PROVINCE all, MUNICIPALITY all"));
    }

    void theChoiceTreeIsACopy()
    {
        const auto root = smallTree("ROOT(A(B) C)", {"A:V W", "C:X"});
        root->setLevel(5);
        TDmEntity &a = *find(root.get(), QString("A"));
        a.setAlias("AA");
        a.setLabel("The A");
        a.setRefCode("V");
        a.setRefLabel("L");
        a.setWeightVariable("T");
        a.setSelectable(true);
        a.setCheckDelete(true);
        TDmVariable &w = *a.getVariables()->at(1);
        w.setLabel("label");
        w.setAlias("alias");
        w.setGroup("group");
        w.setTag(7);
        w.setChecked(1);
        w.setLevel(3);
        const auto tree = choiceTreeOf(*root);
        QStringList lines;
        for (const TDmEntity *entity : entitiesBelow(*tree)) {
            lines.append(QString("%1 %2 %3")
                             .arg(entity->getName())
                             .arg(entity->getLevel())
                             .arg(entity->getVariables()->size()));
        }
        QCOMPARE(lines, QStringList({"A 2 2", "B 3 0", "C 2 1"}));
        QCOMPARE(tree->getLevel(), 1);
        TDmEntity &copy = *find(tree.get(), QString("A"));
        QVERIFY(&copy != &a);
        QCOMPARE(QStringList({copy.getAlias(), copy.getLabel(), copy.getRefCode(), copy.getRefLabel(),
                     copy.getWeightVariable()}),
            QStringList({"AA", "The A", "V", "L", "T"}));
        QCOMPARE(copy.getSelectable(), true);
        QCOMPARE(copy.getCheckDelete(), true);
        const TDmVariable &twin = *copy.getVariables()->at(1);
        QCOMPARE(QStringList({twin.getName(), twin.getLabel(), twin.getAlias(), twin.getGroup()}),
            QStringList({"W", "label", "alias", "group"}));
        QCOMPARE(twin.getTag(), 7);
        QCOMPARE(twin.getChecked(), 1);
        QCOMPARE(twin.getLevel(), 1);
    }

    void selectionUnitsTellWhatIsChosen()
    {
        const auto tree = smallTree("ROOT(A(B(C D)) E F)", {"A:V", "C:V W", "D:V W", "E:CODE", "F:V"});
        tree->setLabel("The root");
        TDmEntity &c = *find(tree.get(), QString("C"));
        c.setAlias("CC");
        c.setLabel("Größe");
        find(tree.get(), QString("E"))->setRefCode("CODE");
        RunPlan plan(*tree,
            *runFrom("{'entities':[{'name':'A','variables':['V']},{'name':'C','variables':['W']},"
                     "{'name':'D','allVariables':true},{'name':'E'}]}"));
        plan.mark(*tree);
        const SelectionUnits units(*tree, plan);

        QStringList lines;
        std::function<void(const SelectionTreeUnit &)> list = [&](const SelectionTreeUnit &unit) {
            const TDmEntity *entity = units.entityOf(&unit);
            lines.append(
                QString("%1 %2 %3 %4 %5 %6 %7")
                    .arg(unit.getLevel())
                    .arg(unit.getName(), unit.getCode(), QString::fromStdString(unit.getArea().first),
                        QString::fromStdString(unit.getArea().second))
                    .arg(unit.getUnitState())
                    .arg(entity ? entity->getName() : "-"));
            for (const SelectionTreeUnit *child : qAsConst(*unit.getChildren()))
                list(*child);
        };
        list(units.root());
        QCOMPARE(lines,
            QStringList({"1 ROOT ROOT ROOT The root 1 -", "2 A A A  2 A", "3 C CC C Größe 1 C",
                "3 D D D  2 D", "2 E E E  0 E"}));
    }

    void theRootUnitSumsUp_data()
    {
        QTest::addColumn<QString>("entities");
        QTest::addColumn<int>("state");
        QTest::newRow("nothing") << "[]" << 0;
        QTest::newRow("all of all") << "[{'name':'A','allVariables':true},{'name':'B','variables':['V']}]"
                                    << 2;
        QTest::newRow("some of one") << "[{'name':'A','variables':['V']}]" << 1;
        QTest::newRow("all of one, none of the other")
            << "[{'name':'A','allVariables':true},{'name':'B'}]" << 1;
        QTest::newRow("none of both") << "[{'name':'A'},{'name':'B'}]" << 0;
    }
    void theRootUnitSumsUp()
    {
        QFETCH(QString, entities);
        QFETCH(int, state);
        const auto tree = smallTree("ROOT(A B)", {"A:V W", "B:V"});
        const RunPlan plan(*tree, *runFrom(("{'entities':" + entities + "}").toUtf8()));
        plan.mark(*tree);
        const SelectionUnits units(*tree, plan);
        QCOMPARE(units.root().getUnitState(), state);
    }
};

QTEST_MAIN(tst_RunPlan)
#include "tst_RunPlan.moc"
