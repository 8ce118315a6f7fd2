#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

namespace tessel::test {

/// The bytes of the file \a name.
inline QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

/// Makes \a bytes the content of the file \a name; false when that fails.
inline bool put(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A dictionary of one entity in normal form; \a entity is its name.
inline QByteArray dictionaryOf(const char *entity)
{
    return QByteArray(R"({
    "entities": [
        {
            "name": "%",
            "selectable": false,
            "virtual": false
        }
    ],
    "selectable": false,
    "virtual": false
}
)")
        .replace('%', entity);
}

/// A dictionary that holds, besides \a entity, two values that dictionaries do not keep.
inline QByteArray lossyDictionaryOf(const char *entity)
{
    return QByteArray(R"({"colour": "red", "entities": [{"name": "%", "shape": 5}]})").replace('%', entity);
}

/// The names of all that \a folder holds, hidden files included.
inline QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace tessel::test
