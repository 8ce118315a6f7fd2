#include "business/models/EntityExpressionModel.h"

#include "tests/business/models/TermListContract.h"

#include <QtTest>

#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, EntityExpressionModel>);
static_assert(
    std::is_constructible_v<EntityExpressionModel, QObject *, QList<TDmEntity *> *, eEntityShowMode>);
static_assert(
    std::is_same_v<decltype(std::declval<EntityExpressionModel>().getData()), QList<TDmEntity *> *>);
static_assert(std::is_same_v<
    decltype(std::declval<EntityExpressionModel>().getItemData(std::declval<TDmEntity *>(), 0)), QVariant>);

class tst_EntityExpressionModel : public TermListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenExpressionList> open(
        const QStringList &names, int mode, QObject *parent) const override
    {
        return std::make_unique<OpenList<EntityExpressionModel, TDmEntity>>(names, mode, parent);
    }
    std::unique_ptr<OpenExpressionList> openWithoutList() const override
    {
        return std::make_unique<OpenList<EntityExpressionModel, TDmEntity>>();
    }

private slots:
    void nothingButNameAndLabelIsShown()
    {
        TDmEntity entity;
        entity.setName("HOUSE");
        entity.setLabel("Dwelling");
        entity.setAlias("ALIAS");
        entity.setDocumentationEntity("TEXT");
        entity.getChildren()->append(new TDmEntity);
        QList<TDmEntity *> entities = {&entity};
        const auto shown = [&](eEntityShowMode mode) {
            return EntityExpressionModel(nullptr, &entities, mode).getItemData(&entity, 0);
        };
        QCOMPARE(shown(ShowName), QVariant("HOUSE"));
        QCOMPARE(shown(ShowLabel), QVariant("Dwelling"));
        QCOMPARE(shown(ShowNameAndLabel), QVariant("HOUSE - Dwelling"));
        // Children are no rows of the list.
        const EntityExpressionModel model(nullptr, &entities, ShowName);
        QCOMPARE(model.rowCount(), 1);
        QVERIFY(!model.index(0, 0, model.index(0, 0)).isValid());
    }

    void theModesAreNumberedFromZero()
    {
        QCOMPARE(int(ShowName), 0);
        QCOMPARE(int(ShowLabel), 1);
        QCOMPARE(int(ShowNameAndLabel), 2);
        static_assert(std::is_convertible_v<eEntityShowMode, int>, "callers pass it as a number too");
    }
};

QTEST_MAIN(tst_EntityExpressionModel)
#include "tst_EntityExpressionModel.moc"
