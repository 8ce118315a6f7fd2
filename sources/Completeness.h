#pragma once

#include "sources/StatisticalContent.h"
#include "sources/StatisticalReader.h"

#include <QCoreApplication>

class QFile;

namespace tessel::sources {

/// Finds files that were cut off where their parser does not notice it.
class Completeness {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::Completeness)

public:
    /// What is missing at the end of \a file, an open file of the format \a format, as a sentence; empty when
    /// nothing is missed. Moves the file's position.
    static QString faultOf(QFile &file, StatisticalFormat format);

    /// The same for an open SAS catalogue.
    static QString faultOfCatalogue(QFile &file);

    /// What is missing in \a content of a Stata file: a label set that a variable names; empty when nothing
    /// is, and from format 117 on: such a file ends with a tag, so that the set was never in it.
    static QString faultOf(const StatisticalContent &content);

private:
    static QString cutOff();
};

} // namespace tessel::sources
