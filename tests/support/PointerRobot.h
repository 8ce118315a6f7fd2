#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QProcess>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <functional>

class QAbstractItemView;

namespace tessel::test {

/// Moves the pointer of the X display and presses buttons and keys there, with the program xdotool: what
/// arrives came from the display, as from a person. Every step waits until the last one was seen to arrive;
/// none waits for a time to pass. A step that does not arrive gives up the whole, so that a test fails
/// instead of waiting.
class PointerRobot : public QObject {
    Q_OBJECT

public:
    /// A point in a view, in the coordinates of its viewport.
    struct Place {
        QAbstractItemView *view;
        QPoint position;
    };

    PointerRobot();
    ~PointerRobot() override;

    /// Clicks with the left button while \a keys, as xdotool calls them, are held down.
    bool click(const Place &place, const QStringList &keys = {});

    /// Presses a key, as xdotool calls it, and lets it go.
    bool type(const QString &key);

    /// Drags from \a from to \a to and lets go there, with \a keys held down from the moment that the drag
    /// has begun. Done when the drop has been taken, and with it any box that it showed.
    bool drag(const Place &from, const Place &to, const QStringList &keys = {});

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Step {
        QStringList arguments; ///< Of xdotool.
        std::function<bool()> hasArrived;
    };

    void add(const QStringList &arguments, std::function<bool()> hasArrived);
    void addMove(const Place &place, std::function<bool()> hasArrived);
    bool run();
    void advance();
    void giveUp();

    QList<Step> steps;
    QStringList held;
    QProcess process;
    QEventLoop loop;
    QTimer timer; ///< Goes on inside the event loop of a drag, too.
    QElapsedTimer waiting;
    bool isSent = false;
    bool hasFailed = false;

    // What each object has received since run() began; of moves, the last.
    QSet<QObject *> pressed;
    QSet<QObject *> released;
    QHash<QObject *, QPoint> moved;
    QHash<QObject *, QPoint> draggedOver;
    int keysReleased = 0;

    Q_DISABLE_COPY_MOVE(PointerRobot)
};

} // namespace tessel::test
