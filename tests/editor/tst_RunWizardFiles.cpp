#include "editor/wizard/WizardText.h"
#include "tests/editor/FileDialogAnswer.h"
#include "tests/editor/Files.h"
#include "tests/editor/ShownRunWizard.h"
#include "tests/support/MessageBoxRobot.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

/// The summary of a run, and its file.
class tst_RunWizardFiles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void theSummaryTellsWhatIsWritten()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Summary);
        QCOMPARE(shown.text("summaryCount"),
            QString("The run \"ALTAMAR2023\" takes 7 entities and 92 variables."));
        QCOMPARE(
            shown.text("summaryTarget"), QString("The run is written to a file that you are asked for."));
        shown.wizard->setSaveFile("/tmp/some run.json");
        QCOMPARE(shown.text("summaryTarget"), QString("The run is written to /tmp/some run.json."));
        const QTableWidget &table = shown.at<QTableWidget>("summaryTable");
        QStringList rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column)
                cells.append(table.item(row, column)->text());
            rows.append(cells.join('|'));
        }
        QCOMPARE(rows,
            QStringList({"COUNTRY|1 of 1||Check sequence", "REGION|1 of 1||Check sequence",
                "PROVINCE|3 of 3||Check sequence", "MUNICIPALITY|7 of 7|M|Check sequence",
                "DWELLING|15 of 23|V|Compound", "HOUSEHOLD|39 of 39|H|Compound, Check sequence",
                "PERSON|26 of 58|P|Compound, SDC, Check sequence"}));
        QVERIFY(!shown.at<QListWidget>("summaryMissing").isVisible());
        QVERIFY(!shown.at<QLabel>("summaryProblem").isVisible());
    }

    void oneIsNotPlural()
    {
        QCOMPARE(WizardText::entities(1), QString("1 entity"));
        QCOMPARE(WizardText::entities(0), QString("0 entities"));
        QCOMPARE(WizardText::variables(1), QString("1 variable"));
        QCOMPARE(WizardText::variables(2), QString("2 variables"));
    }

    void finishSavesTheRun()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("run.json");
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        QCOMPARE(shown.wizard->windowTitle(), QString("Run run.json"));
        shown.wizard->setSaveFile(file);
        QSignalSpy saved(shown.wizard.get(), &RunWizard::runSaved);
        QSignalSpy accepted(shown.wizard.get(), &QDialog::accepted);
        shown.goTo(RunWizard::Summary);
        QCOMPARE(shown.wizard->savedFile(), QString());
        shown.press(QWizard::FinishButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(contentOf(file), contentOf(sample("run.json")));
        QCOMPARE(saved.count(), 1);
        QCOMPARE(saved.at(0).at(0).toString(), file);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(shown.wizard->savedFile(), file);
    }

    void aFailureIsToldAndTheWizardStays()
    {
        const QTemporaryDir folder;
        ShownRunWizard shown;
        shown.wizard->setSaveFile(folder.path());
        QSignalSpy saved(shown.wizard.get(), &RunWizard::runSaved);
        shown.goTo(RunWizard::Summary);
        shown.press(QWizard::FinishButton);
        QVERIFY(shown.wizard->isVisible());
        QCOMPARE(shown.text("summaryProblem"),
            QString("%1: cannot be written: it is a folder; name a file.").arg(folder.path()));
        QVERIFY(shown.at<QLabel>("summaryProblem").isVisible());
        QCOMPARE(shown.wizard->problem(), shown.text("summaryProblem"));
        QCOMPARE(saved.count(), 0);
        QCOMPARE(shown.wizard->savedFile(), QString());
        // Another file, and all is well.
        shown.wizard->setSaveFile(folder.filePath("run.json"));
        shown.press(QWizard::FinishButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(shown.wizard->problem(), QString());
        QCOMPARE(saved.count(), 1);
    }

    void theDictionarysOwnFileIsRefused()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("census.json");
        QVERIFY(QFile::copy(sample("census.json"), file));
        QVERIFY(QFile::link(file, folder.filePath("link.json")));
        ShownRunWizard shown;
        QVERIFY(!shown.document.save(file));
        shown.wizard->setSaveFile(folder.filePath("link.json"));
        shown.goTo(RunWizard::Summary);
        shown.press(QWizard::FinishButton);
        QVERIFY(shown.wizard->isVisible());
        QCOMPARE(shown.text("summaryProblem"),
            QString("%1: holds the dictionary itself; choose another file.")
                .arg(folder.filePath("link.json")));
        QCOMPARE(contentOf(file), contentOf(sample("census.json")));
    }

    void finishAsksForTheFile()
    {
        const QTemporaryDir folder;
        ShownRunWizard shown;
        shown.goTo(RunWizard::Summary);
        {
            const FileDialogAnswer answer((QString()));
            shown.press(QWizard::FinishButton);
            QCOMPARE(answer.title, QString("Save the run"));
            QCOMPARE(
                QDir(answer.folder).canonicalPath(), QFileInfo(sample("census.json")).dir().canonicalPath());
        }
        QVERIFY(shown.wizard->isVisible());
        QVERIFY(!shown.at<QLabel>("summaryProblem").isVisible());
        const QString file = folder.filePath("new.json");
        const FileDialogAnswer answer(file);
        shown.press(QWizard::FinishButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(shown.wizard->savedFile(), file);
        QCOMPARE(contentOf(file), shown.wizard->runPlan().text());
    }

    void anOpenedRunIsOfferedItsOwnFile()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("mine.json");
        QVERIFY(QFile::copy(sample("run.json"), file));
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(file));
        shown.goTo(RunWizard::Summary);
        const FileDialogAnswer answer((QString()));
        shown.press(QWizard::FinishButton);
        QCOMPARE(answer.suggestion, file);
    }

    void aDictionaryIsNoRun()
    {
        ShownRunWizard shown;
        QVERIFY(!shown.wizard->openRun(sample("census.json")));
        shown.show();
        QCOMPARE(shown.wizard->problem(),
            QString("%1: is a dictionary, not a run configuration; open it with File, Open.")
                .arg(sample("census.json")));
        QCOMPARE(shown.text("databaseProblem"), shown.wizard->problem());
        QVERIFY(shown.at<QLabel>("databaseProblem").isVisible());
        QCOMPARE(shown.wizard->windowTitle(), QString("New run"));
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        QVERIFY(!shown.at<QLabel>("databaseProblem").isVisible());
        QCOMPARE(shown.at<QLineEdit>("databaseNameLine").text(), QString("ALTAMAR2023"));
        QCOMPARE(shown.at<QLineEdit>("databaseFolderLine").text(), QString("altamar2023"));
        QCOMPARE(shown.at<QLineEdit>("databaseSourceLine").text(), QString("altamar2023.txt"));
    }

    void aBrokenFileIsToldWithItsPlace()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("broken.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\n  \"type\" \"config\"\n}");
        file.close();
        ShownRunWizard shown;
        QVERIFY(!shown.wizard->openRun(file.fileName()));
        QCOMPARE(shown.wizard->problem(),
            QString("%1, line 2, column 10: expected \":\" after a key.").arg(file.fileName()));
    }

    void missingNamesAreListedAndKept()
    {
        const QTemporaryDir folder;
        QByteArray run = contentOf(sample("run.json"));
        run.replace("\"AGE\"", "\"AGE\",\n                \"OLD_AGE\"");
        run.replace("\"REGION\"", "\"OLD_REGION\"");
        run.replace("\"name\": \"ALTAMAR2023\"", "\"name\": \"ALTAMAR2023\", \"filter\": \"X\"");
        QFile file(folder.filePath("old.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(run);
        file.close();
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(file.fileName()));
        shown.show();
        QCOMPARE(shown.lines("missingList"), QStringList({"OLD_REGION", "PERSON/OLD_AGE"}));
        QCOMPARE(shown.text("missingLabel"),
            QString("The run names what the dictionary does not have; it is kept when the run is saved:"));
        QVERIFY(shown.at<QListWidget>("missingList").isVisible());
        QVERIFY(shown.at<QLabel>("missingLabel").isVisible());
        QCOMPARE(shown.lines("lossList").size(), 1);
        QVERIFY2(
            shown.lines("lossList").first().contains("\"X\""), qPrintable(shown.lines("lossList").first()));
        QVERIFY(shown.at<QListWidget>("lossList").isVisible());

        shown.goTo(RunWizard::Variables);
        QCOMPARE(shown.lines("tickedEntities").size(), 6);
        shown.chooseEntity("PERSON");
        shown.space("variableTable", shown.row("variableTable", "HOURS"));
        QVERIFY(shown.chosen("PERSON").contains("AGE OLD_AGE ETHNIC"));
        while (shown.wizard->currentId() != RunWizard::Summary)
            shown.press(QWizard::NextButton);
        QCOMPARE(shown.lines("summaryMissing"), QStringList({"OLD_REGION", "PERSON/OLD_AGE"}));
        QVERIFY(shown.at<QListWidget>("summaryMissing").isVisible());
        QCOMPARE(shown.at<QTableWidget>("summaryTable").item(1, 1)->text(), QString("not in the dictionary"));
        shown.wizard->setSaveFile(file.fileName());
        shown.press(QWizard::FinishButton);
        QVERIFY(contentOf(file.fileName()).contains("\"OLD_AGE\""));
        QVERIFY(contentOf(file.fileName()).contains("\"OLD_REGION\""));
    }

    void aRunThatFitsHasNoNotes()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.show();
        for (const char *name : {"missingLabel", "missingList", "lossLabel", "lossList", "databaseProblem"})
            QVERIFY2(!shown.at<QWidget>(name).isVisible(), name);
    }

    void aRunOpenedLaterBeginsAnew()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Variables);
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        QCOMPARE(shown.wizard->currentId(), int(RunWizard::Database));
        QCOMPARE(shown.at<QLineEdit>("databaseNameLine").text(), QString("ALTAMAR2023"));
        shown.goTo(RunWizard::Entities);
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 1 1 1"));
        shown.press(QWizard::NextButton);
        QCOMPARE(shown.lines("tickedEntities").size(), 7);
    }
};

QTEST_MAIN(tst_RunWizardFiles)
#include "tst_RunWizardFiles.moc"
