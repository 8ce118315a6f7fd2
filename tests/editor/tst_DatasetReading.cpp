#include "editor/views/DatasetSourceTab.h"

#include "tests/editor/PlannedReader.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>

using namespace tessel::editor;
using namespace tessel::test;
using tessel::sources::ReadOptions;

namespace {

QProgressDialog *progressOf(const SourcesPane &pane)
{
    return pane.findChild<QProgressDialog *>(QStringLiteral("readingProgress"));
}

/// The texts of the lists of remarks that are open.
QStringList listsOf(const SourcesPane &pane)
{
    QStringList texts;
    for (const auto *text : pane.findChildren<QPlainTextEdit *>()) {
        if (text->isVisible())
            texts.append(text->toPlainText());
    }
    return texts;
}

PlannedReader::Outcome withRemarks(int count)
{
    auto outcome = PlannedReader::fields({"A=a"});
    for (int i = 1; i <= count; ++i)
        outcome.result->remarks.append({QStringLiteral("F%1").arg(i), QStringLiteral("<b>is odd</b>.")});
    if (count > 1)
        outcome.result->remarks.append({QString(), QStringLiteral("The file is old.")});
    return outcome;
}

} // namespace

class tst_DatasetReading : public QObject {
    Q_OBJECT

private slots:
    void rangesAndCategoriesComeFromTheRecords()
    {
        PlannedReader reader;
        reader.pane.show();
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        auto *records = childOf<QSpinBox>(reader.pane, "datasetRecords");
        auto *ranges = childOf<QPushButton>(reader.pane, "datasetRanges");
        QTest::mouseClick(ranges, Qt::LeftButton);
        records->selectAll();
        QTest::keyClicks(records, QStringLiteral("250"));
        QTest::keyClick(records, Qt::Key_Return);
        QTest::keyClick(records, Qt::Key_Up);
        QTest::keyClick(ranges, Qt::Key_Space);
        // Other choices keep it, another file does not.
        auto *encoding = childOf<QLineEdit>(reader.pane, "datasetEncodingText");
        encoding->selectAll();
        QTest::keyClicks(encoding, QStringLiteral("CP850"));
        QTest::keyClick(encoding, Qt::Key_Return);
        QVERIFY(reader.pane.openDataset(QStringLiteral("y.sav")));
        QCOMPARE(reader.takeCalls(),
            (QStringList{"x.sav encoding= labels= records=0", "x.sav encoding= labels= records=10000",
                "x.sav encoding= labels= records=250", "x.sav encoding= labels= records=10250",
                "x.sav encoding=CP850 labels= records=10250", "y.sav encoding= labels= records=0"}));
    }

    void aShortReadingShowsNoProgress()
    {
        PlannedReader reader;
        reader.pane.show();
        int goingOn = 0;
        int shown = 0;
        reader.answer = [&](const ReadOptions &options) {
            for (int percent = 0; percent <= 100; percent += 25) {
                goingOn += options.progress(percent);
                shown += progressOf(reader.pane)->isVisible();
            }
            return PlannedReader::fields({"A=a"});
        };
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        QCOMPARE(goingOn, 5);
        QCOMPARE(shown, 0);
        QVERIFY(!progressOf(reader.pane));
    }

    void aLongReadingShowsProgressAndIsCancelled_data()
    {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("by Escape") << true;
        QTest::newRow("by the button") << false;
    }

    void aLongReadingShowsProgressAndIsCancelled()
    {
        QFETCH(bool, isByKey);
        PlannedReader reader;
        reader.pane.show();
        const QSignalSpy problems(&reader.pane, &SourcesPane::problemFound);
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        reader.calls.clear();
        QStringList seen;
        reader.answer = [&](const ReadOptions &options) {
            // The percentage need not change for the button to be heard.
            bool isPlanned = false;
            while (options.progress(42)) {
                QProgressDialog *window = progressOf(reader.pane);
                if (!window->isVisible() || isPlanned)
                    continue;
                isPlanned = true;
                seen << window->windowTitle() << window->labelText() << QString::number(window->value());
                seen << (window->windowModality() == Qt::ApplicationModal ? "modal" : "");
                QTimer::singleShot(0, window, [&, window] {
                    // Nothing else can be read meanwhile.
                    seen << (reader.pane.openDataset(QStringLiteral("z.sav")) ? "opened" : "refused");
                    if (isByKey)
                        QTest::keyClick(window, Qt::Key_Escape);
                    else
                        QTest::mouseClick(window->findChild<QPushButton *>(), Qt::LeftButton);
                });
            }
            // Whoever asks once more hears the same.
            seen << (options.progress(43) ? "goes on" : "cancelled");
            seen << (progressOf(reader.pane)->isVisible() ? "shown again" : "closed");
            return PlannedReader::cancelled();
        };
        QTest::mouseClick(childOf<QPushButton>(reader.pane, "datasetRanges"), Qt::LeftButton);
        QCOMPARE(seen,
            (QStringList{"Reading", QStringLiteral("Reading the records of x.sav\u2026"), "42", "modal",
                "refused", "cancelled", "closed"}));
        QVERIFY(!progressOf(reader.pane));
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding= labels= records=10000"});
        QCOMPARE(problems.count(), 0);
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("x.sav: 2 fields."));
        QCOMPARE(rowsOf(*childOf<SourceTable>(reader.pane, "datasetTable")).size(), 2);

