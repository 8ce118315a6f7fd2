#pragma once

#include "sources/SourceOutcome.h"

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <readstat.h>

class QFile;

namespace tessel::sources {

/// Why a statistical file could not be read.
class StatisticalProblem {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::StatisticalProblem)

public:
    /// For  error, with which the parser ended over  file; none of an encoding.
    static SourceOutcome of(readstat_error_t error, const QFile &file);

    /// Whether  error says that the texts are not in the encoding in which they were read, or that this one
    /// is not known.
    static bool isOfEncoding(readstat_error_t error);

    /// For such an error.  chosen is the encoding that was asked for; empty: the file's own,  declared, was
    /// taken, which may be empty too.
    static SourceOutcome ofTexts(const QString &chosen, const QString &declared);

    /// For an encoding \a name that nobody knows; nothing when it is known, or empty.
    static std::optional<SourceOutcome> ofEncoding(const QString &name);

    /// With \a message, a sentence that stands behind the file's name.
    static SourceOutcome with(const QString &message, bool canRetryWithEncoding = false);
};

} // namespace tessel::sources
