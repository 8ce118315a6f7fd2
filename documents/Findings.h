#pragma once

#include <QString>
#include <QVector>

class TDmEntity;

/// What is wrong with a dictionary that can be read.
namespace tessel::documents {

/// One fault at one place. Codes are stable: programs may look for them.
struct Finding {
    QString code; ///< For example "entity-name-duplicate".
    QString path; ///< JSON pointer to the object at fault, in the document's normal form.
    QString place; ///< Names from the top entity on, parted by "/", for people.
    QString message; ///< One sentence: what is wrong and what to do.
};

/// The faults of the tree below \a root, in document order; the root stands for the document itself.
///
/// | code | the entity's name |
/// |---|---|
/// | entity-name-empty | is empty or blank |
/// | entity-name-invalid | is not a letter or _ followed by letters, digits and _ |
/// | entity-name-unprintable | holds a control character, a double quote or a backslash |
/// | entity-name-too-long | has more than 50 characters |
/// | entity-name-duplicate | is that of an entity before it |
/// | entity-name-is-alias | is an alias of an entity |
/// | entity-name-is-group | is a group of variables |
QVector<Finding> findingsIn(TDmEntity &root);

} // namespace tessel::documents
