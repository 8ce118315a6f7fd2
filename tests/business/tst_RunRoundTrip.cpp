#include "tests/business/RunText.h"

#include <QJsonArray>
#include <QtTest>

#include <rapidcheck.h>

using tessel::test::readRun;

namespace {

// Many small documents find more than a few large ones, in less time.
constexpr int kTextLength = 8;
constexpr double kListScale = 0.4;

/// Short texts, or UTF-16 units of any kind: control characters, unpaired surrogates and all.
rc::Gen<QString> anyText()
{
    const auto unit = rc::gen::resize(rc::kNominalSize,
        rc::gen::oneOf(rc::gen::inRange<ushort>(0x20, 0x7f), rc::gen::inRange<ushort>(0, 0x100),
            rc::gen::inRange<ushort>(0xd800, 0xe000), rc::gen::arbitrary<ushort>()));
    return rc::gen::map(rc::gen::resize(kTextLength, rc::gen::container<std::vector<ushort>>(unit)),
        [](const std::vector<ushort> &units) {
            return units.empty() ? QString() : QString::fromUtf16(units.data(), int(units.size()));
        });
}

rc::Gen<QJsonValue> anyScalar()
{
    return rc::gen::oneOf(rc::gen::map(anyText(), [](const QString &text) { return QJsonValue(text); }),
        rc::gen::map(rc::gen::arbitrary<bool>(), [](bool flag) { return QJsonValue(flag); }),
        rc::gen::map(rc::gen::arbitrary<int>(), [](int number) { return QJsonValue(number); }),
        rc::gen::map(rc::gen::arbitrary<double>(), [](double number) { return QJsonValue(number); }),
        rc::gen::element(QJsonValue(), QJsonValue("true"), QJsonValue("false"), QJsonValue("0"),
            QJsonValue(QJsonArray()), QJsonValue(QJsonObject())));
}

rc::Gen<QJsonValue> anyArray(const rc::Gen<QJsonValue> &element)
{
    return rc::gen::map(rc::gen::scale(kListScale, rc::gen::container<std::vector<QJsonValue>>(element)),
        [](const std::vector<QJsonValue> &all) {
            QJsonArray array;
            for (const QJsonValue &each : all)
                array.append(each);
            return QJsonValue(array);
        });
}

/// An object with some of \a keys, each holding some value of \a value.
rc::Gen<QJsonValue> anyObject(const std::vector<QString> &keys, const rc::Gen<QJsonValue> &value)
{
    const auto entry = rc::gen::pair(rc::gen::elementOf(keys), value);
    return rc::gen::map(
        rc::gen::scale(kListScale, rc::gen::container<std::vector<std::pair<QString, QJsonValue>>>(entry)),
        [](const std::vector<std::pair<QString, QJsonValue>> &entries) {
            QJsonObject object;
            for (const auto &each : entries)
                object.insert(each.first, each.second);
            return QJsonValue(object);
        });
}

rc::Gen<QJsonValue> anyEntity()
{
    const std::vector<QString> keys = {"name", "recType", "allVariables", "variables", "createCompound",
        "createSDC", "checkSequence", "delete", "selectable", "stranger"};
    return anyObject(keys, rc::gen::oneOf(anyScalar(), anyArray(anyScalar())));
}

rc::Gen<QJsonValue> anyDatabase()
{
    return anyObject(
        {"name", "folder", "sourceFile", "filter", "selectFilter", "fileFilter", "XXXproject", "project"},
        anyScalar());
}

rc::Gen<QJsonValue> anyOptions()
{
    return anyObject({"createNotAppMissingInRange", "createNoRanges"}, anyScalar());
}

/// A run document; now and then a section is missing or is no object at all.
rc::Gen<QJsonObject> anyDocument()
{
    const auto mostly = [](const rc::Gen<QJsonValue> &section) {
        return rc::gen::weightedOneOf<QJsonValue>(
            {{8, section}, {1, anyScalar()}, {1, rc::gen::just(QJsonValue(QJsonValue::Undefined))}});
    };
    const auto sections =
        rc::gen::tuple(mostly(anyDatabase()), mostly(anyArray(mostly(anyEntity()))), mostly(anyOptions()));
    return rc::gen::map(sections, [](const std::tuple<QJsonValue, QJsonValue, QJsonValue> &all) {
        QJsonObject root; // Inserting an undefined value inserts nothing.
        root.insert("database", std::get<0>(all));
        root.insert("entities", std::get<1>(all));
        root.insert("options", std::get<2>(all));
        return root;
    });
}

/// \a document read and written again, as text.
QByteArray savedAgain(const QByteArray &document)
{
    const std::unique_ptr<Config> config = readRun(QJsonDocument::fromJson(document).object().toVariantMap());
    return RunCreationBusiness().exportConfigToJson(config.get()).toJson();
}

} // namespace

class tst_RunRoundTrip : public QObject {
    Q_OBJECT

private slots:
    void theThirdSavingEqualsTheSecond()
    {
        QVERIFY(rc::check("the third saving equals the second", [] {
            const QJsonObject document = *anyDocument();
            const QByteArray first = savedAgain(QJsonDocument(document).toJson());
            const QByteArray second = savedAgain(first);
            RC_ASSERT(savedAgain(second).toStdString() == second.toStdString());
        }));
    }

    void whatWasReadSurvivesSavingButForTheKeysThatAreOnlyRead()
    {
        QVERIFY(rc::check("what was read survives saving", [] {
            // Without going through text, which has no place for an unpaired surrogate.
            const QJsonObject document = *anyDocument();
            const std::unique_ptr<Config> before = readRun(document.toVariantMap());
            const QJsonDocument saved = RunCreationBusiness().exportConfigToJson(before.get());
            const std::unique_ptr<Config> after = readRun(saved.object().toVariantMap());
            ConfigDb *database = before->getDataBase();
            database->setFilter({});
            database->setSelectFilter({});
            database->setFileFilter({});
            database->setProject({});
            for (ConfigEntities *entity : qAsConst(*before->getEntities())) {
                entity->setCheckDelete(false);
                entity->setCheckSelectable(false);
            }
            RC_ASSERT(tessel::test::describe(*after) == tessel::test::describe(*before));
        }));
    }
};

QTEST_APPLESS_MAIN(tst_RunRoundTrip)
#include "tst_RunRoundTrip.moc"
