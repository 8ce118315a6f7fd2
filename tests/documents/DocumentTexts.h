#pragma once

#include <QByteArray>

/// Dictionaries as somebody else's program may have written them: any order of keys, any blanks between,
/// every spelling of a text and a number. To be called from within a property only.
namespace tessel::test {

/// One of 0 to \a bound - 1, each as likely as the others from the first case on: by itself the generator
/// keeps to the low ones in early cases.
int draw(int bound);

enum class Habit {
    Plain, ///< Every key once, every value of its own type or null.
    Odd, ///< Here and there a key twice, another type, a number that does not fit, broken text.
};

/// The text of a document with up to \a depth generations of entities.
QByteArray anyDocumentText(Habit habit, int depth);

} // namespace tessel::test
