#pragma once

#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string>

namespace tessel::detail {

/// Bytes that grow at the end. Room is asked for once per piece of text, not once per byte.
class TextBuffer {
public:
    /// Makes sure that \a length more bytes can be written, and says where.
    char *room(std::size_t length)
    {
        if (bytes.size() - used < length)
            bytes.resize(std::max(2 * bytes.size(), used + length + 1024));
        return bytes.data() + used;
    }

    /// What was written since room() ends before \a end.
    void wrote(const char *end) { used = std::size_t(end - bytes.data()); }

    void append(const char *text, std::size_t length) { wrote(std::copy_n(text, length, room(length))); }

    void append(char c)
    {
        char *at = room(1);
        *at = c;
        wrote(at + 1);
    }

    void clear() { used = 0; }
    const char *data() const { return bytes.data(); }
    std::size_t size() const { return used; }

private:
    std::string bytes;
    std::size_t used = 0;
};

/// Appends the keys of one JSON object, as compact text, to a buffer that the caller keeps.
/// Numbers have the shortest text that gives the same number back. JSON has no text for a number that is not
/// finite: such a one is written as null and isExact() tells.
class JsonText {
public:
    explicit JsonText(TextBuffer &buffer)
        : out(buffer)
    {
        out.append('{');
    }

    template<std::size_t Length>
    void text(const char (&name)[Length], const QString &value)
    {
        key(name);
        string(value);
    }

    template<std::size_t Length>
    void boolean(const char (&name)[Length], bool value)
    {
        key(name);
        value ? out.append("true", 4) : out.append("false", 5);
    }

    template<std::size_t Length>
    void integer(const char (&name)[Length], int value)
    {
        key(name);
        number(value);
    }

    template<std::size_t Length>
    void real(const char (&name)[Length], double value)
    {
        key(name);
        if (std::isfinite(value)) {
            number(value);
            return;
        }
        out.append("null", 4);
        exact = false;
    }

    /// One key holding an object, whose keys \a fill writes.
    template<std::size_t Length, typename Fill>
    void object(const char (&name)[Length], Fill &&fill)
    {
        key(name);
        nested(fill);
    }

    /// One key holding an array with an object for each item of \a list, whose keys \a fill writes. Null
    /// pointers are passed over; without any item the key is left out.
    template<std::size_t Length, typename List, typename Fill>
    void objects(const char (&name)[Length], const List &list, Fill &&fill)
    {
        bool opened = false;
        for (const auto *item : list) {
            if (!item)
                continue;
            if (opened) {
                out.append(',');
            } else {
                key(name);
                out.append('[');
                opened = true;
            }
            nested([&](JsonText &inner) { fill(inner, *item); });
        }
        if (opened)
            out.append(']');
    }

    /// Closes the object. To be called once, last.
    void close() { out.append('}'); }

    bool isExact() const { return exact; }

private:
    template<typename Fill>
    void nested(Fill &&fill)
    {
        JsonText inner(out);
        fill(inner);
        inner.close();
        exact = exact && inner.exact;
    }

    /// Names are literals: their length is known when this is compiled.
    template<std::size_t Length>
    void key(const char (&name)[Length])
    {
        char *at = out.room(Length + 3);
        if (!empty)
            *at++ = ',';
        empty = false;
        *at++ = '"';
        std::memcpy(at, name, Length - 1);
        at += Length - 1;
        *at++ = '"';
        *at++ = ':';
        out.wrote(at);
    }

    template<typename Number>
    void number(Number value)
    {
        constexpr std::size_t longest = 32;
        char *at = out.room(longest);
        out.wrote(std::to_chars(at, at + longest, value).ptr);
    }

    void string(const QString &value)
    {
        constexpr std::size_t longestUnit = 6; // An escape: backslash, u, four digits.
        char *at = out.room(longestUnit * std::size_t(value.size()) + 2);
        *at++ = '"';
        for (const QChar c : value)
            at = write(c.unicode(), at);
        *at++ = '"';
        out.wrote(at);
    }

    static char *write(ushort unit, char *at)
    {
        if (unit >= 0x20 && unit < 0x80 && unit != u'"' && unit != u'\\') {
            *at++ = char(unit);
        } else if (unit >= 0x80 && unit < 0x800) {
            *at++ = char(0xc0 | unit >> 6);
            *at++ = char(0x80 | (unit & 0x3f));
        } else if (unit >= 0x800 && unit < 0xd800) {
            *at++ = char(0xe0 | unit >> 12);
            *at++ = char(0x80 | (unit >> 6 & 0x3f));
            *at++ = char(0x80 | (unit & 0x3f));
        } else {
            // Control characters and what has a meaning in JSON; surrogates too, so that unpaired ones
            // survive.
            constexpr char hex[] = "0123456789abcdef";
            for (const char c :
                {'\\', 'u', hex[unit >> 12], hex[unit >> 8 & 15], hex[unit >> 4 & 15], hex[unit & 15]})
                *at++ = c;
        }
        return at;
    }

    TextBuffer &out;
    bool empty = true;
    bool exact = true;
};

} // namespace tessel::detail
