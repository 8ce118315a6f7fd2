#include "tests/support/MessageBoxRobot.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <utility>

namespace tessel::test {
namespace {

/// The button that Return presses in \a box.
QMessageBox::StandardButton defaultOf(const QMessageBox &box)
{
    for (QAbstractButton *button : box.buttons()) {
        const auto *push = qobject_cast<QPushButton *>(button);
        if (push && push->isDefault())
            return box.standardButton(button);
    }
    return QMessageBox::NoButton;
}

} // namespace

MessageBoxRobot::MessageBoxRobot(QList<QMessageBox::StandardButton> plan)
    : answers(std::move(plan))
{
    qApp->installEventFilter(this);
}

MessageBoxRobot::~MessageBoxRobot() { qApp->removeEventFilter(this); }

QStringList MessageBoxRobot::texts() const
{
    QStringList list;
    for (const Box &box : seen)
        list.append(box.text);
    return list;
}

bool MessageBoxRobot::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Show) {
        // The box is answered from its own event loop, as a person would.
        QTimer::singleShot(0, this, [this, shown = QPointer<QMessageBox>(box)] {
            if (shown)
                answer(shown);
        });
    }
    return QObject::eventFilter(watched, event);
}

void MessageBoxRobot::answer(QMessageBox *box)
{
    seen.append({box->windowTitle(), box->text(), box->icon(), box->standardButtons(), defaultOf(*box),
        box->textFormat(), box->isModal(), box->parentWidget()});
    if (answers.isEmpty()) {
        ++surplus;
        box->close();
        if (box->isVisible())
            box->done(QMessageBox::NoButton);
        return;
    }
    const QMessageBox::StandardButton planned = answers.takeFirst();
    if (planned == PressEscape)
        QTest::keyClick(box, Qt::Key_Escape);
    else if (planned == PressReturn)
        QTest::keyClick(box, Qt::Key_Return);
    else if (planned == CloseWindow)
        box->close();
    else if (QAbstractButton *button = box->button(planned))
        QTest::mouseClick(button, Qt::LeftButton);
    else
        qFatal("the message box \"%s\" has no such button", qPrintable(box->text()));
}

} // namespace tessel::test
