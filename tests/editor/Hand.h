#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QProcess>

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
