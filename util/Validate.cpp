#include "util/Validate.h"

#include <QChar>
#include <QVector>

#include <algorithm>

Validate::Validate() = default;

bool Validate::validateEmpty(QString text) { return !text.trimmed().isEmpty(); }

bool Validate::validateName(QString text)
{
    // Code points, not QChars: letters beyond U+FFFF count. An unpaired surrogate becomes U+FFFD, which is no
    // letter.
    const QVector<uint> points = text.trimmed().toUcs4();
    const auto canLead = [](uint point) { return point == U'_' || QChar::isLetter(point); };
    const auto canFollow = [&canLead](uint point) {
        return canLead(point) || QChar::category(point) == QChar::Number_DecimalDigit;
    };
    return !points.isEmpty() && canLead(points.first())
        && std::all_of(points.cbegin(), points.cend(), canFollow);
}

bool Validate::validateStringC(QString text)
{
    const auto isRefused = [](QChar c) {
        const ushort unit = c.unicode();
        return unit < 0x20 || (unit >= 0x7f && unit <= 0x9f) || unit == u'"' || unit == u'\\';
    };
    return text.isValidUtf16() && std::none_of(text.cbegin(), text.cend(), isRefused);
}

bool Validate::compare(QStringList taken, QString text)
{
    const QString wanted = text.trimmed();
    return std::any_of(
        taken.cbegin(), taken.cend(), [&wanted](const QString &entry) { return entry.trimmed() == wanted; });
}
