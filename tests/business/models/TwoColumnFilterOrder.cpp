#include "tests/business/models/TwoColumnFilterContract.h"

#include <QDateTime>
#include <QtTest>

namespace tessel::test {
namespace {

bool isLess(const QSortFilterProxyModel &proxy, const QModelIndex &left, const QModelIndex &right)
{
    // Public in the proxies, protected in what they derive from.
    struct Asked : QSortFilterProxyModel {
        using QSortFilterProxyModel::lessThan;
    };
    return (proxy.*&Asked::lessThan)(left, right);
}

} // namespace

QString TwoColumnFilterContract::order(
    const QVariant &left, const QVariant &right, int leftColumn, int rightColumn) const
{
    QStandardItemModel source(2, 3);
    source.setData(source.index(0, leftColumn), left, Qt::DisplayRole);
    source.setData(source.index(1, rightColumn), right, Qt::DisplayRole);
    const auto proxy = open();
    proxy->setSourceModel(&source);
    const QModelIndex one = source.index(0, leftColumn);
    const QModelIndex two = source.index(1, rightColumn);
    const QString less = isLess(*proxy, one, two) ? "<" : "";
    const QString greater = isLess(*proxy, two, one) ? ">" : "";
    return less.isEmpty() && greater.isEmpty() ? QStringLiteral("=") : less + greater;
}

void TwoColumnFilterContract::textsAreOrderedByTheLocale_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("expected");
    QTest::newRow("equal") << "a"
                           << "a"
                           << "=";
    QTest::newRow("both empty") << ""
                                << ""
                                << "=";
    QTest::newRow("empty comes first") << ""
                                       << "a"
                                       << "<";
    QTest::newRow("the beginning comes first") << "ab"
                                               << "abc"
                                               << "<";
    QTest::newRow("the alphabet") << "b"
                                  << "a"
                                  << ">";
    QTest::newRow("letters count before letter case") << "a"
                                                      << "B"
                                                      << "<";
    QTest::newRow("lower case first where all else is equal") << "a"
                                                              << "A"
                                                              << "<";
    QTest::newRow("an accented letter stands by its letter") << "\u00e9"
                                                             << "f"
                                                             << "<";
    QTest::newRow("digits count one by one") << "x10"
                                             << "x9"
                                             << "<";
    QTest::newRow("the text is not trimmed") << " b"
                                             << "a"
                                             << "<";
}
void TwoColumnFilterContract::textsAreOrderedByTheLocale()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    for (const int column : {0, 1, 2})
        QTEST(order(textValue(left), textValue(right), column, column), "expected");
}

void TwoColumnFilterContract::theWordAroundAnAtSignStandsForATextInColumnOne_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("expected");
    QTest::newRow("equal") << "z a@b"
                           << "z a@b"
                           << "=";
    QTest::newRow("only the word counts") << "z a@a"
                                          << "b a@b"
                                          << "<";
    QTest::newRow("what stands before is left out") << "z a@b"
                                                    << "y a@b"
                                                    << "=";
    QTest::newRow("what stands behind is left out") << "a@b z"
                                                    << "a@b y"
                                                    << "=";
    QTest::newRow("the first of several words counts") << "a@b c@z"
                                                       << "a@b c@y"
                                                       << "=";
    QTest::newRow("the first of several words counts, not the least") << "b@x a@x"
                                                                      << "a@y z@x"
                                                                      << ">";
    QTest::newRow("a second at sign ends the word") << "a@@z"
                                                    << "a@@y"
                                                    << "=";
    QTest::newRow("nothing before the at sign") << "z @a"
                                                << "y @b"
                                                << "<";
    QTest::newRow("nothing behind the at sign") << "z a@ z"
                                                << "y b@ y"
                                                << "<";
    QTest::newRow("a lone at sign") << "z @ z"
                                    << "y @ y"
                                    << "=";
    QTest::newRow("nothing but an at sign") << "@"
                                            << "z @ z"
                                            << "=";
    QTest::newRow("points before belong to the word") << "z a.x@c"
                                                      << "y b.x@c"
                                                      << "<";
    QTest::newRow("points behind belong to the word") << "z x@c.a"
                                                      << "y x@c.b"
                                                      << "<";
    QTest::newRow("points alone") << "z ..@.a"
                                  << "y ..@.b"
                                  << "<";
    QTest::newRow("digits and _ belong to the word") << "z _1@x"
                                                     << "y _2@x"
                                                     << "<";
    QTest::newRow("digits behind belong to the word") << "z x@_1"
                                                      << "y x@_2"
                                                      << "<";
    QTest::newRow("a hyphen ends the word") << "z-x@y-z"
                                            << "y-x@y-y"
                                            << "=";
    QTest::newRow("letters beyond ASCII before end the word") << "z\u00e9x@y"
                                                              << "y\u00e9x@y"
                                                              << "=";
    QTest::newRow("letters beyond ASCII right before the at sign") << "z\u00e9@y"
                                                                   << "y\u00e9@y"
                                                                   << "=";
    QTest::newRow("letters beyond ASCII behind end the word") << "x@\u00e9z"
                                                              << "x@\u00e9y"
                                                              << "=";
    QTest::newRow("the word is compared by the locale") << "z a@a"
                                                        << "y B@a"
                                                        << "<";
    QTest::newRow("a word against a text without at sign") << "z a@a"
                                                           << "b"
                                                           << "<";
    QTest::newRow("a text without at sign counts whole") << "z a"
                                                         << "y b"
                                                         << ">";
}
void TwoColumnFilterContract::theWordAroundAnAtSignStandsForATextInColumnOne()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QTEST(order(textValue(left), textValue(right), 1, 1), "expected");
}

