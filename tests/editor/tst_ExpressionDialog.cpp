#include "editor/ExpressionDialog.h"

#include "editor/ExpressionEdit.h"
#include "editor/ExpressionText.h"
#include "editor/PickList.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/support/LogCatcher.h"

#include <QClipboard>
#include <QComboBox>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

using namespace tessel::editor;
using tessel::test::LogCatcher;

namespace {

TDmEntity *addEntity(TDmEntity &parent, const char *name, const char *label)
{
    auto *entity = new TDmEntity;
    entity->setName(name);
    entity->setLabel(label);
    parent.getChildren()->append(entity);
    return entity;
}

/// \a categories are "code=label".
void addVariable(TDmEntity &entity, const char *name, const char *label, const char *type,
    const QStringList &categories = {})
{
    auto *variable = new TDmVariable;
    variable->setName(name);
    variable->setLabel(label);
    variable->setVarType(type);
    for (const QString &text : categories) {
        auto *category = new ValueLabelElement;
        category->setValue(text.section('=', 0, 0));
        category->setLabel(text.section('=', 1));
        variable->addValueLabelElement(category);
    }
    entity.addVariables(variable);
}

/// HOUSE with ROOMS, ROOF and OWNER; PERSON below it with SEX; FARM without variables.
void fill(TDmEntity &root)
{
    root.setName("ROOT");
    TDmEntity *house = addEntity(root, "HOUSE", "Dwelling");
    addVariable(*house, "ROOMS", "Number of rooms", "integer");
    addVariable(*house, "ROOF", "Material of the roof", "integer", {"1=Tiles", "2=Straw", "=None"});
    addVariable(*house, "OWNER", "Who owns it", "string", {"O'N=O'Neil", "<b>=Bank"});
    addVariable(*addEntity(*house, "PERSON", "Resident"), "SEX", "Sex", "integer", {"1=Male", "2=Female"});
    addEntity(root, "FARM", "Farm");
}

/// The dialog over a small dictionary, or an empty one, and what a person does to it.
class Shown {
public:
    explicit Shown(bool isEmpty = false)
    {
        if (!isEmpty)
            fill(root);
        QGuiApplication::clipboard()->setText("before");
        dialog = std::make_unique<ExpressionDialog>(root);
        dialog->show();
        dialog->activateWindow();
        if (!QTest::qWaitForWindowActive(dialog.get()))
            qFatal("the dialog is not active");
    }

    template<typename Widget = QWidget>
    Widget &at(const char *name) const
    {
        auto *widget = dialog->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no widget \"%s\"", name);
        return *widget;
    }

    /// What a list shows, "*" before the current row; its hint in brackets if it is empty.
    QString list(const char *name) const
    {
        const PickList &view = at<PickList>(name);
        QStringList rows;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            const QModelIndex index = view.model()->index(row, 0);
            rows.append((index == view.currentIndex() ? "*" : "") + index.data().toString());
        }
        return rows.isEmpty() ? "(" + view.hint() + ")" : rows.join(", ");
    }

    QPoint place(const char *name, int row) const
    {
        const PickList &view = at<PickList>(name);
        return view.visualRect(view.model()->index(row, 0)).center();
    }

    void click(const char *name, int row)
    {
        QTest::mouseClick(at<PickList>(name).viewport(), Qt::LeftButton, Qt::NoModifier, place(name, row));
    }

    void doubleClick(const char *name, int row)
    {
        click(name, row);
        QTest::mouseDClick(at<PickList>(name).viewport(), Qt::LeftButton, Qt::NoModifier, place(name, row));
        // Two of these are no triple click.
        QTest::mouseRelease(at<PickList>(name).viewport(), Qt::LeftButton, Qt::NoModifier, place(name, row));
    }

    void press(const char *button) { QTest::mouseClick(&at(button), Qt::LeftButton); }

    /// A key that goes to whatever has the focus.
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(dialog->focusWidget(), which, modifiers);
    }

    QString focus() const { return dialog->focusWidget()->objectName(); }
    QString text() const { return dialog->text(); }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    TDmEntity root;
    std::unique_ptr<ExpressionDialog> dialog;

