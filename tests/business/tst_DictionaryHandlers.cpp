#include "business/ProcessDictionaryBusiness.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "model/VarWipChoice.h"
#include "tests/business/DictionaryTree.h"
#include "tests/business/FailingNew.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using namespace tessel::test;

namespace {

/// What one operation left behind when memory ran out at each possible moment, repetitions left out; the last
/// entry is the outcome with memory enough.
struct Outcomes {
    QStringList states;
    QStringList log; ///< What was logged, repetitions left out.
    int shortages = 0;
    int messages = 0;
};

/// Runs an operation, ends the shortage, and says what was built and whether the shortage was met.
using Attempt = std::function<QString()>;

Outcomes outcomesOf(Shortage shortage, const Attempt &attempt)
{
    Outcomes outcomes;
    for (int number = 1; number < 10000; ++number) {
        const LogCatcher log;
        QString state;
        bool met = false;
        {
            const FailingNew memory(number, shortage);
            state = attempt();
            met = FailingNew::end();
        }
        outcomes.messages += log.messages().size();
        outcomes.log += log.messages();
        outcomes.shortages += met ? 1 : 0;
        if (outcomes.states.isEmpty() || outcomes.states.last() != state)
            outcomes.states << state;
        if (!met)
            break;
    }
    outcomes.log.removeDuplicates();
    return outcomes;
}

template<typename Item>
QString stateOf(QList<Item *> *list)
{
    FailingNew::end();
    const Owned<Item> owned(list);
    return describe(list);
}

QString exported(TDmEntity &entity, QJsonObject out)
{
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&entity, &out);
    FailingNew::end();
    return QString::fromUtf8(compact(out));
}

/// What a variable is like, after the message that was logged, when memory runs out at each possible moment
/// while one of its keys is read.
QStringList statesOfVariable(
    const QString &key, const char *text, const std::function<std::unique_ptr<TDmVariable>()> &make)
{
    const QVariantMap object = objectOf(text);
    QStringList states;
    for (bool met = true; met;) {
        const std::unique_ptr<TDmVariable> variable = make();
        const LogCatcher log;
        {
            const FailingNew memory(states.size() + 1, Shortage::OneAllocation);
            ProcessDictionaryBusiness().loadItemFromVariables(key, variable.get(), object);
            met = FailingNew::end();
        }
        states << (log.messages().isEmpty() ? QStringLiteral("no message") : log.messages().join(' ')) + ", "
                + describe(*variable);
    }
    return states;
}

/// Whether \a part is an entity's object of which writing ended somewhere: it has the first few of the keys
/// of \a whole in the order in which they are inserted, each complete, save that its children may be cut in
/// turn. \a cuts counts the objects that lack something.
bool isCutOf(const QJsonObject &part, const QJsonObject &whole, int &cuts)
{
    bool ended = false;
    for (const char *name : {"name", "alias", "label", "weightVar", "documentation", "selectable", "virtual",
             "codeVar", "labelVar", "variables", "entities"}) {
        const QLatin1String key(name);
        if (!whole.contains(key))
            continue;
        if (!part.contains(key)) {
            ended = true;
            continue;
        }
        if (ended)
            return false;
        const QJsonValue value = part.value(key);
        if (key != QLatin1String("entities")) {
            // Not compared as values: what is not a number is never equal.
            if (compact({{key, value}}) != compact({{key, whole.value(key)}}))
                return false;
            continue;
        }
        const QJsonArray children = value.toArray();
        const QJsonArray wholeChildren = whole.value(key).toArray();
        if (children.size() != wholeChildren.size())
            return false;
        for (int i = 0; i < children.size(); ++i) {
            if (!isCutOf(children.at(i).toObject(), wholeChildren.at(i).toObject(), cuts))
                return false;
        }
    }
    cuts += ended ? 1 : 0;
    const QStringList keys = part.keys();
    return std::all_of(
        keys.begin(), keys.end(), [&whole](const QString &key) { return whole.contains(key); });
}

const char *const kVariables = "[{'name':'X','metadata':{'range':[{'min':1},{'max':2}],'start':1},"
                               "'valueLabels':[{'value':'nan','label':'L'},{'value':'2'}]},{'name':'Y'}]";

const char *const kTree =
    "{'root':[{'name':'T','label':'L','codeVar':'C','labelVar':'D','alias':'A','weightVar':'W',"
    "'documentation':'O','variables':[{'name':'X','metadata':{'range':[{'min':1}]},'valueLabels':"
    "[{'value':'nan'},{'label':'\\ud83d'}]},{'name':'Y'}],'entities':[{'name':'B','entities':["
    "{'name':'E'}]},{'name':'F','variables':{'name':'Z'}}]}]}";

