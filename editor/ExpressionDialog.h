#pragma once

#include "business/models/eEntityShowMode.h"

#include <QDialog>

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class TDmEntity;
class TDmVariable;

namespace tessel::editor {

class ExpressionEdit;
class PickList;

/// Composes the text of an expression from the entities, variables and categories of a dictionary, to be
/// copied to wherever expressions are used. Changes nothing in the dictionary.
///
/// Borrows the tree, which must outlive the dialog and is not to be edited while it is open.
class ExpressionDialog : public QDialog {
    Q_OBJECT

public:
    explicit ExpressionDialog(TDmEntity &root, QWidget *parent = nullptr);

    /// The expression as it stands.
    QString text() const;

    /// Begins with \a text instead of an empty field, so that an expression can be gone on with.
    void setText(const QString &text);

public slots:
    /// Copies the expression to the clipboard; an empty one leaves the clipboard as it is.
    void copyText();

private:
    QWidget *makeChoice();
    QWidget *makeLists();
    QWidget *makeColumn(PickList *list, const QString &title, const QString &insert, const QString &name);
    QWidget *makeOperators();
    void makeButtons(QBoxLayout &layout);
    void makeKeys();
    void addTabStop(QWidget *widget);

    void showEntities();
    void showVariables();
    void showCategories();
    void followText();

    eEntityShowMode mode() const;
    TDmEntity *currentEntity() const;
    TDmVariable *currentVariable() const;

    TDmEntity &root;
    QComboBox *choice;
    PickList *entities;
    PickList *variables;
    PickList *categories;
    ExpressionEdit *edit;
    QPushButton *copy;
    QLabel *status;
    QWidget *lastTabStop = nullptr;
};

} // namespace tessel::editor
