#pragma once

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

namespace tessel::test {

/// Answers modal message boxes while it lives, in the order of the plan, and remembers what each box showed.
/// Buttons are clicked with the mouse. A box beyond the plan is closed and counted, so that a test fails
/// instead of waiting.
class MessageBoxRobot : public QObject {
    Q_OBJECT

public:
    /// What a person would do to a box besides clicking a button.
    static constexpr QMessageBox::StandardButton PressEscape = QMessageBox::NoButton;
    static constexpr QMessageBox::StandardButton PressReturn = QMessageBox::NoAll;
    static constexpr QMessageBox::StandardButton CloseWindow = QMessageBox::YesAll;

    /// What one box showed.
    struct Box {
        QString title;
        QString text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton; ///< What Return would press.
        Qt::TextFormat textFormat = Qt::AutoText;
        bool isModal = false;
        QWidget *parent = nullptr;
    };

    explicit MessageBoxRobot(QList<QMessageBox::StandardButton> plan = {});
    ~MessageBoxRobot() override;

    QList<Box> boxes() const { return seen; }
    QStringList texts() const;

    /// Boxes that came when the plan was used up.
    int unplanned() const { return surplus; }

    /// Answers that no box asked for.
    int unanswered() const { return answers.size(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox *box);

    QList<QMessageBox::StandardButton> answers;
    QList<Box> seen;
    int surplus = 0;

    Q_DISABLE_COPY_MOVE(MessageBoxRobot)
};

} // namespace tessel::test
