#include "documents/DocumentForm.h"
#include "documents/Findings.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/support/Json.h"

#include <QtTest>

#include <memory>

using tessel::documents::Finding;
using tessel::documents::findingsIn;
using tessel::test::objectOf;

namespace {

QVector<Finding> findingsOf(const QString &document)
{
    return findingsIn(
        *tessel::documents::readDictionary(QJsonObject::fromVariantMap(objectOf(document.toUtf8()))));
}

/// Code and path of each finding.
QString linesOf(const QString &document)
{
    QStringList lines;
    const QVector<Finding> findings = findingsOf(document);
    for (const Finding &finding : findings)
        lines += finding.code + QLatin1Char(' ') + finding.path;
    return lines.join("; ");
}

/// A dictionary with one entity E that holds \a variables and says \a more.
QString entityWith(const QString &variables, const QString &more = QString())
{
    return QStringLiteral("{'entities':[{'name':'E',%2'variables':[%1]}]}").arg(variables, more);
}

} // namespace

class tst_VariableFindings : public QObject {
    Q_OBJECT

private slots:
    void everyFaultHasItsCodePlaceAndSentence_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *code, const QString &document, const char *path, const char *place,
                             const char *message) {
            QTest::newRow(code) << document << code << path << QString::fromUtf8(place) << message;
        };
        row("entity-code-unknown", entityWith("{'name':'A'}", "'codeVar':'B',"), "/entities/0", "E",
            "B, which is to hold the entity's code, is none of its variables; choose one or add it");
        row("entity-label-unknown", entityWith("{'name':'A'}", "'labelVar':'B',"), "/entities/0", "E",
            "B, which is to hold the entity's label, is none of its variables; choose one or add it");
        row("entity-weight-unknown", entityWith("{'name':'A'}", "'weightVar':'B',"), "/entities/0", "E",
            "B, which is to hold the entity's weight, is none of its variables; choose one or add it");
        row("variable-name-empty", entityWith("{'name':'A'},{'name':' '}"), "/entities/0/variables/1", "E/ ",
            "the variable has no name; give it one");
        row("variable-name-unprintable", entityWith(R"({'name':'A\\'})"), "/entities/0/variables/0", "E/A\\",
            "a variable's name holds no control character, double quote or backslash");
        row("variable-name-duplicate", entityWith("{'name':'A'},{'name':'B'},{'name':'A'}"),
            "/entities/0/variables/2", "E/A",
            "the name is already that of a variable before it; rename one of them");
        row("variable-name-is-entity", entityWith("{'name':'E'}"), "/entities/0/variables/0", "E/E",
            "the name is also that of an entity; rename one of them");
        row("variable-label-unprintable", entityWith(R"({'name':'A','label':'a\tb'})"),
            "/entities/0/variables/0", "E/A",
            "a variable's label holds no control character, double quote or backslash");
        row("variable-type-unknown", entityWith("{'name':'A','type':'date'}"), "/entities/0/variables/0",
            "E/A", "date is no type; a variable is a string, integer, real or bool");
        row("label-code-not-number",
            entityWith("{'name':'A','type':'integer','valueLabels':[{'value':'1'},{'value':'x'}]}"),
            "/entities/0/variables/0/valueLabels/1", "E/A",
            "the code x is no such number as the variable's type wants and would be saved as 0; change the "
            "code or the type");
        row("range-reversed",
            entityWith("{'name':'A','metadata':{'range':[{'min':1,'max':1},{'min':5,'max':-2}]}}"),
            "/entities/0/variables/0/metadata/range/1", "E/A",
            "the minimum 5 is above the maximum -2; exchange them");
    }

    void everyFaultHasItsCodePlaceAndSentence()
    {
        QFETCH(QString, document);
        const QVector<Finding> findings = findingsOf(document);
        QCOMPARE(findings.size(), 1);
        QTEST(findings.first().code, "code");
        QTEST(findings.first().path, "path");
        QTEST(findings.first().place, "place");
        QTEST(findings.first().message, "message");
    }

    void eachRuleHasItsLimits_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("found");
        const auto row = [](const char *tag, const QString &document, const char *found = "") {
            QTest::newRow(tag) << document << found;
        };
        row("no variables and no references", entityWith(""));
        row("references that variables bear, blanks around aside",
            entityWith("{'name':' A'},{'name':'B '},{'name':'C'}",
                "'codeVar':'A ','labelVar':'B','weightVar':'C',"));
        row("letter case counts in references", entityWith("{'name':'a'}", "'codeVar':'A',"),
            "entity-code-unknown /entities/0");
        row("all three references, in this order",
            entityWith("", "'weightVar':'W','labelVar':'L','codeVar':'C',"),
            "entity-code-unknown /entities/0; entity-label-unknown /entities/0; "
            "entity-weight-unknown /entities/0");
        row("a variable of another entity does not bear the name",
            "{'entities':[{'name':'E','codeVar':'A'},{'name':'F','variables':[{'name':'A'}]}]}",
            "entity-code-unknown /entities/0");
        row("names repeated in another entity",
            "{'entities':[{'name':'E','variables':[{'name':'A'}]},{'name':'F','variables':[{'name':'A'}]}]}");
        row("names with blanks around are the same", entityWith("{'name':'A'},{'name':' A '}"),
            "variable-name-duplicate /entities/0/variables/1");
        row("letter case makes names differ", entityWith("{'name':'A'},{'name':'a'},{'name':'e'}"));
        row("each further one is at fault", entityWith("{'name':'A'},{'name':'A'},{'name':'A'}"),
            "variable-name-duplicate /entities/0/variables/1; variable-name-duplicate "
            "/entities/0/variables/2");
        row("missing names repeat nothing", entityWith("{'label':'x'},{'name':''},{'name':' '}"),
            "variable-name-empty /entities/0/variables/0; variable-name-empty /entities/0/variables/1; "
            "variable-name-empty /entities/0/variables/2");
        row("the name of an entity further down",
            "{'entities':[{'name':'E','variables':[{'name':' F'}],'entities':[{'name':'F '}]}]}",
            "variable-name-is-entity /entities/0/variables/0");
        row("the dictionary's own name", "{'name':'D','entities':[{'name':'E','variables':[{'name':'D'}]}]}",
            "variable-name-is-entity /entities/0/variables/0");
        row("an alias like a name is allowed", entityWith("{'name':'A'},{'name':'B','alias':'A'}"));
        row("any printable character", entityWith(R"({'name':'a-b/c <d>','label':'Año: ½ «x»'})"));
        row("type names are read without their case and blanks",
            entityWith("{'name':'V1','type':'String'},{'name':'V2','type':' INTEGER "
                       "'},{'name':'V3','type':'real'},{'name':'V4','type':'Bool'},{'name':'V5','type':''}"));
        row("a type of blanks", entityWith("{'name':'V6','type':' '}"),
            "variable-type-unknown /entities/0/variables/0");
        row("integer codes",
            entityWith(
                "{'name':'V7','type':'integer','valueLabels':[{'value':'-1'},{'value':' 7 '},{'value':''},"
                "{'value':'1.5'},{'value':'99999999999'},{'value':'0x1'}]}"),
            "label-code-not-number /entities/0/variables/0/valueLabels/3; "
            "label-code-not-number /entities/0/variables/0/valueLabels/4; "
            "label-code-not-number /entities/0/variables/0/valueLabels/5");
        row("real codes",
            entityWith(
                "{'name':'V8','type':'real','valueLabels':[{'value':'1.5'},{'value':'1e3'},{'value':'a'}]}"),
            "label-code-not-number /entities/0/variables/0/valueLabels/2");
        row("codes of texts and truth values",
            entityWith("{'name':'V9','type':'string','valueLabels':[{'value':'a'}]},"
                       "{'name':'V10','type':'bool','valueLabels':[{'value':'a'}]}"));
        row("ranges of one value and of none",
            entityWith("{'name':'V11','metadata':{'range':[{'min':3,'max':3},{}]}}"));
        row("faults of one variable, in one order",
            entityWith(R"({'name':'E\\'},{'name':'E\\','label':'\\','type':'?','metadata':)"
                       "{'range':[{'min':1,'max':0}]}}"),
            "variable-name-unprintable /entities/0/variables/0; "
            "variable-name-unprintable /entities/0/variables/1; "
            "variable-name-duplicate /entities/0/variables/1; "
            "variable-label-unprintable /entities/0/variables/1; "
            "variable-type-unknown /entities/0/variables/1; "
            "range-reversed /entities/0/variables/1/metadata/range/0");
        row("the dictionary's own variables are not judged", "{'codeVar':'C','variables':[{'name':'A\\t'}]}");
        row("an entity, its variables, the entities below it",
            "{'entities':[{'name':'1','codeVar':'X','variables':[{'name':'1'}],'entities':[{'name':'2'}]}]}",
            "entity-name-invalid /entities/0; entity-code-unknown /entities/0; "
            "variable-name-is-entity /entities/0/variables/0; entity-name-invalid /entities/0/entities/0");
    }

    void eachRuleHasItsLimits()
    {
        QFETCH(QString, document);
        QTEST(linesOf(document), "found");
    }

    void placeholdersInTextsStayAsTheyAre()
    {
        const QVector<Finding> findings =
            findingsOf(entityWith("{'name':'%1','type':'%2'}", "'codeVar':'%1%2',"));
        QCOMPARE(findings.size(), 2);
        QCOMPARE(findings.at(0).message,
            QStringLiteral("%1%2, which is to hold the entity's code, is none of its variables; choose one "
                           "or add it"));
        QCOMPARE(findings.at(1).place, QStringLiteral("E/%1"));
        QCOMPARE(findings.at(1).message,
            QStringLiteral("%2 is no type; a variable is a string, integer, real or bool"));
    }
};

QTEST_APPLESS_MAIN(tst_VariableFindings)
#include "tst_VariableFindings.moc"
