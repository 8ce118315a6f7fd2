#pragma once

#include "model/TDmVariable.h"
#include "sources/SourceFields.h"

#include <QString>

#include <memory>
#include <vector>

namespace tessel::sources {

/// A variable made of a field.
struct ImportedField {
    std::unique_ptr<TDmVariable> variable; ///< Never null; owned until a dictionary takes it.
    QString field; ///< The field's name as the source has it.

    /// What the source's own codes changed, as a sentence without the field's name; empty when they changed
    /// nothing.
    QString declaredCodes;
};

/// Whether \a source tells the type of any of its fields. The header of a CSV file does not.
bool hasTypes(const SourceFields &source);

/// How many fields of \a source are no texts and tell no range. A drop gives them the range from 0 to 0.
int fieldsWithoutRange(const SourceFields &source);

/// The variables that dropping all fields of \a source on an empty table of variables would give, in the
/// order of the source and none left out, with the codes that the source declares set afterwards. Shows
/// nothing and asks nothing. Where the source tells types, its fields are numbered as a side effect.
std::vector<ImportedField> importFields(SourceFields &source);

} // namespace tessel::sources
