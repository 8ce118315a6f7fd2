#include "tests/documents/Privileges.h"
#include "tests/sources/SourceReading.h"
#include "tests/support/LogCatcher.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <QtEndian>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

Q_DECLARE_METATYPE(tessel::test::FileForm)
Q_DECLARE_METATYPE(tessel::test::FileKind)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

Table smallTable() { return {{}, {{"X", READSTAT_TYPE_DOUBLE, 8, "A number"}}, {{1.0}}}; }

QByteArray smallFile(FileKind kind) { return fileOf(smallTable(), {kind}); }

/// \a bytes with the little-endian number \a number at \a place.
QByteArray withNumber(QByteArray bytes, int place, quint32 number)
{
    qToLittleEndian(number, bytes.data() + place);
    return bytes;
}

/// The place behind \a mark in \a bytes; ends the program when there is none.
int behind(const QByteArray &bytes, const QByteArray &mark)
{
    const int place = bytes.indexOf(mark);
    if (place < 0)
        qFatal("fixture: no %s", mark.constData());
    return place + mark.size();
}

const FileKind kKinds[] = {
    FileKind::Sav, FileKind::Zsav, FileKind::Por, FileKind::Dta, FileKind::Sas7bdat, FileKind::Xpt};

} // namespace

/// Files that are no sources, or not the ones that they seem to be: one clear sentence each.
class tst_StatisticalBadInput : public QObject {
    Q_OBJECT

private slots:
    void renamedFileIsAProblemThatNamesBoth_data();
    void renamedFileIsAProblemThatNamesBoth();
    void endingInCapitalsIsTheSame_data();
    void endingInCapitalsIsTheSame();
    void savAndZsavMayStandForEachOther();
    void refused_data();
    void refused();
    void folderIsNoFile();
    void missingFile();
    void pipeIsNotWaitedFor();
    void fileWithoutVariables();
    void unreadableFile();
    void namesMayBeAnyBytes();
    void enormousHeaders_data();
    void enormousHeaders();
    void damagedBytesNeverCrash_data();
    void damagedBytesNeverCrash();
    void nothingIsWrittenToTheTerminal();
};

void tst_StatisticalBadInput::renamedFileIsAProblemThatNamesBoth_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("dta as sav")
        << smallFile(FileKind::Dta) << "survey.sav"
        << "is a Stata file by its content, though its name ends in .sav; rename it to end in .dta";
    QTest::newRow("old dta as sav")
        << fileOf(smallTable(), {FileKind::Dta, 114}) << "survey.sav"
        << "is a Stata file by its content, though its name ends in .sav; rename it to end in .dta";
    QTest::newRow("sav as dta")
        << smallFile(FileKind::Sav) << "survey.dta"
        << "is an SPSS file by its content, though its name ends in .dta; rename it to end in .sav";
    QTest::newRow("zsav as dta")
        << smallFile(FileKind::Zsav) << "survey.dta"
        << "is an SPSS file by its content, though its name ends in .dta; rename it to end in .sav";
    QTest::newRow("por as sav")
        << smallFile(FileKind::Por) << "survey.sav"
        << "is an SPSS portable file by its content, though its name ends in .sav; rename it to end in .por";
    QTest::newRow("sas7bdat as xpt")
        << smallFile(FileKind::Sas7bdat) << "survey.xpt"
        << "is a SAS file by its content, though its name ends in .xpt; rename it to end in .sas7bdat";
    QTest::newRow("xpt as sas7bdat") << smallFile(FileKind::Xpt) << "survey.sas7bdat"
                                     << "is a SAS transport file by its content, though its name ends in "
                                        ".sas7bdat; rename it to end in .xpt";
    QTest::newRow("xpt 8 as csv")
        << fileOf(smallTable(), {FileKind::Xpt, 8}) << "survey.csv"
        << "is a SAS transport file by its content, though its name ends in .csv; rename it to end in .xpt";
    QTest::newRow("sav as csv")
        << smallFile(FileKind::Sav) << "survey.csv"
        << "is an SPSS file by its content, though its name ends in .csv; rename it to end in .sav";
}

void tst_StatisticalBadInput::renamedFileIsAProblemThatNamesBoth()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const SourceOutcome outcome = readingOf(bytes, name);
    QTEST(problemOf(outcome), "expected");
    QVERIFY(!outcome.canRetryWithEncoding);
}

void tst_StatisticalBadInput::endingInCapitalsIsTheSame_data()
{
    QTest::addColumn<FileKind>("kind");
    for (const FileKind kind : kKinds)
        QTest::newRow(qPrintable(endingOf(kind))) << kind;
}

void tst_StatisticalBadInput::endingInCapitalsIsTheSame()
{
    QFETCH(FileKind, kind);
    QCOMPARE(problemOf(readingOf(smallFile(kind), QStringLiteral("SURVEY.") + endingOf(kind).toUpper())),
        QStringLiteral("read"));
    QVERIFY(sourceEndings().contains(endingOf(kind)));
}

