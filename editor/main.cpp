#include "editor/FileHandling.h"
#include "editor/Languages.h"
#include "editor/MainWindow.h"
#include "editor/Settings.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

/// The libraries write a line for every edit; only errors are for whoever started the program.
void printWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tessel-editor"));
    QApplication::setOrganizationName(QStringLiteral("Tessel"));
    QApplication::setApplicationVersion(QStringLiteral(TESSEL_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/res/tessel.png")));
    tessel::editor::speak(application, tessel::editor::Settings::language());

    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate(
        "main", "Describes censuses and surveys: entities, variables, value labels."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption verbose(
        QStringLiteral("verbose"), QApplication::translate("main", "Write debug lines to standard error."));
    const QCommandLineOption picture(QStringLiteral("picture"),
        QApplication::translate("main", "Save what the window shows to <file> and end."),
        QStringLiteral("file"));
    const QCommandLineOption place(QStringLiteral("place"),
        QApplication::translate(
            "main", "Go to the place that <pointer> names, as \"tessel check\" prints it."),
        QStringLiteral("pointer"));
    const QCommandLineOption end(QStringLiteral("exit-when-shown"),
        QApplication::translate("main", "End as soon as the window is there, to try an installation."));
    parser.addOptions({verbose, picture, place, end});
    parser.addPositionalArgument(QStringLiteral("file"),
        QApplication::translate("main", "The dictionary to open."), QStringLiteral("[file]"));
    parser.process(application);
    if (!parser.isSet(verbose))
        qInstallMessageHandler(printWarnings);

    tessel::editor::MainWindow window;
    const QStringList files = parser.positionalArguments();
    const auto begin = [&] {
        if (files.isEmpty()) {
            window.files().offerRecovery();
            return;
        }
        if (window.files().openFile(files.first()) && parser.isSet(place))
            window.goTo(parser.value(place));
        window.files().lookForUnnamedWork();
    };
    window.show();
    if (parser.isSet(end)) {
        begin();
        QApplication::processEvents();
        // Nothing is unsaved; what was opened need not be taken down piece by piece.
        std::quick_exit(0);
    }
    if (parser.isSet(picture)) {
        begin();
        QApplication::processEvents();
        return window.grab().save(parser.value(picture)) ? 0 : 2;
    }
    // Questions about lost work come when the window is there.
    QTimer::singleShot(0, &window, begin);
    return QApplication::exec();
}
