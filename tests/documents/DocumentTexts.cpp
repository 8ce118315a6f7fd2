#include "tests/documents/DocumentTexts.h"

#include <QByteArrayList>
#include <QVector>

#include <rapidcheck.h>

#include <algorithm>
#include <utility>

namespace tessel::test {
namespace {

bool oneIn(int bound) { return draw(bound) == bound - 1; }

template<std::size_t Size>
QByteArray oneOf(const char *const (&items)[Size])
{
    return items[draw(int(Size))];
}

/// Writes one document.
class Writer {
public:
    explicit Writer(Habit someHabit)
        : isOdd(someHabit == Habit::Odd)
    {
    }

    QByteArray document(int depth)
    {
        const QByteArray mark = oneIn(10) ? "\xef\xbb\xbf" : "";
        return mark + blanks() + entity(depth, false, true) + blanks();
    }

private:
    using Keys = QVector<std::pair<QByteArray, QByteArray>>;

    static QByteArray blanks()
    {
        constexpr const char *some[] = {"", "", "", " ", "\n    ", "\t", "\r\n", "  \n"};
        return oneOf(some);
    }

    /// Text between quotes, in any spelling.
    static QByteArray plainText()
    {
        constexpr const char *pieces[] = {"a", "Age", "VIVIENDA",
            "Categor\xc3\xad"
            "a 1",
            "\xe4\xba\xba", "\xf0\x9f\x98\x80", "\\ud83d\\ude00", "\\u00e9", "\\u0041", "\\/", "/", "\\\\",
            "\\\"", "\\n", "\\t\\b\\f\\r", "\\u0000", "\\u001F", "\x7f", " ", "'", "{", "]", ":", ",",
            "\xef\xbf\xbf", "x\xef\xbb\xbf",
            "a text that is rather longer than fifty bytes, so that it is kept apart"};
        QByteArray text;
        for (int i = draw(4); i > 0; --i)
            text += oneOf(pieces);
        return '"' + text + '"';
    }

    QByteArray text()
    {
        constexpr const char *odd[] = {"\"\xef\xbb\xbf mark\"", "\"\\ufeff mark\"", "\"\\ud800\"",
            "\"\\udc00x\"", "\"\\ude00\\ud83d\"", "\"\\ud83d\\ud83d\\ude00\"", "\"\xff\"", "\"\\x\"",
            "\"\t\"", "\"\\u12\"", "\"\xed\xa0\x80\"", "7", "2.5", "true", "[]", "{}", "[\"a\"]", "\"open"};
        return oddOr(odd, [] { return oneIn(12) ? QByteArray("null") : plainText(); });
    }

    QByteArray type()
    {
        constexpr const char *known[] = {"\"integer\"", "\"real\"", "\"string\"", "\"bool\"", "\"\"",
            "\" Integer \"", "\"REAL\"", "\"config\""};
        return oneIn(6) ? text() : oneOf(known);
    }

    QByteArray flag()
    {
        constexpr const char *known[] = {"true", "false", "null"};
        constexpr const char *odd[] = {"\"true\"", "1", "0", "\"\"", "\"no\"", "tru", "[true]"};
        return oddOr(odd, [&known] { return oneOf(known); });
    }

    QByteArray whole()
    {
        constexpr const char *known[] = {"0", "1", "-1", "999", "2147483647", "-2147483648", "2.0", "-0",
            "0.0", "1e2", "20E-1", "null", "12e+1", "-0.0"};
        constexpr const char *odd[] = {"2147483648", "2.5", "-0.5", "\"12\"", "1e10", "9223372036854775808",
            "true", "01", "+1", "1.", ".5", "-", "1e", "NaN"};
        return oddOr(
            odd, [&known] { return oneIn(2) ? QByteArray::number(draw(2000) - 1000) : oneOf(known); });
    }

    static QByteArray spelledReal()
    {
        constexpr const char *known[] = {"0", "0.0", "-0.0", "2.5", "910.5", "0.1", "1e15", "1e16", "1e17",
            "1e21", "1E-5", "0.00012345", "123456789.123", "9007199254740993", "9223372036854775807",
            "-9223372036854775808", "1e299", "1e-299", "null", "12345678901234567.5",
            "100000000000000000000"};
        if (oneIn(2))
            return oneOf(known);
        const int digits = draw(16);
        return QByteArray::number(draw(1000000) / 1000.0, 'f', digits)
            + (oneIn(3) ? 'e' + QByteArray::number(draw(32) - 20) : QByteArray());
    }

    QByteArray real()
    {
        constexpr const char *odd[] = {"1e400", "1e-400", "5e-324", "9223372036854775808", "\"2.5\"", "-",
            "1.e1", "9.3e18", "-9.3e18", "18446744073709551616", "1e301", "true"};
        return oddOr(odd, &Writer::spelledReal);
    }

