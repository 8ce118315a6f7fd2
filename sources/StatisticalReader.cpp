#include "sources/StatisticalReader.h"

#include "sources/Completeness.h"
#include "sources/FieldMaker.h"
#include "sources/OpenSource.h"
#include "sources/ReadstatParse.h"
#include "sources/SasCatalogue.h"
#include "sources/StatisticalProblem.h"
#include "sources/StatisticalValues.h"
#include "sources/TransportEnd.h"

#include <QFile>

#include <algorithm>

namespace tessel::sources {
namespace {

QString formatName(StatisticalFormat format)
{
    switch (format) {
    case StatisticalFormat::Sav:
        return QStringLiteral("SPSS");
    case StatisticalFormat::Por:
        return QStringLiteral("SPSS portable");
    case StatisticalFormat::Dta:
        return QStringLiteral("Stata");
    case StatisticalFormat::Sas7bdat:
        return QStringLiteral("SAS");
    case StatisticalFormat::Xpt:
        break;
    }
    return QStringLiteral("SAS transport");
}

/// One file on its way to its fields.
class StatisticalReader {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::StatisticalReader)

public:
    StatisticalReader(const QString &name, StatisticalFormat fileFormat, const ReadOptions &readOptions)
        : file(name)
        , format(fileFormat)
        , options(readOptions)
    {
    }

    SourceOutcome outcome()
    {
        if (std::optional<SourceOutcome> unknown = StatisticalProblem::ofEncoding(options.encoding))
            return std::move(*unknown);
        QString fault = openSource(file);
        if (fault.isEmpty())
            fault = Completeness::faultOf(file, format);
        if (!fault.isEmpty())
            return StatisticalProblem::with(fault);
        const readstat_error_t error = ReadstatParse(file, options.encoding).readContent(format, content);
        if (error != READSTAT_OK)
            return problem(error);
        findEnd();
        fault = joinLabels();
        return fault.isEmpty() ? withFields() : StatisticalProblem::with(fault);
    }

private:
    SourceOutcome problem(readstat_error_t error)
    {
        if (StatisticalProblem::isOfEncoding(error))
            return StatisticalProblem::ofTexts(options.encoding, declaredEncoding());
        return StatisticalProblem::of(error, file);
    }

    /// The encoding that the file declares, told even when it is wrong; empty when there is none.
    QString declaredEncoding()
    {
        StatisticalContent untouched;
        ReadstatParse parse(file, QString());
        parse.leaveTextsAlone();
        return parse.readContent(format, untouched) == READSTAT_OK ? untouched.encoding : QString();
    }

    /// The encoding in which texts were read.
    QString encoding() const
    {
        if (!options.encoding.isEmpty())
            return options.encoding;
        // Stata files do not tell, but from the version on in which it became UTF-8 there is no doubt. The
        // older ones are in that of the computer that wrote them, which the parser takes to be the most
        // frequent one.
        constexpr int unicode = 118;
        if (format == StatisticalFormat::Dta)
            return content.version >= unicode ? QStringLiteral("UTF-8") : QStringLiteral("WINDOWS-1252");
        return content.encoding;
    }

    bool isSas() const { return format == StatisticalFormat::Sas7bdat || format == StatisticalFormat::Xpt; }

    /// A transport file may hold several data sets one behind the other and tells so nowhere: the records of
    /// the first would go on with what is none of theirs.
    void findEnd()
    {
        if (format != StatisticalFormat::Xpt)
            return;
        // How long this takes must not depend on how many records there are, unless they are wanted.
        constexpr qint64 most = qint64(64) * 1024 * 1024;
        qint64 width = 1;
        for (const StatisticalVariable &variable : qAsConst(content.variables))
            width += variable.storageWidth;
        const qint64 wanted = std::min(options.rows, file.size() / width + 1) * width;
        end = endOfFirstDataSet(file, most + wanted);
        if (end >= 0)
            source.remarks.append({QString(),
                tr("The file holds more than one data set, of which only the first one is read; save each in "
                   "a file of its own.")});
    }

    /// What keeps variables and their labels apart; empty when nothing does.
    QString joinLabels()
    {
        if (content.variables.isEmpty())
            return tr("holds no variables; expected at least one");
        if (isSas())
            return SasCatalogue(file.fileName(), options.catalogue, options.encoding)
                .join(content, source.remarks);
        return format == StatisticalFormat::Dta ? Completeness::faultOf(content) : QString();
    }

    SourceOutcome withFields()
    {
        StatisticalValues values(content, options);
        if (options.rows > 0) {
            const readstat_error_t error = values.read(file, format, end);
            SourceOutcome cancelled;
            cancelled.isCancelled = values.isCancelled();
            if (cancelled.isCancelled)
                return cancelled;
            if (error != READSTAT_OK)
                return problem(error);
        }
        describe(values);
        FieldMaker maker(format, content);
        for (int i = 0; i < content.variables.size(); ++i)
            source.fields.push_back(maker.make(i, values.tally(i)));
        remarkOnForeignTexts(maker.foreignFields());
        source.remarks += maker.remarks();
        SourceOutcome outcome;
        outcome.result = std::move(source);
        return outcome;
    }

    void remarkOnForeignTexts(const QStringList &fields)
    {
        if (content.mends.isForeign)
            source.remarks.append(
                {QString(), tr("The title is not valid UTF-8 and was read as Windows-1252.")});
        if (!fields.isEmpty())
            source.remarks.append({QString(),
                tr("Texts of %n fields are not valid UTF-8 and were read as Windows-1252: %1.", nullptr,
                    fields.size())
                    .arg(fields.join(QLatin1String(", ")))});
    }

    void describe(const StatisticalValues &values)
    {
        source.format = formatName(format);
        source.encoding = encoding();
        source.title = content.title;
        source.rows = content.rows;
        source.rowsRead = values.rowsRead();
        if (!values.hasMore())
            return;
        source.remarks.append({QString(),
            content.rows < 0
                ? tr("Categories and ranges come from the first %1 records.").arg(values.rowsRead())
                : tr("Categories and ranges come from the first %1 of %2 records.")
                      .arg(values.rowsRead())
                      .arg(content.rows)});
    }

    QFile file;
    const StatisticalFormat format;
    const ReadOptions &options;
    StatisticalContent content;
    qint64 end = -1; ///< Of what is read of the file; -1: all of it.
    SourceFields source;
};

} // namespace

SourceOutcome readStatistical(const QString &file, StatisticalFormat format, const ReadOptions &options)
{
    return StatisticalReader(file, format, options).outcome();
}

} // namespace tessel::sources
