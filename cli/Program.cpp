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

/// What from-data takes, as the parser keeps it.
struct FromDataTexts {
    std::vector<std::string> files;
    std::string entity;
    std::string into;
    std::string onConflict = "error";
    std::string encoding;
    std::string records;
    std::string output = "-";
};

/// The options of from-data, as they were given to \a verb.
FromDataOptions fromDataOptions(const CLI::App &verb, const FromDataTexts &texts)
{
    FromDataOptions options;
    if (verb.count("--entity") > 0)
        options.entity = QString::fromStdString(texts.entity);
    if (verb.count("--into") > 0)
        options.into = fileName(texts.into);
    if (verb.count("--categories-from-data") > 0)
        options.records = QString::fromStdString(texts.records);
    options.encoding = QString::fromStdString(texts.encoding);
    options.output = fileName(texts.output);
    if (texts.onConflict == "skip")
        options.onConflict = FromDataOptions::OnConflict::Skip;
    else if (texts.onConflict == "overwrite")
        options.onConflict = FromDataOptions::OnConflict::Overwrite;
    return options;
}

void addExitStatus(CLI::App &verb)
{
    verb.footer("Exit status: 0 nothing to report; 1 findings, differences or would-change; 2 wrong usage, "
                "unreadable or unparsable input, unwritable output.");
}

CLI::App *addFromData(CLI::App &app, FromDataTexts &texts)
{
    CLI::App *verb = app.add_subcommand("from-data",
        "Make a dictionary of the fields of data files, or extend one; what the files say and the dictionary "
        "does not hold is listed on standard error");
    verb->add_option(
            "FILE", texts.files, "CSV files and data files of statistical packages; each becomes an entity")
        ->required();
    verb->add_option("--entity", texts.entity,
            "The entity that gets the variables of all files; without it each file has one that is named "
            "like "
            "it")
        ->type_name("NAME");
    verb->add_option("--into", texts.into,
            "Extend this dictionary: entities are found by name or added at the top; - is standard input")
        ->type_name("DICT");
    verb->add_option("--on-conflict", texts.onConflict,
            "A field whose variable's name is there already: error lists all and writes nothing, skip leaves "
            "the field out, overwrite puts it in the other's place")
        ->check(CLI::IsMember({"skip", "overwrite", "error"}))
        ->capture_default_str();
    verb->add_option(
            "--encoding", texts.encoding, "The encoding of the files' texts, for example windows-1252")
        ->type_name("E");
    verb->add_option("--categories-from-data", texts.records,
            "Look at this many records for the categories and ranges that a file does not declare")
        ->type_name("N");
    verb->add_option("-o,--output", texts.output, "Write to this file; - is standard output, the default")
        ->type_name("OUT");
    addExitStatus(*verb);
    return verb;
}

} // namespace

int run(int argc, char **argv, const ReadSource &read)
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

    FromDataTexts texts;
    const CLI::App *data = addFromData(app, texts);

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
    } else if (data->parsed()) {
        status = fromData(fileNames(texts.files), fromDataOptions(*data, texts), read);
    } else {
        options.output = out->count() > 0 ? fileName(output) : QStringLiteral("-");
        status = formatDocuments(fileNames(files), options);
    }
    return finishOutput() ? status : Failure;
}

} // namespace tessel::cli
