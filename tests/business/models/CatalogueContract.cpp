#include "tests/business/models/CatalogueContract.h"

#include "tests/business/models/Pictures.h"

#include <QStandardItemModel>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

const QStringList kThree = {"AGE", "SEX", "P12_JOB"};

/// Every row, its texts parted by bars.
QStringList rowsOf(const QAbstractItemModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts += model.data(model.index(row, column)).toString();
        rows += texts.join('|');
    }
    return rows;
}

} // namespace

void CatalogueContract::theModelBelongsToItsParent()
{
    QObject owner;
    const QAbstractItemModel *model = openWithoutList(&owner).release();
    QCOMPARE(model->QObject::parent(), &owner);
}

void CatalogueContract::withoutAListThereIsNothing()
{
    const std::unique_ptr<QAbstractItemModel> model = openWithoutList(nullptr);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), textsOfRow("AGE", 1).size());
    QVERIFY(!model->index(0, 0).isValid());
}

void CatalogueContract::anEmptyListShowsNothing()
{
    const std::unique_ptr<Catalogue> catalogue = open({});
    QCOMPARE(catalogue->model().rowCount(), 0);
    QVERIFY(!catalogue->model().index(0, 0).isValid());
}

void CatalogueContract::itemsAreTheRowsInOrder()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    QCOMPARE(model.columnCount(), textsOfRow("AGE", 1).size());
    QStringList expected;
    for (int i = 0; i < kThree.size(); ++i)
        expected += textsOfRow(kThree.at(i), i + 1).join('|');
    QCOMPARE(rowsOf(model), expected);
    for (int i = 0; i < kThree.size(); ++i) {
        for (int column = 0; column < model.columnCount(); ++column)
            QCOMPARE(catalogue->textOf(i, column), QVariant(expected.at(i).split('|').at(column)));
    }
}

void CatalogueContract::theListIsCopiedAndTheItemsAreNot()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    const QStringList before = rowsOf(catalogue->model());
    catalogue->appendToTheGivenList("LATER");
    QCOMPARE(rowsOf(catalogue->model()), before);
    catalogue->clearTheGivenList();
    QCOMPARE(rowsOf(catalogue->model()), before);
    for (int row = 0; row < kThree.size(); ++row)
        QVERIFY(catalogue->model().index(row, 0).internalPointer() == catalogue->address(row));
}

void CatalogueContract::indexesAreThoseOfTheRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("the first row") << 0 << true;
    QTest::newRow("the last row") << 2 << true;
    QTest::newRow("below the last row") << 3 << false;
    QTest::newRow("far below") << INT_MAX << false;
    QTest::newRow("above the first row") << -1 << false;
    QTest::newRow("far above") << INT_MIN << false;
}
void CatalogueContract::indexesAreThoseOfTheRows()
{
    QFETCH(int, row);
    QFETCH(bool, isThere);
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex index = model.index(row, column);
        QCOMPARE(index.isValid(), isThere);
        if (!isThere)
            continue;
        QCOMPARE(index.row(), row);
        QCOMPARE(index.column(), column);
        QVERIFY(index.internalPointer() == catalogue->address(row));
        QCOMPARE(index.model(), &model);
    }
    QVERIFY(!model.index(row, 0, model.index(0, 0)).isValid());
    QStandardItemModel other(1, 1);
    QVERIFY(!model.index(row, 0, other.index(0, 0)).isValid());
}

void CatalogueContract::theColumnOfAnIndexIsCarriedUnchecked()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    for (const int column : {3, 77, INT_MAX}) {
        const QModelIndex index = catalogue->model().index(1, column);
        QVERIFY(index.isValid());
        QCOMPARE(index.column(), column);
        QVERIFY(index.internalPointer() == catalogue->address(1));
    }
    QVERIFY(!catalogue->model().index(1, -1).isValid());
}

void CatalogueContract::thereIsNothingBelowARowAndYetTheCountsAreThoseOfTheList()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    QStandardItemModel other(1, 1);
    for (const QModelIndex &index :
        {QModelIndex(), model.index(0, 0), model.index(2, 0), model.index(1, 7), other.index(0, 0)}) {
        QVERIFY(!model.parent(index).isValid());
        QCOMPARE(model.rowCount(index), 3);
        QCOMPARE(model.columnCount(index), textsOfRow("AGE", 1).size());
    }
}

