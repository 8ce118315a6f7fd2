#include "sources/EntityNaming.h"

#include "business/models/detail/EntityNameRules.h"
#include "util/DictionaryUtil.h"

namespace tessel::sources {
namespace {

using detail::EntityNameRules;

/// The first characters of \a name, \a most of them, without half a character at the end.
QString cut(const QString &name, int most)
{
    const bool isWhole = name.size() <= most || !name.at(most - 1).isHighSurrogate();
    return name.left(isWhole ? most : most - 1);
}

} // namespace

QString validEntityName(const QString &text)
{
    Validate validate;
    QString name;
    bool isGap = false;
    const QVector<uint> points = text.trimmed().toUcs4();
    for (const uint point : points) {
        const QString character = QString::fromUcs4(&point, 1);
        // A blank at the end would be trimmed before it is judged.
        const bool isGood =
            !character.trimmed().isEmpty() && validate.validateName(QLatin1Char('_') + character);
        if (isGood)
            name += character;
        else if (!isGap)
            name += QLatin1Char('_');
        isGap = !isGood;
    }
    if (!validate.validateName(name))
        name.prepend(QLatin1Char('_'));
    return cut(name, EntityNameRules::kLongest);
}

QString freeEntityName(const QString &text, TDmEntity &root)
{
    DictionaryUtil util;
    const EntityNameRules::Taken taken{util.getGroupEntitiesDictionary(&root, {}),
        util.getNamesEntitiesDictionary(&root, {}), util.getAliasEntitiesDictionary(&root, {})};
    Validate validate;
    const QString stem = validEntityName(text);
    QString name = stem;
    for (int number = 2; EntityNameRules::faultOf(name, taken, validate) != EntityNameRules::Fault::None;
         ++number) {
        const QString tail = QLatin1Char('_') + QString::number(number);
        name = cut(stem, EntityNameRules::kLongest - tail.size()) + tail;
    }
    return name;
}

} // namespace tessel::sources
