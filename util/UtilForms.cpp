#include "util/UtilForms.h"

#include "util/detail/PlainBox.h"

using tessel::detail::PlainBox;

void UtilForms::showErrorMessage(QString text)
{
    PlainBox::show(QMessageBox::Critical, nullptr, tr("Error"), text, QMessageBox::Ok, QMessageBox::Ok);
}

void UtilForms::showInfoMessage(QString text)
{
    PlainBox::show(
        QMessageBox::Information, nullptr, tr("Information"), text, QMessageBox::Ok, QMessageBox::Ok);
}

int UtilForms::displayYesNoCancelMessageBox(QWidget *parent, QString title, QString text)
{
    const int answer = PlainBox::show(QMessageBox::Question, parent, title, text,
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer == QMessageBox::Yes)
        return 0;
    return answer == QMessageBox::No ? 1 : 2;
}
