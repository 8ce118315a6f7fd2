#pragma once

#include "editor/views/SourceTab.h"

class QComboBox;

namespace tessel::editor {

/// The fields of a CSV file, with a choice of the separator for files that hide it well.
class CsvSourceTab : public SourceTab {
    Q_OBJECT

public:
    explicit CsvSourceTab(QWidget *parent = nullptr);

    /// Shows the fields of \a name, whose separator is found out anew. False when there are none: the problem
    /// has been announced, and what was shown stays.
    bool open(const QString &name);

private:
    bool read();

    QString file; ///< The last one that was tried: another separator may make it readable.
    QComboBox *separatorBox;
};

} // namespace tessel::editor
