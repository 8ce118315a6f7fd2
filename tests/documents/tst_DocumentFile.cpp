#include "documents/DocumentFile.h"

#include "tests/documents/Privileges.h"

#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessel::documents;

namespace {

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

void put(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

/// "LINE:COLUMN message" of \a problem.
QString told(const FileProblem &problem)
{
    return QStringLiteral("%1:%2 %3").arg(problem.line).arg(problem.column).arg(problem.message);
}

/// What readFile and readFileWithoutBlanks say of \a name; "read" when it has no complaint.
QString readingOf(const QString &name)
{
    const Outcome<QByteArray> outcome = readFile(name);
    const Outcome<QByteArray> sifted = readFileWithoutBlanks(name);
    if (bool(outcome.result) != bool(sifted.result) || told(outcome.problem) != told(sifted.problem))
        return QStringLiteral("with blanks: %1; without: %2")
            .arg(told(outcome.problem), told(sifted.problem));
    return outcome.result ? QStringLiteral("read") : told(outcome.problem);
}

/// What writeFile says of \a name; "written" when it has no complaint.
QString writingOf(const QString &name, const QByteArray &bytes)
{
    const std::optional<FileProblem> problem = writeFile(name, bytes);
    return problem ? told(*problem) : QStringLiteral("written");
}

/// Calls \a work in a process of its own and returns what it returned, or -1 when it ended by a signal.
template<typename Work>
int inChild(Work &&work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// No file of this process grows beyond \a bytes; writing more fails, as on a full disk.
void limitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

class tst_DocumentFile : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
    }

    void aFileIsReadByteForByte_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no byte") << QByteArray("");
        QTest::newRow("zero bytes and line ends of both kinds") << QByteArray("a\0\r\nb\n\xff", 7);
        QTest::newRow("more than a few pages") << QByteArray("0123456789abcde\n").repeated(3 * 65536 + 1);
    }

    void aFileIsReadByteForByte()
    {
        QFETCH(QByteArray, bytes);
        put(at("f.json"), bytes);
        const Outcome<QByteArray> outcome = readFile(at("f.json"));
        QVERIFY2(outcome.result, qPrintable(outcome.problem.message));
        QCOMPARE(*outcome.result, bytes);
    }

