#include "tests/sources/StatisticalFile.h"

#include <QHash>
#include <QtEndian>

#include <memory>

namespace tessel::test {
namespace {

using Writer = std::unique_ptr<readstat_writer_t, decltype(&readstat_writer_free)>;
using SetsByName = QHash<QByteArray, readstat_label_set_t *>;

ssize_t append(const void *data, size_t length, void *bytes)
{
    static_cast<QByteArray *>(bytes)->append(static_cast<const char *>(data), static_cast<int>(length));
    return static_cast<ssize_t>(length);
}

/// Ends the program when the writer has a complaint.
void insist(readstat_error_t error, const QByteArray &what)
{
    if (error != READSTAT_OK)
        qFatal("fixture: %s: %s", what.constData(), readstat_error_message(error));
}

void addLabel(readstat_label_set_t *set, const LabelledCode &labelled)
{
    const char *label = labelled.label.constData();
    if (const auto *text = std::get_if<QByteArray>(&labelled.code))
        return readstat_label_string_value(set, text->constData(), label);
    if (const auto *tag = std::get_if<char>(&labelled.code))
        return readstat_label_tagged_value(set, *tag, label);
    const double number = std::get<double>(labelled.code);
    if (set->type == READSTAT_TYPE_DOUBLE)
        return readstat_label_double_value(set, number, label);
    readstat_label_int32_value(set, static_cast<int32_t>(number), label);
}

SetsByName addSets(readstat_writer_t *writer, const Table &table)
{
    SetsByName sets;
    for (const LabelSet &set : table.sets) {
        readstat_label_set_t *added = readstat_add_label_set(writer, set.type, set.name.constData());
        for (const LabelledCode &labelled : set.labels)
            addLabel(added, labelled);
        sets[set.name] = added;
    }
    return sets;
}

void addMissing(readstat_variable_t *variable, const Column &column)
{
    for (const MissingSpan &span : column.missing) {
        const bool isOneCode = !(span.from < span.to);
        insist(isOneCode ? readstat_variable_add_missing_double_value(variable, span.from)
                         : readstat_variable_add_missing_double_range(variable, span.from, span.to),
            "missing codes of " + column.name);
    }
    for (const QByteArray &text : column.missingTexts)
        insist(readstat_variable_add_missing_string_value(variable, text.constData()), column.name);
}

void addColumn(readstat_writer_t *writer, const Column &column, const SetsByName &sets)
{
    readstat_variable_t *variable =
        readstat_add_variable(writer, column.name.constData(), column.type, column.width);
    readstat_variable_set_label(variable, column.label.constData());
    if (!column.format.isEmpty())
        readstat_variable_set_format(variable, column.format.constData());
    if (!column.labelSet.isEmpty() && !sets.contains(column.labelSet))
        qFatal("fixture: no label set is named %s", column.labelSet.constData());
    readstat_variable_set_label_set(variable, sets.value(column.labelSet));
    if (column.displayWidth > 0)
        readstat_variable_set_display_width(variable, column.displayWidth);
    addMissing(variable, column);
}

readstat_error_t begin(readstat_writer_t *writer, FileKind kind, QByteArray *bytes, long records)
{
    switch (kind) {
    case FileKind::Sav:
    case FileKind::Zsav:
        return readstat_begin_writing_sav(writer, bytes, records);
    case FileKind::Por:
        return readstat_begin_writing_por(writer, bytes, records);
    case FileKind::Dta:
        return readstat_begin_writing_dta(writer, bytes, records);
    case FileKind::Sas7bdat:
        return readstat_begin_writing_sas7bdat(writer, bytes, records);
    case FileKind::Sas7bcat:
        return readstat_begin_writing_sas7bcat(writer, bytes);
    case FileKind::Xpt:
        return readstat_begin_writing_xport(writer, bytes, records);
    }
    Q_UNREACHABLE();
}

readstat_error_t insertNumber(readstat_writer_t *writer, const readstat_variable_t *variable, double number)
{
    switch (readstat_variable_get_type(variable)) {
    case READSTAT_TYPE_INT8:
        return readstat_insert_int8_value(writer, variable, static_cast<int8_t>(number));
    case READSTAT_TYPE_INT16:
        return readstat_insert_int16_value(writer, variable, static_cast<int16_t>(number));
    case READSTAT_TYPE_INT32:
        return readstat_insert_int32_value(writer, variable, static_cast<int32_t>(number));
    case READSTAT_TYPE_FLOAT:
        return readstat_insert_float_value(writer, variable, static_cast<float>(number));
    default:
        return readstat_insert_double_value(writer, variable, number);
    }
}

/// The place of \a text among the long texts, which must all be known before the first record.
readstat_string_ref_t *longText(readstat_writer_t *writer, const QByteArray &text)
{
    for (int i = 0; i < writer->string_refs_count; ++i) {
        readstat_string_ref_t *known = readstat_get_string_ref(writer, i);
        if (text == known->data)
            return known;
    }
    return readstat_add_string_ref(writer, text.constData());
}

void addLongTexts(readstat_writer_t *writer, const Table &table)
{
    for (const std::vector<Cell> &record : table.records)
        for (size_t i = 0; i < record.size(); ++i)
            if (table.columns[i].type == READSTAT_TYPE_STRING_REF)
                longText(writer, std::get<QByteArray>(record[i]));
}

readstat_error_t insert(readstat_writer_t *writer, const readstat_variable_t *variable, const Cell &cell)
{
    const auto *text = std::get_if<QByteArray>(&cell);
    if (text && readstat_variable_get_type(variable) == READSTAT_TYPE_STRING_REF)
        return readstat_insert_string_ref(writer, variable, longText(writer, *text));
    if (text)
        return readstat_insert_string_value(writer, variable, text->constData());
    if (const auto *tag = std::get_if<char>(&cell))
        return readstat_insert_tagged_missing_value(writer, variable, *tag);
    if (const auto *number = std::get_if<double>(&cell))
        return insertNumber(writer, variable, *number);
    return readstat_insert_missing_value(writer, variable);
}

void addRecord(readstat_writer_t *writer, const std::vector<Cell> &record)
{
    insist(readstat_begin_row(writer), "a record");
    for (size_t i = 0; i < record.size(); ++i) {
        const readstat_variable_t *variable = readstat_get_variable(writer, static_cast<int>(i));
        insist(insert(writer, variable, record[i]), readstat_variable_get_name(variable));
    }
    insist(readstat_end_row(writer), "a record");
}

void setForm(readstat_writer_t *writer, const FileForm &form)
{
    constexpr time_t noonOfACensusDay = 1679400000;
    readstat_writer_set_file_timestamp(writer, noonOfACensusDay);
    if (form.version != 0)
        readstat_writer_set_file_format_version(writer, form.version);
    readstat_writer_set_compression(
        writer, form.kind == FileKind::Zsav ? READSTAT_COMPRESS_BINARY : form.compression);
    readstat_writer_set_file_format_is_64bit(writer, form.is64bit ? 1 : 0);
}

} // namespace

QByteArray fileOf(const Table &table, const FileForm &form)
{
    // The writer puts the local time into the file: without this the bytes would depend on where they are
    // written.
    qputenv("TZ", "UTC");
    QByteArray bytes;
    const Writer writer(readstat_writer_init(), readstat_writer_free);
    readstat_set_data_writer(writer.get(), append);
    setForm(writer.get(), form);
    readstat_writer_set_file_label(writer.get(), table.title.constData());
    for (const QByteArray &note : table.notes)
        readstat_add_note(writer.get(), note.constData());
    const SetsByName sets = addSets(writer.get(), table);
    if (form.kind != FileKind::Sas7bcat)
        for (const Column &column : table.columns)
            addColumn(writer.get(), column, sets);
    addLongTexts(writer.get(), table);
    insist(begin(writer.get(), form.kind, &bytes, static_cast<long>(table.records.size())), "the beginning");
    if (form.kind != FileKind::Sas7bcat)
        for (const std::vector<Cell> &record : table.records)
            addRecord(writer.get(), record);
    insist(readstat_end_writing(writer.get()), "the end");
    return bytes;
}

Table countedRecords(int count)
{
    Table table{{}, {{"X", READSTAT_TYPE_DOUBLE, 8, "", "F8.0"}}};
    for (int i = 0; i < count; ++i)
        table.records.push_back({double(i)});
    return table;
}

QString endingOf(FileKind kind)
{
    switch (kind) {
    case FileKind::Sav:
        return QStringLiteral("sav");
    case FileKind::Zsav:
        return QStringLiteral("zsav");
    case FileKind::Por:
        return QStringLiteral("por");
    case FileKind::Dta:
        return QStringLiteral("dta");
    case FileKind::Sas7bdat:
        return QStringLiteral("sas7bdat");
    case FileKind::Sas7bcat:
        return QStringLiteral("sas7bcat");
    case FileKind::Xpt:
        return QStringLiteral("xpt");
    }
    Q_UNREACHABLE();
}

QByteArray withCodePageOfSav(QByteArray sav, int codePage)
{
    const auto number = [](qint32 value) {
        QByteArray bytes(4, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    };
    const QByteArray utf8 = number(65001);
    if (sav.count(utf8) != 1)
        qFatal("fixture: the declared code page is not found");
    return sav.replace(utf8, number(codePage));
}

} // namespace tessel::test
