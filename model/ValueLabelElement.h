#pragma once

#include <QString>

#include <utility>

/// One category of a variable: a code and what it stands for. A plain record: may be copied.
class ValueLabelElement {
public:
    /// The code, as text even where the variable is numeric.
    QString getValue() const { return value; }
    void setValue(QString text) { value = std::move(text); }

    /// What the code stands for.
    QString getLabel() const { return label; }
    void setLabel(const QString &text) { label = text; }

private:
    QString value;
    QString label;
};
