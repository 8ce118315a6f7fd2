#include "business/models/VariablesDatasetProxyModel.h"

#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableProxyContract.h"
#include "tests/business/models/VariableRows.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QSortFilterProxyModel, VariablesDatasetProxyModel>);
static_assert(std::is_constructible_v<VariablesDatasetProxyModel, QObject *>);
static_assert(std::is_convertible_v<decltype(&VariablesDatasetProxyModel::setFilterMinimumDate),
    void (VariablesDatasetProxyModel::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesDatasetProxyModel::setFilterMaximumDate),
    void (VariablesDatasetProxyModel::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesDatasetProxyModel::dateInRange),
    bool (VariablesDatasetProxyModel::*)(QDate) const>);

class tst_VariablesDatasetProxyModel : public VariableProxyContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenVariableProxy> open() const override
    {
        return std::make_unique<OpenProxy<VariablesDatasetProxyModel>>();
    }
    VariableProxyFacts facts() const override { return {3, true}; }

private slots:
    void theProxyBelongsToItsParent()
    {
        QObject owner;
        const auto *proxy = new VariablesDatasetProxyModel(&owner);
        QCOMPARE(proxy->QObject::parent(), &owner);
        QVERIFY(!proxy->sourceModel());
        QVERIFY(proxy->dateInRange(QDate(2020, 1, 1)));
    }

    void aMatchInTheFourthColumnAloneDoesNotKeepTheRow()
    {
        CellTable source(6);
        source.addAt(2, "Age");
        source.addAt(3, "Age");
        VariablesDatasetProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.setFilterRegExp(QRegExp("AGE"));
        QCOMPARE(proxy.rowCount(), 1);
        QCOMPARE(proxy.mapToSource(proxy.index(0, 0)).row(), 0);
    }

    void wholeNumbersAreSortedAsNumbers()
    {
        CellTable source(6);
        for (const int number : {10, 9, 100})
            source.add({number});
        VariablesDatasetProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.sort(0);
        QCOMPARE(columnTexts(proxy), QStringList({"9", "10", "100"}));
    }
};

QTEST_MAIN(tst_VariablesDatasetProxyModel)
#include "tst_VariablesDatasetProxyModel.moc"
