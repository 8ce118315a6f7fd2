#include "fuzz/support/BoxAnswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>

namespace tessel::fuzz {

BoxAnswerer::BoxAnswerer(unsigned plan)
    : answers(plan)
{
    qApp->installEventFilter(this);
}

BoxAnswerer::~BoxAnswerer() { qApp->removeEventFilter(this); }

bool BoxAnswerer::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    // Nobody looks: without a window of the platform's a box takes a fraction of the time.
    if (box && event->type() == QEvent::Polish)
        box->setAttribute(Qt::WA_DontShowOnScreen);
    if (box && event->type() == QEvent::Show) {
        // Only the box's own event loop can end it.
        QTimer::singleShot(0, this, [this, shown = QPointer<QMessageBox>(box)] {
            if (shown)
                answer(*shown);
        });
    }
    return QObject::eventFilter(watched, event);
}

void BoxAnswerer::answer(QMessageBox &box)
{
    if (box.icon() == QMessageBox::Question)
        ++asked;
    else if (box.icon() == QMessageBox::Warning)
        ++warned;
    else
        ++told;
    constexpr int bits = 2;
    const unsigned choice = (answers >> (boxes++ * bits % 32)) & 3U;
    const QList<QAbstractButton *> buttons = box.buttons();
    if (int(choice) >= buttons.size()) {
        box.close();
        return;
    }
    QAbstractButton *button = buttons.at(int(choice));
    agreed += box.icon() == QMessageBox::Question && box.standardButton(button) == QMessageBox::Yes;
    button->click();
}

} // namespace tessel::fuzz
