#include "business/models/VariableDiccionaryModel.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/VariableTable.h"

#include <QtTest>

#include <climits>

using namespace tessel::test;

namespace {

enum Column { Name, Alias, Label, Group, Tag };

const QString kAccepted = QStringLiteral("accepted");
const QString kSilent = QStringLiteral("refused");
const QString kEntity = QStringLiteral("Error: The typed character string already exists; refused");
const QString kVariable =
    QStringLiteral("Error: The typed character string already exists as the alias of a variable; refused");
const QString kAliasOrName =
    QStringLiteral("Error: The value already exists as the name/alias of a variable alias ; refused");
const QString kAnyName =
    QStringLiteral("Error: The value already exists as the name-entity/name-variable/alias; refused");
const QString kInvalid = QStringLiteral("Information: Invalid string; refused");

const QStringList kPeople = {"AGE|EDAD|Age in years|PERSONS", "SEX|SEXO|Sex|PERSONS", "TWIN|PAR", "TWIN|PAR"};

/// The table that most tests edit; AGE is the row that they do it in.
class People : public VariableTable {
public:
    People()
        : VariableTable(kPeople)
    {
        root->setAlias("COUNTRY");
        entity("ROOM")->addVariables(newVariable("FLOOR|PISO|Floor|ROOMS"));
        root->addVariables(newVariable("AREA|SUPERFICIE"));
        variable(0)->setTag(12);
    }

    QString shown(int column) const { return model.data(model.index(0, column)).toString(); }
};

/// How \a column writes \a text to the log.
QString logged(int column) { return QStringLiteral("debug default: VARIABLE CURRENT INDEX %1").arg(column); }

} // namespace

