#include "sources/SourceText.h"

#include "sources/Decoding.h"

namespace tessel::sources {
namespace {

QString decoded(const char *bytes, TextMends &mends)
{
    const std::optional<QString> text = strictUtf8(bytes);
    mends.isForeign = mends.isForeign || !text;
    return text ? *text : windows1252(bytes);
}

} // namespace

TextMends &TextMends::operator|=(const TextMends &other)
{
    isForeign = isForeign || other.isForeign;
    isCut = isCut || other.isCut;
    return *this;
}

QString sourceText(const char *bytes, TextMends &mends)
{
    if (!bytes)
        return QString();
    QString text = decoded(bytes, mends);
    if (text.size() <= kMostTextCharacters)
        return text;
    mends.isCut = true;
    // Half a surrogate pair would be no character.
    text.truncate(
        text.at(kMostTextCharacters).isLowSurrogate() ? kMostTextCharacters - 1 : kMostTextCharacters);
    return text;
}

} // namespace tessel::sources
