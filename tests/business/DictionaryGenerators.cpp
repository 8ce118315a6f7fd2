#include "tests/business/DictionaryGenerators.h"

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <rapidcheck.h>

#include <cstring>
#include <iterator>
#include <limits>

namespace tessel::test {
namespace {

/// One of 0 to \a bound - 1.
int draw(int bound) { return *rc::gen::inRange(0, bound); }

bool oneIn(int bound) { return draw(bound) == bound - 1; }

template<typename Item, std::size_t Size>
const Item &oneOf(const Item (&items)[Size])
{
    return items[draw(int(Size))];
}

QChar anyUnit()
{
    constexpr ushort special[] = {0, '\b', '\t', '\n', '\f', '\r', 0x1b, 0x1f, '"', '\\', '/', '\'', 0x7e,
        0x7f, 0x80, 0x7ff, 0x800, 0x2028, 0xd7ff, 0xd800, 0xdbff, 0xdc00, 0xdfff, 0xe000, 0xfeff, 0xfffe,
        0xffff};
    switch (draw(3)) {
    case 0:
        return QChar('a' + draw(26));
    case 1:
        return QChar(oneOf(special));
    default:
        return QChar(draw(0x10000));
    }
}

QString anyText()
{
    if (draw(3) == 0)
        return {};
    QString text;
    for (int length = draw(12); length >= 0; --length)
        text += anyUnit();
    if (oneIn(4))
        text += QString::fromUtf8("😀𝄞");
    // Qt's own parser drops a byte order mark with which a text begins.
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? 'a' + text : text;
}

int anyInt()
{
    constexpr int special[] = {-1, 1, 2147483647, -2147483647 - 1, 1000000000};
    switch (draw(4)) {
    case 0:
        return 0;
    case 1:
        return oneOf(special);
    case 2:
        return draw(200) - 100;
    default:
        return *rc::gen::arbitrary<int>();
    }
}

double anyNumber()
{
    using Limits = std::numeric_limits<double>;
    constexpr double special[] = {0.0, -0.0, 0.1, -2.5, 1e15, 1e16, 1e21, 1e22, 9007199254740993.0,
        9223372036854775808.0, -9223372036854775808.0, Limits::denorm_min(), Limits::min(), Limits::max(),
        Limits::lowest(), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()};
    switch (draw(4)) {
    case 0:
        return draw(200) - 100;
    case 1:
        return oneOf(special);
    case 2:
        return *rc::gen::arbitrary<double>();
    default: {
        // Any bits: numbers of every magnitude, and some that are none.
        const auto bits = *rc::gen::arbitrary<quint64>();
        double number;
        std::memcpy(&number, &bits, sizeof number);
        return number;
    }
    }
}

QString anyType()
{
    constexpr const char *known[] = {"", "INTEGER", "integer", " Integer\t", "REAL", "real", " Real ",
        "STRING", "string", "\nString", "BOOL", "  ", "integers"};
    return oneIn(8) ? anyText() : QString(QLatin1String(oneOf(known)));
}

QString anyCode()
{
    constexpr const char *known[] = {"", "0", "1", "0042", "-7", "+7", " 7 ", "A", "2.5", "nan", "inf",
        "-inf", "1e400", "1e-400", "5e-324", "2147483647", "2147483648", "999999999", "1000000000",
        "12345678901234567890", "0x10", "1,5", "-0", "-0.0", "/", "9:", " "};
    switch (draw(4)) {
    case 0:
        return anyText();
    case 1:
        return QString::number(anyNumber(), 'g', QLocale::FloatingPointShortest);
    default:
        return QString(QLatin1String(oneOf(known)));
    }
}

void fillLayout(MetadataVariables &layout)
{
    layout.setField(anyText());
    layout.setRecord(anyText());
    layout.setStart(anyInt());
    layout.setLength(anyInt());
    layout.setLookup(oneIn(2));
    for (int i = draw(3); i > 0; --i) {
        auto *range = new Range;
        layout.addItemRange(range);
        range->setRangeMin(anyNumber());
        range->setRangeMax(anyNumber());
    }
    if (oneIn(20))
        layout.addItemRange(nullptr);
}

void fillVariable(TDmVariable &variable)
{
    variable.setName(anyText());
    variable.setAlias(anyText());
    variable.setLabel(anyText());
    variable.setGroup(anyText());
    variable.setVarType(anyType());
    variable.setDocumentation(anyText());
    variable.setFileName(anyText());
    variable.setLocal(oneIn(2));
    variable.setSize(anyInt());
    variable.setDecimals(anyInt());
    variable.setFieldRelativePosition(anyInt());
    variable.setFieldSize(anyInt());
    variable.setMissing(anyInt());
    variable.setNotappl(anyInt());
    variable.setTag(anyInt());
    variable.setChecked(anyInt());
    variable.setLevel(anyInt());
    if (oneIn(10))
        variable.setMetadataVariables(nullptr);
    else
        fillLayout(*variable.getMetadataVariables());
    for (int i = draw(4); i > 0; --i) {
        auto *element = new ValueLabelElement;
        variable.addValueLabelElement(element);
        element->setValue(anyCode());
        element->setLabel(anyText());
    }
    if (oneIn(20))
        variable.addValueLabelElement(nullptr);
}

void fillEntity(TDmEntity &entity, int depth)
{
    entity.setName(anyText());
    entity.setAlias(anyText());
    entity.setLabel(anyText());
    entity.setRefCode(anyText());
    entity.setRefLabel(anyText());
    entity.setWeightVariable(anyText());
    entity.setDocumentationEntity(anyText());
    entity.setIsvirtual(oneIn(2));
    entity.setSelectable(oneIn(2));
    entity.setCheckDelete(oneIn(2));
    entity.setLevel(anyInt());
    for (int i = draw(3); i > 0; --i) {
        auto *variable = new TDmVariable;
        entity.addVariables(variable);
        fillVariable(*variable);
    }
    if (oneIn(20))
        entity.addVariables(nullptr);
    for (int i = depth > 0 ? draw(3) : 0; i > 0; --i) {
        auto *child = new TDmEntity;
        entity.getChildren()->append(child);
        fillEntity(*child, depth - 1);
    }
    if (oneIn(20))
        entity.getChildren()->append(nullptr);
}

constexpr const char *kEntityKeys[] = {"name", "alias", "label", "weightVar", "weigthVar", "documentation",
    "selectable", "virtual", "codeVar", "labelVar", "variables", "variables", "entities", "entities", "root",
    "Name", "level"};
constexpr const char *kVariableKeys[] = {"fileName", "local", "name", "alias", "label", "group", "type",
    "type", "documentation", "tag", "notapp", "missing", "metadata", "metadata", "valueLabels", "valueLabels",
    "size", "choice"};
constexpr const char *kLayoutKeys[] = {
    "range", "range", "field", "start", "length", "lookup", "record", "Range"};
constexpr const char *kRangeKeys[] = {"min", "max", "Min"};
constexpr const char *kLabelKeys[] = {"value", "value", "label", "Value"};

QJsonValue valueFor(const QString &key, int depth);

template<std::size_t Size>
QJsonObject anyObject(const char *const (&keys)[Size], int depth)
{
    QJsonObject object;
    for (int i = draw(int(Size)); i > 0; --i) {
        const QString key = QLatin1String(oneOf(keys));
        object.insert(key, valueFor(key, depth));
    }
    return object;
}

/// A value of any type, whatever the key.
QJsonValue anyValue(int depth)
{
    switch (draw(depth > 0 ? 8 : 6)) {
    case 0:
        return QJsonValue();
    case 1:
        return oneIn(2);
    case 2:
        return anyInt();
    case 3:
        return anyNumber();
    case 4:
        return anyCode();
    case 5:
        return anyText();
    case 6:
        return QJsonArray{anyValue(depth - 1), anyValue(depth - 1)};
    default:
        return anyObject(kEntityKeys, depth - 1);
    }
}

template<std::size_t Size>
QJsonValue anyListOf(const char *const (&keys)[Size], int depth)
{
    if (depth <= 0)
        return QJsonArray();
    if (oneIn(4))
        return anyObject(keys, depth - 1);
    QJsonArray array;
    for (int i = draw(4); i > 0; --i)
        array.append(oneIn(8) ? anyValue(depth - 1) : QJsonValue(anyObject(keys, depth - 1)));
    return array;
}

QJsonValue valueFor(const QString &key, int depth)
{
    static const QStringList integers{"tag", "notapp", "missing", "size", "start", "length"};
    static const QStringList flags{"selectable", "virtual", "local", "lookup"};
    if (oneIn(5))
        return anyValue(depth);
    if (key == "entities" || key == "root")
        return anyListOf(kEntityKeys, depth);
    if (key == "variables")
        return anyListOf(kVariableKeys, depth);
    if (key == "valueLabels")
        return anyListOf(kLabelKeys, depth);
    if (key == "range")
        return anyListOf(kRangeKeys, depth);
    if (key == "metadata")
        return anyObject(kLayoutKeys, depth);
    if (key == "type")
        return anyType();
    if (key == "value")
        return anyValue(0);
    if (key == "min" || key == "max")
        return anyNumber();
    if (integers.contains(key))
        return anyInt();
    if (flags.contains(key))
        return oneIn(2);
    return anyText();
}

} // namespace

std::unique_ptr<TDmEntity> anyTree(int depth)
{
    auto root = std::make_unique<TDmEntity>();
    fillEntity(*root, depth);
    return root;
}

QByteArray anyDocument(int depth)
{
    QJsonObject document = anyObject(kEntityKeys, 0);
    // Nearly always something to read.
    if (!oneIn(10))
        document.insert(oneIn(3) ? "root" : "entities", anyListOf(kEntityKeys, depth));
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}

} // namespace tessel::test
