#include "documents/QuickWriter.h"

#include "documents/DocumentForm.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QtTest>

#include <limits>

using namespace tessel::documents;

namespace {

/// A root with one variable, which the caller may change.
struct Tree {
    Tree() { root.addVariables(variable); }

    void addLabel(const QString &code, const QString &label)
    {
        auto *element = new ValueLabelElement;
        element->setValue(code);
        element->setLabel(label);
        variable->addValueLabelElement(element);
    }

    void addRange(double min, double max)
    {
        auto *range = new Range;
        range->setRangeMin(min);
        range->setRangeMax(max);
        variable->getMetadataVariables()->addItemRange(range);
    }

    TDmEntity root;
    TDmVariable *variable = new TDmVariable;
};

} // namespace

class tst_QuickWriter : public QObject {
    Q_OBJECT

private slots:
    void anEmptyTreeIsWritten()
    {
        const TDmEntity root;
        QCOMPARE(textQuickly(root).value(),
            QByteArray("{\n    \"selectable\": false,\n    \"virtual\": false\n}\n"));
    }

    void anEmptyObjectInsideIsWrittenOnTwoLines()
    {
        const Tree tree;
        QVERIFY(textQuickly(tree.root).value().contains("\"metadata\": {\n            },\n"));
    }

    void textsAreWrittenAsQtWritesThem_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QString("Age 7 /~");
        QTest::newRow("what is escaped") << QString("\"\\\b\f\n\r\t\x1f\x7f") + QChar(0) + QChar(1);
        QTest::newRow("two bytes") << QString(QChar(0x80)) + QChar(0x7ff);
        QTest::newRow("three bytes") << QString(QChar(0x800)) + QChar(0xffff) + QChar(0xd7ff) + QChar(0xe000);
        QTest::newRow("four bytes") << QString::fromUtf8("\xf0\x90\x80\x80\xf4\x8f\xbf\xbf");
        QTest::newRow("half of a pair at the end") << QString("a") + QChar(0xd83d);
        QTest::newRow("half of a pair twice") << QString(QChar(0xd83d)) + QChar(0xd83d) + QChar(0xde00);
        QTest::newRow("the other half") << QString(QChar(0xde00)) + "a";
        QTest::newRow("a mark of the byte order inside") << QString("a") + QChar(0xfeff);
        QTest::newRow("longer than a piece") << QString(300000, QChar(0xe9));
    }

    void textsAreWrittenAsQtWritesThem()
    {
        QFETCH(QString, text);
        Tree tree;
        tree.root.setName(text);
        tree.variable->setLabel(text);
        tree.addLabel(text, text);
        QCOMPARE(textQuickly(tree.root).value(), dictionaryTextOfLibrary(tree.root));
    }

    void numbersAreWrittenAsQtWritesThem_data()
    {
        QTest::addColumn<double>("number");
        for (double number : {0.0, -0.0, 1.0, -1.0, 910.5, 0.1, 1e-5, 1e-4, 123456.789, 1e15, 1e16, 1e17,
                 1e18, 9007199254740991.0, 9007199254740992.0, 9007199254740994.0, -20744104947155888.0,
                 449132156055158144.0, 9223372036854775808.0, -9223372036854775808.0, 1.0725e19,
                 18446744073709551616.0, 1e20, 1e21, 1e22, 1e100, 5e-324, 1.7976931348623157e308})
            QTest::newRow(QByteArray::number(number, 'g', 17).constData()) << number;
    }

    void numbersAreWrittenAsQtWritesThem()
    {
        QFETCH(double, number);
        Tree tree;
        tree.addRange(number, -number);
        tree.variable->setVarType("REAL");
        tree.addLabel(QString::number(number, 'g', 17), QString());
        QCOMPARE(textQuickly(tree.root).value(), dictionaryTextOfLibrary(tree.root));
    }

    void whatChangesOnTheWayIsRefused_data()
    {
        QTest::addColumn<double>("bound");
        QTest::addColumn<QString>("text");
        using Limits = std::numeric_limits<double>;
        QTest::newRow("infinite") << Limits::infinity() << QString();
        QTest::newRow("not a number") << Limits::quiet_NaN() << QString();
        QTest::newRow("a mark of the byte order") << 1.0 << QString(QChar(0xfeff)) + "A";
    }

    void whatChangesOnTheWayIsRefused()
    {
        QFETCH(double, bound);
        QFETCH(QString, text);
        Tree tree;
        tree.addRange(bound, 1);
        tree.variable->setLabel(text);
        QVERIFY(!textQuickly(tree.root));
        const QByteArray written = dictionaryTextOfLibrary(tree.root);
        QVERIFY(!isWrittenAs(tree.root, written));
        QCOMPARE(dictionaryText(tree.root), written);
    }

    void nullPointersArePassedOver()
    {
        Tree tree;
        tree.root.addVariables(nullptr);
        tree.root.getChildren()->append(nullptr);
        tree.variable->addValueLabelElement(nullptr);
        tree.variable->setMetadataVariables(nullptr);
        QCOMPARE(textQuickly(tree.root).value(), dictionaryTextOfLibrary(tree.root));
        tree.root.setChildren(nullptr);
        QCOMPARE(textQuickly(tree.root).value(), dictionaryTextOfLibrary(tree.root));
    }

    void everyDifferenceIsSeen()
    {
        Tree tree;
        tree.root.setName("A");
        for (int i = 0; i < 5000; ++i)
            tree.addLabel(QString::number(i), "a label of some length");
        const QByteArray text = textQuickly(tree.root).value();
        QVERIFY(text.size() > 300000);
        QVERIFY(isWrittenAs(tree.root, text));
        QVERIFY(!isWrittenAs(tree.root, text + ' '));
        QVERIFY(!isWrittenAs(tree.root, text.chopped(1)));
        QVERIFY(!isWrittenAs(tree.root, QByteArray()));
        for (int at : {0, 70000, 200000, text.size() - 1}) {
            QByteArray changed = text;
            changed[at] = '#';
            QVERIFY(!isWrittenAs(tree.root, changed));
        }
    }
};

QTEST_APPLESS_MAIN(tst_QuickWriter)
#include "tst_QuickWriter.moc"
