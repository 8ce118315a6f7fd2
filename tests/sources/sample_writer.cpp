#include "tests/sources/SampleTables.h"

#include <QDir>
#include <QFile>

#include <cstdio>

/// Writes the sample sources into the folder that is named as the only argument. For scripts/make-samples
/// only: its messages are not translated.
int main(int argc, char *argv[])
{
    if (argc != 2) {
        fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    for (const tessel::test::Sample &sample : tessel::test::sampleSources()) {
        QFile file(folder.filePath(sample.name));
        if (!file.open(QIODevice::WriteOnly) || file.write(sample.bytes) != sample.bytes.size()
            || !file.flush()) {
            fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
            return 2;
        }
    }
    return 0;
}
