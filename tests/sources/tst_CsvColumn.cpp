#include "sources/CsvColumn.h"

#include "model/TDmSourceField.h"

#include <QtTest>

using namespace tessel::sources;

namespace {

QStringList numbers(int first, int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::number(first + i));
    return texts;
}

/// "TYPE size decimals min..max [categories]", tabs as bars, remarks in braces behind it.
QString textOf(const CsvColumn &column)
{
    TDmSourceField field;
    const QStringList remarks = column.describe(field);
    QString text = QStringLiteral("%1 %2 %3 %4..%5 [%6]")
                       .arg(field.fieldType, QString::number(field.size), QString::number(field.decimals),
                           field.rangeMin, field.rangeMax, field.categories);
    text.replace(QLatin1Char('\t'), QLatin1Char('|'));
    for (const QString &remark : remarks)
        text += QStringLiteral(" {%1}").arg(remark);
    return text;
}

} // namespace

class tst_CsvColumn : public QObject {
    Q_OBJECT

private slots:
    void valuesMakeAField_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QStringList &values, const QString &expected) {
            QTest::newRow(tag) << values << expected;
        };
        const QString comma = " {Its numbers have a decimal comma; they were read as if it were a point.}";
        row("whole numbers", {"2", "10", "-3", "2"}, "INTEGER 2 0 -3..10 [-3 -3|2 2|10 10]");
        row("zeros", {"0", "0"}, "INTEGER 1 0 0..0 [0 0]");
        row("only positive numbers", {"12", "7"}, "INTEGER 2 0 7..12 [7 7|12 12]");
        row("only negative numbers", {"-12", "-7"}, "INTEGER 3 0 -12..-7 [-12 -12|-7 -7]");
        row("empty values are none", {"", "5", ""}, "INTEGER 1 0 5..5 [5 5]");
        row("leading zeros", {"10", "7", "007", "x"}, "STRING 3 0 .. [007 007|7 7|10 10|x x]");
        row("codes of two digits", {"10", "02", "01"}, "STRING 2 0 .. [01 01|02 02|10 10]");
        row("a number that no int holds", {"1", "2147483648"}, "STRING 10 0 .. [1 1|2147483648 2147483648]");
        row("decimals", {"1.5", "2.25", "-3"}, "REAL 4 2 -3..2.25 []");
        row("decimals and a number that no int holds", {"2147483648", "0.5"}, "REAL 10 1 0.5..2147483648 []");
        row("decimals and leading zeros", {"1.5", "007"}, "STRING 3 0 .. [1.5 1.5|007 007]");
        row("a range in shortest decimals", {"0.1", "1.5e+06"}, "REAL 7 1 0.1..1500000 []");
        row("a minus zero", {"-0.0"}, "REAL 4 1 0..0 []");
        row("decimal commas", {"1,5", "2", "-0,125"}, "REAL 6 3 -0.125..2 []" + comma);
        row("points and commas", {"1,5", "2.5"}, "STRING 3 0 .. [1,5 1,5|2.5 2.5]");
        row("texts", {"b", "A", "a"}, "STRING 1 0 .. [A A|a a|b b]");
        row("numbers among texts come first", {"X", "10", "9"}, "STRING 2 0 .. [9 9|10 10|X X]");
        row("a text behind numbers", {"1", "x", "2"}, "STRING 1 0 .. [1 1|2 2|x x]");
        row("accents count once", {QStringLiteral("A\u00f1o")},
            QStringLiteral("STRING 3 0 .. [A\u00f1o A\u00f1o]"));
        row("one value with a blank", {"New York", "Lima"},
            "STRING 8 0 .. [Lima Lima] {1 value holds blanks and is no category: a code cannot hold them.}");
        row("a blank of no width is a blank", {QStringLiteral("\ufeff"), "Lima"},
            "STRING 4 0 .. [Lima Lima] {1 value holds blanks and is no category: a code cannot hold them.}");
        row("several values with blanks of all kinds", {"a b", "a\tb", "a\nb", QStringLiteral("a\u00a0b")},
            "STRING 3 0 .. [] {4 values hold blanks and are no categories: a code cannot hold them.}");
        row("no value", {}, "STRING 0 0 .. [] {No value was found; the type STRING is a guess.}");
        row("only empty values", {"", ""},
            "STRING 0 0 .. [] {No value was found; the type STRING is a guess.}");
        row("a value that is too long for a code",
            {"x", QString(CsvColumn::kLongestCode + 1, QLatin1Char('y'))}, "STRING 251 0 .. []");
        const QString longest(CsvColumn::kLongestCode, QLatin1Char('y'));
        row("the longest code", {longest}, QStringLiteral("STRING 250 0 .. [%1 %1]").arg(longest));
        row("one value more than allowed", numbers(1, 6) + numbers(1, 6), "INTEGER 1 0 1..6 []");
        row("blanks are not told where there are no categories", {"a b", "c d", "e f", "g h", "i j", "k l"},
            "STRING 3 0 .. []");
    }

    void valuesMakeAField()
    {
        QFETCH(QStringList, values);
        CsvColumn column(5, true);
        for (const QString &value : qAsConst(values))
            column.add(value);
        QTEST(textOf(column), "expected");
    }

    void asManyCategoriesAsAllowed()
    {
        CsvColumn column(5, true);
        for (const QString &value : numbers(8, 5) + numbers(8, 5))
            column.add(value);
        QCOMPARE(textOf(column), QString("INTEGER 2 0 8..12 [8 8|9 9|10 10|11 11|12 12]"));
    }

    void noCategoriesMayBeWanted()
    {
        CsvColumn column(0, true);
        column.add(QStringLiteral("1"));
        QCOMPARE(textOf(column), QString("INTEGER 1 0 1..1 []"));
    }

    void aCommaIsNoDecimalCommaWhereItSeparates()
    {
        CsvColumn column(5, false);
        column.add(QStringLiteral("1,5"));
        QCOMPARE(textOf(column), QString("STRING 3 0 .. [1,5 1,5]"));
    }

    void whatTheFieldHadOtherwiseStays()
    {
        TDmSourceField field;
        field.name = QStringLiteral("AGE");
        field.tag = 7;
        field.relativePosition = 3;
        CsvColumn column(5, true);
        column.add(QStringLiteral("1"));
        QCOMPARE(column.describe(field), QStringList());
        QCOMPARE(field.name, QString("AGE"));
        QCOMPARE(field.tag, 7);
        QCOMPARE(field.relativePosition, 3);
    }
};

QTEST_APPLESS_MAIN(tst_CsvColumn)
#include "tst_CsvColumn.moc"
