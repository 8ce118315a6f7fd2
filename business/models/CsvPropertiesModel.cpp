#include "business/models/CsvPropertiesModel.h"

#include "business/Constants.h"

using namespace tessel::constants;
using namespace tessel::detail;

Columns<TDmSourceField> CsvPropertiesModel::columns()
{
    static const Column<TDmSourceField> table[] = {
        {nullptr, [](const TDmSourceField &field) -> QVariant { return field.name; }},
    };
    return table;
}

CsvPropertiesModel::CsvPropertiesModel(QObject *parent, QList<TDmSourceField *> *fields)
    : CatalogueModel(parent)
{
    fill(fields);
}

QLatin1String CsvPropertiesModel::iconOf(TDmSourceField &) const { return kIconProjectPreferences; }

QJsonObject CsvPropertiesModel::transferObject(TDmSourceField &field) const
{
    return {{QStringLiteral("name"), field.name}, {QStringLiteral("tag"), -1}};
}
