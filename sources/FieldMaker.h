#pragma once

#include "model/TDmSourceField.h"
#include "sources/DisplayFormat.h"
#include "sources/SourceRemark.h"
#include "sources/StatisticalContent.h"
#include "sources/StatisticalReader.h"
#include "sources/ValueTally.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <memory>

namespace tessel::sources {

/// Makes catalogue fields of the variables of a statistical file, and notes what those do not carry.
class FieldMaker {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::FieldMaker)

public:
    /// Of \a content, which came from a file of the format \a format and outlives this.
    FieldMaker(StatisticalFormat format, const StatisticalContent &content);

    /// The field of the variable at \a place. \a tally holds its values; null when none were read.
    std::unique_ptr<TDmSourceField> make(int place, const ValueTally *tally);

    /// What the fields that were made do not carry.
    const QVector<SourceRemark> &remarks() const { return noted; }

    /// The names of the fields that were made and have a text that is not valid UTF-8.
    const QStringList &foreignFields() const { return foreign; }

private:
    void setType(
        const StatisticalVariable &variable, const QVector<CodeLabel> &labels, const ValueTally *tally);
    void setSize(const StatisticalVariable &variable, const ValueTally *tally);
    void setCategories(const QVector<CodeLabel> &labels, const ValueTally *tally);
    void setRange(
        const StatisticalVariable &variable, const QVector<CodeLabel> &labels, const ValueTally *tally);
    void setBounds(double low, double high);
    void note(const QString &reason);

    const StatisticalFormat fileFormat;
    const StatisticalContent &source;
    QVector<SourceRemark> noted;
    DisplayFormat shown;
    QStringList foreign;
    std::unique_ptr<TDmSourceField> field; ///< The one that is being made.
};

/// How the format \a format, of a variable of a file in \a fileFormat, shows values.
DisplayFormat displayFormat(StatisticalFormat fileFormat, const QString &format);

} // namespace tessel::sources
