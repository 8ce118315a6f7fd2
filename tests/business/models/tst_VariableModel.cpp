#include "business/models/VariableModel.h"

#include "tests/business/models/VariableListContract.h"
#include "tests/business/models/VariableRows.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, VariableModel>);
static_assert(std::is_constructible_v<VariableModel, QObject *, TDmEntity *, QList<TDmVariable *> *>);
static_assert(std::is_convertible_v<decltype(&VariableModel::getItemData),
    QVariant (VariableModel::*)(TDmVariable *, int) const>);

class tst_VariableModel : public VariableListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenVariableList> open(TDmEntity *entity, QList<TDmVariable *> *variables) const override
    {
        return std::make_unique<OpenList<VariableModel>>(entity, variables);
    }
    VariableListFacts facts() const override
    {
        return {{"Name", "Label", "Alias", "Group", "Tag"}, true, true, true};
    }

private slots:
    void theModelBelongsToItsParent()
    {
        Variables variables("AGE");
        QObject owner;
        const auto *model = new VariableModel(&owner, nullptr, &variables.list);
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
        QCOMPARE(columnTexts(VariableModel(nullptr, &entity, &variables.list)), QStringList({"AGE", "id"}));
    }

    void theTagIsAWholeNumberWithoutLeadingZeros()
    {
        Variables variables;
        variables.add("AGE", "", "", "", 7);
        const VariableModel model(nullptr, nullptr, &variables.list);
        QCOMPARE(model.index(0, 4).data(), QVariant(7));
        QCOMPARE(model.index(0, 4).data().userType(), int(QMetaType::Int));
    }

    void aVariableOfLevelTwoLooksCheckableToAViewAndHasNoBox()
    {
        Variables variables("AGE");
        variables.list.first()->setLevel(2);
        VariableModel model(nullptr, nullptr, &variables.list);
        const QModelIndex age = model.index(0, 0);
        QVERIFY(model.flags(age) & Qt::ItemIsUserCheckable);
        QVERIFY(!age.data(Qt::CheckStateRole).isValid());
        QVERIFY(!model.setData(age, Qt::Checked, Qt::CheckStateRole));
    }

    void aTickIsKeptAsOne()
    {
        Variables variables("AGE");
        variables.list.first()->setLevel(1);
        VariableModel model(nullptr, nullptr, &variables.list);
        QVERIFY(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(variables.list.first()->getChecked(), 1);
    }
};

QTEST_MAIN(tst_VariableModel)
#include "tst_VariableModel.moc"
