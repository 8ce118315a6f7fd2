#pragma once

#include "tests/business/models/OpenEntityTree.h"

#include <QList>
#include <QObject>

#include <memory>

namespace tessel::test {

/// What the three tree models over entities have in common. The test of each derives from this class and runs
/// these tests along with its own.
class EntityTreeContract : public QObject {
    Q_OBJECT

protected:
    virtual std::unique_ptr<OpenEntityTree> open(TDmEntity *root) const = 0;

    /// The roles that are answered for an entity without any marks.
    virtual QList<int> answeredRoles() const = 0;
    virtual Qt::ItemFlags flagsOfAnEntity() const = 0;

    /// What setData() answers for an index without an entity.
    virtual bool answerWithoutEntity() const { return false; }

private slots:
    void theTreeIsShownWholeAndInOrder_data();
    void theTreeIsShownWholeAndInOrder();
    void indexesAreThoseOfTheEntities_data();
    void indexesAreThoseOfTheEntities();
    void rowsAreTheChildren_data();
    void rowsAreTheChildren();
    void aRootWithoutChildrenIsTheOnlyRow();
    void thereIsAlwaysOneColumn();

    void theRowOfAParentIsTheLevelOfTheChild_data();
    void theRowOfAParentIsTheLevelOfTheChild();
    void theRowOfAParentFollowsTheLevelAndNotTheDepth();
    void aParentIsTheSameFromEveryColumn();
    void whatHasNoEntityHasNoParent();
    void anEntityOfLevelOneHasNoParentWhereverItIs();
    void aRootOfAnotherLevelIsItsOwnParent();
    void anEntityOutsideTheTreeHasNoParent();
    void anEntityOfNegativeLevelHasNoValidParent();
    void anEntityThatStandsTwiceBelongsToTheFirstParentFound_data();
    void anEntityThatStandsTwiceBelongsToTheFirstParentFound();
    void theSearchBeginsAnywhere_data();
    void theSearchBeginsAnywhere();

    void theHeaderIsTheSameForEverySectionAndOrientation();
    void theHeaderIsTranslatedInTheContextOfTheClass();
    void theNameIsTheItemDataOfColumnZero();
    void onlyTheNamedRolesAreAnswered();
    void whatHasNoEntityShowsNothing();
    void oddNamesAreShownAsTheyAre_data();
    void oddNamesAreShownAsTheyAre();
    void theFlagsAreThoseOfTheClass();

    void changesMadeElsewhereAreSeenAtTheNextCallAndNotAnnounced();
    void aNullChildIsARowThatShowsNothing();
    void anEntityWithoutAListHasNoRows();
    void aModelOfNoRootShowsOneEmptyRow();
    void indexesOfAnotherModelAreLikeThoseWithoutEntity();
    void theTreeOutlivesTheModel();
};

} // namespace tessel::test
