#include "editor/Edit.h"

#include "tests/editor/DeepText.h"
#include "tests/editor/DocumentLog.h"
#include "tests/editor/SmallCensus.h"

#include <QtTest>

#include <functional>
#include <limits>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

struct EntityField {
    const char *tag;
    std::function<void(TDmEntity &)> change;
};

const QList<EntityField> &entityFields()
{
    const QString text = QStringLiteral("changed");
    static const QList<EntityField> list{
        {"name", [text](TDmEntity &e) { e.setName(text); }},
        {"alias", [text](TDmEntity &e) { e.setAlias(text); }},
        {"label", [text](TDmEntity &e) { e.setLabel(text); }},
        {"code variable", [text](TDmEntity &e) { e.setRefCode(text); }},
        {"label variable", [text](TDmEntity &e) { e.setRefLabel(text); }},
        {"weight variable", [text](TDmEntity &e) { e.setWeightVariable(text); }},
        {"documentation", [text](TDmEntity &e) { e.setDocumentationEntity(text); }},
        {"virtual", [](TDmEntity &e) { e.setIsvirtual(true); }},
        {"selectable", [](TDmEntity &e) { e.setSelectable(true); }},
        {"mark for deletion", [](TDmEntity &e) { e.setCheckDelete(true); }},
        {"level", [](TDmEntity &e) { e.setLevel(17); }},
    };
    return list;
}

struct VariableField {
    const char *tag;
    std::function<void(TDmVariable &)> change;
};

const QList<VariableField> &variableFields()
{
    const QString text = QStringLiteral("changed");
    using V = TDmVariable;
    static const QList<VariableField> list{
        {"name", [text](V &v) { v.setName(text); }},
        {"label", [text](V &v) { v.setLabel(text); }},
        {"alias", [text](V &v) { v.setAlias(text); }},
        {"group", [text](V &v) { v.setGroup(text); }},
        {"type", [text](V &v) { v.setVarType(text); }},
        {"documentation", [text](V &v) { v.setDocumentation(text); }},
        {"file", [text](V &v) { v.setFileName(text); }},
        {"local", [](V &v) { v.setLocal(true); }},
        {"size", [](V &v) { v.setSize(17); }},
        {"decimals", [](V &v) { v.setDecimals(17); }},
        {"position", [](V &v) { v.setFieldRelativePosition(17); }},
        {"field size", [](V &v) { v.setFieldSize(17); }},
        {"missing", [](V &v) { v.setMissing(17); }},
        {"not applicable", [](V &v) { v.setNotappl(17); }},
        {"tag", [](V &v) { v.setTag(17); }},
        {"mark", [](V &v) { v.setChecked(17); }},
        {"level", [](V &v) { v.setLevel(17); }},
        {"record", [text](V &v) { v.getMetadataVariables()->setRecord(text); }},
        {"field", [text](V &v) { v.getMetadataVariables()->setField(text); }},
        {"start", [](V &v) { v.getMetadataVariables()->setStart(17); }},
        {"length", [](V &v) { v.getMetadataVariables()->setLength(17); }},
        {"lookup", [](V &v) { v.getMetadataVariables()->setLookup(true); }},
        {"a label's code", [text](V &v) { v.getValueLabelElementList()->at(1)->setValue(text); }},
        {"a label's text", [text](V &v) { v.getValueLabelElementList()->at(1)->setLabel(text); }},
        {"order of labels", [](V &v) { v.getValueLabelElementList()->move(0, 1); }},
        {"another label", [](V &v) { SmallCensus::addLabel(v, "", ""); }},
        {"a range's minimum", [](V &v) { v.getMetadataVariables()->getRange()->first()->setRangeMin(1.5); }},
        {"a range's maximum",
            [](V &v) { v.getMetadataVariables()->getRange()->first()->setRangeMax(1e300); }},
        {"a range that becomes no number",
            [](V &v) {
                v.getMetadataVariables()->getRange()->first()->setRangeMin(
                    std::numeric_limits<double>::quiet_NaN());
            }},
        {"another range", [](V &v) { SmallCensus::addRange(v, 0, 0); }},
    };
    return list;
}

} // namespace

