#pragma once

#include <pthread.h>

#include <cstddef>
#include <functional>

namespace tessel::test {

/// Runs \a work on a thread whose stack is too small for one call per level of a deep tree; false when the
/// thread could not be had. Waits for it.
inline bool runOnSmallStack(std::function<void()> work)
{
    constexpr std::size_t stackSize =
        512 * 1024; // What an instrumented build needs for a few ordinary calls.
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0)
        return false;
    const auto call = [](void *argument) -> void * {
        (*static_cast<std::function<void()> *>(argument))();
        return nullptr;
    };
    pthread_t thread;
    const bool started = pthread_attr_setstacksize(&attributes, stackSize) == 0
        && pthread_create(&thread, &attributes, call, &work) == 0;
    pthread_attr_destroy(&attributes);
    return started && pthread_join(thread, nullptr) == 0;
}

} // namespace tessel::test
