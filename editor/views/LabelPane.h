#pragma once

#include "editor/views/TablePane.h"

class TDmVariable;

namespace tessel::editor {

/// The value labels of the chosen variable. Blocks of codes and labels can be pasted from a spreadsheet.
class LabelPane : public TablePane {
    Q_OBJECT

public:
    explicit LabelPane(DictionaryDocument &document, QWidget *parent = nullptr);

    /// Shows the labels of \a variable; of none for null.
    void show(TDmVariable *variable);
    using QWidget::show;

public slots:
    /// Adds what the clipboard holds: one label a line, code and label parted by a tab or a blank.
    void paste();

    /// Puts the selected labels on the clipboard, one a line, parted by tabs.
    void copy();

protected:
    QAbstractItemModel *newModel() override;
    Scope editScope(void *object) const override;
    QString editText(void *object, const QString &column) const override;
    bool concerns(const Touched &touched) const override;
    void *addObject(int row) override;
    void removeObjects(const QList<void *> &objects) override;
    void moveObjects(const QList<void *> &objects, int steps) override;
    void sizeColumns() override;

private:
    TDmVariable *shown = nullptr;
};

} // namespace tessel::editor
