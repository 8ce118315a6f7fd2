#include "sources/FieldMaker.h"

#include "sources/CategoriesText.h"
#include "sources/MissingCodes.h"
#include "sources/SourceNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessel::sources {
namespace {

using Storage = StatisticalVariable::Storage;

QString provider(StatisticalFormat format)
{
    switch (format) {
    case StatisticalFormat::Sav:
    case StatisticalFormat::Por:
        return QStringLiteral("SPSS");
    case StatisticalFormat::Dta:
        return QStringLiteral("STATA");
    case StatisticalFormat::Sas7bdat:
    case StatisticalFormat::Xpt:
        break;
    }
    return QStringLiteral("SAS");
}

/// Whether there are labels and they all belong to whole numbers: a variable with such codes has no decimals.
bool areWholeCodes(const QVector<CodeLabel> &labels)
{
    const auto isCode = [](const CodeLabel &label) {
        return label.kind == CodeLabel::Kind::Tag
            || (label.kind == CodeLabel::Kind::Number && wholeCode(label.number));
    };
    return !labels.isEmpty() && std::all_of(labels.cbegin(), labels.cend(), isCode);
}

/// Whether a number that is stored as \a storage is whole. What was read of the values, \a tally, goes before
/// what the format says: dates in seconds, for example, do not fit in an int.
bool isInteger(
    Storage storage, const DisplayFormat &shown, const QVector<CodeLabel> &labels, const ValueTally *tally)
{
    if (storage != Storage::Float && storage != Storage::Double)
        return true;
    const bool isWhole = shown.decimals ? *shown.decimals == 0 && !shown.outgrowsInt : areWholeCodes(labels);
    return isWhole && (!tally || tally->areWhole());
}

/// Whether \a variable has texts of any length, which Stata stores apart: its records hold none of them.
bool isLongText(StatisticalFormat format, const StatisticalVariable &variable)
{
    return variable.storage == Storage::LongText
        || (format == StatisticalFormat::Dta && variable.storage == Storage::Text
            && variable.storageWidth == 0);
}

/// The width of what is stored, in bytes: the texts of Stata come with one for the zero byte behind them.
int storedWidth(StatisticalFormat format, const StatisticalVariable &variable)
{
    const bool hasZeroByte = format == StatisticalFormat::Dta && variable.storage == Storage::Text;
    return std::max(0, variable.storageWidth - (hasZeroByte ? 1 : 0));
}

/// The width of the widest value that is stored as \a storage, its sign included; 0 when it depends.
int widestValue(Storage storage)
{
    switch (storage) {
    case Storage::Byte:
        return 4; // -127
    case Storage::Int:
        return 6; // -32767
    case Storage::Long:
        return 11; // -2147483647
    case Storage::Text:
    case Storage::LongText:
    case Storage::Float:
    case Storage::Double:
        break;
    }
    return 0;
}

} // namespace

FieldMaker::FieldMaker(StatisticalFormat format, const StatisticalContent &content)
    : fileFormat(format)
    , source(content)
{
}

std::unique_ptr<TDmSourceField> FieldMaker::make(int place, const ValueTally *tally)
{
    const StatisticalVariable &variable = source.variables.at(place);
    const LabelSet set = source.labelSets.value(variable.labelSet);
    shown = displayFormat(fileFormat, variable.format);
    field = std::make_unique<TDmSourceField>();
    field->name = variable.name;
    field->label = variable.label;
    field->dataProviderType = provider(fileFormat);
    field->relativePosition = place + 1;
    if (variable.mends.isCut || set.mends.isCut)
        note(tr("texts of more than %1 characters were cut there").arg(kMostTextCharacters));
    if (!variable.labelsNotFound.isEmpty())
        note(tr("the value labels of the format %1 are not in the catalogue").arg(variable.labelsNotFound));
    if (!variable.labelSet.isEmpty() && !source.labelSets.contains(variable.labelSet))
        note(tr("the value labels \"%1\" are not in the file").arg(variable.labelSet));
    if (variable.mends.isForeign || set.mends.isForeign)
        foreign.append(variable.name);
    setType(variable, set.labels, tally);
    setSize(variable, tally);
    setCategories(set.labels, tally);
    setRange(variable, set.labels, tally);
    const MissingCodes codes(variable.missing, set.labels);
    field->missing = codes.missing;
    field->notApp = codes.notApplicable;
    for (const QString &reason : codes.reasons)
        note(reason);
    return std::move(field);
}

