#pragma once

#include <QString>

namespace tessel::sources {

/// No text of a statistical file is carried beyond this many characters.
constexpr int kMostTextCharacters = 32767;

/// What had to be done to texts so that they could be carried.
struct TextMends {
    bool isForeign = false; ///< Was not valid UTF-8 and was read as Windows-1252.
    bool isCut = false; ///< Was longer than kMostTextCharacters.

    TextMends &operator|=(const TextMends &other);
};

/// The text of \a bytes, which end with a zero byte and should be UTF-8; null: the empty text. \a mends gains
/// what had to be done.
QString sourceText(const char *bytes, TextMends &mends);

} // namespace tessel::sources
