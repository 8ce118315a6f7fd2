#include "sources/CsvNumber.h"

#include <QtTest>

using namespace tessel::sources;
using Kind = CsvNumber::Kind;

class tst_CsvNumber : public QObject {
    Q_OBJECT

private slots:
    void textsAreJudged_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        const auto row = [](const char *tag, const char *text, Kind kind, double value = 0,
                             int decimals = 0) {
            QTest::newRow(tag) << QString::fromUtf8(text) << int(kind) << value << decimals;
        };
        row("zero", "0", Kind::Whole, 0);
        row("a whole number", "120", Kind::Whole, 120);
        row("a negative one", "-5", Kind::Whole, -5);
        row("the highest", "2147483647", Kind::Whole, 2147483647);
        row("the lowest", "-2147483648", Kind::Whole, -2147483648.0);
        row("one more than the highest", "2147483648", Kind::Long, 2147483648.0);
        row("one less than the lowest", "-2147483649", Kind::Long, -2147483649.0);
        row("a decimal point", "1.50", Kind::Point, 1.5, 2);
        row("a negative one with a decimal point", "-0.25", Kind::Point, -0.25, 2);
        row("nothing before the point", ".5", Kind::Point, 0.5, 1);
        row("nothing behind the point", "5.", Kind::Point, 5);
        row("a decimal comma", "1,125", Kind::Comma, 1.125, 3);
        row("an exponent", "1.25e+02", Kind::Point, 125, 0);
        row("an exponent that leaves decimals", "1.2345E1", Kind::Point, 12.345, 3);
        row("an exponent that makes decimals", "5e-03", Kind::Point, 0.005, 3);
        row("a minus zero with decimals is a zero", "-0.0", Kind::Point, 0, 1);
        row("no text", "", Kind::None);
        row("a word", "abc", Kind::None);
        row("leading zeros", "007", Kind::None);
        row("several zeros", "00", Kind::None);
        row("a leading zero before decimals", "01.5", Kind::None);
        row("a minus zero", "-0", Kind::None);
        row("a plus", "+5", Kind::None);
        row("a minus alone", "-", Kind::None);
        row("two signs", "--5", Kind::None);
        row("a point alone", ".", Kind::None);
        row("two points", "1.2.3", Kind::None);
        row("a point and a comma", "1.234,5", Kind::None);
        row("a blank within", "1 2", Kind::None);
        row("a unit", "12kg", Kind::None);
        row("hexadecimal", "0x1F", Kind::None);
        row("infinity", "inf", Kind::None);
        row("no number", "nan", Kind::None);
        row("a code with an E", "2E5", Kind::None);
        row("an exponent without digits", "1.5e", Kind::None);
        row("an exponent with only a sign", "1.5e+", Kind::None);
        row("an exponent behind a comma", "1,5e+3", Kind::None);
        row("beyond what a double holds", "1.0e+999", Kind::None);
        row("an exponent that no int holds", "1.0e+99999999999", Kind::None);
        row("digits of another script", "\xd9\xa1\xd9\xa2", Kind::None);
    }

    void textsAreJudged()
    {
        QFETCH(QString, text);
        const CsvNumber number = CsvNumber::of(text);
        QTEST(int(number.kind), "kind");
        QTEST(number.value, "value");
        QTEST(number.decimals, "decimals");
        QVERIFY(!std::signbit(number.value) || number.value < 0);
    }
};

QTEST_APPLESS_MAIN(tst_CsvNumber)
#include "tst_CsvNumber.moc"
