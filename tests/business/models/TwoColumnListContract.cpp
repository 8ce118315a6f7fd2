#include "tests/business/models/TwoColumnListContract.h"

#include "tests/business/models/AllSignals.h"
#include "tests/business/models/ContextTranslator.h"

#include <QSignalSpy>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

const QStringList kRows{QStringLiteral("1|2"), QStringLiteral("3|4"), QStringLiteral("5|6")};

QString position(const QModelIndex &index)
{
    return index.isValid() ? QStringLiteral("%1, %2").arg(index.row()).arg(index.column())
                           : QStringLiteral("invalid");
}

} // namespace

void TwoColumnListContract::rowsAreTheVariablesObjectsInOrder_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("one row") << QStringList{"7|8"};
    QTest::newRow("three rows") << kRows;
    QTest::newRow("out of order and twice") << QStringList{"9|1", "3|5", "9|1", "-1|0"};
}
void TwoColumnListContract::rowsAreTheVariablesObjectsInOrder()
{
    QFETCH(QStringList, rows);
    const auto tested = open(rows);
    QCOMPARE(shownRows(tested->model()), rows);
    for (int row = 0; row < rows.size(); ++row) {
        for (const int column : {0, 1, 2}) {
            const QModelIndex index = tested->model().index(row, column);
            QCOMPARE(index.internalPointer(), tested->object(row));
            QCOMPARE(index.model(), &tested->model());
        }
    }
}

void TwoColumnListContract::indexes_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("hasParent");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first cell") << 0 << 0 << false << "0, 0";
    QTest::newRow("last cell") << 2 << 1 << false << "2, 1";
    QTest::newRow("behind the last row") << 3 << 0 << false << "invalid";
    QTest::newRow("highest row") << INT_MAX << 0 << false << "invalid";
    QTest::newRow("row -1") << -1 << 0 << false << "invalid";
    QTest::newRow("lowest row") << INT_MIN << 0 << false << "invalid";
    QTest::newRow("column 2 is not checked") << 0 << 2 << false << "0, 2";
    QTest::newRow("the highest column is not checked") << 1 << INT_MAX << false << "1, 2147483647";
    QTest::newRow("column -1 makes the index invalid by itself") << 0 << -1 << false << "invalid";
    QTest::newRow("below another cell") << 0 << 0 << true << "invalid";
    QTest::newRow("below another cell, behind the last row") << 3 << 0 << true << "invalid";
}
void TwoColumnListContract::indexes()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(bool, hasParent);
    const auto tested = open(kRows);
    const QModelIndex parent = hasParent ? tested->model().index(1, 0) : QModelIndex();
    QTEST(position(tested->model().index(row, column, parent)), "expected");
}

void TwoColumnListContract::everyIndexIsWithoutParent()
{
    const auto tested = open(kRows);
    QAbstractItemModel &model = tested->model();
    for (const QModelIndex &index : {QModelIndex(), model.index(0, 0), model.index(2, 1), model.index(1, 9),
             tested->made(-1, 0, tested->object(0)), tested->made(0, 0, nullptr)})
        QCOMPARE(model.parent(index), QModelIndex());
}

void TwoColumnListContract::theSizesAreTheSameForEveryParent()
{
    const auto tested = open(kRows);
    QAbstractItemModel &model = tested->model();
    for (const QModelIndex &parent : {QModelIndex(), model.index(0, 0), model.index(2, 1), model.index(1, 9),
             tested->made(0, 0, nullptr)}) {
        QCOMPARE(model.rowCount(parent), 3);
        QCOMPARE(model.columnCount(parent), 2);
    }
}

void TwoColumnListContract::headers_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("expected");
    const int display = Qt::DisplayRole;
    QTest::newRow("column 0") << 0 << Qt::Horizontal << display << QVariant(header(0));
    QTest::newRow("column 1") << 1 << Qt::Horizontal << display << QVariant(header(1));
    QTest::newRow("column 2") << 2 << Qt::Horizontal << display << QVariant();
    QTest::newRow("column -1") << -1 << Qt::Horizontal << display << QVariant();
    QTest::newRow("highest column") << INT_MAX << Qt::Horizontal << display << QVariant();
    QTest::newRow("row 0 has no text, not even a number") << 0 << Qt::Vertical << display << QVariant();
    QTest::newRow("row 1 has no text") << 1 << Qt::Vertical << display << QVariant();
    for (const int role : {int(Qt::EditRole), int(Qt::DecorationRole), int(Qt::ToolTipRole),
             int(Qt::TextAlignmentRole), int(Qt::FontRole), int(Qt::UserRole), -1})
        QTest::addRow("column 0, role %d", role) << 0 << Qt::Horizontal << role << QVariant();
}
void TwoColumnListContract::headers()
{
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    const auto tested = open(kRows);
    QTEST(tested->model().headerData(section, orientation, role), "expected");
}

