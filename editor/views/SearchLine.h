#pragma once

#include <QLineEdit>
#include <QRegExp>

namespace tessel::editor {

/// The field of every search: what is typed is a regular expression, or plain text where that is set; letter
/// case does not count. A bad pattern is shown red, says in the tool tip what is wrong, and matches nothing.
///
/// Escape clears the field before it closes anything; Return and Down leave it for what was found.
class SearchLine : public QLineEdit {
    Q_OBJECT

public:
    enum class Reads { Patterns, PlainText };

    explicit SearchLine(QWidget *parent = nullptr);

    void setReads(Reads what);

    /// What to filter by; empty for no text.
    QRegExp pattern() const;

    bool isBad() const { return !pattern().isValid(); }

signals:
    /// Another pattern is in use from now on; a bad one matches nothing.
    void patternChanged(const QRegExp &pattern);

    /// The rows are wanted: Return, Down, or Escape in an empty field.
    void left();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void judge();
    void paintState();

    Reads reads = Reads::Patterns;
};

} // namespace tessel::editor
