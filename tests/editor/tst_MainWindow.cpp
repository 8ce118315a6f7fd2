#include "editor/MainWindow.h"

#include "documents/DocumentForm.h"
#include "editor/AutoSave.h"
#include "editor/DictionaryDocument.h"
#include "editor/FileHandling.h"
#include "editor/Settings.h"
#include "editor/views/TableView.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/editor/EditorFixtures.h"
#include "tests/support/MessageBoxRobot.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

#include <functional>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// The window as a person sees it.
class Window {
public:
    Window() { bringUp(main); }

    template<typename Widget = QWidget>
    Widget &part(const QString &name)
    {
        auto *widget = main.findChild<Widget *>(name);
        if (!widget)
            qFatal("no %s", qPrintable(name));
        return *widget;
    }
    TableView &variables() { return part<TableView>("variables"); }
    TableView &labels() { return part<TableView>("labels"); }
    QTreeView &entities() { return part<QTreeView>("entities"); }
    QAction &action(const QString &name) { return part2(name); }
    QString counts() { return part<QLabel>("counts").text(); }
    QString notice()
    {
        auto &label = part<QLabel>("notice");
        return label.isVisible() ? label.text() : QString();
    }
    QString title() const
    {
        // As window systems show it.
        return main.windowTitle().replace("[*]", main.isWindowModified() ? "*" : "");
    }
    DictionaryDocument &document() { return main.document(); }

    /// Presses keys where the focus is.
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focused(), Qt::Key(key), modifiers);
        settle();
    }
    static void typeOver(const QString &text)
    {
        QWidget *field = focused();
        QTest::keySequence(field, QKeySequence::SelectAll);
        QTest::keyClicks(field, text);
    }
    /// Types \a text over what the open field holds, and ends with \a end.
    static void enter(const QString &text, int end = Qt::Key_Return)
    {
        typeOver(text);
        press(end);
    }
    static QWidget *focused()
    {
        // Window systems give the focus back when a menu or a box goes; without one, this does.
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (QApplication::focusWidget() || !qobject_cast<QMainWindow *>(top) || !top->isVisible())
                continue;
            QApplication::setActiveWindow(top);
            if (top->focusWidget())
                top->focusWidget()->setFocus();
        }
        QWidget *widget = QApplication::focusWidget();
        if (!widget)
            qFatal("nothing has the focus");
        return widget;
    }
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Chooses the entry \a name of its menu with the mouse.
    void choose(const QString &name)
    {
        QAction &wanted = action(name);
        for (QAction *head : main.menuBar()->actions()) {
            QMenu *menu = head->menu();
            if (!menu || !menu->actions().contains(&wanted))
                continue;
            QTest::mouseClick(
                main.menuBar(), Qt::LeftButton, {}, main.menuBar()->actionGeometry(head).center());
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&wanted).center());
            settle();
            return;
        }
        qFatal("%s is in no menu", qPrintable(name));
    }

    void openSample()
    {
        action("sample").trigger();
        settle();
    }
    /// Goes to the entity or the variable that \a path names.
    void goTo(const QString &path)
    {
        main.goTo(path);
        settle();
    }

    MainWindow main;

private:
    QAction &part2(const QString &name)
    {
        auto *found = main.findChild<QAction *>(name);
        if (!found)
            qFatal("no action %s", qPrintable(name));
        return *found;
    }
};

