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
constexpr Button Discard = QMessageBox::Discard;
constexpr Button Yes = QMessageBox::Yes;
constexpr Button No = QMessageBox::No;

} // namespace

/// What a killed program left is offered, once.
class tst_FileRecovery : public QObject {
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
        QVERIFY(QDir().mkpath(QFileInfo(AutoSave::copyOf(QString())).path()));
    }

    void unsavedWorkOfAFileIsOffered()
    {
        QVERIFY(put(copy(), dictionaryOf("UNSAVED")));
        Desk desk;
        MessageBoxRobot robot({Yes});
        QVERIFY(desk.files.openFile(at("f.json")));
        compareBox(robot, desk.window, "Recover unsaved work",
            QStringLiteral("The editor ended without saving f.json. Go on with the unsaved work?"),
            QMessageBox::Question, Yes | No, No);
        QCOMPARE(desk.tops(), QStringLiteral("UNSAVED"));
        QCOMPARE(desk.document.fileName(), at("f.json"));
        QVERIFY(desk.document.isModified());
        QCOMPARE(desk.sentences(), QStringList{"The unsaved work of f.json is back; save it to keep it."});
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("F"));
        QCOMPARE(contentOf(copy()), dictionaryOf("UNSAVED"));

        QVERIFY(desk.files.save());
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("UNSAVED"));
        QVERIFY(!QFile::exists(copy()));
    }

    void declinedWorkIsPutAsideAndNotOfferedAgain_data()
    {
        QTest::addColumn<Button>("answer");
        QTest::newRow("no") << No;
        QTest::newRow("escape") << MessageBoxRobot::PressEscape;
        QTest::newRow("return") << MessageBoxRobot::PressReturn;
    }

    void declinedWorkIsPutAsideAndNotOfferedAgain()
    {
        QFETCH(Button, answer);
        QVERIFY(put(copy(), dictionaryOf("UNSAVED")));
        Desk desk;
        MessageBoxRobot robot({answer});
        QVERIFY(desk.files.openFile(at("f.json")));
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(desk.tops(), QStringLiteral("F"));
        QVERIFY(!desk.document.isModified());
        QVERIFY(!QFile::exists(copy()));
        const QString aside = copy() + ".declined";
        QCOMPARE(contentOf(aside), dictionaryOf("UNSAVED"));
        QCOMPARE(desk.sentences(),
            (QStringList{"The unsaved work was put aside as " + aside + '.', "f.json opened."}));
        // Asked once.
        QVERIFY(desk.files.openFile(at("f.json")));
        QCOMPARE(robot.boxes().size(), 1);
    }

    void anOlderCopyIsNotOffered()
    {
        QVERIFY(put(copy(), dictionaryOf("UNSAVED")));
        QFile file(copy());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(
            file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
        file.close();
        Desk desk;
        MessageBoxRobot robot;
        QVERIFY(desk.files.openFile(at("f.json")));
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(desk.tops(), QStringLiteral("F"));
    }

    void aCopyThatCannotBeReadIsToldAndTheFileOpened()
    {
        QVERIFY(put(copy(), "{\"name\": "));
        Desk desk;
        MessageBoxRobot robot({Yes});
        QVERIFY(desk.files.openFile(at("f.json")));
        QCOMPARE(robot.boxes().size(), 1);
        const QStringList sentences = desk.sentences();
        QCOMPARE(sentences.size(), 2);
        QCOMPARE(sentences.at(0), QStringLiteral("f.json opened."));
        QVERIFY2(sentences.at(1).startsWith(QLatin1String("!.f.json.autosave, line 1, column ")),
            qPrintable(sentences.at(1)));
        QCOMPARE(desk.tops(), QStringLiteral("F"));
    }

    void unsavedWorkWithoutAFileIsOffered()
    {
        QVERIFY(put(AutoSave::copyOf(QString()), dictionaryOf("UNSAVED")));
        Desk desk;
        MessageBoxRobot robot({Yes});
        desk.files.offerRecovery();
        compareBox(robot, desk.window, "Recover unsaved work",
            QStringLiteral(
                "The editor ended without saving a dictionary that has no file yet. Go on with the "
                "unsaved work?"),
            QMessageBox::Question, Yes | No, No);
        QCOMPARE(desk.tops(), QStringLiteral("UNSAVED"));
        QCOMPARE(desk.document.fileName(), QString());
        QVERIFY(desk.document.isModified());
        QVERIFY(AutoSave::hasCopy(QString()));
        QCOMPARE(desk.sentences(),
            QStringList{
                "The unsaved work of a dictionary that has no file yet is back; save it to keep it."});
    }

    void declinedWorkWithoutAFileIsPutAside()
    {
        QVERIFY(put(AutoSave::copyOf(QString()), dictionaryOf("UNSAVED")));
        Desk desk;
        MessageBoxRobot robot({No});
        desk.files.offerRecovery();
        QCOMPARE(desk.tops(), QString());
        QVERIFY(!desk.document.isModified());
        QVERIFY(!AutoSave::hasCopy(QString()));
        desk.files.offerRecovery();
        QCOMPARE(robot.boxes().size(), 1);
    }

    void whatIsGivenUpHereIsNotOfferedAgain()
    {
        Desk desk;
        QVERIFY(desk.files.openFile(at("f.json")));
        desk.autoSave.setPause(0);
        desk.edit();
        QTRY_VERIFY(QFile::exists(copy()));
        MessageBoxRobot robot({Discard});
        QVERIFY(desk.files.openFile(at("f.json")));
        QCOMPARE(robot.texts(), QStringList{"Save the changes to f.json before it is closed?"});
        QCOMPARE(desk.tops(), QStringLiteral("F"));
        QVERIFY(!QFile::exists(copy()));
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }
    QString copy() const { return at(".f.json.autosave"); }

    QScopedPointer<QTemporaryDir> folder;
};

int main(int argc, char **argv)
{
    const OwnPlaces places;
    QApplication application(argc, argv);
    tst_FileRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_FileRecovery.moc"
