#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <memory>

class QIODevice;
class QTextCodec;
class QTextDecoder;
class QTextEncoder;

namespace tessel::sources {

/// The text of a CSV file in blocks in which separators, quotation marks and line ends are bytes of their
/// own.
///
/// A mark of UTF-8 at the start is left out. Text that is marked as UTF-16, and text of a chosen encoding,
/// comes in UTF-8; any other comes as it is.
class CsvText {
public:
    static constexpr int kBlockSize = 64 * 1024;

    /// Reads \a device, which is open and outlives this. \a chosen is the encoding; null: what the mark says.
    CsvText(QIODevice &device, QTextCodec *chosen);
    ~CsvText();

    /// The next block, of no more than kBlockSize bytes of the file; may be empty before the end.
    QByteArray next();

    /// Whether nothing comes any more.
    bool isAtEnd() const { return isEnded; }

    /// Whether what came so far ends within a character. Told only of text that comes in UTF-8.
    bool endsWithinCharacter() const;

    /// Whether blocks are in UTF-8, whatever the file is in.
    bool isConverted() const { return decoder != nullptr; }
    bool hasUtf8Mark() const { return isMarkedUtf8; }

    /// The encoding's name, once a block was read; empty when it is not known from the mark or from outside.
    QString encoding() const { return name; }

    qint64 bytesRead() const { return total; }

private:
    QByteArray readBlock();
    void lookForMark(const QByteArray &bytes);
    void convertFrom(const QTextCodec *codec, const QString &encodingName);

    QIODevice &source;
    std::unique_ptr<QTextDecoder> decoder;
    std::unique_ptr<QTextEncoder> encoder;
    QString name;
    qint64 total = 0;
    bool isEnded = false;
    bool isMarkedUtf8 = false;

    Q_DISABLE_COPY_MOVE(CsvText)
};

} // namespace tessel::sources
