#pragma once

#include "tests/business/models/Catalogue.h"

#include <QObject>

#include <memory>

namespace tessel::test {

/// What the three catalogues have in common. The test of each derives from this class and runs these tests
/// along with its own.
class CatalogueContract : public QObject {
    Q_OBJECT

protected:
    /// A catalogue of all items of \a names; a null name stands for a null pointer.
    virtual std::unique_ptr<Catalogue> open(const QStringList &names) const = 0;

    /// One that was given no list at all.
    virtual std::unique_ptr<QAbstractItemModel> openWithoutList(QObject *parent) const = 0;

    /// The texts of the row of an item called \a name at \a position, counted from 1, of less than ten.
    virtual QStringList textsOfRow(const QString &name, int position) const = 0;

    /// File name of the icon of an item without a type.
    virtual QByteArray icon() const = 0;

private slots:
    void theModelBelongsToItsParent();
    void withoutAListThereIsNothing();
    void anEmptyListShowsNothing();
    void itemsAreTheRowsInOrder();
    void theListIsCopiedAndTheItemsAreNot();
    void indexesAreThoseOfTheRows_data();
    void indexesAreThoseOfTheRows();
    void theColumnOfAnIndexIsCarriedUnchecked();
    void thereIsNothingBelowARowAndYetTheCountsAreThoseOfTheList();

    void onlyTextsAndTheIconOfTheFirstColumnAreShown();
    void theEditRoleShowsNothing();
    void thereIsNothingInOtherColumns();
    void aNullItemIsARowThatShowsNothing();
    void whatHasNoItemShowsNothing();
    void theIconIsTheProjectsOwnPicture();
    void oddNamesAreShownAsTheyAre_data();
    void oddNamesAreShownAsTheyAre();

    void anEditIsAnnouncedInEveryRoleAndChangesNothing();
    void anEditOfNoItemIsRefusedAndNotAnnounced();

    void everyRowCanBeDraggedAndDroppedOnAndNoneEdited();
    void dragsCopyOrMoveOneFormat();
    void aDropChangesNothing_data();
    void aDropChangesNothing();

    void everyCellIsOneTextInTheOrderOfTheIndexes();
    void aColumnThatDoesNotExistStillCarriesItsItem();
    void whatHasNoItemIsLeftOutOfTheDrag();
    void aDragOfNothingStillHasItsFormat();
    void everyDragIsANewObjectOfNobody();
    void aDragOutlivesItsCatalogue();
    void namesAreCarriedWhole_data();
    void namesAreCarriedWhole();
};

} // namespace tessel::test
