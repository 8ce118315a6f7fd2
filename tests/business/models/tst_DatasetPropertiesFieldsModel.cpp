#include "business/models/DatasetPropertiesFieldsModel.h"

#include "tests/business/models/CatalogueContract.h"
#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/Pictures.h"

#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

using Model = DatasetPropertiesFieldsModel;
using Fields = Items<TDmSourceField>;

static_assert(std::is_base_of_v<QAbstractItemModel, Model>);
static_assert(std::is_constructible_v<Model, QObject *, QList<TDmSourceField *> *, QString>);
static_assert(
    std::is_convertible_v<decltype(&Model::getItemData), QVariant (Model::*)(TDmSourceField *, int) const>);

namespace {

/// The names of the first column, with a dot for a row without a field.
QString namesOf(const QAbstractItemModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names += model.index(row, 0).internalPointer() ? model.data(model.index(row, 0)).toString() : ".";
    return names.join(' ');
}

/// The texts of the third column.
QString tagsOf(const QAbstractItemModel &model)
{
    QStringList tags;
    for (int row = 0; row < model.rowCount(); ++row)
        tags += model.data(model.index(row, 2)).toString();
    return tags.join(' ');
}

/// The fields A to F: A and D with the selection "Y", B " Y", C "y", E none and F "*".
void giveSelections(const Fields &fields)
{
    const QStringList selections = {"Y", " Y", "y", "Y", "", "*"};
    for (int i = 0; i < selections.size(); ++i)
        fields[i]->selection = selections.at(i);
}

const QStringList kSix = {"A", "B", "C", "D", "E", "F"};

} // namespace

