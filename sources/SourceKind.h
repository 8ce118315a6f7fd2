#pragma once

#include <QByteArray>
#include <QString>

namespace tessel::sources {

/// What a file may be that is offered as a source.
enum class SourceKind { Unknown, Text, Sav, EncryptedSav, Por, Dta, Sas7bdat, Sas7bcat, Xpt };

/// As many bytes of a file's start as tell its kind.
constexpr int kKindBytes = 1024;

/// The kind of a file that starts with \a start; Text for anything without the bytes that no text has.
SourceKind sourceKind(const QByteArray &start);

/// The kind that a file of the name \a file should be of; Unknown for an ending of another kind, or for none.
SourceKind sourceKindOfEnding(const QString &file);

/// The ending, without a dot, that files of the kind \a kind usually have.
QString usualEnding(SourceKind kind);

/// What a file of the kind \a kind is, for people: "an SPSS file".
QString kindName(SourceKind kind);

} // namespace tessel::sources
