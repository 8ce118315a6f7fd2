#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

class TDmEntity;

namespace tessel::test {

/// The object that \a text holds, as the readers take it. Ends the program when \a text is not a JSON object.
/// Single quotes may stand for double ones, so that documents stay readable in C++.
QVariantMap objectOf(const char *text);

/// The value that \a text holds, which may be of any JSON type; single quotes as above.
QVariant valueOf(const char *text);

/// \a entity with everything below it as compact document text, single quotes for double ones.
QByteArray documentOf(TDmEntity &entity);

} // namespace tessel::test