        // It has not become the way in which the file is read.
        reader.answer = [](const ReadOptions &) { return PlannedReader::cancelled(); };
        auto *encoding = childOf<QLineEdit>(reader.pane, "datasetEncodingText");
        encoding->selectAll();
        QTest::keyClicks(encoding, QStringLiteral("CP850"));
        QTest::keyClick(encoding, Qt::Key_Return);
        QCOMPARE(reader.takeCalls(), QStringList{"x.sav encoding=CP850 labels= records=0"});
        QCOMPARE(encoding->text(), QString("Automatic"));
    }

    void remarksAreListedInAWindowOfTheirOwn()
    {
        PlannedReader reader;
        reader.pane.show();
        auto *button = childOf<QPushButton>(reader.pane, "datasetRemarks");
        QVERIFY(reader.pane.openDataset(QStringLiteral("w.sav")));
        QVERIFY(!button->isVisible());
        reader.answer = [](const ReadOptions &) { return withRemarks(1); };
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        QCOMPARE(button->text(), QStringLiteral("1 re&mark\u2026"));
        reader.answer = [](const ReadOptions &) { return withRemarks(200); };
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        QVERIFY(button->isVisible());
        QCOMPARE(button->text(), QStringLiteral("201 re&marks\u2026"));
        QCOMPARE(button->accessibleName(), QString("Remarks on the dataset: 201"));
        QCOMPARE(lineOf(reader.pane, "datasetLine"), QString("x.sav: 1 field."));
        QVERIFY(listsOf(reader.pane).isEmpty());

        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(listsOf(reader.pane).size(), 1);
        const QStringList lines = listsOf(reader.pane).first().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 201);
        QCOMPARE(lines.first(), QString("F1: <b>is odd</b>."));
        QCOMPARE(lines.at(199), QString("F200: <b>is odd</b>."));
        QCOMPARE(lines.last(), QString("The file is old."));
        auto *text = reader.pane.findChild<QPlainTextEdit *>();
        QCOMPARE(text->window()->windowTitle(), QString("Remarks on x.sav"));
        QVERIFY(!text->window()->isModal());
        QVERIFY(text->isReadOnly());
        QVERIFY(!text->accessibleName().isEmpty());
        QTest::keySequence(text, QKeySequence::SelectAll);
        QTest::keySequence(text, QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text().count(QLatin1Char('\n')), 200);

        // The same window a second time, and none that speaks of another file.
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(listsOf(reader.pane).size(), 1);
        QVERIFY(reader.pane.openDataset(QStringLiteral("y.sav")));
        QVERIFY(listsOf(reader.pane).isEmpty());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(listsOf(reader.pane).size(), 1);
        text = reader.pane.findChild<QPlainTextEdit *>();
        QCOMPARE(text->window()->windowTitle(), QString("Remarks on y.sav"));
        QTest::keyClick(text, Qt::Key_Escape);
        QVERIFY(listsOf(reader.pane).isEmpty());
        QTRY_VERIFY(!reader.pane.findChild<QPlainTextEdit *>());
    }

    void aProblemLeavesTheRemarksAlone()
    {
        PlannedReader reader;
        reader.pane.show();
        childOf<QTabWidget>(reader.pane, "sourceTabs")->setCurrentIndex(1);
        reader.answer = [](const ReadOptions &) { return withRemarks(3); };
        QVERIFY(reader.pane.openDataset(QStringLiteral("x.sav")));
        auto *button = childOf<QPushButton>(reader.pane, "datasetRemarks");
        QTest::mouseClick(button, Qt::LeftButton);
        reader.answer = [](const ReadOptions &) { return PlannedReader::problem("is no dataset"); };
        QVERIFY(!reader.pane.openDataset(QStringLiteral("y.sav")));
        QCOMPARE(button->text(), QStringLiteral("4 re&marks\u2026"));
        QVERIFY(button->isVisible());
        QCOMPARE(listsOf(reader.pane).size(), 1);
    }
};

QTEST_MAIN(tst_DatasetReading)
#include "tst_DatasetReading.moc"
