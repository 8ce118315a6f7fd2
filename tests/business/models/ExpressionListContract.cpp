#include "tests/business/models/ExpressionListContract.h"

#include "tests/business/models/Announcements.h"

#include <QIcon>
#include <QMimeData>
#include <QStringListModel>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

const QStringList kThree = {"A", "B", "C"};
constexpr int kLastRole = Qt::UserRole + 5;

QString written(const QModelIndex &index)
{
    return index.isValid() ? QStringLiteral("%1,%2").arg(index.row()).arg(index.column())
                           : QStringLiteral("invalid");
}

// The form that a pixmap keeps on its own.
QImage pixels(const QImage &image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); }

} // namespace

void ExpressionListContract::theListBelongsToItsParent()
{
    QObject owner;
    const auto tested = open(kThree, ShowName, &owner);
    QCOMPARE(static_cast<QObject &>(tested->model()).parent(), &owner);
    QCOMPARE(static_cast<QObject &>(open(kThree)->model()).parent(), static_cast<QObject *>(nullptr));
}

void ExpressionListContract::theModeDecidesWhatIsShown_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("name") << 0;
    QTest::newRow("label") << 1;
    QTest::newRow("name and label") << 2;
}
void ExpressionListContract::theModeDecidesWhatIsShown()
{
    QFETCH(int, mode);
    const auto tested = open(kThree, mode);
    for (int row = 0; row < kThree.size(); ++row) {
        const QVariant expected(textOf(kThree.at(row), mode));
        QCOMPARE(tested->itemData(kThree.at(row), 0), expected);
        QCOMPARE(tested->model().data(tested->model().index(row, 0), Qt::DisplayRole), expected);
        QCOMPARE(tested->model().data(tested->model().index(row, 0)), expected);
        QCOMPARE(tested->model().index(row, 0).data().userType(), int(QMetaType::QString));
    }
}

void ExpressionListContract::anyOtherModeShowsNoText_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {3, 4, -1, 1000, INT_MAX, INT_MIN})
        QTest::newRow(qPrintable(QStringLiteral("mode %1").arg(mode))) << mode;
}
void ExpressionListContract::anyOtherModeShowsNoText()
{
    QFETCH(int, mode);
    const auto tested = open(kThree, mode);
    QCOMPARE(tested->listed(), kThree);
    QCOMPARE(tested->model().rowCount(), 3);
    QVERIFY(!tested->itemData("A", 0).isValid());
    QVERIFY(!tested->model().index(0, 0).data(Qt::DisplayRole).isValid());
    QVERIFY(!tested->model().index(0, 0).data(Qt::EditRole).isValid());
    QVERIFY(tested->model().index(0, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(tested->model().setData(tested->model().index(0, 0), "NEW"));
}

void ExpressionListContract::theColumnIsNotLookedAt()
{
    for (const int mode : {0, 1, 2}) {
        const auto tested = open(kThree, mode);
        for (const int column : {INT_MIN, -1, 0, 1, 2, INT_MAX})
            QCOMPARE(tested->itemData("B", column), QVariant(textOf("B", mode)));
        for (const int column : {0, 1, INT_MAX})
            QCOMPARE(tested->model().index(1, column).data(), QVariant(textOf("B", mode)));
    }
}

void ExpressionListContract::everyRowHasTheProjectsOwnPicture_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2, 3, -1})
        QTest::newRow(qPrintable(QStringLiteral("mode %1").arg(mode))) << mode;
}
void ExpressionListContract::everyRowHasTheProjectsOwnPicture()
{
    QFETCH(int, mode);
    const auto tested = open(kThree, mode);
    const QImage drawing = pixels(QImage(TESSEL_SOURCE_DIR "/resources/icons/48px-Project-preferences.png"));
    QCOMPARE(drawing.size(), QSize(48, 48));
    for (int row = 0; row < 3; ++row) {
        const QVariant decoration = tested->model().index(row, 0).data(Qt::DecorationRole);
        QCOMPARE(decoration.userType(), int(QMetaType::QIcon));
        const auto icon = decoration.value<QIcon>();
        QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(48, 48)}));
        QCOMPARE(pixels(icon.pixmap(48, 48).toImage()), drawing);
    }
}

