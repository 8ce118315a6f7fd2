#include "editor/sources/CsvHeader.h"

#include "editor/sources/CsvRecord.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTextCodec>

#include <algorithm>

namespace tessel::editor {
namespace {

using documents::Outcome;

constexpr int kFirstBytes = 64 * 1024;

Outcome<CsvHeader> failed(const QString &message) { return {std::nullopt, {message}}; }

/// What the first bytes of a file say about its text.
struct ByteOrderMark {
    explicit ByteOrderMark(const QByteArray &bytes)
    {
        if (bytes.startsWith("\xef\xbb\xbf"))
            size = 3;
        if (bytes.startsWith("\xff\xfe"))
            wideCodec = "UTF-16LE";
        if (bytes.startsWith("\xfe\xff"))
            wideCodec = "UTF-16BE";
        if (wideCodec)
            size = 2;
    }

    int size = 0;
    const char *wideCodec = nullptr; ///< Null for characters of one byte or more.
};

QString decoded(const char *codec, const QByteArray &bytes, QTextCodec::ConverterState &state)
{
    return QTextCodec::codecForName(codec)->toUnicode(bytes.constData(), bytes.size(), &state);
}

/// The text of \a bytes for finding one's way in it: a character of UTF-16 each, or else one for each byte.
/// Whatever their encoding, separators, quotation marks and line ends are bytes of their own in it.
QString roughText(const QByteArray &bytes, const ByteOrderMark &mark)
{
    if (!mark.wideCodec)
        return QString::fromLatin1(bytes.constData() + mark.size, bytes.size() - mark.size);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return decoded(mark.wideCodec, bytes.mid(mark.size, (bytes.size() - mark.size) & ~1), state);
}

/// Where the first line begins that is not empty, or -1.
int startOfHeader(const QString &text)
{
    int lineStart = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n'))
            lineStart = i + 1;
        else if (c != QLatin1Char(' '))
            return lineStart;
    }
    return -1;
}

int lineAt(const QString &text, int position)
{
    QString before = text.left(position);
    before.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return before.count(QLatin1Char('\n')) + before.count(QLatin1Char('\r')) + 1;
}

/// The candidate that \a record has most of; null when it has none of them.
QChar mostFrequent(const CsvRecord &record)
{
    const auto most = std::max_element(record.separatorCounts.cbegin(), record.separatorCounts.cend());
    return *most == 0 ? QChar() : CsvHeader::separators().at(int(most - record.separatorCounts.cbegin()));
}

/// The first of \a names, for a remark.
QString listed(const QStringList &names)
{
    constexpr int shown = 5;
    QStringList texts;
    for (const QString &name : names.mid(0, shown)) {
        constexpr int longest = 40;
        const QString text = name.simplified();
        texts.append(text.size() > longest ? QString(text.left(longest) + QChar(0x2026)) : text);
    }
    const QString list = texts.join(QLatin1String(", "));
    return names.size() > shown ? CsvHeader::tr("%1 and %n more", nullptr, names.size() - shown).arg(list)
                                : list;
}

/// Gives names to the empty ones of \a names.
void nameAll(QStringList &names, QStringList &remarks)
{
    QStringList given;
    for (int i = 0; i < names.size(); ++i) {
        if (!names.at(i).isEmpty())
            continue;
        names[i] = QStringLiteral("FIELD_%1").arg(i + 1);
        given.append(names.at(i));
    }
    if (given.size() == 1)
        remarks.append(CsvHeader::tr("1 field has no name and is called %1.").arg(given.first()));
    if (given.size() > 1) {
        remarks.append(CsvHeader::tr("%n fields have no name and are called %1.", nullptr, given.size())
                           .arg(listed(given)));
    }
}

void remarkOnEqualNames(const QStringList &names, QStringList &remarks)
{
    QHash<QString, int> counts;
    QStringList repeated;
    for (const QString &name : names) {
        if (++counts[name] == 2)
            repeated.append(name);
    }
    if (repeated.size() == 1) {
        const int count = counts.value(repeated.first());
        remarks.append(CsvHeader::tr("%n fields have the name %1.", nullptr, count).arg(listed(repeated)));
    }
    if (repeated.size() > 1) {
        remarks.append(CsvHeader::tr("%n names belong to more than one field: %1.", nullptr, repeated.size())
                           .arg(listed(repeated)));
    }
}

/// One attempt at the first bytes of a file.
class Attempt {
public:
    /// With \a isWholeFile, nothing comes behind \a firstBytes, which must outlive the attempt.
    Attempt(const QByteArray &firstBytes, bool isWholeFile)
        : bytes(firstBytes)
        , mark(bytes)
        , text(roughText(bytes, mark))
        , isAll(isWholeFile)
    {
    }

