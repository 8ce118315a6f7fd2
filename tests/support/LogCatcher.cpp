#include "tests/support/LogCatcher.h"

#include <QMessageLogContext>

namespace tessel::test {
namespace {

QStringList *caught = nullptr;

const char *nameOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        return "fatal";
    }
    return "unknown";
}

} // namespace

LogCatcher::LogCatcher()
    : before(qInstallMessageHandler(&take))
{
    caught = new QStringList;
}

LogCatcher::~LogCatcher()
{
    qInstallMessageHandler(before);
    delete caught;
    caught = nullptr;
}

QStringList LogCatcher::messages() const { return *caught; }

void LogCatcher::take(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    caught->append(
        QStringLiteral("%1 %2: %3").arg(QLatin1String(nameOf(type)), QLatin1String(context.category), text));
}

} // namespace tessel::test
