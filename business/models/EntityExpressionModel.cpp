#include "business/models/EntityExpressionModel.h"

#include "business/Constants.h"
#include "model/TDmEntity.h"

using namespace tessel::detail;

Columns<TDmEntity> EntityExpressionModel::columns()
{
    static const Column<TDmEntity> table[] = {{nullptr, nullptr}};
    return table;
}

EntityExpressionModel::EntityExpressionModel(
    QObject *parent, QList<TDmEntity *> *entities, eEntityShowMode showMode)
    : TermListModel(parent, entities, showMode)
{
}
