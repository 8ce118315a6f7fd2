#include "editor/DictionaryDocument.h"

#include "editor/Structure.h"
#include "tests/editor/DocumentLog.h"
#include "tests/editor/Files.h"

#include <QtTest>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

namespace {

QString sample(const char *name) { return QStringLiteral(TESSEL_SAMPLES "/") + QLatin1String(name); }

/// "LINE:COLUMN message"; "done" without a problem.
QString told(const std::optional<documents::FileProblem> &problem)
{
    return problem ? QStringLiteral("%1:%2 %3").arg(problem->line).arg(problem->column).arg(problem->message)
                   : QStringLiteral("done");
}

/// A modified document whose tree, file name and undo stack can be compared.
class Kept {
public:
    explicit Kept(DictionaryDocument &kept)
        : document(kept)
        , root(&kept.root())
        , name(kept.fileName())
        , count(kept.undoStack()->count())
        , wasModified(kept.isModified())
        , log(kept)
    {
    }

    bool isAsItWas()
    {
        return &document.root() == root && document.fileName() == name
            && document.undoStack()->count() == count && document.isModified() == wasModified
            && log.take().isEmpty();
    }

private:
    DictionaryDocument &document;
    TDmEntity *root;
    QString name;
    int count;
    bool wasModified;
    DocumentLog log;
};

} // namespace

/// Files that cannot be opened: what was open before stays as it was.
class tst_BrokenDictionaries : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
    }

    void whatIsNoDictionaryLeavesTheOldOne_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("problem");
        const auto row = [](const char *tag, const QByteArray &bytes, const char *problem) {
            QTest::newRow(tag) << bytes << QString::fromUtf8(problem);
        };
        row("a run configuration", contentOf(sample("run.json")),
            "0:0 is a run configuration, not a dictionary; open it with Run, Open run");
        row("nothing", QByteArray(), "1:1 expected an object at the top, found nothing: the file is empty");
        row("blank lines", QByteArray(" \n\n"),
            "3:1 expected an object at the top, found nothing: the file is empty");
        row("a list", QByteArray("[{\"name\": \"A\"}]"), "1:1 expected an object at the top, found an array");
        row("a text", QByteArray("\"PERSON\""), "1:1 expected an object at the top, found a text");
        row("UTF-16", QByteArray("\xff\xfe{\0}\0", 6),
            "1:1 expected text in UTF-8, found UTF-16; save the file in UTF-8");
    }

    void whatIsNoDictionaryLeavesTheOldOne()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(put(at("bad.json"), bytes));
        QTEST(openingOver(at("bad.json")), "problem");
        QCOMPARE(contentOf(at("bad.json")), bytes);
    }

    void whatIsBrokenLeavesTheOldOne_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = contentOf(sample("census.json"));
        QTest::newRow("cut in the middle") << whole.left(whole.size() / 2);
        QTest::newRow("cut before its last brace") << whole.trimmed().chopped(1);
        QTest::newRow("more behind its end") << whole + "}";
        QTest::newRow("bytes of any kind") << QByteArray("\x00\x01\xfe PK\x03\x04 \x7f", 11);
        QTest::newRow("nested deeper than any parser goes")
            << QByteArray("{\"entities\":[").repeated(100'000);
        QTest::newRow("nested too deep, and closed")
            << QByteArray("{\"entities\":[").repeated(600) + QByteArray("]}").repeated(600);
        QTest::newRow("text that is not UTF-8") << QByteArray("{\"name\": \"Espa\xf1"
                                                              "a\"}");
    }

    void whatIsBrokenLeavesTheOldOne()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(put(at("bad.json"), bytes));
        const QString problem = openingOver(at("bad.json"));
        // The place is told: never that of the whole file.
        QVERIFY2(problem != QLatin1String("done") && !problem.startsWith(QLatin1String("0:")),
            qPrintable(problem));
        QCOMPARE(contentOf(at("bad.json")), bytes);
    }

    void whatCannotBeReadLeavesTheOldOne()
    {
        QCOMPARE(
            openingOver(at("missing.json")), QStringLiteral("0:0 cannot be read: No such file or directory"));
        QCOMPARE(
            openingOver(folder->path()), QStringLiteral("0:0 cannot be read: it is a folder; name a file"));
    }

    void asDeepAsAParserGoesIsOpened()
    {
        const int depth = 500;
        QVERIFY(put(at("deep.json"),
            QByteArray("{\"entities\":[").repeated(depth) + "{}" + QByteArray("]}").repeated(depth)));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("deep.json"))), QStringLiteral("done"));
        const TDmEntity *entity = &document.root();
        while (!entity->getChildren()->isEmpty())
            entity = entity->getChildren()->first();
        QCOMPARE(entity->getLevel(), depth + 1);
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }

    /// What is told when \a name is opened, copied or recovered over other work, which stays as it was.
    QString openingOver(const QString &name)
    {
        if (!put(at("good.json"), lossyDictionaryOf("GOOD")))
            return QStringLiteral("cannot prepare");
        DictionaryDocument document;
        document.open(at("good.json"));
        Structure(document).addEntity(document.root());
        Kept kept(document);
        const QStringList answers{told(document.open(name)), told(document.openCopy(name)),
            told(document.recover(name, at("good.json"))), told(document.recover(name, QString()))};
        if (!kept.isAsItWas() || document.losses().size() != 2)
            return QStringLiteral("the old dictionary is not as it was");
        return answers.count(answers.first()) == answers.size() ? answers.first()
                                                                : answers.join(QLatin1Char('\n'));
    }

    QScopedPointer<QTemporaryDir> folder;
};

QTEST_APPLESS_MAIN(tst_BrokenDictionaries)
#include "tst_BrokenDictionaries.moc"
