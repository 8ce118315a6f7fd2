#pragma once

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QAbstractItemModel>
#include <QList>
#include <QStringList>

#include <memory>

namespace tessel::test {

/// A list model over variables, with what the contract needs of it in reach.
class OpenVariableList {
public:
    OpenVariableList() = default;
    virtual ~OpenVariableList() = default;
    virtual QAbstractItemModel &model() = 0;
    virtual QModelIndex made(int row, int column, TDmVariable *variable) const = 0;
    virtual QVariant textOf(TDmVariable *variable, int column) const = 0;

private:
    Q_DISABLE_COPY_MOVE(OpenVariableList)
};

template<typename Model>
class OpenList : public Model, public OpenVariableList {
public:
    OpenList(TDmEntity *entity, QList<TDmVariable *> *variables)
        : Model(nullptr, entity, variables)
    {
    }
    QAbstractItemModel &model() override { return *this; }
    QModelIndex made(int row, int column, TDmVariable *variable) const override
    {
        return this->createIndex(row, column, variable);
    }
    QVariant textOf(TDmVariable *variable, int column) const override
    {
        return this->getItemData(variable, column);
    }
};

/// How one of the run wizard's lists differs from the next.
struct VariableListFacts {
    QStringList headers;
    bool leavesOutReferences;
    bool ticksLevelOneOnly;
    bool isUserCheckable;
};

/// What the run wizard's three lists of variables have in common. The test of each derives from this class
/// and runs these tests along with its own.
class VariableListContract : public QObject {
    Q_OBJECT

protected:
    virtual std::unique_ptr<OpenVariableList> open(
        TDmEntity *entity, QList<TDmVariable *> *variables) const = 0;
    virtual VariableListFacts facts() const = 0;

private slots:
    void referenceVariablesAreLeftOutByExactName_data();
    void referenceVariablesAreLeftOutByExactName();
    void theListIsTakenOnceAndLaterChangesAreNotSeen();
    void theSameVariableTwiceIsTwoRows();
    void oddListsAreShownAsFarAsTheyGo();
    void nullObjectsAreRowsThatShowNothingAndAreRefused();
    void theVariablesOutliveTheModel();
    void theFillingIsAnnouncedAsRowZeroWhateverTheNumberOfRows();
    void listsAreMade();

    void indexesCarryTheVariableAndAnyColumn_data();
    void indexesCarryTheVariableAndAnyColumn();
    void noIndexHasAParentAndEveryParentHasAllRows();
    void theHeadersAreShownAcrossTheTopOnly();
    void theHeadersAreTranslatedInTheContextOfTheClass();

    void theColumnsShowTheVariable();
    void textsAreShownAsTheyAreNow();
    void onlyTextAndTickAreAnswered();
    void theBoxMirrorsTheMark_data();
    void theBoxMirrorsTheMark();
    void theFlagsAreThoseOfTheClass_data();
    void theFlagsAreThoseOfTheClass();

    void aTickTurnsTheMarkOverWhateverWasAskedFor_data();
    void aTickTurnsTheMarkOverWhateverWasAskedFor();
    void aTickNeedsItsLevel_data();
    void aTickNeedsItsLevel();
    void otherRolesAndColumnsAreRefused();
    void indexesOfAnotherModelAreLikeThoseWithoutVariable();
    void aTickIsSeenByEveryModelAndAnnouncedByOne();
};

} // namespace tessel::test
