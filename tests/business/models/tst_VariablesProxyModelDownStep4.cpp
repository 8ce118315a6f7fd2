#include "business/models/VariablesProxyModelDownStep4.h"

#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableProxyContract.h"
#include "tests/business/models/VariableRows.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QSortFilterProxyModel, VariablesProxyModelDownStep4>);
static_assert(std::is_constructible_v<VariablesProxyModelDownStep4, QObject *>);
static_assert(std::is_convertible_v<decltype(&VariablesProxyModelDownStep4::setFilterMinimumDate),
    void (VariablesProxyModelDownStep4::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesProxyModelDownStep4::setFilterMaximumDate),
    void (VariablesProxyModelDownStep4::*)(QDate)>);
static_assert(std::is_convertible_v<decltype(&VariablesProxyModelDownStep4::dateInRange),
    bool (VariablesProxyModelDownStep4::*)(QDate) const>);

class tst_VariablesProxyModelDownStep4 : public VariableProxyContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenVariableProxy> open() const override
    {
        return std::make_unique<OpenProxy<VariablesProxyModelDownStep4>>();
    }
    VariableProxyFacts facts() const override { return {3, false}; }

private slots:
    void theProxyBelongsToItsParent()
    {
        QObject owner;
        const auto *proxy = new VariablesProxyModelDownStep4(&owner);
        QCOMPARE(proxy->QObject::parent(), &owner);
        QVERIFY(!proxy->sourceModel());
        QVERIFY(proxy->dateInRange(QDate(2020, 1, 1)));
    }

    void aMatchInTheFourthColumnAloneDoesNotKeepTheRow()
    {
        CellTable source(6);
        source.addAt(2, "Age");
        source.addAt(3, "Age");
        VariablesProxyModelDownStep4 proxy(nullptr);
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
        VariablesProxyModelDownStep4 proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.sort(0);
        QCOMPARE(columnTexts(proxy), QStringList({"10", "100", "9"}));
    }
};

QTEST_MAIN(tst_VariablesProxyModelDownStep4)
#include "tst_VariablesProxyModelDownStep4.moc"
