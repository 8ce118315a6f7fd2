#pragma once

#include "documents/TextStream.h"
#include "model/TDmEntity.h"

#include <QByteArray>
#include <QIODevice>

#include <optional>

namespace tessel::documents {

/// \a root and all below it as a document in normal form, byte for byte what the library's writer and
/// QJsonDocument make of it, without the JSON objects in between. Nothing when the tree holds a value that
/// changes on that way: a number that is not finite, a text that begins with a mark of the byte order.
std::optional<QByteArray> textQuickly(const TDmEntity &root);

/// Whether \a root is written as what is left to read of \a document, which is open. Ends at the first
/// difference and keeps no text. False, too, where textQuickly() gives nothing.
bool isWrittenAs(const TDmEntity &root, QIODevice &document);

/// Whether \a root is written as \a bytes.
bool isWrittenAs(const TDmEntity &root, const QByteArray &bytes);

} // namespace tessel::documents
