#pragma once

#include "sources/StatisticalContent.h"

#include <QMap>
#include <QSet>
#include <QString>

#include <optional>

namespace tessel::sources {

/// Counts the different values of one variable while records are read, and keeps the least and the greatest
/// number. Holds no more than \a mostCategories values.
class ValueTally {
public:
    /// Of \a variable, which outlives this.
    ValueTally(const StatisticalVariable &variable, int mostCategories);

    void addNumber(double number);
    void addText(const QString &text); ///< Blanks at the end do not count; an empty text is no value.

    /// The least and the greatest number that is not declared as missing; nothing when there is none.
    std::optional<double> least() const { return lowest; }
    std::optional<double> greatest() const { return highest; }

    /// Whether every number is whole and fits in an int.
    bool areWhole() const { return isWhole; }

    /// In characters, of the texts.
    int longestText() const { return longest; }

    /// The values as categories whose codes are their labels, sorted; empty when there are too many of them,
    /// or one that is no code: a number that is not whole, or a text with blanks.
    QString categories() const;

private:
    void stopListing();

    const StatisticalVariable &tallied;
    const int most;
    QSet<double> numbers;
    QSet<QString> texts;
    std::optional<double> lowest;
    std::optional<double> highest;
    int longest = 0;
    bool isWhole = true;
    bool isListing = true;
};

} // namespace tessel::sources
