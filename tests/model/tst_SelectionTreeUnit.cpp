#include "model/SelectionTreeUnit.h"

#include "tests/model/Fields.h"
#include "tests/model/SmallStack.h"

#include <QStandardItemModel>
#include <QtTest>

#include <climits>
#include <memory>

using tessel::test::field;
using tessel::test::Fields;

using Area = std::pair<std::string, std::string>;

static_assert(tessel::test::isNeitherCopiedNorMoved<SelectionTreeUnit>);
static_assert(!std::is_polymorphic_v<SelectionTreeUnit>);
static_assert(std::is_same_v<decltype(&SelectionTreeUnit::getChildren),
    QList<SelectionTreeUnit *> *(SelectionTreeUnit::*)() const>);
static_assert(
    std::is_same_v<decltype(&SelectionTreeUnit::addChild), void (SelectionTreeUnit::*)(SelectionTreeUnit *)>);
static_assert(std::is_same_v<decltype(&SelectionTreeUnit::getArea), Area (SelectionTreeUnit::*)() const>);
static_assert(
    std::is_same_v<decltype(&SelectionTreeUnit::setArea), void (SelectionTreeUnit::*)(const Area &)>);
static_assert(
    std::is_same_v<decltype(&SelectionTreeUnit::getIndex), QModelIndex (SelectionTreeUnit::*)() const>);
static_assert(
    std::is_same_v<decltype(&SelectionTreeUnit::setIndex), void (SelectionTreeUnit::*)(const QModelIndex &)>);

namespace {

const Fields<SelectionTreeUnit> kFields = {
    field("name", &SelectionTreeUnit::getName, &SelectionTreeUnit::setName),
    field("code", &SelectionTreeUnit::getCode, &SelectionTreeUnit::setCode),
    tessel::test::makeField<SelectionTreeUnit>(
        "level", &SelectionTreeUnit::getLevel, &SelectionTreeUnit::setLevel, 1, 7),
    field("unitState", &SelectionTreeUnit::getUnitState, &SelectionTreeUnit::setUnitState, 2),
};

} // namespace

class tst_SelectionTreeUnit : public QObject {
    Q_OBJECT

private slots:
    void aFreshUnitIsAnEmptyRootThatIsNotSelected()
    {
        const SelectionTreeUnit unit;
        QCOMPARE(kFields.describe(unit), QStringList({"name: ", "code: ", "level: 1", "unitState: 0"}));
        QVERIFY(unit.getArea() == Area());
        QCOMPARE(unit.getIndex(), QModelIndex());
        QVERIFY(unit.getChildren());
        QCOMPARE(unit.getChildren()->size(), 0);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void theAreaIsKeptByteForByte()
    {
        SelectionTreeUnit unit;
        const Area area(u8"Área", std::string("\xff\0B", 3));
        unit.setArea(area);
        QVERIFY(unit.getArea() == area);
        QCOMPARE(kFields.describe(unit), kFields.describeInitial());
        unit.setArea({});
        QVERIFY(unit.getArea() == Area());
    }

    void anyNumberIsKeptAsGiven()
    {
        SelectionTreeUnit unit;
        for (const int number : {-1, 0, 1, 2, 3, INT_MAX, INT_MIN}) {
            unit.setLevel(number);
            unit.setUnitState(number);
            QCOMPARE(unit.getLevel(), number);
            QCOMPARE(unit.getUnitState(), number);
        }
    }

    void theIndexIsKeptUntilAnotherOneComes()
    {
        const QStandardItemModel model(2, 3);
        SelectionTreeUnit unit;
        unit.setIndex(model.index(1, 2));
        QCOMPARE(unit.getIndex(), model.index(1, 2));
        unit.setIndex(QModelIndex());
        QCOMPARE(unit.getIndex(), QModelIndex());
    }

    void childrenAreAppendedInOrderAndTheirLevelsStayAsTheyAre()
    {
        SelectionTreeUnit root;
        auto *first = new SelectionTreeUnit;
        auto *second = new SelectionTreeUnit;
        root.addChild(first);
        root.addChild(second);
        QCOMPARE(*root.getChildren(), QList<SelectionTreeUnit *>({first, second}));
        QCOMPARE(first->getLevel(), 1);
        QCOMPARE(first->getChildren()->size(), 0);
    }

    void theChildListIsTheUnitsOwnAndNoCopy()
    {
        SelectionTreeUnit root;
        auto *child = new SelectionTreeUnit;
        root.getChildren()->append(child);
        QCOMPARE(root.getChildren(), root.getChildren());
        QCOMPARE(root.getChildren()->size(), 1);
        // What is taken out is no longer the unit's.
        const std::unique_ptr<SelectionTreeUnit> taken(root.getChildren()->takeFirst());
        QCOMPARE(taken.get(), child);
    }

    void nullChildrenArePassedByWhenTheTreeIsFreed()
    {
        SelectionTreeUnit root;
        root.addChild(nullptr);
        root.addChild(new SelectionTreeUnit);
        root.getChildren()->last()->addChild(nullptr);
        QCOMPARE(root.getChildren()->size(), 2);
    }

    void aDeepTreeIsFreedOnASmallStack_data()
    {
        QTest::addColumn<int>("leavesBefore");
        QTest::newRow("each the only child") << 0;
        QTest::newRow("each the last of two children") << 1;
    }
    void aDeepTreeIsFreedOnASmallStack()
    {
        QFETCH(int, leavesBefore);
        auto root = std::make_unique<SelectionTreeUnit>();
        SelectionTreeUnit *last = root.get();
        for (int level = 0; level < 250'000; ++level) {
            for (int leaf = 0; leaf <= leavesBefore; ++leaf)
                last->addChild(new SelectionTreeUnit);
            last = last->getChildren()->last();
        }
        QVERIFY(tessel::test::runOnSmallStack([&root] { root.reset(); }));
        QVERIFY(!root);
    }
};

QTEST_APPLESS_MAIN(tst_SelectionTreeUnit)
#include "tst_SelectionTreeUnit.moc"