void tst_StatisticalBadInput::savAndZsavMayStandForEachOther()
{
    QCOMPARE(
        problemOf(readingOf(smallFile(FileKind::Sav), QStringLiteral("a.zsav"))), QStringLiteral("read"));
    QCOMPARE(
        problemOf(readingOf(smallFile(FileKind::Zsav), QStringLiteral("a.sav"))), QStringLiteral("read"));
}

void tst_StatisticalBadInput::refused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty sav") << QByteArray() << "survey.sav"
                               << "is empty; expected a file with data";
    QTest::newRow("empty csv") << QByteArray() << "survey.csv"
                               << "is empty; expected a file with data";
    QTest::newRow("text named sav")
        << QByteArray("AGE;SEX\n1;2\n") << "survey.sav"
        << "is a text file by its content, though its name ends in .sav; rename it to end in .csv";
    QTest::newRow("text named dta")
        << QByteArray("AGE;SEX\n1;2\n") << "survey.dta"
        << "is a text file by its content, though its name ends in .dta; rename it to end in .csv";
    QTest::newRow("text that begins like a .dta")
        << QByteArray("region;sex\n1;2\n") << "survey.dta"
        << "is a text file by its content, though its name ends in .dta; rename it to end in .csv";
    QTest::newRow("zeroes") << QByteArray(5000, '\0') << "survey.sas7bdat"
                            << "is not a SAS file by its content, though its name ends in .sas7bdat; it is "
                               "damaged or of another kind";
    QTest::newRow("encrypted sav") << QByteArray("\x1c\0\0\0\0\0\0\0ENCRYPTEDSAV\x15\0\0\0", 24)
            + QByteArray(500, 'x') << "survey.sav"
                                   << "is encrypted; save it without a password";
    QTest::newRow("catalogue of SAS") << smallFile(FileKind::Sas7bcat) << "survey.sas7bcat"
                                      << "is a SAS catalogue, which holds value labels and no fields; open "
                                         "the .sas7bdat file that it belongs to";
    QTest::newRow("catalogue of SAS named as data") << smallFile(FileKind::Sas7bcat) << "survey.sas7bdat"
                                                    << "is a SAS catalogue, which holds value labels and no "
                                                       "fields; open the .sas7bdat file that it belongs to";
    QTest::newRow("unknown ending") << QByteArray("PK\x03\x04 a book of sheets") << "survey.xlsx"
                                    << "is of a kind that cannot be read; expected a file whose name ends in "
                                       ".csv, .tsv, .txt, .sav, .zsav, .por, .dta, .sas7bdat, .xpt";
    QTest::newRow("no ending") << QByteArray("nothing known") << "survey"
                               << "is of a kind that cannot be read; expected a file whose name ends in "
                                  ".csv, .tsv, .txt, .sav, .zsav, .por, .dta, .sas7bdat, .xpt";
}

void tst_StatisticalBadInput::refused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const SourceOutcome outcome = readingOf(bytes, name);
    QTEST(problemOf(outcome), "expected");
    QVERIFY(!outcome.canRetryWithEncoding);
    QVERIFY(!outcome.isCancelled);
}

void tst_StatisticalBadInput::folderIsNoFile()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("survey.sav")));
    QCOMPARE(problemOf(readSource(folder.filePath(QStringLiteral("survey.sav")))),
        QStringLiteral("cannot be read: it is a folder; name a file"));
}

void tst_StatisticalBadInput::missingFile()
{
    const QTemporaryDir folder;
    QCOMPARE(problemOf(readSource(folder.filePath(QStringLiteral("survey.sav")))),
        QStringLiteral("cannot be read: No such file or directory"));
}

void tst_StatisticalBadInput::pipeIsNotWaitedFor()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("survey.sav"));
    QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    QCOMPARE(problemOf(readSource(name)),
        QStringLiteral("cannot be read: it is no regular file; save its content in a file and name that"));
}

void tst_StatisticalBadInput::fileWithoutVariables()
{
    QCOMPARE(problemOf(readingOf(Table(), {FileKind::Dta})),
        QStringLiteral("holds no variables; expected at least one"));
}

void tst_StatisticalBadInput::unreadableFile()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("survey.sav"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(smallFile(FileKind::Sav)) > 0);
    file.close();
    QVERIFY(file.setPermissions({}));
    QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
    // A child gives up its privileges: root could read the file all the same.
    const pid_t child = fork();
    if (child == 0) {
        const bool isRefused = giveUpPrivileges()
            && problemOf(readSource(name)) == QStringLiteral("cannot be read: Permission denied");
        _exit(isRefused ? 0 : 1);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

void tst_StatisticalBadInput::namesMayBeAnyBytes()
{
    const QTemporaryDir folder;
    for (const QString &name :
        {QStringLiteral("año 人口.sav"), QStringLiteral("a%1b.sav"), QStringLiteral("a\nb.sav")}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(smallFile(FileKind::Sav)) > 0);
        file.close();
        QCOMPARE(problemOf(readSource(file.fileName())), QStringLiteral("read"));
    }
}