private:
    Q_DISABLE_COPY_MOVE(Shown)
};

} // namespace

class tst_ExpressionDialog : public QObject {
    Q_OBJECT

private slots:
    void listsFollowEachOther();
    void emptyListsSayWhatIsMissing();
    void choiceShowsNamesOrLabels();
    void choiceKeepsWhatIsChosen();
    void doubleClickInserts();
    void doubleClickBesideTheRowsInsertsNothing();
    void returnInserts();
    void buttonsInsert();
    void buttonIsOffWithoutTerm();
    void operatorsInsert_data();
    void operatorsInsert();
    void insertionIsUndoneFromTheList();
    void termIsDroppedWhereThePointerIs();
    void mouseDragsTheTermAsACopy();
    void textIsCopied_data();
    void textIsCopied();
    void emptyTextIsNotCopied();
    void textCanBeGoneOnWith();
    void closing_data();
    void closing();
    void everythingIsReachedByTab();
    void everyWidgetHasNames();
    void mnemonicsAreUnique();
    void nothingIsWrittenToTheLogOrTheDictionary();
};

void tst_ExpressionDialog::listsFollowEachOther()
{
    Shown shown;
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
    Shown shown(true);
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
    Shown shown;
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
    Shown shown;
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
    Shown shown;
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
    Shown shown;
    QWidget *viewport = shown.at<PickList>("entities").viewport();
    const QPoint corner = viewport->rect().bottomRight() - QPoint(3, 3);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, corner);
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, corner);
    QCOMPARE(shown.text(), "");
    QCOMPARE(shown.list("entities"), "*HOUSE, PERSON, FARM");
}

void tst_ExpressionDialog::returnInserts()
{
    Shown shown;
    QCOMPARE(shown.focus(), "entities");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "HOUSE");
    shown.key(Qt::Key_V, Qt::AltModifier);
    QCOMPARE(shown.focus(), "variables");
    shown.key(Qt::Key_Down);
    shown.key(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF");
    shown.key(Qt::Key_T, Qt::AltModifier);
    QCOMPARE(shown.focus(), "categories");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF 1");
    QVERIFY(shown.dialog->isVisible());
    shown.key(Qt::Key_X, Qt::AltModifier);
    QCOMPARE(shown.focus(), "expressionText");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF 1\n");
    shown.key(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(shown.focus(), "entities");
    // Elsewhere Return presses nothing.
    shown.key(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(shown.focus(), "show");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "HOUSE HOUSE.ROOF 1\n");
    QCOMPARE(shown.clipboard(), "before");
    QVERIFY(shown.dialog->isVisible());
}

void tst_ExpressionDialog::buttonsInsert()
{
    Shown shown;
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
    Shown shown;
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
    Shown empty(true);
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
    Shown shown;
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

void tst_ExpressionDialog::insertionIsUndoneFromTheList()
{
    Shown shown;
    shown.key(Qt::Key_Return);
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "HOUSE HOUSE");
    QCOMPARE(shown.focus(), "entities");
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown.text(), "HOUSE");
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown.text(), "");
    shown.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(shown.text(), "HOUSE");
    shown.at("expressionText").setFocus();
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown.text(), "");
}

void tst_ExpressionDialog::termIsDroppedWhereThePointerIs()
{
    Shown shown;
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
    Shown shown;
    const char *const name = "entities";
    QWidget *viewport = shown.at<PickList>(name).viewport();
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, shown.place(name, 1));
    // Once the drag is under way, further moves would be a selection with the mouse.
    for (int step = 1; step < 4 && !shown.at(name).findChild<QDrag *>(); ++step) {
        QMouseEvent move(QEvent::MouseMove, shown.place(name, 1) + QPoint(0, 10 * step), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    // The drag is over at once here, but still there until the next turn of the event loop.
    const auto *drag = shown.at(name).findChild<QDrag *>();
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), "PERSON");
    QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::CopyAction));
    QCOMPARE(shown.list(name), "HOUSE, *PERSON, FARM");
}

