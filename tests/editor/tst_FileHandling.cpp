#include "editor/FileHandling.h"

#include "editor/Settings.h"
#include "tests/editor/Desk.h"
#include "tests/editor/FileDialogRobot.h"
#include "tests/editor/Files.h"
#include "tests/editor/OwnPlaces.h"

#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

using Button = QMessageBox::StandardButton;
constexpr Button Save = QMessageBox::Save;
constexpr Button Discard = QMessageBox::Discard;
constexpr Button Cancel = QMessageBox::Cancel;
constexpr Button Yes = QMessageBox::Yes;
constexpr Button No = QMessageBox::No;

constexpr auto kQuestion = QMessageBox::Question;
const QString kFilters = QStringLiteral("Dictionaries (*.json)|All files (*)");

/// The ways on which changes could be lost.
const QStringList &ways()
{
    static const QStringList list{QStringLiteral("new"), QStringLiteral("open"),
        QStringLiteral("open by name"), QStringLiteral("sample"), QStringLiteral("close")};
    return list;
}

/// Goes \a way; "open" is to be answered with \a name. True when the old dictionary may go or is gone.
bool go(Desk &desk, const QString &way, const QString &name)
{
    const TDmEntity *root = &desk.document.root();
    if (way == QLatin1String("close"))
        return desk.files.isFreeToLeave();
    if (way == QLatin1String("new")) {
        desk.files.newDictionary();
    } else if (way == QLatin1String("open")) {
        FileDialogRobot dialogs({name});
        desk.files.open();
    } else if (way == QLatin1String("sample")) {
        desk.files.openSample();
    } else {
        desk.files.openFile(name);
    }
    return root != &desk.document.root() || desk.document.undoStack()->count() == 0;
}

} // namespace

