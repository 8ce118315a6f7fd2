#pragma once

#include "business/models/detail/TransferListModel.h"

#include <QIcon>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessel::detail {

/// Internal: the catalogues of what the sources offer. They are read-only and drag out one JSON object per
/// cell.
template<typename Derived, typename Item>
class CatalogueModel : public TransferListModel<Derived, Item> {
public:
    /// The transfer object of each index in \a indexes, in order; an index without an item is skipped. The
    /// caller owns what is returned.
    QMimeData *mimeData(const QModelIndexList &indexes) const override
    {
        QStringList texts;
        for (const QModelIndex &index : indexes) {
            if (Item *item = this->itemOf(index)) {
                const QJsonDocument document(transferObject(*item));
                texts.append(QString::fromUtf8(document.toJson().constData()));
            }
        }
        return FieldTransfer::wrapped(texts);
    }

    /// Takes nothing: false. Qt's own would read fields as if they were its own items, and foreign bytes can
    /// make it fall over.
    bool dropMimeData(const QMimeData *, Qt::DropAction, int, int, const QModelIndex &) override
    {
        return false;
    }

protected:
    explicit CatalogueModel(QObject *parent)
        : TransferListModel<Derived, Item>(parent, TransferListModel<Derived, Item>::EditText::Hidden)
    {
    }

    QVariant markData(Item &item, int column, int role) const override
    {
        return column == 0 && role == Qt::DecorationRole ? QVariant(QIcon(iconOf(item))) : QVariant();
    }

    /// The resource path of what stands before \a item.
    virtual QLatin1String iconOf(Item &item) const = 0;

    /// What a drag carries of \a item.
    virtual QJsonObject transferObject(Item &item) const = 0;
};

} // namespace tessel::detail
