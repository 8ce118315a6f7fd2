#include "documents/BlankSieve.h"
#include "documents/DocumentForm.h"
#include "documents/Losses.h"
#include "documents/OpenedDocument.h"
#include "documents/QuickReader.h"
#include "documents/QuickWriter.h"
#include "tests/business/DictionaryGenerators.h"
#include "tests/business/models/LeftToNobody.h"
#include "tests/documents/DocumentTexts.h"
#include "tests/documents/TreeContent.h"

#include <QDir>
#include <QtTest>

#include <rapidcheck.h>

using namespace tessel::documents;
using namespace tessel::test;

namespace {

void require(bool fact, const QByteArray &document)
{
    if (!fact)
        RC_FAIL(document.toStdString());
}

/// Shows where the two part.
void requireSame(const QByteArray &actual, const QByteArray &expected, const QByteArray &document)
{
    if (actual == expected)
        return;
    int at = 0;
    while (at < actual.size() && at < expected.size() && actual.at(at) == expected.at(at))
        ++at;
    const auto around = [at](const QByteArray &text) { return text.mid(std::max(0, at - 60), 120); };
    RC_FAIL(
        ("\n  actual   " + around(actual) + "\n  expected " + around(expected) + "\n  document " + document)
            .toStdString());
}

/// Qt's parser loses a few bytes of some texts that it refuses: not ours to find.
Outcome<QJsonObject> parsedByQt(const QByteArray &document)
{
    const LeftToNobody allowance;
    return parseObject(document);
}

Outcome<OpenedDocument> openedByPrograms(const QString &file)
{
    const LeftToNobody allowance;
    return openFile(file);
}

/// Without blanks \a document is taken as it is with them.
void requireSameWithoutBlanks(const QByteArray &document, const TDmEntity *quick)
{
    QByteArray kept;
    BlankSieve().sift(document.constData(), document.size(), kept);
    const std::unique_ptr<TDmEntity> sifted = readQuickly(kept);
    require(bool(sifted) == bool(quick), document);
    if (quick)
        requireSame(contentOf(*sifted).toUtf8(), contentOf(*quick).toUtf8(), document);
}

/// Both ways make the same of \a document, whether or not the quick one takes it. True when it does.
bool isTheSameByBothWays(const QByteArray &document)
{
    const Outcome<QJsonObject> parsed = parsedByQt(document);
    const std::unique_ptr<TDmEntity> quick = readQuickly(document);
    requireSameWithoutBlanks(document, quick.get());
    if (!parsed.result || kindOf(*parsed.result) == DocumentKind::Run) {
        require(!quick, document);
        return false;
    }
    const std::unique_ptr<TDmEntity> known = readDictionary(*parsed.result);
    if (quick)
        requireSame(contentOf(*quick).toUtf8(), contentOf(*known).toUtf8(), document);
    requireSame(dictionaryText(*known), dictionaryTextOfLibrary(*known), document);
    if (quick && isWrittenAs(*quick, document)) {
        require(normalForm(*parsed.result) == document, document);
        require(lossesOf(document, *parsed.result, document).isEmpty(), document);
    }
    return quick != nullptr;
}

/// The samples, and the dictionaries in a folder that is named by the environment: such are not part of the
/// project.
QStringList wellFormedFiles()
{
    QStringList files{QStringLiteral(TESSEL_SAMPLES "/census.json")};
    const QDir folder(qEnvironmentVariable("TESSEL_BENCH_DATA", QStringLiteral("-")));
    const QStringList names = folder.exists() ? folder.entryList({QStringLiteral("*.json")}) : QStringList();
    for (const QString &name : names)
        files.append(folder.filePath(name));
    return files;
}

} // namespace