void tst_ExpressionDialog::textIsCopied_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::newRow("button") << "" << 0;
    QTest::newRow("key in the text") << "expressionText" << int(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    QTest::newRow("key in a list") << "entities" << int(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    QTest::newRow("mnemonic") << "categories" << int(Qt::ALT | Qt::Key_C);
}

void tst_ExpressionDialog::textIsCopied()
{
    QFETCH(QString, focus);
    QFETCH(int, key);
    Shown shown;
    shown.dialog->setText("A =\n1");
    shown.at<ExpressionEdit>("expressionText").selectAll();
    QCOMPARE(shown.at<QLabel>("status").text(), "");
    if (key == 0) {
        shown.press("copy");
    } else {
        shown.at(focus.toLatin1()).setFocus();
        shown.key(Qt::Key(key & ~int(Qt::KeyboardModifierMask)),
            Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
    }
    QTRY_COMPARE(shown.clipboard(), "A =\n1");
    QCOMPARE(shown.at<QLabel>("status").text(), "The expression is on the clipboard.");
    // No longer so once the text is another one.
    shown.press("operator =");
    QCOMPARE(shown.at<QLabel>("status").text(), "");
}

void tst_ExpressionDialog::emptyTextIsNotCopied()
{
    Shown shown;
    QVERIFY(!shown.at("copy").isEnabled());
    shown.key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(shown.clipboard(), "before");
    QCOMPARE(shown.at<QLabel>("status").text(), "");
    shown.key(Qt::Key_Return);
    QVERIFY(shown.at("copy").isEnabled());
    QCOMPARE(shown.at("copy").toolTip(), "Copies the whole expression (Ctrl+Shift+C).");
}

void tst_ExpressionDialog::textCanBeGoneOnWith()
{
    Shown shown;
    shown.dialog->setText("not");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.dialog->text(), "not HOUSE");
}

void tst_ExpressionDialog::closing_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("mnemonic") << int(Qt::Key_L);
    QTest::newRow("escape") << int(Qt::Key_Escape);
}

void tst_ExpressionDialog::closing()
{
    QFETCH(int, way);
    Shown shown;
    shown.key(Qt::Key_Return);
    if (way == 0)
        shown.press("close");
    else
        shown.key(Qt::Key(way), way == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
    QTRY_VERIFY(!shown.dialog->isVisible());
    QCOMPARE(shown.text(), "HOUSE");
    QCOMPARE(shown.clipboard(), "before");
}

void tst_ExpressionDialog::everythingIsReachedByTab()
{
    Shown shown;
    shown.click("variables", 1);
    shown.dialog->setText("A");
    shown.at("show").setFocus();
    QStringList order;
    do {
        order.append(shown.focus());
        shown.key(Qt::Key_Tab);
    } while (order.size() < 40 && shown.focus() != "show");
    QCOMPARE(order.join(", "),
        "show, entities, insert-entities, variables, insert-variables, categories, insert-categories, "
        "operator =, operator <>, operator <, operator <=, operator >, operator >=, operator and, operator "
        "or, "
        "operator not, operator (, operator ), expressionText, copy, close");
    QCOMPARE(shown.text(), "A");
}

void tst_ExpressionDialog::everyWidgetHasNames()
{
    Shown shown;
    int count = 0;
    QSet<QString> names;
    for (const QWidget *widget : shown.dialog->findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")
            || !widget->isVisible())
            continue;
        ++count;
        QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY2(!widget->accessibleName().contains('&'), qPrintable(widget->accessibleName()));
        names.insert(widget->accessibleName());
    }
    QCOMPARE(count, 21);
    QCOMPARE(names.size(), 21);
}

void tst_ExpressionDialog::mnemonicsAreUnique()
{
    Shown shown;
    QStringList letters;
    for (const QLabel *label : shown.dialog->findChildren<QLabel *>())
        letters.append(QKeySequence::mnemonic(label->text()).toString());
    for (const QAbstractButton *button : shown.dialog->findChildren<QAbstractButton *>())
        letters.append(QKeySequence::mnemonic(button->text()).toString());
    letters.removeAll(QString());
    QCOMPARE(letters.size(), 13);
    QCOMPARE(letters.removeDuplicates(), 0);
}

void tst_ExpressionDialog::nothingIsWrittenToTheLogOrTheDictionary()
{
    LogCatcher log;
    Shown shown;
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
