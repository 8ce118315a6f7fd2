#pragma once

#include "tests/editor/DeepText.h"

#include <QRegularExpression>

namespace tessel::test {

/// All that the tree of \a root holds, without the addresses of its objects: equal for trees that nobody can
/// tell apart but by where they lie.
inline QString contentOf(const TDmEntity &root)
{
    static const QRegularExpression address(QStringLiteral("@[0-9a-f]+"));
    return deepTree(root).replace(address, QStringLiteral("@"));
}

} // namespace tessel::test
