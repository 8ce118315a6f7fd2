#include "model/TDmVariable.h"

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/ValueLabelElement.h"
#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isNeitherCopiedNorMoved<TDmVariable>);
static_assert(!std::is_polymorphic_v<TDmVariable>);
static_assert(std::is_same_v<decltype(&TDmVariable::getLocal), bool (TDmVariable::*)() const>);
static_assert(std::is_same_v<decltype(&TDmVariable::setLocal), void (TDmVariable::*)(const bool &)>);
static_assert(std::is_same_v<decltype(&TDmVariable::getMetadataVariables),
    MetadataVariables *(TDmVariable::*)() const>);
static_assert(
    std::is_same_v<decltype(&TDmVariable::setMetadataVariables), void (TDmVariable::*)(MetadataVariables *)>);
static_assert(std::is_same_v<decltype(&TDmVariable::getValueLabelElementList),
    QList<ValueLabelElement *> *(TDmVariable::*)() const>);
static_assert(
    std::is_same_v<decltype(&TDmVariable::addValueLabelElement), void (TDmVariable::*)(ValueLabelElement *)>);

namespace {

const Fields<TDmVariable> kFields = {
    field("name", &TDmVariable::getName, &TDmVariable::setName),
    field("label", &TDmVariable::getLabel, &TDmVariable::setLabel),
    field("alias", &TDmVariable::getAlias, &TDmVariable::setAlias),
    field("group", &TDmVariable::getGroup, &TDmVariable::setGroup),
    field("varType", &TDmVariable::getVarType, &TDmVariable::setVarType),
    field("documentation", &TDmVariable::getDocumentation, &TDmVariable::setDocumentation),
    field("fileName", &TDmVariable::getFileName, &TDmVariable::setFileName),
    tessel::test::makeField<TDmVariable>(
        "local", &TDmVariable::getLocal, &TDmVariable::setLocal, false, true),
    field("size", &TDmVariable::getSize, &TDmVariable::setSize, 11),
    field("decimals", &TDmVariable::getDecimals, &TDmVariable::setDecimals, 12),
    field("fieldRelativePosition", &TDmVariable::getFieldRelativePosition,
        &TDmVariable::setFieldRelativePosition, 13),
    field("fieldSize", &TDmVariable::getFieldSize, &TDmVariable::setFieldSize, 14),
    field("missing", &TDmVariable::getMissing, &TDmVariable::setMissing, -15),
    field("notappl", &TDmVariable::getNotappl, &TDmVariable::setNotappl, 16),
    field("tag", &TDmVariable::getTag, &TDmVariable::setTag, 17),
    field("checked", &TDmVariable::getChecked, &TDmVariable::setChecked, 18),
    field("level", &TDmVariable::getLevel, &TDmVariable::setLevel, 19),
};

ValueLabelElement *newLabel(const QString &code)
{
    auto *element = new ValueLabelElement;
    element->setValue(code);
    return element;
}

MetadataVariables *newLayout(const QString &field)
{
    auto *layout = new MetadataVariables;
    layout->setField(field);
    layout->addItemRange(new Range);
    return layout;
}

} // namespace