class tst_DatasetPropertiesFieldsModel : public CatalogueContract {
    Q_OBJECT

protected:
    std::unique_ptr<Catalogue> open(const QStringList &names) const override
    {
        return std::make_unique<CatalogueOf<Model, TDmSourceField>>(names, "*");
    }
    std::unique_ptr<QAbstractItemModel> openWithoutList(QObject *parent) const override
    {
        return std::make_unique<Model>(parent, nullptr, "*");
    }
    QStringList textsOfRow(const QString &name, int position) const override
    {
        return {name, "label of " + name, QString::number(position)};
    }
    QByteArray icon() const override { return "48px-numberplaceholder.png"; }

private slots:
    void theHeadersAreNotTranslated()
    {
        const ContextTranslator translator;
        // This is what a translated text would look like.
        QCOMPARE(QCoreApplication::translate("DatasetPropertiesFieldsModel", "Field"),
            QString("DatasetPropertiesFieldsModel: Field"));
        const Model model(nullptr, nullptr, "*");
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant("Field"));
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), QVariant("Label"));
        QCOMPARE(model.headerData(2, Qt::Horizontal, Qt::DisplayRole), QVariant("Tag"));
    }

    void thereAreNoOtherHeaders()
    {
        const Model model(nullptr, nullptr, "*");
        for (const int section : {INT_MIN, -1, 3, 4, INT_MAX})
            QVERIFY(!model.headerData(section, Qt::Horizontal).isValid());
        for (int section = -1; section < 5; ++section) {
            for (int role = 0; role <= Qt::UserRole + 2; ++role) {
                QVERIFY(!model.headerData(section, Qt::Vertical, role).isValid());
                if (role != Qt::DisplayRole)
                    QVERIFY(!model.headerData(section, Qt::Horizontal, role).isValid());
            }
        }
    }

    void theIconFollowsTheTypeToTheLetter_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QByteArray>("icon");
        const QByteArray other = "48px-numberplaceholder.png";
        QTest::newRow("text") << "STRING" << QByteArray("48px-string.png");
        QTest::newRow("real number") << "REAL" << QByteArray("48px-realnumber.png");
        QTest::newRow("whole number") << "INTEGER" << QByteArray("48px-integernumber.png");
        QTest::newRow("truth value") << "BOOL" << other;
        QTest::newRow("none") << "" << other;
        QTest::newRow("unknown") << "DATE" << other;
        for (const char *type : {"string", "String", "real", "integer", " STRING", "STRING ", "REAL ",
                 " REAL", "\tINTEGER", "STRINGS", "INT"})
            QTest::addRow("\"%s\" is none of the types", type) << type << other;
    }
    void theIconFollowsTheTypeToTheLetter()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, icon);
        Fields fields({"AGE"});
        fields[0]->fieldType = type;
        const Model model(nullptr, &fields.list, "*");
        QCOMPARE(drawing(icon).size(), QSize(48, 48));
        QCOMPARE(shownBy(model.data(model.index(0, 0), Qt::DecorationRole)), drawing(icon));
    }

    void theFilterKeepsEqualSelections_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("names");
        QTest::newRow("a star keeps all") << "*"
                                          << "A B C D E F";
        QTest::newRow("a text") << "Y"
                                << "A D";
        QTest::newRow("the letter case counts") << "y"
                                                << "C";
        QTest::newRow("blanks count") << " Y"
                                      << "B";
        QTest::newRow("blanks behind count") << "Y "
                                             << "";
        QTest::newRow("the empty text keeps what has no selection") << ""
                                                                    << "E";
        QTest::newRow("no text is the empty text") << QString() << "E";
        QTest::newRow("a part of a text") << "X"
                                          << "";
        QTest::newRow("it is no pattern") << "Y*"
                                          << "";
        QTest::newRow("two stars") << "**"
                                   << "";
        QTest::newRow("a star with a blank") << "* "
                                             << "";
        QTest::newRow("any character") << "."
                                       << "";
    }
    void theFilterKeepsEqualSelections()
    {
        QFETCH(QString, filter);
        QFETCH(QString, names);
        const Fields fields(kSix);
        giveSelections(fields);
        QList<TDmSourceField *> list = fields.list;
        const Model model(nullptr, &list, filter);
        QCOMPARE(namesOf(model), names);
        QVERIFY(list == fields.list);
    }

    void everyFieldIsNumberedEvenThoseNotShown_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("shown");
        QTest::newRow("all") << "*"
                             << "1 2 3 4 5 6";
        QTest::newRow("two") << "Y"
                             << "1 4";
        QTest::newRow("one") << "y"
                             << "3";
        QTest::newRow("none") << "no such"
                              << "";
    }
    void everyFieldIsNumberedEvenThoseNotShown()
    {
        QFETCH(QString, filter);
        QFETCH(QString, shown);
        Fields fields(kSix);
        giveSelections(fields);
        for (TDmSourceField *field : qAsConst(fields.list))
            field->tag = 1000;
        const Model model(nullptr, &fields.list, filter);
        for (int i = 0; i < kSix.size(); ++i)
            QCOMPARE(fields[i]->tag, i + 1);
        QCOMPARE(tagsOf(model), shown);
    }

    void theLastModelOfAFieldNumbersIt()
    {
        Fields fields(kSix);
        const Model all(nullptr, &fields.list, "*");
        QList<TDmSourceField *> turned = {fields[5], fields[0]};
        const Model two(nullptr, &turned, "*");
        QCOMPARE(tagsOf(two), QString("1 2"));
        QCOMPARE(tagsOf(all), QString("2 2 3 4 5 1"));
    }

    void aFieldThatStandsTwiceHasItsLastNumber()
    {
        const Fields fields({"A", "B"});
        QList<TDmSourceField *> list = {fields[0], fields[1], fields[0]};
        const Model model(nullptr, &list, "*");
        QCOMPARE(namesOf(model), QString("A B A"));
        QCOMPARE(tagsOf(model), QString("3 2 3"));
    }

    void nullFieldsAreCountedAndShownOnlyAmongAll()
    {
        Fields fields({"A", QString(), "B", QString()});
        fields[0]->selection = "Y";
        const Model all(nullptr, &fields.list, "*");
        QCOMPARE(namesOf(all), QString("A . B ."));
        QCOMPARE(fields[0]->tag, 1);
        QCOMPARE(fields[2]->tag, 3);
        for (const char *filter : {"Y", "", "no such"}) {
            fields[2]->tag = 0;
            const Model some(nullptr, &fields.list, filter);
            QCOMPARE(namesOf(some), QString(*filter == 'Y' ? "A" : *filter ? "" : "B"));
            QCOMPARE(fields[2]->tag, 3);
        }
        Fields ten({"A", QString(), "", "", "", "", "", "", "", ""});
        QCOMPARE(tagsOf(Model(nullptr, &ten.list, "*")), QString("01  03 04 05 06 07 08 09 10"));
    }

    void tagsAreAsWideAsTheNumberOfAllFields_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::newRow("one") << 1 << "1"
                             << "1";
        QTest::newRow("the last of one digit") << 9 << "1"
                                               << "9";
        QTest::newRow("the first of two digits") << 10 << "01"
                                                 << "10";
        QTest::newRow("the last of two digits") << 99 << "01"
                                                << "99";
        QTest::newRow("the first of three digits") << 100 << "001"
                                                   << "100";
        QTest::newRow("more of three digits") << 120 << "001"
                                              << "120";
        QTest::newRow("ten thousand") << 10'000 << "00001"
                                      << "10000";
    }
    void tagsAreAsWideAsTheNumberOfAllFields()
    {
        QFETCH(int, count);
        QFETCH(QString, first);
        QFETCH(QString, last);
        QStringList names;
        for (int i = 1; i <= count; ++i)
            names += QString::number(i);
        Fields fields(names);
        const Model all(nullptr, &fields.list, "*");
        QCOMPARE(all.data(all.index(0, 2)), QVariant(first));
        QCOMPARE(all.data(all.index(count - 1, 2)), QVariant(last));

        // What the filter leaves does not matter.
        fields[0]->selection = "Y";
        const Model one(nullptr, &fields.list, "Y");
        QCOMPARE(one.rowCount(), 1);
        QCOMPARE(one.data(one.index(0, 2)), QVariant(first));
    }

    void tagsOfAnyNumberAreFilledWithZeros_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("text");
        // Without a list the width is 0; -1 stands for that here.
        QTest::newRow("no list") << -1 << 7 << "7";
        QTest::newRow("no list, zero") << -1 << 0 << "0";
        QTest::newRow("an empty list") << 0 << 7 << "7";
        QTest::newRow("an empty list, more digits") << 0 << 12345 << "12345";
        QTest::newRow("zero") << 100 << 0 << "000";
        QTest::newRow("more digits than the width") << 10 << 12345 << "12345";
        QTest::newRow("below zero") << 100 << -5 << "-05";
        QTest::newRow("the highest") << 10 << INT_MAX << "2147483647";
        QTest::newRow("the lowest") << 10 << INT_MIN << "-2147483648";
        // Digits in tens, not grouped, whatever the number.
        QTest::newRow("thousands") << 10'000 << 1234 << "01234";
    }
    void tagsOfAnyNumberAreFilledWithZeros()
    {
        QFETCH(int, count);
        QFETCH(int, tag);
        QFETCH(QString, text);
        QStringList names;
        for (int i = 0; i < count; ++i)
            names += "F";
        Fields fields(names);
        const Model model(nullptr, count < 0 ? nullptr : &fields.list, "*");
        TDmSourceField field;
        field.tag = tag;
        QCOMPARE(model.getItemData(&field, 2), QVariant(text));
        if (count <= 0)
            return;
        fields[0]->tag = tag;
        QCOMPARE(model.data(model.index(0, 2)), QVariant(text));
    }

    void theFilterIsTakenOnce()
    {
        Fields fields(kSix);
        giveSelections(fields);
        const Model model(nullptr, &fields.list, "Y");
        fields[0]->selection = "";
        fields[4]->selection = "Y";
        QCOMPARE(namesOf(model), QString("A D"));
        fields[0]->label = "changed";
        QCOMPARE(model.data(model.index(0, 1)), QVariant("changed"));
    }
};

QTEST_MAIN(tst_DatasetPropertiesFieldsModel)
#include "tst_DatasetPropertiesFieldsModel.moc"
