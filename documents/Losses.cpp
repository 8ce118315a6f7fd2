#include "documents/Losses.h"

#include "documents/DocumentForm.h"
#include "documents/SourceAudit.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace tessel::documents {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::documents::Loss", text); }

/// How the values of a key are held, and so what it means that the key is absent.
enum class Holding { Text, Code, Type, Whole, Real, Flag, SetFlag, Names, Object, Objects };

struct Shape;

/// One key that the readers know.
struct KeyShape {
    QLatin1String name;
    Holding holding;
    const Shape *inner = nullptr; ///< What an object or the objects of a list hold.
};

/// The keys of one kind of object.
struct Shape {
    QVector<KeyShape> keys;

    const KeyShape *find(const QString &name) const
    {
        for (const KeyShape &key : keys) {
            if (name == key.name)
                return &key;
        }
        return nullptr;
    }
};

const Shape &labelShape()
{
    static const Shape shape{
        {{QLatin1String("label"), Holding::Text}, {QLatin1String("value"), Holding::Code}}};
    return shape;
}

const Shape &rangeShape()
{
    static const Shape shape{{{QLatin1String("min"), Holding::Real}, {QLatin1String("max"), Holding::Real}}};
    return shape;
}

const Shape &layoutShape()
{
    static const Shape shape{{
        {QLatin1String("range"), Holding::Objects, &rangeShape()},
        {QLatin1String("field"), Holding::Text},
        {QLatin1String("start"), Holding::Whole},
        {QLatin1String("length"), Holding::Whole},
        {QLatin1String("lookup"), Holding::Flag},
        {QLatin1String("record"), Holding::Text},
    }};
    return shape;
}

const Shape &variableShape()
{
    static const Shape shape{{
        {QLatin1String("fileName"), Holding::Text},
        {QLatin1String("local"), Holding::Flag},
        {QLatin1String("name"), Holding::Text},
        {QLatin1String("alias"), Holding::Text},
        {QLatin1String("label"), Holding::Text},
        {QLatin1String("group"), Holding::Text},
        {QLatin1String("type"), Holding::Type},
        {QLatin1String("documentation"), Holding::Text},
        {QLatin1String("tag"), Holding::Whole},
        {QLatin1String("notapp"), Holding::Whole},
        {QLatin1String("missing"), Holding::Whole},
        {QLatin1String("size"), Holding::Whole},
        {QLatin1String("metadata"), Holding::Object, &layoutShape()},
        {QLatin1String("valueLabels"), Holding::Objects, &labelShape()},
    }};
    return shape;
}

const Shape &entityShape()
{
    static Shape shape;
    if (shape.keys.isEmpty()) {
        shape.keys = {
            {QLatin1String("name"), Holding::Text},
            {QLatin1String("alias"), Holding::Text},
            {QLatin1String("label"), Holding::Text},
            {QLatin1String("weightVar"), Holding::Text},
            {QLatin1String("documentation"), Holding::Text},
            {QLatin1String("selectable"), Holding::Flag},
            {QLatin1String("virtual"), Holding::Flag},
            {QLatin1String("codeVar"), Holding::Text},
            {QLatin1String("labelVar"), Holding::Text},
            {QLatin1String("variables"), Holding::Objects, &variableShape()},
            {QLatin1String("entities"), Holding::Objects, &shape},
        };
    }
    return shape;
}

const Shape &runShape()
{
    static const Shape database{{
        {QLatin1String("name"), Holding::Text},
        {QLatin1String("folder"), Holding::Text},
        {QLatin1String("sourceFile"), Holding::Text},
        {QLatin1String("filter"), Holding::Text},
        {QLatin1String("selectFilter"), Holding::Text},
        {QLatin1String("fileFilter"), Holding::Text},
        {QLatin1String("XXXproject"), Holding::Text},
    }};
    static const Shape options{{
        {QLatin1String("createNotAppMissingInRange"), Holding::Flag},
        {QLatin1String("createNoRanges"), Holding::Flag},
    }};
    static const Shape entity{{
        {QLatin1String("name"), Holding::Text},
        {QLatin1String("recType"), Holding::Text},
        {QLatin1String("allVariables"), Holding::Flag},
        {QLatin1String("variables"), Holding::Names},
        {QLatin1String("createCompound"), Holding::Flag},
        {QLatin1String("createSDC"), Holding::Flag},
        {QLatin1String("checkSequence"), Holding::SetFlag},
        {QLatin1String("delete"), Holding::Flag},
        {QLatin1String("selectable"), Holding::Flag},
    }};
    static const Shape run{{
        {QLatin1String("type"), Holding::Text},
        {QLatin1String("database"), Holding::Object, &database},
        {QLatin1String("options"), Holding::Object, &options},
        {QLatin1String("entities"), Holding::Objects, &entity},
    }};
    return run;
}

