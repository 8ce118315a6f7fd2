#pragma once

#include "sources/SourceFields.h"
#include "sources/StatisticalContent.h"

#include <QCoreApplication>
#include <QString>

namespace tessel::sources {

/// The value labels of a SAS file, which stand in a catalogue of their own and are joined by the names of the
/// formats that users made.
class SasCatalogue {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::SasCatalogue)

public:
    /// For the file \a dataFile. \a catalogue is the catalogue's name; empty: the one beside a .sas7bdat
    /// file, of the same name but for the ending in letters of any case, if there is any. \a encoding is that
    /// of its texts; empty: what it declares.
    SasCatalogue(const QString &dataFile, const QString &catalogue, const QString &encoding);

    /// Gives \a content its label sets, and its variables the names of those. What was not found is added to
    /// \a remarks. Returns why a catalogue that was named cannot be used; empty when all is well.
    QString join(StatisticalContent &content, QVector<SourceRemark> &remarks) const;

private:
    static QString besideOf(const QString &dataFile);
    QString read(QHash<QString, LabelSet> &sets) const;

    QString name;
    bool isNamed = false;
    QString encodingName;
};

} // namespace tessel::sources
