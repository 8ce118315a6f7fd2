#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

class QMimeData;
class QTabWidget;
class TDmSourceField;

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

    /// Shows \a fields, none of them null, as those of the dataset \a title, a file's name as a rule; \a
    /// remarks are sentences on what may surprise about them. The fields get their positions as tags.
    void setDatasetFields(std::vector<std::unique_ptr<TDmSourceField>> fields, const QString &title,
        const QStringList &remarks = {});

    /// Gives the keyboard to the filter of the tab in front.
    void focusFilter();

signals:
    /// The rows in \a data, as a drag would carry them, are to go into the table of variables. The data is
    /// good until the receivers return, and not theirs.
    void addRequested(const QMimeData *data);

    /// The button of the dataset tab was pressed: whoever reads datasets asks for one and calls
    /// setDatasetFields().
    void datasetRequested();

    /// Something that is neither CSV nor JSON, by its ending, was dropped here.
    void fileDropped(const QString &file);

    /// Something could not be read; one sentence for the status bar.
    void problemFound(const QString &sentence);

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
