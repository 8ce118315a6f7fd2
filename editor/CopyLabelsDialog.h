#pragma once

#include <QDialog>
#include <QList>

class QListWidget;
class TDmEntity;
class TDmVariable;

namespace tessel::editor {

/// Asks which variables of an entity are to have the labels of one of them in place of their own.
class CopyLabelsDialog : public QDialog {
    Q_OBJECT

public:
    CopyLabelsDialog(const TDmVariable &source, const TDmEntity &entity, QWidget *parent = nullptr);

    /// The ticked variables.
    QList<TDmVariable *> targets() const;

private:
    QListWidget *list;
    QList<TDmVariable *> offered;
};

} // namespace tessel::editor
