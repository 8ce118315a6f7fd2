// How long a drop, the check for variables that are there already and the warning of repeated names take, per
// variable, in a small and in a large entity.

#include "bench/Measure.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QMimeData>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

const int kSizes[] = {1'000, 20'000};

QList<TDmVariable *> newVariables(int count, const char *prefix)
{
    QList<TDmVariable *> variables;
    for (int i = 0; i < count; ++i) {
        auto *variable = new TDmVariable;
        variable->setName(QStringLiteral("%1%2").arg(QLatin1String(prefix)).arg(i));
        variable->setLabel(QStringLiteral("Answer to question number %1").arg(i));
        variable->setGroup(QStringLiteral("GROUP_%1").arg(i % 20));
        variables.append(variable);
    }
    return variables;
}

std::unique_ptr<TDmEntity> newEntity(int variables)
{
    auto entity = std::make_unique<TDmEntity>();
    entity->setName(QStringLiteral("PERSON"));
    for (TDmVariable *variable : newVariables(variables, "V"))
        entity->addVariables(variable);
    return entity;
}

/// What a drag of all fields of a dataset of \a count fields carries.
std::unique_ptr<QMimeData> newDrag(int count)
{
    std::vector<TDmSourceField> fields(static_cast<std::size_t>(count));
    QList<TDmSourceField *> list;
    for (int i = 0; i < count; ++i) {
        TDmSourceField &field = fields[std::size_t(i)];
        field.name = QStringLiteral("P%1_QUESTION").arg(i);
        field.label = QStringLiteral("Answer to question number %1").arg(i);
        field.fieldType = QStringLiteral("INTEGER");
        field.rangeMin = QStringLiteral("0");
        field.rangeMax = QStringLiteral("4");
        field.categories = QStringLiteral("0 None\t1 One\t2 Two or three\t4 More");
        list.append(&field);
    }
    const DatasetPropertiesFieldsModel model(nullptr, &list, QStringLiteral("*"));
    QModelIndexList cells;
    for (int row = 0; row < count; ++row) {
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column));
    }
    return std::unique_ptr<QMimeData>(model.mimeData(cells));
}

void drop(benchmark::State &state, int size)
{
    const std::unique_ptr<QMimeData> drag = newDrag(size);
    std::unique_ptr<TDmEntity> entity;
    std::unique_ptr<VariableDiccionaryModel> model;
    tessel::bench::measure(
        state, [&] { return model->dropMimeData(drag.get(), Qt::CopyAction, -1, -1, QModelIndex()); },
        [&] {
            model.reset();
            entity = newEntity(0);
            model = std::make_unique<VariableDiccionaryModel>(nullptr, entity.get(), entity.get());
            tessel::bench::settle();
        });
}

/// A few new variables against many that are there already, none of them equal.
void merge(benchmark::State &state, int size)
{
    std::unique_ptr<TDmEntity> entity;
    std::unique_ptr<VariableDiccionaryModel> model;
    QList<TDmVariable *> fresh;
    tessel::bench::measure(
        state,
        [&] {
            model->updateEntityVariables(&fresh);
            return entity->getVariables()->size();
        },
        [&] {
            model.reset();
            entity = newEntity(size);
            fresh = newVariables(50, "W");
            model = std::make_unique<VariableDiccionaryModel>(nullptr, entity.get(), entity.get());
            tessel::bench::settle();
        });
}

/// Without repeated names: a box would wait for an answer.
void warning(benchmark::State &state, int size)
{
    const std::unique_ptr<TDmEntity> entity = newEntity(size);
    VariableDiccionaryModel model(nullptr, entity.get(), entity.get());
    tessel::bench::measure(
        state,
        [&] {
            model.showDuplicatedNamesWarning();
            return true;
        },
        tessel::bench::settle);
}

struct Task {
    const char *name;
    void (*work)(benchmark::State &, int);
};
const Task kTasks[] = {{"drop", drop}, {"check for equal ones", merge}, {"repeated names", warning}};

std::string titleOf(const Task &task, int size) { return task.name + (" " + std::to_string(size)); }

void printTable(std::map<std::string, double> &seconds)
{
    for (const Task &task : kTasks) {
        const auto perItem = [&](int size) { return seconds[titleOf(task, size)] * 1e9 / size; };
        tessel::bench::printRow(std::string(task.name) + " a variable, of 20,000 / of 1,000",
            perItem(kSizes[1]), perItem(kSizes[0]), "ns", 1.3);
    }
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(ignoreMessage);
    for (const Task &task : kTasks) {
        for (const int size : kSizes) {
            benchmark::RegisterBenchmark(titleOf(task, size).c_str(), task.work, size)
                ->UseManualTime()
                ->Unit(benchmark::kMicrosecond)
                ->Repetitions(3);
        }
    }
    benchmark::Initialize(&argc, argv);
    tessel::bench::Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    printTable(collector.seconds);
    return 0;
}
