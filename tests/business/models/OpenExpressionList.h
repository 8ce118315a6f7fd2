#pragma once

#include "business/models/eEntityShowMode.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QAbstractItemModel>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

namespace tessel::test {

/// A pick list of the expression builder together with the objects that it shows, whatever their type.
class OpenExpressionList {
public:
    OpenExpressionList() = default;
    virtual ~OpenExpressionList() = default;

    virtual QAbstractItemModel &model() = 0;

    /// What getItemData() says of the object called \a name, of no object when there is none of that name.
    virtual QVariant itemData(const QString &name, int column) const = 0;

    /// An index of the model that carries the object called \a name.
    virtual QModelIndex made(int row, int column, const QString &name) const = 0;

    /// The names of the objects in getData(), "null" for no object.
    virtual QStringList listed() const = 0;

    virtual const void *listAddress() const = 0;
    virtual void appendToData(const QString &name) = 0;

    /// The list that the model was made of.
    virtual void clearCallersList() = 0;
    virtual void deleteModel() = 0;
    virtual QStringList objectNames() const = 0;
    virtual void rename(const QString &from, const QString &to) = 0;

private:
    Q_DISABLE_COPY_MOVE(OpenExpressionList)
};

inline QString nameOf(const TDmEntity &entity) { return entity.getName(); }
inline QString nameOf(const TDmVariable &variable) { return variable.getName(); }
inline QString nameOf(const ValueLabelElement &category) { return category.getValue(); }
inline void setNameOf(TDmEntity &entity, const QString &name) { entity.setName(name); }
inline void setNameOf(TDmVariable &variable, const QString &name) { variable.setName(name); }
inline void setNameOf(ValueLabelElement &category, const QString &name) { category.setValue(name); }

template<typename Model, typename Item>
class OpenList : public OpenExpressionList {
public:
    OpenList(const QStringList &names, int mode, QObject *parent)
    {
        for (const QString &name : names) {
            if (name == QLatin1String("null")) {
                callersList.append(nullptr);
                continue;
            }
            objects.push_back(std::make_unique<Item>());
            setNameOf(*objects.back(), name);
            objects.back()->setLabel(QStringLiteral("label of ") + name);
            callersList.append(objects.back().get());
        }
        reached = std::make_unique<Reached>(parent, &callersList, eEntityShowMode(mode));
    }
    OpenList()
        : reached(std::make_unique<Reached>(nullptr, nullptr, ShowName))
    {
    }

    QAbstractItemModel &model() override { return *reached; }
    QVariant itemData(const QString &name, int column) const override
    {
        return reached->getItemData(object(name), column);
    }
    QModelIndex made(int row, int column, const QString &name) const override
    {
        return reached->createIndex(row, column, object(name));
    }
    QStringList listed() const override
    {
        QStringList names;
        for (const Item *item : qAsConst(*reached->getData()))
            names += item ? nameOf(*item) : QStringLiteral("null");
        return names;
    }
    const void *listAddress() const override { return reached->getData(); }
    void appendToData(const QString &name) override { reached->getData()->append(object(name)); }
    void clearCallersList() override { callersList.clear(); }
    void deleteModel() override { reached.reset(); }
    QStringList objectNames() const override
    {
        QStringList names;
        for (const auto &item : objects)
            names += nameOf(*item);
        return names;
    }
    void rename(const QString &from, const QString &to) override { setNameOf(*object(from), to); }

private:
    /// The model with its protected parts in reach.
    class Reached : public Model {
    public:
        using Model::createIndex;
        using Model::Model;
    };

    Item *object(const QString &name) const
    {
        for (const auto &item : objects) {
            if (nameOf(*item) == name)
                return item.get();
        }
        return nullptr;
    }

    std::vector<std::unique_ptr<Item>> objects;
    QList<Item *> callersList;
    std::unique_ptr<Reached> reached;
};

} // namespace tessel::test
