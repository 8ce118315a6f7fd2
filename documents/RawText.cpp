#include "documents/RawText.h"

#include "documents/Refused.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tessel::documents {
namespace {

constexpr char16_t kByteOrderMark = 0xfeff;
constexpr std::uint64_t kHighBits = 0x8080808080808080U;

bool isPlain(std::string_view raw)
{
    if (std::memchr(raw.data(), '\\', raw.size()))
        return false;
    std::uint64_t all = 0;
    std::size_t i = 0;
    for (; i + sizeof all <= raw.size(); i += sizeof all) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, raw.data() + i, sizeof eight);
        all |= eight;
    }
    for (; i < raw.size(); ++i)
        all |= static_cast<unsigned char>(raw[i]);
    return (all & kHighBits) == 0;
}

/// Walks the bytes of a text. They are valid UTF-8 and each backslash has a byte behind it: a quote that ends
/// the text is never escaped.
class Decoder {
public:
    explicit Decoder(std::string_view raw)
        : at(raw.data())
        , end(raw.data() + raw.size())
    {
        units.reserve(int(raw.size()));
    }

    QString text()
    {
        while (at != end) {
            if (*at == '\\')
                escape();
            else
                character();
        }
        if (isHighAwaited() || units.at(0) == kByteOrderMark)
            throw Refused();
        return QString(units.constData(), units.size());
    }

private:
    bool isHighAwaited() const { return !units.isEmpty() && units.last().isHighSurrogate(); }

    void append(char16_t unit)
    {
        if (isHighAwaited() != QChar::isLowSurrogate(unit))
            throw Refused();
        units.append(unit);
    }

    void character()
    {
        const auto first = static_cast<unsigned char>(*at++);
        if (first < 0x80) {
            append(first);
            return;
        }
        const int more = first >= 0xf0 ? 3 : first >= 0xe0 ? 2 : 1;
        std::uint32_t point = first & (0x3fU >> more);
        for (int i = 0; i < more; ++i)
            point = point << 6 | (static_cast<unsigned char>(*at++) & 0x3fU);
        if (QChar::requiresSurrogates(point)) {
            append(QChar::highSurrogate(point));
            append(QChar::lowSurrogate(point));
        } else {
            append(char16_t(point));
        }
    }

    void escape()
    {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meant = "\"\\/\b\f\n\r\t";
        ++at;
        const char letter = *at++;
        if (letter == 'u') {
            append(hexadecimal());
            return;
        }
        const std::size_t index = letters.find(letter);
        if (index == std::string_view::npos)
            throw Refused();
        append(char16_t(meant[index]));
    }

    char16_t hexadecimal()
    {
        constexpr int digits = 4;
        if (end - at < digits)
            throw Refused();
        constexpr std::string_view lower = "0123456789abcdef";
        constexpr std::string_view upper = "0123456789ABCDEF";
        unsigned unit = 0;
        for (int i = 0; i < digits; ++i) {
            const char c = *at++;
            const std::size_t digit = std::min(lower.find(c), upper.find(c));
            if (digit == std::string_view::npos)
                throw Refused();
            unit = unit << 4 | unsigned(digit);
        }
        return char16_t(unit);
    }

    const char *at;
    const char *end;
    QVarLengthArray<QChar, 256> units;
};

} // namespace

QString textOfRaw(std::string_view raw)
{
    if (raw.empty())
        return QLatin1String("");
    return isPlain(raw) ? QString::fromLatin1(raw.data(), int(raw.size())) : Decoder(raw).text();
}

} // namespace tessel::documents
