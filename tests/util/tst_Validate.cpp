#include "util/Validate.h"

#include <QtTest>

#include <type_traits>

static_assert(std::is_default_constructible_v<Validate>);
static_assert(std::is_empty_v<Validate>);
static_assert(std::is_same_v<decltype(&Validate::validateEmpty), bool (Validate::*)(QString)>);
static_assert(std::is_same_v<decltype(&Validate::validateName), bool (Validate::*)(QString)>);
static_assert(std::is_same_v<decltype(&Validate::validateStringC), bool (Validate::*)(QString)>);
static_assert(std::is_same_v<decltype(&Validate::compare), bool (Validate::*)(QStringList, QString)>);

namespace {

constexpr int kHuge = 100'000;

/// The character with number \a point; a number in the surrogate range gives that surrogate alone.
QString character(uint point)
{
    if (QChar::requiresSurrogates(point))
        return QString(QChar(QChar::highSurrogate(point))) + QChar(QChar::lowSurrogate(point));
    return QString(QChar(point));
}

QString numberOf(uint point) { return QStringLiteral("U+%1").arg(point, 4, 16, QLatin1Char('0')).toUpper(); }

/// Blanks are what QString::trimmed() takes away, the no-break space included.
const QString kBlanks = QStringLiteral(" \t\r\n\v\f\u00a0\u1680\u2003\u2028\u2029\u202f\u205f\u3000\u0085");

} // namespace

