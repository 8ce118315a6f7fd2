#include "business/models/detail/TransferredVariable.h"

#include "business/Constants.h"
#include "business/models/detail/NearestInt.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"

#include <QJsonDocument>

#include <memory>

using namespace tessel::constants;

namespace tessel::detail {
namespace {

/// A field's name, split into what becomes the variable's name and its alias.
struct Names {
    QString name;
    QString alias;
};

Names namesOf(const QString &field)
{
    constexpr int shortest = 4;
    if (field.size() < shortest)
        return {field, QString()};
    if (field.startsWith(QLatin1String("ID_")))
        return {QStringLiteral("ID"), field.mid(3)};
    // A question's number, as in P12_AGE.
    const int underscore = field.indexOf(kUnderscore);
    if (underscore >= 0 && field.at(1).isDigit())
        return {field.left(underscore), field.mid(underscore + 1)};
    return {field, QString()};
}

} // namespace

TransferredVariable::TransferredVariable(const QString &json)
    : field(QJsonDocument::fromJson(json.toUtf8()).object())
{
}

void TransferredVariable::giveNames(TDmVariable &variable) const
{
    const QString whole = text(QLatin1String("name"));
    const Names names = namesOf(whole);
    variable.setName(names.name);
    variable.setAlias(names.alias);
    variable.getMetadataVariables()->setField(whole);
    variable.setLabel(text(QLatin1String("label")));
    variable.setTag(value(QLatin1String("tag")).toInt());
}

void TransferredVariable::giveTypeAndCodes(TDmVariable &variable) const
{
    if (field.contains(QLatin1String("fieldType")))
        variable.setVarType(text(QLatin1String("fieldType")));
    giveRange(variable);
    // The source's own position is not used: meant so.
    variable.setFieldRelativePosition(1);
    variable.setDecimals(value(QLatin1String("fieldDecimals")).toInt());
    variable.setFieldSize(value(QLatin1String("fieldSize")).toInt());
    variable.setSize(value(QLatin1String("fieldSize")).toInt());

    const bool isLookup = text(QLatin1String("type")) == QLatin1String("LOOKUP");
    variable.getMetadataVariables()->setLookup(isLookup);
    if (!isLookup)
        return;
    constexpr int lookupSize = 64;
    variable.setVarType(kTypeString);
    variable.setFieldSize(lookupSize);
    variable.setSize(lookupSize);
    variable.setMissing(0);
    variable.setNotappl(0);
}

/// The range that the source declares, and codes beyond it.
void TransferredVariable::giveRange(TDmVariable &variable) const
{
    if (variable.getVarType() == kTypeString) {
        variable.getMetadataVariables()->setRange(new QList<Range *>);
        variable.setMissing(0);
        variable.setNotappl(0);
        return;
    }
    const QString lowest = text(QLatin1String("fieldRangeMin"));
    const QString highest = text(QLatin1String("fieldRangeMax"));
    const bool isInteger = variable.getVarType() == kTypeInteger;
    auto range = std::make_unique<Range>();
    range->setRangeMin(isInteger ? lowest.toInt() : lowest.toDouble());
    range->setRangeMax(isInteger ? highest.toInt() : highest.toDouble());
    const double min = range->getRangeMin();
    const double max = range->getRangeMax();
    variable.getMetadataVariables()->addItemRange(range.release());

    // A range that begins above 1 leaves 1 for the missing code, even where 1 is no sign of a missing value:
    // meant so.
    if (min > 1.0) {
        variable.setNotappl(0);
        variable.setMissing(1);
        return;
    }
    variable.setNotappl(min > 0.0 ? 0 : NearestInt::of(max + 2.0));
    variable.setMissing(NearestInt::of(max + 1.0));
}

} // namespace tessel::detail
