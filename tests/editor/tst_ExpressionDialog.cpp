#include "editor/ExpressionDialog.h"

#include "editor/ExpressionEdit.h"
#include "editor/ExpressionText.h"
#include "tests/editor/ShownExpressionDialog.h"
#include "tests/support/LogCatcher.h"

#include <QComboBox>
#include <QDrag>
#include <QMimeData>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QToolButton>

using namespace tessel::editor;
using tessel::test::LogCatcher;
using tessel::test::ShownExpressionDialog;

class tst_ExpressionDialog : public QObject {
    Q_OBJECT

private slots:
    void listsFollowEachOther();
    void emptyListsSayWhatIsMissing();
    void choiceShowsNamesOrLabels();
    void choiceKeepsWhatIsChosen();
    void doubleClickInserts();
    void doubleClickBesideTheRowsInsertsNothing();
    void buttonsInsert();
    void buttonIsOffWithoutTerm();
    void operatorsInsert_data();
    void operatorsInsert();
    void termIsDroppedWhereThePointerIs();
    void mouseDragsTheTermAsACopy();
    void destructionIsNoChoice();
    void nothingIsWrittenToTheLogOrTheDictionary();
};

void tst_ExpressionDialog::listsFollowEachOther()
{
    ShownExpressionDialog shown;
    QCOMPARE(shown.list("entities"), "*HOUSE, PERSON, FARM");
    QCOMPARE(shown.list("variables"), "*ROOMS, ROOF, OWNER");
    QCOMPARE(shown.list("categories"), "(ROOMS has no categories.)");
    shown.click("variables", 1);
    QCOMPARE(shown.list("categories"), "*1-Tiles, 2-Straw, -None");
    shown.click("entities", 1);
    QCOMPARE(shown.list("entities"), "HOUSE, *PERSON, FARM");
    QCOMPARE(shown.list("variables"), "*SEX");
    QCOMPARE(shown.list("categories"), "*1-Male, 2-Female");
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.list("entities"), "HOUSE, PERSON, *FARM");
    QCOMPARE(shown.list("variables"), "(FARM has no variables.)");
    QCOMPARE(shown.list("categories"), "(The categories of a variable are shown here.)");
    QCOMPARE(shown.text(), "");
}

void tst_ExpressionDialog::emptyListsSayWhatIsMissing()
{
    ShownExpressionDialog shown(true);
    QCOMPARE(shown.list("entities"), "(The dictionary has no entities yet.)");
    QCOMPARE(shown.list("variables"), "(The variables of an entity are shown here.)");
    QCOMPARE(shown.list("categories"), "(The categories of a variable are shown here.)");
    QCOMPARE(shown.at("variables").accessibleDescription(), "The variables of an entity are shown here.");
    // The hint is painted: the list does not look like one without a hint.
    PickList &list = shown.at<PickList>("entities");
    const QImage with = list.viewport()->grab().toImage();
    list.showRows(std::make_unique<QStandardItemModel>(), 0, QString());
    QVERIFY(with != list.viewport()->grab().toImage());
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "");
}

void tst_ExpressionDialog::choiceShowsNamesOrLabels()
{
    ShownExpressionDialog shown;
    shown.click("variables", 1);
    QComboBox &choice = shown.at<QComboBox>("show");
    QCOMPARE(choice.currentText(), "Names");
    QTest::keyClick(&choice, Qt::Key_Down);
    QCOMPARE(choice.currentText(), "Labels");
    QCOMPARE(shown.list("entities"), "*Dwelling, Resident, Farm");
    QCOMPARE(shown.list("variables"), "Number of rooms, *Material of the roof, Who owns it");
    QCOMPARE(shown.list("categories"), "*1-Tiles, 2-Straw, -None");
    QTest::keyClick(&choice, Qt::Key_Down);
    QCOMPARE(choice.currentText(), "Names and labels");
    QCOMPARE(shown.list("entities"), "*HOUSE - Dwelling, PERSON - Resident, FARM - Farm");
    QCOMPARE(shown.list("variables"),
        "ROOMS - Number of rooms, *ROOF - Material of the roof, OWNER - Who owns it");
    // Whatever is shown, names are written.
    shown.doubleClick("entities", 1);
    shown.doubleClick("variables", 0);
    QCOMPARE(shown.text(), "PERSON PERSON.SEX");
}

