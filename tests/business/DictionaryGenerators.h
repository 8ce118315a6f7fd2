#pragma once

#include <QByteArray>

#include <memory>

class TDmEntity;

/// Dictionary trees and documents made at random. To be called from within a property only: each call draws
/// from the generator of the case at hand, so that a failing case can be made smaller and repeated.
namespace tessel::test {

/// An entity with all fields set at random, up to \a depth generations below it, and null pointers here and
/// there.
std::unique_ptr<TDmEntity> anyTree(int depth);

/// Document text made of the keys that the format knows and some others, with values that are mostly of the
/// type that a reader expects and sometimes of any other.
QByteArray anyDocument(int depth);

} // namespace tessel::test
