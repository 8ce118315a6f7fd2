#include "model/TDmSourceField.h"

#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isPlainRecord<TDmSourceField>);
// Not const, both of them: callers bind to these signatures.
static_assert(std::is_same_v<decltype(&TDmSourceField::getFieldType), QString (TDmSourceField::*)()>);
static_assert(std::is_same_v<decltype(&TDmSourceField::getDataProviderType), QString (TDmSourceField::*)()>);

namespace {

const Fields<TDmSourceField> kFields = {
    field("name", &TDmSourceField::name),
    field("label", &TDmSourceField::label),
    field("tag", &TDmSourceField::tag, 21),
    field("fieldType", &TDmSourceField::fieldType),
    field("dataProviderType", &TDmSourceField::dataProviderType),
    field("rangeMin", &TDmSourceField::rangeMin),
    field("rangeMax", &TDmSourceField::rangeMax),
    field("relativePosition", &TDmSourceField::relativePosition, 22),
    field("decimals", &TDmSourceField::decimals, 23),
    field("size", &TDmSourceField::size, 24),
    field("missing", &TDmSourceField::missing),
    field("notApp", &TDmSourceField::notApp),
    field("selection", &TDmSourceField::selection),
    field("categories", &TDmSourceField::categories),
};

} // namespace

class tst_TDmSourceField : public QObject {
    Q_OBJECT

private slots:
    void everyFieldIsEmptyOrZeroToBeginWith()
    {
        const TDmSourceField source;
        const QStringList expected = {"name: ", "label: ", "tag: 0",
            "fieldType: ", "dataProviderType: ", "rangeMin: ", "rangeMax: ", "relativePosition: 0",
            "decimals: 0", "size: 0", "missing: ", "notApp: ", "selection: ", "categories: "};
        QCOMPARE(kFields.describe(source), expected);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void theGettersGiveTheMembers()
    {
        TDmSourceField source;
        QCOMPARE(source.getFieldType(), QString());
        QCOMPARE(source.getDataProviderType(), QString());
        source.fieldType = "REAL";
        source.dataProviderType = "CSV";
        QCOMPARE(source.getFieldType(), QStringLiteral("REAL"));
        QCOMPARE(source.getDataProviderType(), QStringLiteral("CSV"));
    }

    void aCopyIsIndependent()
    {
        TDmSourceField original;
        kFields.fill(original);
        TDmSourceField copy = original;
        QCOMPARE(kFields.describe(copy), kFields.describeFilled());
        copy = TDmSourceField();
        QCOMPARE(kFields.describe(copy), kFields.describeInitial());
        QCOMPARE(kFields.describe(original), kFields.describeFilled());
    }
};

QTEST_APPLESS_MAIN(tst_TDmSourceField)
#include "tst_TDmSourceField.moc"
