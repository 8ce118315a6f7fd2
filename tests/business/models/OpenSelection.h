#pragma once

#include "business/models/SelectionBuilderTreeModel.h"
#include "tests/business/models/TreeText.h"

#include <QList>

#include <memory>

namespace tessel::test {

using Unit = SelectionTreeUnit;

/// The model with its protected parts in reach.
class OpenSelection : public SelectionBuilderTreeModel {
public:
    explicit OpenSelection(Unit *top, bool withCode = false, bool withName = false)
        : SelectionBuilderTreeModel(nullptr, top, withCode, withName)
    {
    }
    QModelIndex made(int row, int column, Unit *unit) const { return createIndex(row, column, unit); }
};

/// Units below one another, some of them between others.
struct Areas {
    std::unique_ptr<Unit> root =
        treeFrom<Unit>("LAND(NORTH(TOWN(STREET) VILLAGE PORT(PIER)) EAST SOUTH(CITY(SQUARE)))");
    OpenSelection model{root.get()};

    Unit *unit(const QString &name) const { return find(root.get(), name); }
    QModelIndex madeFor(const QString &name) const { return model.made(0, 0, unit(name)); }
};

/// The roles for which \a model shows something of \a index.
inline QList<int> rolesAnswered(const QAbstractItemModel &model, const QModelIndex &index)
{
    QList<int> roles;
    for (int role = 0; role <= Qt::UserRole + 2; ++role) {
        if (model.data(index, role).isValid())
            roles += role;
    }
    return roles;
}

} // namespace tessel::test
