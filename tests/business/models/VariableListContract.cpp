#include "tests/business/models/VariableListContract.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/VariableRows.h"

#include <QProcess>
#include <QtTest>

#include <climits>

namespace tessel::test {
namespace {

QString written(const QModelIndex &index)
{
    if (!index.isValid())
        return "invalid";
    const auto *variable = static_cast<TDmVariable *>(index.internalPointer());
    return QStringLiteral("%1, %2, %3")
        .arg(index.row())
        .arg(index.column())
        .arg(variable ? variable->getName() : "null");
}

} // namespace

void VariableListContract::referenceVariablesAreLeftOutByExactName_data()
{
    QTest::addColumn<QStringList>("references");
    QTest::addColumn<QStringList>("leftOut");
    const auto row = [](const char *tag, const QStringList &references, const QStringList &leftOut) {
        QTest::newRow(tag) << references << leftOut;
    };
    row("three of five", {"CODE", "LABEL", "WEIGHT"}, {"CODE", "LABEL", "WEIGHT"});
    row("the code alone", {"CODE", "", ""}, {"CODE", ""});
    row("the label alone", {"", "LABEL", ""}, {"LABEL", ""});
    row("the weight alone", {"", "", "WEIGHT"}, {"WEIGHT", ""});
    row("each by any of the three", {"WEIGHT", "CODE", "LABEL"}, {"CODE", "LABEL", "WEIGHT"});
    row("one variable that is all three", {"AGE", "AGE", "AGE"}, {"AGE"});
    row("another letter case stays", {"code", "Label", "wEIGHT"}, {});
    row("blanks count", {" CODE", "LABEL ", "WEIGHT\t"}, {});
    row("a part of a name is no name", {"COD", "LABELS", "EIGHT"}, {});
    row("no such variable", {"A", "B", "C"}, {});
    row("a name that stands twice", {"SEX", "X", "X"}, {"SEX", "SEX"});
    row("a variable without a name holds an empty reference", {"", "", ""}, {""});
}
void VariableListContract::referenceVariablesAreLeftOutByExactName()
{
    QFETCH(QStringList, references);
    QFETCH(QStringList, leftOut);
    Variables variables("CODE LABEL AGE WEIGHT SEX  SEX SEX\t");
    QStringList expected = columnTexts(open(nullptr, &variables.list)->model());
    QCOMPARE(expected, QStringList({"CODE", "LABEL", "AGE", "WEIGHT", "SEX", "", "SEX", "SEX\t"}));
    for (const QString &name : leftOut) {
        if (facts().leavesOutReferences)
            QVERIFY(expected.removeOne(name));
    }
    TDmEntity entity;
    entity.setRefCode(references.at(0));
    entity.setRefLabel(references.at(1));
    entity.setWeightVariable(references.at(2));
    const auto tested = open(&entity, &variables.list);
    QCOMPARE(columnTexts(tested->model()), expected);
    QCOMPARE(tested->model().rowCount(), expected.size());
}

void VariableListContract::theListIsTakenOnceAndLaterChangesAreNotSeen()
{
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE SEX");
    const auto tested = open(&entity, &variables.list);
    QSignalSpy inserted(&tested->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&tested->model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&tested->model(), &QAbstractItemModel::modelReset);
    variables.add("NEW");
    QCOMPARE(columnTexts(tested->model()), QStringList({"AGE", "SEX"}));
    variables.list.clear();
    entity.setRefCode("AGE");
    QCOMPARE(columnTexts(tested->model()), QStringList({"AGE", "SEX"}));
    QCOMPARE(inserted.count() + removed.count() + reset.count(), 0);
}

void VariableListContract::theSameVariableTwiceIsTwoRows()
{
    TDmEntity entity;
    Variables variables("AGE SEX");
    variables.list.append(variables.list.first());
    const auto tested = open(&entity, &variables.list);
    QCOMPARE(columnTexts(tested->model()), QStringList({"AGE", "SEX", "AGE"}));
}

void VariableListContract::oddListsAreShownAsFarAsTheyGo()
{
    TDmEntity entity;
    Variables variables("CODE AGE");
    QList<TDmVariable *> none;
    const QStringList all = {"CODE", "AGE"};
    QCOMPARE(columnTexts(open(nullptr, &variables.list)->model()), all);
    QCOMPARE(open(&entity, &none)->model().rowCount(), 0);
    QCOMPARE(open(&entity, nullptr)->model().rowCount(), 0);
    const auto tested = open(nullptr, nullptr);
    QCOMPARE(tested->model().rowCount(), 0);
    QCOMPARE(tested->model().columnCount(), facts().headers.size());
    QVERIFY(!tested->model().index(0, 0).isValid());
}

void VariableListContract::nullObjectsAreRowsThatShowNothingAndAreRefused()
{
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE SEX");
    variables.list.insert(1, nullptr);
    variables.list.append(nullptr);
    const auto tested = open(&entity, &variables.list);
    QAbstractItemModel &model = tested->model();
    QCOMPARE(columnTexts(model), QStringList({"AGE", "", "SEX", ""}));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (const int row : {1, 3}) {
        const QModelIndex index = model.index(row, 0);
        QCOMPARE(written(index), QStringLiteral("%1, 0, null").arg(row));
        for (int role = 0; role <= Qt::UserRole; ++role) {
            QVERIFY(!model.data(index, role).isValid());
            QVERIFY(!model.setData(index, Qt::Checked, role));
        }
    }
    QVERIFY(!tested->textOf(nullptr, 0).isValid());
    QCOMPARE(changed.count(), 0);
    QVERIFY(model.setData(model.index(2, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(variables.marks(), QString("0 1"));
}

void VariableListContract::theVariablesOutliveTheModel()
{
    TDmEntity entity;
    Variables variables("AGE SEX");
    open(&entity, &variables.list).reset();
    QCOMPARE(variables.list.size(), 2);
    QCOMPARE(columnTexts(open(&entity, &variables.list)->model()), QStringList({"AGE", "SEX"}));
}

/// Nobody can be connected to a model while it is made, so that the program is run once more with the signals
/// written to its output.
void VariableListContract::theFillingIsAnnouncedAsRowZeroWhateverTheNumberOfRows()
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(), {"-vs", "-o", "-,txt", "listsAreMade"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const QString kind = QLatin1String(open(nullptr, nullptr)->model().metaObject()->className());
    QStringList announced;
    for (const QString &line : QString::fromUtf8(process.readAllStandardOutput()).split('\n')) {
        if (line.contains("Signal: " + kind + '('))
            announced += line.mid(line.indexOf(") ", line.indexOf(kind + '(')) + 2).trimmed();
    }
    const QStringList once = {"rowsAboutToBeInserted (QModelIndex(), int(0), int(0))",
        "rowsInserted (QModelIndex(), int(0), int(0))"};
    QCOMPARE(announced, once + once + once);
}

void VariableListContract::listsAreMade()
{
    TDmEntity entity;
    Variables none;
    Variables one("AGE");
    Variables five("AGE SEX JOB BORN DIED");
    QCOMPARE(open(&entity, &none.list)->model().rowCount(), 0);
    QCOMPARE(open(&entity, &one.list)->model().rowCount(), 1);
    QCOMPARE(open(&entity, &five.list)->model().rowCount(), 5);
}

void VariableListContract::indexesCarryTheVariableAndAnyColumn_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the first") << 0 << 0 << "0, 0, AGE";
    QTest::newRow("the last") << 2 << 0 << "2, 0, JOB";
    QTest::newRow("another column") << 1 << 2 << "1, 2, SEX";
    QTest::newRow("a column that is not there") << 1 << 7 << "1, 7, SEX";
    QTest::newRow("the highest column") << 2 << INT_MAX << QStringLiteral("2, %1, JOB").arg(INT_MAX);
    QTest::newRow("column -1") << 0 << -1 << "invalid";
    QTest::newRow("behind the last row") << 3 << 0 << "invalid";
    QTest::newRow("the highest row") << INT_MAX << 0 << "invalid";
    QTest::newRow("row -1") << -1 << 0 << "invalid";
    QTest::newRow("the lowest row") << INT_MIN << 0 << "invalid";
}
void VariableListContract::indexesCarryTheVariableAndAnyColumn()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, expected);
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE SEX JOB");
    const auto tested = open(&entity, &variables.list);
    QCOMPARE(written(tested->model().index(row, column)), expected);
    for (const QModelIndex &parent : {tested->model().index(0, 0), tested->made(1, 2, nullptr)}) {
        QVERIFY(parent.isValid());
        QVERIFY(!tested->model().index(row, column, parent).isValid());
    }
}

void VariableListContract::noIndexHasAParentAndEveryParentHasAllRows()
{
    TDmEntity entity;
    entity.setRefCode("CODE");
    Variables variables("AGE SEX JOB");
    const auto tested = open(&entity, &variables.list);
    const QAbstractItemModel &model = tested->model();
    const int columns = facts().headers.size();
    for (const QModelIndex &index : {QModelIndex(), model.index(0, 0), model.index(2, 1),
             tested->made(0, 9, nullptr), tested->made(-1, -1, variables.list.first())}) {
        QVERIFY(!model.parent(index).isValid());
        QCOMPARE(model.rowCount(index), 3);
        QCOMPARE(model.columnCount(index), columns);
    }
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.columnCount(), columns);
}

