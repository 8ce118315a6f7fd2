#include "editor/AutoSave.h"

#include "editor/DictionaryDocument.h"
#include "editor/Structure.h"
#include "model/TDmEntity.h"
#include "tests/editor/Files.h"
#include "tests/editor/OwnPlaces.h"

#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

#include <cstdio>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// What a person does whose program is ended from outside: opens \a name, or begins anew when it is empty,
/// edits, and waits.
int beVictim(QCoreApplication &application, const QString &name)
{
    DictionaryDocument document;
    AutoSave autoSave(document);
    autoSave.setPause(0);
    if (!name.isEmpty() && document.open(name))
        return 1;
    Structure(document).addEntity(document.root())->setName(QStringLiteral("UNSAVED"));
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&name] {
        if (AutoSave::hasCopy(name)) {
            std::puts("ready");
            std::fflush(stdout);
        }
    });
    watch.start(10);
    QTimer::singleShot(60'000, &application, &QCoreApplication::quit);
    return application.exec();
}

void setTime(const QString &name, const QDateTime &time)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

/// A document that is watched over, with copies written as soon as the program rests.
struct Watched {
    explicit Watched(int pause = 0)
        : autoSave(document)
    {
        autoSave.setPause(pause);
    }

    void edit() { Structure(document).addEntity(document.root()); }

    DictionaryDocument document;
    AutoSave autoSave;
};

/// All that is due by now has been done.
void rest()
{
    bool isRested = false;
    QTimer::singleShot(30, [&isRested] { isRested = true; });
    QTRY_VERIFY(isRested);
}

} // namespace

