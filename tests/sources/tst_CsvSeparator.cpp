#include "sources/CsvSeparator.h"

#include <QtTest>

using tessel::sources::CsvSeparator;

class tst_CsvSeparator : public QObject {
    Q_OBJECT

private slots:
    void separatorsAreFound_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<char>("separator");
        QTest::addColumn<bool>("isCertain");
        const auto row = [](const char *tag, const QByteArray &text, char separator, bool isCertain) {
            QTest::newRow(tag) << text << separator << isCertain;
        };
        row("no text", "", '\0', false);
        row("blank lines", " \n\r\n ", '\0', false);
        row("no line end yet", "a;b", ';', false);
        row("LF", "a;b\n", ';', true);
        row("CR", "a;b\r", ';', true);
        row("what comes behind the line end", "a;b\nc,d,e,f", ';', true);
        row("blank lines first", "\n  \r\na|b\n", '|', true);
        row("one column", "a\nb,c\n", '\0', true);
        row("an empty record of tabs", "\t\n", '\t', true);
        row("more of the other", "a,b;c;d\n", ';', true);
        row("a tie of all", "|\t;,\n", ',', true);
        row("within quotation marks", "\"a,b,c\";d\n", ';', true);
        row("a line end within quotation marks", "\"a\n\";d\n", ';', true);
        row("an open quotation mark", "d;\"a\n,,", ';', false);
        row("a doubled quotation mark does not close", "\"a\"\",,\";d\n", ';', true);
        row("a lone one neither", "\"a\"b,,\";d\n", ';', true);
        row("nor does one behind which there is only a blank first", "\"a\" b,,\";d\n", ';', true);
        row("a blank and another one", "\"a\" \";d,,\n", ',', true);
        row("a doubled one at the end", "\"a\"\"\";d\n", ';', true);
        row("blanks behind the closing one", "\"a,,\"  ;d\n", ';', true);
        row("blanks before the opening one", "x;  \"a,,\"\n", ';', true);
        row("within a word it opens nothing", "5\";6\",7;8\n", ';', true);
        row("nor behind a word and a blank", "x \"a,,b\";d\n", ',', true);
    }

    void separatorsAreFound()
    {
        QFETCH(QByteArray, text);
        CsvSeparator atOnce;
        atOnce.look(text);
        QTEST(atOnce.found(), "separator");
        QTEST(atOnce.isCertain(), "isCertain");

        CsvSeparator inPieces;
        for (const char c : qAsConst(text))
            inPieces.look(QByteArray(1, c));
        QTEST(inPieces.found(), "separator");
        QTEST(inPieces.isCertain(), "isCertain");
    }
};

QTEST_APPLESS_MAIN(tst_CsvSeparator)
#include "tst_CsvSeparator.moc"
