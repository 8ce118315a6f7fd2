#include "business/detail/JsonText.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QtTest>

#include <limits>

using tessel::detail::JsonText;
using tessel::detail::TextBuffer;

namespace {

QByteArray bytesOf(const TextBuffer &buffer) { return {buffer.data(), int(buffer.size())}; }

/// The text of an object whose keys \a fill writes.
template<typename Fill>
QByteArray written(Fill &&fill)
{
    TextBuffer buffer;
    JsonText out(buffer);
    fill(out);
    out.close();
    return bytesOf(buffer);
}

} // namespace

/// What is wrong here costs time only: the writer falls back on inserting key by key when its text is no
/// JSON.
class tst_JsonText : public QObject {
    Q_OBJECT

private slots:
    void keysFollowOneAnother();
    void eachUnitOfATextIsWrittenAsIsOrEscaped_data();
    void eachUnitOfATextIsWrittenAsIsOrEscaped();
    void everyUnitIsReadBack();
    void numbersHaveTheirShortestText_data();
    void numbersHaveTheirShortestText();
    void numbersThatAreNotFiniteAreNullAndNotExact_data();
    void numbersThatAreNotFiniteAreNullAndNotExact();
    void whatIsNotExactDeepInsideIsNotExactAbove();
    void listsLeaveOutNullPointersAndAreLeftOutWithoutItems();
    void clearedBufferIsWrittenAnew();
    void keysFitWhereverTheBufferEnds();
};

void tst_JsonText::keysFollowOneAnother()
{
    QCOMPARE(written([](JsonText &) {}), QByteArray("{}"));
    QCOMPARE(written([](JsonText &out) {
        out.boolean("a", true);
        out.integer("b", -5);
        out.object("c", [](JsonText &inner) { inner.boolean("d", false); });
        out.object("e", [](JsonText &) {});
        out.text("f", "x");
        out.real("g", 2.5);
    }),
        QByteArray(R"({"a":true,"b":-5,"c":{"d":false},"e":{},"f":"x","g":2.5})"));
}

void tst_JsonText::eachUnitOfATextIsWrittenAsIsOrEscaped_data()
{
    QTest::addColumn<ushort>("unit");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](ushort unit, const char *bytes) {
        QTest::addRow("U+%04X", unit) << unit << QByteArray(bytes);
    };
    row(0x0000, "\\u0000");
    row(0x000a, "\\u000a");
    row(0x001f, "\\u001f");
    row(0x0020, " ");
    row(0x0022, "\\u0022");
    row(0x002f, "/");
    row(0x005c, "\\u005c");
    row(0x007f, "\x7f");
    row(0x0080, "\xc2\x80");
    row(0x07ff, "\xdf\xbf");
    row(0x0800, "\xe0\xa0\x80");
    row(0xd7ff, "\xed\x9f\xbf");
    row(0xd800, "\\ud800");
    row(0xdfff, "\\udfff");
    row(0xe000, "\\ue000");
    row(0xfeff, "\\ufeff");
    row(0xffff, "\\uffff");
}

void tst_JsonText::eachUnitOfATextIsWrittenAsIsOrEscaped()
{
    QFETCH(ushort, unit);
    QFETCH(QByteArray, bytes);
    QCOMPARE(written([unit](JsonText &out) { out.text("k", QString(QChar(unit))); }),
        QByteArray("{\"k\":\"" + bytes + "\"}"));
}

void tst_JsonText::everyUnitIsReadBack()
{
    for (int unit = 0; unit <= 0xffff; ++unit) {
        const QString text = 'a' + QString(QChar(unit)) + 'b';
        const QByteArray bytes = written([&text](JsonText &out) { out.text("k", text); });
        if (QJsonDocument::fromJson(bytes).object().value("k").toString() != text)
            QFAIL(qPrintable(QString("U+%1 is read as another text from %2")
                                 .arg(unit, 4, 16)
                                 .arg(QString::fromUtf8(bytes))));
    }
}

