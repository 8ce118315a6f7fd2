#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

class TDmSourceField;

namespace tessel::sources {

struct CsvNumber;

/// What the values of one field of a CSV file say about it. Keeps no more values than it may make categories.
class CsvColumn {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CsvColumn)

public:
    /// A value with more characters is a text and no code: its field gets no categories.
    static constexpr int kLongestCode = 250;

    /// A field with more than \a most different values gets no categories. \a isCommaDecimal tells whether a
    /// comma may stand before decimals.
    CsvColumn(int most, bool isCommaDecimal);

    /// Looks at \a value, which has no blanks around it; an empty one is none.
    void add(const QString &value);

    /// Gives \a field type, size, decimals, range and categories. Returns the reasons of what \a field cannot
    /// carry, as sentences.
    ///
    /// INTEGER when all values are whole numbers in the range of int; REAL when all are numbers and one of
    /// them at least has a decimal mark or an exponent, the same mark everywhere; else STRING, and so are
    /// numbers that would come back as another text, "007" for one.
    QStringList describe(TDmSourceField &field) const;

private:
    QString type() const;
    void giveRange(TDmSourceField &field) const;
    void giveCategories(TDmSourceField &field, QStringList &remarks) const;
    void keep(const QString &value);
    void count(const CsvNumber &number);

    int mostCategories;
    bool mayHaveCommas;
    QSet<QString> values;
    bool hasTooMany = false;
    unsigned kinds = 0; ///< One bit for each kind of number that was met.
    int longest = 0;
    int mostDecimals = 0;
    double lowest = 0;
    double highest = 0;
};

} // namespace tessel::sources
