#include "editor/AutoSave.h"
#include "editor/DictionaryDocument.h"
#include "editor/MainWindow.h"
#include "editor/views/TableView.h"
#include "model/TDmVariable.h"
#include "tests/editor/EditorFixtures.h"
#include "tests/editor/Hand.h"
#include "tests/editor/PlannedReader.h"
#include "tests/support/PointerRobot.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QSettings>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;
using tessel::sources::ReadOptions;

namespace {

/// Keeps a picture of \a widget where TESSEL_SCREENSHOTS says.
void picture(QWidget &widget, const QString &name)
{
    const QString place = qEnvironmentVariable("TESSEL_SCREENSHOTS");
    if (!place.isEmpty())
        QVERIFY(widget.grab().save(place + "/dataset-" + name + ".png"));
}

/// A census of 1,200 people with two declared codes; with records, and remarks.
tessel::sources::SourceOutcome people(const ReadOptions &options)
{
    auto outcome = PlannedReader::fields({"WEIGHT=Weight in kilograms", "HEIGHT=Height in centimetres",
        "WALKS=Difficulty in walking", "NAME=First name"});
    auto &source = *outcome.result;
    source.fields[0]->missing = "99";
    source.fields[1]->missing = "99";
    source.fields[1]->notApp = "98";
    source.fields[3]->fieldType = "STRING";
    source.rows = 1200;
    source.rowsRead = qMin(options.rows, source.rows);
    source.encoding = "UTF-8";
    source.format = "SPSS";
    source.remarks = {{"HEIGHT", "has a third missing code, 97, which is left out."},
        {"NAME", "has categories whose codes hold blanks; they are left out."}};
    return outcome;
}

} // namespace