void ExpressionListContract::thePictureStandsInTheFirstColumnOnly()
{
    const auto tested = open(kThree);
    QVERIFY(tested->model().index(0, 0).data(Qt::DecorationRole).isValid());
    for (const int column : {1, 2, INT_MAX})
        QVERIFY(!tested->model().index(0, column).data(Qt::DecorationRole).isValid());
}

void ExpressionListContract::onlyTwoRolesAreAnswered()
{
    const auto tested = open(kThree);
    QList<int> answered;
    for (int role = -1; role <= kLastRole; ++role) {
        if (tested->model().data(tested->model().index(0, 0), role).isValid())
            answered += role;
    }
    // The text is not offered for editing.
    QCOMPARE(answered, QList<int>({Qt::DisplayRole, Qt::DecorationRole}));
    QVERIFY(!tested->model().data(tested->model().index(0, 0), INT_MAX).isValid());
    QVERIFY(!tested->model().data(tested->model().index(0, 0), INT_MIN).isValid());
}

void ExpressionListContract::theHeaderIsQtsOwn()
{
    const auto tested = open(kThree);
    const QStringListModel plain;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const int section : {-1, 0, 1, 2, 1000}) {
            for (int role = 0; role <= kLastRole; ++role)
                QCOMPARE(tested->model().headerData(section, orientation, role),
                    plain.QAbstractItemModel::headerData(section, orientation, role));
        }
    }
    QCOMPARE(tested->model().headerData(0, Qt::Horizontal), QVariant(1));
}

void ExpressionListContract::everyRowCanBeDraggedAndEverythingDroppedOn()
{
    const auto tested = open({"A", "null"});
    const QAbstractItemModel &model = tested->model();
    const Qt::ItemFlags row =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    QCOMPARE(model.flags(model.index(0, 0)), row);
    QCOMPARE(model.flags(model.index(1, 0)), row);
    QCOMPARE(model.flags(model.index(0, 7)), row);
    for (const QModelIndex &nowhere : {QModelIndex(), tested->made(-1, 0, "A"), tested->made(0, -1, "A")})
        QCOMPARE(model.flags(nowhere), Qt::ItemFlags(Qt::ItemIsDropEnabled));
}

void ExpressionListContract::theFormatsAndActionsAreThoseOfTheClass()
{
    const auto tested = open(kThree);
    const QAbstractItemModel &model = tested->model();
    QCOMPARE(model.mimeTypes(), mimeTypes());
    QCOMPARE(model.supportedDropActions(), dropActions());
    QCOMPARE(model.supportedDragActions(), dropActions());
    // Qt's own drag data, under the first of the formats.
    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(1, 0)}));
    QCOMPARE(dragged->formats(), mimeTypes());
}

void ExpressionListContract::indexesCarryTheObjects_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("expected");
    QTest::newRow("first") << 0 << 0 << "0,0";
    QTest::newRow("last") << 2 << 0 << "2,0";
    QTest::newRow("any column is carried") << 1 << 7 << "1,7";
    QTest::newRow("highest column") << 1 << INT_MAX << "1,2147483647";
    QTest::newRow("behind the last") << 3 << 0 << "invalid";
    QTest::newRow("highest row") << INT_MAX << 0 << "invalid";
    QTest::newRow("row -1") << -1 << 0 << "invalid";
    QTest::newRow("lowest row") << INT_MIN << 0 << "invalid";
    QTest::newRow("column -1") << 0 << -1 << "invalid";
}
void ExpressionListContract::indexesCarryTheObjects()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, expected);
    const auto tested = open(kThree);
    const QModelIndex index = tested->model().index(row, column);
    QCOMPARE(written(index), expected);
    if (!index.isValid())
        return;
    QCOMPARE(index.internalPointer(), tested->made(0, 0, kThree.at(row)).internalPointer());
    QCOMPARE(written(tested->model().parent(index)), QString("invalid"));
    QCOMPARE(written(tested->model().index(0, 0, index)), QString("invalid"));
}

