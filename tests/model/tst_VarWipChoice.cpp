#include "model/VarWipChoice.h"

#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isPlainRecord<VarWipChoice>);

namespace {

const Fields<VarWipChoice> kFields = {
    field("dataProvider", &VarWipChoice::getDataProvider, &VarWipChoice::setDataProvider),
    field("field", &VarWipChoice::getField, &VarWipChoice::setField),
    field("recType", &VarWipChoice::getRecType, &VarWipChoice::setRecType),
    field("start", &VarWipChoice::getStart, &VarWipChoice::setStart, 31),
};

} // namespace

class tst_VarWipChoice : public QObject {
    Q_OBJECT

private slots:
    void everyFieldIsEmptyOrZeroToBeginWith()
    {
        const VarWipChoice choice;
        QCOMPARE(
            kFields.describe(choice), QStringList({"dataProvider: ", "field: ", "recType: ", "start: 0"}));
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void aCopyIsIndependent()
    {
        VarWipChoice original;
        kFields.fill(original);
        VarWipChoice copy = original;
        QCOMPARE(kFields.describe(copy), kFields.describeFilled());
        copy = VarWipChoice();
        QCOMPARE(kFields.describe(copy), kFields.describeInitial());
        QCOMPARE(kFields.describe(original), kFields.describeFilled());
    }
};

QTEST_APPLESS_MAIN(tst_VarWipChoice)
#include "tst_VarWipChoice.moc"
