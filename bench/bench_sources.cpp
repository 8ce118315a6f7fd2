// What it takes to learn the fields of a large data file, as a share of reading its values. The file is made
// on the fly, in a folder of its own that is gone afterwards. Usage: bench_sources [RECORDS]

#include "bench/Measure.h"
#include "sources/CsvReader.h"
#include "sources/StatisticalReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <readstat.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace {

namespace sources = tessel::sources;
using Clock = std::chrono::steady_clock;

constexpr int kVariables = 500;
constexpr int kRounds = 5;

[[noreturn]] void give(const char *reason)
{
    std::fprintf(stderr, "bench_sources: %s\n", reason);
    std::exit(1);
}

/// The fastest of some rounds of \a work, in milliseconds.
template<typename Work>
double best(int rounds, Work &&work)
{
    double least = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        work();
        least = std::min(least, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    return least;
}

ssize_t append(const void *data, std::size_t size, void *file)
{
    return static_cast<QFile *>(file)->write(static_cast<const char *>(data), qint64(size));
}

/// A compressed file of small whole numbers, one byte each.
void writeSav(const QString &name, int records)
{
    QFile file(name);
    if (!file.open(QFile::WriteOnly))
        give("no file can be made");
    readstat_writer_t *writer = readstat_writer_init();
    readstat_set_data_writer(writer, append);
    readstat_writer_set_compression(writer, READSTAT_COMPRESS_ROWS);
    std::vector<readstat_variable_t *> variables;
    readstat_label_set_t *labels = readstat_add_label_set(writer, READSTAT_TYPE_DOUBLE, "yesno");
    readstat_label_double_value(labels, 1, "Yes");
    readstat_label_double_value(labels, 2, "No");
    for (int i = 0; i < kVariables; ++i) {
        readstat_variable_t *variable =
            readstat_add_variable(writer, ("V" + std::to_string(i)).c_str(), READSTAT_TYPE_DOUBLE, 0);
        readstat_variable_set_format(variable, "F2.0");
        readstat_variable_set_label(variable, "Answer to a question");
        readstat_variable_set_label_set(variable, labels);
        variables.push_back(variable);
    }
    bool isWell = readstat_begin_writing_sav(writer, &file, records) == READSTAT_OK;
    for (int row = 0; isWell && row < records; ++row) {
        readstat_begin_row(writer);
        for (int i = 0; i < kVariables; ++i)
            readstat_insert_double_value(writer, variables[std::size_t(i)], (row + i) % 90);
        isWell = readstat_end_row(writer) == READSTAT_OK;
    }
    isWell = isWell && readstat_end_writing(writer) == READSTAT_OK;
    readstat_writer_free(writer);
    if (!isWell || !file.flush())
        give("the file cannot be written: is there a gigabyte of room?");
}

int ignoreVariable(int, readstat_variable_t *, const char *, void *) { return READSTAT_HANDLER_OK; }
int ignoreValue(int, readstat_variable_t *, readstat_value_t, void *) { return READSTAT_HANDLER_OK; }

/// All values, of which nothing is made.
void readValues(const QString &name)
{
    readstat_parser_t *parser = readstat_parser_init();
    // Without the former, values come with variables that are not there.
    readstat_set_variable_handler(parser, ignoreVariable);
    readstat_set_value_handler(parser, ignoreValue);
    const readstat_error_t fault = readstat_parse_sav(parser, QFile::encodeName(name).constData(), nullptr);
    readstat_parser_free(parser);
    if (fault != READSTAT_OK)
        give(readstat_error_message(fault));
}

void readFields(const sources::SourceOutcome &outcome, std::size_t expected)
{
    if (!outcome.result || outcome.result->fields.size() != expected)
        give("the fields are not those of the file");
}

void writeCsv(const QString &name, int records)
{
    QFile file(name);
    if (!file.open(QFile::WriteOnly))
        give("no file can be made");
    QByteArray header;
    QByteArray record;
    for (int i = 0; i < kVariables; ++i) {
        header += (i ? ";V" : "V") + QByteArray::number(i);
        record += i ? ";12" : "12";
    }
    file.write(header + '\n');
    for (int row = 0; row < records; ++row)
        file.write(record + '\n');
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const int records = argc > 1 ? std::atoi(argv[1]) : 2'000'000;
    const QTemporaryDir folder;

    const QString sav = folder.filePath(QStringLiteral("large.sav"));
    writeSav(sav, records);
    const double fields = best(kRounds,
        [&] { readFields(sources::readStatistical(sav, sources::StatisticalFormat::Sav), kVariables); });
    const double values = best(1, [&] { readValues(sav); });
    tessel::bench::printRow(
        "fields of a .sav, " + std::to_string(records) + " records / its values", fields, values, "ms", 0.05);
    QFile::remove(sav);

    const QString small = folder.filePath(QStringLiteral("small.csv"));
    const QString large = folder.filePath(QStringLiteral("large.csv"));
    writeCsv(small, 100);
    writeCsv(large, 100'000);
    const double ofSmall = best(50, [&] { readFields(sources::readCsv(small), kVariables); });
    const double ofLarge = best(50, [&] { readFields(sources::readCsv(large), kVariables); });
    tessel::bench::printRow("fields of a CSV file of 100,000 records / of 100", ofLarge, ofSmall, "ms", 1.3);
    return 0;
}
