#include "model/ValueLabelElement.h"

#include "tests/model/Fields.h"

#include <QtTest>

using tessel::test::field;
using tessel::test::Fields;
using tessel::test::makeField;

static_assert(tessel::test::isPlainRecord<ValueLabelElement>);
static_assert(std::is_same_v<decltype(&ValueLabelElement::getValue), QString (ValueLabelElement::*)() const>);
static_assert(std::is_same_v<decltype(&ValueLabelElement::setValue), void (ValueLabelElement::*)(QString)>);

namespace {

const Fields<ValueLabelElement> kFields = {
    makeField<ValueLabelElement>("value", &ValueLabelElement::getValue, &ValueLabelElement::setValue,
        QString(), QStringLiteral("007")),
    field("label", &ValueLabelElement::getLabel, &ValueLabelElement::setLabel),
};

} // namespace

class tst_ValueLabelElement : public QObject {
    Q_OBJECT

private slots:
    void codeAndLabelAreEmptyToBeginWith()
    {
        const ValueLabelElement element;
        QCOMPARE(kFields.describe(element), QStringList({"value: ", "label: "}));
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void theCodeIsTextAndKeptAsGiven_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("leading zeros") << "007";
        QTest::newRow("blanks around") << " 1 ";
        QTest::newRow("a fraction") << "1.50";
        QTest::newRow("no number at all") << "N/A";
    }
    void theCodeIsTextAndKeptAsGiven()
    {
        QFETCH(QString, code);
        ValueLabelElement element;
        element.setValue(code);
        QCOMPARE(element.getValue(), code);
    }

    void aCopyIsIndependent()
    {
        ValueLabelElement original;
        original.setValue("1");
        original.setLabel("Male");
        ValueLabelElement copy = original;
        copy.setValue("2");
        copy.setLabel("Female");
        QCOMPARE(kFields.describe(original), QStringList({"value: 1", "label: Male"}));
        original = copy;
        QCOMPARE(kFields.describe(original), QStringList({"value: 2", "label: Female"}));
    }
};

QTEST_APPLESS_MAIN(tst_ValueLabelElement)
#include "tst_ValueLabelElement.moc"
