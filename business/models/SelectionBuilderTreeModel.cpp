#include "business/models/SelectionBuilderTreeModel.h"

#include "business/Constants.h"

#include <QDebug>
#include <QIcon>

using namespace tessel::constants;

namespace {

Qt::CheckState checkStateOf(const SelectionTreeUnit &unit)
{
    switch (unit.getUnitState()) {
    case 1:
        return Qt::PartiallyChecked;
    case 2:
        return Qt::Checked;
    default:
        return Qt::Unchecked;
    }
}

} // namespace

SelectionBuilderTreeModel::SelectionBuilderTreeModel(
    QObject *parent, SelectionTreeUnit *rootUnit, bool withCode, bool withName)
    : TreeModel(parent, rootUnit)
    , useUnitCode(withCode)
    , prefixUnitName(withName)
{
}

QModelIndex SelectionBuilderTreeModel::parent(const QModelIndex &child) const
{
    SelectionTreeUnit *unit = nodeOf(child);
    if (!unit || unit->getLevel() == 1)
        return QModelIndex();
    unit->setIndex(recorrerStructuraArbol(unit, root, root));
    return unit->getIndex();
}

int SelectionBuilderTreeModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() && !nodeOf(parent)) {
        qDebug("Row Count 3");
        return 0;
    }
    return TreeModel::rowCount(parent);
}

QVariant SelectionBuilderTreeModel::data(const QModelIndex &index, int role) const
{
    SelectionTreeUnit *unit = nodeOf(index);
    if (!unit)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return getItemData(unit, index.column());
    case Qt::DecorationRole:
        if (index.column() == 0 && unit->getName() == QLatin1String("NMIR"))
            return QIcon(kIconAbout);
        return QVariant();
    case Qt::CheckStateRole:
        return index.column() == 0 ? QVariant(checkStateOf(*unit)) : QVariant();
    case Qt::UserRole:
        qDebug("U SER  ROLE "); // The blanks are meant so.
        return QVariant();
    default:
        return QVariant();
    }
}

Qt::ItemFlags SelectionBuilderTreeModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = QAbstractItemModel::flags(index);
    return index.column() == 0 ? base | Qt::ItemIsUserCheckable : base;
}

QVariant SelectionBuilderTreeModel::getItemData(SelectionTreeUnit *unit, int column) const
{
    if (!unit || column != 0)
        return QVariant();
    const auto area = unit->getArea();
    QString text;
    if (prefixUnitName && unit->getLevel() != 1)
        text += unit->getName() + QLatin1String(" | ");
    text += (useUnitCode ? unit->getCode() : QString::fromStdString(area.first)) + QLatin1Char(' ');
    text += QString::fromStdString(area.second);
    return text;
}

QList<SelectionTreeUnit *> SelectionBuilderTreeModel::getData() const { return rootList; }
