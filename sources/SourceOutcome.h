#pragma once

#include "documents/DocumentFile.h"
#include "sources/SourceFields.h"

namespace tessel::sources {

/// The fields of a source, or the reason why there are none: never some of them.
struct SourceOutcome : documents::Outcome<SourceFields> {
    bool isCancelled = false; ///< Without a result: whoever asked has cancelled, there is nothing to tell.
    bool canRetryWithEncoding = false; ///< Without a result: another encoding may read the file.
};

} // namespace tessel::sources
