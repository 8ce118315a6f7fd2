// How long it takes to read and write dictionary documents, as shares of what Qt's own parsing and text
// writing of the same documents take in the same run.

#include "bench/GeneratedDictionary.h"
#include "bench/Measure.h"
#include "business/ProcessDictionaryBusiness.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

/// A document to be measured: its text, how many variables it holds, and what it is called in the table.
struct Document {
    std::string title;
    QByteArray text;
    int variables = 0;
    double bytesPerVariable = 0;
};

/// A root above the document's top entities: deleting it frees the tree.
std::unique_ptr<TDmEntity> treeOf(const QVariantMap &map)
{
    auto root = std::make_unique<TDmEntity>();
    root->setChildren(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(map, 0));
    return root;
}

int variablesBelow(const TDmEntity &entity)
{
    int count = entity.getVariables()->size();
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        count += variablesBelow(*child);
    return count;
}

QVariantMap mapOf(const QByteArray &text) { return QJsonDocument::fromJson(text).object().toVariantMap(); }

void addDocument(std::vector<Document> &documents, const std::string &title, const QByteArray &text)
{
    const QVariantMap map = mapOf(text);
    const std::size_t before = mallinfo2().uordblks;
    const std::unique_ptr<TDmEntity> root = treeOf(map);
    const std::size_t after = mallinfo2().uordblks;
    const int variables = variablesBelow(*root);
    documents.push_back({title, text, variables, double(after - before) / variables});
}

std::vector<Document> allDocuments()
{
    std::vector<Document> documents;
    for (int variables : {1'000, 10'000, 100'000}) {
        addDocument(documents, "generated, " + std::to_string(variables) + " variables",
            tessel::bench::generatedDictionary(variables));
    }
    // Real dictionaries are not part of the project: whoever has a folder of them names it.
    const QDir folder(qEnvironmentVariable("TESSEL_BENCH_DATA", QStringLiteral("-")));
    const QStringList names = folder.exists() ? folder.entryList({QStringLiteral("*.json")}) : QStringList();
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            addDocument(documents, name.toStdString(), file.readAll());
    }
    return documents;
}

template<typename Work>
void measure(benchmark::State &state, Work &&work)
{
    tessel::bench::measure(state, work, tessel::bench::settle);
}

void parse(benchmark::State &state, const Document &document)
{
    measure(state, [&] { return mapOf(document.text); });
}

void read(benchmark::State &state, const Document &document)
{
    const QVariantMap map = mapOf(document.text);
    measure(state, [&] { return treeOf(map); });
}

void build(benchmark::State &state, const Document &document)
{
    const QVariantMap map =
        mapOf(document.text); // Kept: its texts are shared with the tree, freeing it leaves holes.
    const std::unique_ptr<TDmEntity> root = treeOf(map);
    measure(state, [&] {
        QJsonObject out;
        ProcessDictionaryBusiness().getStructuraTreeRootToJson(root.get(), &out);
        return out;
    });
}

void write(benchmark::State &state, const Document &document)
{
    const QVariantMap map = mapOf(document.text);
    const std::unique_ptr<TDmEntity> root = treeOf(map);
    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(root.get(), &out);
    measure(state, [&] { return QJsonDocument(out).toJson(); });
}

void printTable(const std::vector<Document> &documents, std::map<std::string, double> &seconds)
{
    using tessel::bench::printRow;
    const auto of = [&](const char *what, const Document &d) { return seconds[what + (" " + d.title)]; };
    for (const Document &d : documents) {
        printRow("read / parse: " + d.title, of("read", d) * 1e3, of("parse", d) * 1e3, "ms", 0.2);
        printRow("build / text: " + d.title, of("build", d) * 1e3, of("text", d) * 1e3, "ms", 0.8);
    }
    const Document &small = documents[0];
    const Document &large = documents[2];
    const auto perVariable = [&](const char *what, const Document &d) {
        return of(what, d) * 1e9 / d.variables;
    };
    for (const char *what : {"read", "build"}) {
        printRow(std::string(what) + " a variable, of 100,000 / of 1,000", perVariable(what, large),
            perVariable(what, small), "ns", 1.3);
    }
    printRow("memory of a variable, of 100,000 / of 1,000", large.bytesPerVariable, small.bytesPerVariable,
        "bytes", 1.3);
}

} // namespace

int main(int argc, char **argv)
{
    // What a round frees stays with the process: otherwise each round pays anew for the system's pages, and
    // more for large documents than for small ones.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    const std::vector<Document> documents = allDocuments();
    for (const Document &document : documents) {
        const auto add = [&document](const char *what, void (*work)(benchmark::State &, const Document &)) {
            benchmark::RegisterBenchmark((what + (" " + document.title)).c_str(), work, document)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Iterations(std::clamp(200'000 / document.variables, 5, 60))
                ->Repetitions(3);
        };
        add("parse", parse);
        add("read", read);
        add("build", build);
        add("text", write);
    }
    benchmark::Initialize(&argc, argv);
    tessel::bench::Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    printTable(documents, collector.seconds);
    return 0;
}
