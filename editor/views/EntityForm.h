#pragma once

#include "editor/views/FormPane.h"

class TDmEntity;

namespace tessel::editor {

/// What the tree does not show of the chosen entity: label, alias, the variables that hold its code, label
/// and weight, its marks and documentation.
class EntityForm : public FormPane {
    Q_OBJECT

public:
    explicit EntityForm(DictionaryDocument &document, QWidget *parent = nullptr);
    ~EntityForm() override;

    /// Shows \a entity; nothing for null.
    void show(TDmEntity *entity);
    using QWidget::show;

protected:
    bool hasObject() const override { return entity; }
    Scope editScope() const override;
    QString shownName() const override;

private:
    TDmEntity *entity = nullptr;
};

} // namespace tessel::editor
