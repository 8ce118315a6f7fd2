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
/// What an entity says of its variables and the variables themselves follow its name; the entities below it
/// come last.
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
///
/// | code | what is wrong |
/// |---|---|
/// | entity-code-unknown | the variable that holds the entity's code is none of its variables |
/// | entity-label-unknown | the variable that holds the entity's label is none of its variables |
/// | entity-weight-unknown | the variable that holds the entity's weight is none of its variables |
/// | variable-name-empty | a variable's name is empty or blank |
/// | variable-name-unprintable | a variable's name holds a control character, a double quote or a backslash |
/// | variable-name-duplicate | a variable's name is that of a variable before it in the entity |
/// | variable-name-is-entity | a variable's name is that of an entity |
/// | variable-label-unprintable | a label holds a control character, a double quote or a backslash |
/// | variable-type-unknown | a variable's type is none of string, integer, real and bool |
/// | label-code-not-number | a code under a numeric type is no such number and would be saved as 0 |
/// | range-reversed | a range's minimum is above its maximum |
QVector<Finding> findingsIn(TDmEntity &root);

} // namespace tessel::documents
