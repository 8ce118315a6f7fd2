#include "fuzz/support/Desk.h"

#include <QApplication>

namespace tessel::fuzz {
namespace {

QApplication *makeApplication()
{
    // Sorting uses the locale and Qt asks for the platform: neither may depend on who runs the program.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    return new QApplication(count, arguments);
}

} // namespace

void openDesk()
{
    static const QApplication *const application = makeApplication();
    Q_UNUSED(application)
}

} // namespace tessel::fuzz
