#pragma once

#include "model/Config.h"
#include "model/TDmEntity.h"

#include <QByteArray>
#include <QJsonObject>

#include <memory>

/// From a document's object to the tree that it describes, and back to the document's normal form.
namespace tessel::documents {

enum class DocumentKind { Dictionary, Run };

/// A run configuration says so itself, by "type": "config"; any other object is taken for a dictionary.
DocumentKind kindOf(const QJsonObject &document);

/// The tree of a dictionary: a root of level 0 with the document's own keys, the top entities (level 1) below
/// it. Holds what the library's reader leaves out too: the root's own fields and variables, and the
/// documentation of variables.
std::unique_ptr<TDmEntity> readDictionary(const QJsonObject &document);

/// The configuration that a run document describes.
std::unique_ptr<Config> readRun(const QJsonObject &document);

/// \a root and all below it as a document in normal form: indented by four, keys sorted, UTF-8, a line end at
/// the end.
QByteArray dictionaryText(TDmEntity &root);

/// As above, and reading and writing the text again does not change it any more: codes without a type get the
/// form of the type that is written.
QByteArray settledText(TDmEntity &root);

/// The same, made by the library's writer and QJsonDocument: several times slower, and the measure for the
/// former.
QByteArray dictionaryTextOfLibrary(TDmEntity &root);

/// \a config as a document in normal form.
QByteArray runText(Config &config);

/// What \a document is written as after it was read: a text that reading and writing it again does not change
/// any more.
QByteArray normalForm(const QJsonObject &document);

} // namespace tessel::documents
