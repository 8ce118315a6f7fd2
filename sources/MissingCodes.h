#pragma once

#include "sources/StatisticalContent.h"

#include <QCoreApplication>
#include <QStringList>

namespace tessel::sources {

/// Chooses, among the codes that a source declares as missing values of one variable, the two that a field
/// carries: missing and not applicable.
class MissingCodes {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::MissingCodes)

public:
    /// Of the ranges \a declared; a range offers those of its whole numbers that have one of \a labels, and
    /// the others are told in reasons.
    MissingCodes(const QVector<MissingRange> &declared, const QVector<CodeLabel> &labels);

    QString missing; ///< A whole number as text; empty when there is none.
    QString notApplicable; ///< A whole number as text; empty when there is none.
    QStringList reasons; ///< What is left out, a sentence each.

    /// Whether \a label says that a question did not apply, in English, Spanish, French or Portuguese.
    static bool saysNotApplicable(const QString &label);

private:
    void take(const MissingRange &range);
    void takeCode(double number);
    void takeRange(const MissingRange &range);
    static QString nothingCarried(const MissingRange &range);
    static QString labelledCarried(const MissingRange &range);
    void choose();
    QString labelOf(int code) const;

    const QVector<CodeLabel> &known;
    QVector<int> candidates;
    QStringList texts;
};

} // namespace tessel::sources
