#include "documents/Findings.h"

#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "tests/support/Json.h"

#include <QtTest>

#include <memory>

using tessel::documents::Finding;
using tessel::documents::findingsIn;
using tessel::test::objectOf;

namespace {

std::unique_ptr<TDmEntity> treeOf(const QString &document)
{
    return tessel::documents::readDictionary(QJsonObject::fromVariantMap(objectOf(document.toUtf8())));
}

/// One line a finding: its code, where it is, and its names.
QStringList linesOf(TDmEntity &root)
{
    QStringList lines;
    const QVector<Finding> findings = findingsIn(root);
    for (const Finding &finding : findings)
        lines += finding.code + QLatin1Char(' ') + finding.path + QLatin1Char(' ') + finding.place;
    return lines;
}

/// The codes found in a dictionary with one entity called \a name, as JSON writes it.
QString codesOf(const QString &name)
{
    QStringList codes;
    const QVector<Finding> findings =
        findingsIn(*treeOf(QStringLiteral("{'entities':[{'name':'%1'}]}").arg(name)));
    for (const Finding &finding : findings)
        codes += finding.code;
    return codes.join(QLatin1Char(' '));
}

} // namespace

class tst_Findings : public QObject {
    Q_OBJECT

private slots:
    void everyFaultHasItsCodePlaceAndSentence_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *code, const QString &document, const char *path, const QString &place,
                             const QString &message) {
            QTest::newRow(code) << document << code << path << place << message;
        };
        row("entity-name-empty", "{'entities':[{'name':''}]}", "/entities/0", "",
            "the entity has no name; give it one");
        row("entity-name-invalid", "{'entities':[{'name':'1A'}]}", "/entities/0", "1A",
            "an entity's name is a letter or _ followed by letters, digits and _");
        row("entity-name-unprintable", R"({'entities':[{'name':'\tA'}]})", "/entities/0", "\tA",
            "an entity's name holds no control character, double quote or backslash");
        const QString longName(51, 'n');
        row("entity-name-too-long", "{'entities':[{'name':'" + longName + "'}]}", "/entities/0", longName,
            "an entity's name has at most 50 characters; this one has 51");
        row("entity-name-duplicate", "{'entities':[{'name':'A','entities':[{'name':'B'}]},{'name':'B'}]}",
            "/entities/1", "B", "the name is already that of A/B; rename one of them");
        row("entity-name-is-alias", "{'entities':[{'name':'A','alias':'B'},{'name':'B'}]}", "/entities/1",
            "B", "the name is also an alias of an entity; change one of them");
        row("entity-name-is-group",
            "{'entities':[{'name':'A','variables':[{'name':'V','group':'B'}]},{'name':'B'}]}", "/entities/1",
            "B", "the name is also a group of variables; change one of them");
    }

    void everyFaultHasItsCodePlaceAndSentence()
    {
        QFETCH(QString, document);
        const QVector<Finding> findings = findingsIn(*treeOf(document));
        QCOMPARE(findings.size(), 1);
        QTEST(findings.first().code, "code");
        QTEST(findings.first().path, "path");
        QTEST(findings.first().place, "place");
        QTEST(findings.first().message, "message");
    }

    void aNameAloneIsJudgedLikeOneThatIsTyped_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("codes");
        const QString empty = "entity-name-empty";
        const QString invalid = "entity-name-invalid";
        const QString unprintable = "entity-name-unprintable";
        const QString tooLong = "entity-name-too-long";
        QTest::newRow("letters, digits and underscores") << "Dwelling_2010"
                                                         << "";
        QTest::newRow("an underscore first") << "_A"
                                             << "";
        QTest::newRow("a letter of any script") << "\u00d1and\u00fa"
                                                << "";
        QTest::newRow("a letter beyond the basic plane") << "\U00010400"
                                                         << "";
        QTest::newRow("blanks around it") << "  A  "
                                          << "";
        QTest::newRow("blanks only") << "   " << empty;
        QTest::newRow("tabs and line feeds only are a missing name, no more") << R"(\t\n)" << empty;
        QTest::newRow("a blank inside") << "A B" << invalid;
        QTest::newRow("a hyphen") << "A-B" << invalid;
        QTest::newRow("a slash") << "A/B" << invalid;
        QTest::newRow("a digit first") << "1A" << invalid;
        QTest::newRow("markup") << "<b>A</b>" << invalid;
        QTest::newRow("a tab before it") << R"(\tA)" << unprintable;
        QTest::newRow("a line feed behind it") << R"(A\n)" << unprintable;
        QTest::newRow("a tab inside") << R"(A\tB)" << invalid + ' ' + unprintable;
        QTest::newRow("a null character") << R"(A\u0000)" << invalid + ' ' + unprintable;
        QTest::newRow("a control character of the second set") << R"(A\u0080)" << invalid + ' ' + unprintable;
        QTest::newRow("a double quote") << R"(A\u0022)" << invalid + ' ' + unprintable;
        QTest::newRow("a backslash") << R"(A\\)" << invalid + ' ' + unprintable;
        QTest::newRow("50 characters") << QString(50, 'A') << "";
        QTest::newRow("51 characters") << QString(51, 'A') << tooLong;
        QTest::newRow("50 characters and blanks around") << ' ' + QString(50, 'A') + ' ' << "";
        QTest::newRow("51 characters and blanks around") << ' ' + QString(51, 'A') + ' ' << tooLong;
        QTest::newRow("26 characters that take two units each")
            << QString("\U00010400").repeated(26) << tooLong;
        QTest::newRow("a hundred thousand characters") << QString(100'000, 'A') << tooLong;
        QTest::newRow("everything at once")
            << QString(51, '-') + R"(\u0001)" << invalid + ' ' + unprintable + ' ' + tooLong;
    }

    void aNameAloneIsJudgedLikeOneThatIsTyped()
    {
        QFETCH(QString, name);
        QTEST(codesOf(name), "codes");
    }

    void namesAreComparedInTheWholeDictionary_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("found");
        const auto row = [](const char *tag, const char *document, const char *found = "") {
            QTest::newRow(tag) << document << found;
        };
        row("the empty document", "{}");
        row("no entities", "{'entities':[]}");
        row("different names", "{'entities':[{'name':'A'},{'name':'B','entities':[{'name':'C'}]}]}");
        row("letter case makes names differ",
            "{'name':'a','entities':[{'name':'A','alias':'b'},{'name':'B','variables':[{'name':'V','group':'"
            "c'}]},"
            "{'name':'C'},{'name':'d','alias':'D','variables':[{'name':'V','group':'D'}]}]}");
        row("twins: the second one is at fault", "{'entities':[{'name':'A'},{'name':'A'}]}",
            "entity-name-duplicate /entities/1 A");
        row("each further one is at fault", "{'entities':[{'name':'A'},{'name':'A'},{'name':'A'}]}",
            "entity-name-duplicate /entities/1 A; entity-name-duplicate /entities/2 A");
        row("a child like its parent", "{'entities':[{'name':'A','entities':[{'name':'A'}]}]}",
            "entity-name-duplicate /entities/0/entities/0 A/A");
        row("blanks around do not make names differ", "{'entities':[{'name':'A'},{'name':' A'}]}",
            "entity-name-duplicate /entities/1  A");
        row("the dictionary's own name is taken", "{'name':'A','entities':[{'name':'A'}]}",
            "entity-name-duplicate /entities/0 A");
        row("nameless entities are no duplicates", "{'name':'','entities':[{'name':''},{'name':' '}]}",
            "entity-name-empty /entities/0 ; entity-name-empty /entities/1  ");
        row("invalid names are compared too", "{'entities':[{'name':'1'},{'name':'1'}]}",
            "entity-name-invalid /entities/0 1; entity-name-invalid /entities/1 1; "
            "entity-name-duplicate /entities/1 1");
        row("an entity's own alias", "{'entities':[{'name':'A','alias':'A'}]}",
            "entity-name-is-alias /entities/0 A");
        row("the alias of an entity behind it",
            "{'entities':[{'name':'A'},{'name':'B','entities':[{'name':'C','alias':'A'}]}]}",
            "entity-name-is-alias /entities/0 A");
        row("the dictionary's own alias", "{'alias':'A','entities':[{'name':'A'}]}",
            "entity-name-is-alias /entities/0 A");
        row("an alias with blanks around", "{'entities':[{'name':'A ','alias':' A'}]}",
            "entity-name-is-alias /entities/0 A ");
        row("an alias used twice is no fault of names",
            "{'entities':[{'name':'A','alias':'X'},{'name':'B','alias':'X'}]}");
        row("an empty alias is none", "{'entities':[{'name':'A','alias':''},{'name':'','alias':''}]}",
            "entity-name-empty /entities/1 ");
        row("a group of its own variables",
            "{'entities':[{'name':'A','variables':[{'name':'V','group':'A'}]}]}",
            "entity-name-is-group /entities/0 A");
        row("a group in an entity behind it",
            "{'entities':[{'name':'A'},{'name':'B','entities':[{'name':'C','variables':[{'name':'V','group':'"
            "A'}]}]}]}",
            "entity-name-is-group /entities/0 A");
        row("a group of the dictionary's own variables",
            "{'variables':[{'name':'V','group':'A'}],'entities':[{'name':'A'}]}",
            "entity-name-is-group /entities/0 A");
        row("a group with blanks around",
            "{'entities':[{'name':' A','variables':[{'name':'V','group':'A '}]}]}",
            "entity-name-is-group /entities/0  A");
        row("a group with a hyphen is compared as well",
            "{'entities':[{'name':'A-B','variables':[{'name':'V','group':'A-B'}]}]}",
            "entity-name-invalid /entities/0 A-B; entity-name-is-group /entities/0 A-B");
        row("names and aliases of variables are no fault of the entity's name",
            "{'entities':[{'name':'A','variables':[{'name':'A','alias':'A','label':'A'}]}]}",
            "variable-name-is-entity /entities/0/variables/0 A/A");
        row("labels do not matter", "{'label':'A','entities':[{'name':'A','label':'A'}]}");
        row("the dictionary's own name is not judged",
            "{'name':'1','alias':'1','variables':[{'name':'V','group':'1'}]}");
    }

    void namesAreComparedInTheWholeDictionary()
    {
        QFETCH(QString, document);
        QTEST(linesOf(*treeOf(document)).join("; "), "found");
    }

    void allFaultsOfOneEntityAreToldInOneOrder()
    {
        const QString name = QString(51, '-') + R"(\u0001)";
        const std::unique_ptr<TDmEntity> root = treeOf(QStringLiteral(
            "{'name':'%1','entities':[{'name':'%1','alias':'%1','variables':[{'name':'V','group':'%1'}]}]}")
                                                           .arg(name));
        QStringList codes;
        const QVector<Finding> findings = findingsIn(*root);
        for (const Finding &finding : findings)
            codes += finding.code;
        QCOMPARE(codes,
            (QStringList{"entity-name-invalid", "entity-name-unprintable", "entity-name-too-long",
                "entity-name-duplicate", "entity-name-is-alias", "entity-name-is-group"}));
        QCOMPARE(findings.at(2).message,
            QStringLiteral("an entity's name has at most 50 characters; this one has 52"));
        QCOMPARE(findings.at(3).message,
            QStringLiteral("the name is already that of the dictionary itself; rename one of them"));
    }

    void findingsStandInDocumentOrder()
    {
        const std::unique_ptr<TDmEntity> root = treeOf(
            "{'entities':[{'name':'2','entities':[{'name':'A','entities':[{'name':'1'}]},{'name':'3'}]},"
            "{'name':'A'},{'name':'0','entities':[{'name':''}]}]}");
        QCOMPARE(linesOf(*root),
            (QStringList{"entity-name-invalid /entities/0 2",
                "entity-name-invalid /entities/0/entities/0/entities/0 2/A/1",
                "entity-name-invalid /entities/0/entities/1 2/3", "entity-name-duplicate /entities/1 A",
                "entity-name-invalid /entities/2 0", "entity-name-empty /entities/2/entities/0 0/"}));
    }

    void namesWithSlashesLeaveThePathAlone()
    {
        const std::unique_ptr<TDmEntity> root = treeOf("{'entities':[{'name':'a/b','entities':[{'name':'/"
                                                       "~','entities':[{'name':'C'}]}]},{'name':'C'}]}");
        const QVector<Finding> findings = findingsIn(*root);
        QCOMPARE(linesOf(*root),
            (QStringList{"entity-name-invalid /entities/0 a/b",
                "entity-name-invalid /entities/0/entities/0 a/b//~", "entity-name-duplicate /entities/1 C"}));
        QCOMPARE(findings.last().message,
            QStringLiteral("the name is already that of a/b//~/C; rename one of them"));
    }

    void theFirstOfItsNameIsTold_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("first");
        QTest::newRow("not the one just before")
            << "{'entities':[{'name':'X','entities':[{'name':'A'}]},{'name':'A'},{'name':'A'}]}"
            << "X/A";
        QTest::newRow("the dictionary stands before all")
            << "{'name':' A ','entities':[{'name':'A'},{'name':'A'}]}"
            << "the dictionary itself";
        QTest::newRow("as it is written") << "{'entities':[{'name':' A '},{'name':'A'}]}"
                                          << " A ";
        QTest::newRow("with a placeholder in it")
            << "{'entities':[{'name':'%1','entities':[{'name':'A'}]},{'name':'A'}]}"
            << "%1/A";
    }

    void theFirstOfItsNameIsTold()
    {
        QFETCH(QString, document);
        QFETCH(QString, first);
        const QVector<Finding> findings = findingsIn(*treeOf(document));
        QVERIFY(!findings.isEmpty());
        QCOMPARE(findings.last().code, QStringLiteral("entity-name-duplicate"));
        QCOMPARE(findings.last().message,
            QStringLiteral("the name is already that of %1; rename one of them").arg(first));
    }

    void theTreeIsLeftAsItIs()
    {
        const std::unique_ptr<TDmEntity> root =
            treeOf("{'name':' A ','entities':[{'name':' A ','alias':'A'}]}");
        const QByteArray before = tessel::documents::dictionaryText(*root);
        QCOMPARE(findingsIn(*root).size(), 2);
        QCOMPARE(findingsIn(*root).size(), 2);
        QCOMPARE(tessel::documents::dictionaryText(*root), before);
    }

    void theDeepestDocumentIsJudged()
    {
        QString deep = "{'name':'1'}";
        for (int level = 1; level < 500; ++level)
            deep = "{'name':'E" + QString::number(level) + "','entities':[" + deep + "]}";
        const QVector<Finding> findings = findingsIn(*treeOf(deep));
        QCOMPARE(findings.size(), 1);
        QCOMPARE(findings.first().path, QString("/entities/0").repeated(499));
        QVERIFY(findings.first().place.startsWith("E498/E497/"));
        QVERIFY(findings.first().place.endsWith("/E2/E1/1"));
    }

    void nothingIsFoundInTheSample()
    {
        const auto document = tessel::documents::readObject(QStringLiteral(TESSEL_SAMPLES "/census.json"));
        QVERIFY2(document.result, qPrintable(document.problem.message));
        const std::unique_ptr<TDmEntity> root = tessel::documents::readDictionary(*document.result);
        QVERIFY(!root->getChildren()->isEmpty());
        QCOMPARE(linesOf(*root), QStringList());
    }
};

QTEST_APPLESS_MAIN(tst_Findings)
#include "tst_Findings.moc"
