#include "business/models/VariableDiccionaryModel.h"

#include "tests/business/models/VariableTable.h"

#include <QDate>
#include <QtTest>

#include <climits>
#include <cmath>
#include <limits>

using namespace tessel::test;

class tst_VariableTags : public QObject {
    Q_OBJECT

private slots:
    void aTagIsTypedAsANumber_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("tag");
        const int stays = 31;
        const auto row = [](const char *tag, const QVariant &value, int stored) {
            QTest::newRow(tag) << value << stored;
        };
        row("a number", "7", 7);
        row("a padded number", "0007", 7);
        row("a sign", "+12", 12);
        row("blanks around it", " 12 ", 12);
        row("none", "0", 0);
        row("negative none", "-0", 0);
        row("a negative number", "-5", 5);
        row("the highest tag", "9999", 9999);
        row("one above the highest tag", "10000", 9999);
        row("far above", "123456", 9999);
        row("the highest int", "2147483647", 9999);
        row("a negative number as low as the highest tag", "-9999", 9999);
        row("the clamp comes before the absolute value", "-10000", 10000);
        row("the clamp comes before the absolute value, far below", "-20000", 20000);
        row("one above the lowest int", "-2147483647", INT_MAX);
        row("the lowest int has the highest as its absolute value", "-2147483648", INT_MAX);
        row("one above the highest int is no number", "2147483648", stays);
        row("one below the lowest int is no number", "-2147483649", stays);
        row("what would wrap around to 5 is no number", "4294967301", stays);
        row("a hundred digits are no number", QString(100, '9'), stays);
        row("letters", "abc", stays);
        row("a number and a letter", "12a", stays);
        row("two numbers", "1 2", stays);
        row("nothing", "", stays);
        row("blanks", "  ", stays);
        row("a fraction as text", "2.5", stays);
        row("an exponent", "1e3", stays);
        row("a hexadecimal number", "0x10", stays);
        row("a group separator", "1,000", stays);
        row("infinity as text", "inf", stays);
        row("not a number as text", "nan", stays);
        row("digits of another script", QString::fromUtf8("\u0661\u0662"), stays);
        row("an int", 12, 12);
        row("the lowest int as int", INT_MIN, INT_MAX);
        row("an int above", 10000, 9999);
        row("an int far below", -20000, 20000);
        row("unsigned", 12U, 12);
        row("unsigned and above int", UINT_MAX, stays);
        row("qlonglong", qlonglong(-12), 12);
        row("qlonglong that would wrap around to 5", qlonglong(4294967301), stays);
        row("qlonglong that would wrap around to -5", qlonglong(-4294967301), stays);
        row("the highest qlonglong", std::numeric_limits<qlonglong>::max(), stays);
        row("the lowest qlonglong", std::numeric_limits<qlonglong>::min(), stays);
        row("the highest qulonglong", std::numeric_limits<qulonglong>::max(), stays);
        row("a double is rounded", 2.6, 3);
        row("a negative double is rounded", -2.6, 3);
        row("a double that rounds above", 9999.6, 9999);
        row("a small double", 1e-300, 0);
        row("a double above int", 3e9, stays);
        row("a double below int", -3e9, stays);
        row("a huge double", 1e300, stays);
        row("not a number", std::nan(""), stays);
        row("infinity", std::numeric_limits<double>::infinity(), stays);
        row("negative infinity", -std::numeric_limits<double>::infinity(), stays);
        row("a float", 4.4F, 4);
        row("true", true, 1);
        row("false", false, 0);
        row("bytes", QByteArray("12"), 12);
        row("bytes that are no number", QByteArray("x"), stays);
        row("a character is its code", QChar('7'), 55);
        row("an enumerator is its value", QVariant::fromValue(Qt::Checked), 2);
        row("no value", QVariant(), stays);
        row("a list", QVariantList({5}), stays);
        row("a date", QDate(2020, 1, 1), stays);
    }
    void aTagIsTypedAsANumber()
    {
        QFETCH(QVariant, value);
        QFETCH(int, tag);
        VariableTable table({"AGE|EDAD|Age in years|PERSONS"});
        table.variable(0)->setTag(31);
        // Accepted and announced, whether the tag changed or not.
        QCOMPARE(table.edit(0, 4, value, {}), QString("accepted"));
        QCOMPARE(textOf(table.variable(0)), QStringLiteral("AGE|EDAD|Age in years|PERSONS|%1").arg(tag));
    }

    void aTagMayBeUsedTwiceAndBeTheNameOfAnything()
    {
        VariableTable table({"5|5||", "SEX", "SEX"});
        table.entity("FARM")->setName("5");
        table.house->setRefCode("5");
        QCOMPARE(table.edit(1, 4, "5", {}), QString("accepted"));
        QCOMPARE(table.edit(0, 4, "5", {}), QString("accepted"));
        QCOMPARE(table.variable(0)->getTag(), 5);
        QCOMPARE(table.variable(1)->getTag(), 5);
    }
};

QTEST_MAIN(tst_VariableTags)
#include "tst_VariableTags.moc"
