#include "business/models/CategoryExpressionModel.h"

#include "business/Constants.h"
#include "model/ValueLabelElement.h"

using namespace tessel::detail;

Columns<ValueLabelElement> CategoryExpressionModel::columns()
{
    static const Column<ValueLabelElement> table[] = {{nullptr, nullptr}};
    return table;
}

CategoryExpressionModel::CategoryExpressionModel(
    QObject *parent, QList<ValueLabelElement *> *categories, eEntityShowMode showMode)
    : ExpressionListModel(parent, categories, showMode)
{
}

QString CategoryExpressionModel::textOf(const ValueLabelElement &category) const
{
    // No blanks around the hyphen, and nothing left out in any mode: meant so.
    return category.getValue() + QLatin1Char('-') + category.getLabel();
}

// Past what the other lists have, to Qt's own: meant so.
// NOLINTBEGIN(bugprone-parent-virtual-call)
QStringList CategoryExpressionModel::mimeTypes() const { return QAbstractItemModel::mimeTypes(); }

Qt::DropActions CategoryExpressionModel::supportedDropActions() const
{
    return QAbstractItemModel::supportedDropActions();
}
// NOLINTEND(bugprone-parent-virtual-call)
