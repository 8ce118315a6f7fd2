#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace tessel::sources {

/// Puts a field's categories together: parted by tabs, each a code, a blank and a label. Codes that this form
/// cannot carry are left out and remembered.
class CategoriesText {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CategoriesText)

public:
    /// Whether a category can have the code \a code: it is neither empty nor holds anything blank, a
    /// blank of no width (U+FEFF) included.
    static bool isCarried(const QString &code);

    /// Adds a category. Tabs and line ends in \a label become blanks; an empty one leaves the code alone.
    void add(const QString &code, const QString &label);

    /// All categories that were carried; empty when there are none.
    QString text() const { return categories.join(QLatin1Char('\t')); }

    /// What was left out and what was changed, a sentence each.
    QStringList reasons() const;

private:
    QStringList categories;
    QStringList uncarriedCodes;
    int emptyCodes = 0;
    int mendedLabels = 0;
};

} // namespace tessel::sources
