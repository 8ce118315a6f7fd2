#pragma once

#include "documents/Losses.h"

#include <QByteArray>
#include <QVector>

namespace tessel::documents {

/// What parsing \a bytes drops without a word: all but one of the values that a key is given in one object,
/// and the digits of a number beyond what a 64-bit whole number or a double holds. \a bytes are JSON.
QVector<Loss> lostInParsing(const QByteArray &bytes);

} // namespace tessel::documents
