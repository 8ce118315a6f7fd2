#include "cli/TextTable.h"

#include "cli/Output.h"

#include <algorithm>
#include <utility>

namespace tessel::cli {
namespace {

/// Characters that take a place of their own on the line.
int widthOf(const QString &cell)
{
    const QVector<uint> points = cell.toUcs4();
    return int(std::count_if(points.cbegin(), points.cend(), [](uint point) {
        return QChar::category(point) != QChar::Mark_NonSpacing
            && QChar::category(point) != QChar::Other_Format;
    }));
}

} // namespace

TextTable::TextTable(QVector<Column> someColumns)
    : columns(std::move(someColumns))
{
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList row;
    for (const QString &cell : cells)
        row.append(printable(cell));
    rows.append(row);
}

QVector<int> TextTable::widths(bool withTitles) const
{
    QVector<int> result(columns.size(), 0);
    for (const QStringList &row : rows) {
        for (int i = 0; i < result.size(); ++i)
            result[i] = std::max(result.at(i), widthOf(row.at(i)));
    }
    for (int i = 0; withTitles && i < result.size(); ++i) {
        if (result.at(i) > 0)
            result[i] = std::max(result.at(i), widthOf(columns.at(i).title));
    }
    return result;
}

QString TextTable::line(const QStringList &cells, const QVector<int> &widths) const
{
    QString out;
    for (int i = 0; i < widths.size(); ++i) {
        if (widths.at(i) == 0)
            continue;
        const QString gap(widths.at(i) - widthOf(cells.at(i)), QLatin1Char(' '));
        out += columns.at(i).align == Align::Left ? cells.at(i) + gap : gap + cells.at(i);
        out += QLatin1String("  ");
    }
    while (out.endsWith(QLatin1Char(' ')))
        out.chop(1);
    return out + QLatin1Char('\n');
}

QString TextTable::text() const
{
    QStringList titles;
    for (const Column &column : columns)
        titles.append(column.title);
    const QVector<int> all = widths(true);
    QString out = line(titles, all);
    for (const QStringList &row : rows)
        out += line(row, all);
    return out;
}

QString TextTable::rowText() const
{
    const QVector<int> all = widths(false);
    QString out;
    for (const QStringList &row : rows)
        out += line(row, all);
    return out;
}

QString factsText(const QString &title, const QVector<QPair<QString, QString>> &facts)
{
    TextTable table({{QString()}, {QString()}});
    for (const auto &[name, text] : facts) {
        if (!text.isEmpty())
            table.addRow({name, text});
    }
    return printable(title) + QLatin1Char('\n') + table.rowText();
}

} // namespace tessel::cli
