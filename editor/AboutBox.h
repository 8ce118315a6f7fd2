#pragma once

class QMenuBar;
class QWidget;

namespace tessel::editor {

/// Says what the program is and which version.
void showAbout(QWidget *parent);

/// A page with all keys, gathered from \a menus, so that it is never out of date.
void showKeys(QWidget *parent, const QMenuBar *menus);

} // namespace tessel::editor