    void blanksBetweenTokensCanBeLeftOut()
    {
        // Texts and blanks that lie across the pieces in which it is read.
        QByteArray document = "[\n";
        QByteArray kept = "[";
        for (int i = 0; i < 3; ++i) {
            const QByteArray text = '"' + QByteArray("a  b").repeated(200'000) + '"';
            document += "    " + text + ',' + QByteArray(400'000, ' ') + "1\n    ,\n";
            kept += text + ",1\n,";
        }
        put(at("f.json"), document + "2]\n");
        const Outcome<QByteArray> outcome = readFileWithoutBlanks(at("f.json"));
        QVERIFY2(outcome.result, qPrintable(outcome.problem.message));
        QCOMPARE(*outcome.result, kept + "2]\n");
    }

    void aFileOfUnknownSizeIsRead()
    {
        // The system says that it has no bytes.
        const Outcome<QByteArray> outcome = readFile(QStringLiteral("/proc/self/cmdline"));
        QVERIFY2(outcome.result, qPrintable(outcome.problem.message));
        QVERIFY(outcome.result->contains("tst_DocumentFile"));
    }

    void aDashIsStandardInput()
    {
        put(at("input"), "{ }\n");
        const int status = inChild([this] {
            if (!std::freopen(QFile::encodeName(at("input")).constData(), "rb", stdin))
                return 2;
            const Outcome<QByteArray> outcome = readFile(QStringLiteral("-"));
            return outcome.result && *outcome.result == "{ }\n" ? 0 : 1;
        });
        QCOMPARE(status, 0);
    }

    void whatCannotBeReadIsToldWithoutAPlace()
    {
        QCOMPARE(
            readingOf(at("missing.json")), QStringLiteral("0:0 cannot be read: No such file or directory"));
        QCOMPARE(
            readingOf(at("missing/f.json")), QStringLiteral("0:0 cannot be read: No such file or directory"));
        QCOMPARE(
            readingOf(folder->path()), QStringLiteral("0:0 cannot be read: it is a folder; name a file"));
        put(at("file"), "{}");
        QCOMPARE(readingOf(at("file/f.json")), QStringLiteral("0:0 cannot be read: Not a directory"));
    }

    void aFileThatBreaksWhileReadIsNotTakenForItsBeginning()
    {
        // Opens, but every read of address 0 fails.
        QCOMPARE(readingOf(QStringLiteral("/proc/self/mem")),
            QStringLiteral("0:0 cannot be read: Input/output error"));
    }

    void anEndlessFileIsRefused()
    {
        QCOMPARE(told(readFile(QStringLiteral("/dev/zero")).problem),
            QStringLiteral("0:0 is larger than 1 GiB; expected a smaller document"));
    }

    void aLargerFileThanAllowedIsRefused()
    {
        QFile file(at("huge.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(qint64(1024) * 1024 * 1024 + 1));
        QCOMPARE(told(readFileWithoutBlanks(at("huge.json")).problem),
            QStringLiteral("0:0 is larger than 1 GiB; expected a smaller document"));
    }

    void aNewFileIsWritten()
    {
        QCOMPARE(writingOf(at("new.json"), "{}\n"), QStringLiteral("written"));
        QCOMPARE(contentOf(at("new.json")), QByteArray("{}\n"));
        QCOMPARE(names(), QStringList{QStringLiteral("new.json")});
    }

    void anOldFileIsReplacedWhole_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("by a shorter one") << QByteArray("{}");
        QTest::newRow("by a longer one") << QByteArray("{\"a\": \"0123456789 0123456789\"}\n");
        QTest::newRow("by nothing") << QByteArray();
    }

    void anOldFileIsReplacedWhole()
    {
        QFETCH(QByteArray, bytes);
        put(at("f.json"), "{\"old\": 1}\n");
        QCOMPARE(writingOf(at("f.json"), bytes), QStringLiteral("written"));
        QCOMPARE(contentOf(at("f.json")), bytes);
        QCOMPARE(names(), QStringList{QStringLiteral("f.json")});
    }

    void theFilesPermissionsStay_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::newRow("for the owner only") << 0600U;
        QTest::newRow("for a group that writes") << 0664U;
        QTest::newRow("for all to run") << 0755U;
    }

    void theFilesPermissionsStay()
    {
        QFETCH(uint, mode);
        put(at("f.json"), "{}");
        const QByteArray name = QFile::encodeName(at("f.json"));
        QCOMPARE(::chmod(name.constData(), mode), 0);
        QCOMPARE(writingOf(at("f.json"), "{ }"), QStringLiteral("written"));
        struct stat status;
        QCOMPARE(::stat(name.constData(), &status), 0);
        QCOMPARE(uint(status.st_mode & 07777U), mode);
    }

    void aLinkStaysAndItsTargetIsReplaced()
    {
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("there")));
        put(at("there/target.json"), "old");
        QVERIFY(QFile::link(QStringLiteral("there/target.json"), at("link.json")));
        QCOMPARE(writingOf(at("link.json"), "new"), QStringLiteral("written"));
        QCOMPARE(linkText("link.json"), QByteArray("there/target.json"));
        QCOMPARE(contentOf(at("there/target.json")), QByteArray("new"));
    }

    void aLinkToNothingStaysAndItsTargetIsMade()
    {
        QVERIFY(QFile::link(QStringLiteral("target.json"), at("link.json")));
        QCOMPARE(writingOf(at("link.json"), "new"), QStringLiteral("written"));
        QCOMPARE(linkText("link.json"), QByteArray("target.json"));
        QCOMPARE(contentOf(at("target.json")), QByteArray("new"));
    }

