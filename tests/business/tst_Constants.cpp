#include "business/Constants.h"

#include "tests/business/HeaderConstants.h"

#include <QtTest>

#include <iterator>

using namespace tessel::constants;

namespace {

constexpr QLatin1String kIcons[] = {kIconAbout, kIconEntityCode, kIconEntityLabel, kIconEntityWeight,
    kIconIntegerNumber, kIconNumberPlaceholder, kIconProjectPreferences, kIconProjectSave, kIconRealNumber,
    kIconString, kIconVariableBool, kIconVariableDecimal, kIconVariableInteger, kIconVariableString};

constexpr int kTextCount = 12;

} // namespace

class tst_Constants : public QObject {
    Q_OBJECT

private slots:
    void eachConstantHasItsText_data()
    {
        QTest::addColumn<QString>("constant");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *what, QLatin1String constant, const char *text) {
            QTest::newRow(what) << QString(constant) << QString::fromLatin1(text);
        };
        row("the type of texts", kTypeString, "STRING");
        row("the type of numbers with decimals", kTypeReal, "REAL");
        row("the type of whole numbers", kTypeInteger, "INTEGER");
        row("colon", kColon, ":");
        row("comma", kComma, ",");
        row("line end, both characters", kLineEnd, "\x0d\x0a");
        row("equals sign", kEquals, "=");
        row("semicolon", kSemicolon, ";");
        row("blank", kBlank, "\x20");
        row("tab", kTab, "\x09");
        row("underscore", kUnderscore, "_");
        row("affirmative", kYes, "YES");
        row("about icon", kIconAbout, ":/icons/res/icons/48px-About.png");
        row("code icon", kIconEntityCode, ":/icons/res/icons/48px-Entity-code.png");
        row("label icon", kIconEntityLabel, ":/icons/res/icons/48px-Entity-label.png");
        row("weight icon", kIconEntityWeight, ":/icons/res/icons/48px-Entity-weight.png");
        row("whole number icon", kIconIntegerNumber, ":/icons/res/icons/48px-integernumber.png");
        row("number placeholder icon", kIconNumberPlaceholder,
            ":/icons/res/icons/48px-numberplaceholder.png");
        row("preferences icon", kIconProjectPreferences, ":/icons/res/icons/48px-Project-preferences.png");
        row("save icon", kIconProjectSave, ":/icons/res/icons/48px-Project-save.png");
        row("number with decimals icon", kIconRealNumber, ":/icons/res/icons/48px-realnumber.png");
        row("text icon", kIconString, ":/icons/res/icons/48px-string.png");
        row("bool variable icon", kIconVariableBool, ":/icons/res/icons/48px-Variable-bool.png");
        row("decimal variable icon", kIconVariableDecimal, ":/icons/res/icons/48px-Variable-decimal.png");
        row("integer variable icon", kIconVariableInteger, ":/icons/res/icons/48px-Variable-integer.png");
        row("string variable icon", kIconVariableString, ":/icons/res/icons/48px-Variable-string.png");
    }
    void eachConstantHasItsText()
    {
        QFETCH(QString, constant);
        QFETCH(QString, text);
        QCOMPARE(constant, text);
    }

    void theHeaderBeginsWithTheTwelveTextsInTheirOrder()
    {
        QStringList texts;
        for (const auto &constant : tessel::test::constantsOfTheHeader())
            texts += constant.second;
        const QStringList expected = {
            "STRING", "REAL", "INTEGER", ":", ",", "\r\n", "=", ";", " ", "\t", "_", "YES"};
        QCOMPARE(QStringList(texts.mid(0, kTextCount)), expected);
    }

    void onlyIconPathsFollowTheTexts()
    {
        QStringList strangers;
        const auto constants = tessel::test::constantsOfTheHeader().mid(kTextCount);
        for (const auto &constant : constants) {
            const bool isPath = constant.second.startsWith(QLatin1String(":/icons/res/icons/48px-"))
                && constant.second.endsWith(QLatin1String(".png"));
            if (!isPath || !constant.first.startsWith(QLatin1String("kIcon")))
                strangers += constant.first;
        }
        QCOMPARE(strangers, QStringList());
        QCOMPARE(constants.size(), int(std::size(kIcons)));
    }

    void noTwoIconsShareAPath()
    {
        QSet<QString> paths;
        for (const QLatin1String &icon : kIcons)
            paths.insert(icon);
        QCOMPARE(paths.size(), int(std::size(kIcons)));
    }
};

QTEST_APPLESS_MAIN(tst_Constants)
#include "tst_Constants.moc"
