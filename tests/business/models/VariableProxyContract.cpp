#include "tests/business/models/VariableProxyContract.h"

#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableRows.h"
#include "tests/support/LogCatcher.h"

#include <QDate>
#include <QLocale>
#include <QRegExp>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QtTest>

namespace tessel::test {

void VariableProxyContract::initMain()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    // Spies want to keep what a change of the layout tells.
    qRegisterMetaType<QList<QPersistentModelIndex>>();
    qRegisterMetaType<QAbstractItemModel::LayoutChangeHint>();
}

void VariableProxyContract::aMatchInAnySearchedColumnKeepsTheRow_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < 8; ++column)
        QTest::newRow(qPrintable(QStringLiteral("column %1").arg(column))) << column;
}
void VariableProxyContract::aMatchInAnySearchedColumnKeepsTheRow()
{
    QFETCH(int, column);
    const bool isSearched = column < facts().searchedColumns;
    CellTable source(8);
    source.addAt(column, "SEX");
    source.addAt(column, "Age of person");
    const auto tested = open();
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegExp(QRegExp("AGE"));
    QCOMPARE(tested->isKept(0), false);
    QCOMPARE(tested->isKept(1), isSearched);
    QCOMPARE(columnTexts(tested->model(), column), isSearched ? QStringList("Age of person") : QStringList());
}

void VariableProxyContract::textsAreSearchedTrimmedAndInUpperCase_data()
{
    QTest::addColumn<QRegExp>("pattern");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("kept");
    const auto row = [](const char *tag, const QRegExp &pattern, const QVariant &value, bool kept) {
        QTest::newRow(tag) << pattern << value << kept;
    };
    const QRegExp anyCase("age", Qt::CaseInsensitive);
    row("lower case is found by upper case", QRegExp("AGE"), "age", true);
    row("a part of a label is found", QRegExp("AGE"), "Age of person", true);
    row("a part in the middle is found", QRegExp("AGE"), "The age", true);
    row("another text is not", QRegExp("AGE"), "Sex", false);
    row("lower case finds nothing in lower case", QRegExp("age"), "age", false);
    row("lower case finds nothing in upper case", QRegExp("age"), "AGE", false);
    row("mixed case finds nothing", QRegExp("Age"), "Age", false);
    row("a pattern that ignores case finds lower case", anyCase, "age", true);
    row("a pattern that ignores case finds upper case", anyCase, "AGE", true);
    row("blanks around the text are gone", QRegExp("^AGE$"), "  age\t\n", true);
    row("a pattern cannot find them", QRegExp("AGE "), "age ", false);
    row("nor in front", QRegExp("\\sAGE"), " age", false);
    row("blanks within the text stay", QRegExp("E  O"), "age  of", true);
    row("blanks of the pattern stay", QRegExp(" AGE"), "age", false);
    row("one letter becomes two", QRegExp("STRASSE"), QString::fromUtf8("Straße"), true);
    row("letters beyond ASCII", QRegExp(QString::fromUtf8("ÄRA")), QString::fromUtf8("ära"), true);
    row("a choice", QRegExp("SEX|AGE"), "age", true);
    row("any letter", QRegExp("A.E"), "axe", true);
    row("no anchor is added", QRegExp("G"), "age", true);
    row("a wildcard", QRegExp("A*E", Qt::CaseSensitive, QRegExp::Wildcard), "xapplex", true);
    row("a wildcard that does not fit", QRegExp("A?E", Qt::CaseSensitive, QRegExp::Wildcard), "apple", false);
    row("a fixed text", QRegExp("A.E", Qt::CaseSensitive, QRegExp::FixedString), "a.e", true);
    row("a fixed text has no any letter", QRegExp("A.E", Qt::CaseSensitive, QRegExp::FixedString), "age",
        false);
    row("an unclosed parenthesis matches nothing", QRegExp("("), "(", false);
    row("an unclosed bracket matches nothing", QRegExp("[A"), "[A", false);
    row("a lone asterisk matches nothing", QRegExp("*"), "*", false);
    row("the empty pattern matches a text", QRegExp(""), "age", true);
    row("the empty pattern matches nothing at all", QRegExp(""), QVariant(), true);
    row("the empty pattern of any case", QRegExp("", Qt::CaseInsensitive), "age", true);
    row("a match of no length", QRegExp("X*"), "age", true);
    row("a whole number", QRegExp("^12$"), 12, true);
    row("a number with a fraction", QRegExp("^2\\.5$"), 2.5, true);
    row("true", QRegExp("^TRUE$"), true, true);
    row("a date", QRegExp("^2020-01-31$"), QDate(2020, 1, 31), true);
    row("a list has no text", QRegExp("AGE"), QVariantList{"AGE", "AGE"}, false);
}
void VariableProxyContract::textsAreSearchedTrimmedAndInUpperCase()
{
    QFETCH(QRegExp, pattern);
    QFETCH(QVariant, value);
    QFETCH(bool, kept);
    CellTable source(8);
    source.add(QVector<QVariant>(8, value));
    const auto tested = open();
    const LogCatcher log;
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegExp(pattern);
    QCOMPARE(tested->isKept(0), kept);
    QCOMPARE(tested->model().rowCount(), kept ? 1 : 0);
    QCOMPARE(log.messages(), QStringList());
}

