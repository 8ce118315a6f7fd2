#include "sources/MissingCodes.h"

#include <QtTest>

#include <limits>

using namespace tessel::sources;

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kMost = std::numeric_limits<double>::max();

MissingRange range(double low, double high) { return {false, low, high, QString()}; }

MissingRange code(double number) { return range(number, number); }

MissingRange textCode(const QString &text) { return {true, 0, 0, text}; }

CodeLabel label(double number, const QString &text)
{
    return {CodeLabel::Kind::Number, number, QString(), text};
}

using Ranges = QVector<MissingRange>;
using Labels = QVector<CodeLabel>;

} // namespace

Q_DECLARE_METATYPE(Ranges)
Q_DECLARE_METATYPE(Labels)

class tst_MissingCodes : public QObject {
    Q_OBJECT

private slots:
    void choice_data();
    void choice();
    void notApplicable_data();
    void notApplicable();
};

void tst_MissingCodes::choice_data()
{
    QTest::addColumn<Ranges>("declared");
    QTest::addColumn<Labels>("labels");
    QTest::addColumn<QString>("codes");
    QTest::addColumn<QStringList>("reasons");
    const QString single = QStringLiteral(" are left out: a field carries single codes");
    const QString rest =
        QStringLiteral(" are left out but for whole numbers with labels: a field carries single codes");
    const QString whole =
        QStringLiteral(" is left out: a field carries whole numbers from -2147483648 to 2147483647");
    const Labels known{label(1, "Yes"), label(97, "Unknown"), label(98, "No aplica"), label(99, "Refused")};

    QTest::newRow("nothing") << Ranges{} << known << "/" << QStringList{};
    QTest::newRow("one code is missing") << Ranges{code(9)} << Labels{} << "9/" << QStringList{};
    QTest::newRow("one code that does not apply") << Ranges{code(98)} << known << "/98" << QStringList{};
    QTest::newRow("two codes in their order")
        << Ranges{code(9), code(8)} << Labels{} << "9/8" << QStringList{};
    QTest::newRow("the label decides between two")
        << Ranges{code(98), code(97)} << known << "97/98" << QStringList{};
    QTest::newRow("a code counts once")
        << Ranges{code(9), code(9), code(8)} << Labels{} << "9/8" << QStringList{};
    QTest::newRow("the third is left out")
        << Ranges{code(7), code(8), code(9)} << Labels{} << "7/8"
        << QStringList{"1 missing codes are left out, because a field carries two: 9"};
    QTest::newRow("a range gives its labelled codes")
        << Ranges{range(97, 99)} << known << "97/98"
        << QStringList{"1 missing codes are left out, because a field carries two: 99"};
    QTest::newRow("bounds belong to the range") << Ranges{range(97, 98)} << known << "97/98" << QStringList{};
    QTest::newRow("an open range gives its labelled codes") << Ranges{
        range(98, kInfinite)} << known << "99/98" << QStringList{"the missing values from 98 up" + rest};
    QTest::newRow("open downwards with labelled codes")
        << Ranges{range(-kInfinite, 1)} << known << "1/" << QStringList{"the missing values up to 1" + rest};
    QTest::newRow("what has no label in a range is told") << Ranges{
        range(96, 98)} << known << "97/98" << QStringList{"the missing values from 96 to 98" + rest};
    QTest::newRow("bounds with decimals hold the whole numbers between")
        << Ranges{range(96.5, 98.5)} << known << "97/98" << QStringList{};
    QTest::newRow("codes with a label twice count once")
        << Ranges{range(1, 2)} << Labels{label(1, "A"), label(1, "B")} << "1/"
        << QStringList{"the missing values from 1 to 2" + rest};
    QTest::newRow("a labelled code with decimals among whole ones")
        << Ranges{range(2, 3)} << Labels{label(2, "Two"), label(2.5, "Half"), label(3, "Three")} << "2/3"
        << QStringList{"the missing values from 2 to 3" + rest};
    QTest::newRow("a label outside the range is no matter")
        << Ranges{range(97, 98)} << Labels{label(97, "A"), label(98, "B"), label(98.5, "C")} << "97/98"
        << QStringList{};
    QTest::newRow("a range without labels is told")
        << Ranges{range(50, 60)} << known << "/" << QStringList{"the missing values from 50 to 60" + single};
    QTest::newRow("a labelled code with decimals is none")
        << Ranges{range(2, 3)} << Labels{label(2.5, "Half")} << "/"
        << QStringList{"the missing values from 2 to 3" + single};
    QTest::newRow("open upwards") << Ranges{range(100, kInfinite)} << known << "/"
                                  << QStringList{"the missing values from 100 up" + single};
    QTest::newRow("open downwards") << Ranges{range(-kInfinite, -1)} << known << "/"
                                    << QStringList{"the missing values up to -1" + single};
    QTest::newRow("extreme bounds are open")
        << Ranges{range(-kMost, -1), range(100, kMost)} << known << "/"
        << QStringList{"the missing values up to -1" + single, "the missing values from 100 up" + single};
    QTest::newRow("the greatest code")
        << Ranges{code(2147483647.0)} << Labels{} << "2147483647/" << QStringList{};
    QTest::newRow("above the greatest code") << Ranges{code(2147483648.0)} << Labels{} << "/"
                                             << QStringList{"the missing code 2147483648" + whole};
    QTest::newRow("a code with decimals")
        << Ranges{code(9.5), code(9)} << Labels{} << "9/" << QStringList{"the missing code 9.5" + whole};
    QTest::newRow("texts are told together")
        << Ranges{textCode("NA"), textCode("9")} << Labels{} << "/"
        << QStringList{"2 missing codes are left out, because a field carries whole numbers: \"NA\", \"9\""};
    QTest::newRow("labels of text codes do not count")
        << Ranges{range(1, 2)} << Labels{{CodeLabel::Kind::Text, 1, "1", "No aplica"}} << "/"
        << QStringList{"the missing values from 1 to 2" + single};
}

void tst_MissingCodes::choice()
{
    QFETCH(Ranges, declared);
    QFETCH(Labels, labels);
    const MissingCodes chosen(declared, labels);
    QTEST(chosen.missing + QLatin1Char('/') + chosen.notApplicable, "codes");
    QTEST(chosen.reasons, "reasons");
}

void tst_MissingCodes::notApplicable_data()
{
    QTest::addColumn<bool>("expected");
    for (const char *said : {"Not applicable", "NOT APPLICABLE (under 15)", "n/a", "98: N/A.", "no aplica",
             "No corresponde", "Sans objet", "Non applicable", "Não se aplica", "NÃO SE APLICA",
             "nao se aplica", "Na\xcc\x83o se aplica", "Not\u00a0applicable"})
        QTest::newRow(said) << true;
    for (const char *other :
        {"", "Applicable", "Unknown", "can/all", "n/amen", "Anno aplica", "Sin respuesta"})
        QTest::addRow("not \"%s\"", other) << false;
}

void tst_MissingCodes::notApplicable()
{
    QString said = QString::fromUtf8(QTest::currentDataTag());
    if (said.startsWith(QLatin1String("not \"")))
        said = said.mid(5).chopped(1);
    QTEST(MissingCodes::saysNotApplicable(said), "expected");
}

QTEST_APPLESS_MAIN(tst_MissingCodes)

#include "tst_MissingCodes.moc"
