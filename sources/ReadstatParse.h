#pragma once

#include "sources/StatisticalContent.h"
#include "sources/StatisticalReader.h"

#include <QByteArray>
#include <QFile>
#include <QtGlobal>

#include <functional>
#include <memory>

#include <readstat.h>

namespace tessel::sources {

/// What a way goes through: \a file as far as \a end, as if there were no more of it.
struct ParsedFile {
    QFile &file;
    qint64 end; ///< -1: the end of the file.

    qint64 size() const { return end < 0 ? file.size() : end; }
};

/// One way through a statistical file with ReadStat, which reads through Qt and writes nowhere.
class ReadstatParse {
public:
    /// Told a variable's place and a value of it, in the order of the records; the record's place counts
    /// from 0. False ends the way.
    using ValueReceiver = std::function<bool(qint64 record, int variable, const readstat_value_t &value)>;

    /// Reads \a file, which is open and outlives this. The texts are in \a encoding; empty: in what the file
    /// declares. What stands behind \a end is not looked at; -1: there is nothing behind it.
    ReadstatParse(QFile &file, const QString &encoding, qint64 end = -1);
    ~ReadstatParse();

    /// Gives texts as they stand in the file, whatever their encoding.
    void leaveTextsAlone();

    /// What the file, of the format \a format, says about itself, without any value. To be read only when
    /// all is well.
    readstat_error_t readContent(StatisticalFormat format, StatisticalContent &content);

    /// The label sets of a SAS catalogue.
    readstat_error_t readCatalogue(StatisticalContent &content);

    /// The values of at most \a rows records, of the variables that \a isWanted names.
    readstat_error_t readValues(StatisticalFormat format, qint64 rows,
        const std::function<bool(int variable)> &isWanted, const ValueReceiver &receive);

private:
    struct Values;

    void setContentHandlers();
    readstat_error_t parse(StatisticalFormat format, void *context);

    ParsedFile device;
    const QByteArray encodingName;
    const std::unique_ptr<readstat_parser_t, void (*)(readstat_parser_t *)> parser;

    Q_DISABLE_COPY_MOVE(ReadstatParse)
};

} // namespace tessel::sources
