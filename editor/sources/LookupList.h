#pragma once

#include "documents/DocumentFile.h"
#include "model/TDmLookup.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

namespace tessel::editor {

/// The lookup tables that a JSON file lists: [{"id": "...", "label": "..."}, ...], or an object with such a
/// list under "lookups". Owns them. Other keys are passed over; anything else is a problem, and nothing is
/// read.
struct LookupList {
    Q_DECLARE_TR_FUNCTIONS(tessel::editor::LookupList)

public:
    /// The list that \a bytes, in UTF-8, hold.
    static documents::Outcome<LookupList> parse(const QByteArray &bytes);

    /// The list in the file \a name.
    static documents::Outcome<LookupList> readFile(const QString &name);

    std::vector<std::unique_ptr<TDmLookup>> lookups; ///< In the order of the file; may be empty.
};

} // namespace tessel::editor
