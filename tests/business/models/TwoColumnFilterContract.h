#pragma once

#include <QObject>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <memory>

namespace tessel::test {

/// What the proxies over a variable's value labels and ranges have in common: the whole filter, and the order
/// of texts and of dates. The test of each derives from this class and runs these tests along with its own.
class TwoColumnFilterContract : public QObject {
    Q_OBJECT

protected:
    virtual std::unique_ptr<QSortFilterProxyModel> open(QObject *parent = nullptr) const = 0;

    /// A value with the text \a text that the proxy compares as a text.
    virtual QVariant textValue(const QString &text) const = 0;

    /// How \a left and \a right compare as cells of the given columns: "<", ">", "=" where neither is less,
    /// "<>" where each is less than the other.
    QString order(const QVariant &left, const QVariant &right, int leftColumn = 0, int rightColumn = 0) const;

private slots:
    void initTestCase();

    void theFilterSearchesTheUpperCasedAndTrimmedTexts_data();
    void theFilterSearchesTheUpperCasedAndTrimmedTexts();
    void anInvalidPatternMatchesNothingAndIsNotLogged_data();
    void anInvalidPatternMatchesNothingAndIsNotLogged();
    void theFilterIsAskedDirectly();
    void theFilterAsksForTheSecondColumnOnlyWhenTheFirstHasNoMatch();
    void theFilterSeesNumbersAsTheirTexts_data();
    void theFilterSeesNumbersAsTheirTexts();
    void onlyTheFirstTwoColumnsAreSearched();
    void aSourceWithOneColumnIsSearched();
    void rowsBelowARowAreFilteredByTheirOwnTexts();
    void onlyDisplayedTextsCount();
    void theFilterFollowsThePatternAndTheSource();

    void textsAreOrderedByTheLocale_data();
    void textsAreOrderedByTheLocale();
    void theWordAroundAnAtSignStandsForATextInColumnOne_data();
    void theWordAroundAnAtSignStandsForATextInColumnOne();
    void theAtSignCountsInColumnOneOnly_data();
    void theAtSignCountsInColumnOneOnly();
    void datesAreOrderedByTime_data();
    void datesAreOrderedByTime();
    void tiesKeepTheOrderOfTheSourceInBothDirections();
    void theOrderFollowsTheSource();

    void theProxyIsASoundModel();
    void theProxyBelongsToItsParent();
    void aProxyWithoutSourceIsEmpty();
};

/// A model of texts, "<column 0>|<column 1>|..." for each row.
std::unique_ptr<QStandardItemModel> textSource(const QStringList &rows);

/// The rows of \a proxy by their numbers in the source: "0 2 5".
QString kept(const QSortFilterProxyModel &proxy);

} // namespace tessel::test
