#pragma once

#include "util/UtilExport.h"

#include <QCoreApplication>
#include <QString>

class QWidget;

/// Modal message boxes. Each call returns when the user has answered; texts are shown as they are, whatever
/// markup they contain. To be called in the thread of the user interface only.
class UTILITARIAN_EXPORT UtilForms {
    Q_DECLARE_TR_FUNCTIONS(UtilForms)

public:
    UtilForms() = delete;

    /// An error: critical icon, title "Error", one button Ok.
    static void showErrorMessage(QString text);

    /// An information: information icon, title "Information", one button Ok.
    static void showInfoMessage(QString text);

    /// A question with the buttons Yes, No and Cancel above \a parent, which may be null. Returns 0 for Yes,
    /// 1 for No, 2 for Cancel, for Escape and for a box closed without a button.
    static int displayYesNoCancelMessageBox(QWidget *parent, QString title, QString text);
};
