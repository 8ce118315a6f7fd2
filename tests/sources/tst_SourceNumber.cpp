#include "sources/SourceNumber.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace tessel::sources;

class tst_SourceNumber : public QObject {
    Q_OBJECT

private slots:
    void numberText_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("expected");
        QTest::newRow("whole") << 12.0 << "12";
        QTest::newRow("negative") << -3.0 << "-3";
        QTest::newRow("zero below nothing") << -0.0 << "0";
        QTest::newRow("no exponent") << 13770000000.0 << "13770000000";
        QTest::newRow("decimals") << 0.1 << "0.1";
        QTest::newRow("every whole number up to 2^53") << 9007199254740992.0 << "9007199254740992";
        QTest::newRow("enormous") << 1e300 << "1e+300";
    }

    void numberText()
    {
        QFETCH(double, number);
        QTEST(tessel::sources::numberText(number), "expected");
    }

    void wholeCode_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("expected");
        QTest::newRow("whole") << 12.0 << "12";
        QTest::newRow("greatest") << 2147483647.0 << "2147483647";
        QTest::newRow("least") << -2147483648.0 << "-2147483648";
        QTest::newRow("too great") << 2147483648.0 << "none";
        QTest::newRow("too small") << -2147483649.0 << "none";
        QTest::newRow("decimals") << 1.5 << "none";
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "none";
        QTest::newRow("not a number") << std::nan("") << "none";
    }

    void wholeCode()
    {
        QFETCH(double, number);
        const std::optional<int> code = tessel::sources::wholeCode(number);
        QTEST(code ? QString::number(*code) : QStringLiteral("none"), "expected");
    }

    void widened_data()
    {
        QTest::addColumn<float>("number");
        QTest::addColumn<double>("expected");
        QTest::newRow("a tenth") << 0.1F << 0.1;
        QTest::newRow("seven digits") << 1.234567F << 1.234567;
        QTest::newRow("whole") << 16777216.0F << 16777216.0;
        QTest::newRow("eight digits") << 33554.434F << 33554.434;
    }

    void widened()
    {
        QFETCH(float, number);
        QFETCH(double, expected);
        const double wide = tessel::sources::widened(number);
        QVERIFY2(!(wide < expected) && !(expected < wide), qPrintable(QString::number(wide, 'g', 17)));
    }
};

QTEST_APPLESS_MAIN(tst_SourceNumber)

#include "tst_SourceNumber.moc"
