#pragma once

#include "tests/business/models/ModelTable.h"

namespace tessel::test {

/// The last role that is asked for.
constexpr int kLastSweptRole = Qt::UserRole + 5;

/// All that index() gives for rows that are there, below one another.
QModelIndexList cells(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 0);

/// Indexes that show nothing: invalid ones, those without an object, those of other models.
QModelIndexList emptyIndexes(const OpenModel &opened, const QAbstractItemModel &stranger);

/// The roles of \a index that are answered. Asks all else that can be asked about it on the way.
QList<int> rolesAnswered(const QAbstractItemModel &model, const QModelIndex &index);

/// Asks everything about every index, and says where a role is answered that \a row does not name.
QStringList faults(OpenModel &opened, const ModelRow &row);

/// Asks for every header, and says where it is not the one that \a row names.
QStringList headerFaults(const QAbstractItemModel &model, const ModelRow &row);

/// Edits every cell and does whatever else a view could do to a model.
void editAll(OpenModel &opened);

} // namespace tessel::test
