#include "sources/EntityNaming.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "util/Validate.h"

#include <QtTest>

using tessel::sources::freeEntityName;
using tessel::sources::validEntityName;

namespace {

/// A letter of another plane: two units of a QString.
const QString kWide = QString::fromUtf8("\xf0\x9d\x94\xb8");

} // namespace

class tst_EntityNaming : public QObject {
    Q_OBJECT

private slots:
    void aTextBecomesAValidName_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *tag, const QString &text, const QString &name) {
            QTest::newRow(tag) << text << name;
        };
        row("a valid name stays", "PERSON_2", "PERSON_2");
        row("letters of any language stay", QString::fromUtf8("Población"), QString::fromUtf8("Población"));
        row("letters of another plane stay", kWide, kWide);
        row("a dot becomes an underscore", "survey.2023", "survey_2023");
        row("a run of others becomes one underscore", "a - b", "a_b");
        row("an underscore beside others stays", "a_-b", "a__b");
        row("blanks around the text go", " a ", "a");
        row("a digit at the start gets an underscore", "2023", "_2023");
        row("what is no digit is no part of a name", QString::fromUtf8("a½b"), "a_b");
        row("an unpaired surrogate is no part of a name", QString("a") + QChar(0xd800) + 'b', "a_b");
        row("a text without any letter", "---", "_");
        row("no text", "", "_");
        row("a blank inside becomes an underscore", "a b", "a_b");
        row("fifty characters stay", QString(50, 'x'), QString(50, 'x'));
        row("more are cut", QString(51, 'x'), QString(50, 'x'));
        row("the underscore at the start counts", QString(50, '1'), '_' + QString(49, '1'));
        row("no half character at the end", QString(49, 'x') + kWide, QString(49, 'x'));
        row("a whole one at the end stays", QString(48, 'x') + kWide + 'y', QString(48, 'x') + kWide);
    }

    void aTextBecomesAValidName()
    {
        QFETCH(QString, text);
        QFETCH(QString, name);
        QCOMPARE(validEntityName(text), name);
        QVERIFY(Validate().validateName(name));
        QVERIFY(name.size() <= 50);
        TDmEntity root;
        QCOMPARE(freeEntityName(text, root), name);
    }

    void aTakenNameGetsANumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::newRow("free") << "FREE"
                              << "FREE";
        QTest::newRow("letter case counts") << "person"
                                            << "person";
        QTest::newRow("an entity's name") << "PERSON"
                                          << "PERSON_3";
        QTest::newRow("an entity's name but for what is no part of it") << "PERSON "
                                                                        << "PERSON_3";
        QTest::newRow("the dictionary's own name") << "CENSUS"
                                                   << "CENSUS_2";
        QTest::newRow("an alias") << "PERSONA"
                                  << "PERSONA_2";
        QTest::newRow("a group of variables") << "HEALTH"
                                              << "HEALTH_2";
        QTest::newRow("a long one is cut to make room") << QString(50, 'x') << QString(48, 'x') + "_2";
        QTest::newRow("not through a character") << QString(47, 'y') + kWide << QString(47, 'y') + "_2";
    }

    void aTakenNameGetsANumber()
    {
        QFETCH(QString, text);
        QFETCH(QString, name);
        TDmEntity root;
        root.setName("CENSUS");
        for (const QString &taken :
            {QString("PERSON"), QString("PERSON_2"), QString(50, 'x'), QString(QString(47, 'y') + kWide)}) {
            auto *entity = new TDmEntity;
            entity->setName(taken);
            entity->setAlias("PERSONA");
            auto *variable = new TDmVariable;
            variable->setGroup("HEALTH");
            entity->addVariables(variable);
            root.getChildren()->append(entity);
        }
        QCOMPARE(freeEntityName(text, root), name);
    }
};

QTEST_APPLESS_MAIN(tst_EntityNaming)
#include "tst_EntityNaming.moc"