/// Answers the next file dialog with \a name; with an empty one, cancels it.
class FileRobot : public QObject {
public:
    explicit FileRobot(const QString &fileName)
        : name(fileName)
    {
        qApp->installEventFilter(this);
    }
    ~FileRobot() override { qApp->removeEventFilter(this); }
    bool isAsked() const { return asked > 0; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QFileDialog *>(watched);
        if (dialog && event->type() == QEvent::Show && asked++ == 0) {
            QTimer::singleShot(0, dialog, [this, dialog] {
                if (name.isEmpty()) {
                    dialog->reject();
                    return;
                }
                auto *line = dialog->findChild<QLineEdit *>("fileNameEdit");
                line->setText(name);
                QTest::keyClick(line, Qt::Key_Return);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QString name;
    int asked = 0;

    Q_DISABLE_COPY_MOVE(FileRobot)
};

QByteArray contentOf(const QString &file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("cannot be read");
}

void write(const QString &file, const QByteArray &bytes)
{
    QFile opened(file);
    if (!opened.open(QIODevice::WriteOnly) || opened.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(file));
}

const QString kPerson = "/entities/0/entities/0/entities/0/entities/0/entities/0/entities/0/entities/0";

QString censusFile() { return QStringLiteral(TESSEL_SAMPLES "/census.json"); }

} // namespace

class tst_MainWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules("default.debug=false");
        QStandardPaths::setTestModeEnabled(true);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setOrganizationName("Tessel");
        QApplication::setApplicationName("tst_MainWindow");
        QVERIFY(folder.isValid());
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    }

    void init()
    {
        QSettings().clear();
        AutoSave::removeCopy(QString());
    }

    // A day's work

    void aDictionaryIsTypedFromNothing()
    {
        Window window;
        QTest::mouseClick(&window.part<QPushButton>("startNew"), Qt::LeftButton);
        QVERIFY(window.variables().isVisible());
        Window::press(Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(Window::focused(), &window.entities());
        Window::press(Qt::Key_Insert);
        Window::enter("HOUSE");
        Window::press(Qt::Key_Insert);
        Window::enter("PERSON");
        QCOMPARE(treeOf(window.entities()), QStringList({"DICTIONARY", ".HOUSE", "..PERSON"}));
        Window::press(Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(Window::focused(), &window.variables());
        Window::press(Qt::Key_Insert);
        Window::enter("SEX", Qt::Key_Tab);
        Window::enter("P03", Qt::Key_Tab);
        Window::enter("Sex of the person");
        Window::press(Qt::Key_Insert);
        Window::enter("AGE");
        QCOMPARE(rowsOf(window.variables()), QStringList({"SEX|P03|Sex of the person||0000", "AGE||||0000"}));
        Window::press(Qt::Key_Up);
        QCOMPARE(currentIn(window.variables()), QString("SEX"));
        Window::press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(Window::focused(), &window.labels());
        Window::press(Qt::Key_Insert);
        Window::enter("1", Qt::Key_Tab);
        Window::enter("Man");
        Window::enter("2", Qt::Key_Tab);
        Window::enter("Woman");
        Window::press(Qt::Key_Escape);
        Window::press(Qt::Key_Delete);
        QCOMPARE(rowsOf(window.labels()), QStringList({"1|Man", "2|Woman"}));
        QCOMPARE(window.counts(), QString("2 entities · 2 variables · 2 labels"));

        const QString file = folder.filePath("typed.json");
        FileRobot robot(file);
        Window::press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(robot.isAsked());
        QCOMPARE(window.title(), QString("typed.json — Tessel"));
        const QJsonObject saved = QJsonDocument::fromJson(contentOf(file)).object();
        const QJsonObject house = saved.value("entities").toArray().first().toObject();
        const QJsonObject person = house.value("entities").toArray().first().toObject();
        const QJsonObject sex = person.value("variables").toArray().first().toObject();
        QCOMPARE(house.value("name").toString(), QString("HOUSE"));
        QCOMPARE(person.value("name").toString(), QString("PERSON"));
        QCOMPARE(sex.value("alias").toString(), QString("P03"));
        QCOMPARE(
            sex.value("valueLabels").toArray().last().toObject().value("label").toString(), QString("Woman"));
        QCOMPARE(sex.value("valueLabels").toArray().last().toObject().value("value").toInt(), 2);
        QVERIFY(QFile::remove(file));
    }

    void theSampleIsSearchedEditedUndoneAndSaved()
    {
        Window window;
        QTest::mouseClick(&window.part<QPushButton>("startSample"), Qt::LeftButton);
        Window::settle();
        QCOMPARE(window.title(), QString("New dictionary — Tessel"));
        QCOMPARE(window.counts(), QString("7 entities · 145 variables · 458 labels"));
        QCOMPARE(window.entities().currentIndex().data().toString(), QString("COUNTRY"));
        const QByteArray before = textOf(window.document());
        QCOMPARE(before, contentOf(censusFile()));

        window.goTo(kPerson);
        QCOMPARE(window.part<QLabel>("heading").text(), QString("PERSON ▸ variables"));
        Window::press(Qt::Key_2, Qt::ControlModifier);
        Window::press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(Window::focused(), "age");
        QVERIFY(window.variables().model()->rowCount() < 20);
        Window::press(Qt::Key_Escape);
        QCOMPARE(Window::focused(), &window.variables());
        QCOMPARE(window.variables().model()->rowCount(), 60);

        window.goTo(kPerson + "/variables/4");
        QCOMPARE(currentIn(window.variables()), QString("AGE"));
        QCOMPARE(rowsOf(window.labels()), QStringList("0|Under one year"));
        QCOMPARE(window.part<QDockWidget>("detailDock").windowTitle(), QString("AGE"));
        QVERIFY(!window.action("undo").isEnabled());
        Window::press(Qt::Key_F2);
        Window::enter("YEARS");
        QCOMPARE(window.action("undo").text(), QString("&Undo rename AGE"));
        QCOMPARE(window.action("redo").text(), QString("&Redo"));
        QCOMPARE(window.title(), QString("New dictionary* — Tessel"));
        Window::press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.action("undo").text(), QString("&Undo"));
        QVERIFY(!window.action("undo").isEnabled());
        QCOMPARE(window.action("redo").text(), QString("&Redo rename AGE"));
        QCOMPARE(window.title(), QString("New dictionary — Tessel"));
        QCOMPARE(textOf(window.document()), before);
        window.choose("redo");
        QCOMPARE(window.action("undo").text(), QString("&Undo rename AGE"));
        window.choose("undo");
        Window::press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(rowsOf(window.variables()).contains("YEARS|P03|Age in completed years|DEMOGRAPHY|0005"));

        const QString file = folder.filePath("census.json");
        {
            FileRobot robot(file);
            Window::press(Qt::Key_S, Qt::ControlModifier);
        }
        QCOMPARE(contentOf(file), QByteArray(before).replace("\"name\": \"AGE\"", "\"name\": \"YEARS\""));
        QCOMPARE(window.title(), QString("census.json — Tessel"));
        QVERIFY(window.main.statusBar()->currentMessage().startsWith("census.json saved at "));
        Window::press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.title(), QString("census.json* — Tessel"));
        Window::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(file), before);
        QVERIFY(QFile::remove(file));
    }