void tst_ExpressionDialog::choiceKeepsWhatIsChosen()
{
    ShownExpressionDialog shown;
    shown.click("variables", 2);
    shown.click("categories", 1);
    for (int step = 0; step < 2; ++step) {
        QTest::keyClick(&shown.at("show"), Qt::Key_Down);
        QCOMPARE(shown.at<PickList>("entities").currentIndex().row(), 0);
        QCOMPARE(shown.at<PickList>("variables").currentIndex().row(), 2);
        QCOMPARE(shown.list("categories"), "O'N-O'Neil, *<b>-Bank");
    }
    shown.click("entities", 1);
    shown.click("categories", 1);
    QTest::keyClick(&shown.at("show"), Qt::Key_Home);
    QCOMPARE(shown.list("entities"), "HOUSE, *PERSON, FARM");
    QCOMPARE(shown.list("categories"), "1-Male, *2-Female");
    shown.click("entities", 2);
    QTest::keyClick(&shown.at("show"), Qt::Key_Down);
    QCOMPARE(shown.list("entities"), "Dwelling, Resident, *Farm");
    QCOMPARE(shown.list("variables"), "(FARM has no variables.)");
}

void tst_ExpressionDialog::doubleClickInserts()
{
    ShownExpressionDialog shown;
    shown.doubleClick("entities", 0);
    QCOMPARE(shown.text(), "HOUSE");
    shown.doubleClick("variables", 1);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF");
    shown.doubleClick("categories", 1);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF 2");
    shown.doubleClick("variables", 2);
    shown.doubleClick("categories", 0);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF 2 HOUSE.OWNER 'O''N'");
    shown.click("variables", 1);
    shown.doubleClick("categories", 2);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF 2 HOUSE.OWNER 'O''N'");
}

void tst_ExpressionDialog::doubleClickBesideTheRowsInsertsNothing()
{
    ShownExpressionDialog shown;
    QWidget *viewport = shown.at<PickList>("entities").viewport();
    const QPoint corner = viewport->rect().bottomRight() - QPoint(3, 3);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, corner);
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, corner);
    QCOMPARE(shown.text(), "");
    QCOMPARE(shown.list("entities"), "*HOUSE, PERSON, FARM");
}

void tst_ExpressionDialog::buttonsInsert()
{
    ShownExpressionDialog shown;
    shown.click("variables", 2);
    shown.press("insert-entities");
    QCOMPARE(shown.text(), "HOUSE");
    shown.press("insert-variables");
    QCOMPARE(shown.text(), "HOUSE HOUSE.OWNER");
    shown.press("insert-categories");
    QCOMPARE(shown.text(), "HOUSE HOUSE.OWNER 'O''N'");
    shown.key(Qt::Key_I, Qt::AltModifier);
    shown.key(Qt::Key_R, Qt::AltModifier);
    shown.key(Qt::Key_G, Qt::AltModifier);
    QTRY_COMPARE(shown.text(), "HOUSE HOUSE.OWNER 'O''N' HOUSE HOUSE.OWNER 'O''N'");
    shown.click("categories", 1);
    QCOMPARE(shown.at("insert-variables").toolTip(), "<p>Inserts HOUSE.OWNER at the cursor.</p>");
    QCOMPARE(shown.at("insert-categories").toolTip(), "<p>Inserts '&lt;b&gt;' at the cursor.</p>");
}

void tst_ExpressionDialog::buttonIsOffWithoutTerm()
{
    ShownExpressionDialog shown;
    QVERIFY(shown.at("insert-entities").isEnabled());
    QVERIFY(shown.at("insert-variables").isEnabled());
    QVERIFY(!shown.at("insert-categories").isEnabled());
    QCOMPARE(shown.at("insert-categories").toolTip(), "");
    shown.click("variables", 1);
    QVERIFY(shown.at("insert-categories").isEnabled());
    // A number without digits.
    shown.click("categories", 2);
    QVERIFY(!shown.at("insert-categories").isEnabled());
    shown.click("entities", 2);
    QVERIFY(!shown.at("insert-variables").isEnabled());
    ShownExpressionDialog empty(true);
    QVERIFY(!empty.at("insert-entities").isEnabled());
}

