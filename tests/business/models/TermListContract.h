#pragma once

#include "tests/business/models/ExpressionListContract.h"

namespace tessel::test {

/// What the pick lists of entities and of variables have in common beyond that: the texts, and that objects
/// can be added.
class TermListContract : public ExpressionListContract {
    Q_OBJECT

protected:
    QString textOf(const QString &name, int mode) const override;
    QStringList mimeTypes() const override { return {QStringLiteral("application/vnd.text.list")}; }
    Qt::DropActions dropActions() const override { return Qt::CopyAction | Qt::MoveAction; }
    QStringList linesOfARemoval() const override { return {QStringLiteral("debug default: Removing rows")}; }

private slots:
    void emptyTextsLeaveTheHyphenAndItsBlanks();
    void theLogComesBeforeTheAnnouncementOfARemoval();
    void exactlyOneIsAppendedWhateverIsAnnounced_data();
    void exactlyOneIsAppendedWhateverIsAnnounced();
    void anAdditionIsAnnouncedAsAskedUpToTheEndsOfInt_data();
    void anAdditionIsAnnouncedAsAskedUpToTheEndsOfInt();
    void anAdditionBeyondWhatAnIntHoldsIsStillOne();
    void theParentCarriesTheObjectToAdd();
    void aParentWithoutObjectAddsARowWithoutObject();
    void theSameObjectMayStandTwice();
    void anEmptyListTakesItsFirst();
    void aViewWithASelectedRowSurvivesOddInsertions_data();
    void aViewWithASelectedRowSurvivesOddInsertions();
};

} // namespace tessel::test
