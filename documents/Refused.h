#pragma once

#include <exception>

namespace tessel::documents {

/// Thrown where a document stops being of the plain kind that is read without Qt's JSON objects; what had
/// been built of it is freed on the way. Never leaves readQuickly().
class Refused : public std::exception {
public:
    const char *what() const noexcept override { return "is not plain"; }
};

} // namespace tessel::documents
