#include "business/models/CsvPropertiesModel.h"

#include "tests/business/models/CatalogueContract.h"
#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/Pictures.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, CsvPropertiesModel>);
static_assert(std::is_constructible_v<CsvPropertiesModel, QObject *, QList<TDmSourceField *> *>);
static_assert(std::is_convertible_v<decltype(&CsvPropertiesModel::getItemData),
    QVariant (CsvPropertiesModel::*)(TDmSourceField *, int) const>);

class tst_CsvPropertiesModel : public CatalogueContract {
    Q_OBJECT

protected:
    std::unique_ptr<Catalogue> open(const QStringList &names) const override
    {
        return std::make_unique<CatalogueOf<CsvPropertiesModel, TDmSourceField>>(names);
    }
    std::unique_ptr<QAbstractItemModel> openWithoutList(QObject *parent) const override
    {
        return std::make_unique<CsvPropertiesModel>(parent, nullptr);
    }
    QStringList textsOfRow(const QString &name, int) const override { return {name}; }
    QByteArray icon() const override { return "48px-Project-preferences.png"; }

private slots:
    void theHeadersAreNumbers()
    {
        const ContextTranslator translator;
        Items<TDmSourceField> fields({"AGE"});
        const CsvPropertiesModel model(nullptr, &fields.list);
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (const int section : {-1, 0, 1, 7})
                QCOMPARE(model.headerData(section, orientation), QVariant(section + 1));
            for (const int role : {Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole})
                QVERIFY(!model.headerData(0, orientation, role).isValid());
        }
    }

    void theIconDoesNotDependOnTheType()
    {
        for (const char *type : {"STRING", "REAL", "INTEGER", "BOOL"}) {
            Items<TDmSourceField> fields({"AGE"});
            fields[0]->fieldType = type;
            const CsvPropertiesModel model(nullptr, &fields.list);
            QCOMPARE(shownBy(model.data(model.index(0, 0), Qt::DecorationRole)), drawing(icon()));
        }
    }

    void fieldsAreNotNumbered()
    {
        Items<TDmSourceField> fields({"AGE", "SEX"});
        fields[0]->tag = 5;
        const CsvPropertiesModel model(nullptr, &fields.list);
        QCOMPARE(fields[0]->tag, 5);
        QCOMPARE(fields[1]->tag, 0);
    }

    void theTransferIsSpelledOut()
    {
        Items<TDmSourceField> fields({QString::fromUtf8(u8"Año")});
        const CsvPropertiesModel model(nullptr, &fields.list);
        // 37 characters of two bytes: the length first, then the text, the high bytes first.
        const QByteArray expected = QByteArray("\x00\x00\x00\x4a", 4)
            + QByteArray("\x00{\x00\n"
                         "\x00 \x00 \x00 \x00 \x00\"\x00n\x00"
                         "a\x00m\x00"
                         "e\x00\"\x00:\x00 \x00\"\x00"
                         "A\x00\xf1\x00o\x00\"\x00,\x00\n"
                         "\x00 \x00 \x00 \x00 \x00\"\x00t\x00"
                         "a\x00g\x00\"\x00:\x00 \x00-\x00"
                         "1\x00\n"
                         "\x00}\x00\n",
                74);
        QCOMPARE(payloadOf(model, {model.index(0, 0)}).toHex(' '), expected.toHex(' '));
        QCOMPARE(payloadOf(model, {model.index(0, 0), model.index(0, 0)}), expected + expected);
    }

    void theTagIsAlwaysMinusOneAndNothingElseTravels()
    {
        Items<TDmSourceField> fields({"AGE"});
        TDmSourceField &field = *fields[0];
        field.tag = 12;
        field.fieldType = "INTEGER";
        field.dataProviderType = "CSV";
        field.rangeMin = "0";
        field.rangeMax = "9";
        field.relativePosition = 3;
        field.size = 2;
        field.decimals = 1;
        field.missing = "99";
        field.notApp = "98";
        field.selection = "Y";
        field.categories = "1 One";
        const CsvPropertiesModel model(nullptr, &fields.list);
        QCOMPARE(payloadOf(model, {model.index(0, 0)}),
            streamed("{\n    \"name\": \"AGE\",\n    \"tag\": -1\n}\n"));
    }

    void aDragCarriesTheFieldAsItIsThen()
    {
        Items<TDmSourceField> fields({"AGE"});
        const CsvPropertiesModel model(nullptr, &fields.list);
        fields[0]->name = "SEX";
        QCOMPARE(model.data(model.index(0, 0)), QVariant("SEX"));
        QCOMPARE(payloadOf(model, {model.index(0, 0)}),
            streamed("{\n    \"name\": \"SEX\",\n    \"tag\": -1\n}\n"));
    }
};

QTEST_MAIN(tst_CsvPropertiesModel)
#include "tst_CsvPropertiesModel.moc"
