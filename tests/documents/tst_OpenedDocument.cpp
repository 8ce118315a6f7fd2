#include "documents/OpenedDocument.h"

#include "documents/QuickWriter.h"
#include "model/ConfigDb.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace tessel::documents;

class tst_OpenedDocument : public QObject {
    Q_OBJECT

private slots:
    void init() { folder.reset(new QTemporaryDir); }

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
        const QString name = file();
        const QString reason = openFile(name).problem.message;
        QCOMPARE(reason, readObject(name).problem.message);
        QVERIFY(!reason.isEmpty());
        QVERIFY(!writeFile(name, "{\"name\": \"A\"}"));
        QVERIFY(openFile(name).result->isPlain);
        QCOMPARE(openFile(name).result->dictionary->getName(), QString("A"));
    }

    void blanksInTheTextsOfAFileStay()
    {
        QVERIFY(!writeFile(file(), " {\n  \"name\":  \"A  ,  B\"\n} \n"));
        QCOMPARE(openFile(file()).result->dictionary->getName(), QString("A  ,  B"));
    }

    void anyOtherFileIsOpenedToo()
    {
        QVERIFY(!writeFile(file(), "{\n  \"name\": 5 }"));
        const auto opened = openFile(file());
        QCOMPARE(opened.result->dictionary->getName(), QString("5"));
        QVERIFY(!opened.result->isPlain);
        QVERIFY(!writeFile(file(), "{ \"type\": \"config\", \"database\": {\"name\": \"DB\"}}"));
        QCOMPARE(openFile(file()).result->run->getDataBase()->getName(), QString("DB"));
    }

    void aProblemInAFileHasItsPlace()
    {
        const QByteArray bytes = "{\n  \"name\": \"A\"\n\n     \"label\": 1}";
        QVERIFY(!writeFile(file(), bytes));
        const FileProblem problem = openFile(file()).problem;
        QCOMPARE(problem.message, parseObject(bytes).problem.message);
        QCOMPARE(problem.line, 4);
        QCOMPARE(problem.column, parseObject(bytes).problem.column);
    }

    void toBeWrittenAgainOnlyWhatChangesKeepsItsBytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isPlain");
        QTest::addColumn<bool>("hasBytes");
        const QByteArray normal = textQuickly(TDmEntity()).value();
        QTest::newRow("normal form") << normal << true << false;
        QTest::newRow("a blank more at the end") << normal + ' ' << true << true;
        QTest::newRow("a line end less") << normal.chopped(1) << true << true;
        QTest::newRow("compact") << QByteArray("{\"name\":\"A\"}") << true << true;
        QTest::newRow("a number for a text") << QByteArray("{\"name\": 5}") << false << true;
    }

    void toBeWrittenAgainOnlyWhatChangesKeepsItsBytes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isPlain);
        QFETCH(bool, hasBytes);
        QVERIFY(!writeFile(file(), bytes));
        const auto opened = openToWriteAgain(file());
        QCOMPARE(opened.result->isPlain, isPlain);
        QCOMPARE(opened.result->bytes.has_value(), hasBytes);
        QCOMPARE(opened.result->bytes.value_or(bytes), bytes);
        QCOMPARE(opened.result->dictionary->getName(), openFile(file()).result->dictionary->getName());
    }

    void toBeWrittenAgainProblemsAreThoseOfOpening()
    {
        QCOMPARE(openToWriteAgain(file()).problem.message, openFile(file()).problem.message);
        QVERIFY(!writeFile(file(), "{\n  \"name\": }"));
        const auto opened = openToWriteAgain(file());
        QVERIFY(!opened.result);
        QCOMPARE(opened.problem.message, openFile(file()).problem.message);
        QCOMPARE(opened.problem.line, 2);
    }

    void whatCanBeReadOnlyOnceIsOpened_data()
    {
        QTest::addColumn<bool>("again");
        QTest::newRow("to be looked at") << false;
        QTest::newRow("to be written again") << true;
    }

    void whatCanBeReadOnlyOnceIsOpened()
    {
        QFETCH(bool, again);
        QCOMPARE(mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
        QProcess writer;
        writer.start("sh", {"-c", "echo '{\"name\": \"A\"}' > \"$0\"", file()});
        const auto opened = again ? openToWriteAgain(file()) : openFile(file());
        QVERIFY(writer.waitForFinished());
        QCOMPARE(opened.result->bytes.value_or("none"),
            again ? QByteArray("{\"name\": \"A\"}\n") : QByteArray("none"));
        QVERIFY2(opened.result, qPrintable(opened.problem.message));
        QCOMPARE(opened.result->dictionary->getName(), QString("A"));
        QVERIFY(opened.result->isPlain);
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

private:
    QString file() const { return folder->filePath("a.json"); }

    QScopedPointer<QTemporaryDir> folder;
};

QTEST_APPLESS_MAIN(tst_OpenedDocument)
#include "tst_OpenedDocument.moc"
