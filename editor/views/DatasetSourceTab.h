#pragma once

#include "editor/views/SourceTab.h"
#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QPointer>

class QPushButton;
class QSpinBox;

namespace tessel::editor {

class DetailsDialog;
class EncodingBox;

/// The fields of a dataset, with the choice of its encoding, the remarks of its reader, and a button that
/// finds ranges and categories in the records. While a dataset is being read, no other is opened.
class DatasetSourceTab : public SourceTab {
    Q_OBJECT

public:
    /// What reads a dataset: sources::readSource, or something that takes its place.
    using Reader = std::function<sources::SourceOutcome(const QString &, const sources::ReadOptions &)>;

    explicit DatasetSourceTab(QWidget *parent = nullptr);

    void setReader(const Reader &function) { reader = function; }

    /// Whether \a name is, by its ending, a catalogue: the labels of a dataset, and no fields.
    static bool isCatalogue(const QString &name);

    /// Shows the fields of \a name; a catalogue gives its labels to the dataset that was opened before it.
    /// False when there are none: the problem, if it is one, has been announced, and what was shown stays.
    bool open(const QString &name);

signals:
    /// What problemFound() told with \a sentence is no longer so.
    void problemSolved(const QString &sentence);

private:
    void addTools();

    /// What works on a file only.
    QList<QWidget *> fileTools() const;
    bool openCatalogue(const QString &name);
    bool read(const QString &name, const sources::ReadOptions &how);
    sources::SourceOutcome outcomeOf(const QString &name, const sources::ReadOptions &how);
    void showSource(sources::SourceFields &source);
    void tellProblem(const QString &sentence);
    void showRemarks();

    Reader reader;
    bool isReading = false;
    QString file; ///< What the tools work on: what is shown, or what another encoding may make readable.
    sources::ReadOptions options; ///< How it was read.
    QString toldProblem;
    QString remarks;
    EncodingBox *encodingBox;
    QSpinBox *recordsBox;
    QPushButton *rangesButton;
    QPushButton *remarksButton;
    QPointer<DetailsDialog> remarksDialog;
};

} // namespace tessel::editor
