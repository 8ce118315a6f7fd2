#include "documents/SharedTexts.h"

#include "documents/Refused.h"

#include <QtTest>

#include <limits>
#include <memory>
#include <string>
#include <vector>

using namespace tessel::documents;

class tst_SharedTexts : public QObject {
    Q_OBJECT

private slots:
    void equalTextsShareTheirMemory()
    {
        const auto texts = std::make_unique<SharedTexts>();
        const std::string first = "S\xc3\xad, todos";
        const std::string second = first;
        const QString text = texts->text(first);
        QCOMPARE(text, QString::fromUtf8("S\xc3\xad, todos"));
        QCOMPARE(texts->text(second).constData(), text.constData());
    }

    void textsThatPushEachOtherOutAreRightAllTheSame()
    {
        const auto texts = std::make_unique<SharedTexts>();
        std::vector<std::string> raw;
        for (int i = 0; i < 20'000; ++i)
            raw.push_back(std::to_string(i) + (i % 2 == 0 ? " same end" : " SAME END"));
        for (int round = 0; round < 2; ++round) {
            for (const std::string &text : raw)
                QCOMPARE(texts->text(text), QString::fromStdString(text));
        }
    }

    void emptyAndLongTextsAreNotKept()
    {
        const auto texts = std::make_unique<SharedTexts>();
        QCOMPARE(texts->text(""), QString(""));
        const std::string full(100, 'x');
        QCOMPARE(texts->text(full), QString(100, 'x'));
        QVERIFY(texts->text(full).constData() != texts->text(full).constData());
    }

    void aTextThatIsRefusedLeavesTheOthers()
    {
        const auto texts = std::make_unique<SharedTexts>();
        QVERIFY_EXCEPTION_THROWN(texts->text("\\ud800"), Refused);
        QVERIFY_EXCEPTION_THROWN(texts->text("\\ud800"), Refused);
        QCOMPARE(texts->text("a"), QString("a"));
    }

    void digitsAreThoseOfTheNumber()
    {
        const auto texts = std::make_unique<SharedTexts>();
        for (qint64 number : {qint64(0), qint64(-1), qint64(7), qint64(1023), qint64(1024),
                 std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()}) {
            QCOMPARE(texts->digits(number), QString::number(number));
            QCOMPARE(texts->digits(number), QString::number(number));
        }
        QCOMPARE(texts->digits(7).constData(), texts->digits(7).constData());
    }
};

QTEST_APPLESS_MAIN(tst_SharedTexts)
#include "tst_SharedTexts.moc"
