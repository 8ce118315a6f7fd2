#pragma once

#include <QString>

/// One field of a CSV file or dataset, as the source catalogues offer it. A plain record: its members are
/// read, and the tag written, directly.
class TDmSourceField {
public:
    /// "STRING", "REAL" or "INTEGER". Not const, like its sibling: callers bind to these signatures.
    QString getFieldType() { return fieldType; }

    /// The kind of source that provides the field.
    QString getDataProviderType() { return dataProviderType; }

    QString name; ///< The field's name in its source; becomes a variable's name, alias and physical field.
    QString label; ///< What people read.
    int tag = 0; ///< Position number, counted from 1 by the dataset catalogue.
    QString fieldType; ///< See getFieldType().
    QString dataProviderType; ///< See getDataProviderType().
    QString rangeMin; ///< Lower bound of the values, as text.
    QString rangeMax; ///< Upper bound of the values, as text.
    int relativePosition = 0; ///< Start position in the record, counted from 1.
    int decimals = 0; ///< Number of decimals.
    int size = 0; ///< Width of the field, in characters.
    QString missing; ///< The missing-value code, as text.
    QString notApp; ///< The not-applicable code, as text.
    QString selection; ///< The text that the dataset catalogue compares with its filter.
    QString categories; ///< Categories parted by tabs, each a code and a label parted by blanks.
};
