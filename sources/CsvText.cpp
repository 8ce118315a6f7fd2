#include "sources/CsvText.h"

#include <QIODevice>
#include <QTextCodec>

namespace tessel::sources {

CsvText::CsvText(QIODevice &device, QTextCodec *chosen)
    : source(device)
{
    if (chosen)
        convertFrom(chosen, QString::fromLatin1(chosen->name()));
}

CsvText::~CsvText() = default;

QByteArray CsvText::next()
{
    const bool isFirst = total == 0;
    QByteArray bytes = readBlock();
    if (isFirst)
        lookForMark(bytes);
    if (isFirst && isMarkedUtf8)
        bytes.remove(0, 3);
    return decoder ? encoder->fromUnicode(decoder->toUnicode(bytes)) : bytes;
}

bool CsvText::endsWithinCharacter() const { return decoder && decoder->needsMoreData(); }

/// A block is whole even when the device, a pipe perhaps, gives it in pieces: a mark stands in one block.
QByteArray CsvText::readBlock()
{
    QByteArray bytes;
    while (bytes.size() < kBlockSize && !isEnded) {
        const QByteArray more = source.read(kBlockSize - bytes.size());
        bytes += more;
        isEnded = more.isEmpty() || (!source.isSequential() && source.atEnd());
    }
    total += bytes.size();
    return bytes;
}

/// A mark of UTF-16 is left to its decoder, and so are the marks of a chosen encoding.
void CsvText::lookForMark(const QByteArray &bytes)
{
    isMarkedUtf8 = bytes.startsWith("\xef\xbb\xbf");
    if (decoder)
        return;
    if (bytes.startsWith("\xff\xfe"))
        convertFrom(QTextCodec::codecForName("UTF-16LE"), QStringLiteral("UTF-16"));
    if (bytes.startsWith("\xfe\xff"))
        convertFrom(QTextCodec::codecForName("UTF-16BE"), QStringLiteral("UTF-16"));
}

void CsvText::convertFrom(const QTextCodec *codec, const QString &encodingName)
{
    name = encodingName;
    decoder = std::make_unique<QTextDecoder>(codec);
    encoder = std::make_unique<QTextEncoder>(QTextCodec::codecForName("UTF-8"), QTextCodec::IgnoreHeader);
}

} // namespace tessel::sources
