#pragma once

#include <QString>

class Range;
class TDmEntity;
class TDmVariable;
class ValueLabelElement;

namespace tessel::editor {

/// A place in a dictionary; the objects are the tree's, null where the place has none.
struct Place {
    TDmEntity *entity = nullptr;
    TDmVariable *variable = nullptr;
    ValueLabelElement *label = nullptr;
    Range *range = nullptr;
};

/// The place below \a root that the JSON pointer \a path names in the document's normal form; as far as the
/// path leads.
Place placeAt(TDmEntity &root, const QString &path);

} // namespace tessel::editor
