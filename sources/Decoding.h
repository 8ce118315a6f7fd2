#pragma once

#include <QString>

#include <optional>
#include <string_view>

namespace tessel::sources {

/// The text of \a bytes; nothing when they are no UTF-8.
std::optional<QString> strictUtf8(std::string_view bytes);

/// The text that \a bytes are in Windows-1252, which takes any bytes.
QString windows1252(std::string_view bytes);

} // namespace tessel::sources
