#include "sources/CategoriesText.h"

#include <algorithm>

namespace tessel::sources {
namespace {

bool isBreak(QChar c)
{
    return (c.unicode() >= 0x09 && c.unicode() <= 0x0d) || c.unicode() == 0x85 || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator;
}

/// \a label on one line: a line end of two characters becomes one blank.
QString onOneLine(QString label)
{
    label.replace(QLatin1String("\r\n"), QLatin1String(" "));
    std::replace_if(label.begin(), label.end(), isBreak, QLatin1Char(' '));
    return label;
}

QString quoted(const QStringList &codes)
{
    return QLatin1Char('"') + codes.join(QLatin1String("\", \"")) + QLatin1Char('"');
}

} // namespace

bool CategoriesText::isCarried(const QString &code)
{
    // The blank of no width is dropped on the way when it stands first, as if it were a file's byte-order
    // mark.
    return !code.isEmpty() && std::none_of(code.cbegin(), code.cend(), [](QChar c) {
        return c.isSpace() || isBreak(c) || c == QChar::ByteOrderMark;
    });
}

void CategoriesText::add(const QString &code, const QString &label)
{
    if (code.isEmpty()) {
        ++emptyCodes;
        return;
    }
    if (!isCarried(code)) {
        uncarriedCodes.append(onOneLine(code));
        return;
    }
    const QString line = onOneLine(label);
    mendedLabels += line == label ? 0 : 1;
    categories.append(line.trimmed().isEmpty() ? code : code + QLatin1Char(' ') + line);
}

QStringList CategoriesText::reasons() const
{
    QStringList reasons;
    if (emptyCodes > 0)
        reasons.append(tr("%n empty codes are left out with their labels, because a category needs a code",
            nullptr, emptyCodes));
    if (!uncarriedCodes.isEmpty())
        reasons.append(tr("%n codes are left out, because a category's code cannot hold a blank: %1", nullptr,
            uncarriedCodes.size())
                           .arg(quoted(uncarriedCodes)));
    if (mendedLabels > 0)
        reasons.append(tr("tabs and line ends in %n labels became blanks", nullptr, mendedLabels));
    return reasons;
}

} // namespace tessel::sources
