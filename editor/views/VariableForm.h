#pragma once

#include "editor/views/FormPane.h"

class TDmVariable;

namespace tessel::editor {

/// What the table of variables does not show of the chosen variable: type, sizes, codes, place in the record,
/// documentation.
class VariableForm : public FormPane {
    Q_OBJECT

public:
    explicit VariableForm(DictionaryDocument &document, QWidget *parent = nullptr);
    ~VariableForm() override;

    /// Shows \a variable; nothing for null.
    void show(TDmVariable *variable);
    using QWidget::show;

protected:
    bool hasObject() const override { return variable; }
    Scope editScope() const override;
    QString shownName() const override;

private:
    TDmVariable *variable = nullptr;
};

} // namespace tessel::editor
