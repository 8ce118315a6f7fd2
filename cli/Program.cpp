#include "cli/Program.h"

#include "cli/CheckCommand.h"
#include "cli/FormatCommand.h"
#include "cli/Output.h"
#include "cli/ShowCommand.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>
#include <QTextCodec>

#include <sstream>
#include <string>
#include <vector>

namespace tessel::cli {
namespace {

/// Messages of the libraries are for those who look for a mistake in them.
void installLog(bool verbose)
{
    static bool wanted;
    wanted = verbose;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        if (wanted)
            printMessage(text);
    });
}

/// File names are bytes: read as Latin-1 and written as Latin-1 they stay the same bytes in any locale.
QString fileName(const std::string &bytes) { return QString::fromLatin1(bytes.data(), int(bytes.size())); }

QStringList fileNames(const std::vector<std::string> &names)
{
    QStringList list;
    for (const std::string &name : names)
        list.append(fileName(name));
    return list;
}

void addExitStatus(CLI::App &verb)
{
    verb.footer("Exit status: 0 nothing to report; 1 findings, differences or would-change; 2 wrong usage, "
                "unreadable or unparsable input, unwritable output.");
}

} // namespace

int run(int argc, char **argv)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tessel"));

    CLI::App app(
        "Shows and rewrites data dictionaries and run configurations of hierarchical statistical databases.",
        "tessel");
    app.set_version_flag("--version", "tessel " TESSEL_VERSION);
    app.require_subcommand(1);
    app.fallthrough();
    addExitStatus(app);
    bool verbose = false;
    app.add_flag("--verbose", verbose, "Print the libraries' own log to standard error");

    std::string file;
    std::string path;
    std::string form = "text";
    CLI::App *show = app.add_subcommand("show", "Show a dictionary or run configuration, or one place in it");
    show->add_option("FILE", file, "The document; - is standard input")->required();
    show->add_option("PATH", path,
        "An entity or a variable: names from the top entity parted by /, as many of the last ones as tell it "
        "from "
        "others (PERSON, PERSON/AGE), or a JSON pointer (/entities/0/variables/3)");
    show->add_option("--format", form, "text for people, json for programs")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    addExitStatus(*show);

    std::vector<std::string> files;
    CLI::App *check = app.add_subcommand("check", "Judge dictionaries and print what is wrong with them");
    check->add_option("FILE", files, "The dictionaries; - is standard input")->required();
    check->add_option("--format", form, "text for people, json for programs")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    addExitStatus(*check);

    std::string output;
    FormatOptions options;
    CLI::App *format = app.add_subcommand("format",
        "Rewrite documents in normal form; what that would lose or change is listed on standard error");
    format->add_option("FILE", files, "The documents; - is standard input")->required();
    CLI::Option *out =
        format->add_option("-o,--output", output, "Write to this file; - is standard output, the default");
    CLI::Option *inPlace = format->add_flag("-i,--in-place", options.inPlace,
        "Replace each file, at once or not at all; refused when something would be lost or changed");
    format->add_flag("--check", options.check, "Write nothing; status 1 when a file is not in normal form")
        ->excludes(out)
        ->excludes(inPlace);
    format->add_flag("--diff", options.diff, "Write nothing but the differences between file and normal form")
        ->excludes(out)
        ->excludes(inPlace);
    inPlace->excludes(out);
    format->add_flag("--force", options.force, "Replace a file even when something is lost or changed");
    addExitStatus(*format);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &problem) {
        if (problem.get_exit_code() == 0) {
            std::ostringstream text;
            app.exit(problem, text, text);
            printBytes(QByteArray::fromStdString(text.str()));
            return finishOutput() ? Clean : Failure;
        }
        QString reason = QString::fromStdString(problem.what());
        // A missing verb is all that the parser tells of a wrong one.
        if (app.get_subcommands().empty() && argc > 1)
            reason = QStringLiteral("there is no verb or option \"%1\"").arg(QString::fromUtf8(argv[1]));
        printMessage(
            printable(QStringLiteral("tessel: %1; \"tessel --help\" shows what can be asked").arg(reason)));
        return Failure;
    }
    installLog(verbose);

    int status = Clean;
    if (show->parsed()) {
        status = showDocument(fileName(file), QString::fromStdString(path), form == "json");
    } else if (check->parsed()) {
        status = checkDocuments(fileNames(files), form == "json");
    } else {
        options.output = out->count() > 0 ? fileName(output) : QStringLiteral("-");
        status = formatDocuments(fileNames(files), options);
    }
    return finishOutput() ? status : Failure;
}

} // namespace tessel::cli
