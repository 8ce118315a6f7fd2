#pragma once

#include "editor/views/SourceTab.h"

class TDmSourceField;

namespace tessel::editor {

/// The fields of a dataset, which others read: the button only says that one is wanted.
class DatasetSourceTab : public SourceTab {
    Q_OBJECT

public:
    explicit DatasetSourceTab(QWidget *parent = nullptr);

    /// Shows \a fields, which \a title names, a file's name as a rule; \a remarks are sentences on them.
    void setFields(std::vector<std::unique_ptr<TDmSourceField>> fields, const QString &title,
        const QStringList &remarks);
};

} // namespace tessel::editor
