#include "business/models/VariableModelDownStep4.h"

#include "tests/business/models/VariableListContract.h"
#include "tests/business/models/VariableRows.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, VariableModelDownStep4>);
static_assert(
    std::is_constructible_v<VariableModelDownStep4, QObject *, TDmEntity *, QList<TDmVariable *> *>);
static_assert(std::is_convertible_v<decltype(&VariableModelDownStep4::getItemData),
    QVariant (VariableModelDownStep4::*)(TDmVariable *, int) const>);

class tst_VariableModelDownStep4 : public VariableListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenVariableList> open(TDmEntity *entity, QList<TDmVariable *> *variables) const override
    {
        return std::make_unique<OpenList<VariableModelDownStep4>>(entity, variables);
    }
    VariableListFacts facts() const override { return {{"Name", "Label", "Alias"}, true, false, false}; }

private slots:
    void theModelBelongsToItsParent()
    {
        Variables variables("AGE");
        QObject owner;
        const auto *model = new VariableModelDownStep4(&owner, nullptr, &variables.list);
        QCOMPARE(model->QObject::parent(), &owner);
        QCOMPARE(columnTexts(*model), QStringList("AGE"));
    }

    void ofFiveVariablesThreeHoldReferencesAndTwoAreLeft()
    {
        TDmEntity entity;
        entity.setRefCode("ID");
        entity.setRefLabel("NAME");
        entity.setWeightVariable("W");
        Variables variables("ID NAME AGE W id");
        QCOMPARE(columnTexts(VariableModelDownStep4(nullptr, &entity, &variables.list)),
            QStringList({"AGE", "id"}));
    }

    void theBoxIsShownButNotMarkedAsCheckable()
    {
        Variables variables("AGE");
        variables.list.first()->setLevel(2);
        VariableModelDownStep4 model(nullptr, nullptr, &variables.list);
        const QModelIndex age = model.index(0, 0);
        QVERIFY(!(model.flags(age) & Qt::ItemIsUserCheckable));
        QCOMPARE(age.data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        QVERIFY(model.setData(age, Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(variables.list.first()->getChecked(), 1);
        QCOMPARE(age.data(Qt::CheckStateRole), QVariant(Qt::Checked));
    }
};

QTEST_MAIN(tst_VariableModelDownStep4)
#include "tst_VariableModelDownStep4.moc"
