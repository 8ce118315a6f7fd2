#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

namespace tessel::editor {

/// A modal window with the progress of a long reading and a button to cancel it. A short reading shows none.
/// Events are handled only while the window is shown, so that nothing but the button can be operated.
class ReadingProgress {
    Q_DECLARE_TR_FUNCTIONS(tessel::editor::ReadingProgress)

public:
    /// The reading of \a file begins now.
    ReadingProgress(const QString &file, QWidget *parent);

    /// Shows \a percent; false when the reading has been cancelled.
    bool advance(int percent);

private:
    QProgressDialog window;
    QElapsedTimer waited;

    Q_DISABLE_COPY_MOVE(ReadingProgress)
};

} // namespace tessel::editor
