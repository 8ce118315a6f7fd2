#include "editor/Structure.h"

#include "tests/editor/SmallCensus.h"

#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

class tst_StructureLabels : public QObject {
    Q_OBJECT

private slots:
    void aNewLabelHasTheNextCode_data()
    {
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<QString>("next");
        QTest::newRow("of no labels") << QStringList() << "1";
        QTest::newRow("behind the highest") << QStringList{"1", "2"} << "3";
        QTest::newRow("behind the highest, wherever it stands") << QStringList{"7", "2"} << "8";
        QTest::newRow("a gap stays") << QStringList{"1", "9"} << "10";
        QTest::newRow("codes that are no numbers do not count") << QStringList{"A", "2", "B9"} << "3";
        QTest::newRow("codes that are no whole numbers do not count") << QStringList{"7.5", "2"} << "3";
        QTest::newRow("zeros before a number") << QStringList{"007"} << "8";
        QTest::newRow("blanks around a number") << QStringList{" 7 "} << "8";
        QTest::newRow("negative codes") << QStringList{"-5"} << "1";
        QTest::newRow("more than an int holds") << QStringList{"2147483647"} << "2147483648";
        QTest::newRow("the highest number that there is")
            << QStringList{"9223372036854775807"} << "9223372036854775808";
    }

    void aNewLabelHasTheNextCode()
    {
        QFETCH(QStringList, codes);
        SmallCensus census;
        for (const QString &code : codes)
            SmallCensus::addLabel(census.work, code.toUtf8().constData(), "");
        const ValueLabelElement *label = Structure(census.document).addLabel(census.work, 0);
        QTEST(label->getValue(), "next");
        QCOMPARE(label->getLabel(), QString());
        QCOMPARE(census.work.getValueLabelElementList()->first(), label);
        QCOMPARE(census.document.undoStack()->undoText(),
            QStringLiteral("add label %1 to WORK").arg(label->getValue()));
    }

    void labelsArePastedAsSpreadsheetsCopyThem_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("labels");
        const auto row = [](const char *tag, const char *text, int count, const char *labels) {
            QTest::newRow(tag) << QString::fromUtf8(text) << count << QString::fromUtf8(labels);
        };
        row("nothing", "", 0, "");
        row("blank lines", "\n  \n\t\t\n", 0, "");
        row("one line without an end", "1\tYes", 1, "1=Yes");
        row("one line", "1\tYes\n", 1, "1=Yes");
        row("lines that end as elsewhere", "1\tYes\r\n2\tNo\r\n", 2, "1=Yes|2=No");
        row("lines that end as they once did", "1\tYes\r2\tNo", 2, "1=Yes|2=No");
        row("blank lines between", "1\tYes\n\n \n2\tNo", 2, "1=Yes|2=No");
        row("a label with blanks", "1\tHouse or flat", 1, "1=House or flat");
        row("a code with blanks before the tab", "01 A\tHouse", 1, "01 A=House");
        row("blanks around both", " 1 \t Yes ", 1, "1=Yes");
        row("more cells than two", "1\tYes\tSi\tOui", 1, "1=Yes");
        row("an empty cell before", "\tYes", 1, "=Yes");
        row("an empty cell behind", "1\t", 1, "1=");
        row("no tab: at the first blank", "1 Yes, always", 1, "1=Yes, always");
        row("no tab, blanks before", "   1  Yes", 1, "1=Yes");
        row("a code alone", "99", 1, "99=");
        row("a code alone, blanks behind", "99   ", 1, "99=");
        row("letters", "1\tÑandú\n2\tSão Brás", 2, "1=Ñandú|2=São Brás");
        row("tab and blank lines mixed", "1\tYes\n2 No", 2, "1=Yes|2=No");
        row("codes that are there already", "1\tYes\n1\tNo", 2, "1=Yes|1=No");
    }

    void labelsArePastedAsSpreadsheetsCopyThem()
    {
        QFETCH(QString, text);
        QFETCH(int, count);
        SmallCensus census;
        QCOMPARE(Structure(census.document).pasteLabels(census.work, text), count);
        QTEST(labelsOf(census.work), "labels");
        QCOMPARE(census.document.undoStack()->count(), count > 0 ? 1 : 0);
        QCOMPARE(census.document.undoStack()->undoText(),
            count > 0 ? QStringLiteral("paste %1 labels").arg(count) : QString());
    }

    void labelsArePastedBehindThoseThatAreThere()
    {
        SmallCensus census;
        QCOMPARE(Structure(census.document).pasteLabels(census.sex, QStringLiteral("9\tUnknown")), 1);
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female|9=Unknown"));
        census.document.undoStack()->undo();
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female"));
    }

    void copiedLabelsTakeThePlaceOfOthers()
    {
        SmallCensus census;
        SmallCensus::addLabel(census.work, "7", "Seven");
        SmallCensus::addLabel(census.ties, "1", "Male");
        const QList<ValueLabelElement *> own = *census.sex.getValueLabelElementList();
        Structure structure(census.document);
        QVERIFY(structure.copyLabels(census.sex, {&census.work, &census.sex, &census.ties}));
        for (const TDmVariable *variable : {&census.sex, &census.work, &census.ties})
            QCOMPARE(labelsOf(*variable), QStringLiteral("1=Male|2=Female"));
        QCOMPARE(*census.sex.getValueLabelElementList(), own);

        // Nobody shares a label with anybody.
        census.work.getValueLabelElementList()->first()->setLabel(QStringLiteral("changed"));
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female"));
        QCOMPARE(labelsOf(census.ties), QStringLiteral("1=Male|2=Female"));

        census.document.undoStack()->undo();
        QCOMPARE(labelsOf(census.work), QStringLiteral("7=Seven"));
        QCOMPARE(labelsOf(census.ties), QStringLiteral("1=Male"));
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female"));
    }

    void copyingNoLabelsEmptiesTheTargets()
    {
        SmallCensus census;
        QVERIFY(Structure(census.document).copyLabels(census.age, {&census.sex}));
        QCOMPARE(labelsOf(census.sex), QString());
        census.document.undoStack()->undo();
        QCOMPARE(labelsOf(census.sex), QStringLiteral("1=Male|2=Female"));
    }

    void aTargetNamedTwiceIsCopiedToOnce()
    {
        // What the first copying made would be nobody's: the leak checker watches.
        SmallCensus census;
        QVERIFY(Structure(census.document).copyLabels(census.sex, {&census.work, &census.work}));
        QCOMPARE(labelsOf(census.work), QStringLiteral("1=Male|2=Female"));
        census.document.undoStack()->undo();
        QCOMPARE(labelsOf(census.work), QString());
    }

    void copyingToNobodyIsNothing()
    {
        SmallCensus census;
        QVERIFY(!Structure(census.document).copyLabels(census.sex, {}));
        QCOMPARE(census.document.undoStack()->count(), 0);
    }
};

QTEST_APPLESS_MAIN(tst_StructureLabels)
#include "tst_StructureLabels.moc"
