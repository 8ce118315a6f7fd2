#include "sources/CsvCells.h"

#include "sources/CsvRecords.h"
#include "sources/CsvText.h"
#include "sources/Decoding.h"

#include <algorithm>
#include <optional>

namespace tessel::sources {
namespace {

bool isAscii(std::string_view bytes)
{
    return std::all_of(bytes.cbegin(), bytes.cend(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

} // namespace

CsvCells::CsvCells(const CsvText &text)
    : source(text)
{
}

QStringList CsvCells::header(const CsvRecords &header)
{
    QStringList texts;
    for (int i = 0; i < header.keptCells(); ++i) {
        const std::string_view cell = header.cell(i);
        isHeaderForeign = isHeaderForeign || (!source.isConverted() && !strictUtf8(cell));
    }
    for (int i = 0; i < header.keptCells(); ++i)
        texts.append(text(header.cell(i)));
    return texts;
}

QString CsvCells::text(std::string_view cell)
{
    if (isAscii(cell))
        return QString::fromLatin1(cell.data(), int(cell.size()));
    if (source.isConverted())
        return converted(cell);
    if (isHeaderForeign)
        return windows1252(cell);
    const std::optional<QString> text = strictUtf8(cell);
    hasWide = hasWide || text;
    foreign += text ? 0 : 1;
    return text ? *text : windows1252(cell);
}

QString CsvCells::encoding() const
{
    if (!source.encoding().isEmpty())
        return source.encoding();
    return isHeaderForeign || (foreign > 0 && !hasWide) ? QStringLiteral("Windows-1252")
                                                        : QStringLiteral("UTF-8");
}

QStringList CsvCells::remarks() const
{
    QStringList sentences;
    const bool isAllForeign = encoding() == QLatin1String("Windows-1252") && source.encoding().isEmpty();
    if (isAllForeign && source.hasUtf8Mark())
        sentences.append(
            tr("The file is marked as UTF-8 but holds other bytes; it was read as Windows-1252."));
    if (!isAllForeign && foreign == 1)
        sentences.append(tr("1 cell is not in UTF-8 as others are; it was read as Windows-1252."));
    if (!isAllForeign && foreign > 1)
        sentences.append(
            tr("%n cells are not in UTF-8 as others are; they were read as Windows-1252.", nullptr, foreign));
    if (unknown == 1)
        sentences.append(
            tr("1 cell holds what is no text in %1; choose another encoding if it matters.").arg(encoding()));
    if (unknown > 1) {
        sentences.append(tr(
            "%n cells hold what is no text in %1; choose another encoding if it matters.", nullptr, unknown)
                             .arg(encoding()));
    }
    return sentences;
}

QString CsvCells::converted(std::string_view cell)
{
    QString text = QString::fromUtf8(cell.data(), int(cell.size()));
    unknown += text.contains(QChar::ReplacementCharacter) ? 1 : 0;
    return text;
}

} // namespace tessel::sources
