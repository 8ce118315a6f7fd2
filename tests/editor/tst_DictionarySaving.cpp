#include "editor/DictionaryDocument.h"

#include "editor/Structure.h"
#include "tests/documents/Privileges.h"
#include "tests/editor/DocumentLog.h"
#include "tests/editor/Files.h"
#include "tests/editor/SmallCensus.h"

#include <QtTest>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

namespace {

QString told(const std::optional<documents::FileProblem> &problem)
{
    return problem ? problem->message : QStringLiteral("done");
}

/// Calls \a work in a process of its own and returns what it returned, or -1 when it ended by a signal.
int inChild(const std::function<int()> &work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void setTime(const QString &name, const QDateTime &time)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

} // namespace

class tst_DictionarySaving : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
        QVERIFY(put(at("f.json"), dictionaryOf("F")));
    }

    void cleanup() { ::chmod(QFile::encodeName(folder->path()).constData(), 0700); }

    void anOpenedFileIsSavedByteForByte()
    {
        const QString sample = QStringLiteral(TESSEL_SAMPLES "/census.json");
        DictionaryDocument document;
        QCOMPARE(told(document.open(sample)), QStringLiteral("done"));
        QCOMPARE(told(document.save(at("census.json"))), QStringLiteral("done"));
        QVERIFY(contentOf(at("census.json")) == contentOf(sample));
        // Nor does an edit that is taken back leave a trace.
        Structure structure(document);
        TDmEntity &top = *document.root().getChildren()->first();
        structure.copyLabels(*top.getVariables()->first(), *top.getVariables());
        structure.removeEntity(top);
        document.undoStack()->setIndex(0);
        QCOMPARE(told(document.save(at("census.json"))), QStringLiteral("done"));
        QVERIFY(contentOf(at("census.json")) == contentOf(sample));
    }

    void typesAreSavedInLowerCase()
    {
        SmallCensus census;
        census.work.setVarType(QStringLiteral("REAL"));
        QCOMPARE(told(census.document.save(at("census.json"))), QStringLiteral("done"));
        const QByteArray bytes = contentOf(at("census.json"));
        QCOMPARE(bytes.count("\"type\": \"integer\""), 5);
        QCOMPARE(bytes.count("\"type\": \"real\""), 1);
        // The tables go on with what they know.
        QCOMPARE(census.work.getVarType(), QStringLiteral("REAL"));
    }

    void savingAnnouncesTheFileAndTheMark()
    {
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        Structure(document).addEntity(document.root());
        DocumentLog log(document);
        QCOMPARE(told(document.save(at("f.json"))), QStringLiteral("done"));
        QCOMPARE(log.take(), (QStringList{"file f.json", "clean"}));
        QVERIFY(!document.isModified());
        QCOMPARE(document.undoStack()->count(), 1);
        QVERIFY(contentOf(at("f.json")).contains("\"ENTITY_1\""));
    }

    void savingUnderAnotherNameLeavesTheOldFile()
    {
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        Structure(document).addEntity(document.root());
        DocumentLog log(document);
        QCOMPARE(told(document.save(at("g.json"))), QStringLiteral("done"));
        QCOMPARE(log.take(), (QStringList{"file g.json", "clean"}));
        QCOMPARE(document.fileName(), at("g.json"));
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        QVERIFY(contentOf(at("g.json")).contains("\"ENTITY_1\""));
        QCOMPARE(filesIn(folder->path()), (QStringList{"f.json", "g.json"}));
    }

    void aCopyIsSavedAndNothingElseIsChanged()
    {
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        Structure(document).addEntity(document.root());
        DocumentLog log(document);
        QCOMPARE(told(document.saveCopy(at("copy.json"))), QStringLiteral("done"));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(document.fileName(), at("f.json"));
        QVERIFY(document.isModified());
        QVERIFY(contentOf(at("copy.json")).contains("\"ENTITY_1\""));
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
    }

    void aNewDictionaryIsSavedAndOpenedAgain()
    {
        SmallCensus census;
        QCOMPARE(told(census.document.save(at("census.json"))), QStringLiteral("done"));
        QCOMPARE(census.document.fileName(), at("census.json"));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("census.json"))), QStringLiteral("done"));
        const TDmEntity &house = *document.root().getChildren()->first();
        QCOMPARE(namesOf(*house.getChildren()), QStringLiteral("PERSON DEATH"));
        const TDmEntity &person = *house.getChildren()->first();
        QCOMPARE(namesOf(*person.getVariables()), QStringLiteral("SEX AGE TIES WORK"));
        QCOMPARE(labelsOf(*person.getVariables()->at(0)), QStringLiteral("1=Male|2=Female"));
        QCOMPARE(rangesOf(*person.getVariables()->at(1)), QStringLiteral("0..14|15..120"));
        QVERIFY(document.losses().isEmpty());
    }

    void aFolderIsNotSavedOver()
    {
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("there")));
        compareFailed(at("there"), QStringLiteral("cannot be written: it is a folder; name a file"));
        QVERIFY(QDir(at("there")).exists());
    }

    void aFolderThatIsMissingIsNotMade()
    {
        compareFailed(at("missing/f.json"),
            QStringLiteral("cannot be written: No such file or directory; nothing was changed"));
        QVERIFY(!QFile::exists(at("missing")));
    }

    void aFolderThatMayNotBeWrittenKeepsTheOldFile()
    {
        QCOMPARE(::chmod(QFile::encodeName(at("f.json")).constData(), 0444), 0);
        QCOMPARE(::chmod(QFile::encodeName(folder->path()).constData(), 0555), 0);
        const int status = inChild([this] {
            if (!giveUpPrivileges())
                return 9;
            return failureOf(
                at("f.json"), QStringLiteral("cannot be written: Permission denied; nothing was changed"));
        });
        QCOMPARE(status, 0);
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        QCOMPARE(filesIn(folder->path()), QStringList{"f.json"});
    }

    void aFullDiskKeepsTheOldFile()
    {
        const int status = inChild([this] {
            // No file of this process grows beyond this, as on a full disk.
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{16, 16};
            setrlimit(RLIMIT_FSIZE, &limit);
            return failureOf(
                at("f.json"), QStringLiteral("cannot be written: File too large; nothing was changed"));
        });
        QCOMPARE(status, 0);
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        QCOMPARE(filesIn(folder->path()), QStringList{"f.json"});
    }

    void afterAFailureSavingElsewhereSucceeds()
    {
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        Structure(document).addEntity(document.root());
        QVERIFY(document.save(folder->path()));
        QCOMPARE(told(document.save(at("g.json"))), QStringLiteral("done"));
        QVERIFY(!document.isModified());
        QVERIFY(contentOf(at("g.json")).contains("\"ENTITY_1\""));
    }

    /// Written as it is, byte for byte, and still no JSON for other programs.
    void whatIsWrittenAsItIsMayBeIrregular()
    {
        const QByteArray text = dictionaryOf("F").replace("\"F\"", "\"\\ud800\"");
        QVERIFY(put(at("f.json"), text));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        QCOMPARE(document.losses().size(), 1);
        QCOMPARE(document.losses().first().kind, documents::Loss::Irregular);
        QCOMPARE(told(document.save(at("g.json"))), QStringLiteral("done"));
        QCOMPARE(contentOf(at("g.json")), text);
    }

    void lossesOutliveAFailureButNotASuccess()
    {
        QVERIFY(put(at("f.json"), lossyDictionaryOf("F")));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        QCOMPARE(document.losses().size(), 2);
        QVERIFY(document.save(folder->path()));
        QCOMPARE(document.losses().size(), 2);
        QCOMPARE(told(document.saveCopy(at("copy.json"))), QStringLiteral("done"));
        QCOMPARE(document.losses().size(), 2);
        QCOMPARE(told(document.save(at("f.json"))), QStringLiteral("done"));
        QCOMPARE(document.losses().size(), 0);
    }

    void whatAnotherProgramWritesIsNoticed_data()
    {
        QTest::addColumn<QString>("deed");
        QTest::addColumn<bool>("isChange");
        QTest::newRow("nothing") << "nothing" << false;
        QTest::newRow("another size, the same time") << "size" << true;
        QTest::newRow("the same size, a later time") << "later" << true;
        QTest::newRow("the same size, an earlier time") << "earlier" << true;
        QTest::newRow("the file is gone") << "gone" << false;
    }

    void whatAnotherProgramWritesIsNoticed()
    {
        QFETCH(QString, deed);
        const QDateTime time = QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
        setTime(at("f.json"), time);
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        if (deed == QLatin1String("size")) {
            QVERIFY(put(at("f.json"), dictionaryOf("ANOTHER")));
            setTime(at("f.json"), time);
        } else if (deed == QLatin1String("later")) {
            setTime(at("f.json"), time.addSecs(2));
        } else if (deed == QLatin1String("earlier")) {
            setTime(at("f.json"), time.addSecs(-2));
        } else if (deed == QLatin1String("gone")) {
            QVERIFY(QFile::remove(at("f.json")));
        }
        QTEST(document.hasFileChanged(), "isChange");
        QTEST(document.hasFileChanged(), "isChange");
        document.acceptFileChange();
        QVERIFY(!document.hasFileChanged());
    }

    void whatIsSavedHereIsNoChange()
    {
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        Structure(document).addEntity(document.root());
        QCOMPARE(told(document.save(at("f.json"))), QStringLiteral("done"));
        QVERIFY(!document.hasFileChanged());
        QVERIFY(put(at("f.json"), "{}"));
        QVERIFY(document.hasFileChanged());
        QCOMPARE(told(document.save(at("g.json"))), QStringLiteral("done"));
        QVERIFY(!document.hasFileChanged());
        QVERIFY(put(at("g.json"), "{}"));
        QVERIFY(document.hasFileChanged());
        document.clear();
        QVERIFY(!document.hasFileChanged());
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }

    /// Saves a modified document to \a name, which fails with \a message. 0 when all is as it was; else what
    /// is not. Free of the test library, for processes that end without it.
    int failureOf(const QString &name, const QString &message)
    {
        DictionaryDocument document;
        if (document.open(at("f.json")))
            return 1;
        Structure(document).addEntity(document.root());
        DocumentLog log(document);
        if (told(document.save(name)) != message)
            return 2;
        if (!log.take().isEmpty())
            return 3;
        if (!document.isModified() || document.undoStack()->count() != 1)
            return 4;
        if (document.fileName() != at("f.json") || document.hasFileChanged())
            return 5;
        document.undoStack()->undo();
        return document.isModified() ? 6 : 0;
    }

    void compareFailed(const QString &name, const QString &message)
    {
        QCOMPARE(failureOf(name, message), 0);
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
    }

    QScopedPointer<QTemporaryDir> folder;
};

QTEST_APPLESS_MAIN(tst_DictionarySaving)
#include "tst_DictionarySaving.moc"
