#pragma once

#include <QAbstractItemModel>

namespace tessel::test {

/// Counts whatever a model announces.
class AllSignals : public QObject {
public:
    explicit AllSignals(const QAbstractItemModel &model)
    {
        using Model = QAbstractItemModel;
        countEach(model, &Model::dataChanged, &Model::headerDataChanged, &Model::layoutAboutToBeChanged,
            &Model::layoutChanged, &Model::rowsAboutToBeInserted, &Model::rowsInserted,
            &Model::rowsAboutToBeRemoved, &Model::rowsRemoved, &Model::rowsMoved, &Model::columnsInserted,
            &Model::columnsRemoved, &Model::modelAboutToBeReset, &Model::modelReset);
    }

    int count() const { return seen; }

private:
    template<typename... Signals>
    void countEach(const QAbstractItemModel &model, Signals... signal)
    {
        (connect(&model, signal, this, [this] { ++seen; }), ...);
    }

    int seen = 0;
};

} // namespace tessel::test
