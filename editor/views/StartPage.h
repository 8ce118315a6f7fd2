#pragma once

#include <QWidget>

class QListWidget;

namespace tessel::editor {

/// What is shown before there is anything to edit: new, open, the sample, and the files of late.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget *parent = nullptr);

    /// Shows the files that were opened last.
    void refresh();

signals:
    void newRequested();
    void openRequested();
    void sampleRequested();
    void fileRequested(const QString &name);

private:
    QListWidget *recent;
};

} // namespace tessel::editor
