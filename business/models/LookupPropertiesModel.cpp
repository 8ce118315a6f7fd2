#include "business/models/LookupPropertiesModel.h"

#include "business/Constants.h"

using namespace tessel::constants;
using namespace tessel::detail;

Columns<TDmLookup> LookupPropertiesModel::columns()
{
    static const Column<TDmLookup> table[] = {
        {nullptr,
            [](const TDmLookup &lookup) -> QVariant {
                return QString(lookup.id + QLatin1Char('-') + lookup.label);
            }},
    };
    return table;
}

LookupPropertiesModel::LookupPropertiesModel(QObject *parent, QList<TDmLookup *> *lookups)
    : CatalogueModel(parent)
{
    fill(lookups);
}

QLatin1String LookupPropertiesModel::iconOf(TDmLookup &) const { return kIconProjectPreferences; }

QJsonObject LookupPropertiesModel::transferObject(TDmLookup &lookup) const
{
    return {
        {QStringLiteral("name"), lookup.getId()},
        {QStringLiteral("label"), lookup.getLabel()},
        // A text, where the other catalogues write a number: meant so. The reader makes 0 of it.
        {QStringLiteral("tag"), QStringLiteral("*")},
        {QStringLiteral("type"), QStringLiteral("LOOKUP")},
    };
}
