#include "sources/CsvColumns.h"

#include "sources/CsvCells.h"
#include "sources/CsvRecords.h"

#include <limits>

namespace tessel::sources {

CsvColumns::CsvColumns(std::size_t fields, int mostCategories, bool isCommaDecimal)
    : columns(fields, CsvColumn(mostCategories, isCommaDecimal))
{
}

void CsvColumns::add(const CsvRecords &record, CsvCells &cells)
{
    const int fields = int(columns.size());
    if (record.cellCount() != fields) {
        firstUneven = uneven == 0 ? record.line() : firstUneven;
        ++uneven;
    }
    const int known = qMin(record.keptCells(), fields);
    for (int i = 0; i < known; ++i)
        columns[std::size_t(i)].add(cells.text(record.cell(i)).trimmed());
}

QVector<SourceRemark> CsvColumns::remarks() const
{
    if (uneven == 0)
        return {};
    if (uneven == 1) {
        return {{QString(),
            tr("1 record, in line %1, has more or fewer cells than the header has fields.")
                .arg(firstUneven)}};
    }
    const int count = int(qMin<qint64>(uneven, std::numeric_limits<int>::max()));
    return {{QString(),
        tr("%n records have more or fewer cells than the header has fields, the first of them in line %1.",
            nullptr, count)
            .arg(firstUneven)}};
}

void CsvColumns::describe(SourceFields &source) const
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        TDmSourceField &field = *source.fields.at(i);
        for (const QString &reason : columns.at(i).describe(field))
            source.remarks.append({field.name, reason});
    }
}

} // namespace tessel::sources
