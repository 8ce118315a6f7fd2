#include "documents/QuickValues.h"

#include "documents/RawText.h"
#include "documents/Refused.h"

#include <QVariant>

#include <cmath>
#include <limits>

namespace tessel::documents {
namespace {

constexpr int kDeepest = 200;
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

/// The first byte of \a value.
char startOf(QuickValues::Value &value) { return std::string_view(value.raw_json_token()).front(); }

/// The bytes between the quotes of the text \a value, which is passed. What stands between a token and the
/// next is blanks and nothing else.
std::string_view rawOf(QuickValues::Value &value)
{
    std::string_view token = value.raw_json_token();
    if (token.front() != '"')
        throw Refused();
    static_cast<void>(value.get_raw_json_string().value());
    const std::size_t last = token.find_last_not_of(" \t\r\n");
    return token.substr(1, last - 1);
}

/// True when all digits of \a number, as written, are zeros.
bool isZero(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eE,}] \t\r\n");
    return number.substr(0, exponent).find_first_of("123456789") == std::string_view::npos;
}

} // namespace

QuickValues::Descent::Descent(QuickValues &values)
    : depth(values.depth)
{
    if (depth >= kDeepest)
        throw Refused();
    ++depth;
}

std::string_view QuickValues::nameOf(simdjson::ondemand::field &field)
{
    const char *const begin = field.key().raw();
    const char *end = begin;
    // The quote at the end is there: the parser has seen it.
    while (*end != '"') {
        if (*end == '\\')
            throw Refused();
        ++end;
    }
    const std::string_view name(begin, std::size_t(end - begin));
    // Qt takes the name without it.
    if (name.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        throw Refused();
    return name;
}

QString QuickValues::text(Value value) { return isNull(value) ? QString() : texts.text(rawOf(value)); }

QString QuickValues::code(Value value)
{
    const char start = startOf(value);
    if (start == '"' || start == 'n')
        return text(value);
    const Number read = number(value);
    return read.isWhole ? texts.digits(read.whole) : QVariant(read.real).toString();
}

int QuickValues::whole(Value value)
{
    if (isNull(value))
        return 0;
    const Number read = number(value);
    if (!read.isWhole || read.whole < std::numeric_limits<int>::min()
        || read.whole > std::numeric_limits<int>::max())
        throw Refused();
    return int(read.whole);
}

double QuickValues::real(Value value)
{
    if (isNull(value))
        return 0;
    const Number read = number(value);
    return read.isWhole ? double(read.whole) : read.real;
}

bool QuickValues::flag(Value value) { return !isNull(value) && bool(value.get_bool()); }

QuickValues::Number QuickValues::number(Value &value)
{
    std::int64_t whole = 0;
    if (value.get_int64().get(whole) == simdjson::SUCCESS)
        return {true, whole, 0};
    // Qt keeps every number that is whole as such, however it is written. What lies at the ends of a double's
    // range, or at those of a whole number's, is left to it.
    constexpr double largest = 1e300;
    constexpr double smallest = 1e-300;
    constexpr double largestWhole = 9e18;
    constexpr double smallestReal = 1e19;
    const std::string_view token = value.raw_json_token();
    const double real = value.get_double();
    const double size = std::abs(real);
    if (size == 0 ? !isZero(token) : size < smallest || size > largest)
        throw Refused();
    if (size >= largestWhole && size < smallestReal)
        throw Refused();
    if (size < largestWhole && std::trunc(real) == real)
        return {true, qint64(real), 0};
    return {false, 0, real};
}

void QuickValues::pass(Value value)
{
    const Descent descent(*this);
    switch (value.type()) {
    case simdjson::ondemand::json_type::object:
        for (auto field : value.get_object()) {
            static_cast<void>(field.unescaped_key().value());
            pass(field.value());
        }
        break;
    case simdjson::ondemand::json_type::array:
        for (auto item : value.get_array())
            pass(item.value());
        break;
    case simdjson::ondemand::json_type::string:
        textOfRaw(rawOf(value));
        break;
    case simdjson::ondemand::json_type::number:
        number(value);
        break;
    case simdjson::ondemand::json_type::boolean:
        flag(value);
        break;
    case simdjson::ondemand::json_type::null:
        if (!isNull(value))
            throw Refused();
        break;
    }
}

} // namespace tessel::documents
