#pragma once

#include "editor/views/SourceTab.h"

namespace tessel::editor {

/// The lookup tables that a JSON file lists.
class LookupSourceTab : public SourceTab {
    Q_OBJECT

public:
    explicit LookupSourceTab(QWidget *parent = nullptr);

    /// Shows the lookups of \a name. False when there is no list of them: the problem has been announced, and
    /// what was shown stays.
    bool open(const QString &name);

private:
    QString file;
};

} // namespace tessel::editor
