#include "sources/DisplayFormat.h"

#include <QtTest>

using namespace tessel::sources;

namespace {

/// "WIDTH.DECIMALS", "?" for decimals that are not told, and what else there is to say.
QString told(const DisplayFormat &shown)
{
    QString text = QStringLiteral("%1.%2")
                       .arg(shown.width)
                       .arg(shown.decimals ? QString::number(*shown.decimals) : QStringLiteral("?"));
    text += shown.isDate ? QStringLiteral(" date") : QString();
    text += shown.outgrowsInt ? QStringLiteral(" large") : QString();
    return shown.userDefined.isEmpty() ? text : text + QLatin1Char(' ') + shown.userDefined;
}

} // namespace

class tst_DisplayFormat : public QObject {
    Q_OBJECT

private slots:
    void ofSpss_data();
    void ofSpss();
    void ofStata_data();
    void ofStata();
    void ofSas_data();
    void ofSas();
};

void tst_DisplayFormat::ofSpss_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("") << "0.?";
    QTest::newRow("F8.2") << "8.2";
    QTest::newRow("f3") << "3.0";
    QTest::newRow("A120") << "120.0";
    QTest::newRow("COMMA10.2") << "10.2";
    QTest::newRow("N8") << "8.0";
    QTest::newRow("E10.3") << "10.3";
    QTest::newRow("E8") << "8.?";
    QTest::newRow("RBHEX16") << "16.?";
    QTest::newRow("F99999999999") << "999999999.0";
    for (const char *date : {"DATE11", "ADATE11", "EDATE11", "JDATE11", "SDATE11", "QYR11", "MOYR11",
             "WKYR11", "DATETIME11", "YMDHMS11"})
        QTest::newRow(date) << "11.0 date large";
    for (const char *time : {"TIME8", "DTIME8", "MTIME8", "WKDAY8", "MONTH8"})
        QTest::newRow(time) << "8.0 date";
    QTest::newRow("DTIME23.2") << "23.2 date";
    QTest::newRow("garbage!") << "0.0";
}

void tst_DisplayFormat::ofSpss()
{
    QTEST(told(DisplayFormat::ofSpss(QString::fromLatin1(QTest::currentDataTag()))), "expected");
}

void tst_DisplayFormat::ofStata_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("") << "0.?";
    QTest::newRow("%9.2f") << "9.2";
    QTest::newRow("%9.0f") << "9.0";
    QTest::newRow("%-10.3f") << "10.3";
    QTest::newRow("%010.0f") << "10.0";
    QTest::newRow("%12.2fc") << "12.2";
    QTest::newRow("%9,2f") << "9.2";
    QTest::newRow("%9.0g") << "9.?";
    QTest::newRow("%10.0gc") << "10.?";
    QTest::newRow("%10.7e") << "10.?";
    QTest::newRow("%20s") << "20.?";
    QTest::newRow("%-20s") << "20.?";
    QTest::newRow("%21x") << "21.?";
    for (const char *date : {"%td", "%tdDD/NN/CCYY", "%d", "%-td", "%tm", "%tq", "%tw", "%ty", "%t"})
        QTest::newRow(date) << "0.0 date";
    for (const char *time : {"%tc", "%tC", "%-tcHH:MM"})
        QTest::newRow(time) << "0.0 date large";
    QTest::newRow("garbage") << "0.?";
}

void tst_DisplayFormat::ofStata()
{
    QTEST(told(DisplayFormat::ofStata(QString::fromLatin1(QTest::currentDataTag()))), "expected");
}

void tst_DisplayFormat::ofSas_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("") << "0.?";
    for (const char *plain : {"8.", "F8.", "F8", "COMMA8.", "DOLLAR8.", "Z8.", "PERCENT8."})
        QTest::newRow(plain) << "8.0";
    for (const char *decimal : {"8.2", "F8.2", "comma8.2", "BEST8.2"})
        QTest::newRow(decimal) << "8.2";
    for (const char *general : {"BEST12.", "BEST12", "E12.", "HEX12.", "$12.", "$CHAR12.", "$UPCASE12."})
        QTest::newRow(general) << "12.?";
    for (const char *date :
        {"DATE9.", "MMDDYY9.", "YYMMDDN9.", "E8601DA9.", "WEEKDATE9.", "TIME9.", "MONYY9"})
        QTest::newRow(date) << "9.0 date";
    for (const char *time : {"DATETIME19.", "E8601DT19.", "B8601DN19.", "IS8601DT19."})
        QTest::newRow(time) << "19.0 date large";
    QTest::newRow("YESNO.") << "0.0 YESNO";
    QTest::newRow("yesno5.") << "5.0 YESNO";
    QTest::newRow("$CITY20.") << "20.0 $CITY";
    QTest::newRow("DATES.") << "0.0 DATES";
}

void tst_DisplayFormat::ofSas()
{
    QTEST(told(DisplayFormat::ofSas(QString::fromLatin1(QTest::currentDataTag()))), "expected");
}

QTEST_APPLESS_MAIN(tst_DisplayFormat)

#include "tst_DisplayFormat.moc"