void VariableProxyContract::columnsBehindAMatchAreNotRead()
{
    CellTable source(8);
    source.add({"AGE", "AGE", "AGE", "AGE", "AGE"});
    source.add({"-", "AGE", "AGE", "AGE", "AGE"});
    source.add({"-", "-", "age", "AGE", "AGE"});
    source.add({"-", "-", "-", "-", "-", "AGE", "AGE", "AGE"});
    const auto tested = open();
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegExp(QRegExp("AGE"));
    const auto readsOf = [&](int row) {
        source.reads.clear();
        tested->isKept(row);
        return source.reads;
    };
    QCOMPARE(readsOf(0), QStringList({"0,0 0"}));
    QCOMPARE(readsOf(1), QStringList({"1,0 0", "1,1 0"}));
    QCOMPARE(readsOf(2), QStringList({"2,0 0", "2,1 0", "2,2 0"}));
    QStringList all;
    for (int column = 0; column < facts().searchedColumns; ++column)
        all += QStringLiteral("3,%1 0").arg(column);
    QCOMPARE(readsOf(3), all);
}

void VariableProxyContract::withoutAPatternEveryRowIsKept()
{
    CellTable source(8);
    source.add({"AGE"});
    source.add({});
    source.add({QVariant(), QVariant(), QVariant(), QVariant(), QVariant()});
    const auto tested = open();
    tested->model().setSourceModel(&source);
    QCOMPARE(tested->model().rowCount(), 3);
    tested->model().setFilterRegExp(QRegExp("AGE"));
    QCOMPARE(tested->model().rowCount(), 1);
    tested->model().setFilterRegExp(QRegExp());
    QCOMPARE(tested->model().rowCount(), 3);
}

void VariableProxyContract::columnsThatAreNotThereAreEmptyTexts()
{
    CellTable source(1);
    source.add({"Age"});
    source.add({"Sex"});
    const auto tested = open();
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegExp(QRegExp("AGE"));
    QCOMPARE(columnTexts(tested->model()), QStringList("Age"));
    tested->model().setFilterRegExp(QRegExp("^$"));
    QCOMPARE(columnTexts(tested->model()), QStringList({"Age", "Sex"}));
}

void VariableProxyContract::rowsBelowAParentAreJudgedAsWell()
{
    QStandardItemModel source;
    for (const char *name : {"age", "sex"}) {
        auto *item = new QStandardItem(name);
        for (const char *below : {"old age", "new sex", "no age"})
            item->appendRow({new QStandardItem("-"), new QStandardItem(below)});
        source.appendRow(item);
    }
    const auto tested = open();
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegExp(QRegExp("AGE"));
    QVERIFY(tested->isKept(0));
    QVERIFY(!tested->isKept(1));
    QVERIFY(tested->isKept(0, source.index(1, 0)));
    QVERIFY(!tested->isKept(1, source.index(1, 0)));
    // What fits below a row that does not fit keeps nothing.
    QCOMPARE(columnTexts(tested->model()), QStringList("age"));
    const QModelIndex age = tested->model().index(0, 0);
    QCOMPARE(tested->model().rowCount(age), 2);
    QCOMPARE(tested->model().index(1, 1, age).data(), QVariant("no age"));
}

void VariableProxyContract::theSettingsOfTheBaseClassForColumnAndRoleTakeNoPart()
{
    CellTable source(8);
    source.add({"SEX", "AGE"});
    source.addAt(7, "AGE");
    const auto tested = open();
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegExp(QRegExp("AGE"));
    for (const int column : {-1, 0, 7}) {
        tested->model().setFilterKeyColumn(column);
        QCOMPARE(columnTexts(tested->model()), QStringList("SEX"));
    }
    for (const int role : {int(Qt::EditRole), int(Qt::UserRole)}) {
        tested->model().setFilterRole(role);
        QCOMPARE(columnTexts(tested->model()), QStringList("SEX"));
    }
}

void VariableProxyContract::aPatternIsUsedAsTheFrontEndSetsIt()
{
    CellTable source(8);
    source.add({"age"});
    source.add({"a.e"});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    model.setFilterRegExp("A.E");
    QCOMPARE(columnTexts(model), QStringList({"age", "a.e"}));
    model.setFilterFixedString("A.E");
    QCOMPARE(columnTexts(model), QStringList({"a.e"}));
    model.setFilterWildcard("A?E");
    QCOMPARE(columnTexts(model), QStringList({"age", "a.e"}));
    model.setFilterFixedString("ag");
    QCOMPARE(columnTexts(model), QStringList());
    model.setFilterCaseSensitivity(Qt::CaseInsensitive);
    QCOMPARE(columnTexts(model), QStringList({"age"}));
    model.setFilterCaseSensitivity(Qt::CaseSensitive);
    QCOMPARE(columnTexts(model), QStringList());
}

void VariableProxyContract::aPatternOfTheOtherKindKeepsEveryRow()
{
    CellTable source(8);
    source.add({"AGE"});
    source.add({"SEX"});
    const auto tested = open();
    tested->model().setSourceModel(&source);
    tested->model().setFilterRegularExpression(QRegularExpression("AGE"));
    QCOMPARE(columnTexts(tested->model()), QStringList({"AGE", "SEX"}));
}

} // namespace tessel::test
