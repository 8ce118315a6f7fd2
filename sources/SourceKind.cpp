#include "sources/SourceKind.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace tessel::sources {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::sources", text); }

const QByteArray &sasMark()
{
    static const QByteArray mark = QByteArray(12, '\0') + QByteArray("\xc2\xea\x81");
    return mark;
}

/// The first four tens of bytes of a portable file say what it is in several character sets; then follows the
/// file's own character set, in the order of the format, and by that a mark.
bool isPortable(QByteArray start)
{
    start.replace("\r", QByteArray()).replace("\n", QByteArray());
    if (start.left(200).contains("SPSS PORT FILE"))
        return true;
    constexpr int characterSet = 200;
    constexpr int markPlace = characterSet + 256;
    // Where the letters of SPSSPORT stand in the order of the format, in which A is the 74th.
    const QByteArray mark("SPSSPORT");
    if (start.size() < markPlace + mark.size())
        return false;
    for (int i = 0; i < mark.size(); ++i) {
        const int place = characterSet + 74 + (mark.at(i) - 'A');
        if (start.at(markPlace + i) != start.at(place) || start.at(place) == start.at(characterSet))
            return false;
    }
    return true;
}

bool isStata(const QByteArray &start)
{
    if (start.startsWith("<stata_dta>"))
        return true;
    // Version, byte order, the number 1 and a byte that is not used.
    return start.size() > 3 && start.at(0) >= 102 && start.at(0) <= 119
        && (start.at(1) == 1 || start.at(1) == 2) && start.at(2) == 1;
}

bool isText(const QByteArray &start)
{
    if (start.startsWith("\xff\xfe") || start.startsWith("\xfe\xff"))
        return true;
    return std::none_of(start.cbegin(), start.cend(),
        [](char c) { return (c >= 0 && c < 9) || (c > 13 && c < 32 && c != 26 && c != 27); });
}

} // namespace

SourceKind sourceKind(const QByteArray &start)
{
    if (start.startsWith("$FL2") || start.startsWith("$FL3"))
        return SourceKind::Sav;
    if (start.left(64).contains("ENCRYPTEDSAV"))
        return SourceKind::EncryptedSav;
    if (start.startsWith("HEADER RECORD*******LIBRARY HEADER RECORD")
        || start.startsWith("HEADER RECORD*******LIBV8   HEADER RECORD"))
        return SourceKind::Xpt;
    if (start.startsWith(sasMark() + '\x60'))
        return SourceKind::Sas7bdat;
    if (start.startsWith(sasMark() + '\x63'))
        return SourceKind::Sas7bcat;
    if (isStata(start))
        return SourceKind::Dta;
    if (isPortable(start))
        return SourceKind::Por;
    return isText(start) ? SourceKind::Text : SourceKind::Unknown;
}

SourceKind sourceKindOfEnding(const QString &file)
{
    static const QHash<QString, SourceKind> kinds{
        {QStringLiteral("csv"), SourceKind::Text},
        {QStringLiteral("tsv"), SourceKind::Text},
        {QStringLiteral("txt"), SourceKind::Text},
        {QStringLiteral("sav"), SourceKind::Sav},
        {QStringLiteral("zsav"), SourceKind::Sav},
        {QStringLiteral("por"), SourceKind::Por},
        {QStringLiteral("dta"), SourceKind::Dta},
        {QStringLiteral("sas7bdat"), SourceKind::Sas7bdat},
        {QStringLiteral("sas7bcat"), SourceKind::Sas7bcat},
        {QStringLiteral("xpt"), SourceKind::Xpt},
    };
    return kinds.value(QFileInfo(file).suffix().toLower(), SourceKind::Unknown);
}

QString usualEnding(SourceKind kind)
{
    switch (kind) {
    case SourceKind::Text:
        return QStringLiteral("csv");
    case SourceKind::Sav:
    case SourceKind::EncryptedSav:
        return QStringLiteral("sav");
    case SourceKind::Por:
        return QStringLiteral("por");
    case SourceKind::Dta:
        return QStringLiteral("dta");
    case SourceKind::Sas7bdat:
        return QStringLiteral("sas7bdat");
    case SourceKind::Sas7bcat:
        return QStringLiteral("sas7bcat");
    case SourceKind::Xpt:
        return QStringLiteral("xpt");
    case SourceKind::Unknown:
        break;
    }
    return QString();
}

QString kindName(SourceKind kind)
{
    switch (kind) {
    case SourceKind::Text:
        return tr("a text file");
    case SourceKind::Sav:
        return tr("an SPSS file");
    case SourceKind::EncryptedSav:
        return tr("an encrypted SPSS file");
    case SourceKind::Por:
        return tr("an SPSS portable file");
    case SourceKind::Dta:
        return tr("a Stata file");
    case SourceKind::Sas7bdat:
        return tr("a SAS file");
    case SourceKind::Sas7bcat:
        return tr("a SAS catalogue");
    case SourceKind::Xpt:
        return tr("a SAS transport file");
    case SourceKind::Unknown:
        break;
    }
    return tr("a file of an unknown kind");
}

} // namespace tessel::sources
