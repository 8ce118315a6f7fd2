#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace tessel::sources {

/// The names in the first record of a CSV file, and what may surprise in them.
///
/// Names lose the blanks around them. A field without a name is called FIELD_n, n counted from 1; equal names
/// stay.
struct CsvHeader {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CsvHeader)

public:
    /// Of \a cells as they stand in the file.
    explicit CsvHeader(const QStringList &cells);

    QStringList names; ///< None is empty.
    QStringList remarks; ///< Sentences.

private:
    void nameAll();
    void remarkOnEqualNames();
};

} // namespace tessel::sources