void TwoColumnListContract::headersAreTranslatedInTheContextOfTheClass()
{
    const auto tested = open({});
    const ContextTranslator translator;
    const QString context = QString::fromLatin1(tested->model().metaObject()->className());
    for (const int column : {0, 1})
        QCOMPARE(
            tested->model().headerData(column, Qt::Horizontal), QVariant(context + ": " + header(column)));
}

void TwoColumnListContract::onlyDisplayAndEditRolesAreAnswered()
{
    const auto tested = open(kRows);
    for (int column = 0; column < 2; ++column) {
        const QModelIndex index = tested->model().index(1, column);
        QList<int> answered;
        for (int role = -2; role <= Qt::UserRole + 20; ++role) {
            if (tested->model().data(index, role).isValid())
                answered += role;
        }
        QCOMPARE(answered, QList<int>({Qt::DisplayRole, Qt::EditRole}));
        QCOMPARE(tested->model().data(index, Qt::EditRole), tested->model().data(index, Qt::DisplayRole));
        QCOMPARE(tested->model().data(index), tested->itemData(tested->object(1), column));
    }
}

void TwoColumnListContract::otherColumnsShowNothing()
{
    const auto tested = open(kRows);
    for (const int column : {2, 3, INT_MAX, -1, INT_MIN}) {
        QVERIFY(!tested->itemData(tested->object(0), column).isValid());
        for (const int role : {Qt::DisplayRole, Qt::EditRole})
            QVERIFY(!tested->model().data(tested->model().index(0, column), role).isValid());
    }
}

void TwoColumnListContract::theFlagsOfValidIndexesAllowEditingWhateverTheColumn_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::ItemFlags>("expected");
    const Qt::ItemFlags editable = Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
    QTest::newRow("column 0") << 0 << 0 << editable;
    QTest::newRow("column 1") << 1 << 1 << editable;
    QTest::newRow("column 2") << 0 << 2 << editable;
    QTest::newRow("a row without an object") << 2 << 0 << editable;
    QTest::newRow("behind the last row") << 3 << 0 << Qt::ItemFlags();
    QTest::newRow("column -1") << 0 << -1 << Qt::ItemFlags();
}
void TwoColumnListContract::theFlagsOfValidIndexesAllowEditingWhateverTheColumn()
{
    QFETCH(int, row);
    QFETCH(int, column);
    const auto tested = open({"1|2", "3|4", "null"});
    QTEST(tested->model().flags(tested->model().index(row, column)), "expected");
}

void TwoColumnListContract::everyEditIsAnnouncedAndTrueWhateverTheRoleAndColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("expected");
    const int edit = Qt::EditRole;
    QTest::newRow("column 0") << 0 << edit << "70|4";
    QTest::newRow("column 1") << 1 << edit << "3|70";
    QTest::newRow("another column changes nothing") << 2 << edit << "3|4";
    QTest::newRow("the highest column changes nothing") << INT_MAX << edit << "3|4";
    for (const int role : {int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::ToolTipRole),
             int(Qt::CheckStateRole), int(Qt::UserRole), -1}) {
        for (const int column : {0, 1, 2})
            QTest::addRow("column %d, role %d changes nothing", column, role) << column << role << "3|4";
    }
}
void TwoColumnListContract::everyEditIsAnnouncedAndTrueWhateverTheRoleAndColumn()
{
    QFETCH(int, column);
    QFETCH(int, role);
    QFETCH(QString, expected);
    const auto tested = open(kRows);
    QAbstractItemModel &model = tested->model();
    const QModelIndex index = model.index(1, column);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const AllSignals all(model);
    QVERIFY(model.setData(index, "70", role));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0), QVariantList({index, index, QVariant::fromValue(QVector<int>())}));
    QCOMPARE(all.count(), 1);
    QCOMPARE(tested->stored(), QStringList({"1|2", expected, "5|6"}));
    QCOMPARE(shownRows(model), QStringList({"1|2", expected, "5|6"}));
}

void TwoColumnListContract::anEditThatChangesNothingIsAnnounced()
{
    const auto tested = open(kRows);
    QSignalSpy changed(&tested->model(), &QAbstractItemModel::dataChanged);
    QVERIFY(tested->model().setData(tested->model().index(0, 0), "1", Qt::EditRole));
    QVERIFY(tested->model().setData(tested->model().index(0, 0), "1", Qt::EditRole));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(tested->stored(), kRows);
}

void TwoColumnListContract::theEditRoleIsTheUsualOne()
{
    const auto tested = open(kRows);
    QVERIFY(tested->model().setData(tested->model().index(0, 1), "9"));
    QCOMPARE(tested->stored(), QStringList({"1|9", "3|4", "5|6"}));
}

void TwoColumnListContract::editsWithoutObjectAreRefusedSilently()
{
    const auto tested = open(kRows);
    void *object = tested->object(0);
    const AllSignals all(tested->model());
    for (const QModelIndex &index : {QModelIndex(), tested->model().index(3, 0), tested->made(-1, 0, object),
             tested->made(0, -1, object), tested->made(0, 0, nullptr), tested->made(0, 5, nullptr)}) {
        for (const int role : {Qt::EditRole, Qt::DisplayRole, Qt::UserRole})
            QVERIFY(!tested->model().setData(index, "70", role));
    }
    QCOMPARE(all.count(), 0);
    QCOMPARE(tested->stored(), kRows);
}

