#include "documents/DocumentFile.h"

#include "documents/BlankSieve.h"
#include "documents/ParseFault.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tessel::documents {
namespace {

constexpr qint64 kLargestFile = 1024 * 1024 * 1024;

QString tr(const char *text) { return QCoreApplication::translate("tessel::documents", text); }

Outcome<QJsonObject> failedAt(const QByteArray &bytes, int offset, const QString &message)
{
    return {std::nullopt, problemAt(bytes, offset, message)};
}

/// Names what a document begins with when it is no object; empty when it may be one.
QString strangerAt(const QByteArray &bytes, int start)
{
    const char first = bytes.at(start);
    if (first == '[')
        return tr("expected an object at the top, found an array");
    if (first == '"')
        return tr("expected an object at the top, found a text");
    if (first == '-' || (first >= '0' && first <= '9'))
        return tr("expected an object at the top, found a number");
    for (const char *word : {"true", "false", "null"}) {
        if (bytes.mid(start).trimmed() == word)
            return tr("expected an object at the top, found %1").arg(QLatin1String(word));
    }
    return QString();
}

bool startsAsUtf16(const QByteArray &bytes)
{
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
}

constexpr qint64 kPiece = 1024 * 1024;

/// Hands the bytes of the file \a name to \a take, in pieces of at most \a largest bytes and a few.
template<typename Take>
std::optional<FileProblem> readPieces(const QString &name, qint64 largest, Take &&take)
{
    QFile file(name);
    if (name != QLatin1String("-") && QFileInfo(name).isDir())
        return FileProblem{tr("cannot be read: it is a folder; name a file")};
    const bool opened = name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                   : file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (!opened)
        return FileProblem{tr("cannot be read: %1").arg(file.errorString())};
    qint64 total = 0;
    while (true) {
        // What is left free behind the bytes spares readers that look at whole blocks a copy.
        constexpr qint64 spare = 64;
        const QByteArray piece = file.read(qBound(kPiece, file.bytesAvailable(), largest) + spare);
        if (piece.isEmpty())
            break;
        total += piece.size();
        if (total > kLargestFile)
            return FileProblem{tr("is larger than 1 GiB; expected a smaller document")};
        take(piece);
    }
    if (file.error() != QFileDevice::NoError)
        return FileProblem{tr("cannot be read: %1").arg(file.errorString())};
    return std::nullopt;
}

} // namespace

Outcome<QByteArray> readFile(const QString &name)
{
    QByteArray bytes;
    if (auto problem = readPieces(name, kLargestFile, [&](const QByteArray &piece) { bytes += piece; }))
        return {std::nullopt, *problem};
    return {bytes, {}};
}

Outcome<QByteArray> readFileWithoutBlanks(const QString &name)
{
    QByteArray kept;
    BlankSieve sieve;
    const auto sift = [&](const QByteArray &piece) { sieve.sift(piece.constData(), piece.size(), kept); };
    if (auto problem = readPieces(name, kPiece, sift))
        return {std::nullopt, *problem};
    return {kept, {}};
}

Outcome<QJsonObject> parseObject(const QByteArray &bytes)
{
    if (startsAsUtf16(bytes))
        return failedAt(bytes, 0, tr("expected text in UTF-8, found UTF-16; save the file in UTF-8"));
    int start = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    while (start < bytes.size() && QByteArray(" \t\r\n").contains(bytes.at(start)))
        ++start;
    if (start == bytes.size())
        return failedAt(bytes, start, tr("expected an object at the top, found nothing: the file is empty"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isObject())
        return {document.object(), {}};
    const QString stranger = strangerAt(bytes, start);
    if (!stranger.isEmpty() && (document.isArray() || bytes.at(start) != '['))
        return failedAt(bytes, start, stranger);
    return {std::nullopt, faultOf(bytes, error)};
}

Outcome<QJsonObject> readObject(const QString &name)
{
    const Outcome<QByteArray> read = readFile(name);
    return read.result ? parseObject(*read.result) : Outcome<QJsonObject>{std::nullopt, read.problem};
}

std::optional<FileProblem> writeFile(const QString &name, const QByteArray &bytes)
{
    // Replacing a device by a file would be worse than a half-written pipe.
    const QFileInfo info(name);
    if (info.isDir())
        return FileProblem{tr("cannot be written: it is a folder; name a file")};
    if (info.exists() && !info.isFile()) {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(bytes) != bytes.size())
            return FileProblem{tr("cannot be written: %1").arg(file.errorString())};
        return std::nullopt;
    }
    QSaveFile file(name);
    errno = 0;
    // Not until the last byte has left the buffer is it certain that there is room for it: commit() does not
    // tell.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit())
        return std::nullopt;
    const int reason = errno;
    const QString said = file.error() == QFileDevice::UnspecifiedError || file.error() == QFileDevice::NoError
            || file.error() == QFileDevice::WriteError
        ? QString::fromLocal8Bit(std::strerror(reason))
        : file.errorString();
    return FileProblem{tr("cannot be written: %1; nothing was changed").arg(said)};
}

} // namespace tessel::documents
