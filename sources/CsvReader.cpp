#include "sources/CsvReader.h"

#include "sources/CsvCells.h"
#include "sources/CsvColumns.h"
#include "sources/CsvHeader.h"
#include "sources/CsvRecords.h"
#include "sources/CsvSeparator.h"
#include "sources/CsvText.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <optional>

namespace tessel::sources {
namespace {

SourceOutcome failed(const QString &message)
{
    SourceOutcome outcome;
    outcome.problem.message = message;
    return outcome;
}

/// Why the reading ends without a result; nothing when it goes on.
using Stop = std::optional<SourceOutcome>;

/// One file on its way to its fields.
class CsvReader {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CsvReader)

public:
    CsvReader(QIODevice &device, const ReadOptions &readOptions, QTextCodec *codec)
        : options(readOptions)
        , fileSize(device.isSequential() ? 0 : device.size())
        , text(device, codec)
        , cells(text)
    {
    }

    SourceOutcome outcome()
    {
        if (Stop stop = findSeparator())
            return std::move(*stop);
        if (Stop stop = readHeader())
            return std::move(*stop);
        if (options.rows > 0) {
            if (Stop stop = readRecords())
                return std::move(*stop);
        }
        SourceOutcome outcome;
        finish();
        outcome.result = std::move(source);
        return outcome;
    }

private:
    static SourceOutcome cutOff()
    {
        return failed(tr("ends in the middle of a character; it may have been cut off"));
    }

    /// Adds a block to what has not been taken yet.
    Stop fetch()
    {
        block.remove(0, position);
        position = 0;
        block += text.next();
        if (!block.contains('\0'))
            return {};
        return failed(tr("is no text file: it holds zero bytes; expected a CSV file in UTF-8, in "
                         "UTF-16 with a byte-order mark or in Windows-1252"));
    }

    /// Adds a block to what belongs to the header.
    Stop fetchForHeader()
    {
        if (text.bytesRead() < kMostCsvHeaderBytes)
            return fetch();
        return failed(
            tr("has no end of its header within %1 MiB; close its quotation marks, or choose another file")
                .arg(kMostCsvHeaderBytes / 1024 / 1024));
    }

    Stop findSeparator()
    {
        source.separator = options.separator;
        if (options.separator.isNull()) {
            CsvSeparator sniffed;
            while (!sniffed.isCertain() && !text.isAtEnd()) {
                const int seen = block.size();
                if (Stop stop = fetchForHeader())
                    return stop;
                sniffed.look(block.mid(seen));
            }
            source.separator = QLatin1Char(sniffed.found());
        }
        records.emplace(source.separator.toLatin1(), kMostCsvFields);
        return {};
    }

    Stop readHeader()
    {
        while (!records->take(block, position)) {
            if (text.isAtEnd()) {
                if (Stop stop = endHeader())
                    return stop;
                break;
            }
            if (Stop stop = fetchForHeader())
                return stop;
        }
        if (records->cellCount() > kMostCsvFields) {
            return failed(
                tr("has more than %1 fields in its first line; expected fewer").arg(kMostCsvFields));
        }
        const CsvHeader header(cells.header(*records));
        if (cells.hasUnknown() && !options.encoding.isEmpty()) {
            SourceOutcome outcome =
                failed(tr("has names of fields that are no text in %1; choose another encoding")
                           .arg(cells.encoding()));
            outcome.canRetryWithEncoding = true;
            return outcome;
        }
        if (records->line() > 1)
            remark(tr("The names stand in line %1, below empty lines.").arg(records->line()));
        makeFields(header);
        return {};
    }

    /// The end of a file that has no line end behind its header.
    Stop endHeader()
    {
        const bool isComplete = records->finish();
        if (records->isQuoteOpen()) {
            return failed(tr("has a quotation mark in field %1 of its header that is never closed; close "
                             "it in the file, or choose another separator")
                              .arg(records->cellCount() + 1));
        }
        if (text.endsWithinCharacter())
            return cutOff();
        if (!isComplete)
            return failed(tr("is empty; expected the names of fields in its first line"));
        return {};
    }

    void makeFields(const CsvHeader &header)
    {
        for (const QString &name : header.names) {
            source.fields.push_back(std::make_unique<TDmSourceField>());
            TDmSourceField &field = *source.fields.back();
            field.name = name;
            field.dataProviderType = QStringLiteral("CSV");
            field.relativePosition = int(source.fields.size());
        }
        headerRemarks = header.remarks;
    }

