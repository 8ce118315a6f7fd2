#pragma once

#include <QByteArray>

namespace tessel::bench {

/// The text of a dictionary document with \a variables variables of ten value labels each, in seven nested
/// entities. The same text for the same number, in every run.
QByteArray generatedDictionary(int variables);

} // namespace tessel::bench
