#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// Document files: the bytes, and the JSON object that they hold.
namespace tessel::documents {

/// Why a file could not be read, parsed or written.
struct FileProblem {
    QString message; ///< One sentence: what is wrong and what was expected.
    int line = 0; ///< Counted from 1; 0 when the whole file is meant.
    int column = 0; ///< In characters, counted from 1; 0 when the whole file is meant.
};

/// A result or the reason why there is none.
template<typename Result>
struct Outcome {
    std::optional<Result> result;
    FileProblem problem; ///< To be read only without a result.
};

/// All bytes of the file \a name; "-" is standard input. A file of more than one gibibyte is refused, so that
/// an endless one (a device, a pipe) ends.
Outcome<QByteArray> readFile(const QString &name);

/// The bytes of the file \a name without the blanks between the tokens of the JSON text that they are taken
/// for, and with the same meaning: in normal form blanks are half of a document. The problems are those of
/// readFile().
Outcome<QByteArray> readFileWithoutBlanks(const QString &name);

/// The object that \a bytes hold. Anything but one JSON object in UTF-8 is a problem with its place.
Outcome<QJsonObject> parseObject(const QByteArray &bytes);

/// The object that the file \a name holds: the two above in one.
Outcome<QJsonObject> readObject(const QString &name);

/// Writes \a bytes to the file \a name: a regular file is replaced at once or, after any failure, stays as it
/// was byte for byte; what is no regular file (a device, a pipe) is written as it stands. Nothing returned:
/// all is well.
std::optional<FileProblem> writeFile(const QString &name, const QByteArray &bytes);

} // namespace tessel::documents
