#pragma once

#include <grp.h>
#include <linux/capability.h>
#include <sys/prctl.h>
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

/// Makes the program that this process becomes obey the modes of files and folders, which root's need not. It
/// keeps its user, so that a project in a folder of root's own is still in reach. Returns whether it does.
inline bool obeyModes()
{
    return geteuid() != 0
        || (prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE) == 0 && prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH) == 0)
        || giveUpPrivileges();
}

} // namespace tessel::test