void tst_StatisticalBadInput::enormousHeaders_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("ending");
    const Table labelled{{{"set", READSTAT_TYPE_DOUBLE, {{1.0, "Yes"}}}},
        {{"X", READSTAT_TYPE_DOUBLE, 8, "A number", "F3.0", "set"}}, {{1.0}}};
    const QByteArray sav = fileOf(labelled, {FileKind::Sav});
    constexpr quint32 most = 0x7ffffff0;
    QTest::newRow("sav, number of labels")
        << withNumber(sav, behind(sav, QByteArray("\x03\0\0\0\x01\0\0\0\0\0\0\0\0\0\xf0\x3f", 16)) - 12, most)
        << "sav";
    QTest::newRow("sav, length of a variable's label")
        << withNumber(sav, behind(sav, "A number") - 12, most) << "sav";
    QTest::newRow("sav, length of the long names") << withNumber(sav, behind(sav, "X=X") - 7, most) << "sav";
    QTest::newRow("sav, size of the pieces of the long names")
        << withNumber(sav, behind(sav, "X=X") - 11, most) << "sav";
    const QByteArray old = fileOf(smallTable(), {FileKind::Dta, 114});
    QTest::newRow("old dta, number of variables") << QByteArray(old).replace(4, 2, "\xff\x7f", 2) << "dta";
    const QByteArray dta = fileOf(
        {{{"set", READSTAT_TYPE_INT32, {{1.0, "Yes"}}}}, {{"X", READSTAT_TYPE_INT32, 0, "", "", "set"}}},
        {FileKind::Dta, 119});
    QTest::newRow("dta, number of variables") << withNumber(dta, behind(dta, "<K>"), most) << "dta";
    QTest::newRow("dta, length of the labels") << withNumber(dta, behind(dta, "<lbl>"), most) << "dta";
    const QByteArray sas = fileOf(smallTable(), {FileKind::Sas7bdat, 0, READSTAT_COMPRESS_NONE, false});
    QTest::newRow("sas7bdat, size of a page") << withNumber(sas, 200, most) << "sas7bdat";
    QTest::newRow("sas7bdat, size of the head") << withNumber(sas, 196, most) << "sas7bdat";
    QTest::newRow("sas7bdat, number of pages") << withNumber(sas, 204, most) << "sas7bdat";
}

void tst_StatisticalBadInput::enormousHeaders()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, ending);
    const SourceOutcome outcome = readingOf(bytes, QStringLiteral("survey.") + ending);
    QVERIFY2(!outcome.result, qPrintable(allOf(outcome).join(QLatin1Char('\n'))));
    QVERIFY(!outcome.problem.message.isEmpty());
    rusage usage{};
    QCOMPARE(getrusage(RUSAGE_SELF, &usage), 0);
    QVERIFY2(usage.ru_maxrss < 1024 * 1024, "less than a gibibyte was touched");
}

void tst_StatisticalBadInput::damagedBytesNeverCrash_data() { endingInCapitalsIsTheSame_data(); }

void tst_StatisticalBadInput::damagedBytesNeverCrash()
{
    QFETCH(FileKind, kind);
    const QByteArray whole = kind == FileKind::Sas7bdat
        ? fileOf(smallTable(), {kind, 0, READSTAT_COMPRESS_NONE, false})
        : smallFile(kind);
    const QTemporaryDir folder;
    ReadOptions options;
    options.rows = 10;
    QFile file(folder.filePath(QStringLiteral("survey.") + endingOf(kind)));
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QCOMPARE(file.write(whole), qint64(whole.size()));
    const auto put = [&file](int place, char byte) { return file.seek(place) && file.write(&byte, 1) == 1; };
    for (int place = 0; place < whole.size(); ++place) {
        const char byte = whole[place];
        const bool isInEmptiness = byte == '\0' && place > 600 && place % 7 != 0;
        if (isInEmptiness)
            continue;
        QVERIFY(put(place, static_cast<char>(byte ^ 0xff)));
        const LogCatcher log;
        const SourceOutcome outcome = readSource(file.fileName(), options);
        QVERIFY2(outcome.result || !outcome.problem.message.isEmpty(), qPrintable(QString::number(place)));
        QCOMPARE(log.messages(), QStringList());
        QVERIFY(put(place, byte));
    }
    QCOMPARE(problemOf(readSource(file.fileName(), options)), QStringLiteral("read"));
}

void tst_StatisticalBadInput::nothingIsWrittenToTheTerminal()
{
    const QTemporaryDir folder;
    const QString written = folder.filePath(QStringLiteral("written"));
    QVERIFY(QFile(written).open(QIODevice::WriteOnly));
    const pid_t child = fork();
    if (child == 0) {
        if (!freopen(QFile::encodeName(written).constData(), "w", stderr) || dup2(fileno(stderr), 1) < 0)
            _exit(1);
        for (const FileKind kind : kKinds) {
            const QByteArray bytes = smallFile(kind);
            for (int length = bytes.size() / 2; length <= bytes.size(); length += bytes.size() / 8)
                readingOf(bytes.left(length), QStringLiteral("survey.") + endingOf(kind));
        }
        fflush(nullptr);
        _exit(0);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QFile file(written);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray());
}

QTEST_APPLESS_MAIN(tst_StatisticalBadInput)

#include "tst_StatisticalBadInput.moc"
