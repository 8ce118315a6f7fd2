#include "editor/FileHandling.h"

#include "tests/editor/Desk.h"
#include "tests/editor/Files.h"
#include "tests/editor/OwnPlaces.h"

#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

using Button = QMessageBox::StandardButton;
constexpr Button Save = QMessageBox::Save;
constexpr Button Cancel = QMessageBox::Cancel;
constexpr Button Yes = QMessageBox::Yes;
constexpr Button No = QMessageBox::No;

const QString kOverwrite =
    QStringLiteral("Another program has changed f.json since it was opened here. Overwrite those changes?");

/// The text behind the box's button that shows details.
class DetailCatcher : public QObject {
public:
    DetailCatcher() { qApp->installEventFilter(this); }
    ~DetailCatcher() override { qApp->removeEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (const auto *box = qobject_cast<QMessageBox *>(watched); box && event->type() == QEvent::Show)
            details = box->detailedText();
        return QObject::eventFilter(watched, event);
    }

    QString details;
};

} // namespace

/// What saving would cost: values that dictionaries do not keep, and what another program wrote meanwhile.
class tst_FileChanges : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
        QVERIFY(put(at("f.json"), dictionaryOf("F")));
        QSettings().clear();
    }

    void lossesAreToldBeforeTheFirstSaving_data()
    {
        QTest::addColumn<Button>("answer");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("save") << Save << true;
        QTest::newRow("cancel") << Cancel << false;
        QTest::newRow("return") << MessageBoxRobot::PressReturn << false;
        QTest::newRow("escape") << MessageBoxRobot::PressEscape << false;
    }

    void lossesAreToldBeforeTheFirstSaving()
    {
        QFETCH(Button, answer);
        QFETCH(bool, isSaved);
        QVERIFY(put(at("f.json"), lossyDictionaryOf("F")));
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        desk.sentences();
        MessageBoxRobot robot({answer, answer});
        DetailCatcher catcher;
        QCOMPARE(desk.files.save(), isSaved);
        QCOMPARE(robot.boxes().size(), 1);
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.title, QStringLiteral("Saving loses something"));
        QCOMPARE(box.text,
            QStringLiteral(
                "The opened file holds 2 values that dictionaries do not keep. Save all the same?"));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(box.buttons & ~QMessageBox::StandardButtons(QMessageBox::NoButton), Save | Cancel);
        QCOMPARE(box.defaultButton, Cancel);
        QCOMPARE(box.textFormat, Qt::PlainText);
        QCOMPARE(box.parent, &desk.window);
        QStringList lines;
        for (const tessel::documents::Loss &loss : Losses(at("f.json"), isSaved).list)
            lines << QStringLiteral("%1 (%2): %3").arg(loss.path, loss.place, loss.sentence());
        QCOMPARE(catcher.details, lines.join(QLatin1Char('\n')));
        QVERIFY(catcher.details.startsWith(QLatin1String("/colour (")));
        QCOMPARE(desk.document.isModified(), !isSaved);
        if (!isSaved)
            QCOMPARE(contentOf(at("f.json")), lossyDictionaryOf("F"));

        // Accepted once is accepted; refused is asked again.
        desk.edit();
        QCOMPARE(desk.files.save(), isSaved);
        QCOMPARE(robot.boxes().size(), isSaved ? 1 : 2);
    }

    void acceptedLossesOutliveAFailureButNotAnotherFile()
    {
        QVERIFY(put(at("f.json"), lossyDictionaryOf("F")));
        QVERIFY(put(at("g.json"), lossyDictionaryOf("G")));
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        MessageBoxRobot robot({Save, Save, Save, Save});
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("there")));
        QVERIFY(QFile::remove(at("f.json")));
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("f.json")));
        desk.document.acceptFileChange();
        QVERIFY(!desk.files.save());
        QCOMPARE(robot.boxes().size(), 1);
        QVERIFY(!desk.files.save());
        QCOMPARE(robot.boxes().size(), 1);
        desk.document.undoStack()->undo();
        QVERIFY(desk.files.openFile(at("g.json")));
        desk.edit();
        QVERIFY(desk.files.save());
        QCOMPARE(robot.boxes().size(), 2);
    }

    void savingOverAnotherProgramsChangesIsAskedFor_data()
    {
        QTest::addColumn<Button>("answer");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("yes") << Yes << true;
        QTest::newRow("no") << No << false;
        QTest::newRow("return") << MessageBoxRobot::PressReturn << false;
        QTest::newRow("escape") << MessageBoxRobot::PressEscape << false;
    }

    void savingOverAnotherProgramsChangesIsAskedFor()
    {
        QFETCH(Button, answer);
        QFETCH(bool, isSaved);
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        QVERIFY(put(at("f.json"), dictionaryOf("ANOTHER")));
        MessageBoxRobot robot({answer});
        QCOMPARE(desk.files.save(), isSaved);
        compareBox(
            robot, desk.window, "File changed on disk", kOverwrite, QMessageBox::Question, Yes | No, No);
        QCOMPARE(contentOf(at("f.json")) == dictionaryOf("ANOTHER"), !isSaved);
        QCOMPARE(desk.document.isModified(), !isSaved);
    }

    void aFileChangedOnDiskIsAskedForOnce_data()
    {
        QTest::addColumn<bool>("isEdited");
        QTest::addColumn<Button>("answer");
        QTest::addColumn<QString>("tops");
        QTest::newRow("unchanged here, yes") << false << Yes << "ANOTHER";
        QTest::newRow("unchanged here, no") << false << No << "F";
        QTest::newRow("unchanged here, escape") << false << MessageBoxRobot::PressEscape << "F";
        QTest::newRow("edited here, yes") << true << Yes << "ANOTHER";
        QTest::newRow("edited here, no") << true << No << "F ENTITY_1";
        QTest::newRow("edited here, return") << true << MessageBoxRobot::PressReturn << "F ENTITY_1";
    }

    void aFileChangedOnDiskIsAskedForOnce()
    {
        QFETCH(bool, isEdited);
        QFETCH(Button, answer);
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        if (isEdited)
            desk.edit();
        QVERIFY(put(at("f.json"), dictionaryOf("ANOTHER")));
        MessageBoxRobot robot({answer});
        desk.files.lookForFileChange();
        compareBox(robot, desk.window, "File changed on disk",
            isEdited
                ? QStringLiteral("Another program has changed f.json. Read it again and lose the changes "
                                 "made here?")
                : QStringLiteral("Another program has changed f.json. Read it again?"),
            QMessageBox::Question, Yes | No, No);
        QTEST(desk.tops(), "tops");
        desk.files.lookForFileChange();
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("ANOTHER"));

        // The next change is another question.
        QVERIFY(put(at("f.json"), dictionaryOf("STILL_ANOTHER")));
        MessageBoxRobot next({No});
        desk.files.lookForFileChange();
        QCOMPARE(next.boxes().size(), 1);
    }

    void nobodyIsAskedWhileTheQuestionIsOpen()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        QVERIFY(put(at("f.json"), dictionaryOf("ANOTHER")));
        MessageBoxRobot robot({No, No});
        // As when the window is activated behind the box.
        QTimer::singleShot(0, &desk.files, [&desk] { desk.files.lookForFileChange(); });
        desk.files.lookForFileChange();
        QCOMPARE(robot.boxes().size(), 1);
    }

    void nothingChangedIsNoQuestion()
    {
        Desk desk;
        MessageBoxRobot robot;
        desk.files.lookForFileChange();
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.files.lookForFileChange();
        QVERIFY(QFile::remove(at("f.json")));
        desk.files.lookForFileChange();
        QCOMPARE(robot.texts(), QStringList());
    }

    void aChangedFileThatIsNoDictionaryIsTold()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.sentences();
        QVERIFY(put(at("f.json"), "[]"));
        MessageBoxRobot robot({Yes});
        desk.files.lookForFileChange();
        QCOMPARE(desk.tops(), QStringLiteral("F"));
        QCOMPARE(desk.sentences(),
            QStringList{"!f.json, line 1, column 1: expected an object at the top, found an array"});
    }

private:
    /// What the losses of a file are, asked of a document of its own; of a file that is saved by now, those
    /// that it had.
    struct Losses {
        Losses(const QString &name, bool isSaved)
        {
            const QString original = isSaved ? name + QStringLiteral(".before") : name;
            if (isSaved)
                put(original, lossyDictionaryOf("F"));
            DictionaryDocument document;
            document.open(original);
            list = document.losses();
        }
        QVector<tessel::documents::Loss> list;
    };

    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }

    QScopedPointer<QTemporaryDir> folder;
};

int main(int argc, char **argv)
{
    const OwnPlaces places;
    QApplication application(argc, argv);
    tst_FileChanges test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_FileChanges.moc"
