#include "util/UtilForms.h"

#include <QMessageBox>

namespace {

/// A box as QMessageBox's static functions make it, but for names that look like markup.
int ask(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton escape)
{
    QMessageBox box(icon, title, text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(escape);
    return box.exec();
}

} // namespace

void UtilForms::showErrorMessage(QString text)
{
    ask(QMessageBox::Critical, nullptr, tr("Error"), text, QMessageBox::Ok, QMessageBox::Ok);
}

void UtilForms::showInfoMessage(QString text)
{
    ask(QMessageBox::Information, nullptr, tr("Information"), text, QMessageBox::Ok, QMessageBox::Ok);
}

int UtilForms::displayYesNoCancelMessageBox(QWidget *parent, QString title, QString text)
{
    const int answer = ask(QMessageBox::Question, parent, title, text,
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer == QMessageBox::Yes)
        return 0;
    return answer == QMessageBox::No ? 1 : 2;
}
