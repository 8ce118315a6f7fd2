#include "business/models/VariablesDictionaryProxyModel.h"

#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableProxyContract.h"
#include "tests/business/models/VariableRows.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QSortFilterProxyModel, VariablesDictionaryProxyModel>);
static_assert(std::is_constructible_v<VariablesDictionaryProxyModel, QObject *>);
static_assert(std::is_convertible_v<decltype(&VariablesDictionaryProxyModel::setFilterMinimumDate),
    void (VariablesDictionaryProxyModel::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesDictionaryProxyModel::setFilterMaximumDate),
    void (VariablesDictionaryProxyModel::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesDictionaryProxyModel::dateInRange),
    bool (VariablesDictionaryProxyModel::*)(QDate) const>);

class tst_VariablesDictionaryProxyModel : public VariableProxyContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenVariableProxy> open() const override
    {
        return std::make_unique<OpenProxy<VariablesDictionaryProxyModel>>();
    }
    VariableProxyFacts facts() const override { return {5, true}; }

private slots:
    void theProxyBelongsToItsParent()
    {
        QObject owner;
        const auto *proxy = new VariablesDictionaryProxyModel(&owner);
        QCOMPARE(proxy->QObject::parent(), &owner);
        QVERIFY(!proxy->sourceModel());
        QVERIFY(proxy->dateInRange(QDate(2020, 1, 1)));
    }

    void aMatchInTheFifthColumnAloneKeepsTheRow()
    {
        CellTable source(6);
        source.addAt(4, "Age");
        source.addAt(5, "Age");
        VariablesDictionaryProxyModel proxy(nullptr);
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
        VariablesDictionaryProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.sort(0);
        QCOMPARE(columnTexts(proxy), QStringList({"9", "10", "100"}));
    }
};

QTEST_MAIN(tst_VariablesDictionaryProxyModel)
#include "tst_VariablesDictionaryProxyModel.moc"
