#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTemporaryDir>

namespace tessel::test {

/// What a run of the program left behind.
struct Told {
    int status = -1; ///< -1 when it ended by a signal, a time limit among them.
    QByteArray out;
    QByteArray err;

    /// All of it in one text, to be compared at once.
    QString all() const;
};

/// All of a run's answer in one text, as Told::all() gives it.
QString answer(int status, const QByteArray &out, const QByteArray &err = QByteArray());

/// Runs the built program in a folder of its own: no display, no input, no colours, in the C locale. Names
/// and arguments are bytes.
class Tessel {
public:
    Tessel();
    ~Tessel();

    Told run(const QList<QByteArray> &arguments) const;

    /// The file \a name of the folder, or a file anywhere when \a name begins with a slash.
    QByteArray path(const QByteArray &name) const;
    void put(const QByteArray &name, const QByteArray &bytes) const;
    /// The bytes of \a name; "(no file)" when it cannot be read.
    QByteArray get(const QByteArray &name) const;
    /// What stands in the folder, hidden things included, sorted.
    QList<QByteArray> names() const;

    QByteArray input; ///< Given to the program as standard input.
    QByteArray standardOutput; ///< When not empty: the file or device that is the program's standard output.
    QByteArray locale = "C"; ///< The value of LC_ALL.
    bool obeysModes = false; ///< Whether the modes of files bind the program, even root's.
    long largestFile = -1; ///< When not negative: no file may grow beyond as many bytes.

private:
    QTemporaryDir folder;
    QTemporaryDir streams;

    Q_DISABLE_COPY_MOVE(Tessel)
};

} // namespace tessel::test
