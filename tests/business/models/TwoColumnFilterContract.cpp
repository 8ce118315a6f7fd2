#include "tests/business/models/TwoColumnFilterContract.h"

#include "tests/business/models/TwoColumnRows.h"
#include "tests/support/LogCatcher.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QLocale>
#include <QtTest>

Q_DECLARE_METATYPE(QRegExp::PatternSyntax)

namespace tessel::test {
namespace {

constexpr auto kExpression = QRegExp::RegExp;

bool isAccepted(const QSortFilterProxyModel &proxy, int row, const QModelIndex &parent = QModelIndex())
{
    // Public in the proxies, protected in what they derive from.
    struct Asked : QSortFilterProxyModel {
        using QSortFilterProxyModel::filterAcceptsRow;
    };
    return (proxy.*&Asked::filterAcceptsRow)(row, parent);
}

/// Answers each role with another text, and notes which cells are read.
class NotingModel : public QStandardItemModel {
public:
    using QStandardItemModel::QStandardItemModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        noted += QStringLiteral("%1,%2:%3").arg(index.row()).arg(index.column()).arg(role);
        return role == Qt::DisplayRole ? QStandardItemModel::data(index, role) : QVariant("OTHER");
    }

    mutable QStringList noted;
};

const QStringList kRows{
    QStringLiteral("1|Urban"),
    QStringLiteral("2|Rural area"),
    QStringLiteral(" \tx3 |  other \n"),
    QStringLiteral("A.B|c*d"),
    QStringLiteral("|Stra\u00dfe"),
    QStringLiteral("a[b|\u00e9"),
    QStringLiteral("12|"),
};

} // namespace

std::unique_ptr<QStandardItemModel> textSource(const QStringList &rows)
{
    auto source = std::make_unique<QStandardItemModel>();
    for (const QString &row : rows) {
        QList<QStandardItem *> items;
        for (const QString &text : row.split('|'))
            items += new QStandardItem(text);
        source->appendRow(items);
    }
    return source;
}

QString kept(const QSortFilterProxyModel &proxy)
{
    QStringList rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows += QString::number(proxy.mapToSource(proxy.index(row, 0)).row());
    return rows.join(' ');
}