/// What the absence of a key stands for.
QJsonValue absenceOf(Holding holding)
{
    switch (holding) {
    case Holding::Text:
    case Holding::Code:
        return QString();
    case Holding::Type:
        return QJsonValue::Undefined; // An absent type is none at all, which no value that can be written
                                      // equals.
    case Holding::Whole:
    case Holding::Real:
        return 0;
    case Holding::Flag:
        return false;
    case Holding::SetFlag:
        return true;
    case Holding::Names:
    case Holding::Objects:
        return QJsonArray();
    case Holding::Object:
        return QJsonObject();
    }
    return QJsonValue::Undefined;
}

/// Numbers are equal when no digit differs: whole ones beyond 2^53 have no exact double.
bool sameNumber(const QJsonValue &a, const QJsonValue &b)
{
    const QVariant left = a.toVariant();
    const QVariant right = b.toVariant();
    if (left.userType() == QMetaType::LongLong && right.userType() == QMetaType::LongLong)
        return left.toLongLong() == right.toLongLong();
    return a.toDouble() == b.toDouble();
}

/// A code is a number under a numeric type: zeros before it and its JSON type make no difference, its digits
/// do.
bool sameCode(const QJsonValue &a, const QJsonValue &b)
{
    const QString left = a.toVariant().toString();
    const QString right = b.toVariant().toString();
    if (left == right)
        return true;
    bool isNumber = false;
    const double number = left.toDouble(&isNumber);
    // A double holds 15 digits whatever they are.
    const auto first = std::find_if(left.cbegin(), left.cend(), [](QChar c) { return c != '0' && c != '-'; });
    const auto digits = std::count_if(first, left.cend(), [](QChar c) { return c.isDigit(); });
    return b.isDouble() && isNumber && number == b.toDouble() && digits <= 15;
}

bool sameValue(const QJsonValue &a, const QJsonValue &b, Holding holding)
{
    if (a.isDouble() && b.isDouble())
        return sameNumber(a, b);
    const auto isCode = [](const QJsonValue &v) { return v.isDouble() || v.isString(); };
    if (holding == Holding::Code && isCode(a) && isCode(b))
        return sameCode(a, b);
    return a == b;
}

QString jsonOf(const QJsonValue &value)
{
    constexpr int longest = 60;
    // A document's top may only be an array or an object; a whole number is written with all its digits.
    if (value.isDouble() && value.toVariant().userType() == QMetaType::LongLong)
        return QString::number(value.toVariant().toLongLong());
    const QByteArray inArray = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    QString text = QString::fromUtf8(inArray.mid(1, inArray.size() - 2));
    if (text.size() <= longest)
        return text;
    const bool splitsCharacter = text.at(longest - 1).isHighSurrogate();
    return text.left(splitsCharacter ? longest - 1 : longest) + QChar(0x2026);
}

/// Holds two documents beside each other.
class Comparison {
public:
    QVector<Loss> losses;