const char *const kDocument =
    "{'entities':[{'name':'A','variables':[{'name':'X','type':'real','metadata':{'range':["
    "{'min':1},{'max':2}]},'valueLabels':[{'value':'nan'}]}],'entities':{'name':'B','root':"
    "[{'name':'C'},{'name':'D'}]}},{'name':'E'}]}";

} // namespace

Q_DECLARE_METATYPE(Attempt)

/// Every operation, each time an allocation fails on its way.
class tst_DictionaryHandlers : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void rangesReadBeforeTheShortageAreKept();
    void valueLabelsReadBeforeTheShortageAreKept();
    void valueLabelVectorsKeepWhatWasReadBeforeTheShortage();
    void variablesReadBeforeTheShortageAreKept();
    void shortageWithinAVariableCostsOnlyTheListOrLayoutThatMeetsIt();
    void entitiesReadBeforeTheShortageAreKept();
    void shortageBelowAnEntityDoesNotEndItsOtherKeys();
    void oneVariableKeyKeepsWhatWasReadBeforeTheShortage();
    void layoutIsReplacedOnlyWhenThereIsANewOne();
    void choiceIsUntouchedWhenItsObjectCannotBeConverted();
    void exportOfALeafKeepsTheKeysInsertedBeforeTheShortage();
    void exportedEntitiesKeepTheKeysInsertedBeforeTheShortage_data();
    void exportedEntitiesKeepTheKeysInsertedBeforeTheShortage();
    void lastingShortageLeavesSomethingUsable_data();
    void lastingShortageLeavesSomethingUsable();
};

void tst_DictionaryHandlers::initTestCase()
{
    // Qt prepares its log and its converters when they are first used; that memory is not the library's.
    const LogCatcher log;
    qDebug("prepared");
    QCOMPARE(log.messages(), QStringList{"debug default: prepared"});
    TDmEntity root;
    adopt(root, entitiesOf("{'entities':[{'variables':[{'type':'real','valueLabels':[{'value':'nan'}]}]}]}"));
    documentOf(root);
}

void tst_DictionaryHandlers::cleanup() { FailingNew::end(); }

