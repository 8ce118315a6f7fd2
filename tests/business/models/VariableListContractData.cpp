#include "business/models/VariableModel.h"
#include "business/models/VariableModelDownStep4.h"
#include "business/models/VariableModelSplitStep3.h"

#include "tests/business/models/VariableListContract.h"
#include "tests/business/models/VariableRows.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

QString boxText(const QVariant &state)
{
    if (!state.isValid())
        return "no box";
    return state == QVariant(Qt::Checked) ? "ticked" : state == QVariant(Qt::Unchecked) ? "empty" : "odd";
}

} // namespace

void VariableListContract::theColumnsShowTheVariable()
{
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables;
    variables.add("AGE", "Age of person", "A1", "Person", 12);
    variables.add("SEX", "Sex", "S", "", -7);
    const auto tested = open(&entity, &variables.list);
    const QStringList cells = {"AGE", "Age of person", "A1", "Person", "12"};
    const QStringList others = {"SEX", "Sex", "S", "", "-7"};
    const int columns = facts().headers.size();
    QCOMPARE(rowText(tested->model(), 0), QStringList(cells.mid(0, columns)).join(" | "));
    QCOMPARE(rowText(tested->model(), 1), QStringList(others.mid(0, columns)).join(" | "));
    for (const int column : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, INT_MAX}) {
        QVariant expected;
        if (column >= 0 && column < columns)
            expected = column == 4 ? QVariant(12) : QVariant(cells.at(column));
        QCOMPARE(tested->textOf(variables.list.first(), column), expected);
        QCOMPARE(tested->textOf(variables.list.first(), column).userType(), expected.userType());
        QCOMPARE(tested->model().data(tested->made(0, column, variables.list.first())), expected);
    }
}

void VariableListContract::textsAreShownAsTheyAreNow()
{
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE");
    const auto tested = open(&entity, &variables.list);
    for (const QString &name : {QString(), QString("  AGE\t"), QString("CODE"), QString("<b>\"\\&amp;"),
             QString(QChar(0xd800)), QString(100'000, 'x')}) {
        variables.list.first()->setName(name);
        variables.list.first()->setLabel(name + '1');
        variables.list.first()->setAlias(name + '2');
        QCOMPARE(tested->model().index(0, 0).data().toString(), name);
        QCOMPARE(tested->model().index(0, 1).data().toString(), name + '1');
        QCOMPARE(tested->model().index(0, 2).data().toString(), name + '2');
    }
}

void VariableListContract::onlyTextAndTickAreAnswered()
{
    TDmEntity entity;
    Variables variables;
    variables.add("AGE", "Age", "A", "Person", 12)->setChecked(1);
    const auto tested = open(&entity, &variables.list);
    const int columns = facts().headers.size();
    for (const int column : {0, 1, 2, 3, 4, 5, INT_MAX}) {
        for (int role = -1; role <= Qt::UserRole + 2; ++role) {
            const bool isText = role == Qt::DisplayRole && column < columns;
            const bool isTick = role == Qt::CheckStateRole && column == 0;
            QCOMPARE(
                tested->model().data(tested->model().index(0, column), role).isValid(), isText || isTick);
        }
        QVERIFY(!tested->model().data(tested->model().index(0, column), INT_MAX).isValid());
    }
    for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole)}) {
        QVERIFY(!tested->model().data(QModelIndex(), role).isValid());
        QVERIFY(!tested->model().data(tested->made(-1, 0, variables.list.first()), role).isValid());
        QVERIFY(!tested->model().data(tested->made(0, -1, variables.list.first()), role).isValid());
        QVERIFY(!tested->model().data(tested->made(0, 0, nullptr), role).isValid());
    }
}

void VariableListContract::theBoxMirrorsTheMark_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("mark");
    QTest::addColumn<QString>("state");
    for (const int level : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
        const auto tag = [&](const char *what) {
            return QStringLiteral("%1, level %2").arg(what).arg(level);
        };
        QTest::newRow(qPrintable(tag("no mark"))) << level << 0 << "empty";
        QTest::newRow(qPrintable(tag("a mark"))) << level << 1 << "ticked";
        QTest::newRow(qPrintable(tag("mark 2"))) << level << 2 << "ticked";
        QTest::newRow(qPrintable(tag("mark -1"))) << level << -1 << "ticked";
        QTest::newRow(qPrintable(tag("lowest mark"))) << level << INT_MIN << "ticked";
    }
}
void VariableListContract::theBoxMirrorsTheMark()
{
    QFETCH(int, level);
    QFETCH(int, mark);
    QFETCH(QString, state);
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE");
    const auto tested = open(&entity, &variables.list);
    variables.list.first()->setLevel(level);
    variables.list.first()->setChecked(mark);
    const bool hasBox = level == 1 || !facts().ticksLevelOneOnly;
    QCOMPARE(boxText(tested->model().index(0, 0).data(Qt::CheckStateRole)), hasBox ? state : "no box");
    QCOMPARE(boxText(tested->model().index(0, 1).data(Qt::CheckStateRole)), QString("no box"));
}

