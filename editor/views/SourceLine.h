#pragma once

#include <QWidget>

namespace tessel::editor {

/// One line of text that gives way to its neighbours: what has no room is cut off with dots, and stands in
/// full in the tool tip.
class SourceLine : public QWidget {
    Q_OBJECT

public:
    explicit SourceLine(QWidget *parent = nullptr);

    /// Shows \a sentences one behind the other; the tool tip has them in lines of their own, below \a title.
    /// None of them is taken for markup.
    void setSentences(const QString &title, const QStringList &sentences);
    QString text() const { return line; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString line;
};

} // namespace tessel::editor
