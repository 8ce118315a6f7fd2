#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/DropTable.h"
#include "tests/support/MessageBoxRobot.h"

#include <QtTest>

using namespace tessel::test;

namespace {

/// Notes what a table shows while a message box is open.
class ShownBehindBoxes : public QObject {
public:
    explicit ShownBehindBoxes(const DropTable &observed)
        : table(observed)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(watched))
            notes += table.shown() + " of " + table.names();
        return QObject::eventFilter(watched, event);
    }

    QStringList notes;

private:
    const DropTable &table;
};

} // namespace

class tst_VariableDropBoxes : public QObject {
    Q_OBJECT

private slots:
    void aRefusedLookupIsToldAndTheOtherFieldsAreStillImported()
    {
        DropTable table({"AGE"});
        const Announcements announced(*table.model);
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok});
        QVERIFY(table.dropAndLeave({field("ONE"), lookup("AREA"), field("TWO"), lookup("ID_PLACE"),
            lookup("AREA"), field("THREE")}));
        QCOMPARE(table.names(), QString("AGE ONE TWO THREE"));
        QCOMPARE(table.shown(), table.names());
        QCOMPARE(announced.text(), QString("reset 1 modified 3"));
        // Once for each refused field, by the variable's name.
        QCOMPARE(robot.texts(),
            QStringList({"Error creating AREA. Must be selectable entity.",
                "Error creating ID. Must be selectable entity."}));
        for (const MessageBoxRobot::Box &box : robot.boxes()) {
            QCOMPARE(box.title, QString());
            QCOMPARE(box.icon, QMessageBox::NoIcon);
            QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(box.textFormat, Qt::PlainText);
            QVERIFY(box.isModal);
            QVERIFY(!box.parent);
        }
        QCOMPARE(robot.unplanned(), 0);
    }

    void aRefusalMayBeDismissedInAnyWay_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("Ok") << int(QMessageBox::Ok);
        QTest::newRow("Escape") << int(MessageBoxRobot::PressEscape);
        QTest::newRow("Return") << int(MessageBoxRobot::PressReturn);
        QTest::newRow("closed") << int(MessageBoxRobot::CloseWindow);
    }
    void aRefusalMayBeDismissedInAnyWay()
    {
        QFETCH(int, answer);
        DropTable table;
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        QVERIFY(table.dropAndLeave({lookup("<b>A&B</b>"), field("AGE")}));
        QCOMPARE(robot.texts(), QStringList("Error creating <b>A&B</b>. Must be selectable entity."));
        QCOMPARE(robot.unplanned(), 0);
        QCOMPARE(table.names(), QString("AGE"));
    }

    void aDropOfRefusedLookupsAloneStillResetsTheTable()
    {
        DropTable table;
        table.add("LATER");
        const Announcements announced(*table.model);
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(table.dropAndLeave({lookup("AREA")}));
        QCOMPARE(table.shown(), QString("LATER"));
        QCOMPARE(announced.text(), QString("reset 1"));
    }

    void aRefusalIsTranslatedInTwoParts()
    {
        const ContextTranslator translator;
        DropTable table;
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(table.dropAndLeave({lookup("AREA")}));
        QCOMPARE(robot.texts(),
            QStringList("VariableDiccionaryModel: Error creating AREA. VariableDiccionaryModel: Must be"
                        " selectable entity."));
    }

    void aSelectableEntityTakesLookups()
    {
        DropTable table;
        table.entity.setSelectable(true);
        const Announcements announced(*table.model);
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(table.drop({field("AGE"), lookup("AREA"), lookup("PLACE")}));
        QVERIFY(robot.boxes().isEmpty());
        QCOMPARE(table.shown(), QString("AGE AREA PLACE"));
        QCOMPARE(announced.text(), QString("reset 1 modified 3"));
        QCOMPARE(textOf(*table.variable(1)),
            QString("name='AREA' field='AREA' type='STRING' lookup=1 position=1 fieldSize=64 size=64"));
        // Judged at each drop.
        table.entity.setSelectable(false);
        QVERIFY(table.dropAndLeave({lookup("LATER")}));
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(table.shown(), QString("AGE AREA PLACE"));
    }

    void theEntityIsJudgedNotTheRoot()
    {
        TDmEntity root;
        TDmEntity entity;
        root.setSelectable(true);
        VariableDiccionaryModel model(nullptr, &entity, &root);
        MessageBoxRobot robot({QMessageBox::Ok});
        const std::unique_ptr<QMimeData> data = dataOf(payloadOf({lookup("AREA"), field("AGE")}));
        {
            const LeftToNobody allowance;
            QVERIFY(model.dropMimeData(data.get(), Qt::CopyAction, -1, -1, QModelIndex()));
        }
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(namesOf(*entity.getVariables()), QString("AGE"));
        QVERIFY(root.getVariables()->isEmpty());
    }

    void anEqualVariableIsReplacedAtTheEndWhenTheAnswerIsYes()
    {
        DropTable table({"AGE", "SEX"});
        const std::unique_ptr<TDmVariable> replaced(table.variable(0));
        const Announcements announced(*table.model);
        MessageBoxRobot robot({QMessageBox::Yes});
        QVERIFY(table.drop({field("ONE"), field("AGE", ", 'tag': 7"), field("TWO")}));
        QCOMPARE(robot.texts(), QStringList("AGE already exists.Overwrite?"));
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.title, QString("Overwrite variable"));
        QCOMPARE(box.icon, QMessageBox::Question);
        QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.textFormat, Qt::PlainText);
        QVERIFY(box.isModal);
        QVERIFY(!box.parent);
        QCOMPARE(table.names(), QString("SEX ONE AGE TWO"));
        QCOMPARE(table.shown(), table.names());
        QCOMPARE(table.variable(2)->getTag(), 7);
        QCOMPARE(announced.text(), QString("reset 1 modified 3"));
        // Unlinked, not deleted.
        QCOMPARE(textOf(*replaced), QString("name='AGE'"));
    }

    void anEqualVariableStaysWhenTheAnswerIsNot_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("No") << int(QMessageBox::No);
        QTest::newRow("Escape") << int(MessageBoxRobot::PressEscape);
        QTest::newRow("closed") << int(MessageBoxRobot::CloseWindow);
    }
    void anEqualVariableStaysWhenTheAnswerIsNot()
    {
        QFETCH(int, answer);
        DropTable table({"AGE", "SEX"});
        TDmVariable *age = table.variable(0);
        table.add("LATER");
        const Announcements announced(*table.model);
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        QVERIFY(table.dropAndLeave({field("AGE", ", 'tag': 7")}));
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(table.names(), QString("AGE SEX LATER"));
        QCOMPARE(table.variable(0), age);
        // The rows are taken anew although nothing was added.
        QCOMPARE(table.shown(), table.names());
        QCOMPARE(announced.text(), QString("reset 1"));
    }

    void equalIsNameAliasLabelAndGroup_data()
    {
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QStringList>("boxes");
        const auto text = [](const char *name, const char *label) {
            return field(name, QByteArray(", 'label': '").append(label).append('\''));
        };
        const QStringList none;
        const QStringList question{"P1 already exists.Overwrite?"};
        const auto warning = [](const char *alias) {
            return QStringList(
                "Duplicated names:\nName: P1 - Alias: AGE\nName: P1 - Alias: " + QString(alias) + "\n");
        };
        QTest::newRow("the same") << text("P1_AGE", "Age") << question;
        QTest::newRow("another name") << text("P2_AGE", "Age") << none;
        QTest::newRow("another alias") << text("P1_AGES", "Age") << warning("AGES");
        QTest::newRow("another label") << text("P1_AGE", "Ages") << warning("AGE");
        QTest::newRow("letter case of the name") << text("p1_AGE", "Age") << none;
        QTest::newRow("letter case of the alias") << text("P1_Age", "Age") << warning("Age");
        QTest::newRow("letter case of the label") << text("P1_AGE", "age") << warning("AGE");
        QTest::newRow("a blank behind the label") << text("P1_AGE", "Age ") << warning("AGE");
        QTest::newRow("another type and size")
            << QString("{\"name\": \"P1_AGE\", \"label\": \"Age\", \"fieldSize\": 9}") << question;
    }
    void equalIsNameAliasLabelAndGroup()
    {
        QFETCH(QString, sent);
        QFETCH(QStringList, boxes);
        DropTable table;
        QVERIFY(table.drop({field("P1_AGE", ", 'label': 'Age'")}));
        TDmVariable *first = table.variable(0);
        MessageBoxRobot robot({boxes.value(0).contains('?') ? QMessageBox::Yes : QMessageBox::Ok});
        // The same text again is no repeat: that was another drop.
        QVERIFY(table.drop({sent, field("LAST")}));
        QCOMPARE(robot.texts(), boxes);
        if (!table.entity.getVariables()->contains(first))
            delete first;
    }

    void aGroupMakesAVariableAnotherOne()
    {
        DropTable table({"AGE"});
        table.variable(0)->setGroup("PERSON");
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(table.drop({field("AGE")}));
        QCOMPARE(robot.texts(), QStringList("Duplicated names:\nName: AGE - Alias: \nName: AGE - Alias: \n"));
        QCOMPARE(table.names(), QString("AGE AGE"));
    }

    void fieldsOfOneDropMayReplaceEachOther()
    {
        DropTable table;
        QList<TDmVariable *> added;
        connect(table.model.get(), &VariableDiccionaryModel::signalVariablesModified, this,
            [&] { added += table.entity.getVariables()->last(); });
        const QString question = QStringLiteral("AGE already exists.Overwrite?");
        MessageBoxRobot robot({QMessageBox::Yes, QMessageBox::No, QMessageBox::Yes});
        QVERIFY(table.dropAndLeave({field("AGE", ", 'tag': 1"), field("SEX"), field("AGE", ", 'tag': 2"),
            field("AGE", ", 'tag': 3"), field("AGE", ", 'tag': 4")}));
        QCOMPARE(robot.texts(), QStringList({question, question, question}));
        QCOMPARE(table.names(), QString("SEX AGE"));
        QCOMPARE(table.variable(1)->getTag(), 4);
        QCOMPARE(namesOf(added), QString("AGE SEX AGE AGE"));
        delete added.at(0);
        delete added.at(2);
    }

    void repeatedNamesAreListedOnceAfterTheWholeDrop()
    {
        DropTable table({"AGE", "SEX"});
        table.variable(0)->setAlias("YEARS");
        const Announcements announced(*table.model);
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(table.drop({field("AGE"), field("ONE"), field("ID_PERSON"), field("ID_HOUSE")}));
        QCOMPARE(robot.texts(),
            QStringList("Duplicated names:\nName: AGE - Alias: YEARS\nName: AGE - Alias: \n"
                        "Name: ID - Alias: PERSON\nName: ID - Alias: HOUSE\n"));
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.title, QString("Warning: Duplicated names"));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.textFormat, Qt::PlainText);
        QCOMPARE(table.shown(), QString("AGE SEX AGE ONE ID ID"));
        QCOMPARE(announced.text(), QString("reset 1 modified 4"));
    }

    void aDropOfNothingWarnsOfTheNamesThatWereThere()
    {
        DropTable table({"AGE", "AGE"});
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(table.drop(QByteArray()));
        QCOMPARE(robot.texts(), QStringList("Duplicated names:\nName: AGE - Alias: \nName: AGE - Alias: \n"));
        QCOMPARE(robot.unplanned(), 0);
    }

    void refusalsComeBeforeQuestionsAndQuestionsBeforeTheWarning()
    {
        DropTable table({"AGE", "SEX", "SEX"});
        const std::unique_ptr<TDmVariable> replaced(table.variable(0));
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Yes, QMessageBox::Ok});
        QVERIFY(table.dropAndLeave({field("AGE"), lookup("AREA")}));
        QCOMPARE(robot.texts(),
            QStringList({"Error creating AREA. Must be selectable entity.", "AGE already exists.Overwrite?",
                "Duplicated names:\nName: SEX - Alias: \nName: SEX - Alias: \n"}));
        QCOMPARE(table.names(), QString("SEX SEX AGE"));
    }

    void aSelectableEntityAsksBeforeALookupReplacesAVariable()
    {
        DropTable table({"AREA"});
        table.entity.setSelectable(true);
        const std::unique_ptr<TDmVariable> replaced(table.variable(0));
        MessageBoxRobot robot({QMessageBox::Yes});
        QVERIFY(table.drop({lookup("AREA")}));
        QCOMPARE(robot.texts(), QStringList("AREA already exists.Overwrite?"));
        QVERIFY(table.variable(0)->getMetadataVariables()->getLookup());
    }

    void questionsAndWarningsAreTranslated()
    {
        const ContextTranslator translator;
        DropTable table({"AGE", "AGE"});
        MessageBoxRobot robot({QMessageBox::No, QMessageBox::Ok});
        QVERIFY(table.dropAndLeave({field("AGE")}));
        QCOMPARE(robot.texts(),
            QStringList({"AGE VariableDiccionaryModel: already exists.VariableDiccionaryModel: Overwrite?",
                "Duplicated names:\nVariableDiccionaryModel: Name: AGE - Alias: \n"
                "VariableDiccionaryModel: Name: AGE - Alias: \n"}));
        QCOMPARE(robot.boxes().at(0).title, QString("VariableDiccionaryModel: Overwrite variable"));
        QCOMPARE(robot.boxes().at(1).title,
            QString("VariableDiccionaryModel: Warning: VariableDiccionaryModel: Duplicated names"));
    }

    void theTableBehindABoxIsTheOldOne()
    {
        DropTable table({"AGE", "AGE"});
        const ShownBehindBoxes behind(table);
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok});
        QVERIFY(table.dropAndLeave({field("SEX"), lookup("AREA")}));
        // A lookup is refused before anything is added; names are judged when all is added.
        QCOMPARE(behind.notes, QStringList({"AGE AGE of AGE AGE", "AGE AGE of AGE AGE SEX"}));
        QCOMPARE(table.shown(), QString("AGE AGE SEX"));
    }
};

QTEST_MAIN(tst_VariableDropBoxes)
#include "tst_VariableDropBoxes.moc"