class tst_VariableEditing : public QObject {
    Q_OBJECT

private slots:
    void aTypedTextIsJudged_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("outcome");
        const auto row = [](int column, const char *tag, const QString &text, const QString &outcome) {
            static const char *const names[] = {"name", "alias", "label", "group"};
            QTest::addRow("%s: %s", names[column], tag) << column << text << outcome;
        };
        row(Name, "a new one", "YEARS", kAccepted);
        row(Name, "blanks inside and around it", "  NEW NAME ", kAccepted);
        row(Name, "the own one", "AGE", kSilent);
        row(Name, "the own one with blanks", " AGE  ", kSilent);
        row(Name, "the own one with a tab, which is no text", "\tAGE", kSilent);
        row(Name, "the own one in another letter case", "age", kAccepted);
        row(Name, "the own alias", "EDAD", kAccepted);
        row(Name, "an alias of another variable", "SEXO", kAccepted);
        row(Name, "the root's name", "LAND", kEntity);
        row(Name, "the name of the shown entity", "HOUSE", kEntity);
        row(Name, "an entity far below", "BED", kEntity);
        row(Name, "an entity elsewhere with blanks", " FARM ", kEntity);
        row(Name, "an entity in another letter case", "farm", kAccepted);
        row(Name, "an alias of an entity is in no check", "COUNTRY", kAccepted);
        row(Name, "another variable's name is taken for the own one", "SEX", kAccepted);
        row(Name, "another variable's name with blanks is not", "SEX ", kVariable);
        row(Name, "a name that two other variables have", "TWIN", kVariable);
        row(Name, "a variable of another entity", "FLOOR", kAccepted);
        row(Name, "a variable of the root", "AREA", kAccepted);
        row(Name, "an empty text is not refused", "", kAccepted);
        row(Name, "blanks are not refused", "   ", kAccepted);
        row(Name, "a quotation mark", "A\"B", kInvalid);
        row(Name, "a backslash", "A\\B", kInvalid);
        row(Name, "a line feed behind", "YEARS\n", kInvalid);
        row(Name, "a tab in front of an entity's name", "\tFARM", kEntity);
        row(Name, "a tab in front of a variable's name", "\tSEX", kVariable);
        row(Alias, "a new one", "YEARS", kAccepted);
        row(Alias, "the alias of two others is not checked", "PAR", kAccepted);
        row(Alias, "the name of two others is not checked", "TWIN", kAccepted);
        row(Alias, "an entity's name is not checked", "FARM", kAccepted);
        row(Alias, "an entity's alias is not checked", "COUNTRY", kAccepted);
        row(Alias, "the same one again", "EDAD", kAccepted);
        row(Alias, "no text is not checked", "A\"B\\\n", kAccepted);
        row(Alias, "nothing", "", kAccepted);
        row(Label, "a new one", "Years", kAccepted);
        row(Label, "the same one again", "Age in years", kAccepted);
        row(Label, "another variable's label is not checked", "Sex", kAccepted);
        row(Label, "the own alias is taken out", "EDAD", kAccepted);
        row(Label, "the own alias with blanks is not", "EDAD ", kAliasOrName);
        row(Label, "another variable's alias is taken out", "SEXO", kAccepted);
        row(Label, "an alias that two others have", "PAR", kAliasOrName);
        row(Label, "the own name", "AGE", kAliasOrName);
        row(Label, "another variable's name", "SEX", kAliasOrName);
        row(Label, "another variable's name with blanks", "\tSEX ", kAliasOrName);
        row(Label, "a name in another letter case", "sex", kAccepted);
        row(Label, "an alias of another entity's variable", "PISO", kAccepted);
        row(Label, "a name of another entity's variable", "FLOOR", kAccepted);
        row(Label, "an entity's name is not checked", "FARM", kAccepted);
        row(Label, "an entity's alias is not checked", "COUNTRY", kAccepted);
        row(Label, "a quotation mark", "A\"B", kInvalid);
        row(Label, "a backslash", "A\\B", kInvalid);
        row(Label, "a control character", "A\u0085", kInvalid);
        row(Label, "nothing", "", kAccepted);
        row(Group, "a new one", "OTHERS", kAccepted);
        row(Group, "the same one again", "PERSONS", kAccepted);
        row(Group, "an entity's name", "FARM", kAnyName);
        row(Group, "the name of the shown entity with blanks", " HOUSE ", kAnyName);
        row(Group, "an entity's alias is not checked", "COUNTRY", kAccepted);
        row(Group, "the own alias", "EDAD", kAnyName);
        row(Group, "another variable's alias", "SEXO", kAnyName);
        row(Group, "the own name", "AGE", kAnyName);
        row(Group, "another variable's name", "SEX", kAnyName);
        row(Group, "a variable of another entity", "FLOOR", kAccepted);
        row(Group, "a label", "Sex", kAccepted);
        row(Group, "no text is not checked", "A\"B\\\n", kAccepted);
        row(Group, "nothing", "", kAccepted);
    }
    void aTypedTextIsJudged()
    {
        QFETCH(int, column);
        QFETCH(QString, text);
        QFETCH(QString, outcome);
        People people;
        QStringList cells = textOf(people.variable(0)).split('|');
        QCOMPARE(people.edit(0, column, text), outcome);
        if (outcome == kAccepted)
            cells[column] = text;
        QCOMPARE(textOf(people.variable(0)), cells.join('|'));
        QCOMPARE(textOf(people.variable(1)), QString("SEX|SEXO|Sex|PERSONS|0"));
    }

    void ofTwoFaultsTheFirstIsTold()
    {
        People people;
        // An entity's name comes before the names of variables, a clash before what is no text.
        people.entity("FARM")->setName("TWIN");
        QCOMPARE(people.edit(0, Name, "TWIN"), kEntity);
        people.entity("BED")->setName("A\"B");
        QCOMPARE(people.edit(0, Name, "A\"B"), kEntity);
        people.variable(1)->setName("[A\\B]");
        people.variable(1)->setAlias("\"ALIAS\" ");
        QCOMPARE(people.edit(0, Name, "[A\\B]"), kVariable);
        QCOMPARE(people.edit(0, Label, "[A\\B]"), kAliasOrName);
        QCOMPARE(people.edit(0, Label, "\"ALIAS\""), kAliasOrName);
        // The own name is passed over before anything else is looked at.
        people.variable(0)->setName("A\"B");
        QCOMPARE(people.edit(0, Name, " A\"B "), kSilent);
    }

    void blanksClashWithANameOfBlanks()
    {
        VariableTable table({"AGE", "  "});
        QCOMPARE(table.edit(0, Name, ""), kVariable);
        QCOMPARE(table.edit(0, Name, " "), kVariable);
        QCOMPARE(table.edit(0, Label, ""), kAliasOrName);
        QCOMPARE(table.edit(0, Group, ""), kAnyName);
        QCOMPARE(table.edit(0, Name, "  "), kAccepted);
    }

    void everyEditSeesTheDictionaryAsItIsThen()
    {
        People people;
        QCOMPARE(people.edit(0, Group, "LATER"), kAccepted);
        people.entity("BED")->setName("LATER");
        QCOMPARE(people.edit(0, Group, "LATER"), kAnyName);
        people.entity("BED")->setName("BED");
        people.house->addVariables(newVariable("|LATER"));
        QCOMPARE(people.edit(0, Group, "LATER"), kAnyName);
        people.house->getVariables()->last()->setAlias("");
        QCOMPARE(people.edit(0, Group, "LATER"), kAccepted);
    }

    void aRefusalIsOneBoxOfItsKind_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("message");
        const QString error = "Critical, Error, Ok, default Ok, plain, modal";
        const QString information = "Information, Information, Ok, default Ok, plain, modal";
        QTest::newRow("an entity's name")
            << 0 << "FARM" << error << "The typed character string already exists";
        QTest::newRow("a variable's name, called an alias")
            << 0 << "TWIN" << error << "The typed character string already exists as the alias of a variable";
        QTest::newRow("a label, with a blank at the end")
            << 2 << "PAR" << error << "The value already exists as the name/alias of a variable alias ";
        QTest::newRow("a group") << 3 << "SEX" << error
                                 << "The value already exists as the name-entity/name-variable/alias";
        QTest::newRow("a name that is no text") << 0 << "\"" << information << "Invalid string";
        QTest::newRow("a label that is no text") << 2 << "\"" << information << "Invalid string";
    }
    void aRefusalIsOneBoxOfItsKind()
    {
        QFETCH(int, column);
        QFETCH(QString, text);
        QFETCH(QString, form);
        QFETCH(QString, message);
        People people;
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok});
        QVERIFY(!people.model.setData(people.model.index(0, column), text));
        QCOMPARE(robot.texts(), QStringList(message));
        QCOMPARE(formOf(robot.boxes().first()), form);
        const ContextTranslator translator;
        QVERIFY(!people.model.setData(people.model.index(0, column), text));
        QCOMPARE(robot.texts().last(), "VariableDiccionaryModel: " + message);
    }

    void valuesAreTakenAsTheirText_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("a number") << QVariant(5) << "5";
        QTest::newRow("bytes") << QVariant(QByteArray("YEARS")) << "YEARS";
        QTest::newRow("no value") << QVariant() << "";
        QTest::newRow("a list of two") << QVariant(QStringList({"A", "B"})) << "";
        QTest::newRow("a million characters") << QVariant(QString(1'000'000, 'x')) << QString(1'000'000, 'x');
        QTest::newRow("markup") << QVariant("<b>%1 &amp;</b>") << "<b>%1 &amp;</b>";
        QTest::newRow("beyond the basic plane") << QVariant("\U0001F600") << "\U0001F600";
    }
    void valuesAreTakenAsTheirText()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, text);
        for (const int column : {Name, Alias, Label, Group}) {
            People people;
            QCOMPARE(people.edit(0, column, value), kAccepted);
            QCOMPARE(people.shown(column), text);
        }
    }

    void theColumnIsLoggedBeforeItIsJudged_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("log");
        QTest::newRow("a name") << 0 << "YEARS" << QStringList(logged(0));
        QTest::newRow("the own name") << 0 << "AGE" << QStringList(logged(0));
        QTest::newRow("a refused name") << 0 << "FARM" << QStringList(logged(0));
        QTest::newRow("an alias, which is not judged") << 1 << "YEARS" << QStringList(logged(1));
        QTest::newRow("a label") << 2 << "Years" << QStringList(logged(2));
        QTest::newRow("a refused label") << 2 << "\\" << QStringList(logged(2));
        QTest::newRow("a group") << 3 << "OTHERS" << QStringList(logged(3));
        QTest::newRow("a tag") << 4 << "7" << QStringList();
        QTest::newRow("a tag that is no number") << 4 << "abc" << QStringList();
        QTest::newRow("a column that is not there") << 5 << "YEARS" << QStringList();
    }
    void theColumnIsLoggedBeforeItIsJudged()
    {
        QFETCH(int, column);
        QFETCH(QString, text);
        QFETCH(QStringList, log);
        People people;
        MessageBoxRobot robot({QMessageBox::Ok});
        const LogCatcher catcher;
        people.model.setData(people.model.index(0, column), text);
        QCOMPARE(ownMessages(catcher), log);
    }

    void everyOtherRoleChangesNothingAndIsAnnouncedAllTheSame()
    {
        People people;
        people.house->setRefCode("AGE");
        const QString before = people.state();
        for (int role = -1; role <= Qt::UserRole + 2; ++role) {
            if (role == Qt::EditRole)
                continue;
            for (const int column : {0, 1, 2, 3, 4, 5}) {
                const QModelIndex cell = people.model.index(0, column);
                QSignalSpy changed(&people.model, &QAbstractItemModel::dataChanged);
                QSignalSpy modified(&people.model, &VariableDiccionaryModel::signalVariablesModified);
                MessageBoxRobot robot;
                const LogCatcher catcher;
                for (const char *text : {"YEARS", "FARM", "TWIN", "\"", "7"})
                    QVERIFY(people.model.setData(cell, text, role));
                QCOMPARE(changed.count(), 5);
                QCOMPARE(changed.at(4).at(0).toModelIndex(), cell);
                QCOMPARE(changed.at(4).at(1).toModelIndex(), cell);
                QCOMPARE(changed.at(4).at(2).value<QVector<int>>(), QVector<int>());
                QCOMPARE(modified.count(), 5);
                QCOMPARE(robot.texts(), QStringList());
                QCOMPARE(ownMessages(catcher), QStringList());
            }
        }
        QCOMPARE(people.state(), before);
    }

    void columnsThatAreNotThereChangeNothingAndAreAnnouncedAllTheSame()
    {
        People people;
        const QString before = people.state();
        for (const int column : {5, 6, INT_MAX}) {
            QCOMPARE(people.edit(0, column, "FARM"), kAccepted);
            QCOMPARE(people.edit(0, column, "7"), kAccepted);
            QCOMPARE(people.state(), before);
        }
    }

    void cellsWithoutVariableAreRefusedInSilence()
    {
        VariableTable table = VariableTable::holding({newVariable("AGE"), nullptr});
        const VariableTable other(kPeople);
        QSignalSpy changed(&table.model, &QAbstractItemModel::dataChanged);
        QSignalSpy modified(&table.model, &VariableDiccionaryModel::signalVariablesModified);
        MessageBoxRobot robot;
        const LogCatcher catcher;
        const QModelIndexList cells = {QModelIndex(), table.model.index(1, 0), table.model.index(1, 4),
            table.model.made(-1, 0, table.variable(0)), table.model.made(0, -1, table.variable(0)),
            other.model.index(0, 0)};
        for (const QModelIndex &cell : cells) {
            for (const int role : {Qt::EditRole, Qt::DisplayRole}) {
                for (const char *text : {"FARM", "YEARS", "7"})
                    QVERIFY(!table.model.setData(cell, text, role));
            }
        }
        QCOMPARE(changed.count(), 0);
        QCOMPARE(modified.count(), 0);
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(ownMessages(catcher), QStringList());
        QCOMPARE(textOf(table.variable(0)), QString("AGE||||0"));
        QCOMPARE(textOf(other.variable(0)), QString("AGE|EDAD|Age in years|PERSONS|0"));
    }

    void nullsAmongVariablesAndEntitiesArePassedBy()
    {
        VariableTable table =
            VariableTable::holding({nullptr, newVariable("AGE"), newVariable("SEX"), newVariable("SEX")});
        table.root->getChildren()->prepend(nullptr);
        QCOMPARE(table.edit(1, Name, "SEX"), kVariable);
        QCOMPARE(table.edit(1, Name, "FARM"), kEntity);
        QCOMPARE(table.edit(1, Name, "YEARS"), kAccepted);
        QCOMPARE(table.edit(1, Label, "SEX"), kAliasOrName);
    }

    void withoutRootNoEntityIsInTheWay()
    {
        VariableTable table(kPeople);
        VariableDiccionaryModel model(nullptr, table.house, nullptr);
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(model.setData(model.index(0, Name), "FARM"));
        QVERIFY(model.setData(model.index(0, Group), "LAND"));
        QCOMPARE(textOf(table.variable(0)), QString("FARM|EDAD|Age in years|LAND|0"));
        QVERIFY(!model.setData(model.index(0, Name), "TWIN"));
        QCOMPARE(robot.unanswered(), 0);
    }

    void theRootMayBeAnyEntity()
    {
        VariableTable table(kPeople);
        VariableDiccionaryModel model(nullptr, table.house, table.entity("ROOM"));
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(!model.setData(model.index(0, Name), "BED"));
        QVERIFY(model.setData(model.index(0, Name), "FARM"));
        QCOMPARE(robot.unanswered(), 0);
    }
};

QTEST_MAIN(tst_VariableEditing)
#include "tst_VariableEditing.moc"