void TwoColumnFilterContract::initTestCase()
{
    // An order in which letters come before letter case: what a plain comparison of code points would not
    // give.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TwoColumnFilterContract::theFilterSearchesTheUpperCasedAndTrimmedTexts_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QRegExp::PatternSyntax>("syntax");
    QTest::addColumn<Qt::CaseSensitivity>("sensitivity");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, const char *pattern, const char *expected,
                         Qt::CaseSensitivity sensitivity = Qt::CaseSensitive,
                         QRegExp::PatternSyntax syntax = kExpression) {
        QTest::newRow(tag) << QString::fromUtf8(pattern) << syntax << sensitivity << expected;
    };
    const auto blind = Qt::CaseInsensitive;
    const auto strict = Qt::CaseSensitive;
    row("an empty pattern keeps every row", "", "0 1 2 3 4 5 6");
    row("an empty wildcard keeps every row", "", "0 1 2 3 4 5 6", strict, QRegExp::Wildcard);
    row("an empty fixed string keeps every row", "", "0 1 2 3 4 5 6", strict, QRegExp::FixedString);
    row("upper case finds the second column", "URBAN", "0");
    row("upper case finds the first column", "A[.]B", "3");
    row("a match in the middle", "RBA", "0");
    row("the pattern is not put into upper case", "urban", "");
    row("the pattern is not put into upper case, not even where the text is like it", "Rural", "");
    row("lower case finds what it finds when case is ignored", "urban", "0", blind);
    row("mixed case when case is ignored", "rURAL", "1", blind);
    row("trimmed at the start", "^OTHER", "2");
    row("trimmed at the end", "OTHER$", "2");
    row("the first column is trimmed", "^X3$", "2");
    row("blanks inside stay", "RURAL AREA", "1");
    row("a blank finds inner blanks only", " ", "1");
    row("a control finds nothing at the edge", "[\\t\\n]", "");
    row("the pattern is not trimmed", " AREA ", "");
    row("sharp s is searched as SS", "STRASSE", "4");
    row("sharp s is not found", "\u00df", "", blind);
    row("letters beyond ASCII are put into upper case", "\u00c9", "5");
    row("letters beyond ASCII in lower case", "\u00e9", "");
    row("letters beyond ASCII when case is ignored", "\u00e9", "5", blind);
    row("empty texts", "^$", "4 6");
    row("the columns are not joined", "1.*URBAN", "");
    row("the columns are not joined the other way round", "URBAN.*1", "");
    row("alternatives in different columns", "^1$|AREA", "0 1");
    row("a digit", "\\d", "0 1 2 6");
    row("what does not match", "Z", "");
    row("expression: a point is any character", "A.B", "3 5");
    row("wildcard: a point is a point", "A.B", "3", strict, QRegExp::Wildcard);
    row("wildcard: a question mark is any character", "A?B", "3 5", strict, QRegExp::Wildcard);
    row("wildcard: an asterisk is any text", "U*N", "0", strict, QRegExp::Wildcard);
    row("wildcard: a set", "[XU][3R]", "0 1 2", strict, QRegExp::Wildcard);
    row("wildcard in lower case", "u*n", "", strict, QRegExp::Wildcard);
    row("wildcard when case is ignored", "u*n", "0", blind, QRegExp::Wildcard);
    row("fixed string: a point is a point", "A.B", "3", strict, QRegExp::FixedString);
    row("fixed string: an asterisk is an asterisk", "C*D", "3", strict, QRegExp::FixedString);
    row("fixed string: a bracket is a bracket", "[", "5", strict, QRegExp::FixedString);
    row("fixed string in lower case", "c*d", "", strict, QRegExp::FixedString);
    row("fixed string when case is ignored", "c*d", "3", blind, QRegExp::FixedString);
}
void TwoColumnFilterContract::theFilterSearchesTheUpperCasedAndTrimmedTexts()
{
    QFETCH(QString, pattern);
    QFETCH(QRegExp::PatternSyntax, syntax);
    QFETCH(Qt::CaseSensitivity, sensitivity);
    const auto source = textSource(kRows);
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    proxy->setFilterRegExp(QRegExp(pattern, sensitivity, syntax));
    QTEST(kept(*proxy), "expected");
}

void TwoColumnFilterContract::anInvalidPatternMatchesNothingAndIsNotLogged_data()
{
    QTest::addColumn<QRegExp>("pattern");
    QTest::newRow("an unclosed bracket") << QRegExp("[");
    QTest::newRow("an unclosed bracket behind a text") << QRegExp("A[");
    QTest::newRow("an unclosed bracket when case is ignored") << QRegExp("a[", Qt::CaseInsensitive);
    QTest::newRow("an unclosed parenthesis") << QRegExp("(A");
    QTest::newRow("a lonely closing parenthesis") << QRegExp("A)");
    QTest::newRow("an unclosed bracket in a wildcard") << QRegExp("[", Qt::CaseSensitive, QRegExp::Wildcard);
}
void TwoColumnFilterContract::anInvalidPatternMatchesNothingAndIsNotLogged()
{
    QFETCH(QRegExp, pattern);
    QVERIFY(!pattern.isValid());
    const auto source = textSource(kRows);
    const auto proxy = open();
    const LogCatcher log;
    proxy->setSourceModel(source.get());
    proxy->setFilterRegExp(pattern);
    QCOMPARE(kept(*proxy), QString());
    source->appendRow(new QStandardItem("A["));
    QCOMPARE(kept(*proxy), QString());
    proxy->setFilterRegExp(QRegExp());
    QCOMPARE(kept(*proxy), QString("0 1 2 3 4 5 6 7"));
    QCOMPARE(log.messages(), QStringList());
}

