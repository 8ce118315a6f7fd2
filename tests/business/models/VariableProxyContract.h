#pragma once

#include <QDate>
#include <QObject>
#include <QSortFilterProxyModel>

#include <memory>

namespace tessel::test {

/// A proxy over variables, with what it adds to its base class.
class OpenVariableProxy {
public:
    OpenVariableProxy() = default;
    virtual ~OpenVariableProxy() = default;
    virtual QSortFilterProxyModel &model() = 0;
    virtual void setMinimum(QDate date) = 0;
    virtual void setMaximum(QDate date) = 0;
    virtual bool isInRange(QDate date) const = 0;
    virtual bool isKept(int row, const QModelIndex &parent = QModelIndex()) const = 0;
    virtual bool isLess(const QModelIndex &left, const QModelIndex &right) const = 0;

private:
    Q_DISABLE_COPY_MOVE(OpenVariableProxy)
};

template<typename Proxy>
class OpenProxy : public Proxy, public OpenVariableProxy {
public:
    OpenProxy()
        : Proxy(nullptr)
    {
    }
    QSortFilterProxyModel &model() override { return *this; }
    void setMinimum(QDate date) override { this->setFilterMinimumDate(date); }
    void setMaximum(QDate date) override { this->setFilterMaximumDate(date); }
    bool isInRange(QDate date) const override { return this->dateInRange(date); }
    bool isKept(int row, const QModelIndex &parent) const override
    {
        return this->filterAcceptsRow(row, parent);
    }
    bool isLess(const QModelIndex &left, const QModelIndex &right) const override
    {
        return this->lessThan(left, right);
    }
};

/// How one of the four proxies differs from the next.
struct VariableProxyFacts {
    int searchedColumns;
    bool comparesIntegers;
};

/// What the four proxies over variables have in common. The test of each derives from this class and runs
/// these tests along with its own.
class VariableProxyContract : public QObject {
    Q_OBJECT

public:
    /// The first comparison of texts settles the language of all.
    static void initMain();

protected:
    virtual std::unique_ptr<OpenVariableProxy> open() const = 0;
    virtual VariableProxyFacts facts() const = 0;

private slots:
    void aMatchInAnySearchedColumnKeepsTheRow_data();
    void aMatchInAnySearchedColumnKeepsTheRow();
    void textsAreSearchedTrimmedAndInUpperCase_data();
    void textsAreSearchedTrimmedAndInUpperCase();
    void columnsBehindAMatchAreNotRead();
    void withoutAPatternEveryRowIsKept();
    void columnsThatAreNotThereAreEmptyTexts();
    void rowsBelowAParentAreJudgedAsWell();
    void theSettingsOfTheBaseClassForColumnAndRoleTakeNoPart();
    void aPatternIsUsedAsTheFrontEndSetsIt();
    void aPatternOfTheOtherKindKeepsEveryRow();

    void bothBoundsOfTheDatesAreExclusive_data();
    void bothBoundsOfTheDatesAreExclusive();
    void aBoundCanBeMovedAndTakenAway();
    void theDatesTakeNoPartInTheFilter();
    void settingADateRunsTheFilterAgain_data();
    void settingADateRunsTheFilterAgain();
    void settingADateWithoutASourceIsHarmless();

    void theTypeOfTheLeftValueDecides_data();
    void theTypeOfTheLeftValueDecides();
    void integersAreComparedAsNumbersWhereTheClassDoes_data();
    void integersAreComparedAsNumbersWhereTheClassDoes();
    void theTokenAroundTheAtSignStandsForTheTextOfColumnOne_data();
    void theTokenAroundTheAtSignStandsForTheTextOfColumnOne();
    void onlyTheDisplayedTextsAreCompared();
    void rowsAreSortedByAnyColumnAndDirection_data();
    void rowsAreSortedByAnyColumnAndDirection();
    void tiesKeepTheirOrderInBothDirections();
    void filterAndOrderGoTogether();
    void theRulesOfModelsAreKept_data();
    void theRulesOfModelsAreKept();
};

} // namespace tessel::test
