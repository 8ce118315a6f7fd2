#pragma once

#include <QDialog>

namespace tessel::editor {

/// A window that shows a text of many lines, to be read and copied, and leaves the program running. Gone when
/// it is closed.
class DetailsDialog : public QDialog {
    Q_OBJECT

public:
    /// \a details are shown as they are, none of it taken for markup.
    DetailsDialog(const QString &title, const QString &details, QWidget *parent);
};

} // namespace tessel::editor
