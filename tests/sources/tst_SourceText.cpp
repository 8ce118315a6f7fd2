#include "sources/SourceText.h"

#include <QtTest>

using namespace tessel::sources;

class tst_SourceText : public QObject {
    Q_OBJECT

private slots:
    void text_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isForeign");
        QTest::newRow("ASCII") << QByteArray("Age") << "Age" << false;
        QTest::newRow("UTF-8") << QByteArray("A\xc3\xb1o \xf0\x9f\x8f\xa0") << QStringLiteral("Año 🏠")
                               << false;
        QTest::newRow("Windows-1252") << QByteArray("A\xf1o \x96 \x80") << QStringLiteral("Año – €") << true;
        QTest::newRow("UTF-8 that is cut off") << QByteArray("A\xc3") << QStringLiteral("AÃ") << true;
        QTest::newRow("a byte-order mark is a character") << QByteArray("\xef\xbb\xbf"
                                                                        "A")
                                                          << QStringLiteral("\ufeffA") << false;
    }

    void text()
    {
        QFETCH(QByteArray, bytes);
        TextMends mends;
        QTEST(sourceText(bytes.constData(), mends), "text");
        QTEST(mends.isForeign, "isForeign");
        QVERIFY(!mends.isCut);
    }

    void nullIsEmpty()
    {
        TextMends mends;
        QCOMPARE(sourceText(nullptr, mends), QString());
        QVERIFY(!mends.isForeign);
    }

    void longTextsAreCut_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("isCut");
        QTest::newRow("as long as may be") << QByteArray(32767, 'x') << 32767 << false;
        QTest::newRow("one longer") << QByteArray(32768, 'x') << 32767 << true;
        QTest::newRow("not within a character")
            << QByteArray(32766, 'x') + "\xf0\x9f\x8f\xa0" << 32766 << true;
        QTest::newRow("behind a character") << QByteArray(32765, 'x') + "\xf0\x9f\x8f\xa0y" << 32767 << true;
    }

    void longTextsAreCut()
    {
        QFETCH(QByteArray, bytes);
        TextMends mends;
        QTEST(sourceText(bytes.constData(), mends).size(), "size");
        QTEST(mends.isCut, "isCut");
    }

    void mendsAddUp()
    {
        TextMends mends{true, false};
        mends |= TextMends{false, true};
        QVERIFY(mends.isForeign && mends.isCut);
        mends |= TextMends{};
        QVERIFY(mends.isForeign && mends.isCut);
    }
};

QTEST_APPLESS_MAIN(tst_SourceText)

#include "tst_SourceText.moc"
