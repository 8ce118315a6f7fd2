#include "model/ConfigEntities.h"

#include "tests/model/Fields.h"

#include <QtTest>

#include <memory>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isPlainRecord<ConfigEntities>);
static_assert(
    std::is_same_v<decltype(&ConfigEntities::getVariables), QList<QString> *(ConfigEntities::*)() const>);
static_assert(std::is_same_v<decltype(&ConfigEntities::addVariables), void (ConfigEntities::*)(QString)>);

namespace {

const Fields<ConfigEntities> kFields = {
    field("name", &ConfigEntities::getName, &ConfigEntities::setName),
    field("recType", &ConfigEntities::getRecType, &ConfigEntities::setRecType),
    field("allVariables", &ConfigEntities::getAllVariables, &ConfigEntities::setAllVariables),
    field("checkSequence", &ConfigEntities::getCheckSequence, &ConfigEntities::setCheckSequence, true),
    field("createCompound", &ConfigEntities::getCreateCompound, &ConfigEntities::setCreateCompound),
    field("createSDC", &ConfigEntities::getCreateSDC, &ConfigEntities::setCreateSDC),
    field("checkDelete", &ConfigEntities::getCheckDelete, &ConfigEntities::setCheckDelete),
    field("checkSelectable", &ConfigEntities::getCheckSelectable, &ConfigEntities::setCheckSelectable),
};

QStringList names(const ConfigEntities &entity) { return QStringList(*entity.getVariables()); }

} // namespace

class tst_ConfigEntities : public QObject {
    Q_OBJECT

private slots:
    void onlyCheckSequenceIsSetToBeginWith()
    {
        const ConfigEntities entity;
        const QStringList expected = {"name: ", "recType: ", "allVariables: false", "checkSequence: true",
            "createCompound: false", "createSDC: false", "checkDelete: false", "checkSelectable: false"};
        QCOMPARE(kFields.describe(entity), expected);
        QCOMPARE(entity.getVariables(), nullptr);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void settingTheFieldsMakesNoVariableList()
    {
        ConfigEntities entity;
        kFields.fill(entity);
        QCOMPARE(entity.getVariables(), nullptr);
    }

    void theFirstVariableMakesTheList()
    {
        ConfigEntities entity;
        entity.addVariables("AGE");
        QVERIFY(entity.getVariables());
        QCOMPARE(names(entity), QStringList({"AGE"}));
        QCOMPARE(kFields.describe(entity), kFields.describeInitial());
    }

    void variablesKeepTheirOrderAndTheirRepeats()
    {
        ConfigEntities entity;
        for (const char *name : {"SEX", "AGE", "", "SEX", " age "})
            entity.addVariables(QString::fromLatin1(name));
        QCOMPARE(names(entity), QStringList({"SEX", "AGE", "", "SEX", " age "}));
    }

    void theListIsTheSectionsOwnAndNoCopy()
    {
        ConfigEntities entity;
        entity.addVariables("AGE");
        QList<QString> *const list = entity.getVariables();
        list->append("SEX");
        entity.addVariables("RACE");
        QCOMPARE(entity.getVariables(), list);
        QCOMPARE(names(entity), QStringList({"AGE", "SEX", "RACE"}));
        list->clear();
        QCOMPARE(entity.getVariables(), list);
        QCOMPARE(names(entity), QStringList());
    }

    void theNameIsTakenByValue()
    {
        ConfigEntities entity;
        QString name = "AGE";
        entity.addVariables(name);
        name += "X";
        QCOMPARE(names(entity), QStringList({"AGE"}));
        QCOMPARE(name, QStringLiteral("AGEX"));
    }

    void aCopyHasAListOfItsOwn()
    {
        ConfigEntities original;
        kFields.fill(original);
        original.addVariables("AGE");
        ConfigEntities copy = original;
        QCOMPARE(kFields.describe(copy), kFields.describeFilled());
        QVERIFY(copy.getVariables() != original.getVariables());
        copy.addVariables("SEX");
        original.getVariables()->prepend("RACE");
        QCOMPARE(names(original), QStringList({"RACE", "AGE"}));
        QCOMPARE(names(copy), QStringList({"AGE", "SEX"}));
    }

    void aCopyOutlivesItsOriginal()
    {
        auto original = std::make_unique<ConfigEntities>();
        original->addVariables("AGE");
        const ConfigEntities copy = *original;
        original.reset();
        QCOMPARE(names(copy), QStringList({"AGE"}));
    }

    void aCopyOfASectionWithoutAListHasNone()
    {
        const ConfigEntities original;
        const ConfigEntities copy = original;
        QCOMPARE(copy.getVariables(), nullptr);
    }

    void assignmentReplacesTheList()
    {
        ConfigEntities source;
        source.addVariables("AGE");
        ConfigEntities target;
        target.addVariables("SEX");
        target.addVariables("RACE");
        target = source;
        source.addVariables("TONGUE");
        QCOMPARE(names(target), QStringList({"AGE"}));
        const ConfigEntities &same = target;
        target = same;
        QCOMPARE(names(target), QStringList({"AGE"}));
        target = ConfigEntities();
        QCOMPARE(target.getVariables(), nullptr);
    }
};

QTEST_APPLESS_MAIN(tst_ConfigEntities)
#include "tst_ConfigEntities.moc"
