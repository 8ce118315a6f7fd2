#pragma once

#include "editor/EntityTreeProxy.h"

namespace tessel::editor {

/// The tree of entities as a person wants to read it: by names, or by labels. Only what is shown changes;
/// what is typed is a name either way. The one that is not shown is the tool tip. An entity without a label
/// shows its name.
class NameOrLabelProxy : public EntityTreeProxy {
    Q_OBJECT

public:
    /// Shows names. Without a source, and with the root, as EntityTreeProxy.
    using EntityTreeProxy::EntityTreeProxy;

    /// Announced by nobody: the view is to be painted anew.
    void setShowsLabels(bool on) { showsLabels = on; }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    bool showsLabels = false;
};

} // namespace tessel::editor
