#pragma once

#include "documents/Findings.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QTreeWidget;

namespace tessel::editor {

class DictionaryDocument;

/// What the check finds in the dictionary, kept current a moment after the last edit.
class ProblemsPane : public QWidget {
    Q_OBJECT

public:
    explicit ProblemsPane(DictionaryDocument &document, QWidget *parent = nullptr);

    int count() const;

public slots:
    /// Judges the dictionary now.
    void check();

    /// Goes to the next problem, or to the one before for -1, around the end.
    void step(int direction);

signals:
    void countChanged(int count);

    /// The user wants to see the place that the JSON pointer \a path names.
    void goTo(const QString &path);

    /// The problem that is gone to, in one sentence.
    void told(const QString &sentence);

private:
    void go();

    DictionaryDocument &document;
    QTreeWidget *list;
    QTimer timer;
};

} // namespace tessel::editor
