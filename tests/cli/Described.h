#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace tessel::test {

/// \a text with double quotes for single ones.
inline QByteArray quoted(const char *text) { return QByteArray(text).replace('\'', '"'); }

/// A description of a source without types that has the fields \a names, parted by blanks.
inline QByteArray header(const char *names)
{
    QJsonArray fields;
    for (const QByteArray &name : QByteArray(names).split(' '))
        fields.append(QJsonObject{{QStringLiteral("name"), QString::fromUtf8(name)}});
    return QJsonDocument(QJsonObject{{QStringLiteral("fields"), fields}}).toJson();
}

/// The entities in the list of \a object, each as "NAME(VARIABLE VARIABLE)[entities]".
inline QString outlineOf(const QJsonObject &object)
{
    QStringList entities;
    for (const QJsonValue entity : object["entities"].toArray()) {
        QStringList names;
        for (const QJsonValue variable : entity["variables"].toArray())
            names.append(variable["name"].toString());
        const QString below = outlineOf(entity.toObject());
        entities.append(entity["name"].toString() + '(' + names.join(' ') + ')'
            + (below.isEmpty() ? below : '[' + below + ']'));
    }
    return entities.join(' ');
}

/// The same of the document \a bytes.
inline QString outline(const QByteArray &bytes) { return outlineOf(QJsonDocument::fromJson(bytes).object()); }

} // namespace tessel::test
