#include "business/RunCreationBusiness.h"

#include "tests/business/RunText.h"
#include "tests/support/Json.h"

#include <QtTest>

#include <memory>
#include <type_traits>

using tessel::test::describe;
using tessel::test::documentOf;
using tessel::test::objectOf;
using tessel::test::readRun;

using Run = RunCreationBusiness;
static_assert(std::is_default_constructible_v<Run>);
static_assert(std::is_empty_v<Run>);
static_assert(std::is_same_v<decltype(&Run::exportConfigToJson), QJsonDocument (Run::*)(Config *)>);
static_assert(std::is_same_v<decltype(&Run::recorrerNodosEntitiesJsonYCargaEstructuraConfig),
    Config *(Run::*)(QMap<QString, QVariant>)>);
static_assert(std::is_same_v<decltype(&Run::recorrerVariablesNodosJson), QList<QString> *(Run::*)(QVariant)>);

namespace {

/// What an entity's object holds in any case, sorted among the keys that may be there.
const QByteArray kFreshEntity = "{'allVariables':false,'createCompound':false}";

QByteArray documentWith(const QByteArray &database, const QByteArray &entities)
{
    return "{'database':" + database + ",'entities':[" + entities
        + "],'options':{'createNoRanges':false,'createNotAppMissingInRange':false},'type':'config'}";
}

ConfigEntities *newEntity(const QString &name)
{
    auto *entity = new ConfigEntities;
    entity->setName(name);
    return entity;
}

/// One entity on its own, as it is written.
QByteArray writtenEntity(ConfigEntities *entity)
{
    Config config;
    config.getEntities()->append(entity);
    const QByteArray document = documentOf(config);
    const int from = document.indexOf('[') + 1;
    return document.mid(from, document.indexOf("],'options'") - from);
}

QString bigText() { return QString(100'000, QChar(0x4e2d)) + QStringLiteral("\U0001F600"); }

using TextSetter = void (ConfigDb::*)(const QString &);
using FlagSetter = void (ConfigEntities::*)(bool);

} // namespace

Q_DECLARE_METATYPE(TextSetter)
Q_DECLARE_METATYPE(FlagSetter)

class tst_RunCreationBusiness : public QObject {
    Q_OBJECT

private slots:
    void aFreshConfigurationIsWrittenWithEmptySections()
    {
        Config config;
        QCOMPARE(documentOf(config), documentWith("{}", ""));
    }

    void theWholeDocument()
    {
        Config config;
        config.getDataBase()->setName("CENSUS");
        config.getDataBase()->setFolder("out");
        ConfigEntities *entity = newEntity("PERSON");
        entity->setRecType("P");
        entity->addVariables("SEX");
        entity->addVariables("AGE");
        entity->setCheckSequence(false);
        entity->setCreateCompound(true);
        config.getEntities()->append(entity);
        config.getOptions()->setCreateNoRanges(true);
        QCOMPARE(documentOf(config),
            QByteArray(
                "{'database':{'folder':'out','name':'CENSUS'},"
                "'entities':[{'allVariables':false,'checkSequence':false,'createCompound':true,"
                "'name':'PERSON','recType':'P','variables':['SEX','AGE']}],"
                "'options':{'createNoRanges':true,'createNotAppMissingInRange':false},'type':'config'}"));
    }

    void theDocumentIsAnObject()
    {
        Config config;
        const QJsonDocument document = Run().exportConfigToJson(&config);
        QVERIFY(document.isObject());
        QCOMPARE(document.object().keys(), QStringList({"database", "entities", "options", "type"}));
    }

    void writingTheDatabase_data()
    {
        QTest::addColumn<TextSetter>("set");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("the name is written")
            << TextSetter(&ConfigDb::setName) << QByteArray("{'name':'text'}");
        QTest::newRow("the folder is written")
            << TextSetter(&ConfigDb::setFolder) << QByteArray("{'folder':'text'}");
        QTest::newRow("the source file is written")
            << TextSetter(&ConfigDb::setSourceFile) << QByteArray("{'sourceFile':'text'}");
        QTest::newRow("the filter is never written") << TextSetter(&ConfigDb::setFilter) << QByteArray("{}");
        QTest::newRow("the select filter is never written")
            << TextSetter(&ConfigDb::setSelectFilter) << QByteArray("{}");
        QTest::newRow("the file filter is never written")
            << TextSetter(&ConfigDb::setFileFilter) << QByteArray("{}");
        QTest::newRow("the project is never written")
            << TextSetter(&ConfigDb::setProject) << QByteArray("{}");
    }
    void writingTheDatabase()
    {
        QFETCH(TextSetter, set);
        QFETCH(QByteArray, written);
        Config config;
        (config.getDataBase()->*set)("text");
        QCOMPARE(documentOf(config), documentWith(written, ""));
        (config.getDataBase()->*set)("");
        QCOMPARE(documentOf(config), documentWith("{}", ""));
    }

    void blanksAreATextToWrite()
    {
        Config config;
        config.getDataBase()->setName(" ");
        config.getEntities()->append(newEntity(" "));
        QCOMPARE(documentOf(config),
            documentWith("{'name':' '}", "{'allVariables':false,'createCompound':false,'name':' '}"));
    }

    void bothOptionsAreAlwaysWritten_data()
    {
        QTest::addColumn<bool>("inRange");
        QTest::addColumn<bool>("noRanges");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("both off") << false << false
                                  << QByteArray(
                                         "{'createNoRanges':false,'createNotAppMissingInRange':false}");
        QTest::newRow("first on") << true << false
                                  << QByteArray("{'createNoRanges':false,'createNotAppMissingInRange':true}");
        QTest::newRow("second on") << false << true
                                   << QByteArray(
                                          "{'createNoRanges':true,'createNotAppMissingInRange':false}");
        QTest::newRow("both on") << true << true
                                 << QByteArray("{'createNoRanges':true,'createNotAppMissingInRange':true}");
    }
    void bothOptionsAreAlwaysWritten()
    {
        QFETCH(bool, inRange);
        QFETCH(bool, noRanges);
        QFETCH(QByteArray, written);
        Config config;
        config.getOptions()->setCreateNotAppMissingInRange(inRange);
        config.getOptions()->setCreateNoRanges(noRanges);
        QCOMPARE(
            documentOf(config), "{'database':{},'entities':[],'options':" + written + ",'type':'config'}");
    }

    void writingAnEntitysFlags_data()
    {
        QTest::addColumn<FlagSetter>("set");
        QTest::addColumn<QByteArray>("whenSet");
        QTest::addColumn<QByteArray>("whenCleared");
        QTest::newRow("allVariables is always written")
            << FlagSetter(&ConfigEntities::setAllVariables)
            << QByteArray("{'allVariables':true,'createCompound':false}") << kFreshEntity;
        QTest::newRow("createCompound is always written")
            << FlagSetter(&ConfigEntities::setCreateCompound)
            << QByteArray("{'allVariables':false,'createCompound':true}") << kFreshEntity;
        QTest::newRow("createSDC is written only when set")
            << FlagSetter(&ConfigEntities::setCreateSDC)
            << QByteArray("{'allVariables':false,'createCompound':false,'createSDC':true}") << kFreshEntity;
        QTest::newRow("checkSequence is written only when cleared")
            << FlagSetter(&ConfigEntities::setCheckSequence) << kFreshEntity
            << QByteArray("{'allVariables':false,'checkSequence':false,'createCompound':false}");
        QTest::newRow("checkDelete is never written")
            << FlagSetter(&ConfigEntities::setCheckDelete) << kFreshEntity << kFreshEntity;
        QTest::newRow("checkSelectable is never written")
            << FlagSetter(&ConfigEntities::setCheckSelectable) << kFreshEntity << kFreshEntity;
    }
    void writingAnEntitysFlags()
    {
        QFETCH(FlagSetter, set);
        QFETCH(QByteArray, whenSet);
        QFETCH(QByteArray, whenCleared);
        for (const bool on : {true, false}) {
            auto *entity = new ConfigEntities;
            (entity->*set)(on);
            QCOMPARE(writtenEntity(entity), on ? whenSet : whenCleared);
        }
    }

    void aFreshEntityHasNeitherOneSidedKey() { QCOMPARE(writtenEntity(new ConfigEntities), kFreshEntity); }

    void anEntitysTextsAreWrittenWhenNotEmpty()
    {
        auto *entity = newEntity("PERSON");
        QCOMPARE(writtenEntity(entity),
            QByteArray("{'allVariables':false,'createCompound':false,'name':'PERSON'}"));
        entity = new ConfigEntities;
        entity->setRecType("P");
        QCOMPARE(
            writtenEntity(entity), QByteArray("{'allVariables':false,'createCompound':false,'recType':'P'}"));
    }

    void anEmptyVariableListIsNotWrittenAndAllVariablesStillIs()
    {
        auto *entity = new ConfigEntities;
        entity->addVariables("AGE");
        entity->getVariables()->clear();
        QCOMPARE(writtenEntity(entity), kFreshEntity);
    }

    void variablesAreWrittenInTheirOrderWithRepeatsAndEmptyNames()
    {
        auto *entity = new ConfigEntities;
        entity->setAllVariables(true);
        for (const char *name : {"SEX", "", "AGE", "SEX"})
            entity->addVariables(name);
        QCOMPARE(writtenEntity(entity),
            QByteArray("{'allVariables':true,'createCompound':false,'variables':['SEX','','AGE','SEX']}"));
    }

    void entitiesAreWrittenInTheirOrder()
    {
        Config config;
        for (const char *name : {"PERSON", "DWELLING", "PERSON"})
            config.getEntities()->append(newEntity(name));
        const auto entity = [](const QByteArray &name) {
            return QByteArray("{'allVariables':false,'createCompound':false,'name':'" + name + "'}");
        };
        QCOMPARE(documentOf(config),
            documentWith("{}", entity("PERSON") + ',' + entity("DWELLING") + ',' + entity("PERSON")));
    }

    void nullEntitiesArePassedOver()
    {
        Config config;
        *config.getEntities() = {nullptr, new ConfigEntities, nullptr, new ConfigEntities, nullptr};
        QCOMPARE(documentOf(config), documentWith("{}", kFreshEntity + ',' + kFreshEntity));
        Config nothing;
        nothing.getEntities()->append(nullptr);
        QCOMPARE(documentOf(nothing), documentWith("{}", ""));
    }

    void writingChangesNothing()
    {
        const std::unique_ptr<Config> config =
            readRun(objectOf("{'database':{'name':'A','XXXproject':'P'},'entities':[{'name':'E','variables':["
                             "'V'],'delete':true}]}"));
        const QStringList before = describe(*config);
        const QByteArray first = documentOf(*config);
        QCOMPARE(documentOf(*config), first);
        QCOMPARE(describe(*config), before);
    }

    void aDeletionMarkIsReadAndNotWrittenBack()
    {
        const std::unique_ptr<Config> config =
            readRun(objectOf("{'entities':[{'delete':true,'selectable':true}]}"));
        QCOMPARE(config->getEntities()->first()->getCheckDelete(), true);
        QCOMPARE(config->getEntities()->first()->getCheckSelectable(), true);
        QCOMPARE(documentOf(*config), documentWith("{}", kFreshEntity));
    }

    void aSavedRunLoadsBackUnchanged_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "CENSUS";
        QTest::newRow("quotes, backslashes and control characters")
            << QString("a'\"\\\b\f\n\r\t\u0001\u007f/b");
        QTest::newRow("a null character") << QString("a") + QChar(0) + "b";
        QTest::newRow("other scripts") << "Año 年 عمر";
        QTest::newRow("beyond U+FFFF") << "\U0001F600\U00010400";
        QTest::newRow("a huge text") << bigText();
    }
    void aSavedRunLoadsBackUnchanged()
    {
        QFETCH(QString, text);
        Config config;
        config.getDataBase()->setName(text);
        config.getDataBase()->setFolder(text + '1');
        config.getDataBase()->setSourceFile(text + '2');
        config.getOptions()->setCreateNotAppMissingInRange(true);
        for (const bool on : {false, true}) {
            ConfigEntities *entity = newEntity(text);
            entity->setRecType(text + '3');
            entity->addVariables(text + '4');
            entity->addVariables(text);
            entity->setAllVariables(on);
            entity->setCheckSequence(!on);
            entity->setCreateCompound(on);
            entity->setCreateSDC(on);
            config.getEntities()->append(entity);
        }
        config.getEntities()->append(new ConfigEntities);
        const QByteArray saved = Run().exportConfigToJson(&config).toJson();
        const std::unique_ptr<Config> loaded =
            readRun(QJsonDocument::fromJson(saved).object().toVariantMap());
        QCOMPARE(describe(*loaded), describe(config));
        QCOMPARE(Run().exportConfigToJson(loaded.get()).toJson(), saved);
    }

    void tenThousandEntitiesAndVariablesSurvive()
    {
        Config config;
        for (int number = 0; number < 10'000; ++number)
            config.getEntities()->append(newEntity(QString::number(number)));
        for (int number = 0; number < 10'000; ++number)
            config.getEntities()->last()->addVariables(QString::number(number));
        const QByteArray saved = Run().exportConfigToJson(&config).toJson();
        const std::unique_ptr<Config> loaded =
            readRun(QJsonDocument::fromJson(saved).object().toVariantMap());
        QCOMPARE(describe(*loaded), describe(config));
    }
};

QTEST_APPLESS_MAIN(tst_RunCreationBusiness)
#include "tst_RunCreationBusiness.moc"