void FieldMaker::setType(
    const StatisticalVariable &variable, const QVector<CodeLabel> &labels, const ValueTally *tally)
{
    if (variable.isText()) {
        field->fieldType = QStringLiteral("STRING");
        return;
    }
    field->fieldType = isInteger(variable.storage, shown, labels, tally) ? QStringLiteral("INTEGER")
                                                                         : QStringLiteral("REAL");
    if (field->fieldType == QLatin1String("REAL"))
        field->decimals = shown.decimals.value_or(0);
    if (shown.isDate)
        note(tr("is a date of the format %1 and stays a number").arg(variable.format));
}

void FieldMaker::setSize(const StatisticalVariable &variable, const ValueTally *tally)
{
    const bool isStata = fileFormat == StatisticalFormat::Dta;
    const int stored = isStata ? widestValue(variable.storage) : 0;
    if (isLongText(fileFormat, variable)) {
        field->size = tally ? tally->longestText() : 0;
        note(tr("is a text of any length, for which no size is declared"));
    } else if (stored > 0) {
        field->size = stored;
    } else if (shown.width > 0 && !(isStata && variable.isText())) {
        field->size = shown.width;
    } else {
        field->size = storedWidth(fileFormat, variable);
    }
}

void FieldMaker::setCategories(const QVector<CodeLabel> &labels, const ValueTally *tally)
{
    if (labels.isEmpty()) {
        field->categories = tally && !shown.isDate ? tally->categories() : QString();
        return;
    }
    CategoriesText categories;
    QStringList tags;
    for (const CodeLabel &label : labels) {
        if (label.kind == CodeLabel::Kind::Tag)
            tags.append(label.text);
        else
            categories.add(
                label.kind == CodeLabel::Kind::Number ? numberText(label.number) : label.text, label.label);
    }
    field->categories = categories.text();
    if (!tags.isEmpty())
        note(tr("%n missing codes are left out with their labels, because a category's code is a number or a "
                "text: %1",
            nullptr, tags.size())
                 .arg(tags.join(QLatin1String(", "))));
    const QStringList reasons = categories.reasons();
    for (const QString &reason : reasons)
        note(reason);
}

void FieldMaker::setRange(
    const StatisticalVariable &variable, const QVector<CodeLabel> &labels, const ValueTally *tally)
{
    if (variable.isText())
        return;
    if (tally && tally->least()) {
        setBounds(*tally->least(), *tally->greatest());
        return;
    }
    QVector<double> codes;
    for (const CodeLabel &label : labels) {
        if (label.kind == CodeLabel::Kind::Number && !variable.isDeclaredMissing(label.number))
            codes.append(label.number);
    }
    // One code alone is the name of an exception ("0 none") rather than all that the values can be.
    if (codes.size() >= 2)
        setBounds(
            *std::min_element(codes.cbegin(), codes.cend()), *std::max_element(codes.cbegin(), codes.cend()));
}

void FieldMaker::setBounds(double low, double high)
{
    const bool isWhole = field->fieldType == QLatin1String("INTEGER");
    if (isWhole && (!wholeCode(std::floor(low)) || !wholeCode(std::ceil(high)))) {
        note(tr("the range from %1 to %2 is left out: a field carries whole numbers from %3 to %4")
                 .arg(numberText(low), numberText(high))
                 .arg(std::numeric_limits<int>::lowest())
                 .arg(std::numeric_limits<int>::max()));
        return;
    }
    field->rangeMin = numberText(isWhole ? std::floor(low) : low);
    field->rangeMax = numberText(isWhole ? std::ceil(high) : high);
}

void FieldMaker::note(const QString &reason) { noted.append({field->name, reason}); }

DisplayFormat displayFormat(StatisticalFormat fileFormat, const QString &format)
{
    switch (fileFormat) {
    case StatisticalFormat::Sav:
    case StatisticalFormat::Por:
        return DisplayFormat::ofSpss(format);
    case StatisticalFormat::Dta:
        return DisplayFormat::ofStata(format);
    case StatisticalFormat::Sas7bdat:
    case StatisticalFormat::Xpt:
        break;
    }
    return DisplayFormat::ofSas(format);
}

} // namespace tessel::sources
