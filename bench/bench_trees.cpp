// The entity tree in a view, against the same tree of Qt's own items in the same view, and what renaming an
// entity costs, in small and in large trees.

#include "bench/Measure.h"
#include "business/models/DictionaryTreeModel.h"
#include "model/TDmEntity.h"

#include <QApplication>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTreeView>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kChildren = 8;
const int kSizes[] = {1'000, 10'000, 50'000};
constexpr int kSteps = 20; // How often a view is scrolled or another row chosen.

QString nameOf(int number) { return QStringLiteral("ENTITY_%1").arg(number); }

/// A tree of \a entities entities, each with up to eight below it.
std::unique_ptr<TDmEntity> newTree(int entities)
{
    auto root = std::make_unique<TDmEntity>();
    root->setName(nameOf(0));
    root->setLevel(1);
    std::vector<TDmEntity *> made{root.get()};
    for (int number = 1; number < entities; ++number) {
        auto *entity = new TDmEntity;
        entity->setName(nameOf(number));
        TDmEntity *above = made[std::size_t((number - 1) / kChildren)];
        entity->setLevel(above->getLevel() + 1);
        above->getChildren()->append(entity);
        made.push_back(entity);
    }
    return root;
}

/// The same tree of Qt's own items.
std::unique_ptr<QStandardItemModel> newItems(int entities)
{
    auto model = std::make_unique<QStandardItemModel>();
    std::vector<QStandardItem *> made{new QStandardItem(nameOf(0))};
    model->appendRow(made.front());
    for (int number = 1; number < entities; ++number) {
        auto *item = new QStandardItem(nameOf(number));
        made[std::size_t((number - 1) / kChildren)]->appendRow(item);
        made.push_back(item);
    }
    return model;
}

/// Both models of one size, with the entities of ours.
struct Models {
    explicit Models(int entities)
        : size(entities)
        , root(newTree(entities))
        , ours(std::make_unique<DictionaryTreeModel>(nullptr, root.get()))
        , peer(newItems(entities))
    {
    }

    int size;
    std::unique_ptr<TDmEntity> root;
    std::unique_ptr<QAbstractItemModel> ours;
    std::unique_ptr<QAbstractItemModel> peer;
};

/// A view on the screen that shows \a model.
std::unique_ptr<QTreeView> newView(QAbstractItemModel *model)
{
    auto view = std::make_unique<QTreeView>();
    view->setUniformRowHeights(true);
    view->resize(400, 600);
    view->setModel(model);
    view->show();
    QApplication::processEvents();
    return view;
}

bool expand(QTreeView &view)
{
    view.expandAll();
    QApplication::processEvents();
    return true;
}

bool scroll(QTreeView &view)
{
    QScrollBar *bar = view.verticalScrollBar();
    for (int step = 1; step <= kSteps; ++step) {
        bar->setValue(int(qint64(bar->maximum()) * step / kSteps));
        view.viewport()->repaint();
    }
    return true;
}

bool select(QTreeView &view)
{
    QModelIndex index = view.model()->index(0, 0);
    for (int step = 0; step < kSteps && index.isValid(); ++step) {
        view.setCurrentIndex(index);
        index = view.indexBelow(index);
    }
    QApplication::processEvents();
    return true;
}

struct Task {
    const char *name;
    bool (*work)(QTreeView &);
    bool isExpanded; ///< Before the clock starts.
};
const Task kTasks[] = {
    {"expand all", expand, false}, {"scroll through", scroll, true}, {"select 20 rows", select, true}};

void show(benchmark::State &state, const Task &task, QAbstractItemModel *model)
{
    std::unique_ptr<QTreeView> view;
    tessel::bench::measure(
        state, [&] { return task.work(*view); },
        [&] {
            view = newView(model);
            if (task.isExpanded)
                expand(*view);
        });
}

/// To and fro, so that every round finds another name.
void rename(benchmark::State &state, const Models &models)
{
    const QModelIndex index = models.ours->index(0, 0);
    bool isOther = false;
    tessel::bench::measure(
        state,
        [&] {
            isOther = !isOther;
            const QString name = isOther ? QStringLiteral("OTHER") : nameOf(0);
            if (!models.ours->setData(index, name, Qt::EditRole))
                std::abort();
            return true;
        },
        [] {});
}

std::string titleOf(const char *task, const char *whose, int size)
{
    return std::string(task) + ' ' + whose + ' ' + std::to_string(size);
}

void printTable(std::map<std::string, double> &seconds)
{
    using tessel::bench::printRow;
    for (const Task &task : kTasks) {
        const auto of = [&](const char *whose, int size) { return seconds[titleOf(task.name, whose, size)]; };
        for (const int size : kSizes) {
            printRow(std::string(task.name) + ", tree of " + std::to_string(size) + " / Qt's own items",
                of("ours", size) * 1e3, of("peer", size) * 1e3, "ms");
        }
        printRow(std::string(task.name) + " an entity, of 50,000 / of 1,000",
            of("ours", 50'000) * 1e9 / 50'000, of("ours", 1'000) * 1e9 / 1'000, "ns");
    }
    const auto perEntity = [&](int size) { return seconds[titleOf("rename", "ours", size)] * 1e9 / size; };
    printRow("rename an entity, by entities judged, of 10,000 / of 1,000", perEntity(10'000),
        perEntity(1'000), "ns", 1.3);
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    qInstallMessageHandler(ignoreMessage);
    std::vector<std::unique_ptr<Models>> all;
    const auto add = [](const std::string &title, const auto &work) {
        benchmark::RegisterBenchmark(title.c_str(), work)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(5)
            ->Repetitions(3);
    };
    for (const int size : kSizes) {
        all.push_back(std::make_unique<Models>(size));
        const Models *models = all.back().get();
        for (const Task &task : kTasks) {
            add(titleOf(task.name, "ours", size),
                [&task, models](benchmark::State &state) { show(state, task, models->ours.get()); });
            add(titleOf(task.name, "peer", size),
                [&task, models](benchmark::State &state) { show(state, task, models->peer.get()); });
        }
        add(titleOf("rename", "ours", size), [models](benchmark::State &state) { rename(state, *models); });
    }
    benchmark::Initialize(&argc, argv);
    tessel::bench::Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    printTable(collector.seconds);
    return 0;
}
