#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace tessel::editor {

/// One line above the work that stays until it is closed: what went wrong, or what the user should know.
/// Never in the way of typing.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /// Shows \a sentence; with \a details a button shows these.
    void tell(const QString &sentence, const QString &details = QString());

    QString text() const;

private:
    void showDetails();

    QLabel *label;
    QPushButton *detailsButton;
    QString details;
};

} // namespace tessel::editor
