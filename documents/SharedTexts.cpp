#include "documents/SharedTexts.h"

#include "documents/RawText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

namespace tessel::documents {
namespace {

/// Longer texts are hardly ever the same as another.
constexpr std::size_t kLongest = 48;

std::uint64_t load(const char *bytes, std::size_t count)
{
    std::uint64_t value = 0;
    std::memcpy(&value, bytes, count);
    return value;
}

/// Heeds the length and up to eight bytes at each end, in which texts of one document mostly differ.
std::size_t hashOf(std::string_view raw)
{
    constexpr std::uint64_t mixer = 0x9e3779b97f4a7c15U;
    constexpr int kept = 32;
    const std::size_t count = std::min(raw.size(), sizeof(std::uint64_t));
    std::uint64_t hash = load(raw.data(), count) * mixer;
    hash = (hash ^ (hash >> kept) ^ load(raw.data() + raw.size() - count, count) ^ raw.size()) * mixer;
    return std::size_t(hash >> kept);
}

} // namespace

QString SharedTexts::text(std::string_view raw)
{
    if (raw.empty() || raw.size() > kLongest)
        return textOfRaw(raw);
    Entry &entry = recent[hashOf(raw) % recent.size()];
    if (entry.raw != raw) {
        entry.text = textOfRaw(raw);
        entry.raw = raw;
    }
    return entry.text;
}

QString SharedTexts::digits(qint64 number)
{
    char bytes[24];
    const auto written = std::to_chars(bytes, bytes + sizeof bytes, number);
    const auto made = [&] { return QString::fromLatin1(bytes, int(written.ptr - bytes)); };
    if (number < 0 || number >= qint64(small.size()))
        return made();
    QString &known = small[std::size_t(number)];
    if (known.isNull())
        known = made();
    return known;
}

} // namespace tessel::documents
