#pragma once

#include "tests/business/models/TwoColumnRows.h"

#include <QAbstractItemModel>
#include <QObject>

#include <memory>
#include <vector>

namespace tessel::test {

/// A model over the value labels or the ranges of a variable of its own.
class OpenList {
public:
    OpenList() = default;
    virtual ~OpenList() = default;

    virtual QAbstractItemModel &model() = 0;

    /// An index that index() need not give.
    virtual QModelIndex made(int row, int column, void *object) const = 0;
    virtual QVariant itemData(void *object, int column) const = 0;

    virtual TDmVariable &variable() = 0;
    virtual void *object(int row) = 0; ///< The variable's object, whatever the model holds.
    virtual QStringList stored() = 0;
    virtual void append(const QString &row) = 0;
    virtual void set(int row, const QString &text) = 0;
    virtual void takeFirst() = 0; ///< Takes the first object away from the variable; it lives on.

private:
    Q_DISABLE_COPY_MOVE(OpenList)
};

template<typename Model, typename Item>
class Open final : public OpenList {
public:
    explicit Open(const QStringList &rows)
        : ownVariable(variableWith<Item>(rows))
        , ownModel(nullptr, ownVariable.get())
    {
    }

    QAbstractItemModel &model() override { return ownModel; }
    QModelIndex made(int row, int column, void *object) const override
    {
        return ownModel.createIndex(row, column, object);
    }
    QVariant itemData(void *object, int column) const override
    {
        return ownModel.getItemData(static_cast<Item *>(object), column);
    }

    TDmVariable &variable() override { return *ownVariable; }
    void *object(int row) override { return listOf<Item>(*ownVariable).at(row); }
    QStringList stored() override { return tessel::test::stored<Item>(*ownVariable); }
    void append(const QString &row) override { tessel::test::append<Item>(*ownVariable, row); }
    void set(int row, const QString &text) override
    {
        fillFrom(*listOf<Item>(*ownVariable).at(row), text.section('|', 0, 0), text.section('|', 1));
    }
    void takeFirst() override { taken.emplace_back(listOf<Item>(*ownVariable).takeFirst()); }

private:
    struct OpenModel : Model {
        using Model::createIndex;
        using Model::Model;
    };

    std::unique_ptr<TDmVariable> ownVariable;
    std::vector<std::unique_ptr<Item>> taken;
    OpenModel ownModel;
};

/// What the tables of a variable's value labels and ranges have in common. The test of each derives from this
/// class and runs these tests along with its own. Cells hold whole numbers, which both tables take.
class TwoColumnListContract : public QObject {
    Q_OBJECT

protected:
    virtual std::unique_ptr<OpenList> open(const QStringList &rows) const = 0;
    virtual std::unique_ptr<QAbstractItemModel> openOver(TDmVariable *variable, QObject *parent) const = 0;
    virtual QString header(int column) const = 0;

private slots:
    void rowsAreTheVariablesObjectsInOrder_data();
    void rowsAreTheVariablesObjectsInOrder();
    void indexes_data();
    void indexes();
    void everyIndexIsWithoutParent();
    void theSizesAreTheSameForEveryParent();

    void headers_data();
    void headers();
    void headersAreTranslatedInTheContextOfTheClass();
    void onlyDisplayAndEditRolesAreAnswered();
    void otherColumnsShowNothing();
    void theFlagsOfValidIndexesAllowEditingWhateverTheColumn_data();
    void theFlagsOfValidIndexesAllowEditingWhateverTheColumn();

    void everyEditIsAnnouncedAndTrueWhateverTheRoleAndColumn_data();
    void everyEditIsAnnouncedAndTrueWhateverTheRoleAndColumn();
    void anEditThatChangesNothingIsAnnounced();
    void theEditRoleIsTheUsualOne();
    void editsWithoutObjectAreRefusedSilently();

    void theRowsAreThoseOfTheTimeWhenTheModelWasMade();
    void changesMadeElsewhereAreShownAndNotAnnounced();
    void twoModelsEditTheSameObjects();
    void aRowWithoutObjectShowsNothingAndIsRefused();
    void aVariableWithoutRowsIsAnEmptyTable();
    void aNullVariableIsAnEmptyTable();
    void rowsCannotBeInsertedOrRemoved();
    void indexesOfAnotherModelShowNothingAndAreRefused();
    void theModelBelongsToItsParent();
    void theObjectsOutliveTheModel();
};

} // namespace tessel::test
