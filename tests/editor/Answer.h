#pragma once

#include "tests/editor/Hand.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace tessel::test {

/// Answers the next box as soon as it is there to be typed into: it has an event loop of its own.
class Answer : public QObject {
public:
    explicit Answer(std::function<void(QDialog &)> whatToDo)
        : act(std::move(whatToDo))
    {
        qApp->installEventFilter(this);
    }
    ~Answer() override { qApp->removeEventFilter(this); }
    bool isGiven() const { return given; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog && event->type() == QEvent::WindowActivate && !given) {
            given = true;
            QTimer::singleShot(0, dialog, [this, dialog] { act(*dialog); });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void(QDialog &)> act;
    bool given = false;

    Q_DISABLE_COPY_MOVE(Answer)
};

/// Clicks \a button of the box.
inline std::function<void(QDialog &)> pressing(QMessageBox::StandardButton button)
{
    return [button](QDialog &box) { Hand::click(*qobject_cast<QMessageBox *>(&box)->button(button)); };
}

} // namespace tessel::test
