#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>

class QLabel;
class QPalette;
class QWidget;

namespace tessel::editor {

/// Texts and labels that more than one page of the wizard needs.
class WizardText {
    Q_DECLARE_TR_FUNCTIONS(tessel::editor::WizardText)

public:
    WizardText() = delete;

    static QString entities(int count);
    static QString variables(int count);

    /// "12 of 340".
    static QString share(int part, int whole);

    /// A red that can be read on the text fields of \a palette, dark ones too.
    static QColor faultColor(const QPalette &palette);

    /// A label that shows \a text as it is, whatever markup a name in it contains, in as many lines as it
    /// takes. Owned by \a parent.
    static QLabel *label(const QString &text, const QString &objectName, QWidget *parent);

    /// The same for faults: in bold and red, hidden while there is no text.
    static QLabel *faultLabel(const QString &objectName, QWidget *parent);

    /// Shows \a text in \a label, or hides it when there is none.
    static void show(QLabel &label, const QString &text);
};

} // namespace tessel::editor
