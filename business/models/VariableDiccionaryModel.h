#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TransferListModel.h"

#include <memory>

class DictionaryUtil;
class TDmEntity;
class TDmVariable;
class Validate;
class ValueLabelElement;

/// Table of one entity's variables: name, alias, label, group, tag. Typed edits pass the dictionary's rules,
/// and fields dropped from a source catalogue become new variables.
///
/// Borrows the entity, the dictionary's root and all variables; all must outlive the model. The rows are
/// those that the entity had when the model was made or when the last drop was completed. Message boxes run
/// inside setData(), dropMimeData(), updateEntityVariables() and showDuplicatedNamesWarning(). A null entity
/// or root is an empty one.
class BUSINESS_TESSEL_EXPORT VariableDiccionaryModel
    : public tessel::detail::TransferListModel<VariableDiccionaryModel, TDmVariable> {
    Q_OBJECT

public:
    /// The variables of \a entity. Names and aliases that a new text must not repeat are those below \a root.
    VariableDiccionaryModel(QObject *parent, TDmEntity *entity, TDmEntity *root);
    ~VariableDiccionaryModel() override;

    /// Applies a typed text. A refusal is told in a box, returns false and leaves all as it was; only a name
    /// that differs by nothing but blanks around it is refused in silence. Renaming the variable that holds
    /// the entity's code asks whether it is to keep that part; "No" takes the code and the selectable mark
    /// from the entity and the mark from all entities below it, "Cancel" changes nothing and is still
    /// announced. A tag that is no number is ignored; above 9999 it becomes 9999. Roles other than
    /// Qt::EditRole change nothing and are announced and true.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Null: rows of this table are not dragged anywhere.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

    /// Adds a variable for each field in \a data, at the end of the entity's list, wherever it was dropped,
    /// and takes the entity's variables as rows anew. False for another format and for a column above 0. A
    /// lookup is refused, with a box, where the entity is not selectable; what is refused is nobody's and
    /// stays alive.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
        const QModelIndex &parent) override;

    /// A new variable, the caller's, from one transfer object as the catalogues write it. Reading never
    /// fails: a text that is no JSON object gives a variable with an empty name.
    TDmVariable *getVariableFromJsonDrop(QString json);

    /// New value labels from the list of categories of a transfer object. The caller owns the list and what
    /// is in it.
    QList<ValueLabelElement *> *loadCategories(QVariant categories);

    /// Adds each variable of \a list to the entity, which owns it from then on. Where one with the same name,
    /// alias, label and group is there already, a box asks whether the new one takes its place; what it
    /// replaces, and what is not added, is nobody's and stays alive. Then warns of repeated names. The rows
    /// stay those of before. Texts that a slot of signalVariablesModified() changes meanwhile are not
    /// compared again.
    void updateEntityVariables(QList<TDmVariable *> *list);

    /// Lists the variables whose names are not unique in the entity, in a box; without any, does nothing.
    void showDuplicatedNamesWarning();

signals:
    /// The entity's variables have changed: after each edit, and for each variable that was added.
    void signalVariablesModified();

protected:
    QVariant markData(TDmVariable &variable, int column, int role) const override;

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmVariable> columns();
    void takeRows();
    bool isAllowed(int column, const QString &text, const TDmVariable &variable);
    void rename(TDmVariable &variable, const QString &name);
    void giveUpCode();
    QLatin1String iconOf(const TDmVariable &variable) const;

    std::unique_ptr<Validate> validate;
    std::unique_ptr<DictionaryUtil> dictionaryUtil;
    TDmEntity *entity;
    TDmEntity *root;
};
