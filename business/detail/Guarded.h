#pragma once

#include <QDebug>

#include <exception>
#include <utility>

namespace tessel::detail {

/// Runs \a body and returns. What it throws ends it there and then; the text goes to Qt's debug log.
template<typename Body>
void guarded(Body &&body)
{
    try {
        std::forward<Body>(body)();
    } catch (const std::exception &problem) {
        QMessageLogger(nullptr, 0, nullptr).debug("%s", problem.what());
    }
}

} // namespace tessel::detail
