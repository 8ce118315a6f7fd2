#include "tests/business/models/DropTable.h"
#include "tests/support/MessageBoxRobot.h"

#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

using namespace tessel::test;

namespace {

/// What a field without type, range and name becomes.
const QString kNothing = QStringLiteral("missing=1 notappl=2 position=1 range=0..0");

/// The four bytes of a length, highest first.
QByteArray lengthOf(quint32 bytes)
{
    QByteArray four;
    for (int shift = 24; shift >= 0; shift -= 8)
        four += char(bytes >> shift & 0xff);
    return four;
}

/// \a text as it stands in a payload, put together by hand: length in bytes, then UTF-16, high byte first.
QByteArray written(const QString &text)
{
    QByteArray bytes = lengthOf(quint32(text.size()) * 2);
    for (const QChar unit : text) {
        bytes += char(unit.row());
        bytes += char(unit.cell());
    }
    return bytes;
}

/// The variables that a drop of \a payload gives, one line each.
QStringList dropped(const QByteArray &payload)
{
    DropTable table;
    const Announcements announced(*table.model);
    MessageBoxRobot robot;
    if (!table.drop(payload) || !robot.boxes().isEmpty())
        return {"refused"};
    QStringList lines;
    for (const TDmVariable *variable : qAsConst(*table.entity.getVariables()))
        lines += textOf(*variable);
    const QString expected =
        lines.isEmpty() ? QStringLiteral("reset 1") : QStringLiteral("reset 1 modified %1").arg(lines.size());
    return announced.text() == expected && table.model->rowCount() == lines.size()
        ? lines
        : QStringList("announced oddly");
}

QString variableNamed(const QString &name)
{
    return QStringLiteral("name='%1' field='%1' type='STRING' position=1").arg(name);
}

/// The most memory, in kilobytes, that this process ever claimed, whether it used it or not.
qint64 claimedMemory()
{
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmPeak:"))
                return line.mid(7).trimmed().split(' ').first().toLongLong();
        }
    }
    return 0;
}

} // namespace

class tst_VariableDropPayload : public QObject {
    Q_OBJECT

private slots:
    void textsAreReadByteForByte()
    {
        // {"name":"A\u00f1"} and {}
        const QByteArray payload("\0\0\0\x1a"
                                 "\0{\0\"\0n\0a\0m\0e\0\"\0:\0\"\0A\0\xf1\0\"\0}"
                                 "\0\0\0\x04\0{\0}",
            38);
        QCOMPARE(dropped(payload), QStringList({u8"name='A\u00f1' field='A\u00f1' " + kNothing, kNothing}));
    }

    void textsWrittenByHandAreThoseOfADataStream()
    {
        const QStringList texts{
            field("AGE"), "", "{}", field(u8"A\u00f1o \u4e2d \U00010400"), QString(3000, 'x')};
        QByteArray byHand;
        for (const QString &text : texts)
            byHand += written(text);
        QCOMPARE(payloadOf(texts), byHand);
    }

    void lettersOfAnyScriptArriveUnchanged()
    {
        const QString name = u8"A\u00f1o \u4e2d \u0643 \U00010400";
        QCOMPARE(dropped(written(field(name))), QStringList(variableNamed(name)));
    }

    void anEmptyPayloadIsADropOfNothing()
    {
        QCOMPARE(dropped(QByteArray()), QStringList());
        QCOMPARE(dropped(QByteArray("")), QStringList());
    }

    void anEmptyTextAndANullOneAreTheSameText()
    {
        const QByteArray empty = lengthOf(0);
        const QByteArray null = lengthOf(0xffffffff);
        QCOMPARE(dropped(empty), QStringList(kNothing));
        QCOMPARE(dropped(null), QStringList(kNothing));
        QCOMPARE(dropped(empty + null + empty), QStringList(kNothing));
        QCOMPARE(dropped(null + empty), QStringList(kNothing));
        QCOMPARE(dropped(written(field("AGE")) + null + written(field("SEX"))),
            QStringList({variableNamed("AGE"), kNothing, variableNamed("SEX")}));
    }

