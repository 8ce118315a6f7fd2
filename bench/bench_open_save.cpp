// How long it takes, and how much memory, to open and save dictionaries: the programs' way as shares of the
// way through Qt's JSON objects, and of two parsers that put the same files into plain structs. All of them
// begin with the file, which the system has at hand. Memory is the peak of a process that does one thing.

#include "bench/GeneratedDictionary.h"
#include "bench/Measure.h"
#include "bench/PlainDictionary.h"
#include "documents/DocumentForm.h"
#include "documents/OpenedDocument.h"
#include "documents/QuickReader.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

namespace docs = tessel::documents;
namespace bench = tessel::bench;

struct Document {
    std::string title;
    int variables = 0;
    QString file;
};

std::unique_ptr<TDmEntity> openLongWay(const QString &file)
{
    return docs::readDictionary(*docs::readObject(file).result);
}

std::unique_ptr<TDmEntity> openQuickly(const QString &file)
{
    return std::move(docs::openFile(file).result->dictionary);
}

/// What is measured of each document.
struct Way {
    const char *name;
    void (*measure)(benchmark::State &state, const Document &document);
    void (*once)(const QString &file); ///< For the peak of memory; null for what only the time matters of.
};

template<typename Work>
void timed(benchmark::State &state, Work &&work)
{
    bench::measure(state, work, bench::settle);
}

const Way kWays[] = {
    {"open, long way",
        [](benchmark::State &state, const Document &d) { timed(state, [&] { return openLongWay(d.file); }); },
        [](const QString &file) { benchmark::DoNotOptimize(openLongWay(file).release()); }},
    {"open",
        [](benchmark::State &state, const Document &d) { timed(state, [&] { return openQuickly(d.file); }); },
        [](const QString &file) { benchmark::DoNotOptimize(openQuickly(file).release()); }},
    {"save, long way",
        [](benchmark::State &state, const Document &d) {
            const auto root = openQuickly(d.file);
            timed(state, [&] { return docs::dictionaryTextOfLibrary(*root); });
        },
        nullptr},
    {"save",
        [](benchmark::State &state, const Document &d) {
            const auto root = openQuickly(d.file);
            timed(state, [&] { return docs::dictionaryText(*root); });
        },
        nullptr},
    {"nlohmann",
        [](benchmark::State &state, const Document &d) {
            timed(state, [&] { return bench::plainByNlohmann(*docs::readFile(d.file).result); });
        },
        [](const QString &file) {
            const QByteArray text = *docs::readFile(file).result;
            benchmark::DoNotOptimize(new bench::PlainEntity(bench::plainByNlohmann(text)));
        }},
    {"simdjson",
        [](benchmark::State &state, const Document &d) {
            timed(state, [&] { return bench::plainBySimdjson(*docs::readFile(d.file).result); });
        },
        [](const QString &file) {
            const QByteArray text = *docs::readFile(file).result;
            benchmark::DoNotOptimize(new bench::PlainEntity(bench::plainBySimdjson(text)));
        }},
};

/// Opens the file \a name the way numbered \a way and prints the peak of the process's memory in KiB.
int printPeak(const char *way, const char *name)
{
    kWays[QByteArray(way).toInt()].once(QString::fromLocal8Bit(name));
    // Not getrusage(): its peak goes on from that of the process that started this one.
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray all = status.readAll();
    const int peak = all.indexOf("VmHWM:") + 6;
    std::printf("%d\n", all.mid(peak, all.indexOf("kB", peak) - peak).trimmed().toInt());
    std::fflush(stdout);
    // Freeing the tree is not part of it.
    std::_Exit(0);
}

/// In MiB.
double peakOf(const char *program, int way, const QString &file)
{
    QProcess child;
    child.start(QString::fromLocal8Bit(program), {QStringLiteral("--peak"), QString::number(way), file});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().trimmed().toDouble() / 1024;
}

double of(const std::map<std::string, double> &seconds, const char *way, const Document &document)
{
    // A filter on the command line may have left it out.
    const auto found = seconds.find(way + (' ' + document.title));
    return found == seconds.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

constexpr double kShare = 1.0 / 3; // Of the long way, that opening and saving may take.

void printTimes(const std::vector<Document> &documents, const std::map<std::string, double> &seconds)
{
    const auto row = [&](const char *what, const char *peer, const Document &d, double limit) {
        bench::printRow(std::string(what) + " / " + peer + ": " + d.title, of(seconds, what, d) * 1e3,
            of(seconds, peer, d) * 1e3, "ms", limit);
    };
    for (const Document &d : documents) {
        row("open", "open, long way", d, kShare);
        row("save", "save, long way", d, kShare);
        row("open", "nlohmann", d, 0);
        row("open", "simdjson", d, 0);
    }
    // Each size is there in both forms.
    for (const char *what : {"open", "save"}) {
        for (std::size_t form : {0, 1}) {
            const Document &small = documents.at(form);
            const Document &large = documents.at(documents.size() - 2 + form);
            const auto perVariable = [&](const Document &d) {
                return of(seconds, what, d) * 1e9 / d.variables;
            };
            bench::printRow(std::string(what) + " a variable, " + large.title + " / " + small.title,
                perVariable(large), perVariable(small), "ns");
        }
    }
}

void printPeaks(const char *program, const std::vector<Document> &documents)
{
    for (const Document &document : documents) {
        std::map<std::string, double> peaks;
        for (std::size_t way = 0; way < std::size(kWays); ++way) {
            if (kWays[way].once)
                peaks[kWays[way].name] = peakOf(program, int(way), document.file);
        }
        for (const char *peer : {"open, long way", "nlohmann", "simdjson"}) {
            bench::printRow("peak of memory, open / " + std::string(peer) + ": " + document.title,
                peaks["open"], peaks[peer], "MiB", peer == std::string("open, long way") ? kShare : 0);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 4 && QByteArray(argv[1]) == "--peak")
        return printPeak(argv[2], argv[3]);
    // What a round frees stays with the process, as in the other benchmarks of documents.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    const QTemporaryDir folder;
    std::vector<Document> documents;
    const auto add = [&](int variables, const char *form, const QByteArray &text) {
        const std::string title = std::to_string(variables) + form;
        documents.push_back({title, variables, folder.filePath(QString::fromStdString(title))});
        return !docs::writeFile(documents.back().file, text);
    };
    for (int variables : {1000, 10000, 100000}) {
        const QByteArray compact = bench::generatedDictionary(variables);
        const std::unique_ptr<TDmEntity> root = docs::readQuickly(compact);
        if (!root || !add(variables, " compact", compact)
            || !add(variables, " normal", docs::dictionaryText(*root))) {
            std::fprintf(stderr, "the documents cannot be written to %s\n", qPrintable(folder.path()));
            return 1;
        }
    }
    for (const Document &document : documents) {
        if (docs::dictionaryText(*openQuickly(document.file))
            != docs::dictionaryTextOfLibrary(*openLongWay(document.file))) {
            std::fprintf(stderr, "the two ways differ: %s\n", document.title.c_str());
            return 1;
        }
    }
    for (const Document &document : documents) {
        for (const Way &way : kWays) {
            if (!way.measure)
                continue;
            benchmark::RegisterBenchmark((way.name + (' ' + document.title)).c_str(), way.measure, document)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Iterations(std::clamp(100000 / document.variables, 3, 20));
        }
    }
    benchmark::Initialize(&argc, argv);
    bench::Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    printTimes(documents, collector.seconds);
    printPeaks(argv[0], documents);
    return 0;
}
