#include "tests/sources/SourceReading.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(tessel::test::FileForm)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

/// Random tables, always the same ones for the same seed: a column in two has labels, some share a set.
class TableMaker {
public:
    TableMaker(quint32 seed, const FileForm &form)
        : random(seed)
        , isStata(form.kind == FileKind::Dta)
        , isSas(form.kind == FileKind::Sas7bdat || form.kind == FileKind::Xpt)
        , hasAccents(
              form.kind == FileKind::Sav || form.kind == FileKind::Zsav || (isStata && form.version >= 118))
    {
    }

    Table table()
    {
        Table made;
        if (!isSas)
            for (int i = 0; i < 4; ++i)
                made.sets.push_back(labelSet(i));
        const int columns = random.bounded(1, 12);
        for (int i = 0; i < columns; ++i)
            made.columns.push_back(column(i));
        made.title = words();
        for (int i = 0; i < 7; ++i)
            made.records.push_back(record(made.columns, i));
        return made;
    }

private:
    QByteArray words()
    {
        static const char *const plain[] = {
            "Rural", "area", "of", "the", "Dwelling", "(total)", "-", "100%", "\"", "it's"};
        static const char *const accented[] = {"Año", "São", "Ñandé", "où", "ß", "–"};
        QByteArray text;
        for (int count = random.bounded(4); count >= 0; --count)
            text += QByteArray(text.isEmpty() ? "" : " ")
                + (hasAccents && random.bounded(2) == 0 ? accented[random.bounded(6)]
                                                        : plain[random.bounded(8)]);
        return text;
    }

    LabelSet labelSet(int number)
    {
        LabelSet set{
            "set" + QByteArray::number(number), isStata ? READSTAT_TYPE_INT32 : READSTAT_TYPE_DOUBLE};
        int code = random.bounded(-3, 3);
        for (int count = random.bounded(1, 9); count > 0; --count, code += random.bounded(1, 40))
            set.labels.push_back({double(code), words()});
        return set;
    }

    Column column(int number)
    {
        Column made{"V" + QByteArray::number(number)};
        if (random.bounded(4) > 0)
            made.label = words();
        if (random.bounded(4) == 0) {
            made.type = READSTAT_TYPE_STRING;
            made.width = static_cast<size_t>(random.bounded(1, 30));
            return made;
        }
        made.width = 8;
        if (isStata)
            made.type =
                std::array{READSTAT_TYPE_INT8, READSTAT_TYPE_INT16, READSTAT_TYPE_INT32}[random.bounded(3u)];
        if (!isSas && random.bounded(2) == 0)
            made.labelSet = "set" + QByteArray::number(random.bounded(4));
        return made;
    }

    static std::vector<Cell> record(const std::vector<Column> &columns, int number)
    {
        std::vector<Cell> made;
        for (const Column &column : columns)
            made.push_back(
                column.type == READSTAT_TYPE_STRING ? Cell(QByteArray("a")) : Cell(double(number)));
        return made;
    }

    QRandomGenerator random;
    bool isStata;
    bool isSas;
    bool hasAccents;
};

/// What \a program writes to its standard output, called with \a arguments; ends the test program when it
/// fails.
QByteArray outputOf(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(QLatin1String(program), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s %s failed", program, qPrintable(arguments.join(QLatin1Char(' '))));
    return process.readAllStandardOutput();
}

/// One line for a variable in the metadata of the other program: its name, kind, label and labels.
QString lineOf(const QJsonObject &variable)
{
    QStringList categories;
    for (const QJsonValue &category : variable[QStringLiteral("categories")].toArray())
        categories << QString::number(category[QStringLiteral("code")].toDouble()) + QLatin1Char(' ')
                + category[QStringLiteral("label")].toString();
    return QStringLiteral("%1 %2 \"%3\" {%4}")
        .arg(variable[QStringLiteral("name")].toString(), variable[QStringLiteral("type")].toString(),
            variable[QStringLiteral("label")].toString(), categories.join(QLatin1Char('|')));
}

QStringList linesOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return fieldsOf(outcome);
    QStringList lines;
    for (const auto &field : outcome.result->fields)
        lines << QStringLiteral("%1 %2 \"%3\" {%4}")
                     .arg(field->name,
                         field->fieldType == QLatin1String("STRING") ? QStringLiteral("STRING")
                                                                     : QStringLiteral("NUMERIC"),
                         field->label,
                         QString(field->categories).replace(QLatin1Char('\t'), QLatin1Char('|')));
    return lines;
}

} // namespace