void TwoColumnFilterContract::theFilterIsAskedDirectly()
{
    const auto source = textSource({"1|Urban", "2|Rural"});
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    proxy->setFilterRegExp(QRegExp("RURAL"));
    QVERIFY(!isAccepted(*proxy, 0));
    QVERIFY(isAccepted(*proxy, 1));
    QVERIFY(!isAccepted(*proxy, 2));
    QVERIFY(!isAccepted(*proxy, -1));
    // A row that is not there has empty texts.
    proxy->setFilterRegExp(QRegExp());
    QVERIFY(isAccepted(*proxy, 2));
}

void TwoColumnFilterContract::theFilterAsksForTheSecondColumnOnlyWhenTheFirstHasNoMatch()
{
    NotingModel source(1, 3);
    source.setData(source.index(0, 0), "one");
    source.setData(source.index(0, 1), "two");
    const auto proxy = open();
    proxy->setSourceModel(&source);
    proxy->setFilterRegExp(QRegExp("ONE"));
    source.noted.clear();
    QVERIFY(isAccepted(*proxy, 0));
    QCOMPARE(source.noted, QStringList{"0,0:0"});
    proxy->setFilterRegExp(QRegExp("TWO"));
    source.noted.clear();
    QVERIFY(isAccepted(*proxy, 0));
    QCOMPARE(source.noted, QStringList({"0,0:0", "0,1:0"}));
}

void TwoColumnFilterContract::theFilterSeesNumbersAsTheirTexts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("a whole number") << QVariant(-12) << "-12";
    QTest::newRow("a number") << QVariant(10.5) << "10.5";
    QTest::newRow("a number without decimals") << QVariant(10.0) << "10";
    QTest::newRow("the exponent is in upper case") << QVariant(1e20) << "1E+20";
    QTest::newRow("infinite") << QVariant(qInf()) << "INF";
    QTest::newRow("not a number") << QVariant(qQNaN()) << "NAN";
    QTest::newRow("a truth value") << QVariant(true) << "TRUE";
    QTest::newRow("no value") << QVariant() << "";
}
void TwoColumnFilterContract::theFilterSeesNumbersAsTheirTexts()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    for (const int column : {0, 1}) {
        const auto source = textSource({"zero|zero", "zero|zero"});
        source->item(1, column)->setData(value, Qt::DisplayRole);
        const auto proxy = open();
        proxy->setSourceModel(source.get());
        proxy->setFilterRegExp(QRegExp('^' + QRegExp::escape(text) + '$'));
        QCOMPARE(kept(*proxy), QString("1"));
    }
}

void TwoColumnFilterContract::onlyTheFirstTwoColumnsAreSearched()
{
    const auto source = textSource({"a|b|c", "c|b|a", "b|c|a"});
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    proxy->setFilterRegExp(QRegExp("C"));
    QCOMPARE(kept(*proxy), QString("1 2"));
    // The column that other filters search does not matter here.
    proxy->setFilterKeyColumn(2);
    QCOMPARE(kept(*proxy), QString("1 2"));
}

void TwoColumnFilterContract::aSourceWithOneColumnIsSearched()
{
    const auto source = textSource({"a", "b"});
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    proxy->setFilterRegExp(QRegExp("B"));
    QCOMPARE(kept(*proxy), QString("1"));
}

void TwoColumnFilterContract::rowsBelowARowAreFilteredByTheirOwnTexts()
{
    const auto source = textSource({"a|b", "b|c"});
    source->item(0)->appendRow({new QStandardItem("b"), new QStandardItem("c")});
    source->item(0)->appendRow({new QStandardItem("c"), new QStandardItem("a")});
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    proxy->setFilterRegExp(QRegExp("A"));
    QCOMPARE(shownRows(*proxy), QStringList{"a|b"});
    const QModelIndex above = proxy->index(0, 0);
    QCOMPARE(proxy->rowCount(above), 1);
    QCOMPARE(proxy->index(0, 0, above).data(), QVariant("c"));
    QVERIFY(!isAccepted(*proxy, 0, source->index(0, 0)));
    QVERIFY(isAccepted(*proxy, 1, source->index(0, 0)));
}

