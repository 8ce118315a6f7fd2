#include "model/Config.h"

#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"
#include "tests/model/Fields.h"

#include <QtTest>

static_assert(tessel::test::isNeitherCopiedNorMoved<Config>);
static_assert(!std::is_polymorphic_v<Config>);
static_assert(std::is_same_v<decltype(&Config::getDataBase), ConfigDb *(Config::*)() const>);
static_assert(std::is_same_v<decltype(&Config::setDataBase), void (Config::*)(ConfigDb *)>);
static_assert(std::is_same_v<decltype(&Config::getEntities), QList<ConfigEntities *> *(Config::*)() const>);
static_assert(std::is_same_v<decltype(&Config::setEntities), void (Config::*)(QList<ConfigEntities *> *)>);
static_assert(std::is_same_v<decltype(&Config::getOptions), ConfigOptions *(Config::*)() const>);
static_assert(std::is_same_v<decltype(&Config::setOptions), void (Config::*)(ConfigOptions *)>);

namespace {

ConfigDb *newDatabase(const QString &name)
{
    auto *database = new ConfigDb;
    database->setName(name);
    return database;
}

ConfigEntities *newEntity(const QString &name)
{
    auto *entity = new ConfigEntities;
    entity->setName(name);
    entity->addVariables(name + QStringLiteral("_CODE"));
    return entity;
}

ConfigOptions *newOptions(bool noRanges)
{
    auto *options = new ConfigOptions;
    options->setCreateNoRanges(noRanges);
    return options;
}

QStringList names(const Config &config)
{
    QStringList all;
    for (const ConfigEntities *entity : qAsConst(*config.getEntities()))
        all += entity->getName();
    return all;
}

} // namespace

// What is replaced or left when the configuration goes is freed: the leak checker counts.
class tst_Config : public QObject {
    Q_OBJECT

private slots:
    void aFreshConfigurationHasItsThreeSectionsEmpty()
    {
        const Config config;
        QVERIFY(config.getDataBase());
        QVERIFY(config.getEntities());
        QVERIFY(config.getOptions());
        QCOMPARE(config.getDataBase()->getName(), QString());
        QCOMPARE(config.getEntities()->size(), 0);
        QCOMPARE(config.getOptions()->getCreateNoRanges(), false);
        QCOMPARE(config.getOptions()->getCreateNotAppMissingInRange(), false);
    }

    void twoConfigurationsShareNothing()
    {
        const Config one;
        const Config other;
        QVERIFY(one.getDataBase() != other.getDataBase());
        QVERIFY(one.getEntities() != other.getEntities());
        QVERIFY(one.getOptions() != other.getOptions());
    }

    void theSectionsAreHandedOutToBeChanged()
    {
        Config config;
        config.getDataBase()->setName("CENSUS");
        config.getEntities()->append(newEntity("PERSON"));
        config.getOptions()->setCreateNoRanges(true);
        QCOMPARE(config.getDataBase()->getName(), QStringLiteral("CENSUS"));
        QCOMPARE(names(config), QStringList({"PERSON"}));
        QCOMPARE(config.getOptions()->getCreateNoRanges(), true);
    }

    void eachSetterReplacesItsOwnSectionAlone()
    {
        Config config;
        ConfigDb *const firstDatabase = config.getDataBase();
        QList<ConfigEntities *> *const firstEntities = config.getEntities();
        ConfigOptions *const firstOptions = config.getOptions();

        ConfigDb *const database = newDatabase("CENSUS");
        config.setDataBase(database);
        QCOMPARE(config.getDataBase(), database);
        QCOMPARE(config.getEntities(), firstEntities);
        QCOMPARE(config.getOptions(), firstOptions);

        auto *const entities = new QList<ConfigEntities *>({newEntity("PERSON")});
        config.setEntities(entities);
        QCOMPARE(config.getDataBase(), database);
        QCOMPARE(config.getEntities(), entities);
        QCOMPARE(config.getOptions(), firstOptions);

        ConfigOptions *const options = newOptions(true);
        config.setOptions(options);
        QCOMPARE(config.getDataBase(), database);
        QCOMPARE(config.getEntities(), entities);
        QCOMPARE(config.getOptions(), options);
        QVERIFY(database != firstDatabase);
    }

