#pragma once

#include "editor/views/NoticeBar.h"

namespace tessel::editor {

class FileHandling;

/// Offers what an ended program left of a dictionary without a file, while another dictionary is open.
/// Closing it leaves the copy for the next start.
class RecoveryBar : public NoticeBar {
    Q_OBJECT

public:
    /// Shown and hidden by what \a files tells.
    explicit RecoveryBar(FileHandling &files, QWidget *parent = nullptr);
};

} // namespace tessel::editor
