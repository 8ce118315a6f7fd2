#include "tests/business/models/CellTable.h"
#include "tests/business/models/VariableProxyContract.h"
#include "tests/business/models/VariableRows.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QStandardItemModel>
#include <QtTest>

#include <algorithm>
#include <climits>

namespace tessel::test {
namespace {

/// "<" or ">" where one value is less than the other, "=" where neither is, "both" where each is: the left
/// one of two decides how they are compared.
QString relation(OpenVariableProxy &proxy, const QVariant &left, const QVariant &right, int leftColumn = 0,
    int rightColumn = 0)
{
    CellTable source(8);
    source.addAt(leftColumn, left);
    source.addAt(rightColumn, right);
    proxy.model().setSourceModel(&source);
    const QModelIndex one = source.index(0, leftColumn);
    const QModelIndex other = source.index(1, rightColumn);
    const bool isLess = proxy.isLess(one, other);
    const bool isMore = proxy.isLess(other, one);
    proxy.model().setSourceModel(nullptr);
    return isLess && isMore ? "both" : isLess ? "<" : isMore ? ">" : "=";
}

QDateTime at(int hour, int offset)
{
    return QDateTime(QDate(2020, 1, 1), QTime(hour, 0), Qt::OffsetFromUTC, offset * 3600);
}

} // namespace

void VariableProxyContract::theTypeOfTheLeftValueDecides_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, const QVariant &left, const QVariant &right, const char *expected) {
        QTest::newRow(tag) << left << right << expected;
    };
    row("texts", "a", "b", "<");
    row("equal texts", "a", "a", "=");
    row("a text and its beginning", "ab", "a", ">");
    row("the empty text is the first", "", "a", "<");
    row("nothing is an empty text", QVariant(), "", "=");
    row("nothing and a text", QVariant(), "a", "<");
    row("nothing and nothing", QVariant(), QVariant(), "=");
    // The order of the language, in which letter case and accents weigh less than the letter.
    row("letter case", "a", "B", "<");
    row("capitals before small letters of the next kind", "b", "A", ">");
    row("accents", QString::fromUtf8("ä"), "b", "<");
    row("two ways to write one letter", QString::fromUtf8("e\u0301"), QString::fromUtf8("\u00e9"), "=");
    row("blanks in front count", " b", "a", "<");
    row("digits in texts", "10", "9", "<");
    row("fractions are texts", 9.5, 10.5, ">");
    row("equal fractions", 9.5, 9.5, "=");
    row("unsigned numbers are texts", 9u, 10u, ">");
    row("long numbers are texts", 9LL, 10LL, ">");
    row("truths are texts", true, false, ">");
    row("days are texts", QDate(2020, 1, 9), QDate(2020, 1, 10), "<");
    row("a day beyond the year 9999 has no text", QDate(900, 1, 1), QDate(10000, 1, 1), ">");
    // As texts these would be the other way round.
    row("times", at(12, 0), at(11, -5), "<");
    row("times of the same moment", at(12, 0), at(7, -5), "=");
    row("times, the later first", at(13, 2), at(12, 0), "<");
    row("a time and a later time as text", at(12, 0), "2020-01-01T11:00:00-05:00", "both");
    row("a time and an earlier time as text", at(12, 0), "2020-01-01T13:00:00+05:00", "=");
    row("a time and the same time as text", at(12, 0), "2020-01-01T12:00:00Z", "=");
    row("a text that is no time is earlier", at(12, 0), "x", "=");
    row("a time and nothing", at(12, 0), QVariant(), ">");
}
void VariableProxyContract::theTypeOfTheLeftValueDecides()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(QString, expected);
    const auto tested = open();
    for (const int column : {0, 1, 2, 7})
        QCOMPARE(relation(*tested, left, right, column, column), expected);
}

void VariableProxyContract::integersAreComparedAsNumbersWhereTheClassDoes_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<QString>("asNumbers");
    QTest::addColumn<QString>("asTexts");
    const auto row = [](const char *tag, const QVariant &left, const QVariant &right, const char *asNumbers,
                         const char *asTexts) {
        QTest::newRow(tag) << left << right << asNumbers << asTexts;
    };
    row("9 and 10", 9, 10, "<", ">");
    row("10 and 9", 10, 9, ">", "<");
    row("equal numbers", 9, 9, "=", "=");
    row("the lowest and the highest", INT_MIN, INT_MAX, "<", "<");
    row("the highest and 9", INT_MAX, 9, ">", "<");
    row("below zero", -10, -9, "<", "<");
    row("far below zero", -1, -20, ">", "<");
    row("zero and nothing", 0, QVariant(), ">", ">");
    row("a number and a greater number as text", 9, "10", "both", ">");
    row("a number and a smaller number as text", 10, "9", "=", "<");
    row("a number below 0 and a text that is none", -1, "x", "<", "<");
    row("a number above 0 and a text that is none", 1, "x", "=", "<");
    row("a number and a fraction", 9, 10.5, "both", ">");
    row("a number and a fraction that rounds to it", 2, 2.4, "=", "<");
    row("a fraction and a whole number that it rounds to", 9.5, 10, "=", ">");
    row("a number and a time", 1, at(12, 0), "=", "<");
    row("a text of digits decides for texts", "9", 10, "=", ">");
}
void VariableProxyContract::integersAreComparedAsNumbersWhereTheClassDoes()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    QFETCH(QString, asNumbers);
    QFETCH(QString, asTexts);
    const auto tested = open();
    for (const int column : {0, 1, 4})
        QCOMPARE(
            relation(*tested, left, right, column, column), facts().comparesIntegers ? asNumbers : asTexts);
}

