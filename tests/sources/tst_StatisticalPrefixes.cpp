#include "tests/sources/SourceReading.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(tessel::test::FileForm)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

/// A small table with labels, declared codes, texts and records, as far as the format \a form takes them.
Table smallTable(const FileForm &form)
{
    const bool isSpss =
        form.kind == FileKind::Sav || form.kind == FileKind::Zsav || form.kind == FileKind::Por;
    const bool isStata = form.kind == FileKind::Dta;
    const readstat_type_t type = isStata ? READSTAT_TYPE_INT16 : READSTAT_TYPE_DOUBLE;
    const QByteArray format = isStata ? "" : "F3.0";
    Table table{{},
        {{"AGE", type, 8, "Age in years", format}, {"SEX", type, 8, "Sex", format},
            {"NAME", READSTAT_TYPE_STRING, 5, "First name"}},
        {{7.0, 1.0, QByteArray("Ana")}, {31.0, 2.0, QByteArray("Iris")}, {66.0, 1.0, QByteArray("Eva")}},
        "Persons"};
    if (isSpss || isStata) {
        table.sets = {{"sex", isStata ? READSTAT_TYPE_INT32 : type, {{1.0, "Male"}, {2.0, "Female"}}}};
        table.columns[1].labelSet = "sex";
    }
    if (isSpss)
        table.columns[0].missing = {{99, 99}};
    return table;
}

/// What must not depend on where a file was cut off: everything but the number of records.
QStringList fieldsAndRemarks(const SourceOutcome &outcome) { return allOf(outcome).mid(1); }

} // namespace

/// Files that were cut off anywhere are refused, or they show what the whole file shows: never a part of it.
class tst_StatisticalPrefixes : public QObject {
    Q_OBJECT

private slots:
    void everyPrefix_data();
    void everyPrefix();
    void everyPrefixWithRecords_data();
    void everyPrefixWithRecords();
    void cutOffLabelsOfStataAreAProblem_data();
    void cutOffLabelsOfStataAreAProblem();
    void labelSetOfStataThatNeverArrivesIsAProblem();

private:
    static void comparePrefixes(const FileForm &form, const ReadOptions &options);
};

void tst_StatisticalPrefixes::comparePrefixes(const FileForm &form, const ReadOptions &options)
{
    const QTemporaryDir folder;
    const QByteArray bytes = fileOf(smallTable(form), form);
    QFile file(folder.filePath(QStringLiteral("survey.") + endingOf(form.kind)));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
    QVERIFY(file.flush());
    const SourceOutcome whole = readSource(file.fileName(), options);
    QVERIFY2(whole.result, qPrintable(problemOf(whole)));
    QCOMPARE(whole.result->fields.size(), size_t(3));
    const QStringList expected = fieldsAndRemarks(whole);
    QStringList wrong;
    // One file that shrinks: a new one for each length takes a hundred times as long.
    for (int length = bytes.size() - 1; length >= 0; --length) {
        QVERIFY(file.resize(length));
        const SourceOutcome outcome = readSource(file.fileName(), options);
        if (outcome.result ? fieldsAndRemarks(outcome) != expected : outcome.problem.message.isEmpty())
            wrong << QString::number(length);
    }
    QCOMPARE(wrong.join(QLatin1Char(' ')), QString());
}

void tst_StatisticalPrefixes::everyPrefix_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::newRow("sav") << FileForm{FileKind::Sav};
    QTest::newRow("sav, compressed") << FileForm{FileKind::Sav, 0, READSTAT_COMPRESS_ROWS};
    QTest::newRow("zsav") << FileForm{FileKind::Zsav};
    QTest::newRow("por") << FileForm{FileKind::Por};
    for (const int version : {104, 105, 108, 110, 111, 113, 114, 117, 118, 119})
        QTest::addRow("dta %d", version) << FileForm{FileKind::Dta, static_cast<uint8_t>(version)};
    QTest::newRow("sas7bdat, 32 bit") << FileForm{FileKind::Sas7bdat, 0, READSTAT_COMPRESS_NONE, false};
    QTest::newRow("sas7bdat, compressed") << FileForm{FileKind::Sas7bdat, 0, READSTAT_COMPRESS_ROWS, false};
    QTest::newRow("xpt 5") << FileForm{FileKind::Xpt, 5};
    QTest::newRow("xpt 8") << FileForm{FileKind::Xpt, 8};
}

void tst_StatisticalPrefixes::everyPrefix()
{
    QFETCH(FileForm, form);
    comparePrefixes(form, {});
}

void tst_StatisticalPrefixes::everyPrefixWithRecords_data()
{
    // Formats that say how many records they have, or where they end. An .xpt says neither.
    QTest::addColumn<FileForm>("form");
    QTest::newRow("sav") << FileForm{FileKind::Sav};
    QTest::newRow("sav, compressed") << FileForm{FileKind::Sav, 0, READSTAT_COMPRESS_ROWS};
    QTest::newRow("zsav") << FileForm{FileKind::Zsav};
    QTest::newRow("por") << FileForm{FileKind::Por};
    QTest::newRow("dta 114") << FileForm{FileKind::Dta, 114};
    QTest::newRow("dta 118") << FileForm{FileKind::Dta, 118};
    QTest::newRow("sas7bdat, 32 bit") << FileForm{FileKind::Sas7bdat, 0, READSTAT_COMPRESS_NONE, false};
    QTest::newRow("sas7bdat, compressed") << FileForm{FileKind::Sas7bdat, 0, READSTAT_COMPRESS_ROWS, false};
}

void tst_StatisticalPrefixes::everyPrefixWithRecords()
{
    QFETCH(FileForm, form);
    ReadOptions options;
    options.rows = 1000;
    comparePrefixes(form, options);
}

void tst_StatisticalPrefixes::cutOffLabelsOfStataAreAProblem_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<QString>("expected");
    QTest::newRow("old, within the labels")
        << FileForm{FileKind::Dta, 114} << "ends too early: it was cut off or is damaged; get the whole file";
    QTest::newRow("new, told by the closing tag")
        << FileForm{FileKind::Dta, 118} << "ends too early: it was cut off; get the whole file";
}

void tst_StatisticalPrefixes::cutOffLabelsOfStataAreAProblem()
{
    QFETCH(FileForm, form);
    const QByteArray bytes = fileOf(smallTable(form), form);
    const int labels = bytes.lastIndexOf("Male");
    QVERIFY(labels > 0);
    QTEST(problemOf(readingOf(bytes.left(labels - 100), QStringLiteral("survey.dta"))), "expected");
}

void tst_StatisticalPrefixes::labelSetOfStataThatNeverArrivesIsAProblem()
{
    // An old .dta ends with its label sets and says nowhere how many there are: cut off before the first, it
    // is a good file for the library.
    const FileForm form{FileKind::Dta, 114};
    Table table = smallTable(form);
    const int withLabels = fileOf(table, form).size();
    table.sets.clear();
    table.columns[1].labelSet.clear();
    const int withoutLabels = fileOf(table, form).size();
    const QByteArray bytes = fileOf(smallTable(form), form).left(withoutLabels);
    QVERIFY(withoutLabels < withLabels);
    QCOMPARE(problemOf(readingOf(bytes, QStringLiteral("survey.dta"))),
        QStringLiteral(
            "does not hold the value labels \"sex\" of the variable SEX: it was cut off or saved without "
            "them; get the whole file"));
}

QTEST_APPLESS_MAIN(tst_StatisticalPrefixes)

#include "tst_StatisticalPrefixes.moc"