void ExpressionListContract::theListIsFlatAndReportsItsSizeForAnyParent()
{
    const auto tested = open(kThree);
    const QAbstractItemModel &model = tested->model();
    for (const QModelIndex &parent :
        {QModelIndex(), model.index(0, 0), model.index(2, 5), tested->made(9, 9, "null")}) {
        QCOMPARE(model.rowCount(parent), 3);
        QCOMPARE(model.columnCount(parent), 1);
    }
}

void ExpressionListContract::whatHasNoObjectShowsNothingAndIsRefused()
{
    const auto tested = open(kThree);
    const auto other = open(kThree);
    QStringListModel stranger(kThree);
    Announcements announced(tested->model());
    QVERIFY(!tested->itemData("null", 0).isValid());
    for (const QModelIndex &index : {QModelIndex(), tested->made(0, 0, "null"), tested->made(-1, 0, "A"),
             tested->made(0, -1, "A"), other->model().index(0, 0), stranger.index(0, 0)}) {
        for (int role = 0; role <= kLastRole; ++role) {
            QVERIFY(!tested->model().data(index, role).isValid());
            QVERIFY(!tested->model().setData(index, "NEW", role));
        }
    }
    QCOMPARE(announced.take(), QStringList());
}

void ExpressionListContract::aRowWithoutObjectStaysARow()
{
    const auto tested = open({"null", "A", "null"});
    QCOMPARE(tested->listed(), QStringList({"null", "A", "null"}));
    QCOMPARE(tested->model().rowCount(), 3);
    QVERIFY(tested->model().index(2, 0).isValid());
    QVERIFY(!tested->model().index(2, 0).data().isValid());
    QVERIFY(!tested->model().index(2, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(tested->model().removeRows(0, 1));
    QCOMPARE(tested->listed(), QStringList({"A", "null"}));
}

void ExpressionListContract::noListIsAnEmptyList()
{
    for (const bool isEmpty : {false, true}) {
        const auto tested = isEmpty ? open({}) : openWithoutList();
        QCOMPARE(tested->listed(), QStringList());
        QCOMPARE(tested->model().rowCount(), 0);
        QCOMPARE(tested->model().columnCount(), 1);
        QVERIFY(!tested->model().index(0, 0).isValid());
        QVERIFY(tested->model().removeRows(0, 1));
        QCOMPARE(tested->model().flags({}), Qt::ItemFlags(Qt::ItemIsDropEnabled));
    }
}

void ExpressionListContract::theCallersListIsCopied()
{
    const auto tested = open(kThree);
    tested->clearCallersList();
    QCOMPARE(tested->listed(), kThree);
    QCOMPARE(tested->model().index(2, 0).data(), QVariant(textOf("C", ShowName)));
}

void ExpressionListContract::theObjectsAreShownAsTheyAreNow()
{
    const auto tested = open(kThree, ShowNameAndLabel);
    Announcements announced(tested->model());
    tested->rename("B", "Z");
    QVERIFY(tested->model().index(1, 0).data().toString().startsWith("Z"));
    QCOMPARE(announced.take(), QStringList());
}

void ExpressionListContract::theDataIsTheLiveListAndNotACopy()
{
    const auto tested = open(kThree);
    const void *list = tested->listAddress();
    QVERIFY(list);
    tested->appendToData("A");
    QCOMPARE(tested->model().rowCount(), 4);
    QCOMPARE(tested->model().index(3, 0).data(), QVariant(textOf("A", ShowName)));
    tested->model().removeRows(1, 2);
    QCOMPARE(tested->listed(), QStringList({"A", "A"}));
    QCOMPARE(tested->listAddress(), list);
}

void ExpressionListContract::theObjectsOutliveTheList()
{
    const auto tested = open(kThree);
    tested->deleteModel();
    QCOMPARE(tested->objectNames(), kThree);
}

} // namespace tessel::test
