#pragma once

#include <QAbstractItemModel>
#include <QList>
#include <QSortFilterProxyModel>
#include <QStringList>

#include <functional>
#include <memory>

namespace tessel::test {

/// A model together with the objects that it shows.
class OpenModel {
public:
    OpenModel() = default;
    virtual ~OpenModel() = default;

    virtual QAbstractItemModel &model() = 0;

    /// An index of the model's own, as index() would not make it. Invalid where the model keeps what it needs
    /// behind its indexes: for proxies.
    virtual QModelIndex made(int row, int column, void *object) const = 0;

private:
    Q_DISABLE_COPY_MOVE(OpenModel)
};

/// What a model is opened over.
enum class Shape {
    Whole, ///< Objects that give every role something to show.
    WithNulls, ///< The same with null objects among them.
    Nothing, ///< Null where a list or an object is expected.
};

/// The headers that a model gives for Qt::DisplayRole.
enum class Headers {
    Numbers, ///< Those of QAbstractItemModel.
    OneForAll, ///< One text for every section and orientation.
    ByColumn, ///< A text for each column, horizontally.
};

/// Why QAbstractItemModelTester does not run on a model, if so.
enum class Unruly {
    No, ///< It runs.
    RowsBelowEveryRow, ///< A flat list that reports its size for any parent: meant so.
    ParentRowIsALevel, ///< A tree whose parent() gives the child's level as the row: meant so.
};

/// One model or proxy of the library, and what is promised of it.
struct ModelRow {
    const char *name;
    std::function<std::unique_ptr<OpenModel>(Shape)> open;
    QList<int> rolesInTheFirstColumn;
    QList<int> rolesElsewhere;
    Headers headers;
    QStringList headerTexts;
    Unruly unruly;
    bool takesEditsWithoutObject = false;
    /// Null for what is no proxy.
    std::function<std::unique_ptr<QSortFilterProxyModel>()> proxy = nullptr;
};

/// All models and proxies of the library.
const QList<ModelRow> &modelTable();

} // namespace tessel::test
