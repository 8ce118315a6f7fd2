#pragma once

#include <QHash>
#include <QString>

class TDmEntity;
class TDmVariable;

/// Dictionary objects as text with nothing left out: which object stands where (by its address) and all that
/// it holds, levels and marks included. Two equal texts mean that nobody can tell the two states apart.
namespace tessel::test {

/// The fields of \a entity, and which objects its two lists hold; one line.
QString deepText(const TDmEntity &entity);

/// The fields, labels, layout and ranges of \a variable; one line.
QString deepText(const TDmVariable &variable);

/// The line of each object in the tree of \a root, labels and ranges within their variable's.
QHash<const void *, QString> deepLines(const TDmEntity &root);

/// The lines of the tree of \a root, parents before children, in document order.
QString deepTree(const TDmEntity &root);

} // namespace tessel::test
