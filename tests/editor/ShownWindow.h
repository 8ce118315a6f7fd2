#pragma once

#include "editor/DictionaryDocument.h"
#include "editor/FileHandling.h"
#include "editor/MainWindow.h"
#include "editor/views/TableView.h"
#include "tests/editor/EditorFixtures.h"
#include "tests/editor/WindowFolder.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTreeView>
#include <QtTest>

namespace tessel::test {

/// The entity PERSON of the sample.
inline QString personInSample()
{
    return QStringLiteral("/entities/0/entities/0/entities/0/entities/0/entities/0/entities/0/entities/0");
}

/// The window as a person sees it.
class ShownWindow {
public:
    ShownWindow() { bringUp(main); }

    template<typename Widget = QWidget>
    Widget &part(const QString &name)
    {
        auto *widget = main.findChild<Widget *>(name);
        if (!widget)
            qFatal("no %s", qPrintable(name));
        return *widget;
    }
    editor::TableView &variables() { return part<editor::TableView>("variables"); }
    editor::TableView &labels() { return part<editor::TableView>("labels"); }
    QTreeView &entities() { return part<QTreeView>("entities"); }
    QAction &action(const QString &name) { return part2(name); }
    QString counts() { return part<QLabel>("counts").text(); }
    QString notice()
    {
        auto &label = part<QLabel>("notice");
        return label.isVisible() ? label.text() : QString();
    }
    QString title() const
    {
        // As window systems show it.
        return main.windowTitle().replace("[*]", main.isWindowModified() ? "*" : "");
    }
    editor::DictionaryDocument &document() { return main.document(); }

    /// Presses keys where the focus is.
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focused(), Qt::Key(key), modifiers);
        settle();
    }
    static void typeOver(const QString &text)
    {
        QWidget *field = focused();
        QTest::keySequence(field, QKeySequence::SelectAll);
        QTest::keyClicks(field, text);
    }
    /// Types \a text over what the open field holds, and ends with \a end.
    static void enter(const QString &text, int end = Qt::Key_Return)
    {
        typeOver(text);
        press(end);
    }
    static QWidget *focused()
    {
        // Window systems give the focus back when a menu or a box goes; without one, this does.
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (QApplication::focusWidget() || !qobject_cast<QMainWindow *>(top) || !top->isVisible())
                continue;
            QApplication::setActiveWindow(top);
            if (top->focusWidget())
                top->focusWidget()->setFocus();
        }
        QWidget *widget = QApplication::focusWidget();
        if (!widget)
            qFatal("nothing has the focus");
        return widget;
    }
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Chooses the entry \a name of its menu with the mouse.
    void choose(const QString &name)
    {
        QAction &wanted = action(name);
        for (QAction *head : main.menuBar()->actions()) {
            QMenu *menu = head->menu();
            if (!menu || !menu->actions().contains(&wanted))
                continue;
            QTest::mouseClick(
                main.menuBar(), Qt::LeftButton, {}, main.menuBar()->actionGeometry(head).center());
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&wanted).center());
            settle();
            return;
        }
        qFatal("%s is in no menu", qPrintable(name));
    }

    void openSample()
    {
        action("sample").trigger();
        settle();
    }
    /// Goes to the entity or the variable that \a path names.
    void goTo(const QString &path)
    {
        main.goTo(path);
        settle();
    }

    editor::MainWindow main;

private:
    QAction &part2(const QString &name)
    {
        auto *found = main.findChild<QAction *>(name);
        if (!found)
            qFatal("no action %s", qPrintable(name));
        return *found;
    }
};

} // namespace tessel::test
