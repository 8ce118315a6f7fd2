#include "tests/editor/Files.h"
#include "tests/editor/ShownRunWizard.h"
#include "tests/support/MessageBoxRobot.h"

#include <QCheckBox>
#include <QTableWidget>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

/// The variables of a run, and its options.
class tst_RunWizardVariables : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void theTickedEntitiesAreListedWithTheirCounts()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        QCOMPARE(shown.lines("tickedEntities"),
            QStringList({"COUNTRY (all)", "REGION (all)", "PROVINCE (all)", "MUNICIPALITY (all)",
                "DWELLING (15 of 23)", "HOUSEHOLD (all)", "PERSON (26 of 58)"}));
        QCOMPARE(shown.text("shownCount"), QString("1 of 1"));
        shown.chooseEntity("PERSON");
        QCOMPARE(shown.text("shownCount"), QString("58 of 58"));
        QCOMPARE(shown.row("variableTable", "AGE").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(shown.row("variableTable", "HOURS").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        // The order of the record, until a header is clicked.
        QCOMPARE(shown.at<QTableView>("variableTable").model()->index(0, 0).data().toString(),
            QString("RELATION"));
        QCOMPARE(shown.at<QTableView>("variableTable").model()->columnCount(), 5);
        // Back and forth, the entity that was looked at stays.
        shown.press(QWizard::NextButton);
        shown.press(QWizard::BackButton);
        shown.press(QWizard::BackButton);
        shown.press(QWizard::NextButton);
        QCOMPARE(shown.text("shownCount"), QString("58 of 58"));
        QCOMPARE(shown.wizard->runPlan().text(), contentOf(sample("run.json")));
    }

    void variablesAreTickedWithTheMouseAndTheSpaceBar()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("DWELLING");
        shown.click("variableTable", shown.row("variableTable", "BUILT"));
        QCOMPARE(shown.lines("tickedEntities").at(4), QString("DWELLING (16 of 23)"));
        QVERIFY(shown.chosen("DWELLING").contains("FLOORING BUILT ROOMS"));
        // In whatever column the cursor stands.
        shown.space("variableTable", shown.row("variableTable", "DW_M2", 3));
        QVERIFY(shown.chosen("DWELLING").contains("BUILT DW_M2 ROOMS"));
        shown.space("variableTable", shown.row("variableTable", "DW_M2"));
        shown.space("variableTable", shown.row("variableTable", "WALLS", 1));
        QVERIFY(shown.chosen("DWELLING").contains("DW_OCCUP ROOF FLOORING BUILT ROOMS"));
    }

    void theSearchNarrowsTheListAndTellsHowFar_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("count");
        QTest::addColumn<bool>("isBad");
        QTest::newRow("a name") << "dif_see"
                                << "1 of 58" << false;
        QTest::newRow("nothing found") << "xyzzy"
                                       << "0 of 58" << false;
        QTest::newRow("the start of names") << "^DIF_"
                                            << "6 of 58" << false;
        QTest::newRow("a bad pattern") << "AGE("
                                       << "0 of 58, not a valid pattern" << true;
        QTest::newRow("no pattern") << ""
                                    << "58 of 58" << false;
    }
    void theSearchNarrowsTheListAndTellsHowFar()
    {
        QFETCH(QString, typed);
        QFETCH(QString, count);
        QFETCH(bool, isBad);
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("PERSON");
        QLineEdit &search = shown.at<QLineEdit>("variableSearch");
        QTest::keyClicks(&search, typed);
        QCOMPARE(shown.text("shownCount"), count);
        QCOMPARE(search.palette().color(QPalette::Text) == QColor(0xb3, 0, 0), isBad);
        QCOMPARE(search.accessibleDescription().startsWith("This is no pattern: "), isBad);
        // Mended, it is as before.
        search.clear();
        QTest::keyClicks(&search, "AGE");
        QCOMPARE(search.palette().color(QPalette::Text), QPalette().color(QPalette::Text));
        QVERIFY(!search.accessibleDescription().startsWith("This is no pattern"));
    }

    void escapeClearsTheSearchFirst()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Variables);
        QLineEdit &search = shown.at<QLineEdit>("variableSearch");
        QTest::keyClicks(&search, "AGE");
        shown.key("variableSearch", Qt::Key_Escape);
        QCOMPARE(search.text(), QString());
        QVERIFY(shown.wizard->isVisible());
        MessageBoxRobot robot({QMessageBox::No});
        shown.key("variableSearch", Qt::Key_Escape);
        QCOMPARE(robot.unanswered(), 0);
    }

    void theButtonsActOnTheRowsThatAreShown_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QString>("entity");
        // Chosen in the sample: all of DIF_ but none of the others that begin with D, and SPANISH is not.
        QTest::addColumn<QString>("names");
        QTest::newRow("all") << QByteArray("tickAll") << "PERSON (28 of 58)"
                             << "ETHNIC TONGUE SPANISH RELIGION BIRTH";
        QTest::newRow("none") << QByteArray("tickNone") << "PERSON (24 of 58)"
                              << "AGE BIRTH_PLACE";
        QTest::newRow("invert") << QByteArray("tickInvert") << "PERSON (26 of 58)"
                                << "AGE SPANISH RELIGION BIRTH_PLACE";
    }
    void theButtonsActOnTheRowsThatAreShown()
    {
        QFETCH(QByteArray, button);
        QFETCH(QString, entity);
        QFETCH(QString, names);
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("PERSON");
        QTest::keyClicks(&shown.at<QLineEdit>("variableSearch"), "^(ETHNIC|TONGUE|SPANISH|RELIGION)$");
        QCOMPARE(shown.text("shownCount"), QString("4 of 58"));
        shown.press(button.constData());
        QCOMPARE(shown.lines("tickedEntities").last(), entity);
        QVERIFY2(shown.chosen("PERSON").contains(names), qPrintable(shown.chosen("PERSON")));
        QVERIFY(shown.chosen("PERSON").startsWith("RELATION SEX AGE"));
    }

    void theSearchStaysWhenAnotherEntityIsChosen()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        QTest::keyClicks(&shown.at<QLineEdit>("variableSearch"), "WATER");
        shown.chooseEntity("DWELLING");
        QCOMPARE(shown.text("shownCount"), QString("5 of 23"));
    }

    void allVariablesOfAnEntityAreTakenAtOnce()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        QCheckBox &all = shown.at<QCheckBox>("allVariables");
        QVERIFY(all.isChecked());
        shown.chooseEntity("PERSON");
        QVERIFY(!all.isChecked());
        const QString names = shown.chosen("PERSON");
        shown.key("allVariables", Qt::Key_Space);
        QVERIFY(shown.chosen("PERSON").startsWith("all"));
        QCOMPARE(shown.lines("tickedEntities").last(), QString("PERSON (all)"));
        QCOMPARE(shown.row("variableTable", "HOURS").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        shown.key("allVariables", Qt::Key_Space);
        QCOMPARE(shown.chosen("PERSON"), names);
        QCOMPARE(shown.row("variableTable", "HOURS").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));

        // One tick less, and it is no longer all.
        shown.chooseEntity("PROVINCE");
        QVERIFY(all.isChecked());
        shown.space("variableTable", shown.row("variableTable", "PROV_AREA"));
        QVERIFY(!all.isChecked());
        QCOMPARE(shown.chosen("PROVINCE"), QString("PROV_STAT PROV_CAPITAL"));
        QCOMPARE(shown.lines("tickedEntities").at(2), QString("PROVINCE (2 of 3)"));
        // What is ticked one by one is not what the dictionary gets later.
        shown.press("tickAll");
        QVERIFY(!all.isChecked());
        QCOMPARE(shown.chosen("PROVINCE"), QString("PROV_STAT PROV_AREA PROV_CAPITAL"));
    }

    void buttonsThatChangeNothingKeepAllVariables()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Variables);
        shown.press("tickAll");
        QCOMPARE(shown.chosen("COUNTRY"), QString("all"));
        QTest::keyClicks(&shown.at<QLineEdit>("variableSearch"), "xyzzy");
        shown.press("tickNone");
        shown.press("tickInvert");
        QCOMPARE(shown.chosen("COUNTRY"), QString("all"));
    }

    void aClickOnAHeaderSorts()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("DWELLING");
        QTableView &table = shown.at<QTableView>("variableTable");
        table.sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(table.model()->index(0, 0).data().toString(), QString("BUILT"));
        // Ticks find their variables all the same.
        shown.space("variableTable", shown.row("variableTable", "BUILT"));
        QVERIFY(shown.chosen("DWELLING").contains("FLOORING BUILT ROOMS"));
    }

    void optionsAreTakenAtOnce()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Options);
        QVERIFY(shown.at<QCheckBox>("createNotAppMissingInRange").isChecked());
        QVERIFY(!shown.at<QCheckBox>("createNoRanges").isChecked());
        QTableWidget &table = shown.at<QTableWidget>("entityOptions");
        QCOMPARE(table.rowCount(), 7);
        const auto rowText = [&table](int row) {
            QStringList list{table.item(row, 0)->text(), table.item(row, 1)->text()};
            for (int column = 2; column < 5; ++column)
                list.append(table.item(row, column)->checkState() == Qt::Checked ? "1" : "0");
            return list.join(' ');
        };
        QCOMPARE(rowText(4), QString("DWELLING V 1 0 0"));
        QCOMPARE(rowText(6), QString("PERSON P 1 1 1"));
        QCOMPARE(shown.wizard->runPlan().text(), contentOf(sample("run.json")));

        shown.key("createNotAppMissingInRange", Qt::Key_Space);
        shown.key("createNoRanges", Qt::Key_Space);
        shown.click("entityOptions", table.model()->index(4, 2));
        shown.space("entityOptions", table.model()->index(6, 2));
        shown.space("entityOptions", table.model()->index(5, 3));
        shown.space("entityOptions", table.model()->index(6, 4));
        const RunPlan &plan = shown.wizard->runPlan();
        QCOMPARE(plan.options().getCreateNotAppMissingInRange(), false);
        QCOMPARE(plan.options().getCreateNoRanges(), true);
        const std::unique_ptr<Config> config = plan.config();
        QCOMPARE(config->getEntities()->at(4)->getCreateCompound(), false);
        QCOMPARE(config->getEntities()->at(4)->getCheckSequence(), false);
        QCOMPARE(config->getEntities()->at(5)->getCreateSDC(), true);
        QCOMPARE(config->getEntities()->at(5)->getCreateCompound(), true);
        QCOMPARE(config->getEntities()->at(5)->getCheckSequence(), true);
        QCOMPARE(config->getEntities()->at(6)->getCreateCompound(), false);
        QCOMPARE(config->getEntities()->at(6)->getCheckSequence(), false);
        QCOMPARE(config->getEntities()->at(6)->getCreateSDC(), true);
    }

    void theRecordTypeIsTyped()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Options);
        QTableWidget &table = shown.at<QTableWidget>("entityOptions");
        table.setCurrentCell(1, 1);
        // Enter opens the cell and does not go on to the next page.
        shown.key("entityOptions", Qt::Key_Return);
        auto *editor = table.findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, " R ");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(shown.wizard->runPlan().config()->getEntities()->at(1)->getRecType(), QString("R"));
        QCOMPARE(shown.wizard->currentId(), int(RunWizard::Options));
        QVERIFY(!(table.item(1, 0)->flags() & Qt::ItemIsEditable));
    }
};

QTEST_MAIN(tst_RunWizardVariables)
#include "tst_RunWizardVariables.moc"
