#pragma once

#include "util/UtilExport.h"

#include <QString>
#include <QStringList>

/// Judges texts that a user typed. Holds no state, shows nothing and never fails: every answer is the result.
class UTILITARIAN_EXPORT Validate {
public:
    Validate();

    /// True when \a text is more than nothing and blanks.
    bool validateEmpty(QString text);

    /// True when \a text, leading and trailing blanks aside, can name an entity: a letter or "_" first, then
    /// letters, decimal digits and "_". A letter is any Unicode letter. No limit of length.
    bool validateName(QString text);

    /// True when \a text, as typed, can be a name, alias or label: no control character, no unpaired
    /// surrogate, no double quote and no backslash. The empty text is accepted.
    bool validateStringC(QString text);

    /// True when \a text occurs in \a taken, leading and trailing blanks aside on both sides; letter case
    /// counts.
    bool compare(QStringList taken, QString text);
};
