#include "tests/cli/Tessel.h"

#include "tests/documents/Privileges.h"

#include <QDir>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

namespace tessel::test {
namespace {

void writeBytes(const QByteArray &path, const QByteArray &bytes)
{
    FILE *file = std::fopen(path.constData(), "wb");
    QVERIFY2(file, path.constData());
    const size_t written = std::fwrite(bytes.constData(), 1, size_t(bytes.size()), file);
    QCOMPARE(std::fclose(file), 0);
    QCOMPARE(int(written), bytes.size());
}

QByteArray bytesOf(const QByteArray &path)
{
    FILE *file = std::fopen(path.constData(), "rb");
    if (!file)
        return "(no file)";
    QByteArray bytes;
    char piece[4096];
    size_t size = 0;
    while ((size = std::fread(piece, 1, sizeof piece, file)) > 0)
        bytes.append(piece, int(size));
    std::fclose(file);
    return bytes;
}

/// Makes the stream \a number of this process the file \a path.
void redirect(int number, const QByteArray &path, int flags)
{
    const int file = ::open(path.constData(), flags, 0600);
    ::dup2(file, number);
    ::close(file);
}

} // namespace

QString Told::all() const { return answer(status, out, err); }

QString answer(int status, const QByteArray &out, const QByteArray &err)
{
    return QStringLiteral("status %1\n-- output\n%2-- messages\n%3")
        .arg(QString::number(status), QString::fromLatin1(out), QString::fromLatin1(err));
}

Tessel::Tessel()
{
    if (!folder.isValid() || !streams.isValid())
        qFatal("no temporary folder");
}

Tessel::~Tessel()
{
    // Qt does not find files again whose names are no text.
    for (const QByteArray &name : names())
        ::unlink(path(name).constData());
}

Told Tessel::run(const QList<QByteArray> &arguments) const
{
    const QByteArray in = QFile::encodeName(streams.filePath(QStringLiteral("in")));
    const QByteArray out = QFile::encodeName(streams.filePath(QStringLiteral("out")));
    const QByteArray err = QFile::encodeName(streams.filePath(QStringLiteral("err")));
    const QByteArray home = QFile::encodeName(folder.path());
    writeBytes(in, input);
    writeBytes(out, QByteArray());
    std::vector<char *> list{const_cast<char *>("tessel")};
    for (const QByteArray &argument : arguments)
        list.push_back(const_cast<char *>(argument.constData()));
    list.push_back(nullptr);

    const pid_t child = ::fork();
    if (child == 0) {
        if (::chdir(home.constData()) != 0)
            ::_exit(127);
        redirect(0, in, O_RDONLY);
        redirect(1, standardOutput.isEmpty() ? out : standardOutput, O_WRONLY);
        redirect(2, err, O_WRONLY | O_CREAT | O_TRUNC);
        ::unsetenv("DISPLAY");
        ::unsetenv("WAYLAND_DISPLAY");
        ::unsetenv("QT_QPA_PLATFORM");
        ::setenv("LC_ALL", locale.constData(), 1);
        if (largestFile >= 0) {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{rlim_t(largestFile), rlim_t(largestFile)};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        if (obeysModes && !obeyModes())
            ::_exit(127);
        ::alarm(60);
        ::execv(TESSEL_PROGRAM, list.data());
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytesOf(out), bytesOf(err)};
}

QByteArray Tessel::path(const QByteArray &name) const
{
    return name.startsWith('/') ? name : QFile::encodeName(folder.path()) + '/' + name;
}

void Tessel::put(const QByteArray &name, const QByteArray &bytes) const { writeBytes(path(name), bytes); }

QByteArray Tessel::get(const QByteArray &name) const { return bytesOf(path(name)); }

QList<QByteArray> Tessel::names() const
{
    QList<QByteArray> list;
    DIR *open = ::opendir(QFile::encodeName(folder.path()).constData());
    while (const dirent *entry = ::readdir(open)) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..")
            list.append(name);
    }
    ::closedir(open);
    std::sort(list.begin(), list.end());
    return list;
}

} // namespace tessel::test
