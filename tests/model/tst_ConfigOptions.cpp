#include "model/ConfigOptions.h"

#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isPlainRecord<ConfigOptions>);

namespace {

const Fields<ConfigOptions> kFields = {
    field("createNotAppMissingInRange", &ConfigOptions::getCreateNotAppMissingInRange,
        &ConfigOptions::setCreateNotAppMissingInRange),
    field("createNoRanges", &ConfigOptions::getCreateNoRanges, &ConfigOptions::setCreateNoRanges),
};

} // namespace

class tst_ConfigOptions : public QObject {
    Q_OBJECT

private slots:
    void bothSwitchesAreOffToBeginWith()
    {
        const ConfigOptions options;
        const QStringList expected = {"createNotAppMissingInRange: false", "createNoRanges: false"};
        QCOMPARE(kFields.describe(options), expected);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void aCopyIsIndependent()
    {
        ConfigOptions original;
        kFields.fill(original);
        ConfigOptions copy = original;
        QCOMPARE(kFields.describe(copy), kFields.describeFilled());
        copy = ConfigOptions();
        QCOMPARE(kFields.describe(copy), kFields.describeInitial());
        QCOMPARE(kFields.describe(original), kFields.describeFilled());
    }
};

QTEST_APPLESS_MAIN(tst_ConfigOptions)
#include "tst_ConfigOptions.moc"
