#pragma once

#include <QString>

#include <string_view>

namespace tessel::documents {

/// The text that \a raw stands for, which is valid UTF-8 from between the quotes of a JSON text, escapes
/// included: as Qt's parser understands it. Throws Refused for what it would take otherwise or not at all: a
/// wrong escape, half of a surrogate pair, a mark of the byte order at the start.
QString textOfRaw(std::string_view raw);

} // namespace tessel::documents
