#pragma once

#include "documents/DocumentFile.h"
#include "documents/Findings.h"
#include "documents/Losses.h"

#include <QByteArray>
#include <QString>

namespace tessel::cli {

/// Writes \a text to standard output, as UTF-8.
void print(const QString &text);

/// Writes \a bytes to standard output as they are.
void printBytes(const QByteArray &bytes);

/// Makes sure that standard output took everything. When it did not, says so on standard error and returns
/// false.
bool finishOutput();

/// Writes one line to standard error, as UTF-8.
void printMessage(const QString &line);

/// Writes "FILE: message" or "FILE:LINE:COLUMN: message" to standard error, the file's name in its own bytes.
void printProblem(const QString &file, const documents::FileProblem &problem);

/// Writes "FILE: message" to standard error, the file's name in its own bytes.
void printAbout(const QString &file, const QString &message);

/// \a file as messages name it: "standard input" for "-"; its bytes as Latin-1, "?" for what a
/// terminal would act upon.
QString shownName(const QString &file);

/// \a bytes, a file's name or a system's message that came in as Latin-1, as the text that they are: UTF-8
/// where they can be that. A text with other characters than bytes is given back as it is.
QString nameText(const QString &bytes);

/// Writes \a bytes to the file \a name, at once or not at all, and returns the ExitStatus of that; what is
/// wrong goes to standard error.
int writeOutput(const QString &name, const QByteArray &bytes);

/// Writes "FILE: PATH (PLACE): what becomes of the value" to standard error for each of \a losses.
void printLosses(const QString &file, const QVector<documents::Loss> &losses);

/// "PATH (PLACE): message [code]".
QString findingText(const documents::Finding &finding);

/// Writes "FILE: PATH (PLACE): message [code]" to standard output, the file's name in its own bytes.
void printFinding(const QString &file, const documents::Finding &finding);

/// \a text for a terminal: what a terminal would act upon is shown as \\uXXXX.
QString printable(const QString &text);

} // namespace tessel::cli
