#include "business/models/VariableExpressionModel.h"

#include "tests/business/models/TermListContract.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, VariableExpressionModel>);
static_assert(
    std::is_constructible_v<VariableExpressionModel, QObject *, QList<TDmVariable *> *, eEntityShowMode>);
static_assert(
    std::is_same_v<decltype(std::declval<VariableExpressionModel>().getData()), QList<TDmVariable *> *>);
static_assert(std::is_same_v<decltype(std::declval<VariableExpressionModel>().getItemData(
                                 std::declval<TDmVariable *>(), 0)),
    QVariant>);

class tst_VariableExpressionModel : public TermListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenExpressionList> open(
        const QStringList &names, int mode, QObject *parent) const override
    {
        return std::make_unique<OpenList<VariableExpressionModel, TDmVariable>>(names, mode, parent);
    }
    std::unique_ptr<OpenExpressionList> openWithoutList() const override
    {
        return std::make_unique<OpenList<VariableExpressionModel, TDmVariable>>();
    }

private slots:
    void nothingButNameAndLabelIsShown()
    {
        TDmVariable variable;
        variable.setName("AGE");
        variable.setLabel("Age in years");
        variable.setAlias("ALIAS");
        variable.setGroup("GROUP");
        variable.setVarType("INTEGER");
        variable.setTag(7);
        QList<TDmVariable *> variables = {&variable};
        const auto shown = [&](eEntityShowMode mode) {
            return VariableExpressionModel(nullptr, &variables, mode).getItemData(&variable, 0);
        };
        QCOMPARE(shown(ShowName), QVariant("AGE"));
        QCOMPARE(shown(ShowLabel), QVariant("Age in years"));
        QCOMPARE(shown(ShowNameAndLabel), QVariant("AGE - Age in years"));
    }
};

QTEST_MAIN(tst_VariableExpressionModel)
#include "tst_VariableExpressionModel.moc"