    Stop readRecords()
    {
        const bool isCommaDecimal = source.separator != QLatin1Char(',');
        columns = CsvColumns(source.fields.size(), options.mostCategories, isCommaDecimal);
        while (source.rowsRead < options.rows) {
            while (!records->take(block, position)) {
                if (Stop stop = stopBetweenBlocks())
                    return stop;
                if (text.isAtEnd()) {
                    endRecords();
                    return {};
                }
                if (Stop stop = fetch())
                    return stop;
            }
            addRecord();
        }
        return {};
    }

    Stop stopBetweenBlocks() const
    {
        if (records->size() > kMostCsvRecordBytes) {
            return failed(tr("has a record of more than %1 MiB, which begins in line %2; close its quotation "
                             "marks, or choose another separator")
                              .arg(kMostCsvRecordBytes / 1024 / 1024)
                              .arg(records->line()));
        }
        const int percent = fileSize > 0 ? int(qMin<qint64>(100, text.bytesRead() * 100 / fileSize)) : 0;
        if (!options.progress || options.progress(percent))
            return {};
        SourceOutcome outcome;
        outcome.isCancelled = true;
        return outcome;
    }

    /// The end of the file: of its last record, when no line end stands behind it.
    void endRecords()
    {
        const qint64 line = records->line();
        if (records->finish())
            addRecord();
        if (records->isQuoteOpen()) {
            endRemarks.append(
                tr("The record that begins in line %1 has a quotation mark that is never closed; "
                   "it was left out.")
                    .arg(line));
        }
        if (text.endsWithinCharacter())
            endRemarks.append(tr("The file ends in the middle of a character; it may have been cut off."));
    }

    void addRecord()
    {
        ++source.rowsRead;
        columns.add(*records, cells);
    }

    void finish()
    {
        source.format = QStringLiteral("CSV");
        source.encoding = cells.encoding();
        remarkOnAll(cells.remarks());
        remarkOnAll(headerRemarks);
        source.remarks += columns.remarks();
        remarkOnAll(endRemarks);
        columns.describe(source);
    }

    void remark(const QString &sentence) { source.remarks.append({QString(), sentence}); }

    void remarkOnAll(const QStringList &sentences)
    {
        for (const QString &sentence : sentences)
            remark(sentence);
    }

    const ReadOptions &options;
    const qint64 fileSize;
    CsvText text;
    CsvCells cells;
    std::optional<CsvRecords> records;
    QByteArray block; ///< What was read; taken up to position.
    int position = 0;
    SourceFields source;
    CsvColumns columns; ///< Empty when no records are wanted.
    QStringList headerRemarks;
    QStringList endRemarks;

    Q_DISABLE_COPY_MOVE(CsvReader)
};

/// What is wrong with \a options before anything is read.
Stop refusalOf(const ReadOptions &options)
{
    const ushort separator = options.separator.unicode();
    if (separator == '"' || separator == '\r' || separator == '\n' || separator > 0x7f) {
        return failed(CsvReader::tr(
            "cannot be taken apart at the separator %1; choose a comma, a semicolon, a tab or a bar")
                          .arg(options.separator));
    }
    if (options.encoding.isEmpty() || QTextCodec::codecForName(options.encoding.toUtf8()))
        return {};
    SourceOutcome outcome =
        failed(CsvReader::tr("cannot be read in %1, which is no known encoding; choose another")
                   .arg(options.encoding));
    outcome.canRetryWithEncoding = true;
    return outcome;
}

} // namespace

SourceOutcome readCsv(QIODevice &device, const ReadOptions &options)
{
    if (Stop stop = refusalOf(options))
        return std::move(*stop);
    QTextCodec *const codec =
        options.encoding.isEmpty() ? nullptr : QTextCodec::codecForName(options.encoding.toUtf8());
    return CsvReader(device, options, codec).outcome();
}

SourceOutcome readCsv(const QString &name, const ReadOptions &options)
{
    const auto unreadable = [](const QString &reason) {
        return failed(CsvReader::tr("cannot be read: %1").arg(reason));
    };
    if (QFileInfo(name).isDir())
        return failed(CsvReader::tr("cannot be read: it is a folder; choose a file"));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(file.errorString());
    SourceOutcome outcome = readCsv(file, options);
    if (file.error() != QFileDevice::NoError)
        return unreadable(file.errorString());
    return outcome;
}

} // namespace tessel::sources
