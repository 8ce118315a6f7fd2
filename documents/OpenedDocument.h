#pragma once

#include "documents/DocumentFile.h"
#include "model/Config.h"
#include "model/TDmEntity.h"

#include <QByteArray>

#include <memory>
#include <optional>

namespace tessel::documents {

/// What a document's bytes describe: exactly one of the two.
struct OpenedDocument {
    std::unique_ptr<TDmEntity> dictionary; ///< As readDictionary() gives it.
    std::unique_ptr<Config> run; ///< As readRun() gives it.

    /// A plain dictionary: what reading it has dropped or changed shows in the bytes that it is written as.
    bool isPlain = false;

    /// What the file holds: from openToWriteAgain() alone.
    std::optional<QByteArray> bytes;
};

/// The document that \a bytes hold; the problems are those of parseObject(). Plain dictionaries are read
/// without Qt's JSON objects.
Outcome<OpenedDocument> openDocument(const QByteArray &bytes);

/// The document in the file \a name; the problems are those of readObject().
Outcome<OpenedDocument> openFile(const QString &name);

/// As openFile(), for whoever is going to write the document again: with the file's bytes, in which to look
/// for what that would lose. A dictionary that is written byte for byte as it was comes without: it loses
/// nothing.
Outcome<OpenedDocument> openToWriteAgain(const QString &name);

/// Whether \a bytes hold a dictionary that reading and writing gives back byte for byte, so that nothing in
/// it is lost. False stands for "not known" as well.
bool isKeptAsItIs(const QByteArray &bytes);

} // namespace tessel::documents
