#include "tests/business/models/ModelSweep.h"

#include <QMimeData>
#include <QSize>

#include <array>
#include <climits>

namespace tessel::test {
namespace {

constexpr std::array<Qt::Orientation, 2> kOrientations = {Qt::Horizontal, Qt::Vertical};

/// What a careless caller could ask for: rows and columns before, behind and far behind those that are there,
/// at the top and below a row, by index() and past it.
QModelIndexList oddIndexes(OpenModel &opened, const QAbstractItemModel &stranger)
{
    const QAbstractItemModel &model = opened.model();
    QModelIndexList list = emptyIndexes(opened, stranger);
    const QModelIndex first = model.index(0, 0);
    const QList<int> rows = {INT_MIN, -1, 0, model.rowCount(), INT_MAX};
    const QList<int> columns = {INT_MIN, -1, 0, 1, model.columnCount(), INT_MAX};
    for (const int row : rows) {
        for (const int column : columns) {
            list += model.index(row, column);
            list += model.index(row, column, first);
            list += model.index(row, column, stranger.index(0, 0));
            list += model.index(row, column, opened.made(0, 0, nullptr));
            list += first.sibling(row, column);
            if (first.internalPointer())
                list += opened.made(row, column, first.internalPointer());
        }
    }
    return list;
}

QString written(const QModelIndex &index)
{
    return index.isValid() ? QStringLiteral("%1,%2").arg(index.row()).arg(index.column())
                           : QStringLiteral("invalid");
}

QVariant expectedHeader(const ModelRow &row, int section, Qt::Orientation orientation, int role)
{
    if (role != Qt::DisplayRole)
        return {};
    switch (row.headers) {
    case Headers::Numbers:
        return section + 1;
    case Headers::OneForAll:
        return row.headerTexts.first();
    case Headers::ByColumn:
        break;
    }
    return orientation == Qt::Horizontal && section >= 0 && section < row.headerTexts.size()
        ? QVariant(row.headerTexts.at(section))
        : QVariant();
}

} // namespace

QModelIndexList cells(const QAbstractItemModel &model, const QModelIndex &parent, int depth)
{
    QModelIndexList list;
    for (int row = 0; depth < 4 && row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            list += model.index(row, column, parent);
        list += cells(model, model.index(row, 0, parent), depth + 1);
    }
    return list;
}

QModelIndexList emptyIndexes(const OpenModel &opened, const QAbstractItemModel &stranger)
{
    return {QModelIndex(), opened.made(0, 0, nullptr), opened.made(INT_MAX, INT_MAX, nullptr),
        opened.made(-1, 0, nullptr), opened.made(0, -1, nullptr), stranger.index(0, 0), stranger.index(1, 0)};
}

QList<int> rolesAnswered(const QAbstractItemModel &model, const QModelIndex &index)
{
    QList<int> answered;
    for (int role = 0; role <= kLastSweptRole; ++role) {
        if (model.data(index, role).isValid())
            answered += role;
    }
    model.itemData(index);
    model.flags(index);
    model.parent(index);
    model.rowCount(index);
    model.columnCount(index);
    model.hasChildren(index);
    model.canFetchMore(index);
    model.buddy(index);
    model.span(index);
    model.index(0, 0, index);
    model.hasIndex(0, 0, index);
    if (index.model() == &model || !index.isValid())
        delete model.mimeData({index});
    return answered;
}

QStringList faults(OpenModel &opened, const ModelRow &row)
{
    QStringList list;
    // Its objects are of the same type: what takes them for its own would find them usable.
    const auto other = row.open(Shape::Whole);
    const QAbstractItemModel &stranger = other->model();
    const QAbstractItemModel &model = opened.model();
    for (const QModelIndex &index : cells(model) + oddIndexes(opened, stranger)) {
        const QList<int> &allowed = index.column() == 0 ? row.rolesInTheFirstColumn : row.rolesElsewhere;
        for (const int role : rolesAnswered(model, index)) {
            if (!allowed.contains(role))
                list += QStringLiteral("role %1 at %2").arg(role).arg(written(index));
        }
    }
    for (const QModelIndex &index : emptyIndexes(opened, stranger)) {
        if (!rolesAnswered(model, index).isEmpty())
            list += QStringLiteral("an answer without an object at %1").arg(written(index));
    }
    return list;
}

QStringList headerFaults(const QAbstractItemModel &model, const ModelRow &row)
{
    QStringList list;
    for (const Qt::Orientation orientation : kOrientations) {
        for (int role = 0; role <= kLastSweptRole; ++role) {
            for (const int section : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 1000, INT_MAX - 1}) {
                const QVariant expected = expectedHeader(row, section, orientation, role);
                const QVariant given = model.headerData(section, orientation, role);
                if (given != expected)
                    list += QStringLiteral("role %1 of section %2 is %3, not %4")
                                .arg(role)
                                .arg(section)
                                .arg(given.toString(), expected.toString());
            }
            model.headerData(INT_MAX, orientation, role);
        }
    }
    return list;
}

void editAll(OpenModel &opened)
{
    QAbstractItemModel &model = opened.model();
    int number = 0;
    for (const QModelIndex &index : cells(model)) {
        for (const int role :
            {int(Qt::EditRole), int(Qt::DisplayRole), int(Qt::CheckStateRole), kLastSweptRole})
            model.setData(index, QStringLiteral("NEW%1").arg(++number), role);
        model.setItemData(index, {{Qt::EditRole, QStringLiteral("NEWER%1").arg(++number)}});
    }
    const QModelIndex first = model.index(0, 0);
    model.setHeaderData(0, Qt::Horizontal, "NEW");
    model.insertRows(0, 2, first);
    model.removeRows(0, 1);
    model.removeRows(-1, 2, first);
    model.insertColumns(0, 1);
    model.removeColumns(0, 1);
    model.moveRows({}, 0, 1, {}, 2);
    model.dropMimeData(nullptr, Qt::CopyAction, 0, 0, {});
    QMimeData nothing;
    model.dropMimeData(&nothing, Qt::CopyAction, -1, -1, model.index(0, 0));
    model.fetchMore({});
    model.sort(0, Qt::DescendingOrder);
    model.revert();
    model.submit();
}

} // namespace tessel::test
