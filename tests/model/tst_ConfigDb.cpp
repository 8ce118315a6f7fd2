#include "model/ConfigDb.h"

#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isPlainRecord<ConfigDb>);

namespace {

const Fields<ConfigDb> kFields = {
    field("name", &ConfigDb::getName, &ConfigDb::setName),
    field("folder", &ConfigDb::getFolder, &ConfigDb::setFolder),
    field("sourceFile", &ConfigDb::getSourceFile, &ConfigDb::setSourceFile),
    field("filter", &ConfigDb::getFilter, &ConfigDb::setFilter),
    field("selectFilter", &ConfigDb::getSelectFilter, &ConfigDb::setSelectFilter),
    field("fileFilter", &ConfigDb::getFileFilter, &ConfigDb::setFileFilter),
    field("project", &ConfigDb::getProject, &ConfigDb::setProject),
};

} // namespace

class tst_ConfigDb : public QObject {
    Q_OBJECT

private slots:
    void everyTextIsEmptyToBeginWith()
    {
        const ConfigDb database;
        const QStringList expected = {
            "name: ", "folder: ", "sourceFile: ", "filter: ", "selectFilter: ", "fileFilter: ", "project: "};
        QCOMPARE(kFields.describe(database), expected);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void aCopyIsIndependent()
    {
        ConfigDb original;
        kFields.fill(original);
        ConfigDb copy = original;
        QCOMPARE(kFields.describe(copy), kFields.describeFilled());
        copy = ConfigDb();
        QCOMPARE(kFields.describe(copy), kFields.describeInitial());
        QCOMPARE(kFields.describe(original), kFields.describeFilled());
    }
};

QTEST_APPLESS_MAIN(tst_ConfigDb)
#include "tst_ConfigDb.moc"
