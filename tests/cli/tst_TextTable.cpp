#include "cli/TextTable.h"

#include <QtTest>

using tessel::cli::factsText;
using tessel::cli::TextTable;

class tst_TextTable : public QObject {
    Q_OBJECT

private slots:
    void columnsAreAsWideAsTheirWidestCell()
    {
        TextTable table({{QStringLiteral("Name")}, {QStringLiteral("N"), TextTable::Align::Right},
            {QStringLiteral("Label")}});
        table.addRow({QStringLiteral("A"), QStringLiteral("1"), QStringLiteral("x y")});
        table.addRow({QStringLiteral("LONGER"), QStringLiteral("1000"), QStringLiteral("z")});
        QCOMPARE(table.text(), QStringLiteral("Name       N  Label\nA          1  x y\nLONGER  1000  z\n"));
    }

    void titlesWidenColumnsOnlyWhereTheyAreShown()
    {
        TextTable table({{QStringLiteral("A long title")}, {QStringLiteral("B")}});
        table.addRow({QStringLiteral("a"), QStringLiteral("b")});
        QCOMPARE(table.text(), QStringLiteral("A long title  B\na             b\n"));
        QCOMPARE(table.rowText(), QStringLiteral("a  b\n"));
    }

    void aColumnWithoutAnyTextIsLeftOut()
    {
        TextTable table({{QStringLiteral("A")}, {QStringLiteral("Empty")}, {QStringLiteral("B")}});
        table.addRow({QStringLiteral("1"), QString(), QString()});
        table.addRow({QString(), QString(), QStringLiteral("2")});
        QCOMPARE(table.text(), QStringLiteral("A  B\n1\n   2\n"));
    }

    void aTableWithoutRowsIsAnEmptyLineOfTitles()
    {
        const TextTable table({{QStringLiteral("A")}});
        QCOMPARE(table.text(), QStringLiteral("\n"));
        QCOMPARE(table.rowText(), QString());
    }

    void noLineEndsInBlanks()
    {
        TextTable table({{QStringLiteral("A")}, {QStringLiteral("Long title")}});
        table.addRow({QStringLiteral("1"), QStringLiteral("b")});
        table.addRow({QStringLiteral("1"), QString()});
        QCOMPARE(table.text(), QStringLiteral("A  Long title\n1  b\n1\n"));
    }

    void widthsCountWhatTakesAPlaceOfItsOwn_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::newRow("accented letter") << QString::fromUtf8("\xc3\xb1");
        QTest::newRow("letter and accent") << QString::fromUtf8("n\xcc\x83");
        QTest::newRow("letter of another plane") << QString::fromUtf8("\xf0\x9d\x94\x80");
        QTest::newRow("soft hyphen") << QString::fromUtf8("a\xe2\x80\x8b");
    }

    void widthsCountWhatTakesAPlaceOfItsOwn()
    {
        QFETCH(QString, cell);
        TextTable table({{QString()}, {QString()}});
        table.addRow({cell, QStringLiteral("|")});
        table.addRow({QStringLiteral("xx"), QStringLiteral("|")});
        QCOMPARE(table.rowText(), cell + QStringLiteral("   |\nxx  |\n"));
    }

    void controlCharactersAreShown()
    {
        TextTable table({{QString()}});
        table.addRow({QStringLiteral("a\x1b[0m\n\t\x7f") + QChar(0x80) + QChar(0x9f) + QChar(0xa0)
            + QLatin1Char('~')});
        QCOMPARE(table.rowText(),
            QStringLiteral("a\\u001b[0m\\u000a\\u0009\\u007f\\u0080\\u009f") + QChar(0xa0)
                + QStringLiteral("~\n"));
    }

    void factsWithoutTextAreLeftOut()
    {
        QCOMPARE(
            factsText(QStringLiteral("Title"),
                {{QStringLiteral("One"), QStringLiteral("1")}, {QStringLiteral("Nothing at all"), QString()},
                    {QStringLiteral("Three"), QStringLiteral("a\nb")}}),
            QStringLiteral("Title\nOne    1\nThree  a\\u000ab\n"));
        QCOMPARE(factsText(QStringLiteral("\x1b"), {}), QStringLiteral("\\u001b\n"));
    }
};

QTEST_APPLESS_MAIN(tst_TextTable)
#include "tst_TextTable.moc"
