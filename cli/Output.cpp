#include "cli/Output.h"

#include "cli/Program.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tessel::cli {
namespace {

/// Why standard output did not take something; 0 while it did.
int refusal = 0;

void write(FILE *to, const QByteArray &bytes)
{
    const bool written =
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), to) == std::size_t(bytes.size());
    if (!written && to == stdout && refusal == 0)
        refusal = errno;
}

/// What a terminal acts upon instead of showing it.
bool isControl(QChar c) { return c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() <= 0x9f); }

QString pathAndPlace(const QString &path, const QString &place)
{
    return path + (place.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(place)) + QLatin1String(": ");
}

} // namespace

void print(const QString &text) { write(stdout, text.toUtf8()); }

void printBytes(const QByteArray &bytes) { write(stdout, bytes); }

bool finishOutput()
{
    if (std::fflush(stdout) != 0 && refusal == 0)
        refusal = errno;
    if (refusal == 0)
        return true;
    printMessage(QCoreApplication::translate("tessel::cli", "standard output: cannot be written: %1")
                     .arg(QString::fromUtf8(std::strerror(refusal))));
    return false;
}

void printMessage(const QString &line) { write(stderr, line.toUtf8() + '\n'); }

void printProblem(const QString &file, const documents::FileProblem &problem)
{
    QByteArray place;
    if (problem.line > 0)
        place = ':' + QByteArray::number(problem.line) + ':' + QByteArray::number(problem.column);
    // System texts came in by the same codec as the name: as the locale's own bytes.
    const QByteArray message = printable(nameText(problem.message)).toUtf8();
    write(stderr, shownName(file).toLatin1() + place + ": " + message + '\n');
}

void printAbout(const QString &file, const QString &message)
{
    write(stderr, shownName(file).toLatin1() + ": " + message.toUtf8() + '\n');
}

int writeOutput(const QString &name, const QByteArray &bytes)
{
    if (const auto problem = documents::writeFile(name, bytes)) {
        printProblem(name, *problem);
        return Failure;
    }
    return Clean;
}

void printLosses(const QString &file, const QVector<documents::Loss> &losses)
{
    for (const documents::Loss &loss : losses)
        printAbout(file, printable(pathAndPlace(loss.path, loss.place) + loss.sentence()));
}

QString findingText(const documents::Finding &finding)
{
    return pathAndPlace(finding.path, finding.place) + finding.message
        + QStringLiteral(" [%1]").arg(finding.code);
}

void printFinding(const QString &file, const documents::Finding &finding)
{
    write(stdout, shownName(file).toLatin1() + ": " + printable(findingText(finding)).toUtf8() + '\n');
}

QString nameText(const QString &bytes)
{
    const QByteArray raw = bytes.toLatin1();
    const QString text = QString::fromUtf8(raw.constData(), raw.size());
    return QString::fromLatin1(raw) == bytes && text.toUtf8() == raw ? text : bytes;
}

QString shownName(const QString &file)
{
    if (file.isEmpty())
        return QStringLiteral("\"\"");
    if (file == QLatin1String("-"))
        return QStringLiteral("standard input");
    // A terminal reads UTF-8 where the bytes are UTF-8, and control characters in it, whatever the locale is.
    const QString text = nameText(file);
    QString shown = text;
    for (QChar &c : shown) {
        if (isControl(c))
            c = QLatin1Char('?');
    }
    return text == file ? shown : QString::fromLatin1(shown.toUtf8());
}

QString printable(const QString &text)
{
    QString shown;
    for (const QChar c : text) {
        if (isControl(c))
            shown += QStringLiteral("\\u%1").arg(int(c.unicode()), 4, 16, QLatin1Char('0'));
        else
            shown += c;
    }
    return shown;
}

} // namespace tessel::cli
