#include "editor/DictionaryDocument.h"

#include "editor/Structure.h"
#include "tests/editor/DocumentLog.h"
#include "tests/editor/Files.h"
#include "tests/editor/SmallCensus.h"

#include <QtTest>

using namespace tessel;
using namespace tessel::editor;
using namespace tessel::test;

namespace {

QString sample(const char *name) { return QStringLiteral(TESSEL_SAMPLES "/") + QLatin1String(name); }

/// "LINE:COLUMN message"; "done" without a problem.
QString told(const std::optional<documents::FileProblem> &problem)
{
    return problem ? QStringLiteral("%1:%2 %3").arg(problem->line).arg(problem->column).arg(problem->message)
                   : QStringLiteral("done");
}

/// "PERSON:AGE INTEGER 1": the variables of \a entity and below, with their types and levels.
QStringList typesOf(const TDmEntity &entity)
{
    QStringList types;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
        types << QStringLiteral("%1 %2").arg(variable->getVarType()).arg(variable->getLevel());
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        types += typesOf(*child);
    return types;
}

/// "HOUSE 2 PERSON 3": the entities below \a entity with their levels.
QString levelsOf(const TDmEntity &entity)
{
    QString levels = QStringLiteral("%1 %2 ").arg(entity.getName()).arg(entity.getLevel());
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        levels += levelsOf(*child);
    return levels;
}

} // namespace

