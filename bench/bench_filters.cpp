// What a keystroke in a search field and a click on a column header cost, held against Qt's own proxy over
// the same rows with the same pattern.

#include "bench/Measure.h"
#include "business/models/VarRangeModel.h"
#include "business/models/VarRangeProxyModel.h"
#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/VariableModel.h"
#include "business/models/VariableModelDownStep4.h"
#include "business/models/VariablesDatasetProxyModel.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "business/models/VariablesProxyModel.h"
#include "business/models/VariablesProxyModelDownStep4.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QIdentityProxyModel>

#include <clocale>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kRows = 100'000;

/// Words in an order that is neither sorted nor the same for two texts.
QString labelOf(int number)
{
    static const char *const words[] = {"Age", "Sex", "Relation", "Education", "Water supply", "Income",
        "Country of birth", "Marital status", "Occupation", "Year"};
    const int mixed = int((qint64(number) * 7919) % 100'003);
    return QStringLiteral("%1 of person, question %2").arg(QLatin1String(words[mixed % 10])).arg(mixed);
}

std::unique_ptr<TDmEntity> newEntity()
{
    auto entity = std::make_unique<TDmEntity>();
    entity->setName(QStringLiteral("PERSON"));
    for (int i = 0; i < kRows; ++i) {
        auto *variable = new TDmVariable;
        variable->setName(QStringLiteral("P%1").arg((qint64(i) * 7919) % 100'003));
        variable->setAlias(QStringLiteral("QUESTION_%1").arg(i % 977));
        variable->setLabel(labelOf(i));
        variable->setGroup(QStringLiteral("GROUP_%1").arg(i % 20));
        variable->setTag(i);
        entity->addVariables(variable);
    }
    return entity;
}

std::unique_ptr<TDmVariable> newVariable()
{
    auto variable = std::make_unique<TDmVariable>();
    variable->setVarType(QStringLiteral("INTEGER"));
    for (int i = 0; i < kRows; ++i) {
        auto *element = new ValueLabelElement;
        element->setValue(QString::number((qint64(i) * 7919) % 100'003));
        element->setLabel(labelOf(i));
        variable->addValueLabelElement(element);
        auto *range = new Range;
        range->setRangeMin(i);
        range->setRangeMax((qint64(i) * 7919) % 100'003);
        variable->getMetadataVariables()->addItemRange(range);
    }
    return variable;
}

/// Shows the first columns of a source, so that Qt's proxy searches no more of them than ours.
class FirstColumns : public QIdentityProxyModel {
public:
    FirstColumns(QAbstractItemModel *source, int columns)
        : shown(columns)
    {
        setSourceModel(source);
    }
    int columnCount(const QModelIndex & = QModelIndex()) const override { return shown; }

private:
    int shown;
};

/// The filter over variables without its rule for at signs.
class WithoutToken : public VariablesProxyModel {
public:
    using VariablesProxyModel::VariablesProxyModel;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override
    {
        const QVariant leftData = sourceModel()->data(left, Qt::DisplayRole);
        const QVariant rightData = sourceModel()->data(right, Qt::DisplayRole);
        if (leftData.userType() == QMetaType::QDateTime)
            return leftData.toDateTime() < rightData.toDateTime();
        return QString::localeAwareCompare(leftData.toString(), rightData.toString()) < 0;
    }
};

/// One figure: what is measured, ours and its peer.
struct Comparison {
    std::string title;
    QSortFilterProxyModel *ours;
    QSortFilterProxyModel *peer;
    int column; ///< Sorted by; -1: filtered by \a pattern.
    QString pattern;
    double limit;
};

void work(benchmark::State &state, QSortFilterProxyModel *proxy, const Comparison &comparison)
{
    const auto once = [&] {
        if (comparison.column < 0)
            proxy->setFilterRegExp(QRegExp(comparison.pattern, Qt::CaseInsensitive));
        else
            proxy->sort(comparison.column);
        return proxy->rowCount();
    };
    const auto reset = [&] {
        if (comparison.column < 0)
            proxy->setFilterRegExp(QRegExp());
        else
            proxy->sort(-1);
    };
    tessel::bench::measure(state, once, reset);
    reset();
}

bool isSameResult(const Comparison &c)
{
    const auto rowsOf = [&c](QSortFilterProxyModel *proxy) {
        proxy->setFilterRegExp(c.column < 0 ? QRegExp(c.pattern, Qt::CaseInsensitive) : QRegExp());
        proxy->sort(c.column);
        std::vector<int> rows;
        for (int row = 0; row < proxy->rowCount(); ++row)
            rows.push_back(proxy->mapToSource(proxy->index(row, 0)).row());
        proxy->setFilterRegExp(QRegExp());
        proxy->sort(-1);
        return rows;
    };
    return rowsOf(c.ours) == rowsOf(c.peer);
}

} // namespace

int main(int argc, char **argv)
{
    std::setlocale(LC_ALL, "");
    const std::unique_ptr<TDmEntity> entity = newEntity();
    const std::unique_ptr<TDmVariable> variable = newVariable();
    VariableDiccionaryModel table(nullptr, entity.get(), entity.get());
    VariableModel runList(nullptr, entity.get(), entity->getVariables());
    VariableModelDownStep4 shortList(nullptr, entity.get(), entity->getVariables());
    VarValueLabelDiccionaryModel labels(nullptr, variable.get());
    VarRangeModel ranges(nullptr, variable.get());
    FirstColumns firstFour(&runList, 4);

    std::vector<std::unique_ptr<QSortFilterProxyModel>> proxies;
    const auto over = [&proxies](QSortFilterProxyModel *proxy, QAbstractItemModel *source) {
        proxies.emplace_back(proxy);
        proxy->setDynamicSortFilter(false);
        proxy->setSourceModel(source);
        return proxy;
    };
    const auto stock = [&over](QAbstractItemModel *source) {
        QSortFilterProxyModel *proxy = over(new QSortFilterProxyModel, source);
        proxy->setFilterKeyColumn(-1);
        proxy->setSortLocaleAware(true);
        return proxy;
    };
    struct Pair {
        const char *name;
        QSortFilterProxyModel *ours;
        QSortFilterProxyModel *peer;
    };
    QSortFilterProxyModel *runFilter = over(new VariablesProxyModel(nullptr), &firstFour);
    const Pair pairs[] = {
        {"dictionary table", over(new VariablesDictionaryProxyModel(nullptr), &table), stock(&table)},
        {"run list", runFilter, stock(&firstFour)},
        {"dataset", over(new VariablesDatasetProxyModel(nullptr), &shortList), stock(&shortList)},
        {"download list", over(new VariablesProxyModelDownStep4(nullptr), &shortList), stock(&shortList)},
        {"value labels", over(new VarValueLabelDiccionaryProxyModel(nullptr), &labels), stock(&labels)},
        {"ranges", over(new VarRangeProxyModel(nullptr), &ranges), stock(&ranges)},
    };
    std::vector<Comparison> comparisons;
    for (const Pair &pair : pairs) {
        for (const char *pattern : {"7", "AGE", "NO SUCH TEXT", "1[0-9]+2$"})
            comparisons.push_back({std::string("filter ") + pair.name + " \"" + pattern + '"', pair.ours,
                pair.peer, -1, QLatin1String(pattern), 1.2});
    }
    comparisons.push_back(
        {"sort dictionary table by label", pairs[0].ours, pairs[0].peer, 2, QString(), 1.2});
    comparisons.push_back({"sort run list by label", pairs[1].ours, pairs[1].peer, 1, QString(), 1.2});
    comparisons.push_back({"sort download list by label", pairs[3].ours, pairs[3].peer, 1, QString(), 1.2});
    comparisons.push_back({"sort run list by label, token rule", pairs[1].ours,
        over(new WithoutToken(nullptr), &firstFour), 1, QString(), 1.05});

    for (const Comparison &comparison : comparisons) {
        if (!isSameResult(comparison)) {
            std::fprintf(stderr, "%s: the two do not give the same rows\n", comparison.title.c_str());
            return 1;
        }
        for (const bool isOurs : {true, false}) {
            benchmark::RegisterBenchmark((comparison.title + (isOurs ? " ours" : " peer")).c_str(),
                [&comparison, isOurs](benchmark::State &state) {
                    work(state, isOurs ? comparison.ours : comparison.peer, comparison);
                })
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Repetitions(3);
        }
    }
    benchmark::Initialize(&argc, argv);
    tessel::bench::Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    for (const Comparison &comparison : comparisons) {
        const double ours = collector.seconds[comparison.title + " ours"];
        const double peer = collector.seconds[comparison.title + " peer"];
        tessel::bench::printRow(comparison.title, ours * 1e3, peer * 1e3, "ms", comparison.limit);
    }
    return 0;
}
