#include "tests/business/models/EntityTreeContract.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/TreeText.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

constexpr int kLastRole = Qt::UserRole + 2;

std::unique_ptr<TDmEntity> land()
{
    return treeFrom<TDmEntity>("LAND(HOUSE(PERSON(JOB) DEATH ROOM(BED)) FARM ROAD(CAR(SEAT)))");
}

QList<int> rolesAnswered(const QAbstractItemModel &model, const QModelIndex &index)
{
    QList<int> roles;
    for (int role = 0; role <= kLastRole; ++role) {
        if (model.data(index, role).isValid())
            roles += role;
    }
    return roles;
}

} // namespace

void EntityTreeContract::theHeaderIsTheSameForEverySectionAndOrientation()
{
    const auto root = land();
    const auto tested = open(root.get());
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const int section : {INT_MIN, -1, 0, 1, 2, INT_MAX}) {
            for (int role = 0; role <= kLastRole; ++role) {
                const QVariant expected = role == Qt::DisplayRole ? QVariant("Entity") : QVariant();
                QCOMPARE(tested->model().headerData(section, orientation, role), expected);
            }
        }
    }
    QCOMPARE(tested->model().headerData(0, Qt::Vertical), QVariant("Entity"));
}

void EntityTreeContract::theHeaderIsTranslatedInTheContextOfTheClass()
{
    const auto root = land();
    const auto tested = open(root.get());
    const ContextTranslator translator;
    QCOMPARE(tested->model().headerData(0, Qt::Horizontal).toString(),
        QLatin1String(tested->model().metaObject()->className()) + QLatin1String(": Entity"));
}

void EntityTreeContract::theNameIsTheItemDataOfColumnZero()
{
    const auto root = land();
    const auto tested = open(root.get());
    TDmEntity *farm = find(root.get(), "FARM");
    QCOMPARE(tested->textOf(farm, 0), QVariant("FARM"));
    QCOMPARE(tested->textOf(farm, 0).userType(), int(QMetaType::QString));
    for (const int column : {INT_MIN, -1, 1, 2, INT_MAX})
        QVERIFY(!tested->textOf(farm, column).isValid());
    QVERIFY(!tested->textOf(nullptr, 0).isValid());
}

void EntityTreeContract::onlyTheNamedRolesAreAnswered()
{
    const auto root = land();
    const auto tested = open(root.get());
    QCOMPARE(
        rolesAnswered(tested->model(), indexOf(tested->model(), find(root.get(), "ROOM"))), answeredRoles());
    QVERIFY(!tested->model().data(tested->model().index(0, 0), -1).isValid());
    QVERIFY(!tested->model().data(tested->model().index(0, 0), INT_MAX).isValid());
    QCOMPARE(tested->model().data(tested->model().index(0, 0)), QVariant("LAND"));
}

void EntityTreeContract::whatHasNoEntityShowsNothing()
{
    const auto root = land();
    root->setCheckDelete(true);
    const auto tested = open(root.get());
    const QModelIndexList empty = {QModelIndex(), tested->made(0, 0, nullptr),
        tested->made(-1, 0, root.get()), tested->made(0, -1, root.get()), tested->made(0, 1, root.get()),
        tested->made(0, INT_MAX, root.get())};
    for (const QModelIndex &index : empty)
        QCOMPARE(rolesAnswered(tested->model(), index), QList<int>());
}

void EntityTreeContract::oddNamesAreShownAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "  HOUSE  ";
    QTest::newRow("markup") << "<b>HOUSE</b>&amp;";
    QTest::newRow("control characters") << QString::fromLatin1("A\0B\n\t\x7f", 6);
    QTest::newRow("an unpaired surrogate") << QString(QChar(0xd800)) + "A";
    QTest::newRow("beyond U+FFFF") << QString::fromUcs4(U"\U00010400");
    QTest::newRow("100,000 characters") << QString(100'000, 'x');
}
void EntityTreeContract::oddNamesAreShownAsTheyAre()
{
    QFETCH(QString, name);
    const auto root = land();
    const auto tested = open(root.get());
    root->setName(name);
    QCOMPARE(tested->model().index(0, 0).data().toString(), name);
    QCOMPARE(tested->textOf(root.get(), 0).toString(), name);
}

void EntityTreeContract::theFlagsAreThoseOfTheClass()
{
    const auto root = land();
    const auto tested = open(root.get());
    const QAbstractItemModel &model = tested->model();
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(tested->made(-1, 0, root.get())), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(tested->made(0, -1, root.get())), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(model.index(0, 0)), flagsOfAnEntity());
    QCOMPARE(model.flags(indexOf(model, find(root.get(), "SEAT"))), flagsOfAnEntity());
    QCOMPARE(model.flags(tested->made(0, 1, root.get())), flagsOfAnEntity());
    QCOMPARE(model.flags(tested->made(0, 0, nullptr)), flagsOfAnEntity());
}

