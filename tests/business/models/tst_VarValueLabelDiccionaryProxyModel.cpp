#include "business/models/VarValueLabelDiccionaryProxyModel.h"

#include "business/models/VarValueLabelDiccionaryModel.h"
#include "tests/business/models/TwoColumnFilterContract.h"
#include "tests/business/models/TwoColumnRows.h"

#include <QDateTime>
#include <QtTest>

#include <climits>
#include <limits>
#include <type_traits>

using namespace tessel::test;

using Proxy = VarValueLabelDiccionaryProxyModel;

static_assert(std::is_base_of_v<QSortFilterProxyModel, Proxy>);
static_assert(std::is_constructible_v<Proxy, QObject *>);
static_assert(!std::is_default_constructible_v<Proxy>);
static_assert(
    std::is_same_v<bool, decltype(std::declval<const Proxy &>().lessThan(QModelIndex(), QModelIndex()))>);
static_assert(
    std::is_same_v<bool, decltype(std::declval<const Proxy &>().filterAcceptsRow(0, QModelIndex()))>);

class tst_VarValueLabelDiccionaryProxyModel : public TwoColumnFilterContract {
    Q_OBJECT

protected:
    std::unique_ptr<QSortFilterProxyModel> open(QObject *parent) const override
    {
        return std::make_unique<Proxy>(parent);
    }

