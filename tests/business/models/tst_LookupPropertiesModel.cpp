#include "business/models/LookupPropertiesModel.h"

#include "tests/business/models/CatalogueContract.h"
#include "tests/business/models/ContextTranslator.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, LookupPropertiesModel>);
static_assert(std::is_constructible_v<LookupPropertiesModel, QObject *, QList<TDmLookup *> *>);
static_assert(std::is_convertible_v<decltype(&LookupPropertiesModel::getItemData),
    QVariant (LookupPropertiesModel::*)(TDmLookup *, int) const>);

class tst_LookupPropertiesModel : public CatalogueContract {
    Q_OBJECT

protected:
    std::unique_ptr<Catalogue> open(const QStringList &names) const override
    {
        return std::make_unique<CatalogueOf<LookupPropertiesModel, TDmLookup>>(names);
    }
    std::unique_ptr<QAbstractItemModel> openWithoutList(QObject *parent) const override
    {
        return std::make_unique<LookupPropertiesModel>(parent, nullptr);
    }
    QStringList textsOfRow(const QString &name, int) const override { return {name + "-label of " + name}; }
    QByteArray icon() const override { return "48px-Project-preferences.png"; }

private slots:
    void theHeadersAreNumbers()
    {
        const ContextTranslator translator;
        Items<TDmLookup> lookups({"ISIC"});
        const LookupPropertiesModel model(nullptr, &lookups.list);
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (const int section : {-1, 0, 1, 7})
                QCOMPARE(model.headerData(section, orientation), QVariant(section + 1));
            for (const int role : {Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole})
                QVERIFY(!model.headerData(0, orientation, role).isValid());
        }
    }

    void identifierAndLabelAreJoinedByABareHyphen_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("text");
        QTest::newRow("both") << "ISIC"
                              << "Branches"
                              << "ISIC-Branches";
        QTest::newRow("no identifier") << ""
                                       << "Branches"
                                       << "-Branches";
        QTest::newRow("no label") << "ISIC"
                                  << ""
                                  << "ISIC-";
        QTest::newRow("neither") << ""
                                 << ""
                                 << "-";
        QTest::newRow("blanks are kept") << " ISIC "
                                         << " Branches "
                                         << " ISIC - Branches ";
        QTest::newRow("hyphens are kept") << "A-B"
                                          << "-C"
                                          << "A-B--C";
        QTest::newRow("places for arguments") << "%2"
                                              << "%1"
                                              << "%2-%1";
    }
    void identifierAndLabelAreJoinedByABareHyphen()
    {
        QFETCH(QString, id);
        QFETCH(QString, label);
        QFETCH(QString, text);
        Items<TDmLookup> lookups({id});
        lookups[0]->label = label;
        const LookupPropertiesModel model(nullptr, &lookups.list);
        QCOMPARE(model.data(model.index(0, 0)), QVariant(text));
        QCOMPARE(model.getItemData(lookups[0], 0), QVariant(text));
    }

    void theTransferIsSpelledOut()
    {
        Items<TDmLookup> lookups({"A"});
        lookups[0]->label = QString::fromUtf8(u8"é€");
        const LookupPropertiesModel model(nullptr, &lookups.list);
        // 77 characters of two bytes: the length first, then the text, the high bytes first.
        const QByteArray expected = QByteArray("\x00\x00\x00\x9a", 4)
            + QByteArray("\x00{\x00\n"
                         "\x00 \x00 \x00 \x00 \x00\"\x00l\x00"
                         "a\x00"
                         "b\x00"
                         "e\x00l\x00\"\x00:\x00 \x00\"\x00\xe9\x20\xac\x00\"\x00,\x00\n"
                         "\x00 \x00 \x00 \x00 \x00\"\x00n\x00"
                         "a\x00m\x00"
                         "e\x00\"\x00:\x00 \x00\"\x00"
                         "A\x00\"\x00,\x00\n"
                         "\x00 \x00 \x00 \x00 \x00\"\x00t\x00"
                         "a\x00g\x00\"\x00:\x00 \x00\"\x00*\x00\"\x00,\x00\n"
                         "\x00 \x00 \x00 \x00 \x00\"\x00t\x00y\x00p\x00"
                         "e\x00\"\x00:\x00 \x00\"\x00L\x00O\x00O\x00K\x00U\x00P\x00\"\x00\n"
                         "\x00}\x00\n",
                154);
        QCOMPARE(payloadOf(model, {model.index(0, 0)}).toHex(' '), expected.toHex(' '));
        QCOMPARE(payloadOf(model, {model.index(0, 0), model.index(0, 0)}), expected + expected);
    }

    void theTagIsAStarWhereTheOthersWriteANumber()
    {
        Items<TDmLookup> lookups({"ISIC"});
        const LookupPropertiesModel model(nullptr, &lookups.list);
        QCOMPARE(payloadOf(model, {model.index(0, 0)}),
            streamed("{\n    \"label\": \"label of ISIC\",\n    \"name\": \"ISIC\",\n    \"tag\": \"*\",\n"
                     "    \"type\": \"LOOKUP\"\n}\n"));
    }

    void identifierAndLabelTravelApart()
    {
        Items<TDmLookup> lookups({"A-B"});
        lookups[0]->label = "C\"";
        const LookupPropertiesModel model(nullptr, &lookups.list);
        QCOMPARE(payloadOf(model, {model.index(0, 0)}),
            streamed("{\n    \"label\": \"C\\\"\",\n    \"name\": \"A-B\",\n    \"tag\": \"*\",\n"
                     "    \"type\": \"LOOKUP\"\n}\n"));
    }

    void aDragCarriesTheTableAsItIsThen()
    {
        Items<TDmLookup> lookups({"ISIC"});
        const LookupPropertiesModel model(nullptr, &lookups.list);
        lookups[0]->id = "ISCO";
        lookups[0]->label = "";
        QCOMPARE(model.data(model.index(0, 0)), QVariant("ISCO-"));
        QCOMPARE(payloadOf(model, {model.index(0, 0)}),
            streamed("{\n    \"label\": \"\",\n    \"name\": \"ISCO\",\n    \"tag\": \"*\",\n"
                     "    \"type\": \"LOOKUP\"\n}\n"));
    }
};

QTEST_MAIN(tst_LookupPropertiesModel)
#include "tst_LookupPropertiesModel.moc"