void VariableListContract::theHeadersAreShownAcrossTheTopOnly()
{
    TDmEntity entity;
    const auto tested = open(&entity, nullptr);
    const QStringList headers = facts().headers;
    for (const int section : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, INT_MAX}) {
        for (int role = -1; role <= Qt::UserRole + 1; ++role) {
            const bool isShown = role == Qt::DisplayRole && section >= 0 && section < headers.size();
            const QVariant expected = isShown ? QVariant(headers.at(section)) : QVariant();
            QCOMPARE(tested->model().headerData(section, Qt::Horizontal, role), expected);
            QVERIFY(!tested->model().headerData(section, Qt::Vertical, role).isValid());
        }
    }
    QCOMPARE(tested->model().headerData(0, Qt::Horizontal), QVariant("Name"));
}

void VariableListContract::theHeadersAreTranslatedInTheContextOfTheClass()
{
    TDmEntity entity;
    const auto tested = open(&entity, nullptr);
    const ContextTranslator translator;
    const QString context = QLatin1String(tested->model().metaObject()->className());
    for (int section = 0; section < facts().headers.size(); ++section)
        QCOMPARE(tested->model().headerData(section, Qt::Horizontal).toString(),
            context + ": " + facts().headers.at(section));
}

} // namespace tessel::test
