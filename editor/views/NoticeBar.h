#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace tessel::editor {

/// One line above the work that stays until it is closed: what went wrong, or what the user should know.
/// Never in the way of typing.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    /// Its parts are called after \a name.
    explicit NoticeBar(const QString &name = QStringLiteral("notice"), QWidget *parent = nullptr);

    /// Shows \a sentence; with \a details a button shows these.
    void tell(const QString &sentence, const QString &details = QString());

    /// Closes the notice if \a sentence is what it shows.
    void withdraw(const QString &sentence);

    /// The sentence that is shown; empty when there is none.
    QString text() const;

signals:
    /// The user has closed the notice.
    void closed();

protected:
    /// A button for what can be done about it.
    QPushButton *addButton(const QString &text, const QString &name);

private:
    QHBoxLayout *row;
    QLabel *label;
    QPushButton *detailsButton;
    QString details;
};

} // namespace tessel::editor
