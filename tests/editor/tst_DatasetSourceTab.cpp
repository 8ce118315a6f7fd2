#include "editor/views/DatasetSourceTab.h"

#include "editor/views/EncodingBox.h"
#include "sources/SourceReader.h"

#include "tests/editor/PlannedReader.h"

#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

using namespace tessel::editor;
using namespace tessel::test;
using tessel::sources::ReadOptions;

namespace {

QStringList namesIn(const SourcesPane &pane)
{
    QStringList names;
    for (const QString &row : rowsOf(*childOf<SourceTable>(pane, "datasetTable")))
        names.append(row.section(QLatin1Char('|'), 0, 0));
    return names;
}

EncodingBox &boxOf(const SourcesPane &pane) { return *childOf<EncodingBox>(pane, "datasetEncoding"); }

/// Types \a text over what the encoding box shows.
void typeEncoding(const SourcesPane &pane, const QString &text)
{
    boxOf(pane).lineEdit()->selectAll();
    QTest::keyClicks(&boxOf(pane), text);
}

} // namespace

class tst_DatasetSourceTab : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The system's own dialog, where there is one, cannot be operated by events.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void datasetsAreShownInTheOrderOfTheFile()
    {
        SourcesPane pane;
        showDataset(pane, {"Z=last", "A=first"}, QStringLiteral("x.sav"));
        QCOMPARE(childOf<QTabWidget>(pane, "sourceTabs")->currentIndex(), 1);
        const auto *table = childOf<SourceTable>(pane, "datasetTable");
        QCOMPARE(rowsOf(*table), (QStringList{"Z|last|1", "A|first|2"}));
        QVERIFY(table->columnWidth(1) > 0);
        QVERIFY(!table->model()->index(0, 0).data(Qt::DecorationRole).isNull());

        QStringList many;
        for (int i = 0; i < 10; ++i)
            many.append(QStringLiteral("F%1=").arg(i));
        showDataset(pane, many, QStringLiteral("y.sav"));
        QCOMPARE(rowsOf(*table).first(), QString("F0||01"));
        showDataset(pane, {}, QStringLiteral("n.sav"));
        QCOMPARE(table->emptyText(), QString("The dataset has no fields."));
    }

    void aNewFileIsSeenWithoutTheOldFilterAndSelection()
    {
        SourcesPane pane;
        showDataset(pane, {"A=a", "B=b"}, QStringLiteral("x.sav"));
        auto *filter = childOf<QLineEdit>(pane, "datasetFilter");
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        QTest::keyClicks(filter, QStringLiteral("b"));
        table->selectAll();
        QVERIFY(childOf<QPushButton>(pane, "datasetAdd")->isEnabled());
        showDataset(pane, {"C=c", "D=d"}, QStringLiteral("y.sav"));
        QCOMPARE(filter->text(), QString());
        QCOMPARE(rowsOf(*table), (QStringList{"C|c|1", "D|d|2"}));
        QVERIFY(!childOf<QPushButton>(pane, "datasetAdd")->isEnabled());
    }

    void widthsSurviveANewFile()
    {
        SourcesPane pane;
        pane.resize(900, 300);
        pane.show();
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        showDataset(pane, {"A=a"}, QStringLiteral("x.sav"));
        table->setColumnWidth(0, 123);
        showDataset(pane, {"B=b"}, QStringLiteral("y.sav"));
        QCOMPARE(table->columnWidth(0), 123);
        QVERIFY(table->columnWidth(1) > 300);
    }

    void theLineTellsWhatIsKnown_data()
    {
        QTest::addColumn<qint64>("rows");
        QTest::addColumn<qint64>("rowsRead");
        QTest::addColumn<QStringList>("texts"); // Encoding, format, title.
        QTest::addColumn<QString>("line");
        QTest::newRow("nothing") << qint64(-1) << qint64(0) << QStringList{"", "", ""} << "x.sav: 2 fields.";
        QTest::newRow("no record") << qint64(0) << qint64(0) << QStringList{"", "", ""}
                                   << "x.sav: 2 fields. Records: 0.";
        QTest::newRow("all") << qint64(5000000000) << qint64(7)
                             << QStringList{"UTF-8", "SPSS", "People, 2023"}
                             << "x.sav: 2 fields. Records: 5,000,000,000. Encoding: UTF-8. Format: SPSS. "
                                "Records looked at: 7. Title: People, 2023.";
    }

    void theLineTellsWhatIsKnown()
    {
        QFETCH(qint64, rows);
        QFETCH(qint64, rowsRead);
        QFETCH(QStringList, texts);
        PlannedReader reader;
        reader.answer = [=](const ReadOptions &) {
            auto outcome = PlannedReader::fields({"A=a", "B=b"});
            outcome.result->rows = rows;
            outcome.result->rowsRead = rowsRead;
            outcome.result->encoding = texts[0];
            outcome.result->format = texts[1];
            outcome.result->title = texts[2];
            return outcome;
        };
        QVERIFY(reader.pane.openDataset(QStringLiteral("/data/x.sav")));
        QTEST(lineOf(reader.pane, "datasetLine"), "line");
        QVERIFY(childOf<SourceLine>(reader.pane, "datasetLine")->toolTip().contains("/data/x.sav"));
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding= labels= records=0"});
        reader.answer = [](const ReadOptions &) { return PlannedReader::fields({"A=a"}); };
        QVERIFY(reader.pane.openDataset(QStringLiteral("y.dta")));
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("y.dta: 1 field."));
    }

    void theButtonAsksForAFile()
    {
        const SourceFiles files;
        files.make("x.sav", "");
        PlannedReader reader;
        reader.pane.show();
        childOf<QTabWidget>(reader.pane, "sourceTabs")->setCurrentIndex(1);
        auto *open = childOf<QPushButton>(reader.pane, "datasetOpen");
        QTest::mouseClick(open, Qt::LeftButton);
        QCOMPARE(dialogOf(reader.pane)->windowTitle(), QString("Open a dataset"));
        QCOMPARE(dialogOf(reader.pane)->nameFilters(),
            (QStringList{"Datasets (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt)", "SPSS (*.sav *.zsav *.por)",
                "Stata (*.dta)", "SAS (*.sas7bdat *.xpt)", "SAS catalogues of labels (*.sas7bcat)",
                "All files (*)"}));
        choose(reader.pane, files.path("x.sav"));
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("x.sav: 2 fields."));
        QTRY_VERIFY(!dialogOf(reader.pane));
        QTest::mouseClick(open, Qt::LeftButton);
        QCOMPARE(dialogOf(reader.pane)->directory().path(), QFileInfo(files.path("x.sav")).path());
        QTest::keyClick(dialogOf(reader.pane), Qt::Key_Escape);
        QTRY_VERIFY(!dialogOf(reader.pane));
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding= labels= records=0"});
    }

    void toolsWaitForAFile()
    {
        PlannedReader reader;
        const QList<const QWidget *> tools{&boxOf(reader.pane),
            childOf<QPushButton>(reader.pane, "datasetRanges"),
            childOf<QSpinBox>(reader.pane, "datasetRecords")};
        reader.answer = [](const ReadOptions &) { return PlannedReader::problem("is no dataset"); };
        QVERIFY(!reader.pane.openDataset(QStringLiteral("x.sav")));
        for (const QWidget *tool : tools)
            QVERIFY2(!tool->isEnabled(), qPrintable(tool->objectName()));
        showDataset(reader.pane, {"A=a"}, QStringLiteral("x.sav"));
        for (const QWidget *tool : tools)
            QVERIFY2(tool->isEnabled(), qPrintable(tool->objectName()));
    }

    void encodingsThatAreOffered()
    {
        const PlannedReader reader;
        QStringList offered;
        for (int i = 0; i < boxOf(reader.pane).count(); ++i)
            offered.append(boxOf(reader.pane).itemText(i));
        QCOMPARE(offered, QStringList{"Automatic"} + tessel::sources::commonEncodings());
        QCOMPARE(boxOf(reader.pane).currentText(), QString("Automatic"));
    }

    void anotherEncodingReadsTheFileAgain()
    {
        PlannedReader reader;
        reader.pane.show();
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        reader.calls.clear();
        typeEncoding(reader.pane, QStringLiteral("CP850"));
        QCOMPARE(reader.takeCalls(), QStringList());
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Return);
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding=CP850 labels= records=0"});
        QCOMPARE(boxOf(reader.pane).currentText(), QString("CP850"));
        // The same again is no choice.
        typeEncoding(reader.pane, QStringLiteral(" cp850 "));
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Return);
        QCOMPARE(reader.takeCalls(), QStringList());
        QCOMPARE(boxOf(reader.pane).currentText(), QString("CP850"));

        typeEncoding(reader.pane, QStringLiteral("automatic"));
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Return);
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding= labels= records=0"});
        QCOMPARE(boxOf(reader.pane).currentText(), QString("Automatic"));

        // One of the list.
        boxOf(reader.pane).addItem(QStringLiteral("KLINGON"));
        boxOf(reader.pane).setCurrentIndex(boxOf(reader.pane).count() - 2);
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Down);
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding=KLINGON labels= records=0"});

        // Another file speaks for itself.
        QVERIFY(reader.pane.openDataset(QStringLiteral("y.sav")));
        QCOMPARE(reader.takeCalls(), QStringList{"y.sav encoding= labels= records=0"});
        QCOMPARE(boxOf(reader.pane).currentText(), QString("Automatic"));
    }

    void anEncodingThatIsLeftIsTakenBack()
    {
        PlannedReader reader;
        reader.pane.show();
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        QVERIFY(QTest::qWaitForWindowActive(&reader.pane));
        boxOf(reader.pane).setFocus();
        typeEncoding(reader.pane, QStringLiteral("CP850"));
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Tab);
        QVERIFY(!boxOf(reader.pane).hasFocus());
        QCOMPARE(boxOf(reader.pane).currentText(), QString("Automatic"));
        QCOMPARE(reader.calls.size(), 1);
    }

    void aFileThatNeedsAnEncodingAsksForIt()
    {
        PlannedReader reader;
        reader.pane.show();
        QVERIFY(QTest::qWaitForWindowActive(&reader.pane));
        const QSignalSpy problems(&reader.pane, &SourcesPane::problemFound);
        const QSignalSpy solved(&reader.pane, &SourcesPane::problemSolved);
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        reader.answer = [](const ReadOptions &options) {
            return options.encoding == "CP850"
                ? PlannedReader::fields({"C=c"})
                : PlannedReader::problem("holds texts that are no UTF-8; choose the encoding", true);
        };
        QVERIFY(!reader.pane.openDataset(QStringLiteral("y.sav")));
        const QString sentence(
            "y.sav: holds texts that are no UTF-8; choose the encoding in the box \"Encoding\"");
        QCOMPARE(sentencesOf(problems), QStringList{sentence});
        QVERIFY(boxOf(reader.pane).hasFocus());
        QCOMPARE(namesIn(reader.pane), (QStringList{"A", "B"}));
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("x.sav: 2 fields."));
        QCOMPARE(solved.count(), 0);
        reader.calls.clear();
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("CP850"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(reader.takeCalls(), QStringList{"y.sav encoding=CP850 labels= records=0"});
        QCOMPARE(namesIn(reader.pane), QStringList{"C"});
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("y.sav: 1 field."));
        QCOMPARE(sentencesOf(solved), QStringList{sentence});
        // It is solved once.
        typeEncoding(reader.pane, QStringLiteral("cp437"));
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Return);
        reader.answer = [](const ReadOptions &) { return PlannedReader::fields({"D=d"}); };
        QVERIFY(reader.pane.openDataset(QStringLiteral("y.sav")));
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        QCOMPARE(problems.count(), 2);
        QCOMPARE(solved.count(), 2);
    }

    void whatCannotBeReadChangesNothing()
    {
        PlannedReader reader;
        const QSignalSpy problems(&reader.pane, &SourcesPane::problemFound);
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        reader.answer = [](const ReadOptions &) {
            auto outcome = PlannedReader::problem("is no dataset");
            outcome.problem.line = 3;
            outcome.problem.column = 4;
            return outcome;
        };
        childOf<QTabWidget>(reader.pane, "sourceTabs")->setCurrentIndex(0);
        QVERIFY(!reader.pane.openDataset(QStringLiteral("y.sav")));
        QCOMPARE(childOf<QTabWidget>(reader.pane, "sourceTabs")->currentIndex(), 1);
        QCOMPARE(sentencesOf(problems), QStringList{"y.sav, line 3, column 4: is no dataset"});
        QCOMPARE(namesIn(reader.pane), (QStringList{"A", "B"}));
        reader.calls.clear();
        // The tools go on working on what is shown.
        typeEncoding(reader.pane, QStringLiteral("CP850"));
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Return);
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding=CP850 labels= records=0"});
        QCOMPARE(boxOf(reader.pane).currentText(), QString("Automatic"));
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("x.sav: 2 fields."));
        QCOMPARE(problems.count(), 2);
    }

    void labelsOfACatalogueAreReadWithTheDatasetBeforeIt()
    {
        PlannedReader reader;
        const QSignalSpy problems(&reader.pane, &SourcesPane::problemFound);
        const QString refusal(
            "labels.SAS7BCAT: holds labels and no fields; open the .sas7bdat file that they "
            "belong to first");
        QVERIFY(!reader.pane.openDataset(QStringLiteral("/d/labels.SAS7BCAT")));
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        QVERIFY(!reader.pane.openDataset(QStringLiteral("/d/labels.SAS7BCAT")));
        QCOMPARE(sentencesOf(problems), (QStringList{refusal, refusal}));
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.SAS7BDAT")));
        reader.calls.clear();
        QVERIFY(reader.pane.openDataset(QStringLiteral("/d/labels.SAS7BCAT")));
        typeEncoding(reader.pane, QStringLiteral("CP850"));
        QTest::keyClick(&boxOf(reader.pane), Qt::Key_Return);
        QCOMPARE(
            lineOf(reader.pane, "datasetLine"), QString("x.SAS7BDAT: 2 fields. Labels: labels.SAS7BCAT."));
        QVERIFY(reader.pane.openDataset(QStringLiteral("y.sas7bdat")));
        QCOMPARE(reader.takeCalls(),
            (QStringList{"x.SAS7BDAT encoding= labels=labels.SAS7BCAT records=0",
                "x.SAS7BDAT encoding=CP850 labels=labels.SAS7BCAT records=0",
                "y.sas7bdat encoding= labels= records=0"}));
        // Whatever the order in which both are dropped.
        QVERIFY(drop(reader.pane,
            {QUrl::fromLocalFile(QStringLiteral("/d/z.sas7bcat")),
                QUrl::fromLocalFile(QStringLiteral("/d/z.sas7bdat"))}));
        QCOMPARE(reader.takeCalls(),
            (QStringList{"z.sas7bdat encoding= labels= records=0",
                "z.sas7bdat encoding= labels=z.sas7bcat records=0"}));
        QCOMPARE(problems.count(), 2);
    }
};

QTEST_MAIN(tst_DatasetSourceTab)
#include "tst_DatasetSourceTab.moc"
