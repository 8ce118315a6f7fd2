#include "documents/RawText.h"

#include "documents/Refused.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace tessel::documents;

class tst_RawText : public QObject {
    Q_OBJECT

private slots:
    void textsAreThoseOfQtsParser_data()
    {
        QTest::addColumn<QByteArray>("raw");
        for (const char *raw : {"", "a", "Age of the person", "12345678", "1234567\xc3\xa9",
                 "\xc3\xa9"
                 "12345678",
                 "\xdf\xbf\xe0\xa0\x80\xef\xbf\xbf\xf0\x90\x80\x80\xf4\x8f\xbf\xbf", "a\\n",
                 "\\\"\\\\\\/\\b\\f\\n\\r\\t", "\\u0000\\u00e9\\uABCD\\uabcd", "\\ud83d\\ude00",
                 "\\uD83D\\uDE00x", "a\\ufeff", "a\xef\xbb\xbf", "\x7f"})
            QTest::newRow(raw) << QByteArray(raw);
        QTest::newRow("long") << QByteArray("\xc3\xa9\\n").repeated(1000);
    }

    void textsAreThoseOfQtsParser()
    {
        QFETCH(QByteArray, raw);
        const QJsonDocument known = QJsonDocument::fromJson("[\"" + raw + "\"]");
        QCOMPARE(textOfRaw({raw.constData(), std::size_t(raw.size())}), known.array().at(0).toString());
    }

    void whatQtMightTakeOtherwiseIsRefused_data()
    {
        QTest::addColumn<QByteArray>("raw");
        for (const char *raw : {"\\x", "\\u", "\\u123", "\\u12g4", "\\u+123", "\\ud83d", "\\ud83da",
                 "\\ude00", "a\\ude00", "\\ud83d\\ud83d\\ude00", "\\ude00\\ud83d", "\\ufeff", "\xef\xbb\xbf",
                 "\xef\xbb\xbf"
                 "a"})
            QTest::newRow(raw) << QByteArray(raw);
    }

    void whatQtMightTakeOtherwiseIsRefused()
    {
        QFETCH(QByteArray, raw);
        QVERIFY_EXCEPTION_THROWN(textOfRaw({raw.constData(), std::size_t(raw.size())}), Refused);
    }
};

QTEST_APPLESS_MAIN(tst_RawText)
#include "tst_RawText.moc"
