#include "tests/support/PointerRobot.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QDragMoveEvent>
#include <QtTest>

namespace tessel::test {
namespace {

constexpr int kTooLong = 20'000;

bool isDragging(const PointerRobot::Place &from) { return from.view->findChild<QDrag *>() != nullptr; }

} // namespace

PointerRobot::PointerRobot()
{
    timer.setInterval(1);
    connect(&timer, &QTimer::timeout, this, &PointerRobot::advance);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    qApp->installEventFilter(this);
}

PointerRobot::~PointerRobot() { qApp->removeEventFilter(this); }

bool PointerRobot::click(const Place &place, const QStringList &keys)
{
    QObject *viewport = place.view->viewport();
    addMove(place, [] { return true; });
    for (const QString &key : keys)
        add({"keydown", key}, [] { return true; });
    add({"mousedown", "1"}, [=] { return pressed.contains(viewport); });
    add({"mouseup", "1"}, [=] { return released.contains(viewport); });
    held = keys;
    return run();
}

bool PointerRobot::type(const QString &key)
{
    add({"key", key}, [=] { return keysReleased > key.count('+'); });
    held.clear();
    return run();
}

bool PointerRobot::drag(const Place &from, const Place &to, const QStringList &keys)
{
    QObject *source = from.view->viewport();
    QObject *target = to.view->viewport();
    const Place near = {from.view, from.position + QPoint(1, 0)};
    const Place away = {from.view, from.position + QPoint(QApplication::startDragDistance() + 2, 0)};
    const Place almost = {to.view, to.position - QPoint(1, 1)};
    addMove(from, [] { return true; });
    add({"mousedown", "1"}, [=] { return pressed.contains(source); });
    // The first move tells the view that something is dragged, the second begins.
    addMove(near, [=] { return moved.value(source) == near.position; });
    addMove(away, [=] { return isDragging(from); });
    for (const QString &key : keys)
        add({"keydown", key}, [] { return true; });
    addMove(almost, [=] { return draggedOver.value(target) == almost.position; });
    addMove(to, [=] { return draggedOver.value(target) == to.position; });
    add({"mouseup", "1"}, [=] { return !isDragging(from); });
    held = keys;
    return run();
}

void PointerRobot::add(const QStringList &arguments, std::function<bool()> hasArrived)
{
    steps.append({arguments, std::move(hasArrived)});
}

void PointerRobot::addMove(const Place &place, std::function<bool()> hasArrived)
{
    const QPoint point = place.view->viewport()->mapToGlobal(place.position);
    add({"mousemove", QString::number(point.x()), QString::number(point.y())}, std::move(hasArrived));
}

bool PointerRobot::run()
{
    for (const QString &key : qAsConst(held))
        add({"keyup", key}, [] { return true; });
    pressed.clear();
    released.clear();
    moved.clear();
    draggedOver.clear();
    keysReleased = 0;
    hasFailed = isSent = false;
    timer.start();
    loop.exec();
    return !hasFailed;
}

void PointerRobot::advance()
{
    if (process.state() != QProcess::NotRunning)
        return;
    if (steps.isEmpty()) {
        timer.stop();
        loop.quit();
        return;
    }
    if (!isSent) {
        isSent = true;
        waiting.start();
        process.start("xdotool", steps.first().arguments);
        return;
    }
    const bool hasRun = process.error() == QProcess::UnknownError && process.exitCode() == 0;
    if (hasRun && steps.first().hasArrived()) {
        steps.removeFirst();
        isSent = false;
    } else if (!hasRun || waiting.elapsed() > kTooLong) {
        giveUp();
    }
}

void PointerRobot::giveUp()
{
    qWarning("xdotool %s: nothing came of it", qPrintable(steps.first().arguments.join(' ')));
    hasFailed = true;
    steps.clear();
    isSent = false;
    for (const QString &key : qAsConst(held))
        QProcess::execute("xdotool", {"keyup", key});
    // Escape ends the event loop of a drag.
    QProcess::execute("xdotool", {"key", "Escape", "mouseup", "1"});
}

bool PointerRobot::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressed.insert(watched);
        break;
    case QEvent::MouseButtonRelease:
        released.insert(watched);
        break;
    case QEvent::MouseMove:
        moved.insert(watched, static_cast<QMouseEvent *>(event)->pos());
        break;
    case QEvent::KeyRelease:
        // Windows pass keys on to widgets; each is counted once.
        keysReleased += watched->isWindowType() ? 1 : 0;
        break;
    case QEvent::DragMove:
        draggedOver.insert(watched, static_cast<QDragMoveEvent *>(event)->pos());
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessel::test
