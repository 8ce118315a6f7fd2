#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace tessel::documents {

/// Bytes on their way out, handed on in large pieces. What a piece is for is the receiver's business; once it
/// wants no more, nothing is handed on.
class TextStream {
public:
    /// Takes a piece; false when it wants no more.
    using Receiver = std::function<bool(const char *piece, std::size_t length)>;

    explicit TextStream(Receiver someReceiver)
        : receiver(std::move(someReceiver))
    {
    }

    /// Makes sure that \a length more bytes can be written, and says where.
    char *room(std::size_t length)
    {
        if (bytes.size() - used < length)
            makeRoom(length);
        return bytes.data() + used;
    }

    /// What was written since room() ends before \a end.
    void wrote(const char *end) { used = std::size_t(end - bytes.data()); }

    /// Hands on what is left.
    void finish()
    {
        wanted = wanted && receiver(bytes.data(), used);
        used = 0;
    }

    /// False once the receiver wants no more: what is still written goes nowhere.
    bool isWanted() const { return wanted; }

private:
    void makeRoom(std::size_t length)
    {
        finish();
        if (bytes.size() < length)
            bytes.resize(length);
    }

    static constexpr std::size_t kPiece = 64 * 1024;

    Receiver receiver;
    std::string bytes = std::string(kPiece, '\0');
    std::size_t used = 0;
    bool wanted = true;
};

} // namespace tessel::documents