    void settingASectionTwiceLeavesTheSecond()
    {
        Config config;
        config.setDataBase(newDatabase("FIRST"));
        config.setDataBase(newDatabase("SECOND"));
        QCOMPARE(config.getDataBase()->getName(), QStringLiteral("SECOND"));

        config.setEntities(new QList<ConfigEntities *>({newEntity("A"), newEntity("B")}));
        config.setEntities(new QList<ConfigEntities *>({newEntity("C")}));
        QCOMPARE(names(config), QStringList({"C"}));

        config.setOptions(newOptions(true));
        config.setOptions(newOptions(false));
        QCOMPARE(config.getOptions()->getCreateNoRanges(), false);
    }

    void handingBackWhatIsHeldChangesNothing()
    {
        Config config;
        config.setDataBase(newDatabase("CENSUS"));
        config.setEntities(new QList<ConfigEntities *>({newEntity("A"), newEntity("B")}));
        config.setOptions(newOptions(true));
        config.setDataBase(config.getDataBase());
        config.setEntities(config.getEntities());
        config.setOptions(config.getOptions());
        QCOMPARE(config.getDataBase()->getName(), QStringLiteral("CENSUS"));
        QCOMPARE(names(config), QStringList({"A", "B"}));
        QCOMPARE(config.getOptions()->getCreateNoRanges(), true);
    }

    void aChangedCopyOfTheEntityListMayBeHandedBack_data()
    {
        QTest::addColumn<QVector<int>>("kept");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("the same entities") << QVector<int>{0, 1, 2} << QStringList{"A", "B", "C", "NEW"};
        QTest::newRow("one entity left out") << QVector<int>{0, 2} << QStringList{"A", "C", "NEW"};
        QTest::newRow("another order") << QVector<int>{2, 0, 1} << QStringList{"C", "A", "B", "NEW"};
        QTest::newRow("all entities left out") << QVector<int>{} << QStringList{"NEW"};
    }
    void aChangedCopyOfTheEntityListMayBeHandedBack()
    {
        QFETCH(QVector<int>, kept);
        QFETCH(QStringList, expected);
        Config config;
        *config.getEntities() = {newEntity("A"), newEntity("B"), newEntity("C")};
        auto *changed = new QList<ConfigEntities *>;
        for (const int row : qAsConst(kept))
            changed->append(config.getEntities()->at(row));
        changed->append(newEntity("NEW"));
        config.setEntities(changed);
        QCOMPARE(config.getEntities(), changed);
        QCOMPARE(names(config), expected);
        for (const ConfigEntities *entity : qAsConst(*changed))
            QCOMPARE(*entity->getVariables(), QStringList(entity->getName() + QStringLiteral("_CODE")));
    }

    void nullSectionsAreKeptAndCanBeReplaced()
    {
        Config config;
        config.getEntities()->append(newEntity("A"));
        config.setDataBase(nullptr);
        config.setEntities(nullptr);
        config.setOptions(nullptr);
        QCOMPARE(config.getDataBase(), nullptr);
        QCOMPARE(config.getEntities(), nullptr);
        QCOMPARE(config.getOptions(), nullptr);
        config.setDataBase(newDatabase("CENSUS"));
        config.setEntities(new QList<ConfigEntities *>({newEntity("B")}));
        config.setOptions(newOptions(true));
        QCOMPARE(config.getDataBase()->getName(), QStringLiteral("CENSUS"));
        QCOMPARE(names(config), QStringList({"B"}));
        QCOMPARE(config.getOptions()->getCreateNoRanges(), true);
    }

    void aConfigurationWithoutSectionsCanGo()
    {
        Config config;
        config.setDataBase(nullptr);
        config.setEntities(nullptr);
        config.setOptions(nullptr);
        QCOMPARE(config.getEntities(), nullptr);
    }

    void nullPointersInTheEntityListArePassedOverByTheDestructorAndTheSetter()
    {
        Config config;
        *config.getEntities() = {nullptr, newEntity("A"), nullptr};
        config.setEntities(new QList<ConfigEntities *>({newEntity("B"), nullptr}));
        QCOMPARE(config.getEntities()->size(), 2);
        QCOMPARE(config.getEntities()->first()->getName(), QStringLiteral("B"));
    }

    void aTextOfAReplacedSectionSurvivesAsACopy()
    {
        Config config;
        config.setDataBase(newDatabase("FIRST"));
        const QString name = config.getDataBase()->getName();
        config.setDataBase(newDatabase("SECOND"));
        QCOMPARE(name, QStringLiteral("FIRST"));
    }
};

QTEST_APPLESS_MAIN(tst_Config)
#include "tst_Config.moc"
