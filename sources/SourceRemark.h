#pragma once

#include <QString>

/// Files that hold data, as sources of variables.
namespace tessel::sources {

/// Something that a source says and its fields cannot carry, or what had to be done to carry it.
struct SourceRemark {
    QString field; ///< The field's name as the source has it; empty when the whole file is meant.
    QString reason; ///< One sentence without the field's name: what, and what became of it.

    /// The remark as one line: the field's name, a colon and the reason.
    QString sentence() const;
};

} // namespace tessel::sources
