#pragma once

#include "sources/CsvColumn.h"
#include "sources/SourceFields.h"

#include <QCoreApplication>
#include <QVector>
#include <QtGlobal>

#include <vector>

namespace tessel::sources {

class CsvCells;
class CsvRecords;

/// What the records of a CSV file say about its fields, one CsvColumn for each.
class CsvColumns {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CsvColumns)

public:
    /// No field yet; nothing to describe.
    CsvColumns() = default;

    /// For as many as \a fields; the rest as for CsvColumn.
    CsvColumns(std::size_t fields, int mostCategories, bool isCommaDecimal);

    /// Looks at the \a record that is complete, in the texts of \a cells. Cells that it has too many are
    /// passed over, cells that it has not are no values; both are remembered.
    void add(const CsvRecords &record, CsvCells &cells);

    /// Remarks on the records as a whole.
    QVector<SourceRemark> remarks() const;

    /// Describes all fields of \a source, as many as there are columns, and remarks on them there.
    void describe(SourceFields &source) const;

private:
    std::vector<CsvColumn> columns;
    qint64 uneven = 0; ///< Records with other than as many cells as there are fields.
    qint64 firstUneven = 0; ///< The line of the first of them.
};

} // namespace tessel::sources
