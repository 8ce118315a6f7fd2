#pragma once

#include <QString>

#include <cstdio>
#include <cstdlib>

namespace tessel::fuzz {

/// See setFaultPlace().
inline const char *faultPlace = "";

/// What faults are about from now on; the text must stay.
inline void setFaultPlace(const char *place) { faultPlace = place; }

/// Ends the program, so that the fuzzer keeps the input, unless \a holds; \a fault says what does not.
inline void expect(bool holds, const char *fault)
{
    if (holds)
        return;
    std::fprintf(stderr, "FAULT: %s %s\n", faultPlace, fault);
    std::abort();
}

/// The same for two texts that must be equal; both are shown when they are not.
inline void expectSame(const QString &one, const QString &other, const char *fault)
{
    if (one == other)
        return;
    std::fprintf(stderr, "one:   %s\nother: %s\n", qPrintable(one), qPrintable(other));
    expect(false, fault);
}

} // namespace tessel::fuzz
