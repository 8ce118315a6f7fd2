#include "sources/SourceReader.h"

#include "sources/CsvReader.h"
#include "sources/OpenSource.h"
#include "sources/SourceKind.h"
#include "sources/StatisticalReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace tessel::sources {
namespace {

/// Finds the reader for a file, or what speaks against reading it.
class SourceDispatch {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::SourceReader)

public:
    SourceDispatch(const QString &fileName, const ReadOptions &readOptions)
        : name(fileName)
        , options(readOptions)
        , named(sourceKindOfEnding(fileName))
    {
    }

    SourceOutcome outcome()
    {
        {
            QFile file(name);
            const QString fault = openSource(file);
            if (!fault.isEmpty())
                return problem(fault);
            found = sourceKind(file.peek(kKindBytes));
        }
        const QString fault = refusal();
        return fault.isEmpty() ? read() : problem(fault);
    }

private:
    static SourceOutcome problem(const QString &message)
    {
        SourceOutcome outcome;
        outcome.problem.message = message;
        return outcome;
    }

    /// Why the file is not read at all; empty when it is.
    QString refusal() const
    {
        if (found == SourceKind::EncryptedSav)
            return tr("is encrypted; save it without a password");
        if (found == SourceKind::Sas7bcat || (named == SourceKind::Sas7bcat && !isData(found)))
            return tr("is a SAS catalogue, which holds value labels and no fields; open the .sas7bdat file "
                      "that it belongs to");
        if (named == SourceKind::Unknown && !isData(found))
            return tr("is of a kind that cannot be read; expected a file whose name ends in .%1")
                .arg(sourceEndings().join(QLatin1String(", .")));
        if (named == SourceKind::Unknown || named == found)
            return QString();
        return mismatch();
    }

    /// For a file whose content and name differ.
    QString mismatch() const
    {
        // What cannot be told by its first bytes may be text all the same: the reader of texts knows more.
        if (named == SourceKind::Text && found == SourceKind::Unknown)
            return QString();
        const QString ending = QFileInfo(name).suffix();
        if (found == SourceKind::Unknown)
            return tr(
                "is not %1 by its content, though its name ends in .%2; it is damaged or of another kind")
                .arg(kindName(named), ending);
        return tr("is %1 by its content, though its name ends in .%2; rename it to end in .%3")
            .arg(kindName(found), ending, usualEnding(found));
    }

    /// Whether the kind is told by bytes that only such files have.
    static bool isData(SourceKind kind) { return kind != SourceKind::Unknown && kind != SourceKind::Text; }

    SourceOutcome read() const
    {
        switch (found) {
        case SourceKind::Sav:
            return readStatistical(name, StatisticalFormat::Sav, options);
        case SourceKind::Por:
            return readStatistical(name, StatisticalFormat::Por, options);
        case SourceKind::Dta:
            return readStatistical(name, StatisticalFormat::Dta, options);
        case SourceKind::Sas7bdat:
            return readStatistical(name, StatisticalFormat::Sas7bdat, options);
        case SourceKind::Xpt:
            return readStatistical(name, StatisticalFormat::Xpt, options);
        case SourceKind::Unknown:
        case SourceKind::Text:
        case SourceKind::EncryptedSav:
        case SourceKind::Sas7bcat:
            break;
        }
        return readCsv(name, options);
    }

    const QString name;
    const ReadOptions &options;
    const SourceKind named;
    SourceKind found = SourceKind::Unknown;
};

} // namespace

SourceOutcome readSource(const QString &file, const ReadOptions &options)
{
    return SourceDispatch(file, options).outcome();
}

QStringList sourceEndings()
{
    return {QStringLiteral("csv"), QStringLiteral("tsv"), QStringLiteral("txt"), QStringLiteral("sav"),
        QStringLiteral("zsav"), QStringLiteral("por"), QStringLiteral("dta"), QStringLiteral("sas7bdat"),
        QStringLiteral("xpt")};
}

QStringList commonEncodings()
{
    return {QStringLiteral("UTF-8"), QStringLiteral("WINDOWS-1252"), QStringLiteral("ISO-8859-1"),
        QStringLiteral("ISO-8859-15"), QStringLiteral("IBM850"), QStringLiteral("MACINTOSH"),
        QStringLiteral("WINDOWS-1250"), QStringLiteral("ISO-8859-2"), QStringLiteral("WINDOWS-1251"),
        QStringLiteral("KOI8-R"), QStringLiteral("WINDOWS-1253"), QStringLiteral("WINDOWS-1254"),
        QStringLiteral("WINDOWS-1256"), QStringLiteral("GB18030"), QStringLiteral("BIG5"),
        QStringLiteral("SHIFT_JIS"), QStringLiteral("EUC-KR")};
}

} // namespace tessel::sources
