#include "documents/BlankSieve.h"

#include <cstddef>
#include <cstring>

namespace tessel::documents {
namespace {

constexpr bool isBlank(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

/// Signs behind which a value or a key begins, or nothing: blanks there part nothing.
constexpr bool isOpening(char c) { return c == ',' || c == ':' || c == '{' || c == '['; }

/// The first byte from \a at on that is no blank, or \a end. Indents are long: most are passed eight at a
/// time.
const char *passBlanks(const char *at, const char *end)
{
    constexpr char spaces[] = "        ";
    constexpr std::ptrdiff_t width = sizeof spaces - 1;
    while (end - at >= width && std::memcmp(at, spaces, width) == 0)
        at += width;
    while (at != end && isBlank(*at))
        ++at;
    return at;
}

} // namespace

void BlankSieve::sift(const char *piece, int size, QByteArray &kept)
{
    const int before = kept.size();
    kept.resize(before + size);
    char *out = kept.data() + before;
    const char *at = piece;
    const char *const end = piece + size;
    while (true) {
        if (place == Place::BehindBlank)
            at = passBlanks(at, end);
        if (at == end)
            break;
        switch (place) {
        case Place::InText:
            while (at != end && *at != '"' && *at != '\\')
                *out++ = *at++;
            if (at == end)
                continue;
            place = *at == '"' ? Place::BehindToken : Place::InEscape;
            break;
        case Place::InEscape:
            place = Place::InText;
            break;
        case Place::BehindToken:
        case Place::BehindBlank:
            if (*at == '"')
                place = Place::InText;
            else
                place = isBlank(*at) || isOpening(*at) ? Place::BehindBlank : Place::BehindToken;
        }
        *out++ = *at++;
    }
    kept.resize(int(out - kept.constData()));
}

} // namespace tessel::documents
