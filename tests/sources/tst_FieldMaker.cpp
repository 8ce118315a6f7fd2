#include "sources/FieldMaker.h"

#include <QtTest>

using namespace tessel::sources;

namespace {

const char kCut[] = ": texts of more than 32767 characters were cut there";

/// A variable NAME whose label set is \a labelSet.
StatisticalVariable variable(const QString &name, const QString &labelSet = {})
{
    StatisticalVariable made;
    made.name = name;
    made.format = QStringLiteral("F3.0");
    made.labelSet = labelSet;
    return made;
}

/// What is noted when all variables of \a content, of an SPSS file, become fields.
QStringList noted(const StatisticalContent &content)
{
    FieldMaker maker(StatisticalFormat::Sav, content);
    for (int i = 0; i < content.variables.size(); ++i)
        maker.make(i, nullptr);
    QStringList lines;
    for (const SourceRemark &remark : maker.remarks())
        lines.append(remark.sentence());
    return lines;
}

} // namespace

/// What no file from a good writer shows: most readers of a format stop long before such lengths.
class tst_FieldMaker : public QObject {
    Q_OBJECT

private slots:
    void labelsAreCutAndTold_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QStringList>("remarks");
        QTest::newRow("as long as may be") << 32767 << QStringList();
        QTest::newRow("one character longer") << 32768 << QStringList(QString("A") + kCut);
        QTest::newRow("far longer") << 100000 << QStringList(QString("A") + kCut);
    }

    void labelsAreCutAndTold()
    {
        QFETCH(int, size);
        StatisticalContent content;
        content.variables = {variable("A"), variable("B")};
        StatisticalVariable &first = content.variables.first();
        first.label = sourceText(QByteArray(size, 'x').constData(), first.mends);
        FieldMaker maker(StatisticalFormat::Sav, content);
        QCOMPARE(maker.make(0, nullptr)->label, QString(qMin(size, 32767), 'x'));
        QTEST(noted(content), "remarks");
        QCOMPARE(maker.foreignFields(), QStringList());
    }

    void namesAreCutAndTold()
    {
        StatisticalContent content;
        content.variables = {variable({})};
        StatisticalVariable &first = content.variables.first();
        first.name = sourceText(QByteArray(40000, 'n').constData(), first.mends);
        QCOMPARE(noted(content), QStringList(QString(32767, 'n') + kCut));
    }

    void fieldsWithForeignTextsAreNamed()
    {
        StatisticalContent content;
        content.variables = {variable("A", "set"), variable("B"), variable("C")};
        content.variables.last().label = sourceText("A\xf1o", content.variables.last().mends);
        content.labelSets["set"].mends.isForeign = true;
        FieldMaker maker(StatisticalFormat::Dta, content);
        for (int i = 0; i < content.variables.size(); ++i)
            maker.make(i, nullptr);
        QCOMPARE(maker.foreignFields(), (QStringList{"A", "C"}));
    }

    void aCutValueLabelIsToldOfEachFieldThatHasIt()
    {
        StatisticalContent content;
        content.variables = {variable("A", "set"), variable("B"), variable("C", "set")};
        LabelSet &set = content.labelSets["set"];
        const QString label = sourceText(QByteArray(40000, 'x').constData(), set.mends);
        set.labels = {{CodeLabel::Kind::Number, 1, {}, label}};
        QCOMPARE(noted(content), (QStringList{QString("A") + kCut, QString("C") + kCut}));
        FieldMaker maker(StatisticalFormat::Sav, content);
        QCOMPARE(maker.make(0, nullptr)->categories, "1 " + QString(32767, 'x'));
        // A field is told once, whatever was cut of it.
        content.variables.first().mends.isCut = true;
        QCOMPARE(noted(content), (QStringList{QString("A") + kCut, QString("C") + kCut}));
    }
};

QTEST_APPLESS_MAIN(tst_FieldMaker)

#include "tst_FieldMaker.moc"
