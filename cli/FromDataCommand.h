#pragma once

#include "sources/SourceReader.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tessel::cli {

/// What "tessel from-data" was asked to do.
struct FromDataOptions {
    /// A field whose variable's name the entity has already.
    enum class OnConflict { Error, Skip, Overwrite };

    std::optional<QString> entity; ///< Gets all variables; without it each file has an entity of its own.
    std::optional<QString> into; ///< The dictionary to be extended; without it a new one is made.
    std::optional<QString> records; ///< How many are looked at for categories and ranges, as typed.
    QString encoding; ///< Of the sources' texts; empty: what they declare.
    QString output = QStringLiteral("-"); ///< Where to write; "-" is standard output.
    OnConflict onConflict = OnConflict::Error;
};

/// Reads the fields of a file.
using ReadSource = std::function<sources::SourceOutcome(const QString &, const sources::ReadOptions &)>;

/// Makes a dictionary of the data files \a files, or extends one, and writes it. Every file is tried and
/// every problem told; nothing is written unless all could be read and no conflict is an error. Returns an
/// ExitStatus.
int fromData(const QStringList &files, const FromDataOptions &options, const ReadSource &read);

} // namespace tessel::cli