class tst_FileHandling : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
        QVERIFY(put(at("f.json"), dictionaryOf("F")));
        QVERIFY(put(at("g.json"), dictionaryOf("G")));
        QSettings().clear();
        AutoSave::removeCopy(QString());
    }

    void changesAreAskedForOnEveryWay_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<Button>("answer");
        QTest::addColumn<bool>("isLeft");
        QTest::addColumn<bool>("isSaved");
        for (const QString &way : ways()) {
            const auto row = [&way](const char *answer) -> QTestData & {
                return QTest::newRow(qPrintable(way + QLatin1String(", ") + QLatin1String(answer))) << way;
            };
            row("save") << Save << true << true;
            row("return") << MessageBoxRobot::PressReturn << true << true;
            row("discard") << Discard << true << false;
            row("cancel") << Cancel << false << false;
            row("escape") << MessageBoxRobot::PressEscape << false << false;
            row("closed") << MessageBoxRobot::CloseWindow << false << false;
        }
    }

    void changesAreAskedForOnEveryWay()
    {
        QFETCH(QString, way);
        QFETCH(Button, answer);
        QFETCH(bool, isLeft);
        QFETCH(bool, isSaved);
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        const QString before = desk.tops();
        MessageBoxRobot robot({answer});
        QCOMPARE(go(desk, way, at("g.json")), isLeft);
        compareBox(robot, desk.window, "Unsaved changes",
            QStringLiteral("Save the changes to f.json before it is closed?"), kQuestion,
            Save | Discard | Cancel, Save);
        QCOMPARE(contentOf(at("f.json")).contains("\"ENTITY_1\""), isSaved);
        if (!isSaved)
            QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        if (!isLeft) {
            QCOMPARE(desk.tops(), before);
            QVERIFY(desk.document.isModified());
        }
    }

    void withoutChangesNobodyIsAsked_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("tops");
        QTest::addColumn<QString>("file");
        QTest::newRow("new") << "new"
                             << ""
                             << "";
        QTest::newRow("open") << "open"
                              << "G"
                              << "g.json";
        QTest::newRow("open by name") << "open by name"
                                      << "G"
                                      << "g.json";
        QTest::newRow("sample") << "sample"
                                << "COUNTRY"
                                << "";
        QTest::newRow("close") << "close"
                               << "F"
                               << "f.json";
    }

    void withoutChangesNobodyIsAsked()
    {
        QFETCH(QString, way);
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        desk.document.undoStack()->undo();
        MessageBoxRobot robot;
        go(desk, way, at("g.json"));
        QCOMPARE(robot.texts(), QStringList());
        QTEST(desk.tops(), "tops");
        QTEST(QFileInfo(desk.document.fileName()).fileName(), "file");
    }

    void theNewDictionaryIsAskedForByThatName()
    {
        Desk desk;
        desk.edit();
        MessageBoxRobot robot({Save});
        FileDialogRobot dialogs({at("new.json")});
        QVERIFY(desk.files.isFreeToLeave());
        compareBox(robot, desk.window, "Unsaved changes",
            QStringLiteral("Save the changes to the new dictionary before it is closed?"), kQuestion,
            Save | Discard | Cancel, Save);
        QCOMPARE(dialogs.seen().size(), 1);
        QVERIFY(contentOf(at("new.json")).contains("\"ENTITY_1\""));
        QCOMPARE(desk.document.fileName(), at("new.json"));
    }

    void aNameNotGivenKeepsTheDictionary()
    {
        Desk desk;
        desk.edit();
        MessageBoxRobot robot({Save});
        FileDialogRobot dialogs({QString()});
        QVERIFY(!desk.files.isFreeToLeave());
        QVERIFY(desk.document.isModified());
        QCOMPARE(desk.sentences(), QStringList());
    }

    void aFailedSavingKeepsTheDictionary()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        desk.sentences();
        QVERIFY(QFile::remove(at("f.json")));
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("f.json")));
        desk.document.acceptFileChange();
        MessageBoxRobot robot({Save});
        QVERIFY(!desk.files.isFreeToLeave());
        QVERIFY(desk.document.isModified());
        QCOMPARE(desk.sentences(),
            QStringList{"!f.json is not saved; the file is as it was. f.json: cannot be written: it is a "
                        "folder; name a file"});
    }

    void openAsksForAName()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.sentences();
        FileDialogRobot dialogs({at("g.json"), QString()});
        desk.files.open();
        desk.files.open();
        const QString place = QDir(folder->path()).dirName();
        QCOMPARE(dialogs.seen(),
            (QStringList{"Open dictionary in " + place + ", " + kFilters,
                "Open dictionary in " + place + ", " + kFilters}));
        QCOMPARE(desk.tops(), QStringLiteral("G"));
        QCOMPARE(desk.sentences(), QStringList{"g.json opened."});
    }

    void saveAsAsksForAName()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        desk.sentences();
        FileDialogRobot dialogs({QString(), at("new.json")});
        QVERIFY(!desk.files.saveAs());
        QVERIFY(desk.document.isModified());
        QVERIFY(desk.files.saveAs());
        QVERIFY(!desk.document.isModified());
        const QString place = QDir(folder->path()).dirName();
        QCOMPARE(dialogs.seen().first(), "Save dictionary in " + place + ", " + kFilters);
        QCOMPARE(desk.document.fileName(), at("new.json"));
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        QCOMPARE(desk.sentences(), QStringList{"new.json saved at HH:mm."});
        QCOMPARE(Settings::recentFiles(), (QStringList{at("new.json"), at("f.json")}));
    }

    void saveAsAsksBeforeAnotherFileIsReplaced_data()
    {
        QTest::addColumn<Button>("answer");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("yes") << Yes << true;
        QTest::newRow("no") << No << false;
    }

    void saveAsAsksBeforeAnotherFileIsReplaced()
    {
        QFETCH(Button, answer);
        QFETCH(bool, isSaved);
        Desk desk;
        desk.edit();
        MessageBoxRobot robot({answer});
        FileDialogRobot dialogs({at("g.json")});
        // The dialog stays after "No"; it is left then.
        QTimer leaving;
        connect(&leaving, &QTimer::timeout, [&robot] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (dialog && !robot.boxes().isEmpty())
                dialog->reject();
        });
        leaving.start(10);
        QCOMPARE(desk.files.saveAs(), isSaved);
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(contentOf(at("g.json")) == dictionaryOf("G"), !isSaved);
    }

    void saveWritesTheFile()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.edit();
        desk.sentences();
        MessageBoxRobot robot;
        QVERIFY(desk.files.save());
        QCOMPARE(desk.sentences(), QStringList{"f.json saved at HH:mm."});
        QVERIFY(contentOf(at("f.json")).contains("\"ENTITY_1\""));
        QCOMPARE(robot.texts(), QStringList());
    }

    void whatCannotBeOpenedIsToldAndForgotten()
    {
        QVERIFY(put(at("bad.json"), "{\n  \"name\": oops\n}"));
        Settings::addRecentFile(at("bad.json"));
        Settings::addRecentFile(at("missing.json"));
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.sentences();
        QVERIFY(!desk.files.openFile(at("missing.json")));
        QCOMPARE(desk.sentences(), QStringList{"!missing.json: cannot be read: No such file or directory"});
        QVERIFY(!desk.files.openFile(at("bad.json")));
        const QStringList sentences = desk.sentences();
        QCOMPARE(sentences.size(), 1);
        QVERIFY2(sentences.first().startsWith(QLatin1String("!bad.json, line 2, column 11: expected ")),
            qPrintable(sentences.first()));
        QCOMPARE(desk.tops(), QStringLiteral("F"));
        QCOMPARE(Settings::recentFiles(), QStringList{at("f.json")});
    }

    void openedFilesAreRemembered()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        QVERIFY(desk.files.openFile(at("g.json")));
        QCOMPARE(Settings::recentFiles(), (QStringList{at("g.json"), at("f.json")}));
        QVERIFY(desk.files.openSample());
        QCOMPARE(Settings::recentFiles(), (QStringList{at("g.json"), at("f.json")}));
        // However it was written, the file is known by one name.
        QVERIFY(desk.files.openFile(QDir::current().relativeFilePath(at("f.json"))));
        QCOMPARE(desk.document.fileName(), at("f.json"));
        QCOMPARE(Settings::recentFiles(), (QStringList{at("f.json"), at("g.json")}));
    }

    void theSampleHasNoFileOfItsOwn()
    {
        Desk desk;
        QVERIFY(desk.files.openSample());
        QCOMPARE(desk.document.fileName(), QString());
        QVERIFY(!desk.document.isModified());
        desk.edit();
        FileDialogRobot dialogs({QString()});
        QVERIFY(!desk.files.save());
        QCOMPARE(dialogs.seen().size(), 1);
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }

    QScopedPointer<QTemporaryDir> folder;
};

int main(int argc, char **argv)
{
    const OwnPlaces places;
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    tst_FileHandling test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_FileHandling.moc"
