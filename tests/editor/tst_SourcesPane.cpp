#include "editor/views/SourcesPane.h"

#include "editor/views/SourceLine.h"

#include "tests/editor/SourceFixtures.h"

#include <QComboBox>
#include <QFileDialog>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

QString tabOf(const SourcesPane &pane)
{
    const auto *tabs = childOf<QTabWidget>(pane, "sourceTabs");
    return tabs->tabText(tabs->currentIndex());
}

} // namespace

class tst_SourcesPane : public QObject {
    Q_OBJECT

private slots:
    // The system's own dialog, where there is one, cannot be operated by events.
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void emptyTabsSayWhatToDo()
    {
        const SourcesPane pane;
        const auto *tabs = childOf<QTabWidget>(pane, "sourceTabs");
        QCOMPARE(tabs->count(), 3);
        QCOMPARE(tabs->tabText(0), QString("CSV"));
        QCOMPARE(tabs->tabText(1), QString("Dataset"));
        QCOMPARE(tabs->tabText(2), QString("Lookups"));
        QCOMPARE(tabOf(pane), QString("CSV"));
        QCOMPARE(childOf<SourceTable>(pane, "csvTable")->emptyText(),
            QString("Open a CSV file to see its fields here."));
        QCOMPARE(childOf<SourceTable>(pane, "datasetTable")->emptyText(),
            QString("Open a dataset to see its fields here."));
        QCOMPARE(childOf<SourceTable>(pane, "lookupTable")->emptyText(),
            QString("Open a list of lookups to see them here."));
        for (const char *name : {"csvLine", "datasetLine", "lookupLine"})
            QVERIFY(childOf<SourceLine>(pane, name)->isHidden());
    }

    void theEmptyTextIsPaintedOnlyWhenThereAreNoRows()
    {
        SourceTable table;
        QStandardItemModel model(0, 1);
        table.setModel(&model);
        table.horizontalHeader()->hide();
        table.resize(400, 200);
        const QImage blank = table.grab().toImage();
        table.setEmptyText(QStringLiteral("Open something."));
        QVERIFY(table.grab().toImage() != blank);
        QCOMPARE(table.accessibleDescription(), QString("Open something."));
        model.appendRow(new QStandardItem);
        const QImage withRow = table.grab().toImage();
        table.setEmptyText(QString());
        QCOMPARE(table.grab().toImage(), withRow);
    }

    void whateverTakesTheKeyboardHasNames()
    {
        const SourcesPane pane;
        QStringList names;
        for (const QWidget *widget : pane.findChildren<QWidget *>()) {
            const bool isQts = widget->objectName().startsWith(QLatin1String("qt_"))
                || widget->parentWidget()->inherits("QAbstractItemView") || widget->inherits("QScrollBar")
                || widget->parentWidget()->inherits("QTabBar");
            if (widget->focusPolicy() == Qt::NoFocus || isQts)
                continue;
            names.append(widget->objectName());
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        }
        names.sort();
        QCOMPARE(names,
            (QStringList{"csvAdd", "csvFilter", "csvOpen", "csvSeparator", "csvTable", "datasetAdd",
                "datasetEncoding", "datasetEncodingList", "datasetEncodingText", "datasetFilter",
                "datasetOpen", "datasetRanges", "datasetRecords", "datasetRemarks", "datasetTable",
                "lookupAdd", "lookupFilter", "lookupOpen", "lookupTable", "sourceTabs"}));
    }

