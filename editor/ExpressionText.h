#pragma once

#include <QChar>
#include <QList>
#include <QString>

class TDmEntity;
class TDmVariable;
class ValueLabelElement;

/// The text of expressions: how each object of a dictionary is written, and where blanks go.
namespace tessel::editor {

/// An entity is written by its name.
QString termOf(const TDmEntity &entity);

/// A variable is written with the entity that it belongs to: PERSON.AGE.
QString termOf(const TDmEntity &entity, const TDmVariable &variable);

/// A category is written by its code. Under a variable of type STRING, in whatever case and with blanks
/// around it, the code is a quoted text: an empty code is '' there and nothing under the other types.
QString termOf(const TDmVariable &variable, const ValueLabelElement &category);

/// Whether a blank is needed between two characters that come to stand side by side: not beside another blank
/// or a line end, nor on the inside of a bracket. A null character stands for an end of the text.
bool isBlankNeeded(QChar left, QChar right);

/// The entities whose variables an expression may use, in tree order: all below \a root, and before them the
/// root itself if it holds variables. The list is a copy, the entities are not.
QList<TDmEntity *> entitiesForExpressions(TDmEntity &root);

/// The MIME type of a term that is dragged, in UTF-8.
QString termMimeType();

} // namespace tessel::editor
