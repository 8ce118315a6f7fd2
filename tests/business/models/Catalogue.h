#pragma once

#include "model/TDmLookup.h"
#include "model/TDmSourceField.h"

#include <QAbstractItemModel>
#include <QMimeData>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

namespace tessel::test {

/// The one format that the catalogues drag out.
inline QString transferFormat() { return QStringLiteral("application/vnd.text.list"); }

/// An item called \a name, with "label of <name>" for people.
template<typename Item>
std::unique_ptr<Item> itemCalled(const QString &name);

template<>
inline std::unique_ptr<TDmSourceField> itemCalled(const QString &name)
{
    auto field = std::make_unique<TDmSourceField>();
    field->name = name;
    field->label = QStringLiteral("label of ") + name;
    return field;
}

template<>
inline std::unique_ptr<TDmLookup> itemCalled(const QString &name)
{
    auto lookup = std::make_unique<TDmLookup>();
    lookup->id = name;
    lookup->label = QStringLiteral("label of ") + name;
    return lookup;
}

/// All that an item holds.
inline QString stateOf(const TDmSourceField &field)
{
    const QStringList texts = {field.name, field.label, field.fieldType, field.dataProviderType,
        field.rangeMin, field.rangeMax, field.missing, field.notApp, field.selection, field.categories};
    return QStringLiteral("%1|%2|%3|%4|%5")
        .arg(field.tag)
        .arg(field.relativePosition)
        .arg(field.decimals)
        .arg(field.size)
        .arg(texts.join('|'));
}

inline QString stateOf(const TDmLookup &lookup) { return lookup.id + '|' + lookup.label; }

/// Items of one kind with their list. Owns the items; a null name stands for a null pointer.
template<typename Item>
class Items {
public:
    explicit Items(const QStringList &names)
    {
        for (const QString &name : names)
            append(name);
    }

    void append(const QString &name)
    {
        if (!name.isNull())
            owned.push_back(itemCalled<Item>(name));
        list.append(name.isNull() ? nullptr : owned.back().get());
    }

    Item *operator[](int position) const { return list.at(position); }

    QList<Item *> list;

private:
    std::vector<std::unique_ptr<Item>> owned;

    Q_DISABLE_COPY_MOVE(Items)
};

/// A catalogue model with its protected parts in reach.
template<typename Model, typename Item>
class Open : public Model {
public:
    using Model::Model;
    QModelIndex made(int row, int column, Item *item) const { return this->createIndex(row, column, item); }
};

/// A catalogue and its items, with what the contract needs of them in reach. Items are named by position; -1
/// is none.
class Catalogue {
public:
    Catalogue() = default;
    virtual ~Catalogue() = default;
    virtual QAbstractItemModel &model() = 0;
    virtual QModelIndex made(int row, int column, int item) const = 0;
    virtual QVariant textOf(int item, int column) const = 0;
    virtual const void *address(int item) const = 0;
    virtual QString state() const = 0;
    virtual void appendToTheGivenList(const QString &name) = 0;
    virtual void clearTheGivenList() = 0;

private:
    Q_DISABLE_COPY_MOVE(Catalogue)
};

template<typename Model, typename Item>
class CatalogueOf : public Catalogue {
public:
    template<typename... More>
    explicit CatalogueOf(const QStringList &names, More... more)
        : items(names)
        , open(nullptr, &items.list, more...)
        , shown(items.list)
    {
    }
    QAbstractItemModel &model() override { return open; }
    QModelIndex made(int row, int column, int item) const override
    {
        return open.made(row, column, itemAt(item));
    }
    QVariant textOf(int item, int column) const override { return open.getItemData(itemAt(item), column); }
    const void *address(int item) const override { return itemAt(item); }
    QString state() const override
    {
        QStringList states;
        for (const Item *item : shown)
            states += item ? stateOf(*item) : QStringLiteral("none");
        return states.join('\n');
    }
    void appendToTheGivenList(const QString &name) override { items.append(name); }
    void clearTheGivenList() override { items.list.clear(); }

private:
    Item *itemAt(int item) const { return item < 0 ? nullptr : shown.at(item); }

    Items<Item> items;
    Open<Model, Item> open;
    const QList<Item *> shown;
};

/// What a drag of \a indexes carries.
inline QByteArray payloadOf(const QAbstractItemModel &model, const QModelIndexList &indexes)
{
    const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
    return data ? data->data(transferFormat()) : QByteArray("none");
}

/// \a ascii as a big-endian stream of texts holds it: its length in bytes, then two bytes for each character.
inline QByteArray streamed(const QByteArray &ascii)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += char((2 * ascii.size()) >> shift);
    for (const char character : ascii)
        bytes += QByteArray(1, '\0') + character;
    return bytes;
}

/// The texts that \a payload holds, one after the other; "cut" for a broken one.
inline QStringList textsOf(const QByteArray &payload)
{
    QStringList texts;
    const auto byte = [&](int at) { return at < payload.size() ? uchar(payload.at(at)) : 0U; };
    for (int at = 0; at < payload.size();) {
        const int size = int(byte(at) << 24 | byte(at + 1) << 16 | byte(at + 2) << 8 | byte(at + 3));
        at += 4;
        if (size < 0 || size > payload.size() - at)
            return texts += QStringLiteral("cut");
        QString text;
        for (const int end = at + size; at < end; at += 2)
            text += QChar(ushort(byte(at) << 8 | byte(at + 1)));
        texts += text;
    }
    return texts;
}

} // namespace tessel::test
