#include "model/TDmLookup.h"

#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isPlainRecord<TDmLookup>);
static_assert(std::is_same_v<decltype(&TDmLookup::id), QString TDmLookup::*>);
static_assert(std::is_same_v<decltype(&TDmLookup::label), QString TDmLookup::*>);
static_assert(std::is_same_v<decltype(&TDmLookup::getId), QString (TDmLookup::*)() const>);
static_assert(std::is_same_v<decltype(&TDmLookup::getLabel), QString (TDmLookup::*)() const>);

namespace {

const Fields<TDmLookup> kFields = {
    field("id", &TDmLookup::id),
    field("label", &TDmLookup::label),
};

} // namespace

class tst_TDmLookup : public QObject {
    Q_OBJECT

private slots:
    void bothTextsAreEmptyToBeginWith()
    {
        const TDmLookup table;
        QCOMPARE(kFields.describe(table), QStringList({"id: ", "label: "}));
        QCOMPARE(table.getId(), QString());
        QCOMPARE(table.getLabel(), QString());
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void theGettersGiveTheMembers()
    {
        TDmLookup table;
        table.id = "OCC";
        table.label = "Occupations";
        QCOMPARE(table.getId(), QStringLiteral("OCC"));
        QCOMPARE(table.getLabel(), QStringLiteral("Occupations"));
    }

    void aCopyIsIndependent()
    {
        TDmLookup original;
        kFields.fill(original);
        TDmLookup copy = original;
        QCOMPARE(kFields.describe(copy), kFields.describeFilled());
        copy = TDmLookup();
        QCOMPARE(kFields.describe(copy), kFields.describeInitial());
        QCOMPARE(kFields.describe(original), kFields.describeFilled());
    }
};

QTEST_APPLESS_MAIN(tst_TDmLookup)
#include "tst_TDmLookup.moc"
