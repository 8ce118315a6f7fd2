#pragma once

#include <QStringList>
#include <QtGlobal>

namespace tessel::test {

/// Gathers what is written to Qt's log while it lives, and keeps it off the terminal. One at a time.
class LogCatcher {
public:
    LogCatcher();
    ~LogCatcher();

    /// One entry for each message, "<type> <category>: <text>", for example "debug default: std::bad_alloc".
    QStringList messages() const;

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QtMessageHandler before;

    Q_DISABLE_COPY_MOVE(LogCatcher)
};

} // namespace tessel::test