class tst_DictionaryDocument : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        folder.reset(new QTemporaryDir);
        QVERIFY(folder->isValid());
    }

    void aNewDocumentIsEmptyAndHasNoFile()
    {
        DictionaryDocument document;
        QVERIFY(document.root().getChildren()->isEmpty());
        QVERIFY(document.root().getVariables()->isEmpty());
        QCOMPARE(document.root().getLevel(), 1);
        QCOMPARE(document.fileName(), QString());
        QVERIFY(!document.isModified());
        QVERIFY(!document.hasFileChanged());
        QVERIFY(document.losses().isEmpty());
        QCOMPARE(document.undoStack()->count(), 0);
    }

    void anOpenedFileTakesThePlaceOfWhatWasThere()
    {
        QVERIFY(put(at("old.json"), dictionaryOf("OLD")));
        QVERIFY(put(at("new.json"), dictionaryOf("NEW")));
        DictionaryDocument document;
        DocumentLog log(document);
        QCOMPARE(told(document.open(at("old.json"))), QStringLiteral("done"));
        QCOMPARE(log.take(), (QStringList{"about to reset", "file old.json", "reset OLD", "clean"}));
        QCOMPARE(document.fileName(), at("old.json"));

        Structure(document).addEntity(document.root());
        QVERIFY(document.isModified());
        log.take();
        QCOMPARE(told(document.open(at("new.json"))), QStringLiteral("done"));
        QCOMPARE(log.take(),
            (QStringList{"about to reset OLD ENTITY_1", "clean", "file new.json", "reset NEW", "clean"}));
        QCOMPARE(document.fileName(), at("new.json"));
        QVERIFY(!document.isModified());
        QCOMPARE(document.undoStack()->count(), 0);
    }

    void levelsAndTypesAreMadeAsTheTablesWantThem()
    {
        QVERIFY(put(at("f.json"), R"({"variables": [{"name": "R", "type": "integer"}], "entities": [
            {"name": "A", "variables": [{"type": "string"}, {"type": "Real"}, {"type": "BOOL"},
                {"type": "iNTEGER"}, {"type": " integer "}, {"type": "date"}, {"type": ""}, {}],
             "entities": [{"name": "B", "variables": [{"type": "bool"}], "entities": {"name": "C"}}]},
            {"name": "D"}]})"));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        QCOMPARE(levelsOf(document.root()), QStringLiteral(" 1 A 2 B 3 C 4 D 2 "));
        QCOMPARE(typesOf(document.root()),
            (QStringList{"INTEGER 1", "STRING 1", "REAL 1", "BOOL 1", "INTEGER 1", " integer  1", "date 1",
                " 1", " 1", "BOOL 1"}));
    }

    void aSampleIsOpenedWithAllThatItHolds()
    {
        DictionaryDocument document;
        QCOMPARE(told(document.open(sample("census.json"))), QStringLiteral("done"));
        QCOMPARE(typesOf(document.root()).size(), 145);
        for (const QString &type : typesOf(document.root()))
            QVERIFY2(type.toUpper() == type && type.endsWith(QLatin1String(" 1")), qPrintable(type));
        QVERIFY(document.root().getDocumentationEntity().startsWith(QLatin1String("XII Censo")));
        QVERIFY(document.losses().isEmpty());
    }

    void aCopyHasNoFile()
    {
        QVERIFY(put(at("f.json"), dictionaryOf("F")));
        DictionaryDocument document;
        DocumentLog log(document);
        QCOMPARE(told(document.openCopy(at("f.json"))), QStringLiteral("done"));
        QCOMPARE(log.take(), (QStringList{"about to reset", "file", "reset F", "clean"}));
        QCOMPARE(document.fileName(), QString());
        QVERIFY(!document.isModified());
        QVERIFY(!document.hasFileChanged());
    }

    void whatIsRecoveredIsUnsavedWork()
    {
        QVERIFY(put(at("f.json"), dictionaryOf("SAVED")));
        QVERIFY(put(at("copy"), dictionaryOf("UNSAVED")));
        DictionaryDocument document;
        DocumentLog log(document);
        QCOMPARE(told(document.recover(at("copy"), at("f.json"))), QStringLiteral("done"));
        QCOMPARE(
            log.take(), (QStringList{"about to reset", "file f.json", "reset UNSAVED", "clean", "modified"}));
        QCOMPARE(document.fileName(), at("f.json"));
        QVERIFY(document.isModified());
        QVERIFY(!document.hasFileChanged());
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("SAVED"));

        // Neither an edit that is undone nor a step to the stack's clean state makes it saved.
        Structure(document).addEntity(document.root());
        document.undoStack()->undo();
        QVERIFY(document.undoStack()->isClean());
        QVERIFY(document.isModified());
        QCOMPARE(told(document.save(at("f.json"))), QStringLiteral("done"));
        QVERIFY(!document.isModified());
        QCOMPARE(contentOf(at("f.json")), dictionaryOf("UNSAVED"));
    }

    void whatIsRecoveredIsForgottenWithTheNextDictionary()
    {
        QVERIFY(put(at("copy"), dictionaryOf("UNSAVED")));
        DictionaryDocument document;
        QCOMPARE(told(document.recover(at("copy"), QString())), QStringLiteral("done"));
        QCOMPARE(document.fileName(), QString());
        QVERIFY(document.isModified());
        document.clear();
        QVERIFY(!document.isModified());
    }

    void clearingLeavesAnEmptyDictionary()
    {
        QVERIFY(put(at("f.json"), lossyDictionaryOf("F")));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        Structure(document).addEntity(document.root());
        DocumentLog log(document);
        document.clear();
        QCOMPARE(log.take(), (QStringList{"about to reset F ENTITY_1", "clean", "file", "reset", "clean"}));
        QVERIFY(document.root().getChildren()->isEmpty());
        QCOMPARE(document.root().getLevel(), 1);
        QCOMPARE(document.fileName(), QString());
        QCOMPARE(document.undoStack()->count(), 0);
        QVERIFY(!document.isModified());
        QVERIFY(document.losses().isEmpty());
        QCOMPARE(contentOf(at("f.json")), lossyDictionaryOf("F"));
    }

    void whatIsWrittenWhileOpeningIsAChange()
    {
        const QString name = folder->filePath(QStringLiteral("f.json"));
        QVERIFY(QFile::copy(sample("census.json"), name));
        DictionaryDocument document;
        const auto connection = connect(&document, &DictionaryDocument::aboutToReset, this, [&name] {
            QFile file(name);
            QVERIFY(file.open(QIODevice::Append));
            file.write("\n");
        });
        QCOMPARE(told(document.open(name)), QString("done"));
        QVERIFY(document.hasFileChanged());
        disconnect(connection);
        QCOMPARE(told(document.open(name)), QString("done"));
        QVERIFY(!document.hasFileChanged());
    }

    void lossesAreThoseOfTheOpenedFile()
    {
        QVERIFY(put(at("lossy.json"), lossyDictionaryOf("F")));
        QVERIFY(put(at("plain.json"), dictionaryOf("G")));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("lossy.json"))), QStringLiteral("done"));
        const QStringList both{"/colour", "/entities/0/shape"};
        QCOMPARE(pathsOf(document), both);
        // Asked again, the same; and an edit does not change what the file held.
        QCOMPARE(pathsOf(document), both);
        Structure(document).addEntity(document.root());
        QCOMPARE(pathsOf(document), both);

        QCOMPARE(told(document.open(at("plain.json"))), QStringLiteral("done"));
        QCOMPARE(pathsOf(document), QStringList());
        QCOMPARE(told(document.openCopy(at("lossy.json"))), QStringLiteral("done"));
        QCOMPARE(pathsOf(document), both);
        document.clear();
        QCOMPARE(pathsOf(document), QStringList());
    }

    void lossesNotAskedForAreForgottenToo()
    {
        QVERIFY(put(at("lossy.json"), lossyDictionaryOf("F")));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("lossy.json"))), QStringLiteral("done"));
        document.clear();
        QCOMPARE(pathsOf(document), QStringList());
        QCOMPARE(told(document.open(at("lossy.json"))), QStringLiteral("done"));
        QCOMPARE(told(document.save(at("lossy.json"))), QStringLiteral("done"));
        QCOMPARE(pathsOf(document), QStringList());
        QCOMPARE(contentOf(at("lossy.json")), dictionaryOf("F"));
    }

    void whoeverHearsOfTheNewTreeCanAskForItsLosses()
    {
        QVERIFY(put(at("lossy.json"), lossyDictionaryOf("F")));
        QVERIFY(put(at("plain.json"), dictionaryOf("G")));
        DictionaryDocument document;
        QStringList paths;
        connect(&document, &DictionaryDocument::reset, this,
            [&] { paths << pathsOf(document).join(QLatin1Char(' ')); });
        QCOMPARE(told(document.open(at("lossy.json"))), QStringLiteral("done"));
        QCOMPARE(told(document.open(at("plain.json"))), QStringLiteral("done"));
        QCOMPARE(paths, (QStringList{"/colour /entities/0/shape", ""}));
    }

    void theMarkFollowsTheUndoStack()
    {
        QVERIFY(put(at("f.json"), dictionaryOf("F")));
        DictionaryDocument document;
        QCOMPARE(told(document.open(at("f.json"))), QStringLiteral("done"));
        QUndoStack &stack = *document.undoStack();
        Structure structure(document);
        structure.addEntity(document.root());
        structure.addEntity(document.root());
        QCOMPARE(told(document.save(at("f.json"))), QStringLiteral("done"));
        DocumentLog log(document);
        const QString changed = QStringLiteral("changed entities ; tree");
        stack.undo();
        QVERIFY(document.isModified());
        stack.redo();
        QVERIFY(!document.isModified());
        stack.undo();
        stack.undo();
        QVERIFY(document.isModified());
        QCOMPARE(
            log.take(), (QStringList{changed, "modified", changed, "clean", changed, "modified", changed}));
        // The saved state is gone for good.
        structure.addEntity(document.root());
        stack.undo();
        QVERIFY(document.isModified());
    }

private:
    QString at(const char *name) const { return folder->filePath(QLatin1String(name)); }

    static QStringList pathsOf(DictionaryDocument &document)
    {
        QStringList paths;
        for (const documents::Loss &loss : document.losses())
            paths.append(loss.path);
        return paths;
    }

    QScopedPointer<QTemporaryDir> folder;
};

QTEST_APPLESS_MAIN(tst_DictionaryDocument)
#include "tst_DictionaryDocument.moc"
