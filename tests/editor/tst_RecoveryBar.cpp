#include "editor/views/RecoveryBar.h"

#include "tests/editor/Desk.h"
#include "tests/editor/Files.h"
#include "tests/editor/OwnPlaces.h"

#include <QPushButton>
#include <QToolButton>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// A desk with the bar over it, and a file open.
struct Bar {
    explicit Bar(const QString &file)
    {
        desk.window.resize(600, 400);
        desk.window.show();
        bar.show();
        bar.hide();
        if (!desk.files.openFile(file))
            qFatal("%s cannot be opened", qPrintable(file));
        desk.sentences();
        desk.files.lookForUnnamedWork();
    }

    void press(const char *name)
    {
        QTest::mouseClick(bar.findChild<QAbstractButton *>(name), Qt::LeftButton);
    }
    QString left() const
    {
        return AutoSave::hasCopy(QString()) ? contentOf(AutoSave::copyOf(QString())) : "";
    }

    Desk desk;
    RecoveryBar bar{desk.files, &desk.window};
};

QString aside() { return AutoSave::copyOf(QString()) + ".declined"; }

} // namespace

/// What was left of a dictionary without a file is offered beside another one, and safe from it.
class tst_RecoveryBar : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(put(file(), dictionaryOf("F")));
        QSettings().clear();
        QVERIFY(QDir().mkpath(QFileInfo(AutoSave::copyOf(QString())).path()));
        QFile::remove(aside());
        QVERIFY(put(AutoSave::copyOf(QString()), dictionaryOf("UNSAVED")));
    }

    void withoutACopyThereIsNoOffer()
    {
        AutoSave::removeCopy(QString());
        Bar bar(file());
        QVERIFY(!bar.bar.isVisible());
        bar.desk.files.recoverUnnamed();
        QCOMPARE(bar.desk.tops(), QString("F"));
        QCOMPARE(bar.desk.sentences(), QStringList());
    }

    void theOfferStandsBesideTheFile()
    {
        const MessageBoxRobot robot;
        Bar bar(file());
        QVERIFY(bar.bar.isVisible());
        QCOMPARE(bar.bar.text(),
            QString("An earlier session ended without saving a dictionary that has no file yet."));
        QCOMPARE(bar.desk.tops(), QString("F"));
        QVERIFY(robot.boxes().isEmpty());
        QStringList buttons;
        for (const char *name : {"recoveryOpen", "recoveryLater"}) {
            const auto *button = bar.bar.findChild<QPushButton *>(name);
            QVERIFY(button->isVisible());
            buttons += button->text() + '/' + button->accessibleName();
        }
        QCOMPARE(buttons, QStringList({"Open &it/Open it", "La&ter/Later"}));
    }

    void itIsTakenUp()
    {
        Bar bar(file());
        bar.press("recoveryOpen");
        QVERIFY(!bar.bar.isVisible());
        QCOMPARE(bar.desk.tops(), QString("UNSAVED"));
        QCOMPARE(bar.desk.document.fileName(), QString());
        QVERIFY(bar.desk.document.isModified());
        QCOMPARE(bar.desk.sentences(),
            QStringList(
                "The unsaved work of a dictionary that has no file yet is back; save it to keep it."));
        // Kept until it is saved.
        QCOMPARE(bar.left(), QString(dictionaryOf("UNSAVED")));
        QVERIFY(!QFile::exists(aside()));
        bar.desk.edit();
        QCOMPARE(bar.left(), QString(dictionaryOf("UNSAVED")));
        QVERIFY(!bar.desk.document.save(folder->filePath("new.json")));
        QVERIFY(!AutoSave::hasCopy(QString()));
        QCOMPARE(contentOf(file()), dictionaryOf("F"));
    }

    void changesOfTheFileAreAskedForFirst_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("tops");
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << "F ENTITY_1";
        QTest::newRow("discard") << int(QMessageBox::Discard) << "UNSAVED";
        QTest::newRow("save") << int(QMessageBox::Save) << "UNSAVED";
    }
    void changesOfTheFileAreAskedForFirst()
    {
        QFETCH(int, answer);
        Bar bar(file());
        bar.desk.edit();
        QVERIFY(bar.bar.isVisible());
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        bar.press("recoveryOpen");
        QCOMPARE(robot.texts(), QStringList("Save the changes to f.json before it is closed?"));
        QTEST(bar.desk.tops(), "tops");
        QCOMPARE(bar.bar.isVisible(), answer == QMessageBox::Cancel);
        QCOMPARE(contentOf(file()).contains("ENTITY_1"), answer == QMessageBox::Save);
        QCOMPARE(bar.left(), QString(dictionaryOf("UNSAVED")));
    }

    void laterMeansTheNextStart_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("later") << "recoveryLater";
        QTest::newRow("the cross") << "recoveryClose";
    }
    void laterMeansTheNextStart()
    {
        QFETCH(QString, button);
        {
            Bar bar(file());
            bar.press(qPrintable(button));
            QVERIFY(!bar.bar.isVisible());
            bar.desk.edit();
            bar.desk.autoSave.finish();
        }
        QCOMPARE(contentOf(AutoSave::copyOf(QString())), dictionaryOf("UNSAVED"));
        const Bar next(file());
        QVERIFY(next.bar.isVisible());
    }

    void newWorkWithoutAFileDoesNotWriteOverIt_data()
    {
        QTest::addColumn<bool>("isPutOff");
        QTest::newRow("offered") << false;
        QTest::newRow("put off") << true;
    }
    void newWorkWithoutAFileDoesNotWriteOverIt()
    {
        QFETCH(bool, isPutOff);
        Bar bar(file());
        if (isPutOff)
            bar.press("recoveryLater");
        bar.desk.files.newDictionary();
        QCOMPARE(bar.left(), QString(dictionaryOf("UNSAVED")));
        QCOMPARE(bar.desk.sentences(), QStringList());
        bar.desk.edit();
        QVERIFY(!bar.bar.isVisible());
        QCOMPARE(contentOf(aside()), dictionaryOf("UNSAVED"));
        QCOMPARE(bar.left(), QString());
        QCOMPARE(bar.desk.sentences(), QStringList("The unsaved work was put aside as " + aside() + '.'));
        bar.desk.files.recoverUnnamed();
        QCOMPARE(bar.desk.tops(), QString("ENTITY_1"));
    }

    void aCopyThatCannotBeReadIsToldOf()
    {
        QVERIFY(put(AutoSave::copyOf(QString()), "{\"name\": "));
        Bar bar(file());
        bar.press("recoveryOpen");
        QCOMPARE(bar.desk.tops(), QString("F"));
        QVERIFY(!bar.bar.isVisible());
        const QStringList sentences = bar.desk.sentences();
        QCOMPARE(sentences.size(), 1);
        QVERIFY2(sentences.first().startsWith("!untitled.json.autosave, line 1, column "),
            qPrintable(sentences.first()));
        QCOMPARE(bar.left(), QString("{\"name\": "));
    }

private:
    QString file() const { return folder->filePath("f.json"); }

    QScopedPointer<QTemporaryDir> folder;
};

int main(int argc, char **argv)
{
    const OwnPlaces places;
    QApplication application(argc, argv);
    tst_RecoveryBar test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_RecoveryBar.moc"
