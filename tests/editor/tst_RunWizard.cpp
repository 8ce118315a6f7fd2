#include "editor/wizard/RunWizard.h"

#include "documents/DocumentForm.h"
#include "editor/DictionaryDocument.h"
#include "editor/Structure.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/WizardText.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/support/MessageBoxRobot.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <functional>

using namespace tessel;
using namespace tessel::editor;
using tessel::test::MessageBoxRobot;

namespace {

const QString kSamples = QStringLiteral(TESSEL_SAMPLES "/");

QByteArray bytesOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// All that a wizard could change in \a root: the document, and the marks that it does not hold.
QByteArray stateOf(TDmEntity &root)
{
    QByteArray state = documents::dictionaryText(root);
    for (const TDmEntity *entity : entitiesBelow(root)) {
        state += entity->getSelectable() ? '1' : '0';
        for (const TDmVariable *variable : qAsConst(*entity->getVariables()))
            state +=
                QByteArray::number(variable->getChecked()) + '/' + QByteArray::number(variable->getLevel());
    }
    return state;
}

/// A wizard over the sample dictionary, and what a person does to it.
class Shown {
public:
    Shown()
    {
        if (document.open(kSamples + "census.json"))
            qFatal("the sample dictionary cannot be read");
        wizard = std::make_unique<RunWizard>(document);
    }

    void show()
    {
        wizard->show();
        wizard->activateWindow();
        if (!QTest::qWaitForWindowActive(wizard.get()))
            qFatal("the wizard is not active");
    }

    template<typename Widget>
    Widget &at(const char *name) const
    {
        auto *widget = wizard->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no widget \"%s\"", name);
        return *widget;
    }

    /// Types a name for the database and goes on to \a page.
    void goTo(RunWizard::Page page)
    {
        show();
        if (at<QLineEdit>("databaseNameLine").text().isEmpty())
            QTest::keyClicks(&at<QLineEdit>("databaseNameLine"), "DB");
        while (wizard->currentId() != page)
            press(QWizard::NextButton);
    }

    void press(QWizard::WizardButton which) { QTest::mouseClick(wizard->button(which), Qt::LeftButton); }
    void press(const char *name) { QTest::mouseClick(&at<QPushButton>(name), Qt::LeftButton); }
    void key(const char *name, Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&at<QWidget>(name), which, modifiers);
    }

    /// The cell in \a view that shows \a text in the first column.
    QModelIndex row(const char *view, const QString &text, int column = 0) const
    {
        const QAbstractItemView &items = at<QAbstractItemView>(view);
        QVector<QModelIndex> pending{items.rootIndex()};
        while (!pending.isEmpty()) {
            const QModelIndex parent = pending.takeLast();
            const bool isTree = qobject_cast<const QTreeView *>(&items);
            for (int i = 0; i < items.model()->rowCount(parent); ++i) {
                const QModelIndex index = items.model()->index(i, 0, parent);
                if (index.data().toString() == text)
                    return items.model()->index(i, column, parent);
                if (isTree)
                    pending.append(index);
            }
        }
        qFatal("no row \"%s\"", qPrintable(text));
    }

    /// A click on the check box of \a index.
    void click(const char *view, const QModelIndex &index)
    {
        QAbstractItemView &items = at<QAbstractItemView>(view);
        items.scrollTo(index);
        const QRect rect = items.visualRect(index);
        const int half = items.style()->pixelMetric(QStyle::PM_IndicatorWidth) / 2;
        const int margin = items.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        QTest::mouseClick(items.viewport(), Qt::LeftButton, Qt::NoModifier,
            QPoint(rect.left() + margin + half, rect.center().y()));
    }

    void space(const char *view, const QModelIndex &index)
    {
        at<QAbstractItemView>(view).setCurrentIndex(index);
        key(view, Qt::Key_Space);
    }

    void chooseEntity(const QString &name)
    {
        QListWidget &list = at<QListWidget>("tickedEntities");
        for (int i = 0; i < list.count(); ++i) {
            if (list.item(i)->text().startsWith(name + " ("))
                return list.setCurrentRow(i);
        }
        qFatal("no entity \"%s\"", qPrintable(name));
    }

    QStringList lines(const char *name) const
    {
        QStringList list;
        const QListWidget &widget = at<QListWidget>(name);
        for (int i = 0; i < widget.count(); ++i)
            list.append(widget.item(i)->text());
        return list;
    }

    QString text(const char *label) const { return at<QLabel>(label).text(); }

    /// "A 1" for each entity of the tree, 1 for a tick.
    QString entityTicks() const
    {
        QStringList list;
        for (const char *name :
            {"COUNTRY", "REGION", "PROVINCE", "MUNICIPALITY", "DWELLING", "HOUSEHOLD", "PERSON"}) {
            const bool on = row("entityTree", name).data(Qt::CheckStateRole).toInt() == Qt::Checked;
            list.append(on ? "1" : "0");
        }
        return list.join(' ');
    }

    /// What would be saved of \a entity.
    QString chosen(const QString &entity) const
    {
        const std::unique_ptr<Config> config = wizard->runPlan().config();
        for (const ConfigEntities *section : qAsConst(*config->getEntities())) {
            if (section->getName() != entity)
                continue;
            const QString all = section->getAllVariables() ? "all" : "";
            return section->getVariables() ? all + section->getVariables()->join(' ') : all;
        }
        return "not chosen";
    }

    DictionaryDocument document;
    std::unique_ptr<RunWizard> wizard;

private:
    Q_DISABLE_COPY_MOVE(Shown)
};

/// Answers the next file dialog: takes \a name, or cancels when it is empty. Remembers its title and place.
class FileDialogAnswer : public QObject {
public:
    explicit FileDialogAnswer(const QString &answer)
        : name(answer)
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer.stop();
            title = dialog->windowTitle();
            folder = dialog->directory().path();
            suggestion = dialog->selectedFiles().value(0);
            if (name.isEmpty())
                return dialog->reject();
            auto *line = dialog->findChild<QLineEdit *>("fileNameEdit");
            line->setText(name);
            QTest::keyClick(line, Qt::Key_Return);
        });
        timer.start(10);
    }

    QString title;
    QString folder;
    QString suggestion;