class tst_AutoSave : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
        QVERIFY(put(at("f.json"), dictionaryOf("F")));
        AutoSave::removeCopy(QString());
    }

    void theCopyLiesHiddenBesideTheFile()
    {
        QCOMPARE(AutoSave::copyOf(QStringLiteral("/data/census.json")),
            QStringLiteral("/data/.census.json.autosave"));
        QCOMPARE(AutoSave::copyOf(QStringLiteral("/data/a b.2023.json")),
            QStringLiteral("/data/.a b.2023.json.autosave"));
        QVERIFY(AutoSave::copyOf(QString()).endsWith(
            QLatin1String("/Tessel/tessel-editor/untitled.json.autosave")));
    }

    void aCopyCountsWhenItIsNoOlderThanTheFile()
    {
        const QDateTime time(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
        setTime(at("f.json"), time);
        QVERIFY(!AutoSave::hasCopy(at("f.json")));
        QVERIFY(put(copy(), dictionaryOf("COPY")));
        QVERIFY(AutoSave::hasCopy(at("f.json")));
        setTime(copy(), time);
        QVERIFY(AutoSave::hasCopy(at("f.json")));
        setTime(copy(), time.addSecs(-1));
        QVERIFY(!AutoSave::hasCopy(at("f.json")));
        setTime(copy(), time.addSecs(1));
        AutoSave::removeCopy(at("f.json"));
        QVERIFY(!AutoSave::hasCopy(at("f.json")));
        QVERIFY(!QFile::exists(copy()));
        QVERIFY(QFile::exists(at("f.json")));
    }

    void aFolderIsNoCopy()
    {
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral(".f.json.autosave")));
        QVERIFY(!AutoSave::hasCopy(at("f.json")));
    }

    void theCopyIsWrittenAfterAnEdit()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        rest();
        QVERIFY(!QFile::exists(copy()));
        watched.edit();
        QVERIFY(!QFile::exists(copy()));
        QTRY_VERIFY(QFile::exists(copy()));
        QVERIFY(contentOf(copy()).contains("\"ENTITY_1\""));
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        QVERIFY(watched.document.isModified());
        QVERIFY(AutoSave::hasCopy(at("f.json")));

        // And again after the next.
        watched.edit();
        QTRY_VERIFY(contentOf(copy()).contains("\"ENTITY_2\""));
    }

    void theCopyOfADictionaryWithoutAFileIsKeptWithTheProgramsData()
    {
        Watched watched;
        watched.edit();
        QTRY_VERIFY(AutoSave::hasCopy(QString()));
        QVERIFY(contentOf(AutoSave::copyOf(QString())).contains("\"ENTITY_1\""));
        watched.document.clear();
        QVERIFY(!AutoSave::hasCopy(QString()));
    }

    void whoEditsWithoutAPauseIsSafeToo()
    {
        Watched watched(200);
        QVERIFY(!watched.document.open(at("f.json")));
        for (int i = 0; i < 100 && !QFile::exists(copy()); ++i) {
            watched.edit();
            QTest::qWait(20);
        }
        QVERIFY(QFile::exists(copy()));
    }

    void thereIsTimeForMoreBeforeTheCopy()
    {
        Watched watched(60'000);
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        rest();
        QVERIFY(!QFile::exists(copy()));
    }

    void savingRemovesTheCopy()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QTRY_VERIFY(QFile::exists(copy()));
        QVERIFY(!watched.document.save(at("f.json")));
        QVERIFY(!QFile::exists(copy()));
        rest();
        QCOMPARE(filesIn(folder->path()), QStringList{"f.json"});
    }

    void savingInTimeNeedsNoCopy()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QVERIFY(!watched.document.save(at("f.json")));
        rest();
        QCOMPARE(filesIn(folder->path()), QStringList{"f.json"});
    }

    void undoingAllRemovesTheCopy()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QTRY_VERIFY(QFile::exists(copy()));
        watched.document.undoStack()->undo();
        QVERIFY(!QFile::exists(copy()));
        rest();
        QVERIFY(!QFile::exists(copy()));
        watched.document.undoStack()->redo();
        QTRY_VERIFY(QFile::exists(copy()));
    }

    void anotherNameRemovesTheCopyUnderTheOldOne()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QTRY_VERIFY(QFile::exists(copy()));
        QVERIFY(!watched.document.save(at("g.json")));
        QCOMPARE(filesIn(folder->path()), (QStringList{"f.json", "g.json"}));
        watched.edit();
        QTRY_COMPARE(filesIn(folder->path()), (QStringList{".g.json.autosave", "f.json", "g.json"}));
    }

    void aFirstNameRemovesTheCopyWithoutOne()
    {
        Watched watched;
        watched.edit();
        QTRY_VERIFY(AutoSave::hasCopy(QString()));
        QVERIFY(!watched.document.save(at("g.json")));
        QVERIFY(!AutoSave::hasCopy(QString()));
        QCOMPARE(filesIn(folder->path()), (QStringList{"f.json", "g.json"}));
    }

    void aFailedSavingKeepsTheCopy()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QTRY_VERIFY(QFile::exists(copy()));
        QVERIFY(watched.document.save(folder->path()));
        QVERIFY(QFile::exists(copy()));
    }

    void anotherDictionaryRemovesTheCopyOfTheLeftOne()
    {
        QVERIFY(put(at("g.json"), dictionaryOf("G")));
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QTRY_VERIFY(QFile::exists(copy()));
        QVERIFY(!watched.document.open(at("g.json")));
        rest();
        QCOMPARE(filesIn(folder->path()), (QStringList{"f.json", "g.json"}));
    }

    void recoveredWorkStaysSafeUntilItIsSaved()
    {
        QVERIFY(put(copy(), dictionaryOf("UNSAVED")));
        Watched watched(60'000);
        QVERIFY(!watched.document.recover(copy(), at("f.json")));
        // The program may be killed again before the pause is over.
        QCOMPARE(contentOf(copy()), dictionaryOf("UNSAVED"));
        watched.edit();
        QCOMPARE(contentOf(copy()), dictionaryOf("UNSAVED"));
        QVERIFY(!watched.document.save(at("f.json")));
        QVERIFY(!QFile::exists(copy()));
    }

    void recoveredWorkStaysSafeAfterOtherWorkHere()
    {
        QVERIFY(put(copy(), dictionaryOf("UNSAVED")));
        QVERIFY(put(at("g.json"), dictionaryOf("G")));
        Watched watched(60'000);
        QVERIFY(!watched.document.open(at("g.json")));
        watched.edit();
        QVERIFY(!watched.document.save(at("g.json")));
        QVERIFY(!watched.document.recover(copy(), at("f.json")));
        QCOMPARE(contentOf(copy()), dictionaryOf("UNSAVED"));
    }

    void recoveredWorkThatIsGivenUpLeavesNoCopy()
    {
        const QString untitled = AutoSave::copyOf(QString());
        QVERIFY(QDir().mkpath(QFileInfo(untitled).path()));
        QVERIFY(put(untitled, dictionaryOf("UNSAVED")));
        Watched watched(60'000);
        QVERIFY(!watched.document.recover(untitled, QString()));
        QVERIFY(QFile::exists(untitled));
        watched.document.clear();
        QVERIFY(!QFile::exists(untitled));
    }

    void whatAnEarlierProgramLeftIsNotRemovedUnasked()
    {
        // Opening a file says nothing about the work without a file that a killed program left.
        const QString untitled = AutoSave::copyOf(QString());
        QVERIFY(QDir().mkpath(QFileInfo(untitled).path()));
        QVERIFY(put(untitled, dictionaryOf("UNSAVED")));
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        watched.edit();
        QVERIFY(!watched.document.save(at("f.json")));
        QCOMPARE(contentOf(untitled), dictionaryOf("UNSAVED"));
    }

    void aCopyThatCannotBeWrittenIsTold()
    {
        Watched watched;
        QVERIFY(!watched.document.open(at("f.json")));
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral(".f.json.autosave")));
        QSignalSpy failed(&watched.autoSave, &AutoSave::failed);
        watched.edit();
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(failed.first().first().toString(),
            QStringLiteral("No copy of the unsaved work could be kept in %1: "
                           "cannot be written: it is a folder; name a file.")
                .arg(copy()));
    }

    void aKilledProgramLeavesItsCopy_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("of a dictionary with a file") << "f.json";
        QTest::newRow("of a dictionary without one") << "";
    }

    void aKilledProgramLeavesItsCopy()
    {
        QFETCH(QString, file);
        const QString name = file.isEmpty() ? QString() : folder->filePath(file);
        QProcess victim;
        victim.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--victim"), name});
        QVERIFY(victim.waitForStarted());
        while (!victim.readAllStandardOutput().contains("ready"))
            QVERIFY(victim.waitForReadyRead(50'000));
        QVERIFY(AutoSave::hasCopy(name));
        victim.kill();
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitStatus(), QProcess::CrashExit);

        QVERIFY(AutoSave::hasCopy(name));
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        DictionaryDocument document;
        QVERIFY(!document.recover(AutoSave::copyOf(name), name));
        QCOMPARE(document.root().getChildren()->last()->getName(), QStringLiteral("UNSAVED"));
        QCOMPARE(document.fileName(), name);
        QVERIFY(document.isModified());
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }
    QString copy() const { return at(".f.json.autosave"); }

    QScopedPointer<QTemporaryDir> folder;
};

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--victim") == 0) {
        // Its places are those of the program that started it.
        QCoreApplication::setOrganizationName(QStringLiteral("Tessel"));
        QCoreApplication::setApplicationName(QStringLiteral("tessel-editor"));
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication application(argc, argv);
        return beVictim(application, QString::fromLocal8Bit(argv[2]));
    }
    const OwnPlaces places;
    QCoreApplication application(argc, argv);
    tst_AutoSave test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AutoSave.moc"
