#include "sources/TransportEnd.h"

#include <QByteArray>
#include <QFile>

#include <cstring>

namespace tessel::sources {
namespace {

constexpr int kRecord = 80;

bool isRecord(const char *start, const char *mark)
{
    return std::strncmp(start, mark, std::strlen(mark)) == 0;
}

bool beginsDataSet(const char *start)
{
    return isRecord(start, "HEADER RECORD*******MEMBER  HEADER RECORD!!!!!!!")
        || isRecord(start, "HEADER RECORD*******MEMBV8  HEADER RECORD!!!!!!!");
}

bool beginsLibrary(const char *start)
{
    return isRecord(start, "HEADER RECORD*******LIBRARY HEADER RECORD!!!!!!!")
        || isRecord(start, "HEADER RECORD*******LIBV8   HEADER RECORD!!!!!!!");
}

} // namespace

qint64 endOfFirstDataSet(QFile &file, qint64 most)
{
    constexpr int block = kRecord * 16384;
    // The file's own header comes first.
    bool isInDataSet = false;
    file.seek(kRecord);
    for (qint64 place = kRecord; place < most;) {
        const QByteArray bytes = file.read(block);
        for (int i = 0; i + kRecord <= bytes.size() && place + i < most; i += kRecord) {
            const char *const start = bytes.constData() + i;
            const bool isDataSet = beginsDataSet(start);
            if (isInDataSet && (isDataSet || beginsLibrary(start)))
                return place + i;
            isInDataSet = isInDataSet || isDataSet;
        }
        if (bytes.size() < block)
            return -1;
        place += bytes.size();
    }
    return -1;
}

} // namespace tessel::sources
