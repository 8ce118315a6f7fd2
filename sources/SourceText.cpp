#include "sources/SourceText.h"

#include <QTextCodec>

namespace tessel::sources {
namespace {

QString decoded(const char *bytes, TextMends &mends)
{
    const auto size = int(qstrlen(bytes));
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes, size, &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    mends.isForeign = true;
    return QTextCodec::codecForName("Windows-1252")->toUnicode(bytes, size);
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