    /// \a alone tells that \a before is a list of one, given without its array.
    void object(const QJsonObject &before, const QJsonObject &after, const Shape &shape, bool alone)
    {
        const bool isEntity = &shape == &entityShape();
        const QString placeBefore = place;
        if (isEntity)
            place = before.value(QLatin1String("name")).toString();
        else if (&shape == &variableShape())
            place = place + QLatin1Char('/') + before.value(QLatin1String("name")).toString();
        for (auto entry = before.constBegin(); entry != before.constEnd(); ++entry) {
            const QString written = isEntity ? writtenName(entry.key(), before, alone) : entry.key();
            step(pointerStep(entry.key()), [&] { value(entry.value(), after, shape.find(written)); });
        }
        place = placeBefore;
    }

private:
    /// The key under which an entity's \a key is written; empty when it is not read at all.
    static QString writtenName(const QString &key, const QJsonObject &entity, bool alone)
    {
        if (key == QLatin1String("root"))
            return entity.contains(QLatin1String("entities")) ? QString() : QStringLiteral("entities");
        const QLatin1String weightKey(alone ? "weigthVar" : "weightVar");
        if (key == weightKey)
            return QStringLiteral("weightVar");
        return key == QLatin1String("weightVar") ? QString() : key;
    }

    void value(const QJsonValue &before, const QJsonObject &after, const KeyShape *key)
    {
        if (!key) {
            add(before, QJsonValue::Undefined);
            return;
        }
        const QJsonValue written = after.value(key->name);
        if (key->holding == Holding::Object && before.isObject()) {
            object(before.toObject(), written.toObject(), *key->inner, false);
            return;
        }
        if (key->holding == Holding::Objects && (before.isArray() || before.isObject())) {
            objects(before, written.toArray(), *key->inner);
            return;
        }
        if (key->holding == Holding::Names && before.isArray()) {
            names(before.toArray(), written.toArray());
            return;
        }
        const QJsonValue absence = absenceOf(key->holding);
        const QJsonValue effective = written.isUndefined() ? absence : written;
        if (sameValue(before, effective, key->holding)
            || (before.isNull() && sameValue(absence, effective, key->holding)))
            return;
        add(before, written);
    }

    void objects(const QJsonValue &before, const QJsonArray &after, const Shape &shape)
    {
        if (before.isObject()) {
            object(before.toObject(), after.at(0).toObject(), shape, true);
            return;
        }
        const QJsonArray items = before.toArray();
        for (int i = 0; i < items.size(); ++i) {
            step(QString::number(i), [&] {
                if (items.at(i).isObject())
                    object(items.at(i).toObject(), after.at(i).toObject(), shape, false);
                else
                    add(items.at(i), after.at(i));
            });
        }
    }

    void names(const QJsonArray &before, const QJsonArray &after)
    {
        for (int i = 0; i < before.size(); ++i) {
            if (before.at(i) != after.at(i))
                step(QString::number(i), [&] { add(before.at(i), after.at(i)); });
        }
    }

    void add(const QJsonValue &before, const QJsonValue &after)
    {
        const bool dropped = after.isUndefined();
        losses.append({dropped ? Loss::Dropped : Loss::Changed, path, place, jsonOf(before),
            dropped ? QString() : jsonOf(after)});
    }

    template<typename Work>
    void step(const QString &name, Work &&work)
    {
        const int length = path.size();
        path += QLatin1Char('/');
        path += name;
        work();
        path.truncate(length);
    }

    QString path;
    QString place;
};

} // namespace

QString Loss::sentence() const
{
    switch (kind) {
    case Dropped:
        return tr("%1 is not written").arg(before);
    case Changed:
        return tr("%1 is written as %2").arg(before, after);
    case Repeated:
        return tr("the key is given more than once and only one of its values is kept");
    case Irregular:
        break;
    }
    return tr("what stands here is not JSON as other programs read it; it was read as well as could be");
}

QString pointerStep(QString key)
{
    return key.replace('~', QLatin1String("~0")).replace('/', QLatin1String("~1"));
}

QVector<Loss> lossesBetween(const QJsonObject &document, const QJsonObject &written)
{
    Comparison comparison;
    comparison.object(
        document, written, kindOf(document) == DocumentKind::Run ? runShape() : entityShape(), false);
    return comparison.losses;
}

QVector<Loss> lossesOf(const QByteArray &bytes, const QJsonObject &document, const QByteArray &written)
{
    return lostInParsing(bytes) + lossesBetween(document, QJsonDocument::fromJson(written).object());
}

} // namespace tessel::documents