/// The reader against two independent programs, over random tables: readstat(1) and extract_metadata(1).
class tst_StatisticalOracle : public QObject {
    Q_OBJECT

private slots:
    void metadata_data();
    void metadata();
    void numberOfFieldsAndRecords_data() { metadata_data(); }
    void numberOfFieldsAndRecords();

private:
    QString put(const QByteArray &bytes, const FileForm &form);
    QStringList linesOfTheOthers(const QString &file, const FileForm &form);

    QTemporaryDir folder;
};

QString tst_StatisticalOracle::put(const QByteArray &bytes, const FileForm &form)
{
    QFile file(folder.filePath(QStringLiteral("survey.") + endingOf(form.kind)));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("fixture: %s cannot be written", qPrintable(file.fileName()));
    return file.fileName();
}

QStringList tst_StatisticalOracle::linesOfTheOthers(const QString &file, const FileForm &form)
{
    QString known = file;
    // The program that tells labels reads no other formats; the one that converts does.
    const bool mustBeConverted = form.kind != FileKind::Sav && form.kind != FileKind::Dta;
    if (mustBeConverted) {
        known = folder.filePath(QStringLiteral("converted.sav"));
        QFile::remove(known);
        outputOf(TESSEL_READSTAT, {file, known});
    }
    const QString metadata = folder.filePath(QStringLiteral("metadata.json"));
    QFile::remove(metadata);
    outputOf(TESSEL_EXTRACT_METADATA, {known, metadata});
    QFile json(metadata);
    if (!json.open(QIODevice::ReadOnly))
        qFatal("no metadata");
    QStringList lines;
    for (const QJsonValue &variable :
        QJsonDocument::fromJson(json.readAll())[QStringLiteral("variables")].toArray())
        lines << lineOf(variable.toObject());
    return lines;
}

void tst_StatisticalOracle::metadata_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::newRow("sav") << FileForm{FileKind::Sav};
    QTest::newRow("zsav") << FileForm{FileKind::Zsav};
    QTest::newRow("por") << FileForm{FileKind::Por};
    for (const int version : {105, 110, 114, 117, 118, 119})
        QTest::addRow("dta %d", version) << FileForm{FileKind::Dta, static_cast<uint8_t>(version)};
    QTest::newRow("sas7bdat") << FileForm{FileKind::Sas7bdat};
    QTest::newRow("xpt 5") << FileForm{FileKind::Xpt, 5};
    QTest::newRow("xpt 8") << FileForm{FileKind::Xpt, 8};
}

void tst_StatisticalOracle::metadata()
{
    QFETCH(FileForm, form);
    for (quint32 seed = 1; seed <= 20; ++seed) {
        const QString file = put(fileOf(TableMaker(seed, form).table(), form), form);
        const QStringList expected = linesOfTheOthers(file, form);
        QVERIFY(!expected.isEmpty());
        QCOMPARE(linesOf(readSource(file)), expected);
    }
}

void tst_StatisticalOracle::numberOfFieldsAndRecords()
{
    QFETCH(FileForm, form);
    const Table table = TableMaker(5, form).table();
    const QString file = put(fileOf(table, form), form);
    const SourceOutcome outcome = readSource(file);
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    const QString others = QString::fromUtf8(outputOf(TESSEL_READSTAT, {file}));
    QVERIFY2(others.contains(QStringLiteral("Columns: %1\n").arg(outcome.result->fields.size())),
        qPrintable(others));
    QVERIFY2(others.contains(QStringLiteral("Rows: %1\n").arg(outcome.result->rows)), qPrintable(others));
}

QTEST_APPLESS_MAIN(tst_StatisticalOracle)

#include "tst_StatisticalOracle.moc"
