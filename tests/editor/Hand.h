#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace tessel::test {

/// Someone at the display. What is done arrives with the next events; tests wait for what comes of it.
class Hand {
public:
    static void click(const QWidget &widget, const QPoint &place)
    {
        const QPoint point = widget.mapToGlobal(place);
        run({"mousemove", QString::number(point.x()), QString::number(point.y()), "click", "1"});
    }
    static void click(const QWidget &widget) { click(widget, widget.rect().center()); }
    static void click(const QAbstractItemView &view, const QModelIndex &index)
    {
        click(*view.viewport(), view.visualRect(index).center());
    }
    static void press(const QString &key) { run({"key", "--clearmodifiers", key}); }
    static void type(const QString &text) { run({"type", "--delay", "2", text}); }

private:
    static void run(const QStringList &arguments)
    {
        QProcess tool;
        tool.start("xdotool", arguments);
        while (tool.state() != QProcess::NotRunning)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
        if (tool.exitCode() != 0)
            qFatal("xdotool %s", qPrintable(arguments.join(' ')));
    }
};

/// Answers the next box as soon as it is there to be typed into: it has an event loop of its own.
class Answer : public QObject {
public:
    explicit Answer(std::function<void(QDialog &)> whatToDo)
        : act(std::move(whatToDo))
    {
        qApp->installEventFilter(this);
    }
    ~Answer() override { qApp->removeEventFilter(this); }
    bool isGiven() const { return given; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog && event->type() == QEvent::WindowActivate && !given) {
            given = true;
            QTimer::singleShot(0, dialog, [this, dialog] { act(*dialog); });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void(QDialog &)> act;
    bool given = false;

    Q_DISABLE_COPY_MOVE(Answer)
};

/// Clicks \a button of the box.
inline std::function<void(QDialog &)> pressing(QMessageBox::StandardButton button)
{
    return [button](QDialog &box) { Hand::click(*qobject_cast<QMessageBox *>(&box)->button(button)); };
}

/// The part of \a window that is called \a name.
template<typename Widget = QWidget>
Widget &part(QWidget &window, const char *name)
{
    auto *widget = window.findChild<Widget *>(name);
    if (!widget)
        qFatal("no %s", name);
    return *widget;
}

} // namespace tessel::test
