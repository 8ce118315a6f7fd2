#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <charconv>

/// QVariant's conversions, with a short cut for values that already have the wanted type. A parsed document
/// holds millions of values, nearly all of the expected type; the results are the same.
namespace tessel::detail {

using Object = QMap<QString, QVariant>;

/// \a value as QVariant::toString() gives it.
inline QString textOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return *static_cast<const QString *>(value.constData());
    case QMetaType::LongLong: {
        char digits[24];
        const auto written =
            std::to_chars(digits, digits + sizeof digits, *static_cast<const qlonglong *>(value.constData()));
        return QString::fromLatin1(digits, int(written.ptr - digits));
    }
    default:
        return value.toString();
    }
}

/// Calls \a visit with the list that \a value converts to.
template<typename Visit>
void withList(const QVariant &value, Visit &&visit)
{
    if (value.userType() == QMetaType::QVariantList)
        visit(*static_cast<const QVariantList *>(value.constData()));
    else
        visit(value.toList());
}

/// Calls \a visit with the map that \a value converts to.
template<typename Visit>
void withObject(const QVariant &value, Visit &&visit)
{
    if (value.userType() == QMetaType::QVariantMap)
        visit(*static_cast<const Object *>(value.constData()));
    else
        visit(value.toMap());
}

/// Tells how an item of a list was given; some of its keys are read differently.
enum class Standing { InArray, Alone };

/// The rule for all lists of a document: each element of an array is one item, and one object standing alone
/// is a list of one. Calls \a expect with the length of the array, then \a visit with each item and how it
/// was given.
template<typename Expect, typename Visit>
void forEachItem(const QVariant &value, Expect &&expect, Visit &&visit)
{
    withList(value, [&](const QVariantList &items) {
        expect(items.size());
        for (const QVariant &item : items)
            withObject(item, [&visit](const Object &object) { visit(object, Standing::InArray); });
    });
    withObject(value, [&visit](const Object &object) {
        if (!object.isEmpty())
            visit(object, Standing::Alone);
    });
}

} // namespace tessel::detail
