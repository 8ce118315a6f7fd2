#pragma once

#include "editor/views/TablePane.h"

class TDmEntity;
class TDmVariable;

namespace tessel::editor {

/// The variables of the chosen entity. Takes fields that are dragged from the sources.
class VariablePane : public TablePane {
    Q_OBJECT

public:
    explicit VariablePane(DictionaryDocument &document, QWidget *parent = nullptr);

    /// Shows the variables of \a entity; of none for null.
    void show(TDmEntity *entity);
    using QWidget::show;

    TDmEntity *entity() const { return shown; }
    TDmVariable *currentVariable() const;
    QList<TDmVariable *> selectedVariables() const;

public slots:
    /// Makes variables of \a fields, as one step of the undo stack. \a fields is the caller's.
    void take(const QMimeData *fields);

signals:
    /// take() has made \a variables, one at least, of \a fields in \a entity. The data is good until the
    /// receivers return.
    void taken(TDmEntity *entity, const QList<TDmVariable *> &variables, const QMimeData *fields);

protected:
    QAbstractItemModel *newModel() override;
    Scope editScope(void *object) const override;
    QString editText(void *object, const QString &column) const override;
    QString silentFault(int column, const QString &typed) const override;
    bool concerns(const Touched &touched) const override;
    void *addObject(int row) override;
    void removeObjects(const QList<void *> &objects) override;
    void moveObjects(const QList<void *> &objects, int steps) override;
    void sizeColumns() override;

private:
    TDmEntity *shown = nullptr;
};

} // namespace tessel::editor
