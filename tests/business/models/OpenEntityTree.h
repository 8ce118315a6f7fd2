#pragma once

#include "model/TDmEntity.h"

#include <QAbstractItemModel>
#include <QVariant>

#include <memory>

namespace tessel::test {

/// A tree model over entities, with what the contract needs of it in reach.
class OpenEntityTree {
public:
    OpenEntityTree() = default;
    virtual ~OpenEntityTree() = default;
    virtual QAbstractItemModel &model() = 0;
    virtual QModelIndex made(int row, int column, TDmEntity *entity) const = 0;
    virtual QModelIndex searched(TDmEntity *target, TDmEntity *node, TDmEntity *nodeParent) const = 0;
    virtual QVariant textOf(TDmEntity *entity, int column) const = 0;

private:
    Q_DISABLE_COPY_MOVE(OpenEntityTree)
};

template<typename Model>
class Open : public Model, public OpenEntityTree {
public:
    explicit Open(TDmEntity *top)
        : Model(nullptr, top)
    {
    }
    QAbstractItemModel &model() override { return *this; }
    QModelIndex made(int row, int column, TDmEntity *entity) const override
    {
        return this->createIndex(row, column, entity);
    }
    QModelIndex searched(TDmEntity *target, TDmEntity *node, TDmEntity *nodeParent) const override
    {
        return this->recorrerStructuraArbol(target, node, nodeParent);
    }
    QVariant textOf(TDmEntity *entity, int column) const override
    {
        return this->getItemData(entity, column);
    }
};

} // namespace tessel::test
