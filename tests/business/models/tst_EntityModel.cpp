#include "business/models/EntityModel.h"

#include "tests/business/models/EntityTreeContract.h"
#include "tests/business/models/TreeText.h"

#include <QSignalSpy>
#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, EntityModel>);
static_assert(std::is_constructible_v<EntityModel, QObject *, TDmEntity *>);
static_assert(std::is_convertible_v<decltype(&EntityModel::recorrerStructuraArbol),
    QModelIndex (EntityModel::*)(TDmEntity *, TDmEntity *, TDmEntity *) const>);
static_assert(std::is_convertible_v<decltype(&EntityModel::getItemData),
    QVariant (EntityModel::*)(TDmEntity *, int) const>);

class tst_EntityModel : public EntityTreeContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenEntityTree> open(TDmEntity *root) const override
    {
        return std::make_unique<Open<EntityModel>>(root);
    }
    QList<int> answeredRoles() const override { return {Qt::DisplayRole}; }
    Qt::ItemFlags flagsOfAnEntity() const override { return Qt::ItemIsSelectable | Qt::ItemIsEnabled; }
    bool answerWithoutEntity() const override { return true; }

private slots:
    void theModelBelongsToItsParent()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        QObject owner;
        const auto *model = new EntityModel(&owner, root.get());
        QCOMPARE(model->QObject::parent(), &owner);
    }

    void noMarkIsShownAndNoTextOfferedForEditing()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        root->setSelectable(true);
        root->setCheckDelete(true);
        const EntityModel model(nullptr, root.get());
        for (const int role : {Qt::EditRole, Qt::DecorationRole, Qt::CheckStateRole})
            QVERIFY(!model.data(model.index(0, 0), role).isValid());
    }

    void anyTextIsStoredUntrimmedAndUnjudged_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("stored");
        QTest::newRow("a name") << QVariant("NEW") << "NEW";
        QTest::newRow("blanks around it") << QVariant("  NEW\t") << "  NEW\t";
        QTest::newRow("nothing") << QVariant() << "";
        QTest::newRow("a number") << QVariant(5) << "5";
        QTest::newRow("a name in use") << QVariant("LAND") << "LAND";
        QTest::newRow("no name") << QVariant("<b>\"\\") << "<b>\"\\";
        QTest::newRow("51 characters") << QVariant(QString(51, 'x')) << QString(51, 'x');
        QTest::newRow("100,000 characters") << QVariant(QString(100'000, 'x')) << QString(100'000, 'x');
    }
    void anyTextIsStoredUntrimmedAndUnjudged()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, stored);
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
        EntityModel model(nullptr, root.get());
        QVERIFY(model.setData(model.index(0, 0, model.index(0, 0)), value));
        QCOMPARE(root->getChildren()->first()->getName(), stored);
        QCOMPARE(root->getName(), QString("LAND"));
    }

    void everyRoleAndColumnStoresAndNoneIsAnnounced()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        Open<EntityModel> model(root.get());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        for (const int column : {0, 1, INT_MAX}) {
            for (int role = 0; role <= Qt::UserRole + 2; ++role) {
                const QString name = QStringLiteral("NEW_%1_%2").arg(column).arg(role);
                QVERIFY(model.setData(model.made(0, column, root.get()), name, role));
                QCOMPARE(root->getName(), name);
            }
        }
        QCOMPARE(changed.count(), 0);
    }

    void anInvalidIndexIsRefusedAndOneWithoutEntityIsNot()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        Open<EntityModel> model(root.get());
        QVERIFY(!model.setData(QModelIndex(), "NEW"));
        QVERIFY(!model.setData(model.made(-1, 0, root.get()), "NEW"));
        QVERIFY(!model.setData(model.made(0, -1, root.get()), "NEW"));
        QVERIFY(model.setData(model.made(0, 0, nullptr), "NEW"));
        QCOMPARE(root->getName(), QString("LAND"));
    }
};

QTEST_MAIN(tst_EntityModel)
#include "tst_EntityModel.moc"