void tst_DictionaryHandlers::rangesReadBeforeTheShortageAreKept()
{
    const QVariant value = valueOf("[{'min':1,'max':2},{'min':3,'max':4},{'min':5,'max':6}]");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation,
        [&] { return stateOf(ProcessDictionaryBusiness().itemVariableSubitemRange(value)); });
    QCOMPARE(outcomes.states,
        (QStringList{"null", "[]", "[{1..2}]", "[{1..2}, {3..4}]", "[{1..2}, {3..4}, {5..6}]"}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::valueLabelsReadBeforeTheShortageAreKept()
{
    const QVariant value = valueOf("[{'value':1},{'value':2}]");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation,
        [&] { return stateOf(ProcessDictionaryBusiness().recorrerValoresPorVariablesNodosJson(value)); });
    QCOMPARE(outcomes.states, (QStringList{"null", "[]", "[{value='1'}]", "[{value='1'}, {value='2'}]"}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::valueLabelVectorsKeepWhatWasReadBeforeTheShortage()
{
    const QVariant value =
        valueOf("[{'x':1},{'valueLabelElement':[{'value':1},{'value':2}]},{'valueLabelElement':[{}]}]");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation, [&] {
        return stateOf(ProcessDictionaryBusiness().recorrerVectorValoresPorVariablesNodosJson(value));
    });
    QCOMPARE(outcomes.states, (QStringList{"null", "[]", "[{value='1'}]", "[{value='1'}, {value='2'}]"}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::variablesReadBeforeTheShortageAreKept()
{
    const QVariant value = valueOf("[{'name':'A'},{'name':'B'}]");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation,
        [&] { return stateOf(ProcessDictionaryBusiness().recorrerVariablesNodosJson(value)); });
    QCOMPARE(outcomes.states, (QStringList{"null", "[]", "[{name='A'}]", "[{name='A'}, {name='B'}]"}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::shortageWithinAVariableCostsOnlyTheListOrLayoutThatMeetsIt()
{
    const QVariant value =
        valueOf("{'label':'L','metadata':{'field':'F','range':[{'min':1},{'min':2}],'start':3},"
                "'name':'N','valueLabels':[{'value':1},{'value':2}],'zone':1}");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation,
        [&] { return stateOf(ProcessDictionaryBusiness().recorrerVariablesNodosJson(value)); });
    const QString head = "[{name='N' label='L' start=3 metadata{field='F' start=3";
    const QString bothRanges = head + " range=[{1..0}, {2..0}]}";
    const QString bothLabels = " valueLabels=[{value='1'}, {value='2'}]}]";
    QCOMPARE(outcomes.states,
        (QStringList{"null", "[]", "[{name='N' label='L'" + bothLabels, head + "}" + bothLabels,
            head + " range=[{1..0}]}" + bothLabels, bothRanges + "}]",
            bothRanges + " valueLabels=[{value='1'}]}]", bothRanges + bothLabels}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::entitiesReadBeforeTheShortageAreKept()
{
    const QVariantMap node = objectOf("{'entities':[{'name':'A'},{'name':'B'},{'name':'C'}]}");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation, [&] {
        return stateOf(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(node, 0));
    });
    QCOMPARE(outcomes.states,
        (QStringList{"null", "[]", "[{name='A' level=1}]", "[{name='A' level=1}, {name='B' level=1}]",
            "[{name='A' level=1}, {name='B' level=1}, {name='C' level=1}]"}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::shortageBelowAnEntityDoesNotEndItsOtherKeys()
{
    const QVariantMap node =
        objectOf("{'entities':[{'alias':'A','entities':[{'name':'C'}],'name':'N','root':1,"
                 "'variables':[{'name':'V'}],'virtual':true},{'name':'Z'}]}");
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation, [&] {
        return stateOf(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(node, 0));
    });
    const QString head = "[{name='N' alias='A' virtual level=1";
    const QString variables = " variables=[{name='V'}]";
    const QString child = " entities=[{name='C' level=2}]";
    const QString tail = "}, {name='Z' level=1}]";
    QCOMPARE(outcomes.states,
        (QStringList{"null", "[]", head + variables + tail, head + child + tail,
            head + variables + child + "}]", head + variables + child + tail}));
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::oneVariableKeyKeepsWhatWasReadBeforeTheShortage()
{
    const auto fresh = [] { return std::make_unique<TDmVariable>(); };
    QCOMPARE(statesOfVariable("valueLabels", "{'valueLabels':[{'value':1},{'value':2}]}", fresh),
        (QStringList{"debug default: std::bad_alloc, ",
            "debug default: std::bad_alloc, valueLabels=[{value='1'}]",
            "no message, valueLabels=[{value='1'}, {value='2'}]"}));
}

void tst_DictionaryHandlers::layoutIsReplacedOnlyWhenThereIsANewOne()
{
    const auto withLayout = [] {
        auto variable = std::make_unique<TDmVariable>();
        variable->getMetadataVariables()->setField("OLD");
        return variable;
    };
    QCOMPARE(statesOfVariable(
                 "metadata", "{'metadata':{'field':'NEW','range':[{'min':1}],'start':5}}", withLayout),
        (QStringList{"debug default: std::bad_alloc, metadata{field='OLD'}",
            "debug default: std::bad_alloc, start=5 metadata{field='NEW' start=5}",
            "no message, start=5 metadata{field='NEW' start=5 range=[{1..0}]}"}));
}

void tst_DictionaryHandlers::choiceIsUntouchedWhenItsObjectCannotBeConverted()
{
    // An unordered map has to be converted to a map, which takes memory; a map itself does not.
    const QVariantMap object{{"choice", QVariantHash{{"field", "NEW"}, {"start", 5}}}};
    const QString key = "choice";
    VarWipChoice choice;
    choice.setField("OLD");
    const LogCatcher log;
    {
        const FailingNew memory(1, Shortage::OneAllocation);
        ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(&choice, object, key);
    }
    QCOMPARE(describe(choice), QString("field='OLD'"));
    QCOMPARE(log.messages(), QStringList{"debug default: std::bad_alloc"});
    ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(&choice, object, key);
    QCOMPARE(describe(choice), QString("field='NEW' start=5"));
}

void tst_DictionaryHandlers::exportOfALeafKeepsTheKeysInsertedBeforeTheShortage()
{
    TDmEntity leaf;
    leaf.setName("NEW");
    leaf.setLabel("L");
    leaf.setRefCode("C");
    const QJsonObject held{{"name", "OLD"}, {"other", 1}};
    const QStringList possible{"{'name':'OLD','other':1}", "{'name':'NEW','other':1}",
        "{'label':'L','name':'NEW','other':1}", "{'label':'L','name':'NEW','other':1,'selectable':false}",
        "{'label':'L','name':'NEW','other':1,'selectable':false,'virtual':false}",
        "{'codeVar':'C','label':'L','name':'NEW','other':1,'selectable':false,'virtual':false}"};
    const Outcomes outcomes = outcomesOf(Shortage::OneAllocation, [&] { return exported(leaf, held); });
    QCOMPARE(outcomes.states.first(), possible.first());
    QCOMPARE(outcomes.states.last(), possible.last());
    QVERIFY(outcomes.states.contains("{'name':'NEW','other':1}"));
    int reached = 0;
    for (const QString &state : outcomes.states) {
        const int found = possible.indexOf(state);
        QVERIFY2(found >= reached, qPrintable(state));
        reached = found;
    }
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QCOMPARE(outcomes.messages, outcomes.shortages);
}

void tst_DictionaryHandlers::exportedEntitiesKeepTheKeysInsertedBeforeTheShortage_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("numbers with a text") << "STRING";
    QTest::newRow("a number that is not finite") << "REAL";
}

void tst_DictionaryHandlers::exportedEntitiesKeepTheKeysInsertedBeforeTheShortage()
{
    QFETCH(QString, type);
    const Entities entities = entitiesOf(kTree);
    TDmEntity &top = *entities->first();
    top.getVariables()->first()->setVarType(type);
    const QString before = describe(top);
    QJsonObject complete;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&top, &complete);

    int number = 0;
    QJsonObject out;
    for (bool met = true; met;) {
        out = QJsonObject();
        const LogCatcher catcher;
        {
            const FailingNew memory(++number, Shortage::OneAllocation);
            ProcessDictionaryBusiness().getStructuraTreeRootToJson(&top, &out);
            met = FailingNew::end();
        }
        QCOMPARE(catcher.messages(), met ? QStringList{"debug default: std::bad_alloc"} : QStringList());
        int cuts = 0;
        QVERIFY2(isCutOf(out, complete, cuts), compact(out).constData());
        QCOMPARE(cuts, met ? 1 : 0);
    }
    QVERIFY(number > 20);
    QCOMPARE(compact(out), compact(complete));
    QCOMPARE(describe(top), before);
}

void tst_DictionaryHandlers::lastingShortageLeavesSomethingUsable_data()
{
    QTest::addColumn<Attempt>("attempt");
    QTest::addColumn<QString>("nothing");
    const auto row = [](const char *tag, const Attempt &attempt, const char *nothing) {
        QTest::newRow(tag) << attempt << QString(QLatin1String(nothing));
    };
    row(
        "entities",
        [node = objectOf(kDocument)] {
            return stateOf(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(node, 0));
        },
        "null");
    row(
        "variables",
        [value = valueOf(kVariables)] {
            return stateOf(ProcessDictionaryBusiness().recorrerVariablesNodosJson(value));
        },
        "null");
    row(
        "ranges",
        [value = valueOf("[{'min':1},{'min':2}]")] {
            return stateOf(ProcessDictionaryBusiness().itemVariableSubitemRange(value));
        },
        "null");
    row(
        "value labels",
        [value = valueOf("[{'value':1},{'value':2}]")] {
            return stateOf(ProcessDictionaryBusiness().recorrerValoresPorVariablesNodosJson(value));
        },
        "null");
    row(
        "value-label vectors",
        [value = valueOf("{'valueLabelElement':[{'value':1},{'value':2}]}")] {
            return stateOf(ProcessDictionaryBusiness().recorrerVectorValoresPorVariablesNodosJson(value));
        },
        "null");
    const std::shared_ptr<TDmEntity> root = std::make_shared<TDmEntity>();
    adopt(*root, entitiesOf(kDocument));
    row(
        "export", [root] { return exported(*root, {}); }, "{}");
}

void tst_DictionaryHandlers::lastingShortageLeavesSomethingUsable()
{
    QFETCH(Attempt, attempt);
    QFETCH(QString, nothing);
    const QString complete = attempt();
    const Outcomes outcomes = outcomesOf(Shortage::FromThereOn, attempt);
    QCOMPARE(outcomes.states.first(), nothing);
    QCOMPARE(outcomes.states.last(), complete);
    QVERIFY(outcomes.states.size() > 2);
    QCOMPARE(outcomes.log, QStringList{"debug default: std::bad_alloc"});
    QVERIFY(outcomes.messages >= outcomes.shortages);
}

QTEST_APPLESS_MAIN(tst_DictionaryHandlers)
#include "tst_DictionaryHandlers.moc"
