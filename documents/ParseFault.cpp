#include "documents/ParseFault.h"

#include <QCoreApplication>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <string>

namespace tessel::documents {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::documents", text); }

/// What Qt's parser wanted where it stopped.
QString expectation(QJsonParseError::ParseError error)
{
    switch (error) {
    case QJsonParseError::NoError:
        break;
    case QJsonParseError::UnterminatedObject:
        return tr("expected \",\" or \"}\" after a value in an object");
    case QJsonParseError::MissingNameSeparator:
        return tr("expected \":\" after a key");
    case QJsonParseError::UnterminatedArray:
        return tr("expected \"]\" at the end of an array");
    case QJsonParseError::MissingValueSeparator:
        return tr("expected \",\" between two values");
    case QJsonParseError::IllegalValue:
        return tr(
            "expected a value: an object, an array, a text in double quotes, a number, true, false or null");
    case QJsonParseError::TerminationByNumber:
        return tr("expected the rest of the document after a number");
    case QJsonParseError::IllegalNumber:
        return tr("expected a number that JSON and double precision can hold");
    case QJsonParseError::IllegalEscapeSequence:
        return tr("expected one of \\\" \\\\ \\/ \\b \\f \\n \\r \\t \\uXXXX after a backslash");
    case QJsonParseError::IllegalUTF8String:
        return tr("expected text in UTF-8; save the file in that encoding");
    case QJsonParseError::UnterminatedString:
        return tr("expected a double quote at the end of a text");
    case QJsonParseError::MissingObject:
        return tr("expected a key in double quotes");
    case QJsonParseError::DeepNesting:
        return tr("objects and arrays stand more than 1024 deep in one another; expected fewer levels");
    case QJsonParseError::DocumentTooLarge:
        return tr("the document is too large; expected fewer values");
    case QJsonParseError::GarbageAtEnd:
        return tr("expected nothing more after the end of the document");
    }
    return tr("expected a JSON document");
}

/// True for what Qt's parser notices one byte behind the offending one.
bool isNoticedLate(QJsonParseError::ParseError error)
{
    switch (error) {
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::MissingNameSeparator:
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::MissingValueSeparator:
    case QJsonParseError::IllegalValue:
    case QJsonParseError::MissingObject:
    case QJsonParseError::DeepNesting:
        return true;
    default:
        return false;
    }
}

/// Reads a text for the sake of its first fault alone: a stricter parser than Qt's, which says more about it.
class FaultFinder : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t &) override { return true; }
    bool string(string_t &) override { return true; }
    bool binary(binary_t &) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_object() override { return true; }
    bool end_array() override { return true; }
    bool key(string_t &) override { return true; }

    bool parse_error(
        std::size_t position, const std::string &, const nlohmann::json::exception &problem) override
    {
        bytesRead = position;
        what = problem.what();
        return false;
    }

    bool tells(const char *words) const { return what.find(words) != std::string::npos; }

    std::size_t bytesRead = 0; ///< Up to the offending byte or the end of the offending token.
    std::string what;
};

bool isWordByte(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '+' || c == '-' || c == '.';
}

/// Where the token begins that ends with the byte \a last of \a bytes. With \a isBehind, that byte is the
/// first that does not fit a word, and may stand behind it.
int startOfToken(const QByteArray &bytes, int last, bool isBehind)
{
    if (bytes.at(last) == '"') {
        for (int quote = last - 1; quote >= 0; --quote) {
            if (bytes.at(quote) == '"' && (quote == 0 || bytes.at(quote - 1) != '\\'))
                return quote;
        }
    }
    int start = last;
    while ((isBehind || isWordByte(bytes.at(last))) && start > 0 && isWordByte(bytes.at(start - 1)))
        --start;
    return start;
}

/// The sentence for what \a finder met, when it says it better than Qt's \a error; else nothing.
QString sentenceOf(const FaultFinder &finder, QJsonParseError::ParseError error)
{
    if (finder.tells("invalid string"))
        return expectation(QJsonParseError::UnterminatedString);
    if (finder.tells("invalid number"))
        return expectation(QJsonParseError::IllegalNumber);
    if (error == QJsonParseError::TerminationByNumber)
        return expectation(error);
    if (finder.tells("; expected end of input"))
        return expectation(QJsonParseError::GarbageAtEnd);
    if (finder.tells("parsing object key"))
        return expectation(QJsonParseError::MissingObject);
    if (finder.tells("parsing object separator"))
        return expectation(QJsonParseError::MissingNameSeparator);
    if (finder.tells("parsing object"))
        return expectation(QJsonParseError::UnterminatedObject);
    if (finder.tells("parsing array"))
        return expectation(error);
    return expectation(QJsonParseError::IllegalValue);
}

} // namespace

FileProblem problemAt(const QByteArray &bytes, int offset, const QString &message)
{
    const QByteArray before = bytes.left(offset);
    const int lineStart = before.lastIndexOf('\n') + 1;
    const int markSize = lineStart == 0 && before.startsWith("\xef\xbb\xbf") ? 3 : 0;
    const char *text = before.constData() + lineStart + markSize;
    const int length = before.size() - lineStart - markSize;
    return {message, before.count('\n') + 1, QString::fromUtf8(text, length).toUcs4().size() + 1};
}

FileProblem faultOf(const QByteArray &bytes, const QJsonParseError &error)
{
    FaultFinder finder;
    nlohmann::json::sax_parse(bytes.cbegin(), bytes.cend(), &finder);
    const bool atEnd = finder.bytesRead > std::size_t(bytes.size());
    if (error.error != QJsonParseError::DeepNesting && !finder.what.empty()) {
        if (atEnd) {
            return problemAt(bytes, bytes.size(),
                tr("%1, but the file ends here; it may have been cut off")
                    .arg(sentenceOf(finder, error.error)));
        }
        if (finder.tells("ill-formed UTF-8") && error.error != QJsonParseError::IllegalUTF8String)
            return problemAt(
                bytes, int(finder.bytesRead) - 1, expectation(QJsonParseError::IllegalUTF8String));
        // Texts are better judged by the parser that reads them, and so are numbers that are too large.
        if (!finder.tells("invalid string") && !finder.tells("number overflow")) {
            const int last = std::max(0, int(finder.bytesRead) - 1);
            const int place = finder.tells("invalid number")
                ? last
                : startOfToken(bytes, last, finder.tells("invalid literal"));
            return problemAt(bytes, place, sentenceOf(finder, error.error));
        }
    }
    return problemAt(bytes, isNoticedLate(error.error) ? std::max(0, error.offset - 1) : error.offset,
        expectation(error.error));
}

} // namespace tessel::documents
