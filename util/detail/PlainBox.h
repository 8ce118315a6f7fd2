#pragma once

#include <QMessageBox>

namespace tessel::detail {

/// Internal: message boxes as QMessageBox's static functions make them, but for names that look like markup.
class PlainBox {
public:
    PlainBox() = delete;

    /// Shows the box above \a parent, which may be null, and returns the button that was pressed; Escape and
    /// closing the window count as \a escape. Without \a preset no button is made the default.
    static int show(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton escape,
        QMessageBox::StandardButton preset = QMessageBox::NoButton)
    {
        QMessageBox box(icon, title, text, buttons, parent);
        box.setTextFormat(Qt::PlainText);
        box.setEscapeButton(escape);
        box.setDefaultButton(preset);
        return box.exec();
    }
};

} // namespace tessel::detail
