#include "documents/OpenedDocument.h"

#include "documents/QuickWriter.h"
#include "model/ConfigDb.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace tessel::documents;

class tst_OpenedDocument : public QObject {
    Q_OBJECT

private slots:
    void aPlainDictionaryIsOpened()
    {
        const auto opened = openDocument("{\"name\": \"A\"}");
        QVERIFY(opened.result);
        QVERIFY(opened.result->isPlain);
        QVERIFY(!opened.result->run);
        QCOMPARE(opened.result->dictionary->getName(), QString("A"));
    }

    void anyOtherDictionaryIsOpenedToo()
    {
        const auto opened = openDocument("{\"name\": 5}");
        QVERIFY(opened.result);
        QVERIFY(!opened.result->isPlain);
        QVERIFY(!opened.result->run);
        QCOMPARE(opened.result->dictionary->getName(), QString("5"));
    }

    void aRunIsOpened()
    {
        const auto opened = openDocument("{\"type\": \"config\", \"database\": {\"name\": \"DB\"}}");
        QVERIFY(opened.result);
        QVERIFY(!opened.result->isPlain);
        QVERIFY(!opened.result->dictionary);
        QCOMPARE(opened.result->run->getDataBase()->getName(), QString("DB"));
    }

    void aProblemHasItsPlace()
    {
        const auto opened = openDocument("{\n  \"name\": }");
        QVERIFY(!opened.result);
        const FileProblem known = parseObject("{\n  \"name\": }").problem;
        QCOMPARE(opened.problem.message, known.message);
        QCOMPARE(opened.problem.line, 2);
        QCOMPARE(opened.problem.column, known.column);
    }

    void aFileIsOpened()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath("a.json");
        const QString reason = openFile(name).problem.message;
        QCOMPARE(reason, readObject(name).problem.message);
        QVERIFY(!reason.isEmpty());
        QVERIFY(!writeFile(name, "{\"name\": \"A\"}"));
        QCOMPARE(openFile(name).result->dictionary->getName(), QString("A"));
    }

    void normalFormIsKeptAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isKept");
        const QByteArray normal =
            "{\n    \"name\": \"A\",\n    \"selectable\": false,\n    \"virtual\": false\n}\n";
        QTest::newRow("normal form") << normal << true;
        QTest::newRow("without the last line end") << normal.chopped(1) << false;
        QTest::newRow("with one more") << normal + '\n' << false;
        QTest::newRow("with a byte changed") << QByteArray(normal).replace("false", "true") << true;
        QTest::newRow("with another key") << QByteArray(normal).replace("name", "none") << false;
        QTest::newRow("with an escape for a letter")
            << QByteArray(normal).replace("\"A", "\"\\u0041") << false;
        QTest::newRow("half of a pair, which is written as it is, and no JSON")
            << QByteArray(normal).replace("\"A", "\"\\ud800") << false;
        QTest::newRow("a run") << QByteArray("{\"type\": \"config\"}") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void normalFormIsKeptAsItIs()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isKept);
        QCOMPARE(isKeptAsItIs(bytes), isKept);
    }
};

QTEST_APPLESS_MAIN(tst_OpenedDocument)
#include "tst_OpenedDocument.moc"
