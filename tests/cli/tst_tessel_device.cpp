#include "cli/Program.h"

#include "tests/documents/Privileges.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs the program's own code, so that it needs no right but to write: a mistake must not cost the machine
/// its device.
class Harmless {
public:
    int run(const QList<QByteArray> &arguments, const QByteArray &input)
    {
        QFile in(folder.filePath(QStringLiteral("in")));
        if (!in.open(QIODevice::WriteOnly) || in.write(input) != input.size() || !in.flush())
            return -2;
        std::vector<char *> list{const_cast<char *>("tessel")};
        for (const QByteArray &argument : arguments)
            list.push_back(const_cast<char *>(argument.constData()));
        list.push_back(nullptr);
        const pid_t child = ::fork();
        if (child == 0) {
            ::dup2(::open(QFile::encodeName(in.fileName()).constData(), O_RDONLY), 0);
            ::dup2(::open(name("out").constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 1);
            ::dup2(::open(name("err").constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 2);
            if (!tessel::test::giveUpPrivileges())
                ::_exit(3);
            ::_exit(tessel::cli::run(int(list.size()) - 1, list.data()));
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    QByteArray told(const char *stream) const
    {
        QFile file(QFile::decodeName(name(stream)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

private:
    QByteArray name(const char *stream) const
    {
        return QFile::encodeName(folder.filePath(QLatin1String(stream)));
    }

    QTemporaryDir folder;
};

} // namespace

class tst_tessel_device : public QObject {
    Q_OBJECT

private slots:
    void aDeviceIsWrittenAndNotReplaced_data()
    {
        QTest::addColumn<QByteArray>("device");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("message");
        const QByteArray full = "/dev/full: cannot be written: No space left on device\n";
        QTest::newRow("full, a little") << QByteArray("/dev/full") << 1 << 2 << full;
        QTest::newRow("full, much") << QByteArray("/dev/full") << 100000 << 2 << full;
        QTest::newRow("takes all") << QByteArray("/dev/null") << 100000 << 0 << QByteArray();
    }

    void aDeviceIsWrittenAndNotReplaced()
    {
        QFETCH(QByteArray, device);
        QFETCH(int, size);
        QFETCH(int, status);
        QFETCH(QByteArray, message);
        Harmless tessel;
        const QByteArray input = "{\"label\": \"" + QByteArray(size, 'x') + "\"}";
        QCOMPARE(tessel.run({"format", "-", "-o", device}, input), status);
        QCOMPARE(tessel.told("out"), QByteArray());
        QCOMPARE(tessel.told("err"), message);
    }
};

QTEST_APPLESS_MAIN(tst_tessel_device)
#include "tst_tessel_device.moc"