    void whatCannotBeWrittenIsToldWithoutAPlace()
    {
        QCOMPARE(writingOf(folder->path(), "{}"),
            QStringLiteral("0:0 cannot be written: it is a folder; name a file"));
        QCOMPARE(writingOf(at("missing/f.json"), "{}"),
            QStringLiteral("0:0 cannot be written: No such file or directory; nothing was changed"));
        QCOMPARE(names(), QStringList());
    }

    void aDeviceIsWrittenAndNotReplaced_data()
    {
        QTest::addColumn<QByteArray>("device");
        QTest::addColumn<QString>("answer");
        QTest::newRow("that takes all") << QByteArray("/dev/null") << QStringLiteral("written");
        QTest::newRow("that is full")
            << QByteArray("/dev/full") << QStringLiteral("0:0 cannot be written: No space left on device");
    }

    void aDeviceIsWrittenAndNotReplaced()
    {
        QFETCH(QByteArray, device);
        QFETCH(QString, answer);
        // Without the right to replace it: a mistake must not cost the machine its device.
        const int status = inChild([&] {
            if (!tessel::test::giveUpPrivileges())
                return 2;
            return writingOf(QFile::decodeName(device), "{}") == answer ? 0 : 1;
        });
        QCOMPARE(status, 0);
    }

    void aPipeIsWrittenAndStaysAPipe()
    {
        const QByteArray name = QFile::encodeName(at("pipe"));
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
        const int reader = ::open(name.constData(), O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0);
        QCOMPARE(writingOf(at("pipe"), "{ }\n"), QStringLiteral("written"));
        char piece[16];
        const ssize_t size = ::read(reader, piece, sizeof piece);
        ::close(reader);
        QCOMPARE(QByteArray(piece, int(qMax<ssize_t>(size, 0))), QByteArray("{ }\n"));
        struct stat status;
        QCOMPARE(::lstat(name.constData(), &status), 0);
        QVERIFY(S_ISFIFO(status.st_mode));
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("noticed when the last bytes are written") << 5000;
        QTest::newRow("noticed while writing") << 5000000;
    }

    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(int, size);
        const QByteArray old = "{\"old\": 1}\n";
        put(at("f.json"), old);
        const int status = inChild([&] {
            limitFiles(4096);
            return writingOf(at("f.json"), QByteArray(size, 'x'))
                       .startsWith(QLatin1String("0:0 cannot be written: "))
                ? 0
                : 1;
        });
        QCOMPARE(contentOf(at("f.json")), old);
        QCOMPARE(names(), QStringList{QStringLiteral("f.json")});
        QCOMPARE(status, 0);
    }

    void theReasonOfAFailedWriteIsTold()
    {
        const int status = inChild([this] {
            limitFiles(4096);
            return writingOf(at("f.json"), QByteArray(5000000, 'x'))
                    == QLatin1String("0:0 cannot be written: File too large; nothing was changed")
                ? 0
                : 1;
        });
        QCOMPARE(status, 0);
    }

    void aFullDiskLeavesNoNewFile()
    {
        const int status = inChild([this] {
            limitFiles(4096);
            return writingOf(at("f.json"), QByteArray(5000, 'x')) == QStringLiteral("written") ? 1 : 0;
        });
        QCOMPARE(names(), QStringList());
        QCOMPARE(status, 0);
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }

    QStringList names() const
    {
        return QDir(folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QByteArray linkText(const char *name) const
    {
        QByteArray text(4096, '\0');
        const ssize_t size =
            ::readlink(QFile::encodeName(at(name)).constData(), text.data(), size_t(text.size()));
        return text.left(int(size));
    }

    QScopedPointer<QTemporaryDir> folder;
};

QTEST_APPLESS_MAIN(tst_DocumentFile)
#include "tst_DocumentFile.moc"