    void csvFilesAreOpened_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("one column") << QByteArray("ID\n") << "a.csv: 1 field in UTF-8." << QStringList{"ID"};
        QTest::newRow("commas") << QByteArray("A,B,C") << "a.csv: 3 fields in UTF-8. Separator: comma."
                                << QStringList{"A", "B", "C"};
        QTest::newRow("tabs, remarks") << QByteArray("\xc9\t\tB\tB")
                                       << "a.csv: 4 fields in Windows-1252. Separator: tab. 1 field has no "
                                          "name and is called FIELD_2. 2 "
                                          "fields have the name B."
                                       << QStringList{QStringLiteral("\u00c9"), "FIELD_2", "B", "B"};
    }

    void csvFilesAreOpened()
    {
        QFETCH(QByteArray, bytes);
        const SourceFiles files;
        SourcesPane pane;
        const QSignalSpy problems(&pane, &SourcesPane::problemFound);
        showDataset(pane, {}, QString());
        QVERIFY(pane.openCsv(files.make("a.csv", bytes)));
        QCOMPARE(tabOf(pane), QString("CSV"));
        QTEST(lineOf(pane, "csvLine"), "line");
        QVERIFY(!childOf<SourceLine>(pane, "csvLine")->isHidden());
        QTEST(rowsOf(*childOf<SourceTable>(pane, "csvTable")), "rows");
        QCOMPARE(problems.count(), 0);
    }

    void theToolTipTellsThePathAndTakesNothingForMarkup()
    {
        const SourceFiles files;
        SourcesPane pane;
        QVERIFY(pane.openCsv(files.make("a.csv", "<b>,<b>\n")));
        QCOMPARE(childOf<SourceLine>(pane, "csvLine")->toolTip(),
            QStringLiteral(
                "<p style='white-space:pre-wrap'>%1\na.csv: 2 fields in UTF-8.\nSeparator: comma.\n2 "
                "fields have the name &lt;b&gt;.</p>")
                .arg(files.path("a.csv")));
    }

    void aLongLineGivesWay()
    {
        SourceLine line;
        line.setSentences(QString(), {QString(200, QLatin1Char('x'))});
        QCOMPARE(line.text().size(), 200);
        QVERIFY(line.minimumSizeHint().width() <= 40);
        QVERIFY(line.sizeHint().width() <= 200);
        line.setSentences(QString(), {QStringLiteral("a\nb."), QStringLiteral("c.")});
        QCOMPARE(line.text(), QString("a b. c."));
        QCOMPARE(line.accessibleName(), QString("a b. c."));
        line.setSentences(QString(), {});
        QCOMPARE(line.toolTip(), QString());
    }

    void whatCannotBeReadChangesNothing()
    {
        const SourceFiles files;
        SourcesPane pane;
        const QSignalSpy problems(&pane, &SourcesPane::problemFound);
        QVERIFY(pane.openCsv(files.make("a.csv", "A,B\n")));
        QVERIFY(pane.openLookups(files.make("a.json", R"([{"id": "A", "label": "a"}])")));
        QVERIFY(!pane.openCsv(files.make("b.csv", "")));
        QCOMPARE(tabOf(pane), QString("CSV"));
        QVERIFY(!pane.openLookups(files.make("b.json", "{}")));
        QCOMPARE(tabOf(pane), QString("Lookups"));
        QVERIFY(!pane.openLookups(files.make("c.json", "[\n1 2]")));
        QVERIFY(!pane.openLookups(files.path("none.json")));
        QCOMPARE(sentencesOf(problems),
            (QStringList{"b.csv: is empty; expected the names of fields in its first line",
                "b.json: expected a list of lookups, [{\"id\": \"...\", \"label\": \"...\"}, ...], or an "
                "object with "
                "such a list under \"lookups\"",
                "c.json, line 2, column 3: expected \",\" between two values",
                "none.json: cannot be read: No such file or directory"}));
        QCOMPARE(rowsOf(*childOf<SourceTable>(pane, "csvTable")), (QStringList{"A", "B"}));
        QCOMPARE(lineOf(pane, "csvLine"), QString("a.csv: 2 fields in UTF-8. Separator: comma."));
        QCOMPARE(rowsOf(*childOf<SourceTable>(pane, "lookupTable")), QStringList{"A-a"});
        QCOMPARE(lineOf(pane, "lookupLine"), QString("a.json: 1 lookup."));
    }

    void anotherSeparatorReadsTheHeaderAgain()
    {
        const SourceFiles files;
        SourcesPane pane;
        const QSignalSpy problems(&pane, &SourcesPane::problemFound);
        auto *box = childOf<QComboBox>(pane, "csvSeparator");
        const auto *table = childOf<SourceTable>(pane, "csvTable");
        QVERIFY(!box->isEnabled());
        QVERIFY(pane.openCsv(files.make("a.csv", "A,B;C,D\n")));
        QVERIFY(box->isEnabled());
        QTest::keyClick(box, Qt::Key_S);
        QCOMPARE(box->currentText(), QString("Semicolon"));
        QCOMPARE(rowsOf(*table), (QStringList{"A,B", "C,D"}));
        QCOMPARE(lineOf(pane, "csvLine"), QString("a.csv: 2 fields in UTF-8. Separator: semicolon."));

        // A file that only one separator makes readable.
        QVERIFY(!pane.openCsv(files.make("b.csv", "A|\"B;C\n")));
        QCOMPARE(box->currentText(), QString("Automatic"));
        QCOMPARE(rowsOf(*table).size(), 2);
        QTest::keyClick(box, Qt::Key_Down);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(rowsOf(*table), (QStringList{"A|\"B", "C"}));
        QCOMPARE(problems.count(), 1);
    }

    void lookupsAreOpened()
    {
        const SourceFiles files;
        SourcesPane pane;
        QVERIFY(pane.openLookups(
            files.make("l.json", R"({"lookups": [{"id": "A", "label": "a"}, {"id": "B", "label": "b"}]})")));
        QCOMPARE(tabOf(pane), QString("Lookups"));
        QCOMPARE(rowsOf(*childOf<SourceTable>(pane, "lookupTable")), (QStringList{"A-a", "B-b"}));
        QCOMPARE(lineOf(pane, "lookupLine"), QString("l.json: 2 lookups."));
        QVERIFY(pane.openLookups(files.make("m.json", "[]")));
        QCOMPARE(lineOf(pane, "lookupLine"), QString("m.json: 0 lookups."));
        QCOMPARE(
            childOf<SourceTable>(pane, "lookupTable")->emptyText(), QString("The list of lookups is empty."));
    }

    void droppedFilesGoWhereTheirEndingSays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("tab");
        for (const char *name : {"a.csv", "a.CSV", "a.txt", "a.tsv", "b.sav.csv"})
            QTest::newRow(name) << name << "csvLine";
        for (const char *name : {"a.json", "a.JSON"})
            QTest::newRow(name) << name << "lookupLine";
        for (const char *name : {"a.sav", "a", "csv", "a.csv.gz"})
            QTest::newRow(name) << name << "datasetLine";
    }

    void droppedFilesGoWhereTheirEndingSays()
    {
        QFETCH(QString, name);
        QFETCH(QString, tab);
        const SourceFiles files;
        const QString file = files.make(name.toUtf8(), "[]");
        SourcesPane pane;
        pane.setDatasetReader(readerOf({"A=a"}));
        QVERIFY(drop(pane, {QUrl::fromLocalFile(file)}));
        for (const char *line : {"csvLine", "lookupLine", "datasetLine"}) {
            const bool isOpened = lineOf(pane, line).startsWith(name + QLatin1Char(':'));
            QCOMPARE(isOpened, tab == QLatin1String(line));
        }
    }

    void severalFilesAreDroppedAtOnce()
    {
        const SourceFiles files;
        SourcesPane pane;
        pane.setDatasetReader(readerOf({"A=a"}));
        QVERIFY(drop(pane,
            {QUrl(QStringLiteral("http://example.org/c.csv")),
                QUrl::fromLocalFile(files.make("a\xc3\xb1o.csv", "A,B")),
                QUrl::fromLocalFile(files.make("a.json", "[]")), QUrl::fromLocalFile(files.path("x.dta"))}));
        QCOMPARE(
            lineOf(pane, "csvLine"), QStringLiteral("a\u00f1o.csv: 2 fields in UTF-8. Separator: comma."));
        QCOMPARE(lineOf(pane, "lookupLine"), QString("a.json: 0 lookups."));
        QCOMPARE(lineOf(pane, "datasetLine"), QString("x.dta: 1 field."));
    }

    void onlyFilesOfThisComputerAreTaken()
    {
        const SourceFiles files;
        SourcesPane pane;
        QVERIFY(!drop(pane, {QUrl(QStringLiteral("http://example.org/a.csv"))}));
        QVERIFY(!drop(pane, {}));
        QVERIFY(!drop(pane, {QUrl::fromLocalFile(files.make("a.csv", "A"))}, Qt::MoveAction));
        // What lies above the pane must leave drops to it.
        for (const QWidget *widget : pane.findChildren<QWidget *>())
            QVERIFY2(!widget->acceptDrops(), qPrintable(widget->objectName()));
    }

    void theButtonsAskForAFile()
    {
        const SourceFiles files;
        files.make("a.csv", "A,B");
        files.make("a.json", R"([{"id": "A", "label": "a"}])");
        SourcesPane pane;
        pane.show();
        auto *tabs = childOf<QTabWidget>(pane, "sourceTabs");

        QTest::mouseClick(childOf<QPushButton>(pane, "csvOpen"), Qt::LeftButton);
        QCOMPARE(dialogOf(pane)->windowTitle(), QString("Open a CSV file"));
        QCOMPARE(
            dialogOf(pane)->nameFilters(), (QStringList{"CSV files (*.csv *.txt *.tsv)", "All files (*)"}));
        choose(pane, files.path("a.csv"));
        QCOMPARE(lineOf(pane, "csvLine"), QString("a.csv: 2 fields in UTF-8. Separator: comma."));
        QTRY_VERIFY(!dialogOf(pane));

        tabs->setCurrentIndex(2);
        QTest::mouseClick(childOf<QPushButton>(pane, "lookupOpen"), Qt::LeftButton);
        QCOMPARE(dialogOf(pane)->windowTitle(), QString("Open a list of lookups"));
        QCOMPARE(dialogOf(pane)->nameFilters(), (QStringList{"Lists of lookups (*.json)", "All files (*)"}));
        choose(pane, files.path("a.json"));
        QCOMPARE(lineOf(pane, "lookupLine"), QString("a.json: 1 lookup."));
        QTRY_VERIFY(!dialogOf(pane));

        tabs->setCurrentIndex(0);
        QTest::mouseClick(childOf<QPushButton>(pane, "csvOpen"), Qt::LeftButton);
        QCOMPARE(dialogOf(pane)->directory().path(), QFileInfo(files.path("a.csv")).path());
        QTest::keyClick(dialogOf(pane), Qt::Key_Escape);
        QTRY_VERIFY(!dialogOf(pane));
        QCOMPARE(lineOf(pane, "csvLine"), QString("a.csv: 2 fields in UTF-8. Separator: comma."));
    }

    void theKeyboardGoesToTheTabInFront()
    {
        SourcesPane pane;
        pane.show();
        QVERIFY(QTest::qWaitForWindowActive(&pane));
        const char *const prefixes[] = {"csv", "dataset", "lookup"};
        for (int i = 0; i < 3; ++i) {
            childOf<QTabWidget>(pane, "sourceTabs")->setCurrentIndex(i);
            pane.setFocus();
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(prefixes[i]) + "Table");
            pane.focusFilter();
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(prefixes[i]) + "Filter");
        }
    }
};

QTEST_MAIN(tst_SourcesPane)
#include "tst_SourcesPane.moc"
