#include "business/models/VarRangeProxyModel.h"

#include "business/models/VarRangeModel.h"
#include "tests/business/models/TwoColumnFilterContract.h"
#include "tests/business/models/TwoColumnRows.h"

#include <QDateTime>
#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QSortFilterProxyModel, VarRangeProxyModel>);
static_assert(std::is_constructible_v<VarRangeProxyModel, QObject *>);
static_assert(!std::is_default_constructible_v<VarRangeProxyModel>);
static_assert(std::is_same_v<bool,
    decltype(std::declval<const VarRangeProxyModel &>().lessThan(QModelIndex(), QModelIndex()))>);
static_assert(std::is_same_v<bool,
    decltype(std::declval<const VarRangeProxyModel &>().filterAcceptsRow(0, QModelIndex()))>);

class tst_VarRangeProxyModel : public TwoColumnFilterContract {
    Q_OBJECT

protected:
    std::unique_ptr<QSortFilterProxyModel> open(QObject *parent) const override
    {
        return std::make_unique<VarRangeProxyModel>(parent);
    }
    QVariant textValue(const QString &text) const override { return text; }

private slots:
    void onlyIntIsComparedAsANumber_data()
    {
        QTest::addColumn<QVariant>("left");
        QTest::addColumn<QVariant>("right");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QVariant &left, const QVariant &right,
                             const char *expected) { QTest::newRow(tag) << left << right << expected; };
        row("int", 2, 10, "<");
        row("equal", 2, 2, "=");
        row("below zero", -2, -10, ">");
        row("lowest and highest int", INT_MIN, INT_MAX, "<");
        row("double is text", 10.5, 9.5, "<");
        row("double without decimals is text", 10.0, 2.0, "<");
        row("double below zero is text", -1.0, -2.0, "<");
        row("double with exponent is text", 1e20, 2.0, "<");
        row("equal double", 2.5, 2.5, "=");
        row("not a number is text", qQNaN(), 5.0, ">");
        row("not a number is equal to itself", qQNaN(), qQNaN(), "=");
        row("infinite is text", qInf(), 5.0, ">");
        row("infinite below zero is text", -qInf(), 5.0, "<");
        row("float is text", 10.5f, 9.5f, "<");
        row("unsigned is text", 10u, 9u, "<");
        row("64 bits are text", 10LL, 9LL, "<");
        row("truth values are text", true, false, ">");
        row("text is text", "10", "9", "<");
        row("digits in bytes are text", QByteArray("10"), QByteArray("9"), "<");
    }
    void onlyIntIsComparedAsANumber()
    {
        QFETCH(QVariant, left);
        QFETCH(QVariant, right);
        for (const int column : {0, 1, 2})
            QTEST(order(left, right, column, column), "expected");
    }

    void theTypeOfTheLeftValueDecides_data()
    {
        QTest::addColumn<QVariant>("left");
        QTest::addColumn<QVariant>("right");
        QTest::addColumn<QString>("expected");
        const QDateTime date(QDate(2000, 1, 1), QTime(12, 0), Qt::UTC);
        const auto row = [](const char *tag, const QVariant &left, const QVariant &right,
                             const char *expected) { QTest::newRow(tag) << left << right << expected; };
        row("int and text: each is less", 2, "10", "<>");
        row("int and a text that is no number", 5, "abc", "=");
        row("int below zero and a text that is no number", -5, "abc", "<");
        row("int and a double that rounds up to more", 2, 2.9, "<");
        row("int and a double that rounds up to the same", 3, 2.9, ">");
        row("int and no value", 5, QVariant(), ">");
        row("int below zero and no value: each is less", -1, QVariant(), "<>");
        row("int zero and no value", 0, QVariant(), ">");
        row("no value and a text", QVariant(), "abc", "<");
        row("no value and an empty text", QVariant(), "", "=");
        row("no value twice", QVariant(), QVariant(), "=");
        row("no value and a double", QVariant(), -5.0, "<");
        row("no value and a date", QVariant(), date, "<");
        row("a date and an earlier date written as text", date, "1999-12-31T00:00:00Z", ">");
        row("a date and a later date written as text", date, "2000-12-31T00:00:00Z", "<");
        row("a date and int", date, 5, "=");
        row("a day without time is a text", QDate(2000, 1, 1), QDate(10000, 1, 1), ">");
    }
    void theTypeOfTheLeftValueDecides()
    {
        QFETCH(QVariant, left);
        QFETCH(QVariant, right);
        QTEST(order(left, right), "expected");
    }

    void invalidIndexesAreEmptyTexts()
    {
        const auto source = textSource({"5|a@b"});
        source->item(0)->setData(-5, Qt::DisplayRole);
        VarRangeProxyModel proxy(nullptr);
        proxy.setSourceModel(source.get());
        const QModelIndex minusFive = source->index(0, 0);
        const QModelIndex text = source->index(0, 1);
        QVERIFY(!proxy.lessThan(QModelIndex(), QModelIndex()));
        QVERIFY(proxy.lessThan(QModelIndex(), minusFive));
        QVERIFY(proxy.lessThan(minusFive, QModelIndex()));
        QVERIFY(proxy.lessThan(QModelIndex(), text));
        QVERIFY(!proxy.lessThan(text, QModelIndex()));
    }

    void sorting_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("ascending");
        QTest::addColumn<QStringList>("descending");
        const QStringList rows{"2|-1", "10|-2", "1|0"};
        QTest::newRow("minima of whole numbers sort as numbers")
            << "INTEGER" << rows << 0 << QStringList{"1|0", "2|-1", "10|-2"}
            << QStringList{"10|-2", "2|-1", "1|0"};
        QTest::newRow("maxima of whole numbers sort as numbers")
            << "INTEGER" << rows << 1 << QStringList{"10|-2", "2|-1", "1|0"}
            << QStringList{"1|0", "2|-1", "10|-2"};
        for (const char *type : {"REAL", "integer", "STRING", ""}) {
            QTest::addRow("minima of type \"%s\" sort as text", type)
                << type << rows << 0 << QStringList{"1|0", "10|-2", "2|-1"}
                << QStringList{"2|-1", "10|-2", "1|0"};
            QTest::addRow("maxima of type \"%s\" sort as text", type)
                << type << rows << 1 << QStringList{"2|-1", "10|-2", "1|0"}
                << QStringList{"1|0", "10|-2", "2|-1"};
        }
        QTest::newRow("10.5 comes before 9.5")
            << "REAL" << QStringList{"9.5|1", "10.5|1"} << 0 << QStringList{"10.5|1", "9.5|1"}
            << QStringList{"9.5|1", "10.5|1"};
        QTest::newRow("whole numbers that are shown alike are ties both ways")
            << "INTEGER" << QStringList{"2.9|1", "2.1|2", "-0.5|3", "2|4", "0.5|5"} << 0
            << QStringList{"0|3", "0|5", "2|1", "2|2", "2|4"}
            << QStringList{"2|1", "2|2", "2|4", "0|3", "0|5"};
        QTest::newRow("beyond int") << "INTEGER"
                                    << QStringList{"1e300|1", "-1e300|2", "3e9|3", "0|4", "nan|5"} << 0
                                    << QStringList{"-2147483648|2", "0|4", "0|5", "2147483647|1",
                                           "2147483647|3"}
                                    << QStringList{
                                           "2147483647|1", "2147483647|3", "0|4", "0|5", "-2147483648|2"};
        QTest::newRow("a row without an object comes first among texts")
            << "REAL" << QStringList{"1|1", "null", "-1|2"} << 0 << QStringList{"|", "-1|2", "1|1"}
            << QStringList{"1|1", "-1|2", "|"};
    }
    void sorting()
    {
        QFETCH(QString, type);
        QFETCH(QStringList, rows);
        QFETCH(int, column);
        const auto variable = variableWith<Range>(rows);
        variable->setVarType(type);
        VarRangeModel model(nullptr, variable.get());
        VarRangeProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        const QStringList unsorted = shownRows(proxy);
        QCOMPARE(unsorted, shownRows(model));
        proxy.sort(column, Qt::AscendingOrder);
        QTEST(shownRows(proxy), "ascending");
        proxy.sort(column, Qt::DescendingOrder);
        QTEST(shownRows(proxy), "descending");
        proxy.sort(-1);
        QCOMPARE(shownRows(proxy), unsorted);
    }

    void theFilterSeesTheBoundsAsTheyAreShown_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("kept");
        QTest::newRow("an empty pattern") << "REAL"
                                          << "" << QStringList{"2.9|10", "-3|1e+20", "0.5|0"};
        QTest::newRow("decimals") << "REAL"
                                  << "\\.9" << QStringList{"2.9|10"};
        QTest::newRow("decimals that are cut off are not found") << "INTEGER"
                                                                 << "9" << QStringList();
        QTest::newRow("the maximum") << "INTEGER"
                                     << "^10$" << QStringList{"2|10"};
        QTest::newRow("the nearest int of the maximum") << "INTEGER"
                                                        << "7483647" << QStringList{"-3|2147483647"};
        QTest::newRow("a sign") << "INTEGER"
                                << "-" << QStringList{"-3|2147483647"};
        QTest::newRow("the exponent is in upper case") << "REAL"
                                                       << "E" << QStringList{"-3|1e+20"};
        QTest::newRow("the exponent is not in lower case") << "REAL"
                                                           << "e" << QStringList();
    }
    void theFilterSeesTheBoundsAsTheyAreShown()
    {
        QFETCH(QString, type);
        QFETCH(QString, pattern);
        const auto variable = variableWith<Range>({"2.9|10", "-3|1e20", "0.5|0"});
        variable->setVarType(type);
        VarRangeModel model(nullptr, variable.get());
        VarRangeProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        proxy.setFilterRegExp(pattern);
        QTEST(shownRows(proxy), "kept");
    }
};

QTEST_MAIN(tst_VarRangeProxyModel)
#include "tst_VarRangeProxyModel.moc"