void tst_JsonText::numbersHaveTheirShortestText_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("zero") << 0.0 << QByteArray("0");
    QTest::newRow("whole") << -12.0 << QByteArray("-12");
    QTest::newRow("a tenth") << 0.1 << QByteArray("0.1");
    QTest::newRow("smallest") << 5e-324 << QByteArray("5e-324");
    QTest::newRow("lowest") << std::numeric_limits<double>::lowest()
                            << QByteArray("-1.7976931348623157e+308");
}

void tst_JsonText::numbersHaveTheirShortestText()
{
    QFETCH(double, number);
    QFETCH(QByteArray, text);
    TextBuffer buffer;
    JsonText out(buffer);
    out.real("k", number);
    out.close();
    QCOMPARE(bytesOf(buffer), QByteArray("{\"k\":" + text + "}"));
    QVERIFY(out.isExact());
}

void tst_JsonText::numbersThatAreNotFiniteAreNullAndNotExact_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("infinity") << qInf();
    QTest::newRow("minus infinity") << -qInf();
    QTest::newRow("not a number") << qQNaN();
}

void tst_JsonText::numbersThatAreNotFiniteAreNullAndNotExact()
{
    QFETCH(double, number);
    TextBuffer buffer;
    JsonText out(buffer);
    QVERIFY(out.isExact());
    out.real("k", number);
    out.real("l", 1.5);
    out.close();
    QCOMPARE(bytesOf(buffer), QByteArray("{\"k\":null,\"l\":1.5}"));
    QVERIFY(!out.isExact());
}

void tst_JsonText::whatIsNotExactDeepInsideIsNotExactAbove()
{
    TextBuffer buffer;
    JsonText out(buffer);
    const double number = qQNaN();
    out.object("a", [&number](JsonText &inner) {
        inner.objects(
            "b", QList<const double *>{&number}, [](JsonText &item, double value) { item.real("c", value); });
        inner.real("d", 1.0);
    });
    out.object("e", [](JsonText &inner) { inner.real("f", 1.0); });
    out.close();
    QCOMPARE(bytesOf(buffer), QByteArray(R"({"a":{"b":[{"c":null}],"d":1},"e":{"f":1}})"));
    QVERIFY(!out.isExact());
}

void tst_JsonText::listsLeaveOutNullPointersAndAreLeftOutWithoutItems()
{
    const int one = 1;
    const int two = 2;
    const auto lists = [&](JsonText &out) {
        const auto fill = [](JsonText &item, int value) { item.integer("i", value); };
        out.objects("empty", QList<const int *>(), fill);
        out.objects("nulls", QList<const int *>{nullptr, nullptr}, fill);
        out.objects("one", QList<const int *>{nullptr, &one}, fill);
        out.objects("two", QList<const int *>{&one, nullptr, &two, nullptr}, fill);
        out.objects("last", QList<const int *>(), fill);
    };
    QCOMPARE(written(lists), QByteArray(R"({"one":[{"i":1}],"two":[{"i":1},{"i":2}]})"));
}

void tst_JsonText::clearedBufferIsWrittenAnew()
{
    TextBuffer buffer;
    for (const int length : {100000, 3, 0, 5000}) {
        buffer.clear();
        JsonText out(buffer);
        out.text("k", QString(length, '\n'));
        out.close();
        QCOMPARE(bytesOf(buffer), QByteArray("{\"k\":\"" + QByteArray("\\u000a").repeated(length) + "\"}"));
    }
}

void tst_JsonText::keysFitWhereverTheBufferEnds()
{
    // What is written beyond the end goes on there: the long text shows it at the latest.
    const QString longText(1'000'000, 'y');
    for (int shift = 0; shift < 16; ++shift) {
        QByteArray expected = "{\"k\":\"" + QByteArray(shift, 'x') + '"';
        const QByteArray bytes = written([&](JsonText &out) {
            out.text("k", QString(shift, 'x'));
            for (int i = 0; i < 1000; ++i) {
                out.boolean("key", true);
                expected += ",\"key\":true";
            }
            out.text("last", longText);
        });
        QVERIFY(bytes == expected + ",\"last\":\"" + longText.toUtf8() + "\"}");
    }
}

QTEST_APPLESS_MAIN(tst_JsonText)
#include "tst_JsonText.moc"