void TwoColumnFilterContract::theAtSignCountsInColumnOneOnly_data()
{
    QTest::addColumn<int>("leftColumn");
    QTest::addColumn<int>("rightColumn");
    QTest::addColumn<QString>("expected");
    QTest::newRow("column 0") << 0 << 0 << ">";
    QTest::newRow("column 1") << 1 << 1 << "<";
    QTest::newRow("column 2") << 2 << 2 << ">";
    QTest::newRow("left in column 1") << 1 << 0 << "<";
    QTest::newRow("right in column 1") << 0 << 1 << ">";
    QTest::newRow("left in column 1, right in column 2") << 1 << 2 << "<";
}
void TwoColumnFilterContract::theAtSignCountsInColumnOneOnly()
{
    QFETCH(int, leftColumn);
    QFETCH(int, rightColumn);
    QTEST(order(textValue("y b@a"), textValue("c b@b"), leftColumn, rightColumn), "expected");
    // Which side's word is taken.
    QCOMPARE(order(textValue("m z@z"), textValue("b"), leftColumn, rightColumn), QString(">"));
    QCOMPARE(order(textValue("m"), textValue("z a@z"), leftColumn, rightColumn),
        QString(rightColumn == 1 ? ">" : "<"));
}

void TwoColumnFilterContract::datesAreOrderedByTime_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<QString>("expected");
    const auto at = [](int year, int hour) { return QDateTime(QDate(year, 1, 1), QTime(hour, 0), Qt::UTC); };
    const QVariant date = at(2000, 12);
    QTest::newRow("equal") << date << QVariant(at(2000, 12)) << "=";
    QTest::newRow("a year later") << date << QVariant(at(2001, 12)) << "<";
    QTest::newRow("an hour earlier") << date << QVariant(at(2000, 11)) << ">";
    // As texts, "10000" would come first.
    QTest::newRow("far in the future") << date << QVariant(at(10000, 12)) << "<";
    QTest::newRow("the same time elsewhere") << date << QVariant(at(2000, 12).toOffsetFromUtc(7200)) << "=";
    // As texts, the digits would come first.
    QTest::newRow("a text that is no date is no later") << date << textValue("zzz") << "=";
}
void TwoColumnFilterContract::datesAreOrderedByTime()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    for (const int column : {0, 1})
        QTEST(order(left, right, column, column), "expected");
}

void TwoColumnFilterContract::tiesKeepTheOrderOfTheSourceInBothDirections()
{
    const auto source = textSource({"x|0", "b|1", "b|2", "a|3", "b|4", "a|5"});
    for (int row = 0; row < source->rowCount(); ++row)
        source->item(row)->setData(textValue(source->item(row)->text()), Qt::DisplayRole);
    const auto proxy = open();
    proxy->setSourceModel(source.get());
    QCOMPARE(kept(*proxy), QString("0 1 2 3 4 5"));
    proxy->sort(0, Qt::AscendingOrder);
    QCOMPARE(kept(*proxy), QString("3 5 1 2 4 0"));
    proxy->sort(0, Qt::DescendingOrder);
    QCOMPARE(kept(*proxy), QString("0 1 2 4 3 5"));
    proxy->sort(0, Qt::AscendingOrder);
    QCOMPARE(kept(*proxy), QString("3 5 1 2 4 0"));
    proxy->sort(-1);
    QCOMPARE(kept(*proxy), QString("0 1 2 3 4 5"));
}

void TwoColumnFilterContract::theOrderFollowsTheSource()
{
    const auto source = textSource({"1|0", "2|1", "3|2"});
    const auto proxy = open();
    for (int row = 0; row < 3; ++row)
        source->item(row)->setData(row + 1, Qt::DisplayRole);
    proxy->setSourceModel(source.get());
    proxy->sort(0, Qt::DescendingOrder);
    QCOMPARE(kept(*proxy), QString("2 1 0"));
    source->item(0)->setData(10, Qt::DisplayRole);
    QCOMPARE(kept(*proxy), QString("0 2 1"));
    auto *item = new QStandardItem;
    item->setData(5, Qt::DisplayRole);
    source->insertRow(0, item);
    QCOMPARE(kept(*proxy), QString("1 0 3 2"));
    source->removeRow(1);
    QCOMPARE(kept(*proxy), QString("0 2 1"));
}

} // namespace tessel::test
