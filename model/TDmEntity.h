#pragma once

#include "model/ModelExport.h"

#include <QList>
#include <QString>

class TDmVariable;

/// One level of the hierarchy that a dictionary describes (country, dwelling, person, ...): a node of the
/// entity tree, with the variables that its records hold.
///
/// Owns its child entities and its variables: the destructor deletes those that it holds at that moment,
/// and everything below them, at any depth, without recursion. Deleting the root frees the whole tree.
/// Nothing is validated here and nothing is announced.
class MODEL_TESSEL_EXPORT TDmEntity {
public:
    /// An entity with empty texts, flags cleared, level 0, no children and no variables.
    TDmEntity();
    ~TDmEntity();

    /// The entity's identifier, unique in its dictionary.
    QString getName() const;
    void setName(const QString &text);

    /// A second identifier, for sources that call the entity otherwise.
    QString getAlias() const;
    void setAlias(const QString &text);

    /// What people read.
    QString getLabel() const;
    void setLabel(const QString &text);

    /// Name of the variable that holds the entity's code; empty: none.
    QString getRefCode() const;
    void setRefCode(const QString &variableName);

    /// Name of the variable that holds the entity's label; empty: none.
    QString getRefLabel() const;
    void setRefLabel(const QString &variableName);

    /// Name of the variable by which records are weighted; empty: none.
    QString getWeightVariable() const;
    void setWeightVariable(const QString &variableName);

    /// Free text about the entity.
    QString getDocumentationEntity() const;
    void setDocumentationEntity(const QString &text);

    /// True when the entity has no records of its own.
    bool getIsvirtual() const;
    void setIsvirtual(bool on);

    /// True when the entity may be, or is, selected for a run.
    bool getSelectable() const;
    void setSelectable(bool on);

    /// Depth in the tree: the entities of a document's top list have level 1.
    int getLevel() const;
    void setLevel(int depth);

    /// The mark for deletion that the run wizard shows.
    bool getCheckDelete() const;
    void setCheckDelete(bool on);

    /// The list of child entities itself, in document order, not a copy: whoever changes it changes the
    /// entity. Never null unless setChildren() was given null.
    QList<TDmEntity *> *getChildren() const;

    /// Takes \a list and the entities in it. The list held before is not freed: the caller who took it out
    /// frees it when nobody else holds it. The one exception is the list that the entity was constructed
    /// with, which stays the entity's own and is never to be freed by others. Handing back the held list
    /// changes nothing.
    void setChildren(QList<TDmEntity *> *list);

    /// The list of variables itself, in record order, not a copy. Never null.
    QList<TDmVariable *> *getVariables() const;

    /// Appends \a variable and takes it over.
    void addVariables(TDmVariable *variable);

private:
    QString name;
    QString alias;
    QString label;
    QString refCode;
    QString refLabel;
    QString weightVariable;
    QString documentationEntity;
    bool isvirtual = false;
    bool selectable = false;
    bool checkDelete = false;
    int level = 0;
    // The getters are const and still hand out the lists to be changed.
    mutable QList<TDmEntity *> ownChildren;
    mutable QList<TDmVariable *> variables;
    QList<TDmEntity *> *children = &ownChildren;

    Q_DISABLE_COPY_MOVE(TDmEntity)
};
