// A pattern that somebody types, into the search field above a table and as the name of a variable, with any
// texts in the table. What the filters keep is held against a search row by row.

#include "business/models/VarRangeProxyModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"
#include "business/models/VariablesDatasetProxyModel.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "business/models/VariablesProxyModel.h"
#include "business/models/VariablesProxyModelDownStep4.h"
#include "business/models/detail/VariableEditRules.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "fuzz/support/Input.h"

#include <QStandardItemModel>

using namespace tessel::fuzz;
using tessel::detail::VariableEditRules;

namespace {

constexpr int kColumns = 5;

/// A table whose cells are \a texts, row by row; a cell that looks like a number is one.
void fill(QStandardItemModel &table, const QStringList &texts)
{
    table.setColumnCount(kColumns);
    table.setRowCount((texts.size() + kColumns - 1) / kColumns);
    for (int i = 0; i < texts.size(); ++i) {
        bool isNumber = false;
        const int number = texts.at(i).toInt(&isNumber);
        const QVariant value = isNumber ? QVariant(number) : QVariant(texts.at(i));
        table.setData(table.index(i / kColumns, i % kColumns), value, Qt::DisplayRole);
    }
}

/// The rows that hold a match of \a pattern in the first \a columns columns.
QList<int> matchingRows(const QStandardItemModel &table, const QRegExp &pattern, int columns)
{
    QList<int> rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        bool isFound = false;
        for (int column = 0; column < columns && !isFound; ++column) {
            const QString text = table.index(row, column).data().toString();
            isFound = text.toUpper().trimmed().indexOf(pattern) != -1;
        }
        if (isFound)
            rows.append(row);
    }
    return rows;
}

QList<int> shownRows(const QSortFilterProxyModel &proxy)
{
    QList<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows.append(proxy.mapToSource(proxy.index(row, 0)).row());
    return rows;
}

/// Filters by \a pattern and sorts by every column, both ways; the rows are always those that match.
template<typename Proxy>
void search(QStandardItemModel &table, const QRegExp &pattern, int columns)
{
    const QList<int> expected = matchingRows(table, pattern, columns);
    Proxy proxy(nullptr);
    proxy.setSourceModel(&table);
    proxy.setFilterRegExp(pattern);
    expect(shownRows(proxy) == expected, "a filter keeps other rows than those that match");
    for (const auto order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
        for (int column = 0; column < kColumns; ++column) {
            proxy.sort(column, order);
            QList<int> shown = shownRows(proxy);
            std::sort(shown.begin(), shown.end());
            expect(shown == expected, "sorting loses a row or shows one twice");
        }
    }
    proxy.setFilterRegExp(QRegExp());
    expect(proxy.rowCount() == table.rowCount(), "an empty pattern hides a row");
}

/// At most one entry goes, and a text without signs of a pattern takes out its first like.
void takeOut(const QStringList &entries, const QString &typed)
{
    QStringList left = entries;
    VariableEditRules::removeFirstMatch(left, typed);
    if (left != entries) {
        int gone = 0;
        while (gone < left.size() && left.at(gone) == entries.at(gone))
            ++gone;
        left.insert(gone, entries.at(gone));
        expect(left == entries, "a typed text takes out more than one entry, or changes one");
        left.removeAt(gone);
    }
    if (QRegularExpression::escape(typed) == typed) {
        QStringList expected = entries;
        if (const int place = entries.indexOf(typed); place >= 0)
            expected.removeAt(place);
        expect(left == expected, "a plain text takes out something else than its like");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    openDesk();
    Input input(data, size);
    const auto syntax = QRegExp::PatternSyntax(input.number(QRegExp::RegExp, QRegExp::W3CXmlSchema11));
    const auto sensitivity = input.flag() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    QStringList lines = QString::fromUtf8(input.rest()).split(QLatin1Char('\n'));
    const QString typed = lines.takeFirst();

    QStandardItemModel table;
    fill(table, lines);
    const QRegExp pattern(typed, sensitivity, syntax);
    search<VarRangeProxyModel>(table, pattern, 2);
    search<VarValueLabelDiccionaryProxyModel>(table, pattern, 2);
    search<VariablesDatasetProxyModel>(table, pattern, 3);
    search<VariablesDictionaryProxyModel>(table, pattern, 5);
    search<VariablesProxyModel>(table, pattern, 4);
    search<VariablesProxyModelDownStep4>(table, pattern, 3);
    takeOut(lines, typed);
    return 0;
}
