#pragma once

#include "tests/business/models/OpenExpressionList.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace tessel::test {

/// What the three pick lists of the expression builder have in common. The test of each derives from this
/// class and runs these tests along with its own.
class ExpressionListContract : public QObject {
    Q_OBJECT

protected:
    /// A list of the objects called \a names, each with the label "label of <name>"; "null" is no object.
    virtual std::unique_ptr<OpenExpressionList> open(
        const QStringList &names, int mode = ShowName, QObject *parent = nullptr) const = 0;

    /// A list made of no list at all.
    virtual std::unique_ptr<OpenExpressionList> openWithoutList() const = 0;

    /// What the object called \a name shows in \a mode, which is one of the three.
    virtual QString textOf(const QString &name, int mode) const = 0;

    virtual QStringList mimeTypes() const = 0;
    virtual Qt::DropActions dropActions() const = 0;

    /// What removeRows() writes to the log.
    virtual QStringList linesOfARemoval() const = 0;

private slots:
    void theListBelongsToItsParent();
    void theModeDecidesWhatIsShown_data();
    void theModeDecidesWhatIsShown();
    void anyOtherModeShowsNoText_data();
    void anyOtherModeShowsNoText();
    void theColumnIsNotLookedAt();
    void everyRowHasTheProjectsOwnPicture_data();
    void everyRowHasTheProjectsOwnPicture();
    void thePictureStandsInTheFirstColumnOnly();
    void onlyTwoRolesAreAnswered();
    void theHeaderIsQtsOwn();
    void everyRowCanBeDraggedAndEverythingDroppedOn();
    void theFormatsAndActionsAreThoseOfTheClass();
    void indexesCarryTheObjects_data();
    void indexesCarryTheObjects();
    void theListIsFlatAndReportsItsSizeForAnyParent();
    void whatHasNoObjectShowsNothingAndIsRefused();
    void aRowWithoutObjectStaysARow();
    void noListIsAnEmptyList();
    void theCallersListIsCopied();
    void theObjectsAreShownAsTheyAreNow();
    void theDataIsTheLiveListAndNotACopy();
    void theObjectsOutliveTheList();

    void anEditIsAnnouncedForEveryRoleAndChangesNothing();
    void anEditOfAnyColumnIsAnnouncedThere();
    void aRemovalIsAnnouncedAsAskedAndTakesWhatIsThere_data();
    void aRemovalIsAnnouncedAsAskedAndTakesWhatIsThere();
    void aRemovalIsAnnouncedAsAskedUpToTheEndsOfInt_data();
    void aRemovalIsAnnouncedAsAskedUpToTheEndsOfInt();
    void aRemovalBeyondWhatAnIntHoldsIsAnnouncedUpToTheEnd_data();
    void aRemovalBeyondWhatAnIntHoldsIsAnnouncedUpToTheEnd();
    void theParentOfARemovalIsNotLookedAt();
    void removalsFollowEachOther();
    void removedObjectsStayAlive();
    void columnsAreNeitherAddedNorTaken();
    void aViewWithASelectedRowSurvivesOddRemovals_data();
    void aViewWithASelectedRowSurvivesOddRemovals();
};

} // namespace tessel::test