/// What is read and written without Qt's JSON objects is what is read and written through them.
class tst_QuickDocuments : public QObject {
    Q_OBJECT

private slots:
    void filesAreTakenAndTheSame_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString &file : wellFormedFiles())
            QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
    }

    void filesAreTakenAndTheSame()
    {
        QFETCH(QString, file);
        const QByteArray document = *readFile(file).result;
        const std::unique_ptr<TDmEntity> quick = readQuickly(document);
        QVERIFY(quick);
        const std::unique_ptr<TDmEntity> known = readDictionary(*parseObject(document).result);
        QCOMPARE(contentOf(*quick), contentOf(*known));
        const std::optional<QByteArray> text = textQuickly(*quick);
        QVERIFY(text);
        QCOMPARE(*text, dictionaryTextOfLibrary(*known));
        QVERIFY(isWrittenAs(*quick, *text));
        QVERIFY(isKeptAsItIs(*text));
        QVERIFY(lossesOf(*text, *parseObject(*text).result, *text).isEmpty());
    }

    /// The samples and what the fuzzers begin with.
    void anyFileIsTheSameByBothWays_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *folder :
            {TESSEL_SAMPLES, TESSEL_SEEDS "/document", TESSEL_SEEDS "/quick", TESSEL_SEEDS "/run"}) {
            const QDir files(QString::fromLatin1(folder));
            const QStringList names = files.entryList(QDir::Files);
            QVERIFY2(!names.isEmpty(), folder);
            for (const QString &name : names)
                QTest::newRow(qPrintable(files.dirName() + '/' + name)) << files.filePath(name);
        }
    }

    void anyFileIsTheSameByBothWays()
    {
        QFETCH(QString, file);
        const QByteArray document = *readFile(file).result;
        const Outcome<OpenedDocument> opened = openedByPrograms(file);
        const bool isQuick = isTheSameByBothWays(document);
        QCOMPARE(opened.result && opened.result->isPlain, isQuick);
        if (isQuick)
            QCOMPARE(contentOf(*opened.result->dictionary), contentOf(*readQuickly(document)));
    }

    void plainDocumentsAreTakenAndTheSame()
    {
        QVERIFY(rc::check([] {
            const QByteArray document = anyDocumentText(Habit::Plain, 3);
            require(isTheSameByBothWays(document), "refused: " + document);
        }));
    }

    void oddDocumentsAreTheSame()
    {
        int taken = 0;
        int all = 0;
        QVERIFY(rc::check([&] {
            taken += isTheSameByBothWays(anyDocumentText(Habit::Odd, 3)) ? 1 : 0;
            ++all;
        }));
        // Neither all nor none: both ways are looked at.
        QVERIFY2(taken > all / 10 && taken < all * 9 / 10, qPrintable(QString::number(taken)));
    }

    void documentsOfAnyValuesAreTheSame()
    {
        QVERIFY(rc::check([] { isTheSameByBothWays(anyDocument(draw(4))); }));
    }

    /// As the ends of files are when a disk is full.
    void cutDocumentsAreTheSame()
    {
        QVERIFY(rc::check([] {
            const QByteArray document = anyDocumentText(Habit::Plain, 2);
            isTheSameByBothWays(document.left(draw(document.size() + 1)));
        }));
    }

    void changedBytesAreTheSame()
    {
        QVERIFY(rc::check([] {
            QByteArray document = anyDocumentText(Habit::Plain, 2);
            for (int i = 1 + draw(3); i > 0; --i)
                document[draw(document.size())] = *rc::gen::arbitrary<char>();
            isTheSameByBothWays(document);
        }));
    }

    void anyTreeIsWrittenTheSame()
    {
        int written = 0;
        QVERIFY(rc::check([&written] {
            const std::unique_ptr<TDmEntity> root = anyTree(3);
            const QByteArray expected = dictionaryTextOfLibrary(*root);
            if (const std::optional<QByteArray> text = textQuickly(*root)) {
                ++written;
                requireSame(*text, expected, expected);
                require(isWrittenAs(*root, expected), expected);
            }
            requireSame(dictionaryText(*root), expected, expected);
        }));
        QVERIFY(written > 10);
    }
};

QTEST_APPLESS_MAIN(tst_QuickDocuments)
#include "tst_QuickDocuments.moc"
