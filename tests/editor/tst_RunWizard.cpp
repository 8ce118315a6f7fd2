#include "editor/wizard/RunWizard.h"

#include "tests/editor/FileDialogAnswer.h"
#include "tests/editor/Files.h"
#include "tests/editor/ShownRunWizard.h"
#include "tests/support/MessageBoxRobot.h"

#include <QCheckBox>
#include <QTemporaryDir>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

/// The run wizard as a whole.
class tst_RunWizard : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void theSixPagesComeInOrder()
    {
        ShownRunWizard shown;
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
        ShownRunWizard shown;
        shown.show();
        QVERIFY(shown.wizard->openRun(sample("run.json")));
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
        ShownRunWizard shown;
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
        ShownRunWizard shown;
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
        QCOMPARE(contentOf(file).simplified().replace(" ", ""),
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
        ShownRunWizard shown;
        // Read again, so that the wizard is made after the first look.
        shown.wizard.reset();
        QVERIFY(!shown.document.open(sample("census.json")));
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
        ShownRunWizard shown;
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
        ShownRunWizard shown;
        shown.show();
        {
            const FileDialogAnswer answer(folder.path());
            shown.press("databaseFolderBrowse");
            QCOMPARE(answer.title, QString("Choose the folder of the database"));
            QCOMPARE(
                QDir(answer.folder).canonicalPath(), QFileInfo(sample("census.json")).dir().canonicalPath());
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

    void cancelAsksBeforeChangesAreLost_data()
    {
        QTest::addColumn<bool>("isYes");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }
    void cancelAsksBeforeChangesAreLost()
    {
        QFETCH(bool, isYes);
        ShownRunWizard shown;
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
        ShownRunWizard shown;
        QVERIFY(shown.wizard->openRun(sample("run.json")));
        shown.goTo(RunWizard::Summary);
        MessageBoxRobot robot;
        shown.press(QWizard::CancelButton);
        QVERIFY(!shown.wizard->isVisible());
        QCOMPARE(robot.texts(), QStringList());
    }

    void namesAreShownAsTheyAre()
    {
        ShownRunWizard shown;
        shown.show();
        QTest::keyClicks(&shown.at<QLineEdit>("databaseNameLine"), "<b>A</b>");
        shown.goTo(RunWizard::Summary);
        QCOMPARE(shown.at<QLabel>("summaryCount").textFormat(), Qt::PlainText);
        QVERIFY(shown.text("summaryCount").startsWith("The run \"<b>A</b>\" takes "));
    }
};

QTEST_MAIN(tst_RunWizard)
#include "tst_RunWizard.moc"
