#include "editor/Structure.h"

#include "tests/editor/DeepText.h"
#include "tests/editor/DocumentLog.h"
#include "tests/editor/SmallCensus.h"

#include <QtTest>

#include <functional>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// One operation of Structure, and what is told of it.
struct Operation {
    const char *tag;
    std::function<void(Structure &, SmallCensus &)> run;
    const char *text; ///< In the menu; null when there is nothing to undo.
    const char *announced; ///< With the names that the objects have once the operation is made.
};

const QList<Operation> &operations()
{
    static const QList<Operation> list{
        {"an entity is added", [](Structure &s, SmallCensus &c) { s.addEntity(c.person); }, "add ENTITY_1",
            "entities PERSON; tree"},
        {"an entity is taken out", [](Structure &s, SmallCensus &c) { s.removeEntity(c.person); },
            "delete PERSON", "entities HOUSE; tree"},
        {"the dictionary is taken out",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.removeEntity(c.document.root())); }, nullptr, ""},
        {"an entity is moved", [](Structure &s, SmallCensus &c) { s.moveEntity(c.person, 1); }, "move PERSON",
            "entities HOUSE; tree"},
        {"an entity is moved too far",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.moveEntity(c.person, 2)); }, nullptr, ""},
        {"the dictionary is moved",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.moveEntity(c.document.root(), 1)); }, nullptr, ""},
        {"a variable is added", [](Structure &s, SmallCensus &c) { s.addVariable(c.person, 1); },
            "add VARIABLE_1", "entities PERSON; lists PERSON"},
        {"one variable is taken out",
            [](Structure &s, SmallCensus &c) { QVERIFY(s.removeVariables(c.person, {&c.age})); },
            "delete AGE", "entities PERSON; lists PERSON"},
        {"two variables are taken out",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.removeVariables(c.person, {&c.work, &c.sex}));
            },
            "delete 2 variables", "entities PERSON; lists PERSON"},
        {"no variable is taken out",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.removeVariables(c.person, {})); }, nullptr, ""},
        {"another entity's variable is taken out",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.removeVariables(c.person, {&c.rooms})); }, nullptr,
            ""},
        {"one variable is moved",
            [](Structure &s, SmallCensus &c) { QVERIFY(s.moveVariables(c.person, {&c.age}, -1)); },
            "move AGE", "entities PERSON; lists PERSON"},
        {"two variables are moved",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.moveVariables(c.person, {&c.age, &c.sex}, 1));
            },
            "move 2 variables", "entities PERSON; lists PERSON"},
        {"no variable is moved",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.moveVariables(c.person, {}, 1)); }, nullptr, ""},
        {"a label is added", [](Structure &s, SmallCensus &c) { s.addLabel(c.sex, 0); }, "add label 3 to SEX",
            "variables SEX"},
        {"labels are taken out",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.removeLabels(c.sex, *c.sex.getValueLabelElementList()));
            },
            "delete labels of SEX", "variables SEX"},
        {"no label is taken out", [](Structure &s, SmallCensus &c) { QVERIFY(!s.removeLabels(c.sex, {})); },
            nullptr, ""},
        {"a label is moved",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.moveLabels(c.sex, {c.sex.getValueLabelElementList()->first()}, 1));
            },
            "move labels of SEX", "variables SEX"},
        {"labels are pasted",
            [](Structure &s, SmallCensus &c) {
                QCOMPARE(s.pasteLabels(c.work, QStringLiteral("1\tYes\n2\tNo\n")), 2);
            },
            "paste 2 labels", "variables WORK"},
        {"nothing is pasted",
            [](Structure &s, SmallCensus &c) { QCOMPARE(s.pasteLabels(c.work, QStringLiteral(" \n\t")), 0); },
            nullptr, ""},
        {"labels are copied",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.copyLabels(c.sex, {&c.work, &c.sex, &c.rooms}));
            },
            "copy labels of SEX", "variables ROOMS WORK"},
        {"labels are copied to where they come from",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.copyLabels(c.sex, {&c.sex})); }, nullptr, ""},
        {"no labels are copied to where there are none",
            [](Structure &s, SmallCensus &c) { QVERIFY(!s.copyLabels(c.age, {&c.work})); }, nullptr, ""},
        {"a range is added", [](Structure &s, SmallCensus &c) { s.addRange(c.age, 1); }, "add range to AGE",
            "variables AGE"},
        {"ranges are taken out",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.removeRanges(c.age, {c.age.getMetadataVariables()->getRange()->first()}));
            },
            "delete ranges of AGE", "variables AGE"},
        {"no range is taken out", [](Structure &s, SmallCensus &c) { QVERIFY(!s.removeRanges(c.age, {})); },
            nullptr, ""},
        {"a range is moved",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(s.moveRanges(c.age, {c.age.getMetadataVariables()->getRange()->first()}, 1));
            },
            "move ranges of AGE", "variables AGE"},
        {"a range is moved too far",
            [](Structure &s, SmallCensus &c) {
                QVERIFY(!s.moveRanges(c.sex, *c.sex.getMetadataVariables()->getRange(), 1));
            },
            nullptr, ""},
    };
    return list;
}

} // namespace

/// What is on the undo stack after each operation, and what is told of it.
class tst_StructureSteps : public QObject {
    Q_OBJECT

private slots:
    void eachOperationIsOneStepThatIsToldExactly_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < operations().size(); ++i)
            QTest::newRow(operations().at(i).tag) << i;
    }

    void eachOperationIsOneStepThatIsToldExactly()
    {
        QFETCH(int, number);
        const Operation &operation = operations().at(number);
        SmallCensus census;
        QUndoStack &stack = *census.document.undoStack();
        Structure structure(census.document);
        DocumentLog log(census.document);
        const QString before = deepTree(census.document.root());

        operation.run(structure, census);
        const QString after = deepTree(census.document.root());
        if (!operation.text) {
            QCOMPARE(after, before);
            QCOMPARE(log.take(), QStringList());
            QCOMPARE(stack.count(), 0);
            return;
        }
        const QString announced = QStringLiteral("changed ") + QLatin1String(operation.announced);
        const QString modified = QStringLiteral("modified");
        const QString clean = QStringLiteral("clean");
        QVERIFY(after != before);
        QCOMPARE(stack.count(), 1);
        QCOMPARE(stack.undoText(), QString::fromUtf8(operation.text));
        QCOMPARE(log.take(), (QStringList{announced, modified}));

        stack.undo();
        QCOMPARE(deepTree(census.document.root()), before);
        QCOMPARE(log.take(), (QStringList{announced, clean}));
        stack.redo();
        QCOMPARE(deepTree(census.document.root()), after);
        QCOMPARE(log.take(), (QStringList{announced, modified}));
        stack.undo();
        QCOMPARE(deepTree(census.document.root()), before);
    }
};

QTEST_APPLESS_MAIN(tst_StructureSteps)
#include "tst_StructureSteps.moc"
