#include "business/models/VariablesProxyModel.h"

#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableProxyContract.h"
#include "tests/business/models/VariableRows.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QSortFilterProxyModel, VariablesProxyModel>);
static_assert(std::is_constructible_v<VariablesProxyModel, QObject *>);
static_assert(std::is_convertible_v<decltype(&VariablesProxyModel::setFilterMinimumDate),
    void (VariablesProxyModel::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesProxyModel::setFilterMaximumDate),
    void (VariablesProxyModel::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesProxyModel::dateInRange),
    bool (VariablesProxyModel::*)(QDate) const>);

class tst_VariablesProxyModel : public VariableProxyContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenVariableProxy> open() const override
    {
        return std::make_unique<OpenProxy<VariablesProxyModel>>();
    }
    VariableProxyFacts facts() const override { return {4, false}; }

private slots:
    void theProxyBelongsToItsParent()
    {
        QObject owner;
        const auto *proxy = new VariablesProxyModel(&owner);
        QCOMPARE(proxy->QObject::parent(), &owner);
        QVERIFY(!proxy->sourceModel());
        QVERIFY(proxy->dateInRange(QDate(2020, 1, 1)));
    }

    void aMatchInTheFifthColumnAloneDoesNotKeepTheRow()
    {
        CellTable source(6);
        source.addAt(3, "Age");
        source.addAt(4, "Age");
        VariablesProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.setFilterRegExp(QRegExp("AGE"));
        QCOMPARE(proxy.rowCount(), 1);
        QCOMPARE(proxy.mapToSource(proxy.index(0, 0)).row(), 0);
    }

    void wholeNumbersAreSortedAsTexts()
    {
        CellTable source(6);
        for (const int number : {10, 9, 100})
            source.add({number});
        VariablesProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.sort(0);
        QCOMPARE(columnTexts(proxy), QStringList({"10", "100", "9"}));
    }
};

QTEST_MAIN(tst_VariablesProxyModel)
#include "tst_VariablesProxyModel.moc"
