#pragma once

#include <QByteArray>

namespace tessel::documents {

/// Leaves out the blanks between the tokens of a JSON text that arrives in pieces, so that of an indented
/// document only what it says has to be kept. What comes out is JSON exactly when what went in is, and means
/// the same: the first blank behind a value stays, for "1 2" is not 12, and texts stay as they are.
class BlankSieve {
public:
    /// Takes the next \a size bytes at \a piece and appends what stays of them to \a kept.
    void sift(const char *piece, int size, QByteArray &kept);

private:
    enum class Place {
        BehindToken, ///< Behind what a blank may have to part from the next token.
        BehindBlank, ///< Behind a blank, or a sign that needs none.
        InText,
        InEscape ///< Behind a backslash in a text.
    };

    // So that a blank before a mark of the byte order, which is no JSON, stays.
    Place place = Place::BehindToken;
};

} // namespace tessel::documents
