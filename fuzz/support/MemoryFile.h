#pragma once

#include <QByteArray>
#include <QString>

namespace tessel::fuzz {

/// A file that is nowhere but in memory, for readers that want a name. One is enough for all inputs.
class MemoryFile {
public:
    /// Ends the program when the system has no such files.
    explicit MemoryFile(const char *title);
    ~MemoryFile();

    /// Replaces all that the file holds.
    void write(const QByteArray &bytes) const;

    /// The name under which the file is opened.
    QString name() const;

private:
    int descriptor;

    Q_DISABLE_COPY_MOVE(MemoryFile)
};

} // namespace tessel::fuzz
