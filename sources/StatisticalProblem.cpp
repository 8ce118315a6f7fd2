#include "sources/StatisticalProblem.h"

#include <QFile>

#include <cstdint>
#include <iconv.h>

namespace tessel::sources {
namespace {

bool isKnownEncoding(const QString &name)
{
    iconv_t converter = iconv_open("UTF-8", name.toUtf8().constData());
    // The failure is the number -1 as a pointer.
    const bool isKnown = reinterpret_cast<std::intptr_t>(converter) != -1;
    if (isKnown)
        iconv_close(converter);
    return isKnown;
}

} // namespace

SourceOutcome StatisticalProblem::of(readstat_error_t error, const QFile &file)
{
    // A place that cannot be reached is the fault of what the file says, not of reading it.
    if (file.error() == QFileDevice::ReadError)
        return with(tr("cannot be read: %1").arg(file.errorString()));
    switch (error) {
    case READSTAT_ERROR_UNSUPPORTED_FILE_FORMAT_VERSION:
        return with(tr("is of a version of its format that cannot be read; save it in another version"));
    case READSTAT_ERROR_UNSUPPORTED_COMPRESSION:
        return with(tr("is compressed in a way that cannot be read; save it without compression"));
    case READSTAT_ERROR_READ:
    case READSTAT_ERROR_SEEK:
    case READSTAT_ERROR_ROW_COUNT_MISMATCH:
        return with(tr("ends too early: it was cut off or is damaged; get the whole file"));
    case READSTAT_ERROR_MALLOC:
        return with(tr("is damaged: it declares something larger than can be; get the file again"));
    default:
        return with(tr("is damaged and cannot be read; get the file again"));
    }
}

bool StatisticalProblem::isOfEncoding(readstat_error_t error)
{
    return error == READSTAT_ERROR_UNSUPPORTED_CHARSET || error == READSTAT_ERROR_CONVERT
        || error == READSTAT_ERROR_CONVERT_BAD_STRING || error == READSTAT_ERROR_CONVERT_SHORT_STRING
        || error == READSTAT_ERROR_CONVERT_LONG_STRING;
}

SourceOutcome StatisticalProblem::ofTexts(const QString &chosen, const QString &declared)
{
    if (!chosen.isEmpty())
        return with(tr("holds texts that are not in the encoding %1; choose another one").arg(chosen), true);
    if (declared.isEmpty())
        return with(
            tr("holds texts that are not in the encoding that it declares; choose the encoding"), true);
    if (isKnownEncoding(declared))
        return with(tr("holds texts that are not in the encoding %1, which it declares; choose another one")
                        .arg(declared),
            true);
    return with(tr("declares the encoding %1, which is not known; choose another one").arg(declared), true);
}

std::optional<SourceOutcome> StatisticalProblem::ofEncoding(const QString &name)
{
    if (name.isEmpty() || isKnownEncoding(name))
        return std::nullopt;
    return with(
        tr("cannot be read in the encoding %1, which is not known; choose another one").arg(name), true);
}

SourceOutcome StatisticalProblem::with(const QString &message, bool canRetryWithEncoding)
{
    SourceOutcome outcome;
    outcome.problem.message = message;
    outcome.canRetryWithEncoding = canRetryWithEncoding;
    return outcome;
}

} // namespace tessel::sources
