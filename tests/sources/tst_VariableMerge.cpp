#include "sources/VariableMerge.h"

#include "model/TDmEntity.h"
#include "tests/sources/Fields.h"

#include <QtTest>

using tessel::sources::ImportedField;
using tessel::sources::SourceRemark;
using tessel::sources::VariableMerge;
using tessel::test::field;
using tessel::test::sourceOf;

using OnClash = VariableMerge::OnClash;

namespace {

TDmVariable *variable(const QString &name, const QString &label)
{
    auto *made = new TDmVariable;
    made->setName(name);
    made->setLabel(label);
    return made;
}

/// Fields of the source "NAME:label NAME:label", each with a range from 0 to 9 and the missing code 99.
std::vector<ImportedField> fields(const QString &text)
{
    tessel::sources::SourceFields source;
    const QStringList list = text.split(' ', Qt::SkipEmptyParts);
    for (const QString &one : list) {
        source.fields.push_back(field(one.section(':', 0, 0), "INTEGER", one.section(':', 1)));
        source.fields.back()->rangeMax = "9";
        source.fields.back()->missing = "99";
    }
    return tessel::sources::importFields(source);
}

/// The variables of \a entity as "NAME:label", and "(99)" behind those with that missing code.
QString shown(const TDmEntity &entity)
{
    QStringList list;
    for (const TDmVariable *one : qAsConst(*entity.getVariables()))
        list.append(one->getName() + ':' + one->getLabel() + (one->getMissing() == 99 ? "(99)" : ""));
    return list.join(' ');
}

QStringList sentences(const QVector<SourceRemark> &remarks)
{
    QStringList list;
    for (const SourceRemark &remark : remarks)
        list.append(remark.sentence());
    return list;
}

} // namespace

class tst_VariableMerge : public QObject {
    Q_OBJECT

private slots:
    void variablesAreAddedBehindTheOthers()
    {
        TDmEntity entity;
        entity.addVariables(variable("A", "a"));
        VariableMerge merge(entity, OnClash::Skip);
        merge.add(fields("B:b a:x"));
        merge.add(fields("C:c"));
        QCOMPARE(shown(entity), QString("A:a B:b(99) a:x(99) C:c(99)"));
        QCOMPARE(merge.clashes().size(), 0);
        const QString codes(": as the source declares, the missing code is 99 instead of 10");
        QCOMPARE(sentences(merge.declaredCodes()), (QStringList{"B" + codes, "a" + codes, "C" + codes}));
    }

    void aClashIsLeftOutOrTakesThePlace_data()
    {
        QTest::addColumn<QString>("fresh");
        QTest::addColumn<QString>("skipped");
        QTest::addColumn<QString>("overwritten");
        QTest::addColumn<QStringList>("clashes");
        const QString same(" already, with the same alias, label and group");
        const QString other(" already, with another alias, label or group");
        QTest::newRow("the same in all texts")
            << "B:b"
            << "A:a B:b C:c B:d"
            << "A:a B:b(99) C:c B:d" << QStringList{"B: E has the variable B" + same};
        QTest::newRow("the same as the second of the name")
            << "B:d"
            << "A:a B:b C:c B:d"
            << "A:a B:b C:c B:d(99)" << QStringList{"B: E has the variable B" + same};
        QTest::newRow("the same in name alone")
            << "B:x"
            << "A:a B:b C:c B:d"
            << "A:a B:x(99) C:c B:d" << QStringList{"B: E has a variable B" + other};
        QTest::newRow("two fields of a name")
            << "N:1 N:2"
            << "A:a B:b C:c B:d N:1(99)"
            << "A:a B:b C:c B:d N:2(99)" << QStringList{"N: an earlier field, N, gives E a variable N too"};
        QTest::newRow("two fields that become one name")
            << "P1_X:1 P1_Y:2"
            << "A:a B:b C:c B:d P1:1(99)"
            << "A:a B:b C:c B:d P1:2(99)"
            << QStringList{"P1_Y: an earlier field, P1_X, gives E a variable P1 too"};
        QTest::newRow("a field meets one that has just taken a place")
            << "C:x D:d C:y"
            << "A:a B:b C:c B:d D:d(99)"
            << "A:a B:b C:y(99) B:d D:d(99)"
            << QStringList{
                   "C: E has a variable C" + other, "C: an earlier field, C, gives E a variable C too"};
    }

    void aClashIsLeftOutOrTakesThePlace()
    {
        QFETCH(QString, fresh);
        QFETCH(QString, skipped);
        QFETCH(QString, overwritten);
        QFETCH(QStringList, clashes);
        for (const OnClash onClash : {OnClash::Skip, OnClash::Overwrite}) {
            TDmEntity entity;
            entity.setName("E");
            for (const char *text : {"A:a", "B:b", "C:c", "B:d"})
                entity.addVariables(variable(QString(text).left(1), QString(text).mid(2)));
            VariableMerge merge(entity, onClash);
            merge.add(fields(fresh));
            QCOMPARE(shown(entity), onClash == OnClash::Skip ? skipped : overwritten);
            QStringList expected = clashes;
            // What was left out is still the entity's own at the next field.
            if (onClash == OnClash::Skip && expected.size() == 2)
                expected[1] = expected[0];
            QCOMPARE(sentences(merge.clashes()), expected);
            QCOMPARE(merge.declaredCodes().size(),
                onClash == OnClash::Skip ? fresh.count(' ') + 1 - clashes.size() : fresh.count(' ') + 1);
        }
    }

    void aliasAndGroupMakeAVariableAnother()
    {
        TDmEntity entity;
        entity.setName("E");
        entity.addVariables(variable("P1", QString()));
        entity.getVariables()->first()->setAlias("X");
        VariableMerge merge(entity, OnClash::Skip);
        merge.add(fields("P1_X P1_Y"));
        QCOMPARE(sentences(merge.clashes()),
            (QStringList{"P1_X: E has the variable P1 already, with the same alias, label and group",
                "P1_Y: E has a variable P1 already, with another alias, label or group"}));
        entity.getVariables()->first()->setGroup("G");
        VariableMerge grouped(entity, OnClash::Skip);
        grouped.add(fields("P1_X"));
        QCOMPARE(sentences(grouped.clashes()),
            QStringList{"P1_X: E has a variable P1 already, with another alias, label or group"});
    }

    void aVariableWithoutANameIsTold()
    {
        TDmEntity entity;
        entity.setName("E");
        VariableMerge merge(entity, OnClash::Skip);
        merge.add(fields("_1_A:a _A_1:b P1_:c"));
        QCOMPARE(shown(entity), QString(":a(99) _A_1:b(99) P1_:c(99)"));
        const QString reason(
            ": gives a variable without a name, because it begins with \"_\" and a digit; name "
            "the variable in the dictionary");
        QCOMPARE(sentences(merge.nameless()), QStringList("_1_A" + reason));
        // What is left out gives none.
        merge.add(fields("_2_B:x"));
        QCOMPARE(merge.clashes().size(), 1);
        QCOMPARE(sentences(merge.nameless()), QStringList("_1_A" + reason));
    }

    void aNameWithPlaceholdersStaysAsItIs()
    {
        TDmEntity entity;
        entity.setName("%2");
        entity.addVariables(variable("%1", QString()));
        VariableMerge merge(entity, OnClash::Skip);
        merge.add(fields("%1"));
        QCOMPARE(sentences(merge.clashes()),
            QStringList{"%1: %2 has the variable %1 already, with the same alias, label and group"});
    }
};

QTEST_APPLESS_MAIN(tst_VariableMerge)
#include "tst_VariableMerge.moc"
