#pragma once

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QtTest>

#include <utility>

namespace tessel::test {

/// Answers file dialogs while it lives: types the next of its names and presses Return; an empty name, and
/// every dialog beyond the last, presses Escape. The platform's own dialogs must be off.
class FileDialogRobot : public QObject {
public:
    explicit FileDialogRobot(QStringList plan)
        : names(std::move(plan))
    {
        qApp->installEventFilter(this);
    }
    ~FileDialogRobot() override { qApp->removeEventFilter(this); }

    /// "TITLE in FOLDER, FILTER|FILTER" of each dialog.
    QStringList seen() const { return dialogs; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QFileDialog *>(watched);
        if (dialog && event->type() == QEvent::Show) {
            QTimer::singleShot(0, this, [this, shown = QPointer<QFileDialog>(dialog)] {
                if (shown)
                    answer(*shown);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void answer(QFileDialog &dialog)
    {
        dialogs.append(QStringLiteral("%1 in %2, %3")
                           .arg(dialog.windowTitle(), dialog.directory().dirName(),
                               dialog.nameFilters().join(QLatin1Char('|'))));
        const QString name = names.isEmpty() ? QString() : names.takeFirst();
        auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (name.isEmpty() || !edit) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            return;
        }
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    QStringList names;
    QStringList dialogs;
};

} // namespace tessel::test
