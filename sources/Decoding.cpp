#include "sources/Decoding.h"

#include <QTextCodec>

namespace tessel::sources {

std::optional<QString> strictUtf8(std::string_view bytes)
{
    static const QTextCodec *const codec = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = codec->toUnicode(bytes.data(), int(bytes.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? std::optional<QString>(text) : std::nullopt;
}

QString windows1252(std::string_view bytes)
{
    static const QTextCodec *const codec = QTextCodec::codecForName("Windows-1252");
    return codec->toUnicode(bytes.data(), int(bytes.size()));
}

} // namespace tessel::sources