void EntityTreeContract::changesMadeElsewhereAreSeenAtTheNextCallAndNotAnnounced()
{
    const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
    const auto tested = open(root.get());
    QAbstractItemModel &model = tested->model();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QCOMPARE(drawn<TDmEntity>(model), QString("LAND(HOUSE)"));

    TDmEntity *farm = treeFrom<TDmEntity>("FARM(COW)").release();
    root->getChildren()->prepend(farm);
    QCOMPARE(drawn<TDmEntity>(model), QString("LAND(FARM(COW) HOUSE)"));
    QCOMPARE(written<TDmEntity>(model.parent(tested->made(0, 0, farm->getChildren()->first()))),
        QString("2, 0, FARM"));
    farm->setName("FIELD");
    QCOMPARE(model.index(0, 0, model.index(0, 0)).data(), QVariant("FIELD"));
    delete root->getChildren()->takeLast();
    QCOMPARE(drawn<TDmEntity>(model), QString("LAND(FIELD(COW))"));

    for (const QSignalSpy *spy : {&changed, &inserted, &removed, &reset})
        QCOMPARE(spy->count(), 0);
}

void EntityTreeContract::aNullChildIsARowThatShowsNothing()
{
    const auto root = land();
    root->getChildren()->insert(1, nullptr);
    root->getChildren()->append(nullptr);
    const auto tested = open(root.get());
    QAbstractItemModel &model = tested->model();
    const QModelIndex empty = model.index(1, 0, model.index(0, 0));
    QCOMPARE(written<TDmEntity>(empty), QString("1, 0, null"));
    QCOMPARE(model.rowCount(empty), 0);
    QVERIFY(!model.index(0, 0, empty).isValid());
    QVERIFY(!model.parent(empty).isValid());
    QCOMPARE(rolesAnswered(model, empty), QList<int>());
    QCOMPARE(model.setData(empty, "NEW"), answerWithoutEntity());
    // The search passes by.
    QCOMPARE(
        written<TDmEntity>(model.parent(tested->made(0, 0, find(root.get(), "SEAT")))), QString("4, 0, CAR"));
    const auto stranger = treeFrom<TDmEntity>("ELSEWHERE");
    stranger->setLevel(2);
    QVERIFY(!model.parent(tested->made(0, 0, stranger.get())).isValid());
}

void EntityTreeContract::anEntityWithoutAListHasNoRows()
{
    const auto root = land();
    find(root.get(), "FARM")->setChildren(nullptr);
    const auto tested = open(root.get());
    QAbstractItemModel &model = tested->model();
    const QModelIndex farm = model.index(1, 0, model.index(0, 0));
    QCOMPARE(model.rowCount(farm), 0);
    QVERIFY(!model.index(0, 0, farm).isValid());
    TDmEntity *seat = root->getChildren()->last()->getChildren()->first()->getChildren()->first();
    QCOMPARE(written<TDmEntity>(model.parent(tested->made(0, 0, seat))), QString("4, 0, CAR"));
}

void EntityTreeContract::aModelOfNoRootShowsOneEmptyRow()
{
    const auto tested = open(nullptr);
    QAbstractItemModel &model = tested->model();
    QCOMPARE(model.rowCount(), 1);
    const QModelIndex top = model.index(0, 0);
    QCOMPARE(written<TDmEntity>(top), QString("0, 0, null"));
    QCOMPARE(model.rowCount(top), 0);
    QVERIFY(!model.parent(top).isValid());
    QCOMPARE(rolesAnswered(model, top), QList<int>());
    QCOMPARE(model.setData(top, "NEW"), answerWithoutEntity());
    TDmEntity stranger;
    QVERIFY(!model.parent(tested->made(0, 0, &stranger)).isValid());
}

void EntityTreeContract::indexesOfAnotherModelAreLikeThoseWithoutEntity()
{
    const auto root = land();
    const auto tested = open(root.get());
    const auto otherRoot = treeFrom<TDmEntity>("OTHER(HOUSE(PERSON))");
    otherRoot->setCheckDelete(true);
    const auto sameClass = open(otherRoot.get());
    QStandardItemModel otherClass(2, 2);
    otherClass.setItem(0, new QStandardItem("ITEM"));
    otherClass.item(0)->appendRow(new QStandardItem("BELOW"));

    QAbstractItemModel &model = tested->model();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndexList foreign = {sameClass->model().index(0, 0),
        sameClass->made(0, 0, find(otherRoot.get(), "HOUSE")), otherClass.index(0, 0), otherClass.index(1, 1),
        otherClass.index(0, 0, otherClass.index(0, 0))};
    for (const QModelIndex &index : foreign) {
        QVERIFY(index.isValid());
        QCOMPARE(model.rowCount(index), 0);
        QCOMPARE(model.columnCount(index), 1);
        QVERIFY(!model.index(0, 0, index).isValid());
        QVERIFY(!model.parent(index).isValid());
        QCOMPARE(rolesAnswered(model, index), QList<int>());
        QCOMPARE(model.setData(index, "NEW"), answerWithoutEntity());
        model.flags(index);
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(drawn<TDmEntity>(sameClass->model()), QString("OTHER(HOUSE(PERSON))"));
    QCOMPARE(otherClass.item(0)->text(), QString("ITEM"));
}

void EntityTreeContract::theTreeOutlivesTheModel()
{
    const auto root = treeFrom<TDmEntity>("LAND(HOUSE(PERSON) FARM)");
    open(root.get()).reset();
    QCOMPARE(drawn<TDmEntity>(open(root.get())->model()), QString("LAND(HOUSE(PERSON) FARM)"));
}

} // namespace tessel::test
