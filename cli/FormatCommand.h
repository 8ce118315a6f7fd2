#pragma once

#include <QString>
#include <QStringList>

namespace tessel::cli {

/// What "tessel format" was asked to do.
struct FormatOptions {
    QString output; ///< Where to write; "-" is standard output.
    bool inPlace = false; ///< Replace each file.
    bool check = false; ///< Only tell whether something would change.
    bool diff = false; ///< Only show what would change.
    bool force = false; ///< Replace a file even when something is lost or changed.
};

/// Brings each of \a files into normal form. A file with a problem does not keep the others from being done;
/// the worst status is returned.
int formatDocuments(const QStringList &files, const FormatOptions &options);

} // namespace tessel::cli