void TwoColumnListContract::theRowsAreThoseOfTheTimeWhenTheModelWasMade()
{
    const auto tested = open(kRows);
    const AllSignals all(tested->model());
    tested->append("7|8");
    QCOMPARE(shownRows(tested->model()), kRows);
    tested->takeFirst();
    QCOMPARE(tested->stored(), QStringList({"3|4", "5|6", "7|8"}));
    QCOMPARE(shownRows(tested->model()), kRows);
    QCOMPARE(all.count(), 0);
    QCOMPARE(shownRows(*openOver(&tested->variable(), nullptr)), QStringList({"3|4", "5|6", "7|8"}));
}

void TwoColumnListContract::changesMadeElsewhereAreShownAndNotAnnounced()
{
    const auto tested = open(kRows);
    const AllSignals all(tested->model());
    tested->set(1, "30|40");
    QCOMPARE(shownRows(tested->model()), QStringList({"1|2", "30|40", "5|6"}));
    QCOMPARE(all.count(), 0);
}

void TwoColumnListContract::twoModelsEditTheSameObjects()
{
    const auto tested = open(kRows);
    const auto other = openOver(&tested->variable(), nullptr);
    const AllSignals all(*other);
    QVERIFY(tested->model().setData(tested->model().index(2, 1), "60", Qt::EditRole));
    QCOMPARE(shownRows(*other), QStringList({"1|2", "3|4", "5|60"}));
    QCOMPARE(all.count(), 0);
}

void TwoColumnListContract::aRowWithoutObjectShowsNothingAndIsRefused()
{
    const auto tested = open({"1|2", "null", "5|6"});
    QAbstractItemModel &model = tested->model();
    QCOMPARE(shownRows(model), QStringList({"1|2", "|", "5|6"}));
    QVERIFY(model.index(1, 0).isValid());
    QCOMPARE(model.index(1, 0).internalPointer(), nullptr);
    const AllSignals all(model);
    for (const int column : {0, 1, 2}) {
        QVERIFY(!tested->itemData(nullptr, column).isValid());
        for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::DecorationRole}) {
            QVERIFY(!model.data(model.index(1, column), role).isValid());
            QVERIFY(!model.setData(model.index(1, column), "70", role));
        }
    }
    QCOMPARE(all.count(), 0);
    QCOMPARE(tested->stored(), QStringList({"1|2", "null", "5|6"}));
}

void TwoColumnListContract::aVariableWithoutRowsIsAnEmptyTable()
{
    const auto tested = open({});
    QCOMPARE(tested->model().rowCount(), 0);
    QCOMPARE(tested->model().columnCount(), 2);
    QCOMPARE(tested->model().index(0, 0), QModelIndex());
    QCOMPARE(tested->model().headerData(0, Qt::Horizontal), QVariant(header(0)));
}

void TwoColumnListContract::aNullVariableIsAnEmptyTable()
{
    const auto model = openOver(nullptr, nullptr);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 2);
    QCOMPARE(model->index(0, 0), QModelIndex());
    QCOMPARE(model->headerData(1, Qt::Horizontal), QVariant(header(1)));
    QVERIFY(!model->data(QModelIndex()).isValid());
    QVERIFY(!model->setData(QModelIndex(), "70"));
}

void TwoColumnListContract::rowsCannotBeInsertedOrRemoved()
{
    const auto tested = open(kRows);
    const AllSignals all(tested->model());
    QVERIFY(!tested->model().insertRows(0, 1));
    QVERIFY(!tested->model().removeRows(0, 1));
    QVERIFY(!tested->model().insertColumns(0, 1));
    QVERIFY(!tested->model().removeColumns(0, 1));
    QCOMPARE(all.count(), 0);
    QCOMPARE(shownRows(tested->model()), kRows);
}

void TwoColumnListContract::indexesOfAnotherModelShowNothingAndAreRefused()
{
    const auto tested = open(kRows);
    const auto other = open({"70|80"});
    const QModelIndex foreign = other->model().index(0, 0);
    const AllSignals all(tested->model());
    QVERIFY(!tested->model().data(foreign).isValid());
    QVERIFY(!tested->model().setData(foreign, "90"));
    QCOMPARE(all.count(), 0);
    QCOMPARE(other->stored(), QStringList{"70|80"});
}

void TwoColumnListContract::theModelBelongsToItsParent()
{
    const auto tested = open(kRows);
    QObject owner;
    const auto model = openOver(&tested->variable(), &owner);
    QCOMPARE(model->QObject::parent(), &owner);
}

void TwoColumnListContract::theObjectsOutliveTheModel()
{
    const auto variable = open(kRows);
    openOver(&variable->variable(), nullptr).reset();
    QCOMPARE(variable->stored(), kRows);
    QCOMPARE(shownRows(variable->model()), kRows);
}

} // namespace tessel::test