    /// Not a QString: of that, a number is made whatever it says.
    QVariant textValue(const QString &text) const override { return QStringList{text}; }

private slots:
    void whateverANumberCanBeMadeOfIsComparedAsANumber_data()
    {
        QTest::addColumn<QVariant>("left");
        QTest::addColumn<QVariant>("right");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QVariant &left, const QVariant &right,
                             const char *expected) { QTest::newRow(tag) << left << right << expected; };
        row("texts of whole numbers", "2", "10", "<");
        row("texts of equal numbers", "2", "2.0", "=");
        row("leading zeros", "007", "7", "=");
        row("decimals", "1.5", "1.25", ">");
        row("numbers that differ only in their decimals", "1.2", "1.7", "<");
        row("below zero", "-2", "-10", ">");
        row("zero below zero", "-0", "0", "=");
        row("an exponent", "1e3", "999", ">");
        row("blanks around a number", " 5 ", "5", "=");
        row("beyond int", "3000000000", "2999999999", ">");
        row("int", 2, 10, "<");
        row("lowest and highest int", INT_MIN, INT_MAX, "<");
        row("int and double", 2, 2.5, "<");
        row("int and text", 2, "10", "<");
        row("double", 10.5, 9.5, ">");
        row("float", 10.5f, 9.5f, ">");
        row("unsigned", 4000000000u, 1u, ">");
        row("64 bits", 1LL << 40, 2LL << 40, "<");
        row("truth values", true, false, ">");
        row("bytes", QByteArray("10"), QByteArray("9"), ">");
        row("infinite", "inf", "1e308", ">");
        row("infinite below zero", "-inf", "-1e308", "<");
        row("too large a number is infinite", "1e400", "1e308", ">");
        row("too large a number below zero is infinite", "-1e400", "-1e308", "<");
        row("too large a number against infinite", "1e400", "inf", "=");
        row("too small a number is 0", "1e-400", "0", "=");
    }
    void whateverANumberCanBeMadeOfIsComparedAsANumber()
    {
        QFETCH(QVariant, left);
        QFETCH(QVariant, right);
        for (const int column : {0, 1, 2})
            QTEST(order(left, right, column, column), "expected");
    }

    void aTextThatIsNoNumberCountsAsZero_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"abc", "Urban", "", " ", "0x10", "1,5", "5 years", "x5", "--5", "1e", "a@b",
                 "2000-01-01T00:00:00", "true"})
            QTest::newRow(text) << text;
        QTest::newRow("a null text") << QString();
        QTest::newRow("letters beyond ASCII") << "\u00e9";
        QTest::newRow("digits beyond ASCII") << "\u0665";
    }
    void aTextThatIsNoNumberCountsAsZero()
    {
        QFETCH(QString, text);
        for (const int column : {0, 1}) {
            const auto against = [&](const QVariant &other) { return order(text, other, column, column); };
            QCOMPARE(against("0"), QString("="));
            QCOMPARE(against("0.001"), QString("<"));
            QCOMPARE(against("-0.001"), QString(">"));
            QCOMPARE(against(1), QString("<"));
            QCOMPARE(against(-1.0), QString(">"));
            QCOMPARE(against("another text"), QString("="));
            QCOMPARE(against("Zzz"), QString("="));
            QCOMPARE(against("1e400"), QString("<"));
        }
    }

    void notANumberIsNeitherLessNorGreater_data()
    {
        QTest::addColumn<QVariant>("other");
        for (const char *other : {"nan", "0", "5", "-5", "inf", "-inf", "abc"})
            QTest::newRow(other) << QVariant(other);
        QTest::newRow("a double") << QVariant(std::numeric_limits<double>::quiet_NaN());
    }
    void notANumberIsNeitherLessNorGreater()
    {
        QFETCH(QVariant, other);
        QCOMPARE(order("nan", other), QString("="));
        QCOMPARE(order(std::numeric_limits<double>::quiet_NaN(), other), QString("="));
    }

    void theWordAroundAnAtSignMattersNotForTextsAsTheyCountAsZero()
    {
        QCOMPARE(order("y b@a", "c b@b", 1, 1), QString("="));
        QCOMPARE(order("y b@a", "-1", 1, 1), QString(">"));
        QCOMPARE(order("5@a", "4@a", 1, 1), QString("="));
    }

    void theTypeOfTheLeftValueDecides_data()
    {
        QTest::addColumn<QVariant>("left");
        QTest::addColumn<QVariant>("right");
        QTest::addColumn<QString>("expected");
        const QDateTime date(QDate(2000, 1, 1), QTime(12, 0), Qt::UTC);
        const auto row = [](const char *tag, const QVariant &left, const QVariant &right,
                             const char *expected) { QTest::newRow(tag) << left << right << expected; };
        row("no value is an empty text before a positive number", QVariant(), "5", "<");
        row("no value and a negative number: each is less", QVariant(), "-5", "<>");
        row("no value and zero", QVariant(), "0", "<");
        row("no value and a text", QVariant(), "abc", "<");
        row("no value twice", QVariant(), QVariant(), "=");
        row("no value and an empty text", QVariant(), "", "=");
        row("no value and a date", QVariant(), date, "<");
        row("a list of one text and a greater number", QStringList{"b"}, 5, "=");
        row("a list of one text and a smaller text", QStringList{"b"}, "a", "=");
        row("a list of one text and a negative number", QStringList{"b"}, -5, ">");
        row("a list of one text before a text", QStringList{"b"}, "c", "<");
        row("digits that are no number", QStringList{"10"}, QStringList{"9"}, "<");
        row("a day without time is a text", QDate(2000, 1, 1), QDate(10000, 1, 1), ">");
        row("a date and a date written as text", date, "1999-12-31T00:00:00Z", "=");
        row("a date and a later date written as text", date, "2000-12-31T00:00:00Z", "<");
        row("a date and a negative number", date, -5, ">");
    }
    void theTypeOfTheLeftValueDecides()
    {
        QFETCH(QVariant, left);
        QFETCH(QVariant, right);
        QTEST(order(left, right), "expected");
    }

    void invalidIndexesAreEmptyTexts()
    {
        const auto source = textSource({"5|-5"});
        Proxy proxy(nullptr);
        proxy.setSourceModel(source.get());
        const QModelIndex five = source->index(0, 0);
        const QModelIndex minusFive = source->index(0, 1);
        QVERIFY(!proxy.lessThan(QModelIndex(), QModelIndex()));
        QVERIFY(proxy.lessThan(QModelIndex(), five));
        QVERIFY(!proxy.lessThan(five, QModelIndex()));
        QVERIFY(proxy.lessThan(QModelIndex(), minusFive));
        QVERIFY(proxy.lessThan(minusFive, QModelIndex()));
    }

    void sorting_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("ascending");
        QTest::addColumn<QStringList>("descending");
        QTest::newRow("codes sort as numbers")
            << QStringList{"2|", "10|", "1|"} << 0 << QStringList{"1|", "2|", "10|"}
            << QStringList{"10|", "2|", "1|"};
        QTest::newRow("labels that are no numbers keep their order both ways") << QStringList{
            "1|b", "2|c", "3|a"} << 1 << QStringList{"1|b", "2|c", "3|a"} << QStringList{"1|b", "2|c", "3|a"};
        QTest::newRow("labels that are numbers stand around those that are none")
            << QStringList{"1|b", "2|7", "3|a", "4|-7", "5|0", "6|c"} << 1
            << QStringList{"4|-7", "1|b", "3|a", "5|0", "6|c", "2|7"}
            << QStringList{"2|7", "1|b", "3|a", "5|0", "6|c", "4|-7"};
        QTest::newRow("labels with at signs keep their order")
            << QStringList{"1|z a@b", "2|b@a", "3|a a@a"} << 1 << QStringList{"1|z a@b", "2|b@a", "3|a a@a"}
            << QStringList{"1|z a@b", "2|b@a", "3|a a@a"};
        QTest::newRow("codes written differently are ties")
            << QStringList{"01|x", "0|y", "1|z", "1.0|u", "a|v"} << 0
            << QStringList{"0|y", "a|v", "01|x", "1|z", "1.0|u"}
            << QStringList{"01|x", "1|z", "1.0|u", "0|y", "a|v"};
    }
    void sorting()
    {
        QFETCH(QStringList, rows);
        QFETCH(int, column);
        const auto variable = variableWith<ValueLabelElement>(rows);
        VarValueLabelDiccionaryModel model(nullptr, variable.get());
        Proxy proxy(nullptr);
        proxy.setSourceModel(&model);
        QCOMPARE(shownRows(proxy), rows);
        proxy.sort(column, Qt::AscendingOrder);
        QTEST(shownRows(proxy), "ascending");
        proxy.sort(column, Qt::DescendingOrder);
        QTEST(shownRows(proxy), "descending");
        proxy.sort(-1);
        QCOMPARE(shownRows(proxy), rows);
    }

    void noRowIsLostWhereTheOrderContradictsItself()
    {
        const auto source = textSource({"nan", "5", "-5", "abc", "nan", "1", "inf"});
        source->item(3)->setData(QVariant(), Qt::DisplayRole);
        Proxy proxy(nullptr);
        proxy.setSourceModel(source.get());
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            proxy.sort(0, order);
            QStringList texts;
            for (int row = 0; row < proxy.rowCount(); ++row)
                texts += proxy.index(row, 0).data().toString();
            texts.sort();
            QCOMPARE(texts, QStringList({"", "-5", "1", "5", "inf", "nan", "nan"}));
        }
    }
};

QTEST_MAIN(tst_VarValueLabelDiccionaryProxyModel)
#include "tst_VarValueLabelDiccionaryProxyModel.moc"
