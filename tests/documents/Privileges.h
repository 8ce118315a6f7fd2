#pragma once

#include <grp.h>
#include <unistd.h>

namespace tessel::test {

/// Makes this process one of nobody's when it is root's: what it does wrong then costs the machine nothing.
/// Returns whether it is no longer root's.
inline bool giveUpPrivileges()
{
    if (geteuid() != 0)
        return true;
    constexpr uid_t nobody = 65534;
    return setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
}

} // namespace tessel::test
