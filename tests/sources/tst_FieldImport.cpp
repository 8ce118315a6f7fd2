#include "sources/FieldImport.h"

#include "model/TDmEntity.h"
#include "tests/sources/Fields.h"
#include "tests/support/Json.h"

#include <QtTest>

using tessel::sources::ImportedField;
using tessel::sources::SourceFields;
using tessel::test::field;
using tessel::test::sourceOf;

namespace {

/// The variable of \a imported as document text.
QByteArray textOf(ImportedField &imported)
{
    TDmEntity entity;
    entity.addVariables(imported.variable.release());
    QByteArray text = tessel::test::documentOf(entity);
    const int start = text.indexOf("[{") + 2;
    return text.mid(start, text.lastIndexOf("}]") - start);
}

} // namespace

class tst_FieldImport : public QObject {
    Q_OBJECT

private slots:
    void aFieldWithATypeIsDroppedWithAllThatItTells()
    {
        auto sex = field("P3_SEX", "INTEGER", "Sex");
        sex->size = 1;
        sex->decimals = 0;
        sex->relativePosition = 7;
        sex->rangeMin = "1";
        sex->rangeMax = "2";
        sex->categories = "1 Male\t2 Female";
        SourceFields source = sourceOf(field("NAME", "STRING"), std::move(sex));
        auto imported = tessel::sources::importFields(source);
        QCOMPARE(imported.size(), size_t(2));
        QCOMPARE(imported[0].field, QString("NAME"));
        QCOMPARE(textOf(imported[0]),
            QByteArray("'fileName':'','local':false,'metadata':{'field':'NAME','start':1},'missing':0,'name':"
                       "'NAME','notapp':0,'size':1,'tag':1,'type':'string'"));
        QCOMPARE(imported[1].field, QString("P3_SEX"));
        QCOMPARE(imported[1].declaredCodes, QString());
        QCOMPARE(textOf(imported[1]),
            QByteArray("'alias':'SEX','fileName':'','label':'Sex','local':false,'metadata':{'field':'P3_SEX',"
                       "'length':1,'range':[{'max':2,'min':1}],'start':1},'missing':3,'name':'P3','notapp':0,"
                       "'tag':2,'type':'integer','valueLabels':[{'label':'Male','value':1},{'label':'Female',"
                       "'value':2}]"));
    }

    void aFieldWithoutATypeIsDroppedByItsNameAlone()
    {
        SourceFields source = sourceOf(field("ID_PLACE", QString(), "not carried"));
        auto imported = tessel::sources::importFields(source);
        QCOMPARE(imported.size(), size_t(1));
        QCOMPARE(imported[0].variable->getVarType(), QString());
        QCOMPARE(textOf(imported[0]),
            QByteArray(
                "'alias':'PLACE','fileName':'','local':false,'metadata':{'field':'ID_PLACE','range':[{'max':"
                "0,'min':0}],'start':1},'missing':1,'name':'ID','notapp':2,'tag':-1,'type':'integer'"));
    }

    void oneFieldWithATypeMakesItADataset()
    {
        SourceFields source = sourceOf(field("A"), field("B", "REAL", "b"));
        QVERIFY(tessel::sources::hasTypes(source));
        const auto imported = tessel::sources::importFields(source);
        QCOMPARE(imported[0].variable->getTag(), 1);
        QCOMPARE(imported[1].variable->getLabel(), QString("b"));
        QVERIFY(!tessel::sources::hasTypes(sourceOf(field("A"), field("B"))));
        QVERIFY(!tessel::sources::hasTypes(SourceFields()));
    }

    void equalFieldsStay()
    {
        SourceFields plain = sourceOf(field("A"), field("A"), field("A"));
        QCOMPARE(tessel::sources::importFields(plain).size(), size_t(3));
        SourceFields typed = sourceOf(field("A", "REAL"), field("A", "REAL"));
        QCOMPARE(tessel::sources::importFields(typed).size(), size_t(2));
        SourceFields none;
        QCOMPARE(tessel::sources::importFields(none).size(), size_t(0));
    }

    void declaredCodesAreSetAndTold_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("notApplicable");
        QTest::addColumn<int>("missingCode");
        QTest::addColumn<int>("notApplicableCode");
        QTest::addColumn<QString>("told");
        const QString start("as the source declares, ");
        // What is derived from the range 0 to 9 is 10 and 11.
        QTest::newRow("none declared") << ""
                                       << "" << 10 << 11 << QString();
        QTest::newRow("as derived") << "10"
                                    << "11" << 10 << 11 << QString();
        QTest::newRow("another missing code")
            << "99"
            << "" << 99 << 11 << start + "the missing code is 99 instead of 10";
        QTest::newRow("another not-applicable code")
            << ""
            << "98" << 10 << 98 << start + "the not-applicable code is 98 instead of 11";
        QTest::newRow("both") << "-1"
                              << "-2" << -1 << -2
                              << start
                + "the missing code is -1 instead of 10 and the not-applicable code is -2 instead of 11";
        QTest::newRow("one of two differs")
            << "99"
            << "11" << 99 << 11 << start + "the missing code is 99 instead of 10";
        QTest::newRow("the other of two differs")
            << "10"
            << "98" << 10 << 98 << start + "the not-applicable code is 98 instead of 11";
        QTest::newRow("no number") << "x"
                                   << "9.5" << 10 << 11 << QString();
    }

    void declaredCodesAreSetAndTold()
    {
        QFETCH(QString, missing);
        QFETCH(QString, notApplicable);
        QFETCH(QString, told);
        auto age = field("AGE", "INTEGER");
        age->rangeMin = "0";
        age->rangeMax = "9";
        age->missing = missing;
        age->notApp = notApplicable;
        SourceFields source = sourceOf(std::move(age));
        const auto imported = tessel::sources::importFields(source);
        QTEST(imported[0].variable->getMissing(), "missingCode");
        QTEST(imported[0].variable->getNotappl(), "notApplicableCode");
        QCOMPARE(imported[0].declaredCodes, told);
    }

    void fieldsWithoutARangeAreCounted()
    {
        auto lower = field("L", "REAL");
        lower->rangeMin = "0";
        auto upper = field("U", "INTEGER");
        upper->rangeMax = "9";
        const SourceFields source = sourceOf(field("A", "REAL"), field("S", "STRING"), field("I", "INTEGER"),
            field("N"), std::move(lower), std::move(upper));
        QCOMPARE(tessel::sources::fieldsWithoutRange(source), 3);
        QCOMPARE(tessel::sources::fieldsWithoutRange(SourceFields()), 0);
    }
};

QTEST_APPLESS_MAIN(tst_FieldImport)
#include "tst_FieldImport.moc"
