#include "sources/StatisticalReader.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace tessel::sources;

namespace {

/// Where the names of the label sets stand in the seed: behind the header and the types, names, order and
/// formats of its four variables. Each has a fixed number of bytes.
constexpr int kListBegin = 451;
constexpr int kNameBytes = 33;
constexpr int kVariables = 4;

QByteArray seed()
{
    QFile file(TESSEL_SOURCE_DIR "/fuzz/corpus/dta/version_115.dta");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString labelSetIn(const QByteArray &bytes, int variable)
{
    return QString::fromLatin1(bytes.mid(kListBegin + variable * kNameBytes, kNameBytes).constData());
}

} // namespace

/// The names of label sets in a Stata file fill their places, and nothing need end them.
class tst_StataLabelSetName : public QObject {
    Q_OBJECT

private slots:
    void theListStandsWhereItIsExpected()
    {
        QCOMPARE(labelSetIn(seed(), 0), QString());
        QCOMPARE(labelSetIn(seed(), 1), QString("SXI"));
    }

    void aNameThatFillsItsPlaceEndsThere_data()
    {
        QTest::addColumn<int>("variable");
        for (int i = 0; i < kVariables; ++i)
            QTest::addRow("variable %d", i + 1) << i;
    }
    void aNameThatFillsItsPlaceEndsThere()
    {
        QFETCH(int, variable);
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("full.dta")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QByteArray bytes = seed();
        bytes.replace(kListBegin + variable * kNameBytes, kNameBytes, QByteArray(kNameBytes, 'x'));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
        file.close();

        const SourceOutcome outcome = readStatistical(file.fileName(), StatisticalFormat::Dta);
        if (!outcome.result) {
            // A set that no table of labels follows makes the file a damaged one: the name is told as it
            // stands.
            QVERIFY2(outcome.problem.message.contains(QString(kNameBytes, 'x')),
                qPrintable(outcome.problem.message));
            QVERIFY(!outcome.problem.message.contains(QString(kNameBytes + 1, 'x')));
            return;
        }
        QCOMPARE(int(outcome.result->fields.size()), kVariables);
        for (const SourceRemark &remark : outcome.result->remarks)
            QVERIFY(!remark.reason.contains(QString(kNameBytes + 1, 'x')));
    }
};

QTEST_GUILESS_MAIN(tst_StataLabelSetName)
#include "tst_StataLabelSetName.moc"
