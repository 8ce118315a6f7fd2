#include "documents/IndentedText.h"

#include <QLocale>

#include <charconv>
#include <cmath>

namespace tessel::documents {
namespace {

constexpr char kHexadecimal[] = "0123456789abcdef";
constexpr ushort kByteOrderMark = 0xfeff;

char *writeEscape(ushort unit, char *at)
{
    for (const char c : {'\\', 'u', kHexadecimal[unit >> 12], kHexadecimal[unit >> 8 & 15],
             kHexadecimal[unit >> 4 & 15], kHexadecimal[unit & 15]})
        *at++ = c;
    return at;
}

/// A quote, a backslash or a control character.
char *writeSpecial(ushort unit, char *at)
{
    constexpr char meant[] = "\"\\\b\f\n\r\t";
    constexpr char letters[] = "\"\\bfnrt";
    const char *found = unit == 0 ? nullptr : std::strchr(meant, unit);
    if (!found)
        return writeEscape(unit, at);
    *at++ = '\\';
    *at++ = letters[found - meant];
    return at;
}

char *writePoint(uint point, char *at)
{
    if (point < 0x800) {
        *at++ = char(0xc0 | point >> 6);
    } else {
        if (point < 0x10000) {
            *at++ = char(0xe0 | point >> 12);
        } else {
            *at++ = char(0xf0 | point >> 18);
            *at++ = char(0x80 | (point >> 12 & 0x3f));
        }
        *at++ = char(0x80 | (point >> 6 & 0x3f));
    }
    *at++ = char(0x80 | (point & 0x3f));
    return at;
}

} // namespace

IndentedText::IndentedText(TextStream &stream, int aDepth)
    : out(stream)
    , depth(aDepth)
{
    put("{\n", 2);
}

void IndentedText::close()
{
    if (!empty)
        put("\n", 1);
    indent(depth);
    put("}", 1);
}

void IndentedText::indent(int levels)
{
    constexpr int width = 4;
    const std::size_t length = std::size_t(levels) * width;
    char *at = out.room(length);
    std::memset(at, ' ', length);
    out.wrote(at + length);
}

void IndentedText::number(qint64 value)
{
    constexpr std::size_t longest = 24;
    char *at = out.room(longest);
    out.wrote(std::to_chars(at, at + longest, value).ptr);
}

void IndentedText::number(double value)
{
    constexpr double endOfExact = 9007199254740992.0;
    constexpr double endOfPlain = 18446744073709551616.0;
    if (!std::isfinite(value)) {
        exact = false;
        return;
    }
    const bool isWhole = std::trunc(value) == value;
    if (isWhole && std::abs(value) <= endOfExact) {
        number(qint64(value));
        return;
    }
    const char form = isWhole && std::abs(value) < endOfPlain ? 'f' : 'g';
    const QByteArray digits = QByteArray::number(value, form, QLocale::FloatingPointShortest);
    put(digits.constData(), std::size_t(digits.size()));
}

void IndentedText::string(const QString &value)
{
    constexpr std::size_t longestUnit = 6; // An escape: backslash, u, four digits.
    const ushort *unit = value.utf16();
    const ushort *const end = unit + value.size();
    // Dropped when the text is parsed on the way to QJsonDocument.
    exact = exact && (unit == end || *unit != kByteOrderMark);
    char *at = out.room(longestUnit * std::size_t(value.size()) + 2);
    *at++ = '"';
    while (unit != end) {
        const ushort c = *unit++;
        if (c >= 0x20 && c < 0x80 && c != '"' && c != '\\')
            *at++ = char(c);
        else if (c < 0x80)
            at = writeSpecial(c, at);
        else if (!QChar::isSurrogate(c))
            at = writePoint(c, at);
        else if (QChar::isHighSurrogate(c) && unit != end && QChar::isLowSurrogate(*unit))
            at = writePoint(QChar::surrogateToUcs4(c, *unit++), at);
        else
            at = writeEscape(c, at);
    }
    *at++ = '"';
    out.wrote(at);
}

} // namespace tessel::documents
