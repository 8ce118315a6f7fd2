#include "fuzz/support/MemoryFile.h"

#include "fuzz/support/Expect.h"

#include <sys/mman.h>
#include <unistd.h>

namespace tessel::fuzz {

MemoryFile::MemoryFile(const char *title)
    : descriptor(memfd_create(title, MFD_CLOEXEC))
{
    expect(descriptor >= 0, "the system has no files in memory");
}

MemoryFile::~MemoryFile() { close(descriptor); }

void MemoryFile::write(const QByteArray &bytes) const
{
    const bool isDone = ftruncate(descriptor, 0) == 0
        && pwrite(descriptor, bytes.constData(), std::size_t(bytes.size()), 0) == bytes.size();
    expect(isDone, "a file in memory cannot be written");
}

QString MemoryFile::name() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }

} // namespace tessel::fuzz
