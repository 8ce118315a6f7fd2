#include "business/models/VariableDiccionaryModel.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/VariableTable.h"

#include <QtTest>

using namespace tessel::test;

class tst_DuplicatedNames : public QObject {
    Q_OBJECT

private slots:
    void everyVariableWhoseNameIsNotItsOwnIsListed_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *tag, const QStringList &variables, const char *lines) {
            QTest::newRow(tag) << variables << QString(lines);
        };
        row("no variables", {}, "");
        row("one variable", {"A|x"}, "");
        row("different names", {"A|x", "B|x", "C|x"}, "");
        row("another letter case is another name", {"A", "a"}, "");
        row("a blank makes another name", {"A", "A ", " A"}, "");
        row("a pattern is another name", {"A.B", "AXB"}, "");
        row("aliases, labels and groups do not count", {"A|x|l|g", "B|x|l|g", "x|A"}, "");
        row("two", {"A|x", "A|y"}, "Name: A - Alias: x\nName: A - Alias: y\n");
        row("two with the same alias", {"A|x", "A|x"}, "Name: A - Alias: x\nName: A - Alias: x\n");
        row("three, once each", {"A|x", "A|y", "A|z"},
            "Name: A - Alias: x\nName: A - Alias: y\nName: A - Alias: z\n");
        row("two pairs in the order of the entity", {"B|1", "A|2", "C|3", "A|4", "B|5"},
            "Name: B - Alias: 1\nName: A - Alias: 2\nName: A - Alias: 4\nName: B - Alias: 5\n");
        row("empty names are equal", {"|x", "A", "|y"}, "Name:  - Alias: x\nName:  - Alias: y\n");
        row("no alias", {"A", "A"}, "Name: A - Alias: \nName: A - Alias: \n");
        row("blanks, markup and placeholders stay", {"<b>%1</b> |&amp;", "<b>%1</b> |%2\t"},
            "Name: <b>%1</b>  - Alias: &amp;\nName: <b>%1</b>  - Alias: %2\t\n");
    }
    void everyVariableWhoseNameIsNotItsOwnIsListed()
    {
        QFETCH(QStringList, variables);
        QFETCH(QString, lines);
        VariableTable table(variables);
        const QString before = table.state();
        QSignalSpy modified(&table.model, &VariableDiccionaryModel::signalVariablesModified);
        MessageBoxRobot robot({QMessageBox::Ok});
        const LogCatcher catcher;
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(robot.texts(), lines.isEmpty() ? QStringList() : QStringList("Duplicated names:\n" + lines));
        QCOMPARE(table.state(), before);
        QCOMPARE(modified.count(), 0);
        QCOMPARE(ownMessages(catcher), QStringList());
    }

    void theWarningIsOneBoxWithOneButton()
    {
        VariableTable table({"<i>A</i>", "<i>A</i>"});
        MessageBoxRobot robot({QMessageBox::Ok, MessageBoxRobot::PressEscape, MessageBoxRobot::CloseWindow});
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(formOf(robot.boxes().first()),
            QString("Warning, Warning: Duplicated names, Ok, default Ok, plain, modal"));
        table.model.showDuplicatedNamesWarning();
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(robot.boxes().size(), 3);
        QCOMPARE(robot.unplanned(), 0);
    }

    void theFirstLineIsNotTranslated()
    {
        VariableTable table({"A|x", "A|y"});
        MessageBoxRobot robot({QMessageBox::Ok});
        const ContextTranslator translator;
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(robot.texts().value(0),
            QString("Duplicated names:\nVariableDiccionaryModel: Name: A - Alias: x\n"
                    "VariableDiccionaryModel: Name: A - Alias: y\n"));
        QCOMPARE(robot.boxes().value(0).title,
            QString("VariableDiccionaryModel: Warning: VariableDiccionaryModel: Duplicated names"));
    }

    void theVariablesAreThoseThatTheEntityHasNowAndNotTheRows()
    {
        VariableTable table({"A|x", "B|y"});
        table.root->addVariables(newVariable("A"));
        MessageBoxRobot robot({QMessageBox::Ok});
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(robot.texts(), QStringList());
        table.house->addVariables(newVariable("A|z"));
        table.house->addVariables(nullptr);
        table.house->addVariables(nullptr);
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(robot.texts(), QStringList("Duplicated names:\nName: A - Alias: x\nName: A - Alias: z\n"));
    }

    void anAcceptedRenamingToAnotherVariablesNameIsWarnedOfLater()
    {
        VariableTable table({"A|x", "B|y"});
        QCOMPARE(table.edit(0, 0, "B"), QString("accepted"));
        MessageBoxRobot robot({QMessageBox::Ok});
        table.model.showDuplicatedNamesWarning();
        QCOMPARE(robot.texts(), QStringList("Duplicated names:\nName: B - Alias: x\nName: B - Alias: y\n"));
    }
};

QTEST_MAIN(tst_DuplicatedNames)
#include "tst_DuplicatedNames.moc"