    void goingThereChoosesOneRowWhateverKeyIsHeld()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        QTest::keyPress(Window::focused(), Qt::Key_Shift, Qt::ShiftModifier);
        window.goTo("/entities/0/entities/0/variables/2");
        QTest::keyRelease(Window::focused(), Qt::Key_Shift);
        QCOMPARE(selectedIn(window.variables()), QString("NOTE"));
    }

    void problemsAreGoneToByKey()
    {
        Window window;
        write(folder.filePath("faulty.json"), R"({"name": "D", "entities": [{"name": "HOUSE", "variables": [
            {"name": "ROOMS", "type": "integer"}, {"name": "ROOMS", "type": "integer",
             "metadata": {"range": [{"min": 1, "max": 2}, {"min": 9, "max": 3}]},
             "valueLabels": [{"value": 1, "label": "One"}]}]}, {"name": "HOUSE"}]})");
        QVERIFY(window.main.files().openFile(folder.filePath("faulty.json")));
        Window::press(Qt::Key_F8);
        QCOMPARE(window.variables().currentIndex().row(), 1);
        QCOMPARE(Window::focused(), &window.variables());
        QVERIFY(window.main.statusBar()->currentMessage().startsWith("HOUSE/ROOMS: "));
        window.part<QDockWidget>("detailDock").hide();
        Window::press(Qt::Key_F8);
        QVERIFY(window.part<QDockWidget>("detailDock").isVisible());
        QCOMPARE(rowsOf(window.part<TableView>("ranges")), QStringList({"1|2", "9|3"}));
        QCOMPARE(window.part<TableView>("ranges").currentIndex().row(), 1);
        QVERIFY(window.part<TableView>("ranges").isVisible());
        Window::press(Qt::Key_F8);
        QCOMPARE(window.entities().currentIndex().row(), 1);
        QCOMPARE(Window::focused(), &window.entities());
        Window::press(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(window.part<TableView>("ranges").currentIndex().row(), 1);
        QCOMPARE(window.part<QDockWidget>("problemsDock").windowTitle(), QString("Problems (3)"));
        Window::press(Qt::Key_F7);
        QCOMPARE(window.main.statusBar()->currentMessage(), QString("3 problems found."));
        QVERIFY(window.part<QTreeWidget>("problems").isVisible());
        QVERIFY(QFile::remove(folder.filePath("faulty.json")));
    }

    // What is being typed

    void whatIsBeingTypedIsSaved_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("key");
        for (const char *place : {"variable cell", "label cell", "entity", "text", "number", "long text"}) {
            QTest::addRow("%s by key", place) << place << "Ctrl+S";
            QTest::addRow("%s with the tool bar", place) << place << "tool";
            QTest::addRow("%s by menu", place) << place << "menu";
        }
    }
    void whatIsBeingTypedIsSaved()
    {
        QFETCH(QString, place);
        QFETCH(QString, key);
        const QString file = folder.filePath("small.json");
        write(file, smallDictionary());
        Window window;
        QVERIFY(window.main.files().openFile(file));
        window.goTo("/entities/0/entities/0/variables/0");
        auto &details = window.part<QTabWidget>("details");
        if (place == "variable cell") {
            window.variables().edit(window.variables().model()->index(0, 2));
        } else if (place == "label cell") {
            window.labels().edit(window.labels().model()->index(0, 1));
        } else if (place == "entity") {
            window.entities().setFocus();
            Window::press(Qt::Key_F2);
        } else if (place == "text") {
            details.setCurrentIndex(3);
            details.currentWidget()->findChild<QLineEdit *>("label")->setFocus();
        } else {
            details.setCurrentIndex(2);
            details.currentWidget()
                ->findChild<QWidget *>(place == "number" ? "missing" : "documentation")
                ->setFocus();
        }
        QWidget *typedInto = Window::focused();
        // A name begins with a letter, a number with none.
        Window::typeOver(place == "number" ? "7777" : "X7777");
        if (key == "Ctrl+S") {
            Window::press(Qt::Key_S, Qt::ControlModifier);
        } else if (key == "menu") {
            window.choose("save");
        } else {
            auto &bar = window.part<QToolBar>("tools");
            QTest::mouseClick(bar.widgetForAction(&window.action("save")), Qt::LeftButton);
        }
        QVERIFY2(contentOf(file).contains("7777"), contentOf(file));
        QVERIFY(!window.document().isModified());
        QCOMPARE(window.document().undoStack()->count(), 1);
        // A field keeps the focus, so that one can go on.
        if (place.contains("text") || place == "number")
            QCOMPARE(Window::focused(), typedInto);
        QVERIFY(QFile::remove(file));
    }

    void whatIsBeingTypedCountsWhenTheWindowCloses_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"close", "quit", "new", "sample", "window"})
            QTest::newRow(way) << QString(way);
    }
    void whatIsBeingTypedCountsWhenTheWindowCloses()
    {
        QFETCH(QString, way);
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        auto &details = window.part<QTabWidget>("details");
        details.setCurrentIndex(2);
        auto *text = details.currentWidget()->findChild<QPlainTextEdit *>("documentation");
        text->setFocus();
        Window::typeOver("Much work.");
        MessageBoxRobot robot({QMessageBox::Cancel});
        if (way == "window")
            QVERIFY(!window.main.close());
        else
            window.action(way).trigger();
        QCOMPARE(robot.texts(), QStringList("Save the changes to the new dictionary before it is closed?"));
        QCOMPARE(variableIn(window.document(), "PERSON", "SEX").getDocumentation(), QString("Much work."));
        QVERIFY(window.main.isVisible());
    }

    void aKeyStoresWhatIsBeingTypedFirst_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("add") << "add" << QStringList({"X", "VARIABLE_1", "AGE", "NOTE"});
        QTest::newRow("move") << "down" << QStringList({"AGE", "X", "NOTE"});
        QTest::newRow("next problem") << "nextProblem" << QStringList({"X", "AGE", "NOTE"});
        QTest::newRow("find") << "find" << QStringList({"X", "AGE", "NOTE"});
        QTest::newRow("entities") << "pane1" << QStringList({"X", "AGE", "NOTE"});
    }
    void aKeyStoresWhatIsBeingTypedFirst()
    {
        QFETCH(QString, name);
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        Window::press(Qt::Key_F2);
        Window::typeOver("X");
        const QKeySequence key = window.action(name).shortcut();
        QTest::keySequence(Window::focused(), key);
        Window::settle();
        QStringList names;
        for (const QString &row : rowsOf(window.variables()))
            names += row.section('|', 0, 0);
        QTEST(names, "rows");
        QCOMPARE(window.document().undoStack()->text(0), QString("rename SEX"));
    }

    void theEditMenuNamesWhatIsBeingTyped()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/1");
        // A step that is there before.
        window.action("down").trigger();
        Window::press(Qt::Key_F2);
        Window::typeOver("YEARS");
        QMenuBar &bar = *window.main.menuBar();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(bar.actions().at(1)).center());
        QCOMPARE(window.action("undo").text(), QString("&Undo rename AGE"));
        QVERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        window.choose("undo");
        QCOMPARE(window.action("undo").text(), QString("&Undo move AGE"));
        QCOMPARE(window.action("redo").text(), QString("&Redo rename AGE"));
        QCOMPARE(rowsOf(window.variables()).last().section('|', 0, 0), QString("AGE"));
    }

    void stepsAreNamedLetterByLetter()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0/valueLabels/0");
        Window::press(Qt::Key_3, Qt::ControlModifier);
        Window::press(Qt::Key_F2);
        Window::enter("A&B", Qt::Key_Tab);
        Window::enter("x");
        QCOMPARE(window.action("undo").text(), QString("&Undo change Label of label A&&B"));
    }

    // Where keys go

    void insertAddsWhereTheFocusIs_data()
    {
        QTest::addColumn<QString>("focus");
        QTest::addColumn<QString>("counts");
        QTest::newRow("tree") << "entities"
                              << "4 entities · 5 variables · 2 labels";
        QTest::newRow("variables") << "variables"
                                   << "3 entities · 6 variables · 2 labels";
        QTest::newRow("search") << "search"
                                << "3 entities · 6 variables · 2 labels";
        QTest::newRow("labels") << "labels"
                                << "3 entities · 5 variables · 3 labels";
        QTest::newRow("a field of a form") << "missing"
                                           << "3 entities · 5 variables · 2 labels";
    }
    void insertAddsWhereTheFocusIs()
    {
        QFETCH(QString, focus);
        Window window;
        load(window.document());
        QCOMPARE(window.counts(), QString("3 entities · 5 variables · 2 labels"));
        window.goTo("/entities/0/entities/0/variables/0");
        if (focus == "missing")
            window.part<QTabWidget>("details").setCurrentIndex(2);
        if (focus == "search")
            window.variables().parentWidget()->findChild<QWidget *>(focus)->setFocus();
        else
            window.part<QWidget>(focus).setFocus();
        Window::press(Qt::Key_Insert);
        QTEST(window.counts(), "counts");
    }

    void deleteIsForTheFocusedPane()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        window.part<QTabWidget>("details").setCurrentIndex(2);
        auto &missing = window.part<QSpinBox>("missing");
        missing.setFocus();
        missing.selectAll();
        Window::press(Qt::Key_Delete);
        window.part<QWidget>("virtual").setFocus();
        QCOMPARE(window.counts(), QString("3 entities · 5 variables · 2 labels"));
        window.labels().setFocus();
        window.part<QTabWidget>("details").setCurrentIndex(0);
        click(window.labels(), 0);
        Window::press(Qt::Key_Delete);
        QCOMPARE(window.counts(), QString("3 entities · 5 variables · 1 labels"));
        click(window.variables(), 2);
        Window::press(Qt::Key_Delete);
        QCOMPARE(window.counts(), QString("3 entities · 4 variables · 1 labels"));
        window.goTo("/entities/1");
        Window::press(Qt::Key_Delete);
        QCOMPARE(window.counts(), QString("2 entities · 4 variables · 1 labels"));
    }

    void altAndArrowsMove()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/1");
        Window::press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(rowsOf(window.variables()).first().section('|', 0, 0), QString("AGE"));
        Window::press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(rowsOf(window.variables()).first().section('|', 0, 0), QString("SEX"));
        window.goTo("/entities/1");
        Window::press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(treeOf(window.entities()), QStringList({"DICTIONARY", ".PLOT", ".HOUSE", "..PERSON"}));
    }

    void sortedRowsSayWhyTheyStay()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/1");
        window.variables().sortByColumn(0, Qt::DescendingOrder);
        Window::press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(window.main.statusBar()->currentMessage(),
            QString("The table is sorted; choose View, Order of the dictionary to move rows."));
        window.choose("unsort");
        QCOMPARE(rowsOf(window.variables()).first().section('|', 0, 0), QString("SEX"));
    }

    void escapeClearsOnlyTheSearchOfTheFocusedTable()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        Window::press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(Window::focused(), "sex");
        window.part<QTabWidget>("details").setCurrentIndex(2);
        auto &missing = window.part<QSpinBox>("missing");
        missing.setFocus();
        Window::press(Qt::Key_Escape);
        QCOMPARE(Window::focused(), &missing);
        QCOMPARE(window.variables().model()->rowCount(), 1);
        window.variables().setFocus();
        Window::press(Qt::Key_Escape);
        QCOMPARE(window.variables().model()->rowCount(), 3);
    }

    void findIsForTheFocusedTable()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        for (const char *name : {"labels", "variables", "entities"}) {
            window.part<QWidget>(name).setFocus();
            Window::press(Qt::Key_F, Qt::ControlModifier);
            // The tree has no search of its own.
            auto &table = window.part<QWidget>(name == QByteArray("labels") ? "labels" : "variables");
            QCOMPARE(Window::focused(), table.parentWidget()->findChild<QWidget *>("search"));
        }
    }

    void panesAreGoneToByNumber()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        const auto goneTo = [](int key) {
            Window::press(key, Qt::ControlModifier);
            return Window::focused()->objectName();
        };
        QCOMPARE(goneTo(Qt::Key_1), QString("entities"));
        QCOMPARE(goneTo(Qt::Key_2), QString("variables"));
        QCOMPARE(goneTo(Qt::Key_3), QString("labels"));
        QCOMPARE(goneTo(Qt::Key_5), QString("problems"));
        auto &details = window.part<QTabWidget>("details");
        details.setCurrentIndex(1);
        QCOMPARE(goneTo(Qt::Key_3), QString("ranges"));
        details.setCurrentIndex(2);
        QCOMPARE(goneTo(Qt::Key_3), QString("type"));
        details.setCurrentIndex(3);
        QCOMPARE(goneTo(Qt::Key_3), QString("label"));
        window.part<QDockWidget>("entityDock").hide();
        QCOMPARE(goneTo(Qt::Key_1), QString("entities"));
        QVERIFY(window.entities().isVisible());
        Window::press(Qt::Key_4, Qt::ControlModifier);
        QVERIFY(!window.part<QDockWidget>("sourcesDock").visibleRegion().isEmpty());
    }

    void addingALabelShowsTheLabels()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        window.part<QDockWidget>("detailDock").hide();
        window.part<QTabWidget>("details").setCurrentIndex(1);
        Window::press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(window.labels().isVisible());
        QVERIFY(isTyping(window.labels()));
        Window::enter("3");
        QCOMPARE(rowsOf(window.labels()).last(), QString("4|"));
    }

    // Nothing is lost

    void closingAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
        QTest::newRow("Return saves") << int(MessageBoxRobot::PressReturn) << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
        QTest::newRow("Escape") << int(MessageBoxRobot::PressEscape) << false << false;
    }
    void closingAsks()
    {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QFETCH(bool, saves);
        const QString file = folder.filePath("small.json");
        write(file, smallDictionary());
        Window window;
        QVERIFY(window.main.files().openFile(file));
        window.goTo("/entities/1");
        Window::press(Qt::Key_F2);
        Window::enter("FIELD");
        QCOMPARE(window.title(), QString("small.json* — Tessel"));
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        Window::press(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(robot.texts(), QStringList("Save the changes to small.json before it is closed?"));
        QCOMPARE(robot.boxes().first().defaultButton, QMessageBox::Save);
        QCOMPARE(window.main.isVisible(), !closes);
        QCOMPARE(contentOf(file).contains("FIELD"), saves);
        if (!saves)
            QCOMPARE(contentOf(file), smallDictionary());
        QVERIFY(QFile::remove(file));
    }

    void closingWithoutAFileSavesUnderAName()
    {
        Window window;
        load(window.document());
        window.goTo("/entities/1");
        Window::press(Qt::Key_F2);
        Window::enter("FIELD");
        {
            MessageBoxRobot robot({QMessageBox::Save});
            FileRobot cancels{QString()};
            QVERIFY(!window.main.close());
            QVERIFY(cancels.isAsked());
        }
        QVERIFY(window.main.isVisible());
        QVERIFY(window.document().isModified());
        const QString file = folder.filePath("late.json");
        MessageBoxRobot robot({QMessageBox::Save});
        FileRobot names(file);
        QVERIFY(window.main.close());
        QVERIFY(contentOf(file).contains("FIELD"));
        QVERIFY(QFile::remove(file));
    }

    void whatCannotBeSavedStays()
    {
        const QString file = folder.filePath("small.json");
        write(file, smallDictionary());
        Window window;
        QVERIFY(window.main.files().openFile(file));
        window.goTo("/entities/1");
        Window::press(Qt::Key_F2);
        Window::enter("FIELD");
        {
            FileRobot names(folder.filePath("no/such/folder/x.json"));
            MessageBoxRobot robot({QMessageBox::Ok});
            Window::press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        }
        if (!window.notice().isEmpty())
            QVERIFY2(window.notice().startsWith("x.json is not saved; the file is as it was. "),
                qPrintable(window.notice()));
        QVERIFY(window.document().isModified());
        QCOMPARE(window.title(), QString("small.json* — Tessel"));
        QCOMPARE(contentOf(file), smallDictionary());
        MessageBoxRobot robot({QMessageBox::Discard});
        QVERIFY(window.main.close());
        QVERIFY(QFile::remove(file));
    }

    void closeShowsTheStartPage()
    {
        Window window;
        window.openSample();
        QVERIFY(window.variables().isVisible());
        Window::press(Qt::Key_W, Qt::ControlModifier);
        QVERIFY(window.part<QPushButton>("startNew").isVisible());
        QVERIFY(!window.variables().isVisible());
        QCOMPARE(window.counts(), QString("0 entities · 0 variables · 0 labels"));
        QCOMPARE(window.part<QDockWidget>("detailDock").windowTitle(), QString("Variable"));
        QVERIFY(!window.document().isModified());
    }

    void aFileThatCannotBeReadLeavesEverything()
    {
        const QString file = folder.filePath("broken.json");
        write(file, "{\n  \"name\": oops}");
        Settings::addRecentFile(file);
        Window window;
        window.openSample();
        QVERIFY(!window.main.files().openFile(file));
        QVERIFY2(window.notice().startsWith("broken.json, line 2, column "), qPrintable(window.notice()));
        QCOMPARE(window.counts(), QString("7 entities · 145 variables · 458 labels"));
        QCOMPARE(Settings::recentFiles(), QStringList());
        QTest::mouseClick(&window.part<QToolButton>("noticeClose"), Qt::LeftButton);
        QCOMPARE(window.notice(), QString());
        QVERIFY(QFile::remove(file));
    }

    // What is remembered

    void recentFilesAreOffered()
    {
        const QString first = folder.filePath("R&D.json");
        const QString second = folder.filePath("second.json");
        for (const QString &file : {first, second})
            write(file, smallDictionary());
        {
            Window window;
            QVERIFY(window.main.files().openFile(first));
            QVERIFY(window.main.files().openFile(second));
        }
        Window window;
        auto &list = window.part<QListWidget>("recent");
        QCOMPARE(list.count(), 2);
        QVERIFY(list.item(1)->text().startsWith("R&D.json"));
        QMenu *recent = nullptr;
        for (QMenu *menu : window.main.findChildren<QMenu *>()) {
            if (menu->title() == "Open &recent")
                recent = menu;
        }
        QVERIFY(recent);
        emit recent->aboutToShow();
        QCOMPARE(recent->actions().size(), 2);
        QCOMPARE(recent->actions().at(1)->text(), QString(first).replace("&", "&&"));
        recent->actions().at(1)->trigger();
        QCOMPARE(window.title(), QString("R&D.json — Tessel"));
        QCOMPARE(Settings::recentFiles(), QStringList({first, second}));
        window.action("close").trigger();
        QCOMPARE(list.count(), 2);
        list.setCurrentRow(1);
        list.setFocus();
        Window::press(Qt::Key_Return);
        QCOMPARE(window.title(), QString("second.json — Tessel"));
        QVERIFY(QFile::remove(first) && QFile::remove(second));
    }

    void docksStayWhereTheyWere()
    {
        {
            Window window;
            window.part<QDockWidget>("entityDock").hide();
            window.main.addDockWidget(Qt::LeftDockWidgetArea, &window.part<QDockWidget>("problemsDock"));
            window.main.resize(1111, 777);
            QVERIFY(window.main.close());
        }
        QVERIFY(QSettings().fileName().startsWith(folder.path()));
        Window window;
        QVERIFY(!window.part<QDockWidget>("entityDock").isVisible());
        QVERIFY(window.part<QDockWidget>("detailDock").isVisible());
        QCOMPARE(
            window.main.dockWidgetArea(&window.part<QDockWidget>("problemsDock")), Qt::LeftDockWidgetArea);
    }

    void theMenuOfPanesNamesPanes()
    {
        Window window;
        load(window.document(),
            R"({"entities": [{"name": "A", "codeVar": "NONE", "variables": [{"name": "V1"}]}]})");
        window.action("check").trigger();
        QCOMPARE(window.part<QDockWidget>("problemsDock").windowTitle(), QString("Problems (1)"));
        QCOMPARE(window.part<QDockWidget>("detailDock").windowTitle(), QString("V1"));
        QStringList names;
        for (const char *dock : {"entityDock", "detailDock", "sourcesDock", "problemsDock"})
            names += window.part<QDockWidget>(dock).toggleViewAction()->text();
        QCOMPARE(names, QStringList({"&Entities", "&Variable", "&Sources", "&Problems"}));
    }

    // Menus

    void everyActionHasATextAndItsOwnKeys()
    {
        Window window;
        QHash<QString, QString> keys;
        int count = 0;
        const std::function<void(const QList<QAction *> &, const QString &)> walk =
            [&](const QList<QAction *> &actions, const QString &menu) {
                QHash<QString, QString> mnemonics;
                for (const QAction *action : actions) {
                    if (action->isSeparator())
                        continue;
                    ++count;
                    QVERIFY2(!action->text().remove('&').trimmed().isEmpty(), qPrintable(menu));
                    const QString mnemonic = QKeySequence::mnemonic(action->text()).toString();
                    if (!mnemonic.isEmpty()) {
                        QVERIFY2(!mnemonics.contains(mnemonic),
                            qPrintable(menu + ": " + action->text() + ", " + mnemonics.value(mnemonic)));
                        mnemonics.insert(mnemonic, action->text());
                    } else {
                        // Files and languages have names of their own.
                        QVERIFY2(menu.endsWith("Lan&guage") || menu.endsWith("Open &recent"),
                            qPrintable(menu + action->text()));
                    }
                    for (const QKeySequence &key : action->shortcuts()) {
                        QVERIFY2(!keys.contains(key.toString()), qPrintable(key.toString()));
                        keys.insert(key.toString(), action->text());
                    }
                    if (action->menu())
                        walk(action->menu()->actions(), menu + '/' + action->text());
                }
            };
        walk(window.main.menuBar()->actions(), "menus");
        QVERIFY2(count > 50, qPrintable(QString::number(count)));
        QVERIFY2(keys.size() >= 30, qPrintable(QString::number(keys.size())));
        for (const char *key : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+Shift+S", "Ctrl+W", "Ctrl+Q", "Ctrl+Z",
                 "Ctrl+Shift+Z", "Ins", "Del", "Alt+Up", "Alt+Down", "Ctrl+F", "Esc", "Ctrl+1", "Ctrl+2",
                 "Ctrl+3", "Ctrl+4", "Ctrl+5", "F7", "F8", "Shift+F8", "F1"})
            QVERIFY2(keys.contains(key), key);
    }

    void toolButtonsHavePicturesAndStandInMenus()
    {
        Window window;
        int count = 0;
        for (const QAction *action : window.part<QToolBar>("tools").actions()) {
            if (action->isSeparator())
                continue;
            ++count;
            QVERIFY2(!action->icon().pixmap(22).isNull(), qPrintable(action->text()));
            QVERIFY2(!action->toolTip().isEmpty(), qPrintable(action->text()));
            const QList<QWidget *> places = action->associatedWidgets();
            QVERIFY2(std::any_of(places.cbegin(), places.cend(),
                         [](const QWidget *place) { return qobject_cast<const QMenu *>(place); }),
                qPrintable(action->text()));
        }
        QCOMPARE(count, 11);
    }

    // For those who do not see

    void everythingHasANameForReaders_data()
    {
        QTest::addColumn<QString>("state");
        for (const char *state : {"start", "sample", "notice"})
            QTest::newRow(state) << QString(state);
    }
    void everythingHasANameForReaders()
    {
        QFETCH(QString, state);
        Window window;
        if (state != "start") {
            window.openSample();
            window.goTo(kPerson + "/variables/4/valueLabels/0");
        }
        if (state == "notice") {
            write(folder.filePath("odd.json"), R"({"name": "D", "odd": 1})");
            QVERIFY(window.main.files().openFile(folder.filePath("odd.json")));
            QTRY_VERIFY(!window.notice().isEmpty());
        }
        QStringList nameless;
        QSet<QObject *> seen;
        int named = 0;
        const auto isPartOfNamed = [](const QWidget *widget) {
            // Qt's own parts: the tabs' arrows, a scroll bar's, the buttons of a dock's title and the one in
            // the bars that shows what does not fit; what opens with a box's arrow; the corner of a table
            // and its headers, which tables speak for; the line inside a box, which the box speaks for.
            const QByteArray type = widget->metaObject()->className();
            const QString name = widget->objectName();
            return type == "QDockWidgetTitleButton" || type == "QToolBarExtension" || type == "QSizeGrip"
                || name == "qt_menubar_ext_button" || type == "QMainWindowTabBar"
                || type == "QComboBoxPrivateContainer" || type == "QComboBoxListView"
                || type == "QTableCornerButton" || type == "QHeaderView" || type == "QScrollBar"
                || type == "QTabBar" || name == "qt_spinbox_lineedit" || name == "ScrollLeftButton"
                || name == "ScrollRightButton" || name == "qt_toolbar_ext_button"
                || name.startsWith("qt_dockwidget") || type == "QLineEditIconButton";
        };
        const std::function<void(QWidget *)> walk = [&](QWidget *widget) {
            if (seen.contains(widget))
                return;
            seen.insert(widget);
            QAccessibleInterface *readable = QAccessible::queryAccessibleInterface(widget);
            const bool wantsName = qobject_cast<QAbstractItemView *>(widget)
                || qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractButton *>(widget)
                || qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget)
                || qobject_cast<QPlainTextEdit *>(widget);
            if (wantsName && !isPartOfNamed(widget)) {
                if (!readable || readable->text(QAccessible::Name).trimmed().isEmpty())
                    nameless +=
                        QString("%1 \"%2\"").arg(widget->metaObject()->className(), widget->objectName());
                else
                    ++named;
            }
            for (QObject *child : widget->children()) {
                if (child->isWidgetType() && !isPartOfNamed(widget))
                    walk(static_cast<QWidget *>(child));
            }
        };
        walk(&window.main);
        QCOMPARE(nameless.join("; "), QString());
        QVERIFY2(named > 40, qPrintable(QString::number(named)));
        // What readers walk by themselves reaches the tables.
        QStringList reached;
        const std::function<void(QAccessibleInterface *)> read = [&](QAccessibleInterface *item) {
            if (item->object() && item->role() == QAccessible::Table)
                reached += item->text(QAccessible::Name);
            if (item->role() == QAccessible::Table || item->role() == QAccessible::Tree)
                return;
            for (int i = 0; i < item->childCount(); ++i) {
                if (QAccessibleInterface *child = item->child(i))
                    read(child);
            }
        };
        read(QAccessible::queryAccessibleInterface(&window.main));
        for (const char *name : {"Variables", "Value labels", "Ranges"})
            QVERIFY2(reached.contains(name), qPrintable(reached.join(", ")));
        QFile::remove(folder.filePath("odd.json"));
    }

    void altOpensTheMenusWhateverIsShown()
    {
        Window window;
        // Of the pages 0 to 3 are those of the details; before, there is the start page.
        for (int page = -1; page < 4; ++page) {
            if (page == 0) {
                window.openSample();
                window.goTo(kPerson + "/variables/4");
            }
            window.part<QTabWidget>("details").setCurrentIndex(qMax(page, 0));
            for (const int key : {Qt::Key_F, Qt::Key_E, Qt::Key_V, Qt::Key_D, Qt::Key_R, Qt::Key_H}) {
                window.entities().setFocus();
                Window::press(key, Qt::AltModifier);
                QWidget *popup = QApplication::activePopupWidget();
                QVERIFY2(popup, qPrintable(QString("page %1, Alt+%2").arg(page).arg(QChar(key))));
                QCOMPARE(QKeySequence::mnemonic(static_cast<QMenu *>(popup)->title()).toString(),
                    QString("Alt+") + QChar(key));
                popup->close();
                QTest::keyClick(window.main.menuBar(), Qt::Key_Escape);
            }
        }
    }

private:
    QTemporaryDir folder;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
