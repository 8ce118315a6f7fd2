// How long it takes to gather the names in use in a dictionary and to judge them, per entity, for trees of
// different shapes and sizes.

#include "bench/Measure.h"
#include "documents/Findings.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "util/DictionaryUtil.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

/// A tree to be measured, and what it is called in the table.
struct Tree {
    std::string shape;
    int entities = 0;
    std::unique_ptr<TDmEntity> root;

    std::string title() const { return shape + ", " + std::to_string(entities) + " entities"; }
};

/// Entity number \a number: every name and alias stands once, each of its two variables in one of a hundred
/// groups.
TDmEntity *newEntity(int number)
{
    auto *entity = new TDmEntity;
    entity->setName(QStringLiteral("ENTITY_%1").arg(number));
    entity->setAlias(QStringLiteral("E%1").arg(number));
    for (int i = 0; i < 2; ++i) {
        auto *variable = new TDmVariable;
        variable->setName(QStringLiteral("V%1").arg(i));
        variable->setGroup(QStringLiteral("GROUP_%1").arg((number * 2 + i) % 100));
        entity->addVariables(variable);
    }
    return entity;
}

/// A tree of \a entities entities: number n stands below number parentOf(n), number 0 is the root.
template<typename ParentOf>
Tree treeOf(const std::string &shape, int entities, ParentOf &&parentOf)
{
    std::vector<TDmEntity *> made{newEntity(0)};
    for (int number = 1; number < entities; ++number) {
        made.push_back(newEntity(number));
        made[std::size_t(parentOf(number))]->getChildren()->append(made.back());
    }
    return {shape, entities, std::unique_ptr<TDmEntity>(made.front())};
}

constexpr int kChain = 400; // A document's objects and arrays stand at most 1024 deep in one another.
const int kSizes[] = {1'000, 10'000};

std::vector<Tree> allTrees()
{
    std::vector<Tree> trees;
    for (const int size : kSizes)
        trees.push_back(treeOf("wide", size, [](int) { return 0; }));
    for (const int size : kSizes)
        trees.push_back(treeOf("chains", size, [](int n) { return n % kChain == 1 ? 0 : n - 1; }));
    for (const int size : kSizes)
        trees.push_back(treeOf("mixed", size, [](int n) { return (n - 1) / 8; }));
    return trees;
}

template<typename Work>
void measure(benchmark::State &state, Work &&work)
{
    tessel::bench::measure(state, work, [] {});
}

void names(benchmark::State &state, TDmEntity *root)
{
    measure(state, [root] { return DictionaryUtil().getNamesEntitiesDictionary(root, {}); });
}

void aliases(benchmark::State &state, TDmEntity *root)
{
    measure(state, [root] { return DictionaryUtil().getAliasEntitiesDictionary(root, {}); });
}

void groups(benchmark::State &state, TDmEntity *root)
{
    measure(state, [root] { return DictionaryUtil().getGroupEntitiesDictionary(root, {}); });
}

void findings(benchmark::State &state, TDmEntity *root)
{
    measure(state, [root] { return tessel::documents::findingsIn(*root); });
}

struct Task {
    const char *name;
    void (*work)(benchmark::State &, TDmEntity *);
};
const Task kTasks[] = {{"names", names}, {"aliases", aliases}, {"groups", groups}, {"findings", findings}};

/// How much more an entity costs in the larger of two trees of one shape.
void printTable(const std::vector<Tree> &trees, std::map<std::string, double> &seconds)
{
    const auto perEntity = [&](const Task &task, const Tree &tree) {
        return seconds[task.name + (" " + tree.title())] * 1e9 / tree.entities;
    };
    for (std::size_t i = 0; i + 1 < trees.size(); i += 2) {
        for (const Task &task : kTasks) {
            tessel::bench::printRow(
                std::string(task.name) + " an entity, " + trees[i].shape + ", of 10,000 / of 1,000",
                perEntity(task, trees[i + 1]), perEntity(task, trees[i]), "ns");
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<Tree> trees = allTrees();
    for (const Tree &tree : trees) {
        for (const Task &task : kTasks) {
            benchmark::RegisterBenchmark(
                (task.name + (" " + tree.title())).c_str(), task.work, tree.root.get())
                ->UseManualTime()
                ->Unit(benchmark::kMicrosecond)
                ->Repetitions(3);
        }
    }
    benchmark::Initialize(&argc, argv);
    tessel::bench::Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    printTable(trees, collector.seconds);
    return 0;
}
