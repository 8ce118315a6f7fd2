#pragma once

#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QMimeData;
class QTabWidget;

namespace tessel::editor {

class CsvSourceTab;
class DatasetSourceTab;
class LookupSourceTab;
class SourceTab;

/// What variables can be made of: the fields of a CSV file, those of a dataset, and lookup tables, a tab
/// each. Rows are dragged into the table of variables or added to it by button, Return or double click. Files
/// dropped on the pane are opened. Owns all that it shows; changes no dictionary.
class SourcesPane : public QWidget {
    Q_OBJECT

public:
    explicit SourcesPane(QWidget *parent = nullptr);

    /// Shows the fields of the CSV file \a file. False, and a problem announced, when there are none; what
    /// was shown before stays.
    bool openCsv(const QString &file);

    /// Shows the lookups in the JSON file \a file. False, and a problem announced, when there are none; what
    /// was shown before stays.
    bool openLookups(const QString &file);

    /// Shows the fields of the dataset \a file; a .sas7bcat file gives its labels to the dataset that was
    /// opened before it. False when there are none, and a problem announced unless the user has cancelled;
    /// what was shown before stays.
    bool openDataset(const QString &file);

    /// Lets \a reader read the datasets, in place of sources::readSource.
    void setDatasetReader(
        const std::function<sources::SourceOutcome(const QString &, const sources::ReadOptions &)> &reader);

    /// Gives the keyboard to the filter of the tab in front.
    void focusFilter();

signals:
    /// The rows in \a data, as a drag would carry them, are to go into the table of variables. The data is
    /// good until the receivers return, and not theirs.
    void addRequested(const QMimeData *data);

    /// Something could not be read; one sentence.
    void problemFound(const QString &sentence);

    /// What problemFound() told with \a sentence is no longer so.
    void problemSolved(const QString &sentence);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void addTab(SourceTab *tab, const QString &title);
    void openByEnding(const QString &file);

    QTabWidget *tabs;
    CsvSourceTab *csv;
    DatasetSourceTab *dataset;
    LookupSourceTab *lookups;
};

} // namespace tessel::editor
