#pragma once

#include "editor/views/TablePane.h"

class TDmVariable;

namespace tessel::editor {

/// The valid ranges of the chosen variable.
class RangePane : public TablePane {
    Q_OBJECT

public:
    explicit RangePane(DictionaryDocument &document, QWidget *parent = nullptr);

    /// Shows the ranges of \a variable; of none for null.
    void show(TDmVariable *variable);
    using QWidget::show;

protected:
    QAbstractItemModel *newModel() override;
    Scope editScope(void *object) const override;
    QString editText(void *object, const QString &column) const override;
    bool concerns(const Touched &touched) const override;
    void *addObject(int row) override;
    void removeObjects(const QList<void *> &objects) override;
    void moveObjects(const QList<void *> &objects, int steps) override;

private:
    TDmVariable *shown = nullptr;
};

} // namespace tessel::editor
