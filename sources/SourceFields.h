#pragma once

#include "model/TDmSourceField.h"
#include "sources/SourceRemark.h"

#include <QChar>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

namespace tessel::sources {

/// All fields of one source. Owns them.
///
/// Of each field are set: name, label, fieldType ("STRING", "REAL" or "INTEGER"; empty where the source does
/// not tell), dataProviderType, size in characters, decimals, relativePosition (counted from 1), categories,
/// selection, rangeMin and rangeMax where they are known, and the declared codes missing and notApp, as whole
/// numbers in text form or empty.
struct SourceFields {
    std::vector<std::unique_ptr<TDmSourceField>> fields; ///< In the order of the source; none is null.
    QVector<SourceRemark> remarks; ///< What the fields do not carry, in the order of the fields.
    QString format; ///< For people: "SPSS", "Stata", "SAS", "SAS transport", "SPSS portable" or "CSV".
    QString encoding; ///< Of the texts, as it was read; empty where the source does not tell.
    QString title; ///< The source's own label; may be empty.
    qint64 rows = -1; ///< How many records the source says that it has; -1 where it does not tell.
    qint64 rowsRead = 0; ///< How many of them were looked at.
    QChar separator; ///< Of a CSV file; null when none was asked for and none was found: it has one column.
};

} // namespace tessel::sources
