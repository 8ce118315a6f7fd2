#include "bench/GeneratedDictionary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessel::bench {
namespace {

constexpr int kEntities = 7;
constexpr int kLabels = 10;

QJsonValue code(int number, const QString &type)
{
    if (type == QLatin1String("integer"))
        return number;
    if (type == QLatin1String("real"))
        return number + 0.5;
    return QStringLiteral("C%1").arg(number);
}

/// Two thirds of a census dictionary's variables are whole numbers.
QString typeOf(int number)
{
    static const QString types[] = {QStringLiteral("integer"), QStringLiteral("integer"),
        QStringLiteral("string"), QStringLiteral("integer"), QStringLiteral("real"),
        QStringLiteral("integer")};
    return types[number % 6];
}

QJsonObject variable(int number)
{
    const QString name = QStringLiteral("VAR_%1").arg(number, 6, 10, QLatin1Char('0'));
    const QString type = typeOf(number);
    QJsonArray labels;
    for (int i = 1; i <= kLabels; ++i) {
        labels.append(QJsonObject{{QStringLiteral("value"), code(number % 90 * 10 + i, type)},
            {QStringLiteral("label"), QStringLiteral("Categoría %1 de %2").arg(i).arg(name)}});
    }
    QJsonObject out{
        {QStringLiteral("fileName"), QString()},
        {QStringLiteral("local"), false},
        {QStringLiteral("name"), name},
        {QStringLiteral("alias"), QStringLiteral("P%1").arg(number)},
        {QStringLiteral("label"), QStringLiteral("Question number %1 of the form").arg(number)},
        {QStringLiteral("group"), QStringLiteral("GROUP_%1").arg(number / 20)},
        {QStringLiteral("type"), type},
        {QStringLiteral("tag"), number + 1},
        {QStringLiteral("notapp"), 998},
        {QStringLiteral("missing"), 999},
        {QStringLiteral("metadata"),
            QJsonObject{
                {QStringLiteral("field"), name},
                {QStringLiteral("start"), number * 3 + 1},
                {QStringLiteral("length"), 3},
                {QStringLiteral("range"),
                    QJsonArray{QJsonObject{{QStringLiteral("min"), 0}, {QStringLiteral("max"), 910.5}}}},
            }},
        {QStringLiteral("valueLabels"), labels},
    };
    if (type == QLatin1String("string"))
        out.insert(QStringLiteral("size"), 4);
    return out;
}

} // namespace

QByteArray generatedDictionary(int variables)
{
    QJsonObject inner;
    for (int level = kEntities; level >= 1; --level) {
        QJsonArray list;
        for (int i = variables * (level - 1) / kEntities; i < variables * level / kEntities; ++i)
            list.append(variable(i));
        QJsonObject entity{
            {QStringLiteral("name"), QStringLiteral("ENTITY_%1").arg(level)},
            {QStringLiteral("selectable"), true},
            {QStringLiteral("virtual"), false},
        };
        if (!list.isEmpty())
            entity.insert(QStringLiteral("variables"), list);
        if (!inner.isEmpty())
            entity.insert(QStringLiteral("entities"), QJsonArray{inner});
        inner = entity;
    }
    const QJsonObject document{{QStringLiteral("name"), QStringLiteral("DICTIONARY")},
        {QStringLiteral("selectable"), false}, {QStringLiteral("virtual"), false},
        {QStringLiteral("entities"), QJsonArray{inner}}};
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}

} // namespace tessel::bench
