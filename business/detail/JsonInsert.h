#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1String>
#include <QString>

/// Keys of a JSON object, inserted one by one.
namespace tessel::detail {

/// Any value. Should memory run out, \a out is as it was: on its own an object keeps the new key without a
/// value, and whoever reads it then crashes. A key that has a place already is replaced whole or not at all.
inline void insertValue(QJsonObject &out, QLatin1String key, const QJsonValue &value)
{
    if (out.contains(key)) {
        out.insert(key, value);
        return;
    }
    out.insert(key, QJsonValue());
    try {
        out.insert(key, value);
    } catch (...) {
        out.remove(key);
        throw;
    }
}

/// A text, when there is one to write.
inline void insertText(QJsonObject &out, QLatin1String key, const QString &text)
{
    if (!text.isEmpty())
        insertValue(out, key, text);
}

/// An array, when there is something in it.
inline void insertArray(QJsonObject &out, QLatin1String key, const QJsonArray &array)
{
    if (!array.isEmpty())
        insertValue(out, key, array);
}

/// The same steps as JsonText's, taken on an object.
class JsonInsert {
public:
    explicit JsonInsert(QJsonObject &object)
        : out(object)
    {
    }

    void text(const char *name, const QString &value) { out.insert(QLatin1String(name), value); }
    void boolean(const char *name, bool value) { out.insert(QLatin1String(name), value); }
    void integer(const char *name, int value) { out.insert(QLatin1String(name), value); }
    void real(const char *name, double value) { out.insert(QLatin1String(name), value); }

    template<typename Fill>
    void object(const char *name, Fill &&fill)
    {
        out.insert(QLatin1String(name), nested(fill));
    }

    template<typename List, typename Fill>
    void objects(const char *name, const List &list, Fill &&fill)
    {
        QJsonArray array;
        for (const auto *item : list) {
            if (item)
                array.append(nested([&](JsonInsert &inner) { fill(inner, *item); }));
        }
        insertArray(out, QLatin1String(name), array);
    }

private:
    template<typename Fill>
    static QJsonObject nested(Fill &&fill)
    {
        QJsonObject object;
        JsonInsert inner(object);
        fill(inner);
        return object;
    }

    QJsonObject &out;
};

} // namespace tessel::detail