    void aRepeatedTextCountsOnce_data()
    {
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QString>("kept");
        QTest::newRow("in a row") << "A A A"
                                  << "A";
        QTest::newRow("with others between them") << "A B A C B A"
                                                  << "A B C";
        QTest::newRow("the first one counts") << "B A B"
                                              << "B A";
        QTest::newRow("letter case matters") << "A a A"
                                             << "A a";
    }
    void aRepeatedTextCountsOnce()
    {
        QFETCH(QString, sent);
        QFETCH(QString, kept);
        QByteArray payload;
        for (const QString &name : sent.split(' '))
            payload += written(field(name));
        QStringList variables;
        for (const QString &name : kept.split(' '))
            variables += variableNamed(name);
        QCOMPARE(dropped(payload), variables);
    }

    void aTextThatIsCutOffIsDroppedAndThoseBeforeItCount()
    {
        const QStringList names{"AGE", "SEX", u8"A\u00f1o"};
        QByteArray payload;
        QList<int> ends;
        for (const QString &name : names) {
            payload += written(field(name));
            ends += payload.size();
        }
        for (int cut = 0; cut <= payload.size(); ++cut) {
            QStringList whole;
            for (int i = 0; i < ends.size() && ends.at(i) <= cut; ++i)
                whole += variableNamed(names.at(i));
            QCOMPARE(dropped(payload.left(cut)), whole);
        }
    }

    void aLengthThatIsNoneEndsThePayload_data()
    {
        QTest::addColumn<quint32>("declared");
        QTest::newRow("one byte") << 1U;
        QTest::newRow("half a character too many") << 5U;
        QTest::newRow("a character too many") << quint32(written(field("SEX")).size()) + 2;
        QTest::newRow("a megabyte") << 0x100000U;
        QTest::newRow("two gigabytes and a byte") << 0x80000001U;
        QTest::newRow("two gigabytes") << 0x80000000U;
        QTest::newRow("less than two gigabytes") << 0x7ffffffeU;
        QTest::newRow("four gigabytes, odd") << 0xfffffffdU;
        QTest::newRow("four gigabytes") << 0xfffffffeU;
    }
    void aLengthThatIsNoneEndsThePayload()
    {
        QFETCH(quint32, declared);
        const QByteArray broken = lengthOf(declared) + written(field("SEX")).mid(4);
        const qint64 before = claimedMemory();
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(dropped(broken), QStringList());
        QCOMPARE(dropped(written(field("AGE")) + broken), QStringList(variableNamed("AGE")));
        // What a payload says of itself is not believed: no memory for it, and no time.
        QVERIFY(claimedMemory() - before < 100'000);
        QVERIFY(clock.elapsed() < 10'000);
    }

    void nothingIsReadBehindABrokenText()
    {
        QCOMPARE(dropped(written(field("AGE")) + lengthOf(1) + written(field("SEX"))),
            QStringList(variableNamed("AGE")));
        QCOMPARE(dropped(lengthOf(0xfffffffd) + written(field("SEX"))), QStringList());
    }

    void whatIsNoPayloadGivesNothing_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::newRow("JSON as it is") << field("AGE").toUtf8();
        QTest::newRow("words") << QByteArray("AGE\nSEX\n");
        QTest::newRow("three null bytes") << QByteArray(3, '\0');
        QTest::newRow("three high bytes") << QByteArray(3, '\xff');
        QTest::newRow("one byte") << QByteArray("x");
    }
    void whatIsNoPayloadGivesNothing()
    {
        QFETCH(QByteArray, payload);
        QCOMPARE(dropped(payload), QStringList());
        QCOMPARE(dropped(written(field("AGE")) + payload), QStringList(variableNamed("AGE")));
    }

    void garbageTextsBecomeVariablesWithoutName()
    {
        QCOMPARE(dropped(written("AGE")), QStringList(kNothing));
        QCOMPARE(dropped(written(QString(1000, '['))), QStringList(kNothing));
        QCOMPARE(dropped(written(QString(QChar(0xd800)))), QStringList(kNothing));
        QCOMPARE(dropped(written(QString(5, QChar(0)))), QStringList(kNothing));
    }

    void aTextOfMegabytesIsReadWhole()
    {
        const QString name(3'000'000, 'x');
        QCOMPARE(dropped(written(field(name)) + written(field("AGE"))),
            QStringList({variableNamed(name), variableNamed("AGE")}));
    }
};

QTEST_MAIN(tst_VariableDropPayload)
#include "tst_VariableDropPayload.moc"
