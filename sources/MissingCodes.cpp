#include "sources/MissingCodes.h"

#include "sources/SourceNumber.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessel::sources {
namespace {

/// Open bounds arrive as the most extreme number or the one next to it.
constexpr double kOpen = std::numeric_limits<double>::max() / 2;

QString joined(const QVector<int> &codes)
{
    QStringList texts;
    for (const int code : codes)
        texts.append(QString::number(code));
    return texts.join(QLatin1String(", "));
}

} // namespace

MissingCodes::MissingCodes(const QVector<MissingRange> &declared, const QVector<CodeLabel> &labels)
    : known(labels)
{
    for (const MissingRange &range : declared)
        take(range);
    if (!texts.isEmpty())
        reasons.append(tr(
            "%n missing codes are left out, because a field carries whole numbers: %1", nullptr, texts.size())
                           .arg(QLatin1Char('"') + texts.join(QLatin1String("\", \"")) + QLatin1Char('"')));
    choose();
}

bool MissingCodes::saysNotApplicable(const QString &label)
{
    static const QRegularExpression words(
        QStringLiteral("(?<!\\w)(not applicable|n/a|no aplica|no corresponde|sans objet|non "
                       "applicable|n[ãa]o se aplica)(?!\\w)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return words.match(label.normalized(QString::NormalizationForm_C).simplified()).hasMatch();
}

void MissingCodes::take(const MissingRange &range)
{
    if (range.isText)
        texts.append(range.text);
    else if (range.low == range.high)
        takeCode(range.low);
    else
        takeRange(range);
}

void MissingCodes::takeCode(double number)
{
    const std::optional<int> code = wholeCode(number);
    if (!code)
        reasons.append(tr("the missing code %1 is left out: a field carries whole numbers from %2 to %3")
                           .arg(numberText(number))
                           .arg(std::numeric_limits<int>::lowest())
                           .arg(std::numeric_limits<int>::max()));
    else if (!candidates.contains(*code))
        candidates.append(*code);
}

void MissingCodes::takeRange(const MissingRange &range)
{
    QVector<int> labelled;
    bool isAnyLeftOut = false;
    for (const CodeLabel &label : known) {
        if (label.kind != CodeLabel::Kind::Number || !range.holds(label.number))
            continue;
        const std::optional<int> code = wholeCode(label.number);
        isAnyLeftOut = isAnyLeftOut || !code;
        if (code && !labelled.contains(*code))
            labelled.append(*code);
    }
    for (const int code : qAsConst(labelled))
        takeCode(code);
    // Whole numbers are what codes are: a range of them that all have labels is carried.
    if (labelled.isEmpty())
        reasons.append(nothingCarried(range));
    else if (isAnyLeftOut || std::floor(range.high) - std::ceil(range.low) + 1 > labelled.size())
        reasons.append(labelledCarried(range));
}

QString MissingCodes::nothingCarried(const MissingRange &range)
{
    if (range.low <= -kOpen)
        return tr("the missing values up to %1 are left out: a field carries single codes")
            .arg(numberText(range.high));
    if (range.high >= kOpen)
        return tr("the missing values from %1 up are left out: a field carries single codes")
            .arg(numberText(range.low));
    return tr("the missing values from %1 to %2 are left out: a field carries single codes")
        .arg(numberText(range.low), numberText(range.high));
}

QString MissingCodes::labelledCarried(const MissingRange &range)
{
    if (range.low <= -kOpen)
        return tr("the missing values up to %1 are left out but for whole numbers with labels: a field "
                  "carries single codes")
            .arg(numberText(range.high));
    if (range.high >= kOpen)
        return tr("the missing values from %1 up are left out but for whole numbers with labels: a field "
                  "carries single codes")
            .arg(numberText(range.low));
    return tr("the missing values from %1 to %2 are left out but for whole numbers with labels: a field "
              "carries single codes")
        .arg(numberText(range.low), numberText(range.high));
}

void MissingCodes::choose()
{
    const auto notApplicableCode = std::find_if(
        candidates.begin(), candidates.end(), [this](int code) { return saysNotApplicable(labelOf(code)); });
    if (notApplicableCode != candidates.end()) {
        notApplicable = QString::number(*notApplicableCode);
        candidates.erase(notApplicableCode);
    }
    if (!candidates.isEmpty())
        missing = QString::number(candidates.takeFirst());
    if (!candidates.isEmpty() && notApplicable.isEmpty())
        notApplicable = QString::number(candidates.takeFirst());
    if (!candidates.isEmpty())
        reasons.append(
            tr("%n missing codes are left out, because a field carries two: %1", nullptr, candidates.size())
                .arg(joined(candidates)));
}

QString MissingCodes::labelOf(int code) const
{
    const auto label = std::find_if(known.cbegin(), known.cend(), [code](const CodeLabel &candidate) {
        return candidate.kind == CodeLabel::Kind::Number && candidate.number == double(code);
    });
    return label == known.cend() ? QString() : label->label;
}

} // namespace tessel::sources