    QByteArray code()
    {
        constexpr const char *odd[] = {"true", "[1]", "{\"a\": 1}"};
        return oddOr(odd, [this] { return oneIn(2) ? real() : text(); });
    }

    template<std::size_t Size, typename Usual>
    QByteArray oddOr(const char *const (&odd)[Size], Usual &&usual)
    {
        return isOdd && oneIn(20) ? oneOf(odd) : usual();
    }

    /// Something under a key that nobody knows.
    QByteArray anything(int depth)
    {
        switch (draw(depth > 0 ? 6 : 4)) {
        case 0:
            return text();
        case 1:
            return real();
        case 2:
            return flag();
        case 3:
            return "null";
        case 4:
            return '[' + blanks() + anything(depth - 1) + ',' + anything(depth - 1) + ']';
        default:
            return "{\"name\":" + anything(depth - 1) + ",\"" + QByteArray(oneIn(2) ? "name" : "a\\u0062")
                + "\":" + anything(depth - 1) + '}';
        }
    }

    /// An object of about two thirds of \a keys, in any order.
    QByteArray object(Keys keys)
    {
        constexpr const char *unknown[] = {"Name", "level", "", "a\xc3\xb1o", "names", "nam"};
        constexpr const char *odd[] = {"na\\u006de", "\xef\xbb\xbfname", "\\u0000"};
        if (oneIn(6))
            keys.append(std::pair<QByteArray, QByteArray>{oneOf(unknown), anything(2)});
        if (isOdd && oneIn(20))
            keys.append(std::pair<QByteArray, QByteArray>{oneOf(odd), anything(1)});
        if (isOdd && oneIn(20))
            keys.append(keys.at(draw(keys.size())));
        for (int i = keys.size() - 1; i > 0 && !oneIn(20); --i)
            std::swap(keys[i], keys[draw(i + 1)]);
        QByteArrayList entries;
        for (const auto &[key, value] : qAsConst(keys)) {
            if (!oneIn(3))
                entries.append(blanks() + '"' + key + '"' + blanks() + ':' + blanks() + value + blanks());
        }
        return '{' + entries.join(',') + '}';
    }

    /// A list of what \a make makes; now and then one alone, or null.
    template<typename Make>
    QByteArray list(Make &&make, bool mayBeAlone = true)
    {
        if (oneIn(12))
            return "null";
        if (mayBeAlone && oneIn(8)) {
            const QByteArray alone = make(true);
            // A list of one is not empty.
            return isOdd || alone.contains(':') ? alone : QByteArray("[]");
        }
        QByteArrayList items;
        for (int i = draw(4); i > 0; --i)
            items.append(blanks() + (isOdd && oneIn(100) ? QByteArray("5") : make(false)) + blanks());
        return '[' + items.join(',') + (isOdd && oneIn(200) ? ",]" : "]");
    }

    QByteArray range(bool isAlone)
    {
        return isAlone ? object({{"min", whole()}, {"max", whole()}})
                       : object({{"min", real()}, {"max", real()}});
    }

    QByteArray layout()
    {
        return object({{"field", text()}, {"record", text()}, {"start", whole()}, {"length", whole()},
            {"lookup", flag()}, {"range", list([this](bool isAlone) { return range(isAlone); })}});
    }

    QByteArray variable()
    {
        return object({{"fileName", text()}, {"local", flag()}, {"name", text()}, {"alias", text()},
            {"label", text()}, {"group", text()}, {"type", type()}, {"documentation", text()},
            {"tag", whole()}, {"notapp", whole()}, {"missing", whole()}, {"size", whole()},
            {"metadata", oneIn(10) ? QByteArray("null") : layout()},
            {"valueLabels", list([this](bool) {
                 return object({{"value", code()}, {"label", text()}});
             })}});
    }

    QByteArray entity(int depth, bool isAlone, bool isTop)
    {
        Keys keys{{"name", text()}, {"alias", text()}, {"label", text()}, {"documentation", text()},
            {"selectable", flag()}, {"virtual", flag()}, {"codeVar", text()}, {"labelVar", text()},
            {"weightVar", isAlone ? anything(1) : text()}, {"weigthVar", isAlone ? text() : anything(1)},
            {"variables", list([this](bool) { return variable(); })}};
        if (!isTop || (isOdd && oneIn(50)))
            keys.append(std::pair<QByteArray, QByteArray>{"type", type()});
        const QByteArray listName = oneIn(3) ? "root" : "entities";
        if (depth > 0)
            keys.append(std::pair<QByteArray, QByteArray>{
                listName, list([=](bool alone) { return entity(depth - 1, alone, false); })});
        if (isOdd && oneIn(50))
            keys.append(std::pair<QByteArray, QByteArray>{"root", "[]"});
        return object(keys);
    }

    const bool isOdd;
};

} // namespace

int draw(int bound) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, bound)); }

QByteArray anyDocumentText(Habit habit, int depth) { return Writer(habit).document(depth); }

} // namespace tessel::test