class tst_TDmVariable : public QObject {
    Q_OBJECT

private slots:
    void everyFieldOfAFreshVariableIsEmptyZeroOrFalse()
    {
        const TDmVariable variable;
        const QStringList expected = {"name: ", "label: ", "alias: ", "group: ", "varType: ",
            "documentation: ", "fileName: ", "local: false", "size: 0", "decimals: 0",
            "fieldRelativePosition: 0", "fieldSize: 0", "missing: 0", "notappl: 0", "tag: 0", "checked: 0",
            "level: 0"};
        QCOMPARE(kFields.describe(variable), expected);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void checkedKeepsItsNumberAndTogglesAsAFlag()
    {
        TDmVariable variable;
        variable.setChecked(-3);
        QCOMPARE(variable.getChecked(), -3);
        variable.setChecked(!variable.getChecked());
        QCOMPARE(variable.getChecked(), 0);
        variable.setChecked(!variable.getChecked());
        QCOMPARE(variable.getChecked(), 1);
    }

    void theTypeIsKeptAsGiven()
    {
        TDmVariable variable;
        variable.setVarType(" integer ");
        QCOMPARE(variable.getVarType(), QStringLiteral(" integer "));
    }

    void aFreshVariableHasAnEmptyLayoutOfItsOwn()
    {
        const TDmVariable one;
        const TDmVariable other;
        const MetadataVariables *layout = one.getMetadataVariables();
        QVERIFY(layout);
        QVERIFY(layout != other.getMetadataVariables());
        QCOMPARE(layout->getRecord(), QString());
        QCOMPARE(layout->getField(), QString());
        QCOMPARE(layout->getStart(), 0);
        QCOMPARE(layout->getLength(), 0);
        QCOMPARE(layout->getLookup(), false);
        QVERIFY(layout->getRange());
        QCOMPARE(layout->getRange()->size(), 0);
    }

    void theLayoutDoesNotFollowTheVariablesOwnPositionAndSize()
    {
        TDmVariable variable;
        variable.setFieldRelativePosition(5);
        variable.setFieldSize(2);
        QCOMPARE(variable.getMetadataVariables()->getStart(), 0);
        QCOMPARE(variable.getMetadataVariables()->getLength(), 0);
        variable.getMetadataVariables()->setStart(9);
        variable.getMetadataVariables()->setLength(8);
        QCOMPARE(variable.getFieldRelativePosition(), 5);
        QCOMPARE(variable.getFieldSize(), 2);
    }

    void setMetadataVariablesReplacesTheLayout()
    {
        TDmVariable variable;
        variable.getMetadataVariables()->addItemRange(new Range);
        // Whatever is replaced is freed, ranges and all: the leak checker counts.
        MetadataVariables *first = newLayout("A");
        variable.setMetadataVariables(first);
        QCOMPARE(variable.getMetadataVariables(), first);
        MetadataVariables *second = newLayout("B");
        variable.setMetadataVariables(second);
        QCOMPARE(variable.getMetadataVariables(), second);
        QCOMPARE(variable.getMetadataVariables()->getField(), QStringLiteral("B"));
        QCOMPARE(variable.getMetadataVariables()->getRange()->size(), 1);
    }

    void handingBackTheHeldLayoutChangesNothing()
    {
        TDmVariable variable;
        MetadataVariables *const layout = newLayout("A");
        variable.setMetadataVariables(layout);
        variable.setMetadataVariables(layout);
        QCOMPARE(variable.getMetadataVariables(), layout);
        QCOMPARE(layout->getField(), QStringLiteral("A"));
        QCOMPARE(layout->getRange()->size(), 1);

        const TDmVariable fresh;
        TDmVariable other;
        other.setMetadataVariables(other.getMetadataVariables());
        QCOMPARE(other.getMetadataVariables()->getRange()->size(), 0);
        QVERIFY(other.getMetadataVariables() != fresh.getMetadataVariables());
    }

    void aNullLayoutIsKeptAndCanBeReplaced()
    {
        TDmVariable variable;
        variable.setMetadataVariables(nullptr);
        QCOMPARE(variable.getMetadataVariables(), nullptr);
        variable.setMetadataVariables(newLayout("A"));
        QCOMPARE(variable.getMetadataVariables()->getField(), QStringLiteral("A"));
        variable.setMetadataVariables(nullptr);
        QCOMPARE(variable.getMetadataVariables(), nullptr);
    }

    void aFreshVariableHasAnEmptyLabelListOfItsOwn()
    {
        const TDmVariable one;
        const TDmVariable other;
        QVERIFY(one.getValueLabelElementList());
        QCOMPARE(one.getValueLabelElementList()->size(), 0);
        QVERIFY(one.getValueLabelElementList() != other.getValueLabelElementList());
    }

    void valueLabelsAreAppendedInOrder()
    {
        TDmVariable variable;
        QList<ValueLabelElement *> *const list = variable.getValueLabelElementList();
        ValueLabelElement *first = newLabel("2");
        ValueLabelElement *second = newLabel("1");
        variable.addValueLabelElement(first);
        variable.addValueLabelElement(second);
        QCOMPARE(variable.getValueLabelElementList(), list);
        QCOMPARE(*list, QList<ValueLabelElement *>({first, second}));
    }

    void theLabelListIsTheVariablesOwnAndNoCopy()
    {
        TDmVariable variable;
        ValueLabelElement *kept = newLabel("1");
        *variable.getValueLabelElementList() = {newLabel("0"), kept};
        delete variable.getValueLabelElementList()->takeFirst();
        QCOMPARE(*variable.getValueLabelElementList(), QList<ValueLabelElement *>({kept}));
    }

    void nullLabelsArePassedOverByTheDestructor()
    {
        TDmVariable variable;
        variable.addValueLabelElement(nullptr);
        variable.addValueLabelElement(newLabel("1"));
        QCOMPARE(variable.getValueLabelElementList()->size(), 2);
    }
};

QTEST_APPLESS_MAIN(tst_TDmVariable)
#include "tst_TDmVariable.moc"
