#pragma once

#include <QtGlobal>

/// Memory that runs out at a chosen moment. Linking this replaces the program's operators new and delete,
/// those of Qt and of Tessel included.
namespace tessel::test {

enum class Shortage { OneAllocation, FromThereOn };

/// While it lives, the \a number-th allocation (counted from 1) throws std::bad_alloc, and all later ones as
/// well if \a shortage says so. One at a time.
class FailingNew {
public:
    FailingNew(int number, Shortage shortage);
    ~FailingNew();

    /// Ends the shortage before the destructor does, and tells whether an allocation failed.
    static bool end();

private:
    Q_DISABLE_COPY_MOVE(FailingNew)
};

} // namespace tessel::test