void CatalogueContract::onlyTextsAndTheIconOfTheFirstColumnAreShown()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    for (int column = 0; column < model.columnCount() + 2; ++column) {
        QList<int> answered;
        for (int role = -2; role <= Qt::UserRole + 300; ++role) {
            if (model.data(model.index(0, column), role).isValid())
                answered += role;
        }
        for (const int role : {INT_MIN, INT_MAX})
            QVERIFY(!model.data(model.index(0, column), role).isValid());
        QList<int> expected;
        if (column < model.columnCount())
            expected += Qt::DisplayRole;
        if (column == 0)
            expected += Qt::DecorationRole;
        QCOMPARE(answered, expected);
    }
}

void CatalogueContract::theEditRoleShowsNothing()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    for (int column = 0; column < model.columnCount(); ++column) {
        QVERIFY(model.data(model.index(0, column), Qt::DisplayRole).isValid());
        QVERIFY(!model.data(model.index(0, column), Qt::EditRole).isValid());
    }
}

void CatalogueContract::thereIsNothingInOtherColumns()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    const int count = catalogue->model().columnCount();
    for (const int column : {INT_MIN, -1, count, count + 1, INT_MAX}) {
        QVERIFY(!catalogue->textOf(0, column).isValid());
        for (const int role : {Qt::DisplayRole, Qt::DecorationRole}) {
            QVERIFY(!catalogue->model().data(catalogue->made(0, column, 0), role).isValid());
            QVERIFY(!catalogue->model().data(catalogue->model().index(0, column), role).isValid());
        }
    }
}

void CatalogueContract::aNullItemIsARowThatShowsNothing()
{
    const std::unique_ptr<Catalogue> catalogue = open({"AGE", QString(), "SEX"});
    QAbstractItemModel &model = catalogue->model();
    QCOMPARE(model.rowCount(), 3);
    const QModelIndex index = model.index(1, 0);
    QVERIFY(index.isValid());
    QVERIFY(!index.internalPointer());
    for (int role = 0; role <= Qt::UserRole; ++role)
        QVERIFY(!model.data(index, role).isValid());
    for (int column = 0; column < model.columnCount(); ++column)
        QVERIFY(!catalogue->textOf(-1, column).isValid());
    QCOMPARE(open({QString(), "AGE"})->model().rowCount(), 2);
    QCOMPARE(open({QString()})->model().rowCount(), 1);
    // It has its place among the others.
    QCOMPARE(model.data(model.index(2, 0)).toString(), textsOfRow("SEX", 3).at(0));
    QCOMPARE(model.data(model.index(2, model.columnCount() - 1)).toString(), textsOfRow("SEX", 3).last());
}

void CatalogueContract::whatHasNoItemShowsNothing()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    const std::unique_ptr<Catalogue> other = open(kThree);
    for (const QModelIndex &index : {QModelIndex(), catalogue->made(0, 0, -1), catalogue->made(-1, 0, 0),
             catalogue->made(0, -1, 0), other->model().index(0, 0)}) {
        for (const int role : {Qt::DisplayRole, Qt::DecorationRole})
            QVERIFY(!catalogue->model().data(index, role).isValid());
    }
}

void CatalogueContract::theIconIsTheProjectsOwnPicture()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QCOMPARE(drawing(icon()).size(), QSize(48, 48));
    for (int row = 0; row < kThree.size(); ++row) {
        const QVariant decoration =
            catalogue->model().data(catalogue->model().index(row, 0), Qt::DecorationRole);
        QCOMPARE(shownBy(decoration), drawing(icon()));
    }
}

void CatalogueContract::oddNamesAreShownAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no name") << "";
    QTest::newRow("blanks alone") << "  ";
    QTest::newRow("blanks around it") << " \tAGE\n ";
    QTest::newRow("markup") << "<b>AGE</b> &amp;";
    QTest::newRow("quotes") << "\"AGE\" \\";
    QTest::newRow("places for arguments") << "%1 %2 %L1";
    QTest::newRow("a NUL") << QString(QChar(0)) + "AGE" + QChar(0);
    QTest::newRow("letters of many alphabets") << QString::fromUtf8(u8"Año Größe 年齢 возраст 😀");
    QTest::newRow("half a surrogate pair") << QString("A") + QChar(0xD800) + "B" + QChar(0xDC00);
    QTest::newRow("100,000 characters") << QString(100'000, 'x');
}
void CatalogueContract::oddNamesAreShownAsTheyAre()
{
    QFETCH(QString, name);
    const std::unique_ptr<Catalogue> catalogue = open({name});
    QAbstractItemModel &model = catalogue->model();
    for (int column = 0; column < model.columnCount(); ++column)
        QCOMPARE(model.data(model.index(0, column)), QVariant(textsOfRow(name, 1).at(column)));
}

} // namespace tessel::test
