#include "sources/DisplayFormat.h"

#include <QRegularExpression>

namespace tessel::sources {
namespace {

/// A format's name, width and decimals: "DATE11", "F8.2", "$CITY20.". The last digit of a name is taken for
/// the width, but names of formats do not end in digits.
struct Parts {
    explicit Parts(const QString &format)
    {
        static const QRegularExpression form(QStringLiteral("^(.*?)(\\d{0,9})(?:\\.(\\d{0,9}))?$"),
            QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = form.match(format.trimmed().toUpper());
        name = match.captured(1);
        width = match.captured(2).toInt();
        decimals = match.captured(3).toInt();
    }

    QString name;
    int width = 0;
    int decimals = 0;
};

/// Seconds since 1582.
bool isSpssDate(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^([AEJS]?DATE|QYR|MOYR|WKYR|DATETIME|YMDHMS)$"));
    return form.match(name).hasMatch();
}

/// Seconds of a day or a few, or the number of a weekday or month.
bool isSpssTime(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^([DM]?TIME|WKDAY|MONTH)$"));
    return form.match(name).hasMatch();
}

/// Formats of SPSS that show numbers with an exponent or in binary form: without decimals they tell nothing.
bool isSpssGeneral(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^(E|RB|RBHEX)?$"));
    return form.match(name).hasMatch();
}

/// Seconds since 1960.
bool isSasDateTime(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(DATEAMPM|DATETIME|DTDATE|DTMONYY|DTWKDATX|DTYEAR|DTYYQC|MDYAMPM"
                       "|NLDATM\\w*|[BEI]S?86\\d\\dD[TNXZ]\\w*)$"));
    return form.match(name).hasMatch();
}

/// Days since 1960, or seconds of a day.
bool isSasDate(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(DATE|DAY|DDMMYY[BCDNPS]?|DOWNAME|EURDF\\w+|HDATE|HEBDATE|HHMM|HOUR|JULDAY|JULIAN|"
                       "MINGUO|MMDDYY[BCDNPS]?|MMSS"
                       "|MMYY[CDNPS]?|MONNAME|MONTH|MONYY|NENGO|NLDATE\\w*|NLTIM\\w*|PDJUL[GI]|QTRR?|TIME|"
                       "TIMEAMPM|TOD|WEEKDATE|WEEKDATX"
                       "|WEEKDAY|WEEK[UVW]|WORDDATE|WORDDATX|YEAR|YYMM[CDNPS]?|YYMMDD[BCDNPS]?|YYMON|YYQ["
                       "CDNPS]?|YYQR[CDNPS]?"
                       "|[BEI]S?86\\d\\d(DA|LX|LZ|T[MNXZ])\\w*)$"));
    return form.match(name).hasMatch();
}

/// Formats of SAS for numbers whose decimals are those that are named.
bool isSasNumber(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(F|COMMAX?|DOLLARX?|EURO?X?|NEGPAREN|NLMNY\\w*|NLNUM\\w*|NLPCT\\w*|NUMX|PERCENTN?|Z|"
                       "ZD|YEN|SSN|ROMAN|WORDS)?$"));
    return form.match(name).hasMatch();
}

/// Formats of SAS that show as many decimals as there are, or texts as they stand.
bool isSasGeneral(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(BEST[DX]?|D|E|FRACT|FLOAT|HEX|BINARY|OCTAL|IB|IBR|PIB|PIBR|PD|PK|RB|IEEE|PVALUE|"
                       "ODDSR|VAXRB|VMSZN|WORDF|S370\\w+"
                       "|\\$(CHAR|F|HEX|BINARY|OCTAL|ASCII|EBCDIC|QUOTE|REVERJ|REVERS|UPCASE|VARYING|MSGCASE|"
                       "BASE64X|BIDI\\w*|KANJIX?|UCS2\\w*"
                       "|UTF8X|UTFX|UESC\\w*|UNCR\\w*|UPAREN\\w*|CPTDW|CPTWD|LOGVS\\w*|N?BIDI|N)?)$"));
    return form.match(name).hasMatch();
}

} // namespace

DisplayFormat DisplayFormat::ofSpss(const QString &format)
{
    DisplayFormat shown;
    const Parts parts(format);
    shown.width = parts.width;
    shown.outgrowsInt = isSpssDate(parts.name);
    shown.isDate = shown.outgrowsInt || isSpssTime(parts.name);
    if (parts.decimals > 0 || !isSpssGeneral(parts.name))
        shown.decimals = parts.decimals;
    return shown;
}

DisplayFormat DisplayFormat::ofStata(const QString &format)
{
    DisplayFormat shown;
    static const QRegularExpression date(QStringLiteral("^%-?(?:d|t(.?))"));
    const QRegularExpressionMatch dateMatch = date.match(format);
    if (dateMatch.hasMatch()) {
        shown.isDate = true;
        // Clock times are milliseconds since 1960; days, weeks and the like are few.
        shown.outgrowsInt = dateMatch.captured(1).compare(QLatin1String("c"), Qt::CaseInsensitive) == 0;
        shown.decimals = 0;
        return shown;
    }
    static const QRegularExpression number(
        QStringLiteral("^%[-~]?0?(\\d{1,9})(?:[.,](\\d{1,9}))?([a-zA-Z]*)"));
    const QRegularExpressionMatch match = number.match(format);
    shown.width = match.captured(1).toInt();
    // The decimals of the forms "g" and "e" say how many digits there may be, not how many there are.
    if (match.captured(3).startsWith(QLatin1Char('f')))
        shown.decimals = match.captured(2).toInt();
    return shown;
}

DisplayFormat DisplayFormat::ofSas(const QString &format)
{
    DisplayFormat shown;
    const Parts parts(format);
    shown.width = parts.width;
    shown.outgrowsInt = isSasDateTime(parts.name);
    shown.isDate = shown.outgrowsInt || isSasDate(parts.name);
    const bool isKnown = shown.isDate || isSasNumber(parts.name) || isSasGeneral(parts.name);
    if (!isKnown)
        shown.userDefined = parts.name;
    // Users make formats for codes, which are whole numbers.
    if (!format.trimmed().isEmpty() && (parts.decimals > 0 || !isSasGeneral(parts.name)))
        shown.decimals = parts.decimals;
    return shown;
}

} // namespace tessel::sources
