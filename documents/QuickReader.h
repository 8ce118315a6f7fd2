#pragma once

#include "model/TDmEntity.h"

#include <QByteArray>

#include <memory>

namespace tessel::documents {

/// The tree of the dictionary that \a bytes hold: what readDictionary() makes of the object that
/// parseObject() finds in them, without that object and in a fraction of the time and memory. Texts that come
/// more than once share their memory.
///
/// Only plain documents are taken: every known key is given once and holds a value of its own type, or null.
/// Anything else, a run configuration and what is no JSON among it, gives null and no message; the long way
/// knows what to do with it. A plain document that is written as its own bytes loses nothing by being
/// written.
std::unique_ptr<TDmEntity> readQuickly(const QByteArray &bytes);

} // namespace tessel::documents