void tst_ExpressionDialog::operatorsInsert_data()
{
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("meaning");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *term, const char *meaning, const char *result) {
        QTest::newRow(term) << QString(term) << QString(meaning) << QString(result);
    };
    row("=", "Equal to", "A = B");
    row("<>", "Different from", "A <> B");
    row("<", "Less than", "A < B");
    row("<=", "Less than or equal to", "A <= B");
    row(">", "Greater than", "A > B");
    row(">=", "Greater than or equal to", "A >= B");
    row("and", "And: both sides hold", "A and B");
    row("or", "Or: one side holds at least", "A or B");
    row("not", "Not: what follows does not hold", "A not B");
    row("(", "Opening bracket", "A (B");
    row(")", "Closing bracket", "A) B");
}

void tst_ExpressionDialog::operatorsInsert()
{
    QFETCH(QString, term);
    ShownExpressionDialog shown;
    shown.dialog->setText("AB");
    ExpressionEdit &edit = shown.at<ExpressionEdit>("expressionText");
    edit.setFocus();
    edit.moveCursor(QTextCursor::PreviousCharacter);
    const QByteArray name = "operator " + term.toLatin1();
    shown.press(name);
    QTEST(shown.text(), "result");
    // The mouse leaves the focus in the text, so that writing goes on there.
    QCOMPARE(shown.focus(), "expressionText");
    QToolButton &button = shown.at<QToolButton>(name);
    QCOMPARE(button.text().remove('&'), term);
    QTEST(button.accessibleName(), "meaning");
    QTEST(button.toolTip(), "meaning");
    edit.undo();
    QCOMPARE(shown.text(), "AB");
    QTest::keyClick(&button, Qt::Key_Space);
    QTEST(shown.text(), "result");
}

void tst_ExpressionDialog::termIsDroppedWhereThePointerIs()
{
    ShownExpressionDialog shown;
    shown.dialog->setText("A = B");
    shown.click("variables", 2);
    ExpressionEdit &edit = shown.at<ExpressionEdit>("expressionText");
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(3);
    const QPoint place = edit.cursorRect(cursor).center();
    const std::unique_ptr<QMimeData> carried = shown.at<PickList>("categories").dragData();
    QCOMPARE(carried->text(), "'O''N'");
    QCOMPARE(carried->formats(), QStringList({termMimeType(), "text/plain"}));
    QDragEnterEvent enter(place, Qt::CopyAction, carried.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit.viewport(), &enter);
    QDropEvent event(place, Qt::CopyAction, carried.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit.viewport(), &event);
    QVERIFY(event.isAccepted());
    QCOMPARE(shown.text(), "A = 'O''N' B");
    shown.click("entities", 2);
    QCOMPARE(shown.at<PickList>("variables").dragData(), nullptr);
}

void tst_ExpressionDialog::mouseDragsTheTermAsACopy()
{
    ShownExpressionDialog shown;
    const char *const name = "entities";
    QWidget *viewport = shown.at<PickList>(name).viewport();
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, shown.place(name, 1));
    const QDrag *drag = nullptr;
    for (int step = 1; step < 6 && !drag; ++step) {
        QMouseEvent move(QEvent::MouseMove, shown.place(name, 1) + QPoint(0, 10 * step), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        // Without a desktop a drag is over at once, but still there until the next turn of the event loop.
        drag = shown.at(name).findChild<QDrag *>();
    }
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), "PERSON");
    QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::CopyAction));
    QCOMPARE(shown.list(name), "HOUSE, *PERSON, FARM");
}

void tst_ExpressionDialog::destructionIsNoChoice()
{
    ShownExpressionDialog shown;
    QSignalSpy chosen(&shown.at<PickList>("variables"), &PickList::rowChosen);
    shown.click("variables", 1);
    QCOMPARE(chosen.size(), 1);
    shown.click("entities", 1);
    QCOMPARE(chosen.size(), 2);
    shown.dialog.reset();
    QCOMPARE(chosen.size(), 2);
}

void tst_ExpressionDialog::nothingIsWrittenToTheLogOrTheDictionary()
{
    LogCatcher log;
    ShownExpressionDialog shown;
    for (int row = 0; row < 3; ++row)
        shown.doubleClick("entities", row);
    QTest::keyClick(&shown.at("show"), Qt::Key_End);
    shown.dialog.reset();
    QCOMPARE(log.messages().filter(QRegularExpression("^(?!.*propagateSizeHints)")), QStringList());
    QCOMPARE(shown.root.getChildren()->size(), 2);
    QCOMPARE(shown.root.getChildren()->first()->getVariables()->size(), 3);
}

QTEST_MAIN(tst_ExpressionDialog)
#include "tst_ExpressionDialog.moc"