private:
    QString name;
    QTimer timer;
};

} // namespace

class tst_RunWizard : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void theSixPagesComeInOrder()
    {
        Shown shown;
        shown.goTo(RunWizard::Database);
        QStringList titles{shown.wizard->currentPage()->title()};
        while (shown.wizard->nextId() != -1) {
            shown.press(QWizard::NextButton);
            titles.append(shown.wizard->currentPage()->title());
        }
        QCOMPARE(
            titles, QStringList({"Database", "Entities", "Variables", "Selection", "Options", "Summary"}));
        QCOMPARE(shown.wizard->windowTitle(), QString("New run"));
    }

    void everythingThatTakesTheFocusHasAName()
    {
        Shown shown;
        shown.show();
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        for (int id = RunWizard::Database; id <= RunWizard::Summary; ++id) {
            int count = 0;
            for (const QWidget *widget : shown.wizard->page(id)->findChildren<QWidget *>()) {
                if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_"))
                    continue;
                ++count;
                const QByteArray what = widget->metaObject()->className() + QByteArray(" on page ")
                    + QByteArray::number(id) + ' ' + widget->objectName().toUtf8();
                QVERIFY2(!widget->accessibleName().isEmpty(), what.constData());
                QVERIFY2(!widget->objectName().isEmpty(), what.constData());
                QVERIFY2(!widget->accessibleName().contains('&'), what.constData());
            }
            QVERIFY(count > 0);
        }
        QStringList names;
        for (const QWizard::WizardButton which :
            {QWizard::BackButton, QWizard::NextButton, QWizard::FinishButton, QWizard::CancelButton})
            names.append(shown.wizard->button(which)->accessibleName());
        QCOMPARE(names, QStringList({"Back", "Next", "Finish", "Cancel"}));
        QCOMPARE(shown.wizard->accessibleName(), QString("Run wizard"));
    }

    void noTwoMnemonicsOfAPageAreTheSame()
    {
        Shown shown;
        const QRegularExpression mnemonic("&([^& ])");
        for (int id = RunWizard::Database; id <= RunWizard::Summary; ++id) {
            // Back, Next and Finish.
            QStringList keys{"B", "N", "F"};
            for (const QWidget *widget : shown.wizard->page(id)->findChildren<QWidget *>()) {
                QString text;
                if (const auto *label = qobject_cast<const QLabel *>(widget))
                    text = label->buddy() ? label->text() : QString();
                if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
                    text = button->text();
                if (text.isEmpty())
                    continue;
                const QRegularExpressionMatch match = mnemonic.match(text);
                QVERIFY2(match.hasMatch(), qPrintable(text));
                const QString key = match.captured(1).toUpper();
                QVERIFY2(!keys.contains(key), qPrintable(text));
                keys.append(key);
            }
        }
    }

    void aRunIsPlannedWithTheKeyboardAlone()
    {
        const QTemporaryDir folder;
        Shown shown;
        const QString file = folder.filePath("run.json");
        shown.wizard->setSaveFile(file);
        shown.show();
        // A button that is pressed by its mnemonic is shown pressed for a moment before it acts.
        const auto press = [](Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            QTest::keyClick(QApplication::focusWidget(), which, modifiers);
        };
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("databaseNameLine"));
        QTest::keyClicks(QApplication::focusWidget(), "KEYS");
        press(Qt::Key_O, Qt::AltModifier);
        QTest::keyClicks(QApplication::focusWidget(), "out");
        press(Qt::Key_Return);
        QTRY_COMPARE(shown.wizard->currentId(), int(RunWizard::Entities));
        press(Qt::Key_T, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("entityTree"));
        press(Qt::Key_End);
        press(Qt::Key_Space);
        press(Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(shown.wizard->currentId(), int(RunWizard::Variables));
        press(Qt::Key_E, Qt::AltModifier);
        press(Qt::Key_End);
        press(Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(shown.lines("tickedEntities").last(), QString("PERSON (0 of 58)"));
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("variableSearch"));
        QTest::keyClicks(QApplication::focusWidget(), "^age$");
        press(Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("variableTable"));
        press(Qt::Key_Space);
        press(Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(shown.wizard->currentId(), int(RunWizard::Selection));
        press(Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(shown.wizard->currentId(), int(RunWizard::Options));
        press(Qt::Key_R, Qt::AltModifier);
        QTRY_VERIFY(shown.at<QCheckBox>("createNoRanges").isChecked());
        press(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("entityOptions"));
        press(Qt::Key_End, Qt::ControlModifier);
        press(Qt::Key_Space);
        press(Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(shown.wizard->currentId(), int(RunWizard::Summary));
        press(Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(!shown.wizard->isVisible());
        QCOMPARE(bytesOf(file).simplified().replace(" ", ""),
            QByteArray("{\"database\":{\"folder\":\"out\",\"name\":\"KEYS\"},\"entities\":["
                       "{\"allVariables\":true,\"createCompound\":false,\"name\":\"COUNTRY\"},"
                       "{\"allVariables\":true,\"createCompound\":false,\"name\":\"REGION\"},"
                       "{\"allVariables\":true,\"createCompound\":false,\"name\":\"PROVINCE\"},"
                       "{\"allVariables\":true,\"createCompound\":false,\"name\":\"MUNICIPALITY\"},"
                       "{\"allVariables\":false,\"checkSequence\":false,\"createCompound\":false,"
                       "\"name\":\"PERSON\",\"variables\":[\"AGE\"]}],"
                       "\"options\":{\"createNoRanges\":true,\"createNotAppMissingInRange\":false},"
                       "\"type\":\"config\"}"));
    }

    void theDictionaryIsNeverChanged_data()
    {
        QTest::addColumn<QString>("end");
        for (const char *end : {"finish", "cancel", "escape", "close", "delete"})
            QTest::newRow(end) << end;
    }
    void theDictionaryIsNeverChanged()
    {
        QFETCH(QString, end);
        const QTemporaryDir folder;
        Shown shown;
        // Read again, so that the wizard is made after the first look.
        shown.wizard.reset();
        QVERIFY(!shown.document.open(kSamples + "census.json"));
        for (TDmVariable *variable : qAsConst(*entitiesBelow(shown.document.root()).last()->getVariables()))
            variable->setLevel(3);
        entitiesBelow(shown.document.root()).last()->getVariables()->first()->setChecked(1);
        const QByteArray before = stateOf(shown.document.root());
        shown.wizard = std::make_unique<RunWizard>(shown.document);
        shown.wizard->setSaveFile(folder.filePath("run.json"));
        shown.goTo(RunWizard::Entities);
        shown.space("entityTree", shown.row("entityTree", "PERSON"));
        shown.space("entityTree", shown.row("entityTree", "DWELLING"));
        shown.press(QWizard::NextButton);
        shown.chooseEntity("PERSON");
        shown.press("tickNone");
        shown.press("tickInvert");
        shown.press(QWizard::NextButton);
        QCOMPARE(stateOf(shown.document.root()), before);

        MessageBoxRobot robot({QMessageBox::Yes});
        if (end == "finish") {
            shown.press(QWizard::NextButton);
            shown.press(QWizard::NextButton);
            shown.press(QWizard::FinishButton);
            QVERIFY(!shown.wizard->isVisible());
        } else if (end == "cancel") {
            shown.press(QWizard::CancelButton);
        } else if (end == "escape") {
            QTest::keyClick(shown.wizard.get(), Qt::Key_Escape);
        } else if (end == "close") {
            shown.wizard->close();
        }
        if (end != "delete")
            QVERIFY(!shown.wizard->isVisible());
        shown.wizard.reset();
        QCOMPARE(stateOf(shown.document.root()), before);
        QCOMPARE(shown.document.isModified(), false);
        QCOMPARE(shown.document.undoStack()->count(), 0);
    }

    void aDatabaseNeedsAName()
    {
        Shown shown;
        shown.show();
        QCOMPARE(shown.text("databaseHint"), QString("Give the database a name to go on."));
        QVERIFY(shown.at<QLabel>("databaseHint").isVisible());
        QVERIFY(!shown.wizard->button(QWizard::NextButton)->isEnabled());
        QTest::keyClicks(&shown.at<QLineEdit>("databaseNameLine"), "  ");
        QVERIFY(!shown.wizard->button(QWizard::NextButton)->isEnabled());
        QTest::keyClicks(&shown.at<QLineEdit>("databaseNameLine"), "A ");
        QVERIFY(shown.wizard->button(QWizard::NextButton)->isEnabled());
        QVERIFY(!shown.at<QLabel>("databaseHint").isVisible());
        QCOMPARE(shown.wizard->runPlan().database().getName(), QString("A"));
    }

    void folderAndSourceAreBrowsedFor()
    {
        const QTemporaryDir folder;
        QFile source(folder.filePath("source.txt"));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.close();
        Shown shown;
        shown.show();
        {
            const FileDialogAnswer answer(folder.path());
            shown.press("databaseFolderBrowse");
            QCOMPARE(answer.title, QString("Choose the folder of the database"));
            QCOMPARE(QDir(answer.folder).canonicalPath(), QDir(kSamples).canonicalPath());
        }
        {
            const FileDialogAnswer answer(source.fileName());
            shown.press("databaseSourceBrowse");
            QCOMPARE(answer.title, QString("Choose the source file"));
        }
        QCOMPARE(shown.wizard->runPlan().database().getFolder(), folder.path());
        QCOMPARE(shown.wizard->runPlan().database().getSourceFile(), source.fileName());
        {
            const FileDialogAnswer answer((QString()));
            shown.press("databaseFolderBrowse");
            QCOMPARE(answer.folder, folder.path());
        }
        QCOMPARE(shown.at<QLineEdit>("databaseFolderLine").text(), folder.path());
    }

    void entitiesAreTickedWithTheMouseAndTheSpaceBar()
    {
        Shown shown;
        shown.goTo(RunWizard::Entities);
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 0 0"));
        QCOMPARE(shown.text("entityCount"), QString("4 of 7 ticked."));
        shown.click("entityTree", shown.row("entityTree", "PERSON"));
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 0 1"));
        QCOMPARE(shown.text("entityCount"), QString("5 of 7 ticked."));
        QCOMPARE(shown.chosen("PERSON"), QString("all"));
        shown.space("entityTree", shown.row("entityTree", "HOUSEHOLD"));
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 1 1"));
        // Without children no question comes.
        shown.click("entityTree", shown.row("entityTree", "PERSON"));
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 0 1 0"));
        QCOMPARE(shown.chosen("PERSON"), QString("not chosen"));
    }

    void anEntityIsNotRenamedInTheTree()
    {
        Shown shown;
        shown.goTo(RunWizard::Entities);
        const QModelIndex person = shown.row("entityTree", "PERSON");
        QAbstractItemModel *model = shown.at<QTreeView>("entityTree").model();
        QVERIFY(!model->setData(person, "OTHER"));
        QVERIFY(!model->setData(person, Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(person.data().toString(), QString("PERSON"));
        QVERIFY(!(person.flags() & Qt::ItemIsEditable));
    }

    void tickedChildrenAreAskedAbout_data()
    {
        QTest::addColumn<bool>("isYes");
        QTest::addColumn<QString>("ticks");
        QTest::newRow("yes") << true << "1 0 0 0 0 0 0";
        QTest::newRow("no") << false << "1 1 1 1 0 0 1";
    }
    void tickedChildrenAreAskedAbout()
    {
        QFETCH(bool, isYes);
        QFETCH(QString, ticks);
        Shown shown;
        shown.goTo(RunWizard::Entities);
        shown.space("entityTree", shown.row("entityTree", "PERSON"));
        QAbstractItemModel *model = shown.at<QTreeView>("entityTree").model();
        QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
        MessageBoxRobot robot({isYes ? QMessageBox::Yes : QMessageBox::No});
        shown.click("entityTree", shown.row("entityTree", "REGION"));
        QCOMPARE(robot.texts(),
            QStringList("You have child entities that are selectable, and they are as follows:\n"
                        "PROVINCE\nMUNICIPALITY\nPERSON\n\n"
                        "Are you sure you want to deselect this entity and its child entities?.\n"));
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(shown.entityTicks(), ticks);
        QCOMPARE(shown.chosen("PROVINCE"), QString(isYes ? "not chosen" : "all"));
        QStringList announced;
        for (const QList<QVariant> &arguments : changed)
            announced.append(arguments.at(0).toModelIndex().data().toString());
        QCOMPARE(
            announced, isYes ? QStringList({"PROVINCE", "MUNICIPALITY", "PERSON", "REGION"}) : QStringList());
    }

    void aRunNeedsAnEntity()
    {
        Shown shown;
        shown.goTo(RunWizard::Entities);
        MessageBoxRobot robot({QMessageBox::Yes});
        shown.space("entityTree", shown.row("entityTree", "COUNTRY"));
        QCOMPARE(shown.entityTicks(), QString("0 0 0 0 0 0 0"));
        QCOMPARE(shown.text("entityCount"), QString("0 of 7 ticked. Tick at least one entity to go on."));
        QVERIFY(!shown.wizard->button(QWizard::NextButton)->isEnabled());
        shown.space("entityTree", shown.row("entityTree", "DWELLING"));
        QCOMPARE(shown.text("entityCount"), QString("1 of 7 ticked."));
        QVERIFY(shown.wizard->button(QWizard::NextButton)->isEnabled());
    }

    void theLeftKeyGoesToTheParent()
    {
        Shown shown;
        shown.goTo(RunWizard::Entities);
        QTreeView &tree = shown.at<QTreeView>("entityTree");
        tree.setCurrentIndex(shown.row("entityTree", "PROVINCE"));
        shown.key("entityTree", Qt::Key_Left);
        shown.key("entityTree", Qt::Key_Left);
        QCOMPARE(tree.currentIndex().data().toString(), QString("REGION"));
        shown.key("entityTree", Qt::Key_Home);
        QCOMPARE(tree.currentIndex().data().toString(), QString("COUNTRY"));
    }

    void anEmptyDictionaryIsToldOf()
    {
        DictionaryDocument document;
        RunWizard wizard(document);
        wizard.show();
        QTest::keyClicks(wizard.findChild<QLineEdit *>("databaseNameLine"), "A");
        QTest::mouseClick(wizard.button(QWizard::NextButton), Qt::LeftButton);
        QCOMPARE(wizard.findChild<QLabel *>("entityCount")->text(),
            QString("The dictionary has no entities yet; add some before you plan a run."));
        QVERIFY(!wizard.button(QWizard::NextButton)->isEnabled());
    }

    void theTickedEntitiesAreListedWithTheirCounts()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        QCOMPARE(shown.lines("tickedEntities"),
            QStringList({"COUNTRY (all)", "REGION (all)", "PROVINCE (all)", "MUNICIPALITY (all)",
                "DWELLING (15 of 23)", "HOUSEHOLD (all)", "PERSON (26 of 58)"}));
        QCOMPARE(shown.text("shownCount"), QString("1 of 1"));
        shown.chooseEntity("PERSON");
        QCOMPARE(shown.text("shownCount"), QString("58 of 58"));
        QCOMPARE(shown.row("variableTable", "AGE").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(shown.row("variableTable", "HOURS").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        // The order of the record, until a header is clicked.
        QCOMPARE(shown.at<QTableView>("variableTable").model()->index(0, 0).data().toString(),
            QString("RELATION"));
        QCOMPARE(shown.at<QTableView>("variableTable").model()->columnCount(), 5);
        // Back and forth, the entity that was looked at stays.
        shown.press(QWizard::NextButton);
        shown.press(QWizard::BackButton);
        shown.press(QWizard::BackButton);
        shown.press(QWizard::NextButton);
        QCOMPARE(shown.text("shownCount"), QString("58 of 58"));
        QCOMPARE(shown.wizard->runPlan().text(), bytesOf(kSamples + "run.json"));
    }

    void variablesAreTickedWithTheMouseAndTheSpaceBar()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("DWELLING");
        shown.click("variableTable", shown.row("variableTable", "BUILT"));
        QCOMPARE(shown.lines("tickedEntities").at(4), QString("DWELLING (16 of 23)"));
        QVERIFY(shown.chosen("DWELLING").contains("FLOORING BUILT ROOMS"));
        // In whatever column the cursor stands.
        shown.space("variableTable", shown.row("variableTable", "DW_M2", 3));
        QVERIFY(shown.chosen("DWELLING").contains("BUILT DW_M2 ROOMS"));
        shown.space("variableTable", shown.row("variableTable", "DW_M2"));
        shown.space("variableTable", shown.row("variableTable", "WALLS", 1));
        QVERIFY(shown.chosen("DWELLING").contains("DW_OCCUP ROOF FLOORING BUILT ROOMS"));
    }

    void theSearchNarrowsTheListAndTellsHowFar_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("count");
        QTest::addColumn<bool>("isBad");
        QTest::newRow("a name") << "dif_see"
                                << "1 of 58" << false;
        QTest::newRow("nothing found") << "xyzzy"
                                       << "0 of 58" << false;
        QTest::newRow("the start of names") << "^DIF_"
                                            << "6 of 58" << false;
        QTest::newRow("a bad pattern") << "AGE("
                                       << "0 of 58, not a valid pattern" << true;
        QTest::newRow("no pattern") << ""
                                    << "58 of 58" << false;
    }
    void theSearchNarrowsTheListAndTellsHowFar()
    {
        QFETCH(QString, typed);
        QFETCH(QString, count);
        QFETCH(bool, isBad);
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("PERSON");
        QLineEdit &search = shown.at<QLineEdit>("variableSearch");
        QTest::keyClicks(&search, typed);
        QCOMPARE(shown.text("shownCount"), count);
        QCOMPARE(search.palette().color(QPalette::Text) == QColor(0xb3, 0, 0), isBad);
        QCOMPARE(search.accessibleDescription().startsWith("This is no pattern: "), isBad);
        // Mended, it is as before.
        search.clear();
        QTest::keyClicks(&search, "AGE");
        QCOMPARE(search.palette().color(QPalette::Text), QPalette().color(QPalette::Text));
        QVERIFY(!search.accessibleDescription().startsWith("This is no pattern"));
    }

    void escapeClearsTheSearchFirst()
    {
        Shown shown;
        shown.goTo(RunWizard::Variables);
        QLineEdit &search = shown.at<QLineEdit>("variableSearch");
        QTest::keyClicks(&search, "AGE");
        shown.key("variableSearch", Qt::Key_Escape);
        QCOMPARE(search.text(), QString());
        QVERIFY(shown.wizard->isVisible());
        MessageBoxRobot robot({QMessageBox::No});
        shown.key("variableSearch", Qt::Key_Escape);
        QCOMPARE(robot.unanswered(), 0);
    }

    void theButtonsActOnTheRowsThatAreShown_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QString>("entity");
        // Chosen in the sample: all of DIF_ but none of the others that begin with D, and SPANISH is not.
        QTest::addColumn<QString>("names");
        QTest::newRow("all") << QByteArray("tickAll") << "PERSON (28 of 58)"
                             << "ETHNIC TONGUE SPANISH RELIGION BIRTH";
        QTest::newRow("none") << QByteArray("tickNone") << "PERSON (24 of 58)"
                              << "AGE BIRTH_PLACE";
        QTest::newRow("invert") << QByteArray("tickInvert") << "PERSON (26 of 58)"
                                << "AGE SPANISH RELIGION BIRTH_PLACE";
    }
    void theButtonsActOnTheRowsThatAreShown()
    {
        QFETCH(QByteArray, button);
        QFETCH(QString, entity);
        QFETCH(QString, names);
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("PERSON");
        QTest::keyClicks(&shown.at<QLineEdit>("variableSearch"), "^(ETHNIC|TONGUE|SPANISH|RELIGION)$");
        QCOMPARE(shown.text("shownCount"), QString("4 of 58"));
        shown.press(button.constData());
        QCOMPARE(shown.lines("tickedEntities").last(), entity);
        QVERIFY2(shown.chosen("PERSON").contains(names), qPrintable(shown.chosen("PERSON")));
        QVERIFY(shown.chosen("PERSON").startsWith("RELATION SEX AGE"));
    }

    void theSearchStaysWhenAnotherEntityIsChosen()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        QTest::keyClicks(&shown.at<QLineEdit>("variableSearch"), "WATER");
        shown.chooseEntity("DWELLING");
        QCOMPARE(shown.text("shownCount"), QString("5 of 23"));
    }

    void allVariablesOfAnEntityAreTakenAtOnce()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        QCheckBox &all = shown.at<QCheckBox>("allVariables");
        QVERIFY(all.isChecked());
        shown.chooseEntity("PERSON");
        QVERIFY(!all.isChecked());
        const QString names = shown.chosen("PERSON");
        shown.key("allVariables", Qt::Key_Space);
        QVERIFY(shown.chosen("PERSON").startsWith("all"));
        QCOMPARE(shown.lines("tickedEntities").last(), QString("PERSON (all)"));
        QCOMPARE(shown.row("variableTable", "HOURS").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        shown.key("allVariables", Qt::Key_Space);
        QCOMPARE(shown.chosen("PERSON"), names);
        QCOMPARE(shown.row("variableTable", "HOURS").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));

        // One tick less, and it is no longer all.
        shown.chooseEntity("PROVINCE");
        QVERIFY(all.isChecked());
        shown.space("variableTable", shown.row("variableTable", "PROV_AREA"));
        QVERIFY(!all.isChecked());
        QCOMPARE(shown.chosen("PROVINCE"), QString("PROV_STAT PROV_CAPITAL"));
        QCOMPARE(shown.lines("tickedEntities").at(2), QString("PROVINCE (2 of 3)"));
        // What is ticked one by one is not what the dictionary gets later.
        shown.press("tickAll");
        QVERIFY(!all.isChecked());
        QCOMPARE(shown.chosen("PROVINCE"), QString("PROV_STAT PROV_AREA PROV_CAPITAL"));
    }

    void buttonsThatChangeNothingKeepAllVariables()
    {
        Shown shown;
        shown.goTo(RunWizard::Variables);
        shown.press("tickAll");
        QCOMPARE(shown.chosen("COUNTRY"), QString("all"));
        QTest::keyClicks(&shown.at<QLineEdit>("variableSearch"), "xyzzy");
        shown.press("tickNone");
        shown.press("tickInvert");
        QCOMPARE(shown.chosen("COUNTRY"), QString("all"));
    }

    void aClickOnAHeaderSorts()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("DWELLING");
        QTableView &table = shown.at<QTableView>("variableTable");
        table.sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(table.model()->index(0, 0).data().toString(), QString("BUILT"));
        // Ticks find their variables all the same.
        shown.space("variableTable", shown.row("variableTable", "BUILT"));
        QVERIFY(shown.chosen("DWELLING").contains("FLOORING BUILT ROOMS"));
    }

    void theSelectionIsShownAndCannotBeChanged()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Variables);
        shown.chooseEntity("REGION");
        shown.press("tickNone");
        shown.press(QWizard::NextButton);
        QStringList states;
        for (const char *text : {"ALTAMAR2023 Población y Vivienda 2023, República de Altamar",
                 "COUNTRY Country", "REGION Region", "DWELLING Dwelling", "PERSON Person"})
            states.append(QString::number(
                shown.row("selectionTree", QString::fromUtf8(text)).data(Qt::CheckStateRole).toInt()));
        QCOMPARE(states.join(' '), QString("1 2 0 1 1"));
        QCOMPARE(shown.text("selectionVariablesLabel"), QString("Go to an entity to see its variables."));

        const QModelIndex dwelling = shown.row("selectionTree", "DWELLING Dwelling");
        shown.click("selectionTree", dwelling);
        shown.space("selectionTree", dwelling);
        QCOMPARE(dwelling.data(Qt::CheckStateRole).toInt(), int(Qt::PartiallyChecked));
        QVERIFY(!(dwelling.flags() & Qt::ItemIsUserCheckable));
        QCOMPARE(shown.text("selectionVariablesLabel"), QString("DWELLING: 15 of 23"));
        QCOMPARE(shown.lines("selectionVariables").size(), 15);
        QCOMPARE(shown.lines("selectionVariables").first(), QString("DW_AREA Area of residence"));
        shown.at<QTreeView>("selectionTree").setCurrentIndex(shown.row("selectionTree", "COUNTRY Country"));
        QCOMPARE(shown.text("selectionVariablesLabel"), QString("COUNTRY: 1 of 1"));
        // Closed, and then on to the parent.
        shown.at<QTreeView>("selectionTree").setCurrentIndex(dwelling);
        shown.key("selectionTree", Qt::Key_Left);
        shown.key("selectionTree", Qt::Key_Left);
        QCOMPARE(shown.at<QTreeView>("selectionTree").currentIndex().data().toString(),
            QString("MUNICIPALITY Municipality"));
    }

    void optionsAreTakenAtOnce()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Options);
        QVERIFY(shown.at<QCheckBox>("createNotAppMissingInRange").isChecked());
        QVERIFY(!shown.at<QCheckBox>("createNoRanges").isChecked());
        QTableWidget &table = shown.at<QTableWidget>("entityOptions");
        QCOMPARE(table.rowCount(), 7);
        const auto rowText = [&table](int row) {
            QStringList list{table.item(row, 0)->text(), table.item(row, 1)->text()};
            for (int column = 2; column < 5; ++column)
                list.append(table.item(row, column)->checkState() == Qt::Checked ? "1" : "0");
            return list.join(' ');
        };
        QCOMPARE(rowText(4), QString("DWELLING V 1 0 0"));
        QCOMPARE(rowText(6), QString("PERSON P 1 1 1"));
        QCOMPARE(shown.wizard->runPlan().text(), bytesOf(kSamples + "run.json"));

        shown.key("createNotAppMissingInRange", Qt::Key_Space);
        shown.key("createNoRanges", Qt::Key_Space);
        shown.click("entityOptions", table.model()->index(4, 2));
        shown.space("entityOptions", table.model()->index(6, 2));
        shown.space("entityOptions", table.model()->index(5, 3));
        shown.space("entityOptions", table.model()->index(6, 4));
        const RunPlan &plan = shown.wizard->runPlan();
        QCOMPARE(plan.options().getCreateNotAppMissingInRange(), false);
        QCOMPARE(plan.options().getCreateNoRanges(), true);
        const std::unique_ptr<Config> config = plan.config();
        QCOMPARE(config->getEntities()->at(4)->getCreateCompound(), false);
        QCOMPARE(config->getEntities()->at(4)->getCheckSequence(), false);
        QCOMPARE(config->getEntities()->at(5)->getCreateSDC(), true);
        QCOMPARE(config->getEntities()->at(5)->getCreateCompound(), true);
        QCOMPARE(config->getEntities()->at(5)->getCheckSequence(), true);
        QCOMPARE(config->getEntities()->at(6)->getCreateCompound(), false);
        QCOMPARE(config->getEntities()->at(6)->getCheckSequence(), false);
        QCOMPARE(config->getEntities()->at(6)->getCreateSDC(), true);
    }

    void theRecordTypeIsTyped()
    {
        Shown shown;
        shown.goTo(RunWizard::Options);
        QTableWidget &table = shown.at<QTableWidget>("entityOptions");
        table.setCurrentCell(1, 1);
        // Enter opens the cell and does not go on to the next page.
        shown.key("entityOptions", Qt::Key_Return);
        auto *editor = table.findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, " R ");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(shown.wizard->runPlan().config()->getEntities()->at(1)->getRecType(), QString("R"));
        QCOMPARE(shown.wizard->currentId(), int(RunWizard::Options));
        QVERIFY(!(table.item(1, 0)->flags() & Qt::ItemIsEditable));
    }

    void theSummaryTellsWhatIsWritten()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Summary);
        QCOMPARE(shown.text("summaryCount"),
            QString("The run \"ALTAMAR2023\" takes 7 entities and 92 variables."));
        QCOMPARE(
            shown.text("summaryTarget"), QString("The run is written to a file that you are asked for."));
        shown.wizard->setSaveFile("/tmp/some run.json");
        QCOMPARE(shown.text("summaryTarget"), QString("The run is written to /tmp/some run.json."));
        const QTableWidget &table = shown.at<QTableWidget>("summaryTable");
        QStringList rows;
        for (int row = 0; row < table.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column)
                cells.append(table.item(row, column)->text());
            rows.append(cells.join('|'));
        }
        QCOMPARE(rows,
            QStringList({"COUNTRY|1 of 1||Check sequence", "REGION|1 of 1||Check sequence",
                "PROVINCE|3 of 3||Check sequence", "MUNICIPALITY|7 of 7|M|Check sequence",
                "DWELLING|15 of 23|V|Compound", "HOUSEHOLD|39 of 39|H|Compound, Check sequence",
                "PERSON|26 of 58|P|Compound, SDC, Check sequence"}));
        QVERIFY(!shown.at<QListWidget>("summaryMissing").isVisible());
        QVERIFY(!shown.at<QLabel>("summaryProblem").isVisible());
    }

    void oneIsNotPlural()
    {
        QCOMPARE(WizardText::entities(1), QString("1 entity"));
        QCOMPARE(WizardText::entities(0), QString("0 entities"));
        QCOMPARE(WizardText::variables(1), QString("1 variable"));
        QCOMPARE(WizardText::variables(2), QString("2 variables"));
    }

    void finishSavesTheRun()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("run.json");
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        QCOMPARE(shown.wizard->windowTitle(), QString("Run run.json"));
        shown.wizard->setSaveFile(file);
        QSignalSpy saved(shown.wizard.get(), &RunWizard::runSaved);
        QSignalSpy accepted(shown.wizard.get(), &QDialog::accepted);
        shown.goTo(RunWizard::Summary);
        QCOMPARE(shown.wizard->savedFile(), QString());
        shown.press(QWizard::FinishButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(bytesOf(file), bytesOf(kSamples + "run.json"));
        QCOMPARE(saved.count(), 1);
        QCOMPARE(saved.at(0).at(0).toString(), file);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(shown.wizard->savedFile(), file);
    }

    void aFailureIsToldAndTheWizardStays()
    {
        const QTemporaryDir folder;
        Shown shown;
        shown.wizard->setSaveFile(folder.path());
        QSignalSpy saved(shown.wizard.get(), &RunWizard::runSaved);
        shown.goTo(RunWizard::Summary);
        shown.press(QWizard::FinishButton);
        QVERIFY(shown.wizard->isVisible());
        QCOMPARE(shown.text("summaryProblem"),
            QString("%1: cannot be written: it is a folder; name a file.").arg(folder.path()));
        QVERIFY(shown.at<QLabel>("summaryProblem").isVisible());
        QCOMPARE(shown.wizard->problem(), shown.text("summaryProblem"));
        QCOMPARE(saved.count(), 0);
        QCOMPARE(shown.wizard->savedFile(), QString());
        // Another file, and all is well.
        shown.wizard->setSaveFile(folder.filePath("run.json"));
        shown.press(QWizard::FinishButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(shown.wizard->problem(), QString());
        QCOMPARE(saved.count(), 1);
    }

    void theDictionarysOwnFileIsRefused()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("census.json");
        QVERIFY(QFile::copy(kSamples + "census.json", file));
        QVERIFY(QFile::link(file, folder.filePath("link.json")));
        Shown shown;
        QVERIFY(!shown.document.save(file));
        shown.wizard->setSaveFile(folder.filePath("link.json"));
        shown.goTo(RunWizard::Summary);
        shown.press(QWizard::FinishButton);
        QVERIFY(shown.wizard->isVisible());
        QCOMPARE(shown.text("summaryProblem"),
            QString("%1: holds the dictionary itself; choose another file.")
                .arg(folder.filePath("link.json")));
        QCOMPARE(bytesOf(file), bytesOf(kSamples + "census.json"));
    }

    void finishAsksForTheFile()
    {
        const QTemporaryDir folder;
        Shown shown;
        shown.goTo(RunWizard::Summary);
        {
            const FileDialogAnswer answer((QString()));
            shown.press(QWizard::FinishButton);
            QCOMPARE(answer.title, QString("Save the run"));
            QCOMPARE(QDir(answer.folder).canonicalPath(), QDir(kSamples).canonicalPath());
        }
        QVERIFY(shown.wizard->isVisible());
        QVERIFY(!shown.at<QLabel>("summaryProblem").isVisible());
        const QString file = folder.filePath("new.json");
        const FileDialogAnswer answer(file);
        shown.press(QWizard::FinishButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(shown.wizard->savedFile(), file);
        QCOMPARE(bytesOf(file), shown.wizard->runPlan().text());
    }

    void anOpenedRunIsOfferedItsOwnFile()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("mine.json");
        QVERIFY(QFile::copy(kSamples + "run.json", file));
        Shown shown;
        QVERIFY(shown.wizard->openRun(file));
        shown.goTo(RunWizard::Summary);
        const FileDialogAnswer answer((QString()));
        shown.press(QWizard::FinishButton);
        QCOMPARE(answer.suggestion, file);
    }

    void aDictionaryIsNoRun()
    {
        Shown shown;
        QVERIFY(!shown.wizard->openRun(kSamples + "census.json"));
        shown.show();
        QCOMPARE(shown.wizard->problem(),
            QString("%1: is a dictionary, not a run configuration; open it with File, Open.")
                .arg(kSamples + "census.json"));
        QCOMPARE(shown.text("databaseProblem"), shown.wizard->problem());
        QVERIFY(shown.at<QLabel>("databaseProblem").isVisible());
        QCOMPARE(shown.wizard->windowTitle(), QString("New run"));
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        QVERIFY(!shown.at<QLabel>("databaseProblem").isVisible());
        QCOMPARE(shown.at<QLineEdit>("databaseNameLine").text(), QString("ALTAMAR2023"));
        QCOMPARE(shown.at<QLineEdit>("databaseFolderLine").text(), QString("altamar2023"));
        QCOMPARE(shown.at<QLineEdit>("databaseSourceLine").text(), QString("altamar2023.txt"));
    }

    void aBrokenFileIsToldWithItsPlace()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("broken.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\n  \"type\" \"config\"\n}");
        file.close();
        Shown shown;
        QVERIFY(!shown.wizard->openRun(file.fileName()));
        QCOMPARE(shown.wizard->problem(),
            QString("%1, line 2, column 10: expected \":\" after a key.").arg(file.fileName()));
    }

    void missingNamesAreListedAndKept()
    {
        const QTemporaryDir folder;
        QByteArray run = bytesOf(kSamples + "run.json");
        run.replace("\"AGE\"", "\"AGE\",\n                \"OLD_AGE\"");
        run.replace("\"REGION\"", "\"OLD_REGION\"");
        run.replace("\"name\": \"ALTAMAR2023\"", "\"name\": \"ALTAMAR2023\", \"filter\": \"X\"");
        QFile file(folder.filePath("old.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(run);
        file.close();
        Shown shown;
        QVERIFY(shown.wizard->openRun(file.fileName()));
        shown.show();
        QCOMPARE(shown.lines("missingList"), QStringList({"OLD_REGION", "PERSON/OLD_AGE"}));
        QCOMPARE(shown.text("missingLabel"),
            QString("The run names what the dictionary does not have; it is kept when the run is saved:"));
        QVERIFY(shown.at<QListWidget>("missingList").isVisible());
        QVERIFY(shown.at<QLabel>("missingLabel").isVisible());
        QCOMPARE(shown.lines("lossList").size(), 1);
        QVERIFY2(
            shown.lines("lossList").first().contains("\"X\""), qPrintable(shown.lines("lossList").first()));
        QVERIFY(shown.at<QListWidget>("lossList").isVisible());

        shown.goTo(RunWizard::Variables);
        QCOMPARE(shown.lines("tickedEntities").size(), 6);
        shown.chooseEntity("PERSON");
        shown.space("variableTable", shown.row("variableTable", "HOURS"));
        QVERIFY(shown.chosen("PERSON").contains("AGE OLD_AGE ETHNIC"));
        while (shown.wizard->currentId() != RunWizard::Summary)
            shown.press(QWizard::NextButton);
        QCOMPARE(shown.lines("summaryMissing"), QStringList({"OLD_REGION", "PERSON/OLD_AGE"}));
        QVERIFY(shown.at<QListWidget>("summaryMissing").isVisible());
        QCOMPARE(shown.at<QTableWidget>("summaryTable").item(1, 1)->text(), QString("not in the dictionary"));
        shown.wizard->setSaveFile(file.fileName());
        shown.press(QWizard::FinishButton);
        QVERIFY(bytesOf(file.fileName()).contains("\"OLD_AGE\""));
        QVERIFY(bytesOf(file.fileName()).contains("\"OLD_REGION\""));
    }

    void aRunThatFitsHasNoNotes()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.show();
        for (const char *name : {"missingLabel", "missingList", "lossLabel", "lossList", "databaseProblem"})
            QVERIFY2(!shown.at<QWidget>(name).isVisible(), name);
    }

    void aRunOpenedLaterBeginsAnew()
    {
        Shown shown;
        shown.goTo(RunWizard::Variables);
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        QCOMPARE(shown.wizard->currentId(), int(RunWizard::Database));
        QCOMPARE(shown.at<QLineEdit>("databaseNameLine").text(), QString("ALTAMAR2023"));
        shown.goTo(RunWizard::Entities);
        QCOMPARE(shown.entityTicks(), QString("1 1 1 1 1 1 1"));
        shown.press(QWizard::NextButton);
        QCOMPARE(shown.lines("tickedEntities").size(), 7);
    }

    void cancelAsksBeforeChangesAreLost_data()
    {
        QTest::addColumn<bool>("isYes");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }
    void cancelAsksBeforeChangesAreLost()
    {
        QFETCH(bool, isYes);
        Shown shown;
        shown.goTo(RunWizard::Entities);
        MessageBoxRobot robot({isYes ? QMessageBox::Yes : QMessageBox::No});
        QSignalSpy rejected(shown.wizard.get(), &QDialog::rejected);
        shown.press(QWizard::CancelButton);
        QCOMPARE(robot.texts(), QStringList("The run has changes that are not saved. Throw them away?"));
        QCOMPARE(robot.boxes().first().defaultButton, QMessageBox::No);
        QCOMPARE(shown.wizard->isVisible(), !isYes);
        QCOMPARE(rejected.count(), isYes ? 1 : 0);
    }

    void cancelDoesNotAskWithoutChanges()
    {
        Shown shown;
        QVERIFY(shown.wizard->openRun(kSamples + "run.json"));
        shown.goTo(RunWizard::Summary);
        MessageBoxRobot robot;
        shown.press(QWizard::CancelButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(robot.texts(), QStringList());
    }

    void anEditedDictionaryIsToldOf_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::newRow("an edit") << false;
        QTest::newRow("another dictionary") << true;
    }
    void anEditedDictionaryIsToldOf()
    {
        QFETCH(bool, isReset);
        Shown shown;
        shown.goTo(RunWizard::Summary);
        QVERIFY(!shown.at<QLabel>("summaryOutdated").isVisible());
        if (isReset)
            shown.document.clear();
        else
            Structure(shown.document).addEntity(shown.document.root());
        QVERIFY(shown.at<QLabel>("summaryOutdated").isVisible());
        QCOMPARE(shown.text("summaryOutdated"),
            QString(
                "The dictionary has been edited since this window was opened; the run is planned on what it "
                "held then."));
        // The copy that the pages show is still there.
        shown.press(QWizard::BackButton);
        shown.press(QWizard::BackButton);
        QCOMPARE(
            shown.row("selectionTree", "COUNTRY Country").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    }

    void namesAreShownAsTheyAre()
    {
        Shown shown;
        shown.show();
        QTest::keyClicks(&shown.at<QLineEdit>("databaseNameLine"), "<b>A</b>");
        shown.goTo(RunWizard::Summary);
        QCOMPARE(shown.at<QLabel>("summaryCount").textFormat(), Qt::PlainText);
        QVERIFY(shown.text("summaryCount").startsWith("The run \"<b>A</b>\" takes "));
    }
};

QTEST_MAIN(tst_RunWizard)
#include "tst_RunWizard.moc"