class tst_Edit : public QObject {
    Q_OBJECT

private slots:
    void nothingChangedIsNoStep()
    {
        SmallCensus census;
        DocumentLog log(census.document);
        Scope scope = Scope::ofTree(census.document.root());
        scope |= Scope::ofEntity(census.person);
        Edit edit(census.document, scope);
        QVERIFY(!edit.commit(QStringLiteral("change nothing")));
        QCOMPARE(census.document.undoStack()->count(), 0);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!census.document.isModified());
    }

    void whatIsChangedAndChangedBackIsNoStep()
    {
        SmallCensus census;
        Edit edit(census.document, Scope::ofEntity(census.person));
        census.sex.setTag(5);
        census.person.getVariables()->move(0, 3);
        census.sex.setTag(0);
        census.person.getVariables()->move(3, 0);
        QVERIFY(!edit.commit(QStringLiteral("change nothing")));
        QCOMPARE(census.document.undoStack()->count(), 0);
    }

    void aRangeWithoutANumberIsTheSameAsBefore()
    {
        SmallCensus census;
        const double none = std::numeric_limits<double>::quiet_NaN();
        SmallCensus::addRange(census.work, none, none);
        Edit edit(census.document, Scope::ofVariable(census.work));
        QVERIFY(!edit.commit(QStringLiteral("change nothing")));
    }

    void anEmptyScopeSeesNothing()
    {
        SmallCensus census;
        Edit edit(census.document, Scope());
        census.sex.setTag(5);
        QVERIFY(!edit.commit(QStringLiteral("change what nobody looks at")));
    }

    void whatStandsOutsideOfTheScopeIsNotTakenBack()
    {
        SmallCensus census;
        Edit edit(census.document, Scope::ofVariable(census.sex));
        census.sex.setTag(5);
        census.age.setTag(6);
        census.person.setLabel(QStringLiteral("Person"));
        QVERIFY(edit.commit(QStringLiteral("change tags")));
        census.document.undoStack()->undo();
        QCOMPARE(census.sex.getTag(), 0);
        QCOMPARE(census.age.getTag(), 6);
        QCOMPARE(census.person.getLabel(), QStringLiteral("Person"));
    }

    void scopesHoldWhatTheyAreCalled()
    {
        SmallCensus census;
        const Scope variable = Scope::ofVariable(census.sex);
        QCOMPARE(variable.entities(), QSet<TDmEntity *>());
        QCOMPARE(variable.variables(), QSet<TDmVariable *>{&census.sex});
        const Scope entity = Scope::ofEntity(census.house);
        QCOMPARE(entity.entities(), QSet<TDmEntity *>{&census.house});
        QCOMPARE(entity.variables(), (QSet<TDmVariable *>{&census.rooms, &census.kind}));
        const Scope tree = Scope::ofTree(census.house);
        QCOMPARE(tree.entities(), (QSet<TDmEntity *>{&census.house, &census.person, &census.death}));
        QCOMPARE(tree.variables(), QSet<TDmVariable *>());
        Scope all = entity;
        all |= variable;
        all |= tree;
        QCOMPARE(all.entities(), tree.entities());
        QCOMPARE(all.variables(), (QSet<TDmVariable *>{&census.rooms, &census.kind, &census.sex}));
    }

    void theScopeOfALongChainIsMade()
    {
        DictionaryDocument document;
        TDmEntity *last = &document.root();
        for (int i = 0; i < 200'000; ++i)
            last = &SmallCensus::addEntity(*last, "E");
        QCOMPARE(Scope::ofTree(document.root()).entities().size(), 200'001);
    }

    void eachFieldOfAnEntityIsTakenBack_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < entityFields().size(); ++i)
            QTest::newRow(entityFields().at(i).tag) << i;
    }

    void eachFieldOfAnEntityIsTakenBack()
    {
        QFETCH(int, number);
        SmallCensus census;
        const auto change = [&] { entityFields().at(number).change(census.person); };
        compareTakenBack(census, Scope::ofTree(census.house), change);
    }

    void eachFieldOfAVariableIsTakenBack_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < variableFields().size(); ++i)
            QTest::newRow(variableFields().at(i).tag) << i;
    }

    void eachFieldOfAVariableIsTakenBack()
    {
        QFETCH(int, number);
        SmallCensus census;
        const auto change = [&] { variableFields().at(number).change(census.sex); };
        compareTakenBack(census, Scope::ofVariable(census.sex), change);
    }

    void anEqualLabelInPlaceOfAnotherIsAChange()
    {
        SmallCensus census;
        Edit edit(census.document, Scope::ofVariable(census.sex));
        QList<ValueLabelElement *> &labels = *census.sex.getValueLabelElementList();
        ValueLabelElement *old = labels.first();
        auto *same = new ValueLabelElement(*old);
        labels[0] = same;
        QVERIFY(edit.commit(QStringLiteral("replace a label")));
        census.document.undoStack()->undo();
        QCOMPARE(labels.first(), old);
        census.document.undoStack()->redo();
        QCOMPARE(labels.first(), same);
    }

    void anEqualRangeInPlaceOfAnotherIsAChange()
    {
        SmallCensus census;
        Edit edit(census.document, Scope::ofVariable(census.sex));
        QList<Range *> &ranges = *census.sex.getMetadataVariables()->getRange();
        Range *old = ranges.first();
        auto *same = new Range(*old);
        ranges[0] = same;
        QVERIFY(edit.commit(QStringLiteral("replace a range")));
        census.document.undoStack()->undo();
        QCOMPARE(ranges.first(), old);
        census.document.undoStack()->redo();
        QCOMPARE(ranges.first(), same);
    }

    void manyChangesAreOneStepThatNamesThemAll()
    {
        SmallCensus census;
        DocumentLog log(census.document);
        const QString before = deepTree(census.document.root());
        Scope scope = Scope::ofTree(census.document.root());
        scope |= Scope::ofEntity(census.person);
        Edit edit(census.document, scope);
        census.person.setLabel(QStringLiteral("Person"));
        census.house.getVariables()->removeOne(&census.kind);
        census.person.addVariables(&census.kind);
        census.house.getChildren()->move(0, 1);
        census.age.setTag(4);
        census.sex.getValueLabelElementList()->first()->setLabel(QStringLiteral("Men"));
        QVERIFY(edit.commit(QStringLiteral("change much")));

        const QString line =
            QStringLiteral("changed entities HOUSE PERSON; lists HOUSE PERSON; variables AGE SEX; tree");
        QCOMPARE(log.take(), (QStringList{line, QStringLiteral("modified")}));
        QCOMPARE(census.document.undoStack()->count(), 1);
        QCOMPARE(census.document.undoStack()->undoText(), QStringLiteral("change much"));
        census.document.undoStack()->undo();
        QCOMPARE(log.take(), (QStringList{line, QStringLiteral("clean")}));
        QCOMPARE(deepTree(census.document.root()), before);
    }

    void whatASlotChangesMeanwhileStaysAndIsNoPartOfTheStep()
    {
        // What a slot changes while the edit is announced stays as the slot left it.
        SmallCensus census;
        connect(&census.document, &DictionaryDocument::changed, this, [&census] { census.sex.setTag(99); });
        Edit edit(census.document, Scope::ofVariable(census.sex));
        census.sex.setTag(5);
        QVERIFY(edit.commit(QStringLiteral("change tag")));
        QCOMPARE(census.sex.getTag(), 99);
        census.document.disconnect(this);
        census.document.undoStack()->undo();
        QCOMPARE(census.sex.getTag(), 0);
        census.document.undoStack()->redo();
        QCOMPARE(census.sex.getTag(), 5);
    }

    void whatHangsInWhatWasTakenOutIsFreedOnce()
    {
        // Variable out of the person, person out of the house, back in parts: the sanitizer watches the end.
        SmallCensus census;
        QUndoStack &stack = *census.document.undoStack();
        Edit first(census.document, Scope::ofEntity(census.person));
        census.person.getVariables()->removeOne(&census.sex);
        QVERIFY(first.commit(QStringLiteral("take out SEX")));
        Edit second(census.document, Scope::ofEntity(census.house));
        census.house.getChildren()->removeOne(&census.person);
        QVERIFY(second.commit(QStringLiteral("take out PERSON")));
        stack.undo();
        QCOMPARE(namesOf(*census.person.getVariables()), QStringLiteral("AGE TIES WORK"));
        stack.undo();
        QCOMPARE(namesOf(*census.person.getVariables()), QStringLiteral("SEX AGE TIES WORK"));
        stack.redo();
        stack.redo();
        QCOMPARE(namesOf(*census.house.getChildren()), QStringLiteral("DEATH"));
    }

    void whatOnlyAnUndoneStepHeldIsFreed()
    {
        // The label hangs nowhere and its step is overwritten by another one.
        SmallCensus census;
        Edit first(census.document, Scope::ofVariable(census.work));
        SmallCensus::addLabel(census.work, "1", "never to be seen again");
        SmallCensus::addRange(census.work, 1, 2);
        QVERIFY(first.commit(QStringLiteral("add")));
        census.document.undoStack()->undo();
        Edit second(census.document, Scope::ofVariable(census.work));
        census.work.setTag(1);
        QVERIFY(second.commit(QStringLiteral("change tag")));
        QCOMPARE(labelsOf(census.work), QString());
        QCOMPARE(rangesOf(census.work), QString());
    }

private:
    /// \a change is one step over \a scope; undone and redone, all is as it was and as it became.
    template<typename Change>
    static void compareTakenBack(SmallCensus &census, const Scope &scope, const Change &change)
    {
        QUndoStack &stack = *census.document.undoStack();
        const QString before = deepTree(census.document.root());
        Edit edit(census.document, scope);
        change();
        const QString after = deepTree(census.document.root());
        QVERIFY(after != before);
        QVERIFY(edit.commit(QStringLiteral("change")));
        QCOMPARE(deepTree(census.document.root()), after);
        for (int i = 0; i < 2; ++i) {
            stack.undo();
            QCOMPARE(deepTree(census.document.root()), before);
            stack.redo();
            QCOMPARE(deepTree(census.document.root()), after);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Edit)
#include "tst_Edit.moc"
