#pragma once

#include <QString>

/// One lookup table that the lookup catalogue offers. A plain record: its members are read directly.
class TDmLookup {
public:
    /// The table's identifier.
    QString getId() const { return id; }

    /// What people read.
    QString getLabel() const { return label; }

    QString id;
    QString label;
};
