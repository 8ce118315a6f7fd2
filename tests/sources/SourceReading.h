#pragma once

#include "sources/SourceReader.h"
#include "tests/sources/StatisticalFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tessel::test {

/// What the reader gives of a file named \a name that holds \a bytes. The file lies in a folder of its own
/// and is gone afterwards.
sources::SourceOutcome readingOf(
    const QByteArray &bytes, const QString &name, const sources::ReadOptions &options = {});

/// What the reader gives of \a table written in the form \a form, with the ending that belongs to it.
sources::SourceOutcome readingOf(
    const Table &table, const FileForm &form, const sources::ReadOptions &options = {});

/// All of \a field but its name and label in one line, empty parts left out:
/// "INTEGER 3.0 from 0 to 98 missing 99 notapp 98 {1 Rural|2 Urban}".
QString textOf(const TDmSourceField &field);

/// One line for each field, "NAME: " and its text; when nothing was read one line, "problem: " and the
/// message.
QStringList fieldsOf(const sources::SourceOutcome &outcome);

/// The text of the field \a name; says so when there is none, or a problem instead.
QString fieldOf(const sources::SourceOutcome &outcome, const QString &name);

/// The remarks as lines.
QStringList remarksOf(const sources::SourceOutcome &outcome);

/// The message of the problem; "read" when there is none.
QString problemOf(const sources::SourceOutcome &outcome);

/// Everything that was read, as lines: what the file says of itself, the names, labels and fields, the
/// remarks.
QStringList allOf(const sources::SourceOutcome &outcome);

} // namespace tessel::test