    /// Nothing when it takes more bytes to tell.
    std::optional<Outcome<CsvHeader>> header(QChar separator) const
    {
        if (text.contains(QChar())) {
            return failed(
                CsvHeader::tr("is no text file: it holds zero bytes; expected a CSV file in UTF-8, in "
                              "UTF-16 with a byte-order mark or in Windows-1252"));
        }
        const int start = startOfHeader(text);
        if (start < 0 && !isAll)
            return std::nullopt;
        if (start < 0 && isCutOff())
            return cutOff();
        if (start < 0)
            return failed(CsvHeader::tr("is empty; expected the names of fields in its first line"));
        CsvHeader header;
        header.separator = separator;
        if (separator.isNull()) {
            const CsvRecord sniffed(text, start, CsvHeader::separators());
            if (!sniffed.isEnded && !isAll)
                return std::nullopt;
            header.separator = mostFrequent(sniffed);
        }
        const CsvRecord record(text, start, header.separator);
        if (!record.isEnded && !isAll)
            return std::nullopt;
        return completed(std::move(header), start, record);
    }

private:
    bool isCutOff() const { return mark.wideCodec && bytes.size() % 2 != 0; }

    static Outcome<CsvHeader> cutOff()
    {
        return failed(CsvHeader::tr("ends in the middle of a character; it may have been cut off"));
    }

    Outcome<CsvHeader> completed(CsvHeader header, int start, const CsvRecord &record) const
    {
        if (record.isQuoteOpen) {
            return failed(
                CsvHeader::tr("has a quotation mark in field %1 of its header that is never closed; close "
                              "it in the file, or choose another separator")
                    .arg(record.fields.size()));
        }
        if (!record.isEnded && isCutOff())
            return cutOff();
        if (record.fields.size() > CsvHeader::kMostFields) {
            return failed(CsvHeader::tr("has more than %1 fields in its first line; expected fewer")
                              .arg(CsvHeader::kMostFields));
        }
        if (start > 0 && lineAt(text, start) > 1) {
            header.remarks.append(
                CsvHeader::tr("The names stand in line %1, below empty lines.").arg(lineAt(text, start)));
        }
        const CsvRecord exact(exactText(header, start, record.end), 0, header.separator);
        QStringList names;
        for (const QString &name : exact.fields)
            names.append(name.trimmed());
        nameAll(names, header.remarks);
        remarkOnEqualNames(names, header.remarks);
        for (const QString &name : qAsConst(names)) {
            header.fields.push_back(std::make_unique<TDmSourceField>());
            header.fields.back()->name = name;
            header.fields.back()->dataProviderType = QStringLiteral("CSV");
        }
        return {std::move(header), {}};
    }

    /// The header's text in its true encoding, which is noted in \a header.
    QString exactText(CsvHeader &header, int start, int end) const
    {
        header.encoding = QStringLiteral("UTF-16");
        if (mark.wideCodec)
            return text.mid(start, end - start);
        const QByteArray part = bytes.mid(mark.size + start, end - start);
        QTextCodec::ConverterState strict(QTextCodec::IgnoreHeader);
        QString unicode = decoded("UTF-8", part, strict);
        header.encoding = QStringLiteral("UTF-8");
        if (strict.invalidChars == 0 && strict.remainingChars == 0)
            return unicode;
        if (mark.size > 0) {
            header.remarks.append(CsvHeader::tr(
                "The file is marked as UTF-8 but holds other bytes; it was read as Windows-1252."));
        }
        header.encoding = QStringLiteral("Windows-1252");
        return QTextCodec::codecForName("Windows-1252")->toUnicode(part);
    }

    const QByteArray &bytes;
    const ByteOrderMark mark;
    const QString text;
    const bool isAll;

    Q_DISABLE_COPY_MOVE(Attempt)
};

} // namespace

QString CsvHeader::separators() { return QStringLiteral(",;\t|"); }

Outcome<CsvHeader> CsvHeader::read(QIODevice &device, QChar separator)
{
    QByteArray bytes;
    for (int wanted = kFirstBytes; wanted <= kMostBytes; wanted *= 2) {
        const QByteArray more = device.read(wanted - bytes.size());
        bytes += more;
        const bool isAll = more.isEmpty() || device.atEnd();
        if (auto outcome = Attempt(bytes, isAll).header(separator))
            return std::move(*outcome);
    }
    return failed(
        tr("has no end of its header within %1 MiB; close its quotation marks, or choose another file")
            .arg(kMostBytes / 1024 / 1024));
}

Outcome<CsvHeader> CsvHeader::readFile(const QString &name, QChar separator)
{
    if (QFileInfo(name).isDir())
        return failed(tr("cannot be read: it is a folder; choose a file"));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return failed(tr("cannot be read: %1").arg(file.errorString()));
    Outcome<CsvHeader> outcome = read(file, separator);
    if (file.error() != QFileDevice::NoError)
        return failed(tr("cannot be read: %1").arg(file.errorString()));
    return outcome;
}

} // namespace tessel::editor
