#pragma once

#include <QLineEdit>
#include <QRegExp>

namespace tessel::editor {

/// The field for a pattern, a regular expression without regard to letter case. A bad pattern is shown red
/// and says in the tool tip what is wrong; the last good one stays in use until then. Esc clears the field.
class SourceFilter : public QLineEdit {
    Q_OBJECT

public:
    explicit SourceFilter(QWidget *parent = nullptr);

    bool isBad() const { return bad; }

signals:
    /// A good pattern is in use from now on; an empty one lets every row through.
    void patternChanged(const QRegExp &pattern);

    /// The rows are wanted: Return, Down, or Esc in an empty field.
    void left();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void judge(const QString &text);
    void paintState();

    const QString hint;
    bool bad = false;
};

} // namespace tessel::editor
