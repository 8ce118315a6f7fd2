#include "editor/views/ReadingProgress.h"

#include <QFileInfo>

#include <limits>

namespace tessel::editor {
namespace {

constexpr int kPatienceMilliseconds = 400;

} // namespace

ReadingProgress::ReadingProgress(const QString &file, QWidget *parent)
    : window(tr("Reading the records of %1…").arg(QFileInfo(file).fileName()), tr("&Cancel"), 0, 100, parent)
{
    window.setObjectName(QStringLiteral("readingProgress"));
    window.setWindowTitle(tr("Reading"));
    window.setWindowModality(Qt::ApplicationModal);
    // When it is shown is decided here.
    window.setMinimumDuration(std::numeric_limits<int>::max());
    window.setAutoClose(false);
    window.setAutoReset(false);
    waited.start();
}

bool ReadingProgress::advance(int percent)
{
    if (window.wasCanceled())
        return false;
    window.setValue(percent);
    if (waited.elapsed() >= kPatienceMilliseconds)
        window.show();
    // Not by the window itself: it does so only when the number is another one.
    if (window.isVisible())
        QCoreApplication::processEvents();
    return !window.wasCanceled();
}

} // namespace tessel::editor