void TwoColumnFilterContract::onlyDisplayedTextsCount()
{
    NotingModel source(2, 2);
    source.setData(source.index(0, 0), 2);
    source.setData(source.index(1, 0), 1);
    const auto proxy = open();
    proxy->setSourceModel(&source);
    proxy->setFilterRole(Qt::ToolTipRole);
    proxy->setSortRole(Qt::ToolTipRole);
    proxy->setFilterRegExp(QRegExp("OTHER"));
    QCOMPARE(kept(*proxy), QString());
    proxy->setFilterRegExp(QRegExp("2"));
    QCOMPARE(kept(*proxy), QString("0"));
    proxy->setFilterRegExp(QRegExp());
    proxy->sort(0);
    QCOMPARE(kept(*proxy), QString("1 0"));
}

void TwoColumnFilterContract::theFilterFollowsThePatternAndTheSource()
{
    const auto source = textSource({"1|Urban", "2|Rural", "3|"});
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    QCOMPARE(kept(*proxy), QString("0 1 2"));
    proxy->setFilterRegExp("R");
    QCOMPARE(kept(*proxy), QString("0 1"));
    proxy->setFilterRegExp("RU");
    QCOMPARE(kept(*proxy), QString("1"));
    proxy->setFilterRegExp("ru");
    QCOMPARE(kept(*proxy), QString());
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QCOMPARE(kept(*proxy), QString("1"));
    source->item(2, 1)->setText("ruin");
    QCOMPARE(kept(*proxy), QString("1 2"));
    source->item(1, 1)->setText("Urban");
    QCOMPARE(kept(*proxy), QString("2"));
    source->item(0, 0)->setText(" ru ");
    QCOMPARE(kept(*proxy), QString("0 2"));
    source->insertRow(0, {new QStandardItem("0"), new QStandardItem("Ruby")});
    QCOMPARE(kept(*proxy), QString("0 1 3"));
    source->removeRow(1);
    QCOMPARE(kept(*proxy), QString("0 2"));
    proxy->setFilterWildcard("r*y");
    QCOMPARE(kept(*proxy), QString("0"));
    proxy->setFilterFixedString("");
    QCOMPARE(kept(*proxy), QString("0 1 2"));
}

void TwoColumnFilterContract::theProxyIsASoundModel()
{
    const auto source = textSource(kRows);
    const auto proxy = open();
    const QAbstractItemModelTester tester(
        proxy.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy->setSourceModel(source.get());
    for (const char *pattern : {"A", "", "[", "^$", "1|2", "Z"}) {
        proxy->setFilterRegExp(pattern);
        proxy->sort(1, Qt::DescendingOrder);
        source->appendRow({new QStandardItem("12"), new QStandardItem("A")});
        source->item(0, 1)->setText(pattern);
        source->insertRow(1, {new QStandardItem("7"), new QStandardItem("z@a")});
        proxy->sort(0, Qt::AscendingOrder);
        source->item(1)->setData(QDateTime::currentDateTimeUtc(), Qt::DisplayRole);
        source->removeRow(2);
    }
    proxy->setFilterRegExp("");
    QCOMPARE(proxy->rowCount(), source->rowCount());
    source->clear();
    QCOMPARE(proxy->rowCount(), 0);
}

void TwoColumnFilterContract::theProxyBelongsToItsParent()
{
    QObject owner;
    const auto proxy = open(&owner);
    QCOMPARE(proxy->QObject::parent(), &owner);
    QVERIFY(!open()->QObject::parent());
}

void TwoColumnFilterContract::aProxyWithoutSourceIsEmpty()
{
    const auto proxy = open();
    QCOMPARE(proxy->sourceModel(), nullptr);
    QCOMPARE(proxy->filterRegExp(), QRegExp());
    proxy->setFilterRegExp("A");
    proxy->sort(0);
    QCOMPARE(proxy->rowCount(), 0);
}

} // namespace tessel::test
