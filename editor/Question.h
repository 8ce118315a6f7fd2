#pragma once

#include <QString>

class QWidget;

namespace tessel::editor {

/// A yes or no question about something that could be lost; No is the default and what Escape means. Names in
/// \a text are shown as they are, whatever markup they hold.
bool isConfirmed(QWidget *parent, const QString &title, const QString &text);

} // namespace tessel::editor
