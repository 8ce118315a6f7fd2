#include "business/models/DictionaryTreeModel.h"

#include "tests/business/models/EntityTreeContract.h"
#include "tests/business/models/TreeText.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, DictionaryTreeModel>);
static_assert(std::is_constructible_v<DictionaryTreeModel, QObject *, TDmEntity *>);
static_assert(std::is_convertible_v<decltype(&DictionaryTreeModel::recorrerStructuraArbol),
    QModelIndex (DictionaryTreeModel::*)(TDmEntity *, TDmEntity *, TDmEntity *) const>);
static_assert(std::is_convertible_v<decltype(&DictionaryTreeModel::getItemData),
    QVariant (DictionaryTreeModel::*)(TDmEntity *, int) const>);

class tst_DictionaryTreeModel : public EntityTreeContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenEntityTree> open(TDmEntity *root) const override
    {
        return std::make_unique<Open<DictionaryTreeModel>>(root);
    }
    QList<int> answeredRoles() const override { return {Qt::DisplayRole, Qt::EditRole}; }
    Qt::ItemFlags flagsOfAnEntity() const override
    {
        return Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
    }

private slots:
    void theNameIsShownAndOfferedForEditing()
    {
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
        const DictionaryTreeModel model(nullptr, root.get());
        const QModelIndex house = model.index(0, 0, model.index(0, 0));
        QCOMPARE(model.data(house, Qt::DisplayRole), QVariant("HOUSE"));
        QCOMPARE(model.data(house, Qt::EditRole), QVariant("HOUSE"));
    }

    void aSearchForNothingFindsNothing()
    {
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
        root->getChildren()->append(nullptr);
        const DictionaryTreeModel model(nullptr, root.get());
        QCOMPARE(model.recorrerStructuraArbol(nullptr, root.get(), root.get()), QModelIndex());
        QCOMPARE(model.recorrerStructuraArbol(nullptr, nullptr, nullptr), QModelIndex());
        QCOMPARE(model.recorrerStructuraArbol(root.get(), nullptr, nullptr), QModelIndex());
    }

    void noMarkIsShown()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        root->setSelectable(true);
        root->setCheckDelete(true);
        const DictionaryTreeModel model(nullptr, root.get());
        for (const int role : {Qt::DecorationRole, Qt::CheckStateRole, Qt::ToolTipRole})
            QVERIFY(!model.data(model.index(0, 0), role).isValid());
    }

    void theModelBelongsToItsParent()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        QObject owner;
        const auto *model = new DictionaryTreeModel(&owner, root.get());
        QCOMPARE(model->QObject::parent(), &owner);
    }
};

QTEST_MAIN(tst_DictionaryTreeModel)
#include "tst_DictionaryTreeModel.moc"
