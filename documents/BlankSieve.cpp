#include "documents/BlankSieve.h"

namespace tessel::documents {
namespace {

constexpr bool isBlank(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

/// Signs behind which a value or a key begins, or nothing: blanks there part nothing.
constexpr bool isOpening(char c) { return c == ',' || c == ':' || c == '{' || c == '['; }

} // namespace

void BlankSieve::sift(const char *piece, int size, QByteArray &kept)
{
    const int before = kept.size();
    kept.resize(before + size);
    char *out = kept.data() + before;
    const char *const end = piece + size;
    for (const char *at = piece; at != end; ++at) {
        const char c = *at;
        switch (place) {
        case Place::InText:
            if (c == '"')
                place = Place::BehindToken;
            else if (c == '\\')
                place = Place::InEscape;
            break;
        case Place::InEscape:
            place = Place::InText;
            break;
        case Place::BehindBlank:
        case Place::BehindToken:
            if (isBlank(c)) {
                if (place == Place::BehindBlank)
                    continue;
                place = Place::BehindBlank;
            } else if (c == '"') {
                place = Place::InText;
            } else {
                place = isOpening(c) ? Place::BehindBlank : Place::BehindToken;
            }
        }
        *out++ = c;
    }
    kept.resize(int(out - kept.constData()));
}

} // namespace tessel::documents
