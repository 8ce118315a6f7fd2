#pragma once

#include <QString>

#include <optional>

namespace tessel::sources {

/// How a package shows the values of a variable, taken from what the package calls its format. It tells how
/// wide values are and how many decimals they have, which the form in which they are stored does not.
struct DisplayFormat {
    static DisplayFormat ofSpss(const QString &format); ///< "F8.2", "DATE11", "A10".
    static DisplayFormat ofStata(const QString &format); ///< "%9.0g", "%-td", "%10s".
    static DisplayFormat ofSas(const QString &format); ///< "8.2", "DATE9.", "$CITY20.", "BEST12".

    int width = 0; ///< In characters; 0 when the format does not tell.
    std::optional<int> decimals; ///< Nothing when the format shows as many as a value has, or does not tell.
    bool isDate = false; ///< Numbers are shown as a date or a time.
    bool outgrowsInt = false; ///< They count seconds or less from long ago, beyond what an int holds.
    QString userDefined; ///< In SAS, the name of a format that users made: its labels are somewhere else.
};

} // namespace tessel::sources
