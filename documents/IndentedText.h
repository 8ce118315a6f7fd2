#pragma once

#include "documents/TextStream.h"

#include <QString>

#include <algorithm>
#include <cstring>

namespace tessel::documents {

/// Writes the keys of one JSON object to a stream, in the very form that QJsonDocument gives indented text:
/// four blanks for each level, texts in UTF-8, whole numbers without a point. Keys are to come sorted.
/// Some values have another form by the time that QJsonDocument writes them; isExact() tells that there was
/// such a one, and what was written is then of no use.
class IndentedText {
public:
    /// Opens an object that stands inside \a aDepth others.
    IndentedText(TextStream &stream, int aDepth);

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
        value ? put("true", 4) : put("false", 5);
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
        number(value);
    }

    /// One key holding an object, whose keys \a fill writes.
    template<std::size_t Length, typename Fill>
    void object(const char (&name)[Length], Fill &&fill)
    {
        key(name);
        nested(depth + 1, fill);
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
            if (!opened)
                key(name);
            opened ? put(",\n", 2) : put("[\n", 2);
            opened = true;
            indent(depth + 2);
            nested(depth + 2, [&](IndentedText &inner) { fill(inner, *item); });
            if (!out.isWanted())
                return;
        }
        if (!opened)
            return;
        put("\n", 1);
        indent(depth + 1);
        put("]", 1);
    }

    /// Closes the object. To be called once, last.
    void close();

    bool isExact() const { return exact; }

private:
    template<typename Fill>
    void nested(int innerDepth, Fill &&fill)
    {
        IndentedText inner(out, innerDepth);
        fill(inner);
        inner.close();
        exact = exact && inner.exact;
    }

    /// Names are literals: their length is known when this is compiled.
    template<std::size_t Length>
    void key(const char (&name)[Length])
    {
        if (!empty)
            put(",\n", 2);
        empty = false;
        indent(depth + 1);
        char *at = out.room(Length + 3);
        *at++ = '"';
        at = std::copy_n(name, Length - 1, at);
        for (const char c : {'"', ':', ' '})
            *at++ = c;
        out.wrote(at);
    }

    void put(const char *text, std::size_t length)
    {
        char *at = out.room(length);
        std::memcpy(at, text, length);
        out.wrote(at + length);
    }

    void indent(int levels);
    void number(qint64 value);
    void number(int value) { number(qint64(value)); }
    void number(double value);
    void string(const QString &value);

    TextStream &out;
    int depth;
    bool empty = true;
    bool exact = true;
};

} // namespace tessel::documents