void VariableListContract::theFlagsAreThoseOfTheClass_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("userCheckable");
    QTest::addColumn<int>("others");
    const int shown = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const int box = Qt::ItemIsUserCheckable;
    const int enabled = Qt::ItemIsEnabled;
    QTest::newRow("a cell of the first column") << "cell" << 0 << (shown | box) << shown;
    QTest::newRow("a cell of the second column") << "cell" << 1 << shown << shown;
    QTest::newRow("a cell of the last column") << "cell" << facts().headers.size() - 1 << shown << shown;
    QTest::newRow("a column that is not there") << "cell" << 9 << shown << shown;
    QTest::newRow("no index") << "none" << -1 << 0 << 0;
    QTest::newRow("an index that is only invalid in its row is not told from a valid one")
        << "negative row" << 0 << box << 0;
    QTest::newRow("a row without a variable") << "null" << 0 << (shown | box) << shown;
    // The base class knows its own indexes; what the lists add to that does not.
    QTest::newRow("the first column of another model") << "foreign" << 0 << box << enabled;
    QTest::newRow("the second column of another model") << "foreign" << 1 << 0 << enabled;
}
void VariableListContract::theFlagsAreThoseOfTheClass()
{
    QFETCH(QString, place);
    QFETCH(int, column);
    QFETCH(int, userCheckable);
    QFETCH(int, others);
    TDmEntity entity;
    Variables variables("AGE");
    const auto tested = open(&entity, &variables.list);
    const auto foreign = open(&entity, &variables.list);
    QModelIndex index;
    if (place == "cell")
        index = tested->model().index(0, column);
    else if (place == "negative row")
        index = tested->made(-1, column, variables.list.first());
    else if (place == "null")
        index = tested->made(0, column, nullptr);
    else if (place == "foreign")
        index = foreign->model().index(0, column);
    QCOMPARE(int(tested->model().flags(index)), facts().isUserCheckable ? userCheckable : others);
    // The level takes no part.
    variables.list.first()->setLevel(2);
    QCOMPARE(int(tested->model().flags(index)), facts().isUserCheckable ? userCheckable : others);
}

void VariableListContract::aTickTurnsTheMarkOverWhateverWasAskedFor_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("ticked") << QVariant(Qt::Checked);
    QTest::newRow("empty") << QVariant(Qt::Unchecked);
    QTest::newRow("half ticked") << QVariant(Qt::PartiallyChecked);
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("a text") << QVariant("no");
    QTest::newRow("nothing") << QVariant();
}
void VariableListContract::aTickTurnsTheMarkOverWhateverWasAskedFor()
{
    QFETCH(QVariant, value);
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE SEX JOB");
    const auto tested = open(&entity, &variables.list);
    QAbstractItemModel &model = tested->model();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex index = model.index(1, 0);
    int calls = 0;
    const auto tick = [&] {
        const bool isTaken = model.setData(index, value, Qt::CheckStateRole);
        return isTaken && changed.count() == ++calls;
    };
    QVERIFY(tick());
    QCOMPARE(variables.marks(), QString("0 1 0"));
    QVERIFY(tick());
    QCOMPARE(variables.marks(), QString("0 0 0"));
    for (const int odd : {2, -1, INT_MAX, INT_MIN}) {
        variables.list.at(1)->setChecked(odd);
        QVERIFY(tick());
        QCOMPARE(variables.marks(), QString("0 0 0"));
    }
    for (const QList<QVariant> &arguments : qAsConst(changed)) {
        QCOMPARE(arguments.at(0).toModelIndex(), index);
        QCOMPARE(arguments.at(1).toModelIndex(), index);
        QCOMPARE(arguments.at(2).value<QVector<int>>(), QVector<int>());
    }
}

