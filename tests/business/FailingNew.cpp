#include "tests/business/FailingNew.h"

#include <cstdlib>
#include <new>

namespace {

// Of this thread only: the one that watches over the test may allocate whenever it likes.
thread_local int remaining = 0; // 0: not counting.
thread_local bool lasting = false;
thread_local bool failed = false;

bool failsNow()
{
    if (remaining == 0)
        return false;
    if (remaining > 1) {
        --remaining;
        return false;
    }
    failed = true;
    if (!lasting)
        remaining = 0;
    return true;
}

void *allocate(std::size_t size) noexcept { return failsNow() ? nullptr : std::malloc(size == 0 ? 1 : size); }

void *allocate(std::size_t size, std::align_val_t alignment) noexcept
{
    if (failsNow())
        return nullptr;
    const auto step = static_cast<std::size_t>(alignment);
    // The size has to be a multiple of the alignment.
    return std::aligned_alloc(step, (size / step + 1) * step);
}

void *orThrow(void *memory)
{
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

// clang-format off
void *operator new(std::size_t size) { return orThrow(allocate(size)); }
void *operator new[](std::size_t size) { return orThrow(allocate(size)); }
void *operator new(std::size_t size, const std::nothrow_t &) noexcept { return allocate(size); }
void *operator new[](std::size_t size, const std::nothrow_t &) noexcept { return allocate(size); }
void *operator new(std::size_t size, std::align_val_t alignment) { return orThrow(allocate(size, alignment)); }
void *operator new[](std::size_t size, std::align_val_t alignment) { return orThrow(allocate(size, alignment)); }
void *operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t &) noexcept { return allocate(size, alignment); }
void *operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t &) noexcept { return allocate(size, alignment); }

void operator delete(void *memory) noexcept { std::free(memory); }
void operator delete[](void *memory) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void *memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void *memory, const std::nothrow_t &) noexcept { std::free(memory); }
void operator delete[](void *memory, const std::nothrow_t &) noexcept { std::free(memory); }
void operator delete(void *memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete[](void *memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
void operator delete[](void *memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void *memory, std::align_val_t, const std::nothrow_t &) noexcept { std::free(memory); }
void operator delete[](void *memory, std::align_val_t, const std::nothrow_t &) noexcept { std::free(memory); }
// clang-format on

namespace tessel::test {

FailingNew::FailingNew(int number, Shortage shortage)
{
    failed = false;
    lasting = shortage == Shortage::FromThereOn;
    remaining = number;
}

FailingNew::~FailingNew() { end(); }

bool FailingNew::end()
{
    remaining = 0;
    return failed;
}

} // namespace tessel::test