class tst_DatasetOnScreen : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules("default.debug=false");
        QStandardPaths::setTestModeEnabled(true);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setStyle("fusion");
        QApplication::setOrganizationName("Tessel");
        QApplication::setApplicationName("tst_DatasetOnScreen");
        QVERIFY(folder.isValid());
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        AutoSave::removeCopy(QString());
    }

    void declaredCodesComeWithTheFields()
    {
        MainWindow window;
        window.resize(1000, 720);
        load(window.document());
        bringUp(window);
        window.goTo("/entities/0/entities/0/variables/0");
        auto &pane = part<SourcesPane>(window, "sourcesPane");
        pane.setDatasetReader([](const QString &, const ReadOptions &options) { return people(options); });
        QVERIFY(pane.openDataset("people.sav"));
        auto &fields = part<SourceTable>(window, "datasetTable");
        auto &variables = part<TableView>(window, "variables");
        auto &offer = part<QLabel>(window, "codes");
        window.resizeDocks({&part<QDockWidget>(window, "sourcesDock")}, {300}, Qt::Vertical);
        QCoreApplication::processEvents();
        QVERIFY(!offer.isVisible());

        // Three rows are dragged.
        PointerRobot robot;
        QVERIFY(robot.click({&fields, fields.visualRect(fields.model()->index(0, 0)).center()}));
        QVERIFY(robot.click({&fields, fields.visualRect(fields.model()->index(2, 0)).center()}, {"shift"}));
        QVERIFY(robot.drag({&fields, fields.visualRect(fields.model()->index(1, 0)).center()},
            {&variables, QPoint(80, 60)}));
        QCOMPARE(variables.model()->rowCount(), 6);
        QTRY_VERIFY(offer.isVisible());
        QCOMPARE(offer.text(),
            QString("2 of the 3 new variables have missing or not-applicable codes declared in the file."));
        picture(window, "offer");

        const auto codes = [&window](const char *name) {
            const TDmVariable &variable = variableIn(window.document(), "PERSON", name);
            return QString("%1/%2").arg(variable.getMissing()).arg(variable.getNotappl());
        };
        QCOMPARE(codes("WEIGHT"), QString("10/11"));
        Hand::click(part<QPushButton>(window, "codesSet"));
        QTRY_VERIFY(!offer.isVisible());
        QCOMPARE(codes("WEIGHT"), QString("99/11"));
        QCOMPARE(codes("HEIGHT"), QString("99/98"));
        QCOMPARE(codes("WALKS"), QString("10/11"));
        Hand::press("ctrl+z");
        QTRY_COMPARE(codes("HEIGHT"), QString("10/11"));
        QCOMPARE(codes("WEIGHT"), QString("10/11"));
        QCOMPARE(variables.model()->rowCount(), 6);
        Hand::press("ctrl+shift+z");
        QTRY_COMPARE(codes("WEIGHT"), QString("99/11"));
        Hand::press("ctrl+z");
        Hand::press("ctrl+z");
        QTRY_COMPARE(variables.model()->rowCount(), 3);
        QVERIFY(!offer.isVisible());
    }

    void aFileThatNeedsAnEncodingAsksForIt()
    {
        MainWindow window;
        window.resize(1000, 720);
        load(window.document());
        bringUp(window);
        auto &pane = part<SourcesPane>(window, "sourcesPane");
        pane.setDatasetReader([](const QString &, const ReadOptions &options) {
            return options.encoding == "CP850"
                ? people(options)
                : PlannedReader::problem("holds texts that are no UTF-8; choose the encoding", true);
        });
        QVERIFY(!pane.openDataset("people.sav"));
        auto &notice = part<QLabel>(window, "notice");
        QTRY_VERIFY(notice.isVisible());
        picture(window, "encoding");
        Hand::type("CP850");
        Hand::press("Return");
        auto &fields = part<SourceTable>(window, "datasetTable");
        QTRY_COMPARE(fields.model()->rowCount(), 4);
        // What was told is so no longer.
        QVERIFY(!notice.isVisible());
    }

    void aLongReadingIsCancelled()
    {
        MainWindow window;
        window.resize(1000, 720);
        load(window.document());
        bringUp(window);
        auto &pane = part<SourcesPane>(window, "sourcesPane");
        pane.setDatasetReader([](const QString &, const ReadOptions &options) { return people(options); });
        QVERIFY(pane.openDataset("people.sav"));
        bool isCancelled = false;
        pane.setDatasetReader([&](const QString &, const ReadOptions &options) {
            bool isAsked = false;
            while (options.progress(60)) {
                auto *progress = window.findChild<QProgressDialog *>();
                if (isAsked || !QTest::qWaitForWindowExposed(progress, 0))
                    continue;
                isAsked = true;
                picture(*progress, "progress");
                Hand::click(*progress->findChild<QPushButton *>());
            }
            isCancelled = true;
            return PlannedReader::cancelled();
        });
        Hand::click(part<QPushButton>(window, "datasetRanges"));
        QTRY_VERIFY(isCancelled);
        QCOMPARE(part<SourceTable>(window, "datasetTable").model()->rowCount(), 4);
        QVERIFY(!part<QLabel>(window, "notice").isVisible());
    }

    void remarksAreReadBesideTheWork()
    {
        MainWindow window;
        window.resize(1000, 720);
        load(window.document());
        bringUp(window);
        auto &pane = part<SourcesPane>(window, "sourcesPane");
        pane.setDatasetReader([](const QString &, const ReadOptions &options) { return people(options); });
        QVERIFY(pane.openDataset("people.sav"));
        auto &remarks = part<QPushButton>(window, "datasetRemarks");
        QTRY_VERIFY(remarks.isVisible());
        Hand::click(remarks);
        QTRY_VERIFY(pane.findChild<QPlainTextEdit *>());
        QPlainTextEdit &text = *pane.findChild<QPlainTextEdit *>();
        QVERIFY(QTest::qWaitForWindowExposed(&text));
        QCOMPARE(text.toPlainText(),
            QString("HEIGHT: has a third missing code, 97, which is left out.\n"
                    "NAME: has categories whose codes hold blanks; they are left out."));
        picture(*text.window(), "remarks");
        picture(window, "pane");
    }

private:
    QTemporaryDir folder;
};

QTEST_MAIN(tst_DatasetOnScreen)
#include "tst_DatasetOnScreen.moc"
