#pragma once

#include "business/BusinessExport.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

class QJsonObject;
class Range;
class TDmEntity;
class TDmVariable;
class ValueLabelElement;
class VarWipChoice;

/// Reads a parsed dictionary document into entities and writes entities as a dictionary document.
///
/// Holds no state: one instance may serve any number of documents. Readers never fail: a key that they do not
/// know is skipped, a missing one leaves the object's default, and a value of another type is converted by
/// QVariant's rules. Every list and object that a reader returns is new and belongs to the caller.
///
/// A list (entities, variables, value labels, ranges) may be a JSON array or one object standing alone, which
/// is read as a list of one. An array's element that is no object gives an item in its default state.
///
/// A std::exception, for want of memory say, ends the operation that it meets: its text goes to Qt's debug
/// log and the operation returns what it had built so far, or null when not even the empty list could be
/// made.
class BUSINESS_TESSEL_EXPORT ProcessDictionaryBusiness {
public:
    ProcessDictionaryBusiness();

    /// The entities of \a node's child list, with everything below them.
    /// \a node is a document's top object or an entity object; only its first key, in sorted order, that is
    /// "entities" or "root" is read, the rest of it is not. \a level is the level of \a node itself: 0 for a
    /// document, whose top entities then have level 1. A node without a child list gives an empty list.
    QList<TDmEntity *> *recorrerNodosJsonYCargaEstructuraEntidades(QMap<QString, QVariant> node, int level);

    /// The variables of \a value, which is what stands under an entity's "variables".
    QList<TDmVariable *> *recorrerVariablesNodosJson(QVariant value);

    /// Sets the one field of \a target that \a key names to what \a object holds under that key.
    /// "documentation" is not read. "metadata" gives the variable a new layout in place of the one it has.
    void loadItemFromVariables(QString key, TDmVariable *target, QMap<QString, QVariant> object);

    /// The ranges of \a value, which is what stands under a layout's "range". Bounds in an array are numbers
    /// with decimals; those of a lone object are whole numbers.
    QList<Range *> *itemVariableSubitemRange(QVariant value);

    /// The value labels of \a value, which is what stands under a variable's "valueLabels". Codes are kept as
    /// text.
    QList<ValueLabelElement *> *recorrerValoresPorVariablesNodosJson(QVariant value);

    /// The value labels of the first object in \a value that has the key "valueLabelElement".
    QList<ValueLabelElement *> *recorrerVectorValoresPorVariablesNodosJson(QVariant value);

    /// Fills \a target from the choice object that \a object holds under \a key; an empty or missing one
    /// leaves \a target as it is.
    void loadItemVariableSubitemVarWipChoice(
        VarWipChoice *target, QMap<QString, QVariant> object, QString key);

    /// Writes \a entity, its variables and all its descendants into \a out; called with the root and an empty
    /// object it makes a whole dictionary document. Neither may be null. Keys that \a out already holds are
    /// replaced or left; the tree is not changed. Null pointers in a list are passed over.
    void getStructuraTreeRootToJson(TDmEntity *entity, QJsonObject *out);
};