void VariableProxyContract::theTokenAroundTheAtSignStandsForTheTextOfColumnOne_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("asTokens");
    QTest::addColumn<QString>("asTexts");
    const auto row = [](const char *tag, const char *left, const char *right, const char *asTokens,
                         const char *asTexts) {
        QTest::newRow(tag) << QString::fromUtf8(left) << QString::fromUtf8(right) << asTokens << asTexts;
    };
    row("a token behind a word", "zebra a.b@c", "apple b@c", "<", ">");
    row("a token before a word", "b@c apple", "a@c zebra", ">", ">");
    row("a label without an at sign counts whole", "b m", "c a@z", ">", "<");
    row("no token at all", "zebra a.b", "apple b.c", ">", ">");
    row("equal tokens", "zebra a@b", "apple a@b", "=", ">");
    row("the first of two tokens", "0 b@b a@a", "aa", ">", "<");
    row("an at sign alone", "z @ z", "a", "<", ">");
    row("nothing before the at sign", "z @b", "a @c", "<", ">");
    row("nothing behind the at sign", "z a@", "a b@", "<", ">");
    row("dots belong to it", "z a.x@b", "a b.x@b", "<", ">");
    row("dots behind the sign belong to it", "z a@b.c", "a a@b.d", "<", ">");
    row("digits belong to it", "z 1x@b", "a 2x@b", "<", ">");
    row("underscores belong to it", "z a_x@b", "a b_x@b", "<", ">");
    row("it ends at a second at sign", "z a@b@9", "a a@b@8", "=", ">");
    row("a hyphen ends it", "z-a@b", "b", "<", ">");
    row("a letter beyond ASCII ends it", "z\u00e41@b", "a", "<", ">");
    row("a line break ends it", "z\na@b", "b", "<", ">");
    row("the order of the language holds for tokens", "z a@b", "y B@b", "<", ">");
}
void VariableProxyContract::theTokenAroundTheAtSignStandsForTheTextOfColumnOne()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(QString, asTokens);
    QFETCH(QString, asTexts);
    const auto tested = open();
    QCOMPARE(relation(*tested, left, right, 1, 1), asTokens);
    for (const int column : {0, 2, 3, 4, 7})
        QCOMPARE(relation(*tested, left, right, column, column), asTexts);
    // The column of each decides for its own text.
    const QString aToken = "z a@a";
    QCOMPARE(relation(*tested, aToken, "m", 1, 0), QString("<"));
    QCOMPARE(relation(*tested, aToken, "m", 0, 1), QString(">"));
    QCOMPARE(relation(*tested, "m", aToken, 0, 1), QString(">"));
    QCOMPARE(relation(*tested, "m", aToken, 1, 0), QString("<"));
}

void VariableProxyContract::onlyTheDisplayedTextsAreCompared()
{
    CellTable source(8);
    source.add({"b"});
    source.add({"a"});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    model.setSortRole(Qt::UserRole);
    model.setSortCaseSensitivity(Qt::CaseInsensitive);
    source.reads.clear();
    QVERIFY(tested->isLess(source.index(1, 0), source.index(0, 0)));
    QCOMPARE(source.reads, QStringList({"1,0 0", "0,0 0"}));
    model.sort(0);
    QCOMPARE(columnTexts(model), QStringList({"a", "b"}));
}

