#pragma once

#include <QString>

class TDmEntity;

namespace tessel::sources {

/// \a text as an entity's name, by the rules of the entity tree: what may not stand in a name becomes "_",
/// "_" goes before a digit at the start, a long text is cut. Never empty.
QString validEntityName(const QString &text);

/// The above, with a number behind it where an entity, an alias or a group below \a root has that name.
QString freeEntityName(const QString &text, TDmEntity &root);

} // namespace tessel::sources
