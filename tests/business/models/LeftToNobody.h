#pragma once

#include <QtGlobal>

#if defined(__SANITIZE_ADDRESS__)
#define TESSEL_LEAK_CHECKER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TESSEL_LEAK_CHECKER
#endif
#endif

#ifdef TESSEL_LEAK_CHECKER
#include <sanitizer/lsan_interface.h>
#endif

namespace tessel::test {

/// While it lives, the leak checker takes no note of what is made: a variable that the table refuses belongs
/// to nobody, by design, and no pointer leads to it. To be kept around the one call that refuses.
class LeftToNobody {
public:
#ifdef TESSEL_LEAK_CHECKER
    LeftToNobody() { __lsan_disable(); }
    ~LeftToNobody() { __lsan_enable(); }
#else
    LeftToNobody() { }
    ~LeftToNobody() { }
#endif

private:
    Q_DISABLE_COPY_MOVE(LeftToNobody)
};

} // namespace tessel::test