void VariableProxyContract::rowsAreSortedByAnyColumnAndDirection_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("asNumbers");
    QTest::addColumn<QString>("asTexts");
    QTest::newRow("names") << 0 << "age AGE ara Job SEX"
                           << "age AGE ara Job SEX";
    QTest::newRow("labels with tokens") << 1 << "SEX age AGE Job ara"
                                        << "SEX age AGE Job ara";
    QTest::newRow("the same labels, whole") << 2 << "ara Job AGE age SEX"
                                            << "ara Job AGE age SEX";
    QTest::newRow("whole numbers") << 3 << "AGE ara Job age SEX"
                                   << "AGE SEX Job age ara";
    QTest::newRow("times") << 4 << "Job age AGE SEX ara"
                           << "Job age AGE SEX ara";
}
void VariableProxyContract::rowsAreSortedByAnyColumnAndDirection()
{
    QFETCH(int, column);
    QFETCH(QString, asNumbers);
    QFETCH(QString, asTexts);
    CellTable source(8);
    source.add({"SEX", "z a@a", "z a@a", 100, at(13, 0)});
    source.add({"Job", "m c@a", "m c@a", 11, at(10, 0)});
    source.add({"age", "x b@a", "x b@a", 12, at(13, 2)});
    source.add({"AGE", "p bz@a", "p c@9", -1, at(12, 0)});
    source.add({"ara", "zz", "a d@a", 2, at(11, -5)});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    QStringList expected = (facts().comparesIntegers ? asNumbers : asTexts).split(' ');
    model.sort(column);
    QCOMPARE(columnTexts(model), expected);
    model.sort(column, Qt::DescendingOrder);
    std::reverse(expected.begin(), expected.end());
    QCOMPARE(columnTexts(model), expected);
    model.sort(-1);
    QCOMPARE(columnTexts(model), QStringList({"SEX", "Job", "age", "AGE", "ara"}));
}

void VariableProxyContract::tiesKeepTheirOrderInBothDirections()
{
    CellTable source(8);
    int number = 0;
    for (const char *label : {"b", "a x@a", "b", "a", "z x@a", "c", "b", "a"})
        source.add({QString::number(++number), label, "same", 7, at(12, 0)});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    const QStringList all = {"1", "2", "3", "4", "5", "6", "7", "8"};
    for (const int column : {2, 3, 4, 5}) {
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            model.sort(column, order);
            QCOMPARE(columnTexts(model), all);
        }
    }
    model.sort(1);
    QCOMPARE(columnTexts(model), QStringList({"4", "8", "1", "3", "7", "6", "2", "5"}));
    model.sort(1, Qt::DescendingOrder);
    QCOMPARE(columnTexts(model), QStringList({"2", "5", "6", "1", "3", "7", "4", "8"}));
}

void VariableProxyContract::filterAndOrderGoTogether()
{
    QStandardItemModel source(0, 5);
    for (const char *name : {"weight", "age", "sex", "old age", "wage"})
        source.appendRow({new QStandardItem(name), new QStandardItem("label")});
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    model.setSourceModel(&source);
    model.sort(0, Qt::DescendingOrder);
    model.setFilterRegExp(QRegExp("AGE"));
    QCOMPARE(columnTexts(model), QStringList({"wage", "old age", "age"}));
    source.item(2)->setText("page");
    QCOMPARE(columnTexts(model), QStringList({"wage", "page", "old age", "age"}));
    source.item(4)->setText("wedge");
    QCOMPARE(columnTexts(model), QStringList({"page", "old age", "age"}));
    model.setFilterRegExp(QString());
    QCOMPARE(columnTexts(model), QStringList({"weight", "wedge", "page", "old age", "age"}));
}

void VariableProxyContract::theRulesOfModelsAreKept_data()
{
    QTest::addColumn<bool>("isTree");
    QTest::newRow("over a table") << false;
    QTest::newRow("over a tree") << true;
}
void VariableProxyContract::theRulesOfModelsAreKept()
{
    QFETCH(bool, isTree);
    QStandardItemModel source(0, 5);
    const auto add = [&](const QString &name) {
        auto *first = new QStandardItem(name);
        if (isTree)
            first->appendRow({new QStandardItem(name + " BELOW"), new QStandardItem("label")});
        source.appendRow({first, new QStandardItem("x y@b")});
    };
    const auto tested = open();
    QSortFilterProxyModel &model = tested->model();
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setSourceModel(&source);
    for (const char *name : {"WEIGHT", "AGE", "SEX", "OLD AGE"})
        add(name);
    model.sort(1);
    model.setFilterRegExp(QRegExp("AGE"));
    add("WAGE");
    source.insertRow(0, new QStandardItem("PAGE"));
    tested->setMinimum(QDate(2020, 1, 1));
    source.item(2)->setText("JOB");
    model.sort(0, Qt::DescendingOrder);
    QCOMPARE(columnTexts(model), QStringList({"WAGE", "PAGE", "OLD AGE"}));
    source.removeRow(0);
    model.setFilterRegExp(QRegExp("("));
    QCOMPARE(model.rowCount(), 0);
    model.setFilterRegExp(QRegExp());
    tested->setMaximum(QDate(2020, 1, 1));
    QCOMPARE(columnTexts(model), QStringList({"WEIGHT", "WAGE", "SEX", "OLD AGE", "JOB"}));
    source.clear();
    QCOMPARE(model.rowCount(), 0);
    model.setSourceModel(nullptr);
}

} // namespace tessel::test
