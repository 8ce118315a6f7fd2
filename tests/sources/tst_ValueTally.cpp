#include "sources/ValueTally.h"

#include "sources/SourceNumber.h"

#include <QtTest>

using namespace tessel::sources;

namespace {

/// "LEAST..GREATEST {CATEGORIES}", the tabs shown as bars.
QString told(const ValueTally &tally)
{
    const auto bound = [](const std::optional<double> &number) {
        return number ? numberText(*number) : QString();
    };
    return QStringLiteral("%1..%2 {%3}")
        .arg(bound(tally.least()), bound(tally.greatest()), tally.categories().replace('\t', '|'));
}

} // namespace

class tst_ValueTally : public QObject {
    Q_OBJECT

private slots:
    void numbers_data()
    {
        QTest::addColumn<QVector<double>>("values");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("areWhole");
        QTest::newRow("none") << QVector<double>{} << ".. {}" << true;
        QTest::newRow("each once, sorted as numbers")
            << QVector<double>{10, 9, 10, -1} << "-1..10 {-1 -1|9 9|10 10}" << true;
        QTest::newRow("as many as there may be") << QVector<double>{1, 2, 3} << "1..3 {1 1|2 2|3 3}" << true;
        QTest::newRow("one more") << QVector<double>{1, 2, 3, 4, 1} << "1..4 {}" << true;
        QTest::newRow("decimals are no codes") << QVector<double>{1, 1.5, 2} << "1..2 {}" << false;
        QTest::newRow("beyond an int there are no codes")
            << QVector<double>{1, 3e9} << "1..3000000000 {}" << false;
        QTest::newRow("missing codes are out of the range")
            << QVector<double>{1, 99, 98} << "1..1 {1 1|98 98|99 99}" << true;
        QTest::newRow("only missing codes") << QVector<double>{99} << ".. {99 99}" << true;
    }

    void numbers()
    {
        QFETCH(QVector<double>, values);
        StatisticalVariable variable;
        variable.missing = {{false, 98, 99, QString()}};
        ValueTally tally(variable, 3);
        for (const double value : qAsConst(values))
            tally.addNumber(value);
        QTEST(told(tally), "expected");
        QTEST(tally.areWhole(), "areWhole");
    }

    void texts_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("longest");
        QTest::newRow("none") << QStringList{} << ".. {}" << 0;
        QTest::newRow("each once, sorted") << QStringList{"S", "N", "S"} << ".. {N N|S S}" << 1;
        QTest::newRow("blanks at the end do not count") << QStringList{"N  ", "N"} << ".. {N N}" << 1;
        QTest::newRow("empty texts are no values") << QStringList{"", "  ", "N"} << ".. {N N}" << 1;
        QTest::newRow("one more than there may be") << QStringList{"a", "b", "c", "dd"} << ".. {}" << 2;
        QTest::newRow("blanks make no codes") << QStringList{"a", "b c"} << ".. {}" << 3;
        QTest::newRow("the longest is known behind those that are listed")
            << QStringList{"a", "b", "c", "d", "eeeee"} << ".. {}" << 5;
    }

    void texts()
    {
        QFETCH(QStringList, values);
        const StatisticalVariable variable;
        ValueTally tally(variable, 3);
        for (const QString &value : qAsConst(values))
            tally.addText(value);
        QTEST(told(tally), "expected");
        QTEST(tally.longestText(), "longest");
    }
};

QTEST_APPLESS_MAIN(tst_ValueTally)

#include "tst_ValueTally.moc"
