#pragma once

#include <QList>
#include <QWidget>

class QAbstractButton;

namespace tessel::editor {

/// A row of buttons for the operators of expressions.
class OperatorBar : public QWidget {
    Q_OBJECT

public:
    explicit OperatorBar(QWidget *parent = nullptr);

    /// The buttons from left to right; they stay the bar's.
    QList<QAbstractButton *> buttons() const { return row; }

signals:
    /// The user wants \a term in the expression.
    void picked(const QString &term);

private:
    QList<QAbstractButton *> row;
};

} // namespace tessel::editor
