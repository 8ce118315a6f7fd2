#include "business/models/DatasetPropertiesFieldsModel.h"

#include "business/Constants.h"

#include <QDebug>

using namespace tessel::constants;
using namespace tessel::detail;

namespace {

enum DatasetColumn { NameColumn, LabelColumn, TagColumn };

} // namespace

Columns<TDmSourceField> DatasetPropertiesFieldsModel::columns()
{
    static const Column<TDmSourceField> table[] = {
        {"Field", [](const TDmSourceField &field) -> QVariant { return field.name; }},
        {"Label", [](const TDmSourceField &field) -> QVariant { return field.label; }},
        {"Tag", nullptr},
    };
    return table;
}

DatasetPropertiesFieldsModel::DatasetPropertiesFieldsModel(
    QObject *parent, QList<TDmSourceField *> *fields, QString filter)
    : CatalogueModel(parent)
{
    int position = 0;
    fill(fields, [&](TDmSourceField *field) {
        ++position;
        // Fields that are not shown are numbered too: meant so.
        if (field)
            field->tag = position;
        return filter == QLatin1String("*") || (field && field->selection == filter);
    });
    if (fields)
        tagWidth = QString::number(fields->size()).size();
}

QVariant DatasetPropertiesFieldsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const Column<TDmSourceField> *column = columns().at(section);
    const bool isShown = column && orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isShown ? QVariant(QString::fromLatin1(column->header)) : QVariant();
}

QVariant DatasetPropertiesFieldsModel::getItemData(TDmSourceField *field, int column) const
{
    if (field && column == TagColumn)
        return QStringLiteral("%1").arg(field->tag, tagWidth, 10, QLatin1Char('0'));
    return CatalogueModel::getItemData(field, column);
}

QLatin1String DatasetPropertiesFieldsModel::iconOf(TDmSourceField &field) const
{
    // To the letter, unlike the types of variables: meant so.
    const QString type = field.getFieldType();
    if (type == kTypeString)
        return kIconString;
    if (type == kTypeReal)
        return kIconRealNumber;
    return type == kTypeInteger ? kIconIntegerNumber : kIconNumberPlaceholder;
}

QJsonObject DatasetPropertiesFieldsModel::transferObject(TDmSourceField &field) const
{
    return {
        {QStringLiteral("name"), field.name},
        {QStringLiteral("label"), field.label},
        {QStringLiteral("tag"), field.tag},
        {QStringLiteral("categories"), laodDataCategories(&field)},
        {QStringLiteral("fieldType"), field.getFieldType()},
        {QStringLiteral("fieldRangeMin"), field.rangeMin},
        {QStringLiteral("fieldRangeMax"), field.rangeMax},
        {QStringLiteral("fieldRelativePosition"), field.relativePosition},
        {QStringLiteral("fieldDecimals"), field.decimals},
        {QStringLiteral("fieldSize"), field.size},
        {QStringLiteral("fieldMissing"), field.missing},
        {QStringLiteral("fieldNotApp"), field.notApp},
        {QStringLiteral("dataProviderType"), field.getDataProviderType()},
    };
}

QJsonArray DatasetPropertiesFieldsModel::laodDataCategories(TDmSourceField *field) const
{
    QJsonArray categories;
    if (!field)
        return categories;
    const QStringList parts = field->categories.split(kTab);
    for (const QString &part : parts) {
        if (part.isEmpty())
            continue;
        const int blank = part.indexOf(kBlank);
        const QString code = part.left(blank).trimmed();
        const QString label = blank < 0 ? QString() : part.mid(blank).trimmed();
        qDebug() << code;
        qDebug() << label;
        categories.append(QJsonObject{
            {QStringLiteral("codigoCategoria"), code},
            {QStringLiteral("nombreCategoria"), label},
        });
    }
    return categories;
}
