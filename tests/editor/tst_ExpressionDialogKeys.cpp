// The dialog by key: what each does, and that each widget is reached and named. The clipboard.
#include "editor/ExpressionDialog.h"

#include "editor/ExpressionEdit.h"
#include "tests/editor/ShownExpressionDialog.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using namespace tessel::editor;
using tessel::test::ShownExpressionDialog;

class tst_ExpressionDialogKeys : public QObject {
    Q_OBJECT

private slots:
    void returnInserts();
    void returnInAListPressesNoButton();
    void insertionIsUndoneFromTheList();
    void textIsCopied_data();
    void textIsCopied();
    void emptyTextIsNotCopied();
    void textCanBeGoneOnWith();
    void closing_data();
    void closing();
    void everythingIsReachedByTab();
    void everyWidgetHasNames();
    void mnemonicsAreUnique();
};

void tst_ExpressionDialogKeys::returnInserts()
{
    ShownExpressionDialog shown;
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

void tst_ExpressionDialogKeys::returnInAListPressesNoButton()
{
    QDialog dialog;
    PickList list([](const QModelIndex &) { return QString(); }, &dialog);
    QPushButton button(&dialog);
    button.setDefault(true);
    QSignalSpy pressed(&button, &QPushButton::clicked);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(pressed.size(), 1);
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(pressed.size(), 1);
}

void tst_ExpressionDialogKeys::insertionIsUndoneFromTheList()
{
    ShownExpressionDialog shown;
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

void tst_ExpressionDialogKeys::textIsCopied_data()
{
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::newRow("button") << "" << 0;
    QTest::newRow("key in the text") << "expressionText" << int(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    QTest::newRow("key in a list") << "entities" << int(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    QTest::newRow("mnemonic") << "categories" << int(Qt::ALT | Qt::Key_C);
}

void tst_ExpressionDialogKeys::textIsCopied()
{
    QFETCH(QString, focus);
    QFETCH(int, key);
    ShownExpressionDialog shown;
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

void tst_ExpressionDialogKeys::emptyTextIsNotCopied()
{
    ShownExpressionDialog shown;
    QVERIFY(!shown.at("copy").isEnabled());
    shown.key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(shown.clipboard(), "before");
    QCOMPARE(shown.at<QLabel>("status").text(), "");
    shown.key(Qt::Key_Return);
    QVERIFY(shown.at("copy").isEnabled());
    QCOMPARE(shown.at("copy").toolTip(), "Copies the whole expression (Ctrl+Shift+C).");
}

void tst_ExpressionDialogKeys::textCanBeGoneOnWith()
{
    ShownExpressionDialog shown;
    shown.dialog->setText("not");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.dialog->text(), "not HOUSE");
}

void tst_ExpressionDialogKeys::closing_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("button") << 0;
    QTest::newRow("mnemonic") << int(Qt::Key_L);
    QTest::newRow("escape") << int(Qt::Key_Escape);
}

void tst_ExpressionDialogKeys::closing()
{
    QFETCH(int, way);
    ShownExpressionDialog shown;
    shown.key(Qt::Key_Return);
    if (way == 0)
        shown.press("close");
    else
        shown.key(Qt::Key(way), way == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
    QTRY_VERIFY(!shown.dialog->isVisible());
    QCOMPARE(shown.text(), "HOUSE");
    QCOMPARE(shown.clipboard(), "before");
}

void tst_ExpressionDialogKeys::everythingIsReachedByTab()
{
    ShownExpressionDialog shown;
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

void tst_ExpressionDialogKeys::everyWidgetHasNames()
{
    ShownExpressionDialog shown;
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

void tst_ExpressionDialogKeys::mnemonicsAreUnique()
{
    ShownExpressionDialog shown;
    QStringList letters;
    for (const QLabel *label : shown.dialog->findChildren<QLabel *>())
        letters.append(QKeySequence::mnemonic(label->text()).toString());
    for (const QAbstractButton *button : shown.dialog->findChildren<QAbstractButton *>())
        letters.append(QKeySequence::mnemonic(button->text()).toString());
    letters.removeAll(QString());
    QCOMPARE(letters.size(), 13);
    QCOMPARE(letters.removeDuplicates(), 0);
}

QTEST_MAIN(tst_ExpressionDialogKeys)
#include "tst_ExpressionDialogKeys.moc"