void VariableListContract::aTickNeedsItsLevel_data()
{
    QTest::addColumn<int>("level");
    for (const int level : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX})
        QTest::newRow(qPrintable(QStringLiteral("level %1").arg(level))) << level;
}
void VariableListContract::aTickNeedsItsLevel()
{
    QFETCH(int, level);
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE");
    variables.list.first()->setLevel(level);
    const auto tested = open(&entity, &variables.list);
    QSignalSpy changed(&tested->model(), &QAbstractItemModel::dataChanged);
    const bool isTaken = level == 1 || !facts().ticksLevelOneOnly;
    QCOMPARE(tested->model().setData(tested->model().index(0, 0), Qt::Checked, Qt::CheckStateRole), isTaken);
    QCOMPARE(variables.marks(), QString(isTaken ? "1" : "0"));
    QCOMPARE(changed.count(), isTaken ? 1 : 0);
}

void VariableListContract::otherRolesAndColumnsAreRefused()
{
    TDmEntity entity;
    Variables variables;
    variables.add("AGE", "Age", "A", "Person", 12);
    const auto tested = open(&entity, &variables.list);
    QAbstractItemModel &model = tested->model();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    TDmVariable *age = variables.list.first();
    for (const int column : {-1, 0, 1, 2, 3, 4, 5, INT_MAX}) {
        for (int role = -1; role <= Qt::UserRole + 2; ++role) {
            if (column != 0 || role != Qt::CheckStateRole)
                QVERIFY(!model.setData(tested->made(0, column, age), 2, role));
        }
        QVERIFY(!model.setData(tested->made(0, column, age), "NEW"));
    }
    QVERIFY(!model.setData(QModelIndex(), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!model.setData(tested->made(-1, 0, age), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!model.setData(tested->made(0, 0, nullptr), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(variables.marks(), QString("0"));
    QCOMPARE(
        rowText(VariableModel(nullptr, nullptr, &variables.list), 0), QString("AGE | Age | A | Person | 12"));
}

void VariableListContract::indexesOfAnotherModelAreLikeThoseWithoutVariable()
{
    TDmEntity entity;
    Variables variables("AGE SEX");
    const auto tested = open(&entity, &variables.list);
    const auto sameClass = open(&entity, &variables.list);
    QStandardItemModel otherClass(2, 2);
    QAbstractItemModel &model = tested->model();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (const QModelIndex &index : {sameClass->model().index(0, 0), otherClass.index(0, 0)}) {
        QVERIFY(index.isValid());
        for (int role = 0; role <= Qt::UserRole; ++role) {
            QVERIFY(!model.data(index, role).isValid());
            QVERIFY(!model.setData(index, Qt::Checked, role));
        }
        QVERIFY(!model.index(0, 0, index).isValid());
        QVERIFY(!model.parent(index).isValid());
        QCOMPARE(model.rowCount(index), 2);
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(variables.marks(), QString("0 0"));
}

void VariableListContract::aTickIsSeenByEveryModelAndAnnouncedByOne()
{
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("CODE AGE SEX");
    const auto tested = open(&entity, &variables.list);
    const auto sameClass = open(&entity, &variables.list);
    VariableModel all(nullptr, nullptr, &variables.list);
    VariableModelSplitStep3 split(nullptr, nullptr, &variables.list);
    VariableModelDownStep4 download(nullptr, nullptr, &variables.list);
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (QAbstractItemModel *other :
        std::initializer_list<QAbstractItemModel *>{&sameClass->model(), &all, &split, &download})
        spies.push_back(std::make_unique<QSignalSpy>(other, &QAbstractItemModel::dataChanged));

    QAbstractItemModel &model = tested->model();
    const int row = columnTexts(model).indexOf("SEX");
    for (const char *state : {"ticked", "empty"}) {
        QVERIFY(model.setData(model.index(row, 0), QVariant(), Qt::CheckStateRole));
        QCOMPARE(boxText(model.index(row, 0).data(Qt::CheckStateRole)), QString(state));
        QCOMPARE(boxText(sameClass->model().index(row, 0).data(Qt::CheckStateRole)), QString(state));
        QCOMPARE(boxText(all.index(2, 0).data(Qt::CheckStateRole)), QString(state));
        QCOMPARE(boxText(split.index(2, 0).data(Qt::CheckStateRole)), QString(state));
        QCOMPARE(boxText(download.index(2, 0).data(Qt::CheckStateRole)), QString(state));
    }
    for (const auto &spy : spies)
        QCOMPARE(spy->count(), 0);
}

} // namespace tessel::test
