#include "model/MetadataVariables.h"

#include "model/Range.h"
#include "tests/model/Fields.h"

#include <QtTest>

#include <memory>

using tessel::test::field;
using tessel::test::Fields;

static_assert(tessel::test::isNeitherCopiedNorMoved<MetadataVariables>);
static_assert(!std::is_polymorphic_v<MetadataVariables>);
static_assert(
    std::is_same_v<decltype(&MetadataVariables::getRange), QList<Range *> *(MetadataVariables::*)() const>);
static_assert(
    std::is_same_v<decltype(&MetadataVariables::setRange), void (MetadataVariables::*)(QList<Range *> *)>);
static_assert(
    std::is_same_v<decltype(&MetadataVariables::addItemRange), void (MetadataVariables::*)(Range *)>);

namespace {

const Fields<MetadataVariables> kFields = {
    field("record", &MetadataVariables::getRecord, &MetadataVariables::setRecord),
    field("field", &MetadataVariables::getField, &MetadataVariables::setField),
    field("start", &MetadataVariables::getStart, &MetadataVariables::setStart, 31),
    field("length", &MetadataVariables::getLength, &MetadataVariables::setLength, 4),
    field("lookup", &MetadataVariables::getLookup, &MetadataVariables::setLookup),
};

Range *newRange(double min)
{
    auto *range = new Range;
    range->setRangeMin(min);
    return range;
}

QList<double> minima(const MetadataVariables &layout)
{
    QList<double> all;
    for (const Range *range : qAsConst(*layout.getRange()))
        all += range->getRangeMin();
    return all;
}

} // namespace

class tst_MetadataVariables : public QObject {
    Q_OBJECT

private slots:
    void everyFieldOfAFreshLayoutIsEmptyZeroOrFalse()
    {
        const MetadataVariables layout;
        const QStringList expected = {"record: ", "field: ", "start: 0", "length: 0", "lookup: false"};
        QCOMPARE(kFields.describe(layout), expected);
    }

    void eachFieldIsItsOwn_data() { kFields.addRows(); }
    void eachFieldIsItsOwn()
    {
        QFETCH(int, which);
        kFields.checkThatOneStandsAlone(which);
    }

    void aFreshLayoutHasAnEmptyRangeListOfItsOwn()
    {
        const MetadataVariables one;
        const MetadataVariables other;
        QVERIFY(one.getRange());
        QCOMPARE(one.getRange()->size(), 0);
        QVERIFY(one.getRange() != other.getRange());
    }

    void rangesAreAppendedInOrder()
    {
        MetadataVariables layout;
        QList<Range *> *const list = layout.getRange();
        layout.addItemRange(newRange(3.0));
        layout.addItemRange(newRange(1.0));
        QCOMPARE(layout.getRange(), list);
        QCOMPARE(minima(layout), QList<double>({3.0, 1.0}));
    }

    void theRangeListIsTheLayoutsOwnAndNoCopy()
    {
        MetadataVariables layout;
        *layout.getRange() = {newRange(1.0), newRange(2.0)};
        delete layout.getRange()->takeFirst();
        QCOMPARE(minima(layout), QList<double>({2.0}));
    }

    void setRangeTakesTheListItself()
    {
        MetadataVariables layout;
        auto *list = new QList<Range *>({newRange(1.0)});
        layout.setRange(list);
        QCOMPARE(layout.getRange(), list);
        layout.addItemRange(newRange(2.0));
        QCOMPARE(list->size(), 2);
        QCOMPARE(minima(layout), QList<double>({1.0, 2.0}));
    }

    void setRangeFreesTheReplacedListAndNotTheRangesInIt()
    {
        MetadataVariables layout;
        const std::unique_ptr<Range> first(newRange(1.0));
        layout.addItemRange(first.get());
        const std::unique_ptr<Range> second(newRange(2.0));
        layout.setRange(new QList<Range *>({second.get()}));
        layout.setRange(new QList<Range *>({newRange(3.0)}));
        QCOMPARE(first->getRangeMin(), 1.0);
        QCOMPARE(second->getRangeMin(), 2.0);
        QCOMPARE(minima(layout), QList<double>({3.0}));
    }

    void theRangesOfAReplacedListMayGoOnInTheNewOne()
    {
        MetadataVariables layout;
        layout.addItemRange(newRange(1.0));
        layout.addItemRange(newRange(2.0));
        layout.setRange(new QList<Range *>(*layout.getRange()));
        QCOMPARE(minima(layout), QList<double>({1.0, 2.0}));
        layout.setRange(new QList<Range *>(*layout.getRange()));
        QCOMPARE(minima(layout), QList<double>({1.0, 2.0}));
    }

    void handingBackTheHeldListChangesNothing()
    {
        MetadataVariables layout;
        layout.addItemRange(newRange(1.0));
        layout.setRange(layout.getRange());
        QCOMPARE(minima(layout), QList<double>({1.0}));

        MetadataVariables replaced;
        replaced.setRange(new QList<Range *>({newRange(2.0)}));
        replaced.setRange(replaced.getRange());
        QCOMPARE(minima(replaced), QList<double>({2.0}));
    }

    void aNullRangeListIsKept()
    {
        MetadataVariables layout;
        layout.setRange(nullptr);
        QCOMPARE(layout.getRange(), nullptr);
    }

    void addingToANullRangeListMakesAList()
    {
        MetadataVariables layout;
        layout.setRange(nullptr);
        layout.addItemRange(newRange(1.0));
        QVERIFY(layout.getRange());
        QCOMPARE(minima(layout), QList<double>({1.0}));
    }

    void addingToANullRangeListDoesNotBringBackTheRangesOfAReplacedOne()
    {
        MetadataVariables layout;
        const std::unique_ptr<Range> dropped(newRange(1.0));
        layout.addItemRange(dropped.get());
        layout.setRange(nullptr);
        layout.addItemRange(newRange(2.0));
        const QList<double> found = minima(layout);
        layout.getRange()->removeAll(dropped.get()); // Freed here, once, whatever the layout made of it.
        QCOMPARE(found, QList<double>({2.0}));
    }

    void nullRangesArePassedOverByTheDestructor()
    {
        MetadataVariables layout;
        layout.addItemRange(nullptr);
        layout.addItemRange(newRange(1.0));
        QCOMPARE(layout.getRange()->size(), 2);
    }
};

QTEST_APPLESS_MAIN(tst_MetadataVariables)
#include "tst_MetadataVariables.moc"
