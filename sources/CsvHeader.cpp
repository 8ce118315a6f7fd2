#include "sources/CsvHeader.h"

#include <QHash>

namespace tessel::sources {
namespace {

/// The first of \a names, for a remark.
QString listed(const QStringList &names)
{
    constexpr int shown = 5;
    QStringList texts;
    for (const QString &name : names.mid(0, shown)) {
        constexpr int longest = 40;
        const QString text = name.simplified();
        texts.append(text.size() > longest ? QString(text.left(longest) + QChar(0x2026)) : text);
    }
    const QString list = texts.join(QLatin1String(", "));
    return names.size() > shown ? CsvHeader::tr("%1 and %n more", nullptr, names.size() - shown).arg(list)
                                : list;
}

} // namespace

CsvHeader::CsvHeader(const QStringList &cells)
{
    for (const QString &cell : cells)
        names.append(cell.trimmed());
    nameAll();
    remarkOnEqualNames();
}

void CsvHeader::nameAll()
{
    QStringList given;
    for (int i = 0; i < names.size(); ++i) {
        if (!names.at(i).isEmpty())
            continue;
        names[i] = QStringLiteral("FIELD_%1").arg(i + 1);
        given.append(names.at(i));
    }
    if (given.size() == 1)
        remarks.append(tr("1 field has no name and is called %1.").arg(given.first()));
    if (given.size() > 1) {
        remarks.append(
            tr("%n fields have no name and are called %1.", nullptr, given.size()).arg(listed(given)));
    }
}

void CsvHeader::remarkOnEqualNames()
{
    QHash<QString, int> counts;
    QStringList repeated;
    for (const QString &name : qAsConst(names)) {
        if (++counts[name] == 2)
            repeated.append(name);
    }
    if (repeated.size() == 1) {
        const int count = counts.value(repeated.first());
        remarks.append(tr("%n fields have the name %1.", nullptr, count).arg(listed(repeated)));
    }
    if (repeated.size() > 1) {
        remarks.append(tr("%n names belong to more than one field: %1.", nullptr, repeated.size())
                           .arg(listed(repeated)));
    }
}

} // namespace tessel::sources
