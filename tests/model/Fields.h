#pragma once

#include <QString>
#include <QStringList>
#include <QtTest>

#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

namespace tessel::test {

/// True for classes that own something: two of them must never hold the same things.
template<typename Object>
constexpr bool isNeitherCopiedNorMoved =
    !std::is_copy_constructible_v<
        Object> && !std::is_copy_assignable_v<Object> && !std::is_move_constructible_v<Object> && !std::is_move_assignable_v<Object>;

/// True for records that callers keep by value.
template<typename Object>
constexpr bool isPlainRecord = std::is_default_constructible_v<Object> &&std::is_copy_constructible_v<Object>
                                   &&std::is_copy_assignable_v<Object> && !std::is_polymorphic_v<Object>;

inline QString written(const QString &value) { return value; }
inline QString written(int value) { return QString::number(value); }
inline QString written(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }

/// One property of \a Object: how it is read, as text, and how it is set to the text in sample and back to
/// the text in initial.
template<typename Object>
struct Field {
    QString name;
    std::function<QString(const Object &)> read;
    std::function<void(Object &)> fill;
    std::function<void(Object &)> clear;
    QString initial;
    QString sample;
};

/// A property with its initial value and another one. \a get and \a set may be whatever can be called so.
template<typename Object, typename Value, typename Get, typename Set>
Field<Object> makeField(const char *name, Get get, Set set, Value initial, Value sample)
{
    return {
        QString::fromLatin1(name),
        [get](const Object &object) { return written(Value(std::invoke(get, object))); },
        [set, sample](Object &object) { std::invoke(set, object, sample); },
        [set, initial](Object &object) { std::invoke(set, object, initial); },
        written(initial),
        written(sample),
    };
}

// The parameter types are the exact signatures that callers bind to.
template<typename Object>
Field<Object> field(const char *name, QString (Object::*get)() const, void (Object::*set)(const QString &))
{
    return makeField<Object>(
        name, get, set, QString(), QString::fromLatin1(name) + QStringLiteral(" \u00e9"));
}

template<typename Object>
Field<Object> field(const char *name, int (Object::*get)() const, void (Object::*set)(int), int sample)
{
    return makeField<Object>(name, get, set, 0, sample);
}

template<typename Object>
Field<Object> field(
    const char *name, bool (Object::*get)() const, void (Object::*set)(bool), bool initial = false)
{
    return makeField<Object>(name, get, set, initial, !initial);
}

// Public members are read and written directly.
template<typename Object>
Field<Object> field(const char *name, QString Object::*member)
{
    return makeField<Object>(
        name, member, [member](Object &object, const QString &text) { object.*member = text; }, QString(),
        QString::fromLatin1(name) + QStringLiteral(" \u00e9"));
}

template<typename Object>
Field<Object> field(const char *name, int Object::*member, int sample)
{
    return makeField<Object>(
        name, member, [member](Object &object, int number) { object.*member = number; }, 0, sample);
}

/// All properties of a class, and the checks that hold for each of them.
template<typename Object>
class Fields {
public:
    Fields(std::initializer_list<Field<Object>> list)
        : fields(list)
    {
    }

    /// One row for each property, for a data-driven test.
    void addRows() const
    {
        QTest::addColumn<int>("which");
        for (std::size_t which = 0; which < fields.size(); ++which)
            QTest::newRow(qPrintable(fields[which].name)) << int(which);
    }

    /// \a object as text, one line for each property.
    QStringList describe(const Object &object) const
    {
        QStringList lines;
        for (const Field<Object> &each : fields)
            lines += line(each, each.read(object));
        return lines;
    }

    QStringList describeInitial() const
    {
        QStringList lines;
        for (const Field<Object> &each : fields)
            lines += line(each, each.initial);
        return lines;
    }

    QStringList describeFilled() const
    {
        QStringList lines;
        for (const Field<Object> &each : fields)
            lines += line(each, each.sample);
        return lines;
    }

    void fill(Object &object) const
    {
        for (const Field<Object> &each : fields)
            each.fill(object);
    }

    /// Setting one property changes that one alone, in an empty object and in a full one, and back again.
    void checkThatOneStandsAlone(int which) const
    {
        const Field<Object> &one = fields.at(std::size_t(which));
        QStringList expected = describeInitial();
        Object empty;
        one.fill(empty);
        expected[which] = line(one, one.sample);
        QCOMPARE(describe(empty), expected);
        one.clear(empty);
        QCOMPARE(describe(empty), describeInitial());

        Object full;
        fill(full);
        QCOMPARE(describe(full), describeFilled());
        one.clear(full);
        expected = describeFilled();
        expected[which] = line(one, one.initial);
        QCOMPARE(describe(full), expected);
    }

private:
    static QString line(const Field<Object> &field, const QString &value)
    {
        return QStringLiteral("%1: %2").arg(field.name, value);
    }

    std::vector<Field<Object>> fields;
};

} // namespace tessel::test
