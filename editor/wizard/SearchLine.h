#pragma once

#include <QLineEdit>
#include <QRegExp>

namespace tessel::editor {

/// A search field whose text is a regular expression that does not heed letter case. A bad one is shown red,
/// with what is wrong with it as the tool tip, and matches nothing.
///
/// Inside a dialog: Escape clears the text before it closes anything, Enter leaves the field instead of
/// pressing the default button.
class SearchLine : public QLineEdit {
    Q_OBJECT

public:
    explicit SearchLine(QWidget *parent = nullptr);

    /// What to filter by; empty for no text.
    QRegExp pattern() const;

    bool isBad() const { return !pattern().isValid(); }

signals:
    void patternChanged(const QRegExp &pattern);

    /// Enter was pressed: on to what was found.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void judge();
};

} // namespace tessel::editor
