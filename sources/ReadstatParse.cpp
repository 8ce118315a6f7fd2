#include "sources/ReadstatParse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessel::sources {
namespace {

ParsedFile &fileOf(void *context) { return *static_cast<ParsedFile *>(context); }

int openFile(const char *, void *context) { return fileOf(context).file.seek(0) ? 0 : -1; }

int closeFile(void *) { return 0; }

readstat_off_t seekFile(readstat_off_t offset, readstat_io_flags_t whence, void *context)
{
    const qint64 size = fileOf(context).size();
    QFile &file = fileOf(context).file;
    const qint64 start = whence == READSTAT_SEEK_END ? size : whence == READSTAT_SEEK_CUR ? file.pos() : 0;
    // Nothing is behind the end; asked for a place there, Qt would complain on the log.
    const bool isInFile = offset >= -start && offset <= size - start;
    return isInFile && file.seek(start + offset) ? file.pos() : -1;
}

ssize_t readFile(void *bytes, std::size_t size, void *context)
{
    const qint64 end = fileOf(context).end;
    QFile &file = fileOf(context).file;
    const qint64 wanted = end < 0 ? qint64(size) : std::min(qint64(size), end - file.pos());
    const qint64 count = file.read(static_cast<char *>(bytes), wanted);
    // Behind the end nothing can be read; that is no error.
    return count < 0 && file.error() != QFileDevice::ReadError ? 0 : count;
}

readstat_error_t showNoProgress(long, readstat_progress_handler, void *, void *) { return READSTAT_OK; }

void keepSilent(const char *, void *) { }

StatisticalContent &contentOf(void *context) { return *static_cast<StatisticalContent *>(context); }

StatisticalVariable::Storage storageOf(readstat_type_t type)
{
    using Storage = StatisticalVariable::Storage;
    switch (type) {
    case READSTAT_TYPE_STRING:
        return Storage::Text;
    case READSTAT_TYPE_STRING_REF:
        return Storage::LongText;
    case READSTAT_TYPE_INT8:
        return Storage::Byte;
    case READSTAT_TYPE_INT16:
        return Storage::Int;
    case READSTAT_TYPE_INT32:
        return Storage::Long;
    case READSTAT_TYPE_FLOAT:
        return Storage::Float;
    case READSTAT_TYPE_DOUBLE:
        break;
    }
    return Storage::Double;
}

QString withoutBlanksAtEnd(QString text)
{
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

MissingRange missingRange(const readstat_variable_t *variable, int place, TextMends &mends)
{
    const readstat_value_t low = readstat_variable_get_missing_range_lo(variable, place);
    const readstat_value_t high = readstat_variable_get_missing_range_hi(variable, place);
    MissingRange range;
    range.isText = readstat_value_type_class(low) == READSTAT_TYPE_CLASS_STRING;
    if (range.isText) {
        range.text = withoutBlanksAtEnd(sourceText(readstat_string_value(low), mends));
        return range;
    }
    // A bound that is no number, as the lowest one reads, is none.
    const double lowest = readstat_double_value(low);
    const double highest = readstat_double_value(high);
    range.low = std::isnan(lowest) ? -std::numeric_limits<double>::infinity() : lowest;
    range.high = std::isnan(highest) ? std::numeric_limits<double>::infinity() : highest;
    return range;
}

int takeMetadata(readstat_metadata_t *metadata, void *context)
{
    StatisticalContent &content = contentOf(context);
    content.rows = metadata->row_count;
    content.version = readstat_get_file_format_version(metadata);
    content.title = sourceText(readstat_get_file_label(metadata), content.mends);
    content.encoding = QString::fromLatin1(readstat_get_file_encoding(metadata));
    return READSTAT_HANDLER_OK;
}

int takeVariable(int, readstat_variable_t *variable, const char *labelSet, void *context)
{
    StatisticalVariable taken;
    taken.name = sourceText(readstat_variable_get_name(variable), taken.mends);
    taken.label = sourceText(readstat_variable_get_label(variable), taken.mends);
    taken.format = sourceText(readstat_variable_get_format(variable), taken.mends);
    taken.labelSet = sourceText(labelSet, taken.mends);
    taken.storage = storageOf(readstat_variable_get_type(variable));
    taken.storageWidth = int(std::min(
        readstat_variable_get_storage_width(variable), std::size_t(std::numeric_limits<int>::max())));
    for (int i = 0; i < readstat_variable_get_missing_ranges_count(variable); ++i)
        taken.missing.append(missingRange(variable, i, taken.mends));
    contentOf(context).variables.append(taken);
    return READSTAT_HANDLER_OK;
}

/// How many bytes a Stata file of the format \a version keeps for the name of a label set.
uint labelSetBytes(int version)
{
    constexpr uint old = 9;
    constexpr uint middle = 33;
    constexpr uint newest = 129;
    if (version < 110)
        return old;
    return version < 118 ? middle : newest;
}

/// The library hands over the name of a label set where it stands in the file's own list, where nothing need
/// end it.
int takeStataVariable(int place, readstat_variable_t *variable, const char *labelSet, void *context)
{
    const uint size = qstrnlen(labelSet, labelSetBytes(contentOf(context).version));
    const QByteArray name(labelSet, int(size));
    return takeVariable(place, variable, name.constData(), context);
}

CodeLabel codeOf(const readstat_value_t &value, TextMends &mends)
{
    CodeLabel code;
    if (readstat_value_is_tagged_missing(value)) {
        code.kind = CodeLabel::Kind::Tag;
        code.text = QStringLiteral(".%1").arg(QLatin1Char(readstat_value_tag(value)));
    } else if (readstat_value_type_class(value) == READSTAT_TYPE_CLASS_STRING) {
        code.kind = CodeLabel::Kind::Text;
        code.text = withoutBlanksAtEnd(sourceText(readstat_string_value(value), mends));
    } else if (readstat_value_is_system_missing(value)) {
        code.kind = CodeLabel::Kind::Tag;
        code.text = QStringLiteral(".");
    } else {
        code.number = readstat_double_value(value);
    }
    return code;
}

int takeLabel(const char *setName, readstat_value_t value, const char *label, void *context)
{
    TextMends mends;
    LabelSet &set = contentOf(context).labelSets[sourceText(setName, mends)];
    CodeLabel taken = codeOf(value, set.mends);
    taken.label = sourceText(label, set.mends);
    set.labels.append(taken);
    return READSTAT_HANDLER_OK;
}

} // namespace

struct ReadstatParse::Values {
    const std::function<bool(int)> &isWanted;
    const ValueReceiver &receive;
};

ReadstatParse::ReadstatParse(QFile &file, const QString &encoding, qint64 end)
    : device{file, end}
    , encodingName(encoding.toUtf8())
    , parser(readstat_parser_init(), readstat_parser_free)
{
    readstat_set_open_handler(parser.get(), openFile);
    readstat_set_close_handler(parser.get(), closeFile);
    readstat_set_seek_handler(parser.get(), seekFile);
    readstat_set_read_handler(parser.get(), readFile);
    readstat_set_update_handler(parser.get(), showNoProgress);
    readstat_set_io_ctx(parser.get(), &device);
    readstat_set_error_handler(parser.get(), keepSilent);
    if (!encodingName.isEmpty())
        readstat_set_file_character_encoding(parser.get(), encodingName.constData());
}

ReadstatParse::~ReadstatParse() = default;

void ReadstatParse::leaveTextsAlone() { readstat_set_handler_character_encoding(parser.get(), nullptr); }

readstat_error_t ReadstatParse::readContent(StatisticalFormat format, StatisticalContent &content)
{
    setContentHandlers();
    if (format == StatisticalFormat::Dta)
        readstat_set_variable_handler(parser.get(), takeStataVariable);
    return parse(format, &content);
}

readstat_error_t ReadstatParse::readCatalogue(StatisticalContent &content)
{
    setContentHandlers();
    return readstat_parse_sas7bcat(parser.get(), "", &content);
}

readstat_error_t ReadstatParse::readValues(StatisticalFormat format, qint64 rows,
    const std::function<bool(int variable)> &isWanted, const ValueReceiver &receive)
{
    Values values{isWanted, receive};
    readstat_set_row_limit(parser.get(), rows);
    readstat_set_variable_handler(
        parser.get(), [](int place, readstat_variable_t *, const char *, void *context) -> int {
            return static_cast<Values *>(context)->isWanted(place) ? READSTAT_HANDLER_OK
                                                                   : READSTAT_HANDLER_SKIP_VARIABLE;
        });
    readstat_set_value_handler(parser.get(),
        [](int record, readstat_variable_t *variable, readstat_value_t value, void *context) -> int {
            const int place = readstat_variable_get_index(variable);
            return static_cast<Values *>(context)->receive(record, place, value) ? READSTAT_HANDLER_OK
                                                                                 : READSTAT_HANDLER_ABORT;
        });
    return parse(format, &values);
}

void ReadstatParse::setContentHandlers()
{
    readstat_set_metadata_handler(parser.get(), takeMetadata);
    readstat_set_variable_handler(parser.get(), takeVariable);
    readstat_set_value_label_handler(parser.get(), takeLabel);
}

readstat_error_t ReadstatParse::parse(StatisticalFormat format, void *context)
{
    switch (format) {
    case StatisticalFormat::Sav:
        return readstat_parse_sav(parser.get(), "", context);
    case StatisticalFormat::Por:
        return readstat_parse_por(parser.get(), "", context);
    case StatisticalFormat::Dta:
        return readstat_parse_dta(parser.get(), "", context);
    case StatisticalFormat::Sas7bdat:
        return readstat_parse_sas7bdat(parser.get(), "", context);
    case StatisticalFormat::Xpt:
        break;
    }
    return readstat_parse_xport(parser.get(), "", context);
}

} // namespace tessel::sources