class tst_Validate : public QObject {
    Q_OBJECT

private slots:
    void onlyBlanksAreEmpty_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a null text is empty") << QString() << false;
        QTest::newRow("a text of length zero is empty") << "" << false;
        QTest::newRow("a text of blanks is empty") << "   " << false;
        QTest::newRow("tabs and line ends are blanks") << "\t\r\n" << false;
        QTest::newRow("a no-break space is a blank") << "\u00a0" << false;
        QTest::newRow("all kinds of blanks are empty") << kBlanks << false;
        QTest::newRow("a hundred thousand blanks are empty") << QString(kHuge, ' ') << false;
        QTest::newRow("a letter is not empty") << "A" << true;
        QTest::newRow("a letter among blanks is not empty") << " \u00a0A\t" << true;
        QTest::newRow("a letter behind a hundred thousand blanks is not empty")
            << QString(kHuge, ' ') + 'A' << true;
        QTest::newRow("a zero-width space is no blank") << "\u200b" << true;
        QTest::newRow("a null character is no blank") << QString(QChar(0)) << true;
        QTest::newRow("a control character is no blank") << "\u0001" << true;
        QTest::newRow("an unpaired surrogate is no blank") << character(0xd800) << true;
    }
    void onlyBlanksAreEmpty()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        QCOMPARE(Validate().validateEmpty(text), accepted);
    }

    void aNameIsALetterThenLettersDigitsAndUnderscores_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a null text is no name") << QString() << false;
        QTest::newRow("the empty text is no name") << "" << false;
        QTest::newRow("blanks are no name") << kBlanks << false;
        QTest::newRow("one letter") << "A" << true;
        QTest::newRow("one underscore") << "_" << true;
        QTest::newRow("underscores only") << "___" << true;
        QTest::newRow("letters, digits and underscores") << "Dwelling_2010" << true;
        QTest::newRow("an underscore first") << "_X1" << true;
        QTest::newRow("an underscore then a digit") << "_1" << true;
        QTest::newRow("a digit first") << "1A" << false;
        QTest::newRow("digits only") << "2010" << false;
        for (const char *sign :
            {" ", "-", ".", ",", ":", "/", "$", "@", "#", "'", "\"", "\\", "(", "`", "[", "{", "^"}) {
            QTest::newRow(qPrintable(QStringLiteral("'%1' inside").arg(sign)))
                << QStringLiteral("A%1B").arg(sign) << false;
            QTest::newRow(qPrintable(QStringLiteral("'%1' first").arg(sign)))
                << QStringLiteral("%1B").arg(sign) << (*sign == ' ');
            QTest::newRow(qPrintable(QStringLiteral("'%1' last").arg(sign)))
                << QStringLiteral("A%1").arg(sign) << (*sign == ' ');
        }
        QTest::newRow("blanks around are not judged") << "  Person\t" << true;
        QTest::newRow("every kind of blank around is not judged") << kBlanks + "Person" + kBlanks << true;
        QTest::newRow("blanks before a digit do not help") << " 1" << false;
        QTest::newRow("a tab inside") << "A\tB" << false;
        QTest::newRow("a no-break space inside") << "A\u00a0B" << false;
        QTest::newRow("a zero-width space around is judged") << "\u200bA" << false;
        QTest::newRow("a null character inside") << QString("A") + QChar(0) + "B" << false;
        QTest::newRow("a hundred thousand letters") << QString(kHuge, 'A') << true;
        QTest::newRow("a hundred thousand letters and a stroke") << QString(kHuge, 'A') + '-' << false;
    }
    void aNameIsALetterThenLettersDigitsAndUnderscores()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        QCOMPARE(Validate().validateName(text), accepted);
    }

    void lettersAndDigitsOfAllScriptsCountInNames_data()
    {
        QTest::addColumn<uint>("point");
        QTest::addColumn<bool>("leads");
        QTest::addColumn<bool>("follows");
        const auto row = [](const char *what, uint point, bool leads, bool follows) {
            QTest::newRow(qPrintable(numberOf(point) + ' ' + what)) << point << leads << follows;
        };
        row("@, before the capitals", '@', false, false);
        row("A", 'A', true, true);
        row("Z", 'Z', true, true);
        row("[, after the capitals", '[', false, false);
        row("`, before the small letters", '`', false, false);
        row("a", 'a', true, true);
        row("z", 'z', true, true);
        row("{, after the small letters", '{', false, false);
        row("/, before the digits", '/', false, false);
        row("0", '0', false, true);
        row("9", '9', false, true);
        row(":, after the digits", ':', false, false);
        row("feminine ordinal, a letter", 0xaa, true, true);
        row("superscript two is no decimal digit", 0xb2, false, false);
        row("one half is no digit", 0xbd, false, false);
        row("multiplication sign", 0xd7, false, false);
        row("n with tilde", 0xf1, true, true);
        row("titlecase letter", 0x1c5, true, true);
        row("modifier letter", 0x2b0, true, true);
        row("combining acute accent", 0x301, false, false);
        row("Greek alpha", 0x3b1, true, true);
        row("Cyrillic zhe", 0x436, true, true);
        row("Arabic beh", 0x628, true, true);
        row("Arabic-Indic digit three", 0x663, false, true);
        row("Devanagari letter ka", 0x915, true, true);
        row("Devanagari vowel sign, a mark", 0x93e, false, false);
        row("Devanagari digit five", 0x96b, false, true);
        row("undertie, another connector", 0x203f, false, false);
        row("superscript four", 0x2074, false, false);
        row("Roman numeral eight is a number", 0x2167, false, false);
        row("circled one", 0x2460, false, false);
        row("CJK ideograph", 0x4e2d, true, true);
        row("Hangul syllable", 0xd55c, true, true);
        row("high surrogate alone", 0xd801, false, false);
        row("low surrogate alone", 0xdc00, false, false);
        row("private use", 0xe000, false, false);
        row("fullwidth digit one", 0xff11, false, true);
        row("fullwidth A", 0xff21, true, true);
        row("fullwidth low line is another character", 0xff3f, false, false);
        row("replacement character", 0xfffd, false, false);
        row("Deseret letter, beyond U+FFFF", 0x10400, true, true);
        row("Osmanya digit, beyond U+FFFF", 0x104a0, false, true);
        row("mathematical bold digit", 0x1d7ce, false, true);
        row("emoji", 0x1f600, false, false);
        row("CJK ideograph beyond U+FFFF", 0x20000, true, true);
        row("private use beyond U+FFFF", 0x10fffd, false, false);
    }
    void lettersAndDigitsOfAllScriptsCountInNames()
    {
        QFETCH(uint, point);
        QFETCH(bool, leads);
        QFETCH(bool, follows);
        Validate validate;
        QCOMPARE(validate.validateName(character(point)), leads);
        QCOMPARE(validate.validateName(character(point) + 'A'), leads);
        QCOMPARE(validate.validateName('A' + character(point)), follows);
        QCOMPARE(validate.validateName('_' + character(point) + 'A'), follows);
        QCOMPARE(validate.validateName(' ' + character(point) + ' '), leads);
    }

    void surrogatesInTheWrongOrderAreNoLetter()
    {
        QCOMPARE(Validate().validateName(character(0xdc00) + character(0xd801)), false);
        QCOMPARE(Validate().validateName('A' + character(0xd801)), false);
    }

    void textsWithoutControlCharactersQuotesAndBackslashesAreAccepted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a null text is accepted") << QString() << true;
        QTest::newRow("the empty text is accepted") << "" << true;
        QTest::newRow("blanks are accepted") << "   " << true;
        QTest::newRow("blanks around are accepted") << " Age of head " << true;
        QTest::newRow("all printable ASCII but quote and backslash")
            << " !#$%&'()*+,-./0123456789:;<=>?@ABCXYZ[]^_`abcxyz{|}~" << true;
        QTest::newRow("letters with accents") << "Año de construcción" << true;
        QTest::newRow("decomposed letters") << "Constructio\u0301n" << true;
        QTest::newRow("other scripts") << "年齢 возраст عمر" << true;
        QTest::newRow("beyond U+FFFF") << character(0x10400) + character(0x1f600) << true;
        QTest::newRow("a tab is a control character, judged as typed") << "Age\t" << false;
        QTest::newRow("a line end behind is not trimmed away") << "Age\n" << false;
        QTest::newRow("a line end before is not trimmed away") << "\nAge" << false;
        QTest::newRow("two low surrogates after a high one")
            << character(0x10400) + character(0xdc00) << false;
        QTest::newRow("surrogates in the wrong order") << character(0xdc00) + character(0xd801) << false;
        QTest::newRow("a high surrogate at the end") << 'A' + character(0xd83d) << false;
        QTest::newRow("a hundred thousand characters") << QString(kHuge, QChar(0x4e2d)) << true;
        QTest::newRow("a hundred thousand characters and a quote") << QString(kHuge, 'A') + '"' << false;
    }
    void textsWithoutControlCharactersQuotesAndBackslashesAreAccepted()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        QCOMPARE(Validate().validateStringC(text), accepted);
    }

    void eachCharacterIsAcceptedOrRefusedWhereverItStands_data()
    {
        QTest::addColumn<uint>("point");
        QTest::addColumn<bool>("accepted");
        const QVector<uint> accepted = {0x20, 0x21, 0x23, 0x27, 0x5b, 0x5d, 0x7e, 0xa0, 0xa1, 0xad, 0xbd,
            0x301, 0x2018, 0x201c, 0x2603, 0xd7ff, 0xe000, 0xff02, 0xff3c, 0xfffd, 0x10000, 0x10400, 0x1f600,
            0x10fffd};
        const QVector<uint> refused = {0x00, 0x01, 0x09, 0x0a, 0x0d, 0x1f, 0x22, 0x5c, 0x7f, 0x80, 0x85, 0x9f,
            0xd800, 0xdbff, 0xdc00, 0xdfff};
        for (const uint point : accepted)
            QTest::newRow(qPrintable(numberOf(point) + QStringLiteral(" is accepted"))) << point << true;
        for (const uint point : refused)
            QTest::newRow(qPrintable(numberOf(point) + QStringLiteral(" is refused"))) << point << false;
    }
    void eachCharacterIsAcceptedOrRefusedWhereverItStands()
    {
        QFETCH(uint, point);
        QFETCH(bool, accepted);
        Validate validate;
        QCOMPARE(validate.validateStringC(character(point)), accepted);
        QCOMPARE(validate.validateStringC(character(point) + QStringLiteral("AB")), accepted);
        QCOMPARE(validate.validateStringC(QStringLiteral("A") + character(point) + 'B'), accepted);
        QCOMPARE(validate.validateStringC(QStringLiteral("AB") + character(point)), accepted);
    }

    void noOtherCharacterBelowU0100IsRefused()
    {
        QStringList refused;
        for (uint point = 0; point < 0x100; ++point) {
            if (!Validate().validateStringC(character(point)))
                refused += QString::number(point, 16);
        }
        QStringList expected;
        for (uint point = 0; point < 0x20; ++point)
            expected += QString::number(point, 16);
        expected += {"22", "5c"};
        for (uint point = 0x7f; point < 0xa0; ++point)
            expected += QString::number(point, 16);
        QCOMPARE(refused, expected);
    }

    void aTextIsFoundWhenTrimmedItEqualsATrimmedEntry_data()
    {
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        const QStringList two = {"AGE", "SEX"};
        QTest::newRow("nothing is in an empty list") << QStringList() << "AGE" << false;
        QTest::newRow("not even the empty text is in an empty list") << QStringList() << "" << false;
        QTest::newRow("the first entry") << two << "AGE" << true;
        QTest::newRow("the last entry") << two << "SEX" << true;
        QTest::newRow("no entry") << two << "RACE" << false;
        QTest::newRow("letter case counts") << two << "age" << false;
        QTest::newRow("letter case of one letter counts") << two << "AGe" << false;
        QTest::newRow("a part of an entry is not found") << two << "AG" << false;
        QTest::newRow("a text with an entry inside is not found") << two << "AGES" << false;
        QTest::newRow("the empty text is not in a list without it") << two << "" << false;
        QTest::newRow("blanks around the text are left aside") << two << " \tAGE\n " << true;
        QTest::newRow("blanks around the entry are left aside")
            << QStringList{"\u00a0AGE \r\n"} << "AGE" << true;
        QTest::newRow("no-break spaces around the text are left aside") << two << "\u00a0SEX\u00a0" << true;
        QTest::newRow("blanks on both sides") << QStringList{" AGE"} << "AGE  " << true;
        QTest::newRow("every kind of blank") << QStringList{kBlanks + "AGE"} << "AGE" + kBlanks << true;
        QTest::newRow("blanks inside count") << QStringList{"HEAD AGE"} << "HEADAGE" << false;
        QTest::newRow("blanks inside are compared one by one")
            << QStringList{"HEAD AGE"} << "HEAD  AGE" << false;
        QTest::newRow("a no-break space inside is no blank")
            << QStringList{"HEAD AGE"} << "HEAD\u00a0AGE" << false;
        QTest::newRow("the empty text equals an empty entry") << QStringList{""} << "" << true;
        QTest::newRow("blanks equal an empty entry") << QStringList{""} << "  " << true;
        QTest::newRow("the empty text equals an entry of blanks") << QStringList{" \t"} << "" << true;
        QTest::newRow("a null text equals an empty entry") << QStringList{""} << QString() << true;
        QTest::newRow("accents count") << QStringList{"ANO"} << "AÑO" << false;
        QTest::newRow("composed and decomposed differ") << QStringList{"\u00e9"} << "e\u0301" << false;
        QTest::newRow("beyond U+FFFF") << QStringList{character(0x10400)} << character(0x10400) << true;
        QTest::newRow("case beyond U+FFFF counts")
            << QStringList{character(0x10400)} << character(0x10428) << false;
        QTest::newRow("wildcards are letters like others") << two << "A*" << false;
        QTest::newRow("an entry that repeats") << QStringList{"AGE", "AGE"} << "AGE" << true;
        QTest::newRow("a hundred thousand characters")
            << QStringList{QString(kHuge, 'A') + 'B', QString(kHuge, 'A')} << QString(kHuge, 'A') << true;
    }
    void aTextIsFoundWhenTrimmedItEqualsATrimmedEntry()
    {
        QFETCH(QStringList, taken);
        QFETCH(QString, text);
        QFETCH(bool, found);
        QCOMPARE(Validate().compare(taken, text), found);
    }

    void aLongListIsSearchedToItsEnd()
    {
        QStringList taken;
        for (int number = 0; number < kHuge; ++number)
            taken += QString::number(number);
        QCOMPARE(Validate().compare(taken, "99999"), true);
        QCOMPARE(Validate().compare(taken, "100000"), false);
    }

    void theCallersTextsStayAsTheyWere()
    {
        const QString text = " AGE ";
        const QStringList taken = {" AGE "};
        Validate validate;
        QCOMPARE(validate.validateEmpty(text), true);
        QCOMPARE(validate.validateName(text), true);
        QCOMPARE(validate.validateStringC(text), true);
        QCOMPARE(validate.compare(taken, text), true);
        QCOMPARE(text, QStringLiteral(" AGE "));
        QCOMPARE(taken, QStringList{" AGE "});
    }
};

QTEST_APPLESS_MAIN(tst_Validate)
#include "tst_Validate.moc"
