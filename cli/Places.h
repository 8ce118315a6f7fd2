#pragma once

#include <QString>
#include <QVector>

class TDmEntity;
class TDmVariable;

namespace tessel::cli {

/// An entity of a tree or, with a variable, one of its variables. Both are borrowed from the tree.
struct Place {
    TDmEntity *entity = nullptr;
    TDmVariable *variable = nullptr;
    QString path; ///< Names from the top entity on, parted by "/".
    QString pointer; ///< JSON pointer to the object in the document's normal form.
};

/// All entities and variables below \a root, in document order; the root itself, with an empty path and
/// pointer, first.
QVector<Place> placesBelow(TDmEntity &root);

/// The places that \a path names: the one at that JSON pointer or else with that whole path, or else all
/// whose path ends with it. Empty when there is none.
QVector<Place> placesNamed(const QVector<Place> &places, const QString &path);

} // namespace tessel::cli
