#include "sources/Completeness.h"

#include <QFile>
#include <QtEndian>

namespace tessel::sources {
namespace {

/// Numbers at the start of a SAS file: how large its pages are and how many it has.
class SasHeader {
public:
    explicit SasHeader(const QByteArray &start)
        : bytes(start)
    {
        constexpr int wide = '3'; // Marks fields of eight bytes, or four bytes of padding.
        const bool isWide = bytes.size() > 37 && bytes.at(32) == wide;
        const int padding = bytes.size() > 37 && bytes.at(35) == wide ? 4 : 0;
        isLittle = bytes.size() > 37 && bytes.at(37) == 1;
        headerSize = number(196 + padding, false);
        pageSize = number(200 + padding, false);
        pageCount = number(204 + padding, isWide);
    }

    /// Whether a file of \a size bytes has all pages that it says it has. What cannot be told is not denied.
    bool fits(qint64 size) const
    {
        if (pageSize == 0)
            return true;
        return quint64(size) >= headerSize && (quint64(size) - headerSize) / pageSize >= pageCount;
    }

    static constexpr int kSize = 220;

private:
    quint64 number(int place, bool isWide) const
    {
        if (bytes.size() < place + (isWide ? 8 : 4))
            return 0;
        const char *const start = bytes.constData() + place;
        if (isWide)
            return isLittle ? qFromLittleEndian<quint64>(start) : qFromBigEndian<quint64>(start);
        return isLittle ? qFromLittleEndian<quint32>(start) : qFromBigEndian<quint32>(start);
    }

    const QByteArray bytes;
    bool isLittle = false;
    quint64 headerSize = 0;
    quint64 pageSize = 0;
    quint64 pageCount = 0;
};

constexpr int kFirstStataWithTags = 117;

/// Whether a Stata file that has tags (from format 117 on) has the last of them too.
bool hasClosingTag(QFile &file)
{
    constexpr qint64 tail = 64; // Room for line ends that a transfer may have added.
    file.seek(0);
    if (!file.read(11).startsWith("<stata_dta>"))
        return true;
    file.seek(qMax(qint64(0), file.size() - tail));
    return file.read(tail).contains("</stata_dta>");
}

bool hasAllPages(QFile &file)
{
    file.seek(0);
    return SasHeader(file.read(SasHeader::kSize)).fits(file.size());
}

/// Transport files consist of records of 80 bytes, the last one filled up.
bool hasWholeRecords(const QFile &file) { return file.size() % 80 == 0; }

bool isComplete(QFile &file, StatisticalFormat format)
{
    switch (format) {
    case StatisticalFormat::Dta:
        return hasClosingTag(file);
    case StatisticalFormat::Sas7bdat:
        return hasAllPages(file);
    case StatisticalFormat::Xpt:
        return hasWholeRecords(file);
    case StatisticalFormat::Sav:
    case StatisticalFormat::Por:
        break;
    }
    return true;
}

} // namespace

QString Completeness::faultOf(QFile &file, StatisticalFormat format)
{
    return isComplete(file, format) ? QString() : cutOff();
}

QString Completeness::faultOfCatalogue(QFile &file) { return hasAllPages(file) ? QString() : cutOff(); }

QString Completeness::faultOf(const StatisticalContent &content)
{
    if (content.version >= kFirstStataWithTags)
        return QString();
    for (const StatisticalVariable &variable : content.variables) {
        if (!variable.labelSet.isEmpty() && !content.labelSets.contains(variable.labelSet))
            return tr("does not hold the value labels \"%1\" of the variable %2: it was cut off or saved "
                      "without them; "
                      "get the whole file")
                .arg(variable.labelSet, variable.name);
    }
    return QString();
}

QString Completeness::cutOff() { return tr("ends too early: it was cut off; get the whole file"); }

} // namespace tessel::sources
