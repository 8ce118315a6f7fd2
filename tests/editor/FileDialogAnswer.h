#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QtTest>

namespace tessel::test {

/// Answers the next file dialog: takes \a name, or cancels when it is empty. Remembers its title and place.
class FileDialogAnswer : public QObject {
public:
    explicit FileDialogAnswer(const QString &answer)
        : name(answer)
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer.stop();
            title = dialog->windowTitle();
            folder = dialog->directory().path();
            suggestion = dialog->selectedFiles().value(0);
            if (name.isEmpty())
                return dialog->reject();
            auto *line = dialog->findChild<QLineEdit *>("fileNameEdit");
            line->setText(name);
            QTest::keyClick(line, Qt::Key_Return);
        });
        timer.start(10);
    }

    QString title;
    QString folder;
    QString suggestion;

private:
    QString name;
    QTimer timer;
};

} // namespace tessel::test
