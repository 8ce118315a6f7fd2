#include "tests/editor/Files.h"
#include "tests/editor/ShownRunWizard.h"
#include "tests/support/MessageBoxRobot.h"

#include <QTemporaryDir>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

/// The entities of a run, and what is selected of them.
class tst_RunWizardEntities : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void entitiesAreTickedWithTheMouseAndTheSpaceBar()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Entities);
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 0 0"));
        QCOMPARE(shown.text("entityCount"), QString("4 of 7 ticked."));
        shown.click("entityTree", shown.row("entityTree", "PERSON"));
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 0 1"));
        QCOMPARE(shown.text("entityCount"), QString("5 of 7 ticked."));
        QCOMPARE(shown.chosen("PERSON"), QString("all"));
        shown.space("entityTree", shown.row("entityTree", "HOUSEHOLD"));
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 1 1"));
        // Without children no question comes.
        shown.click("entityTree", shown.row("entityTree", "PERSON"));
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 1 0"));
        QCOMPARE(shown.chosen("PERSON"), QString("not chosen"));
    }

    void anEntityIsNotRenamedInTheTree()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Entities);
        const QModelIndex person = shown.row("entityTree", "PERSON");
        QAbstractItemModel *model = shown.at<QTreeView>("entityTree").model();
        QVERIFY(!model->setData(person, "OTHER"));
        QVERIFY(!model->setData(person, Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(person.data().toString(), QString("PERSON"));
        QVERIFY(!(person.flags() & Qt::ItemIsEditable));
    }

    void tickedChildrenAreAskedAbout_data()
    {
        QTest::addColumn<bool>("isYes");
        QTest::addColumn<QString>("ticks");
        QTest::newRow("yes") << true << "1 0 0 0 0 0 0";
        QTest::newRow("no") << false << "1 1 1 1 0 0 1";
    }
    void tickedChildrenAreAskedAbout()
    {
        QFETCH(bool, isYes);
        QFETCH(QString, ticks);
        ShownRunWizard shown;
        shown.goTo(RunWizard::Entities);
        shown.space("entityTree", shown.row("entityTree", "PERSON"));
        QAbstractItemModel *model = shown.at<QTreeView>("entityTree").model();
        QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
        MessageBoxRobot robot({isYes ? QMessageBox::Yes : QMessageBox::No});
        shown.click("entityTree", shown.row("entityTree", "REGION"));
        QCOMPARE(robot.texts(),
            QStringList("You have child entities that are selectable, and they are as follows:\n"
                        "PROVINCE\nMUNICIPALITY\nPERSON\n\n"
                        "Are you sure you want to deselect this entity and its child entities?.\n"));
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(shown.entityTicks(), ticks);
        QCOMPARE(shown.chosen("PROVINCE"), QString(isYes ? "not chosen" : "all"));
        QStringList announced;
        for (const QList<QVariant> &arguments : changed)
            announced.append(arguments.at(0).toModelIndex().data().toString());
        QCOMPARE(
            announced, isYes ? QStringList({"PROVINCE", "MUNICIPALITY", "PERSON", "REGION"}) : QStringList());
    }

    void aRunNeedsAnEntity()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Entities);
        MessageBoxRobot robot({QMessageBox::Yes});
        shown.space("entityTree", shown.row("entityTree", "COUNTRY"));
        QCOMPARE(shown.entityTicks(), QString("0 0 0 0 0 0 0"));
        QCOMPARE(shown.text("entityCount"), QString("0 of 7 ticked. Tick at least one entity to go on."));
        QVERIFY(!shown.wizard->button(QWizard::NextButton)->isEnabled());
        shown.space("entityTree", shown.row("entityTree", "DWELLING"));
        QCOMPARE(shown.text("entityCount"), QString("1 of 7 ticked."));
        QVERIFY(shown.wizard->button(QWizard::NextButton)->isEnabled());
    }

    void theLeftKeyGoesToTheParent()
    {
        ShownRunWizard shown;
        shown.goTo(RunWizard::Entities);
        QTreeView &tree = shown.at<QTreeView>("entityTree");
        tree.setCurrentIndex(shown.row("entityTree", "PROVINCE"));
        shown.key("entityTree", Qt::Key_Left);
        shown.key("entityTree", Qt::Key_Left);
        QCOMPARE(tree.currentIndex().data().toString(), QString("REGION"));
        shown.key("entityTree", Qt::Key_Home);
        QCOMPARE(tree.currentIndex().data().toString(), QString("COUNTRY"));
    }

    void anEmptyDictionaryIsToldOf()
    {
        DictionaryDocument document;
        RunWizard wizard(document);
        wizard.show();
        QTest::keyClicks(wizard.findChild<QLineEdit *>("databaseNameLine"), "A");
        QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
        QCOMPARE(wizard.findChild<QLabel *>("entityCount")->text(),
            QString("The dictionary has no entities yet; add some before you plan a run."));
        QVERIFY(!wizard.button(QWizard::NextButton)->isEnabled());
    }

    void anEditedDictionaryIsToldOf_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::newRow("an edit") << false;
        QTest::newRow("another dictionary") << true;
    }
    void anEditedDictionaryIsToldOf()
    {
        QFETCH(bool, isReset);
        ShownRunWizard shown;
        shown.goTo(RunWizard::Summary);
        QVERIFY(!shown.at<QLabel>("summaryOutdated").isVisible());
        if (isReset)
            shown.document.clear();
        else
            Structure(shown.document).addEntity(shown.document.root());
        QVERIFY(shown.at<QLabel>("summaryOutdated").isVisible());
        QCOMPARE(shown.text("summaryOutdated"),
            QString(
                "The dictionary has been edited since this window was opened; the run is planned on what it "
                "held then."));
        // The copy that the pages show is still there.
        shown.press(QWizard::BackButton);
        shown.press(QWizard::BackButton);
        QCOMPARE(
            shown.row("selectionTree", "COUNTRY Country").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    }

    void theSelectionIsShownAndCannotBeChanged()
    {
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("REGION");
        shown.press("tickNone");
        shown.press(QWizard::NextButton);
        QStringList states;
        for (const char *text : {"ALTAMAR2023 Población y Vivienda 2023, República de Altamar",
                 "COUNTRY Country", "REGION Region", "DWELLING Dwelling", "PERSON Person"})
            states.append(QString::number(
                shown.row("selectionTree", QString::fromUtf8(text)).data(Qt::CheckStateRole).toInt()));
        QCOMPARE(states.join(' '), QString("1 2 0 1 1"));
        QCOMPARE(shown.text("selectionVariablesLabel"), QString("Go to an entity to see its variables."));

        const QModelIndex dwelling = shown.row("selectionTree", "DWELLING Dwelling");
        shown.click("selectionTree", dwelling);
        shown.space("selectionTree", dwelling);
        QCOMPARE(dwelling.data(Qt::CheckStateRole).toInt(), int(Qt::PartiallyChecked));
        QVERIFY(!(dwelling.flags() & Qt::ItemIsUserCheckable));
        QCOMPARE(shown.text("selectionVariablesLabel"), QString("DWELLING: 15 of 23"));
        QCOMPARE(shown.lines("selectionVariables").size(), 15);
        QCOMPARE(shown.lines("selectionVariables").first(), QString("DW_AREA Area of residence"));
        shown.at<QTreeView>("selectionTree").setCurrentIndex(shown.row("selectionTree", "COUNTRY Country"));
        QCOMPARE(shown.text("selectionVariablesLabel"), QString("COUNTRY: 1 of 1"));
        // Closed, and then on to the parent.
        shown.at<QTreeView>("selectionTree").setCurrentIndex(dwelling);
        shown.key("selectionTree", Qt::Key_Left);
        shown.key("selectionTree", Qt::Key_Left);
        QCOMPARE(shown.at<QTreeView>("selectionTree").currentIndex().data().toString(),
            QString("MUNICIPALITY Municipality"));
    }
};

QTEST_MAIN(tst_RunWizardEntities)
#include "tst_RunWizardEntities.moc"
