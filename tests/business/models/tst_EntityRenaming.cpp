#include "business/models/DictionaryTreeModel.h"

#include "model/TDmVariable.h"
#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/OpenEntityTree.h"
#include "tests/business/models/TreeText.h"
#include "tests/support/MessageBoxRobot.h"

#include <QSignalSpy>
#include <QtTest>

#include <climits>

using namespace tessel::test;

namespace {

const QString kGroup = QStringLiteral("Entity name already exists as a group name");
const QString kEntity = QStringLiteral("Entity name already exists");
const QString kAlias = QStringLiteral("Entity name already exists as an alias name");
const QString kInvalid = QStringLiteral("Invalid string");
const QString kTooLong = QStringLiteral("Chain with length greater than 50");
const QString kSilent; // Refused without a word.
const QString kAccepted = QStringLiteral("accepted");

const QString kLong(51, QLatin1Char('x'));

/// Beyond U+FFFF: one letter, two units.
QString wideLetters(int count) { return QString::fromUcs4(U"\U00010400").repeated(count); }

void addGroup(TDmEntity *entity, const QString &group)
{
    auto *variable = new TDmVariable;
    variable->setName("VARIABLE_OF_" + entity->getName());
    variable->setAlias("ALIAS_OF_VARIABLE");
    variable->setGroup(group);
    entity->addVariables(variable);
}

/// A dictionary with its model. FARM is the entity that most tests rename.
struct Dictionary {
    Dictionary()
        : root(treeFrom<TDmEntity>("LAND(HOUSE(PERSON(JOB) DEATH) FARM Person)"))
        , model(root.get())
    {
        root->setAlias("COUNTRY");
        addGroup(root.get(), "GEOGRAPHY");
        find(root.get(), "HOUSE")->setAlias("DWELLING");
        find(root.get(), "JOB")->setAlias("OCCUPATION");
        find(root.get(), "HOUSE")->setLabel("LABEL");
        addGroup(find(root.get(), "FARM"), "CROPS");
        addGroup(find(root.get(), "JOB"), "INCOME");
    }

    TDmEntity *entity(const QString &name) const { return find(root.get(), name); }

    /// What becomes of \a text as the new name of \a entity: "accepted" or the text of the box. Checks that
    /// an accepted text is announced once and a refused one changes nothing.
    QString rename(TDmEntity *entity, const QVariant &text, int role = Qt::EditRole)
    {
        const QString before = shown();
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        MessageBoxRobot robot({QMessageBox::Ok});
        const bool accepted = model.setData(model.made(0, 0, entity), text, role);
        if (accepted)
            return changed.count() == 1 && robot.boxes().isEmpty() ? kAccepted
                                                                   : QStringLiteral("accepted oddly");
        if (changed.count() != 0 || shown() != before || robot.boxes().size() > 1)
            return QStringLiteral("refused oddly");
        return robot.texts().value(0);
    }

    QString shown() const { return drawn<TDmEntity>(model); }

    std::unique_ptr<TDmEntity> root;
    Open<DictionaryTreeModel> model;
};

} // namespace

class tst_EntityRenaming : public QObject {
    Q_OBJECT

private slots:
    void aNewNameIsJudged_data()
    {
        QTest::addColumn<QVariant>("text");
        QTest::addColumn<QString>("outcome");
        const auto row = [](const char *tag, const QVariant &text, const QString &outcome) {
            QTest::newRow(tag) << text << outcome;
        };
        row("a new name", "FIELD", kAccepted);
        row("letters, digits and _", "_a1\u00e9", kAccepted);
        row("empty", "", kSilent);
        row("blanks", " \t\n ", kSilent);
        row("no value", QVariant(), kSilent);
        row("a number", 5, kSilent);
        row("a list", QStringList({"FIELD"}), kAccepted);
        row("bytes", QByteArray("FIELD"), kAccepted);
        row("a digit first", "1FIELD", kSilent);
        row("a blank inside", "FIELD ONE", kSilent);
        row("markup", "<b>FIELD</b>", kSilent);
        row("a quotation mark", "FIE\"LD", kSilent);
        row("a backslash", "FIE\\LD", kSilent);
        row("a line feed inside", "FIE\nLD", kSilent);
        row("a null character inside", QString::fromLatin1("A\0B", 3), kSilent);
        row("an unpaired high surrogate", "A" + QString(QChar(0xd800)), kSilent);
        row("an unpaired low surrogate", "A" + QString(QChar(0xdc00)), kSilent);
        row("the group of the root's variable", "GEOGRAPHY", kGroup);
        row("the group of its own variable", "CROPS", kGroup);
        row("the group of a variable far below", "INCOME", kGroup);
        row("a group with blanks around it", "  INCOME ", kGroup);
        row("a group in another letter case", "income", kAccepted);
        row("the root's name", "LAND", kEntity);
        row("a brother's name", "HOUSE", kEntity);
        row("a name far below", "JOB", kEntity);
        row("a name with blanks around it", " JOB  ", kEntity);
        row("a name in another letter case", "job", kAccepted);
        row("the root's alias", "COUNTRY", kAlias);
        row("a brother's alias", "DWELLING", kAlias);
        row("an alias far below", "OCCUPATION", kAlias);
        row("an alias with blanks around it", " OCCUPATION ", kAlias);
        row("an alias in another letter case", "occupation", kAccepted);
        row("a variable's name", "VARIABLE_OF_JOB", kAccepted);
        row("a variable's alias", "ALIAS_OF_VARIABLE", kAccepted);
        row("a label", "LABEL", kAccepted);
        row("a tab in front", "\tFIELD", kInvalid);
        row("a line feed behind", "FIELD\n", kInvalid);
        row("50 characters", QString(50, 'x'), kAccepted);
        row("51 characters", kLong, kTooLong);
        row("50 characters and blanks", "   " + QString(50, 'x') + "   ", kAccepted);
        row("51 characters and blanks", "   " + kLong + "   ", kTooLong);
        row("25 letters of two units", wideLetters(25), kAccepted);
        row("25 letters of two units and one of one", wideLetters(25) + "x", kTooLong);
        row("26 letters of two units", wideLetters(26), kTooLong);
        row("100,000 letters", QString(100'000, 'x'), kTooLong);
        row("100,000 blanks", QString(100'000, ' '), kSilent);
        row("100,000 blanks and a name", QString(100'000, ' ') + "FIELD", kAccepted);
    }
    void aNewNameIsJudged()
    {
        QFETCH(QVariant, text);
        QFETCH(QString, outcome);
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        QCOMPARE(dictionary.rename(farm, text), outcome);
        QCOMPARE(farm->getName(), outcome == kAccepted ? text.toString().trimmed() : QString("FARM"));
    }

    void ofTwoFaultsTheFirstIsTold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("outcome");
        const QString none;
        const QString tabbed = QStringLiteral("\tBOTH");
        QTest::newRow("blanks; a tab among them") << "\t " << none << none << none << kSilent;
        QTest::newRow("no name; a group") << "1A"
                                          << "1A" << none << none << kSilent;
        QTest::newRow("no name; an entity") << "1A" << none << "1A" << none << kSilent;
        QTest::newRow("no name; an alias") << "1A" << none << none << "1A" << kSilent;
        QTest::newRow("no name; no text") << "\t1A" << none << none << none << kSilent;
        QTest::newRow("no name; too long") << "1" + kLong << none << none << none << kSilent;
        QTest::newRow("a group; an entity") << "BOTH"
                                            << "BOTH"
                                            << "BOTH" << none << kGroup;
        QTest::newRow("a group; an alias") << "BOTH"
                                           << "BOTH" << none << "BOTH" << kGroup;
        QTest::newRow("a group; no text") << tabbed << "BOTH" << none << none << kGroup;
        QTest::newRow("a group; too long") << kLong << kLong << none << none << kGroup;
        QTest::newRow("an entity; an alias") << "BOTH" << none << "BOTH"
                                             << "BOTH" << kEntity;
        QTest::newRow("an entity; no text") << tabbed << none << "BOTH" << none << kEntity;
        QTest::newRow("an entity; too long") << kLong << none << kLong << none << kEntity;
        QTest::newRow("an alias; no text") << tabbed << none << none << "BOTH" << kAlias;
        QTest::newRow("an alias; too long") << kLong << none << none << kLong << kAlias;
        QTest::newRow("no text; too long") << "\t" + kLong << none << none << none << kInvalid;
        QTest::newRow("all of them") << "\t" + kLong << kLong << kLong << kLong << kGroup;
    }
    void ofTwoFaultsTheFirstIsTold()
    {
        QFETCH(QString, text);
        QFETCH(QString, group);
        QFETCH(QString, name);
        QFETCH(QString, alias);
        QFETCH(QString, outcome);
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        TDmEntity *job = dictionary.entity("JOB");
        addGroup(job, group);
        job->setName(name);
        job->setAlias(alias);
        QCOMPARE(dictionary.rename(farm, text), outcome);
        QCOMPARE(farm->getName(), QString("FARM"));
    }

    void aRefusalIsToldInAnInformationBox_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("a group") << "INCOME" << kGroup;
        QTest::newRow("an entity") << "JOB" << kEntity;
        QTest::newRow("an alias") << "OCCUPATION" << kAlias;
        QTest::newRow("no text") << "\tFIELD" << kInvalid;
        QTest::newRow("too long") << kLong << kTooLong;
    }
    void aRefusalIsToldInAnInformationBox()
    {
        QFETCH(QString, text);
        QFETCH(QString, message);
        Dictionary dictionary;
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(!dictionary.model.setData(dictionary.model.made(0, 0, dictionary.entity("FARM")), text));
        QCOMPARE(robot.texts(), QStringList(message));
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.title, QString("Information"));
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.textFormat, Qt::PlainText);
        QVERIFY(box.isModal);
        QCOMPARE(robot.unplanned(), 0);

        const ContextTranslator translator;
        QCOMPARE(dictionary.rename(dictionary.entity("FARM"), text), "DictionaryTreeModel: " + message);
    }

    void anEntityMayAlwaysKeepItsNameInAnyLetterCase_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("unchanged") << "PERSON";
        QTest::newRow("lower case") << "person";
        QTest::newRow("blanks around it") << " PERSON  ";
        QTest::newRow("lower case and blanks around it") << " person ";
        // Another entity is called so: without a list of names nobody notices.
        QTest::newRow("the letter case of another entity") << "Person";
    }
    void anEntityMayAlwaysKeepItsNameInAnyLetterCase()
    {
        QFETCH(QString, text);
        Dictionary dictionary;
        TDmEntity *person = dictionary.entity("PERSON");
        QCOMPARE(dictionary.rename(person, text), kAccepted);
        QCOMPARE(person->getName(), text.trimmed());
    }

    void theStoredNameMayBeWrittenWithBlanksAndIsStillTheSame()
    {
        Dictionary dictionary;
        TDmEntity *job = dictionary.entity("JOB");
        job->setName("  Job ");
        QCOMPARE(dictionary.rename(job, "JOB"), kAccepted);
        QCOMPARE(job->getName(), QString("JOB"));
    }

    void lettersThatAreTheSameInUpperCaseMakeTheSameName()
    {
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        farm->setName("STRASSE");
        dictionary.entity("JOB")->setName(QString::fromUtf8("stra\u00dfe"));
        QCOMPARE(dictionary.rename(farm, QString::fromUtf8("stra\u00dfe")), kAccepted);
    }

    void theOwnNameIsStillComparedWithGroupsAndAliases()
    {
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        farm->setAlias("FARM");
        QCOMPARE(dictionary.rename(farm, "FARM"), kAlias);
        QCOMPARE(dictionary.rename(farm, "farm"), kAccepted);
        QCOMPARE(dictionary.rename(farm, "FARM"), kAlias);
        addGroup(dictionary.entity("JOB"), "FARM");
        QCOMPARE(dictionary.rename(farm, "FARM"), kGroup);
        farm->setName(kLong);
        QCOMPARE(dictionary.rename(farm, kLong), kTooLong);
        QCOMPARE(dictionary.rename(farm, " \t" + kLong), kInvalid);
    }

    void theRootIsRenamedUnderTheSameRules()
    {
        Dictionary dictionary;
        QCOMPARE(dictionary.rename(dictionary.root.get(), "JOB"), kEntity);
        QCOMPARE(dictionary.rename(dictionary.root.get(), "COUNTRY"), kAlias);
        QCOMPARE(dictionary.rename(dictionary.root.get(), " land "), kAccepted);
        QCOMPARE(dictionary.rename(dictionary.root.get(), "NATION"), kAccepted);
        QCOMPARE(dictionary.root->getName(), QString("NATION"));
    }

    void everyCallSeesTheTreeAsItIsThen()
    {
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        TDmEntity *job = dictionary.entity("JOB");
        QCOMPARE(dictionary.rename(farm, "JOB"), kEntity);
        QCOMPARE(dictionary.rename(job, "WORK"), kAccepted);
        QCOMPARE(dictionary.rename(farm, "WORK"), kEntity);
        QCOMPARE(dictionary.rename(farm, "JOB"), kAccepted);
        job->setAlias("LATER");
        QCOMPARE(dictionary.rename(farm, "LATER"), kAlias);
        job->setAlias(QString());
        QCOMPARE(dictionary.rename(farm, "LATER"), kAccepted);
        addGroup(job, "LATER_STILL");
        QCOMPARE(dictionary.rename(farm, "LATER_STILL"), kGroup);
    }

    void everyRoleIsJudgedAndAnnouncedAndOnlyOneStores()
    {
        for (int role = 0; role <= Qt::UserRole + 2; ++role) {
            Dictionary dictionary;
            TDmEntity *farm = dictionary.entity("FARM");
            QCOMPARE(dictionary.rename(farm, "", role), kSilent);
            QCOMPARE(dictionary.rename(farm, "1A", role), kSilent);
            QCOMPARE(dictionary.rename(farm, "INCOME", role), kGroup);
            QCOMPARE(dictionary.rename(farm, "JOB", role), kEntity);
            QCOMPARE(dictionary.rename(farm, "OCCUPATION", role), kAlias);
            QCOMPARE(dictionary.rename(farm, "\tFIELD", role), kInvalid);
            QCOMPARE(dictionary.rename(farm, kLong, role), kTooLong);
            QCOMPARE(dictionary.rename(farm, "FIELD", role), kAccepted);
            QCOMPARE(farm->getName(), QString(role == Qt::EditRole ? "FIELD" : "FARM"));
        }
    }

    void anotherColumnIsJudgedAndAnnouncedAndNotStored()
    {
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        for (const int column : {1, INT_MAX}) {
            const QModelIndex index = dictionary.model.made(1, column, farm);
            QSignalSpy changed(&dictionary.model, &QAbstractItemModel::dataChanged);
            MessageBoxRobot robot({QMessageBox::Ok});
            QVERIFY(!dictionary.model.setData(index, "JOB"));
            QCOMPARE(robot.texts(), QStringList(kEntity));
            QCOMPARE(changed.count(), 0);
            QVERIFY(dictionary.model.setData(index, "FIELD"));
            QCOMPARE(changed.count(), 1);
            QCOMPARE(changed.at(0).at(0).toModelIndex(), index);
            QCOMPARE(farm->getName(), QString("FARM"));
        }
    }

    void anAcceptedNameIsAnnouncedWithItsIndexAndNoRoles()
    {
        Dictionary dictionary;
        const QModelIndex index = indexOf(dictionary.model, dictionary.entity("JOB"));
        QSignalSpy changed(&dictionary.model, &QAbstractItemModel::dataChanged);
        QVERIFY(dictionary.model.setData(index, "WORK"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), index);
        QCOMPARE(changed.at(0).at(1).toModelIndex(), index);
        QCOMPARE(changed.at(0).at(2).value<QVector<int>>(), QVector<int>());
        QCOMPARE(dictionary.shown(), QString("LAND(HOUSE(PERSON(WORK) DEATH) FARM Person)"));
    }

    void whatHasNoEntityIsRefusedInSilence()
    {
        Dictionary dictionary;
        QSignalSpy changed(&dictionary.model, &QAbstractItemModel::dataChanged);
        MessageBoxRobot robot;
        const QModelIndexList empty = {QModelIndex(), dictionary.model.made(0, 0, nullptr),
            dictionary.model.made(-1, 0, dictionary.root.get()),
            dictionary.model.made(0, -1, dictionary.root.get())};
        for (const QModelIndex &index : empty) {
            for (const char *text : {"FIELD", "JOB", ""})
                QVERIFY(!dictionary.model.setData(index, text));
        }
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(changed.count(), 0);
        QCOMPARE(dictionary.root->getName(), QString("LAND"));
    }

    void nullEntitiesAndVariablesOfTheTreeArePassedBy()
    {
        Dictionary dictionary;
        TDmEntity *farm = dictionary.entity("FARM");
        dictionary.root->getChildren()->prepend(nullptr);
        farm->addVariables(nullptr);
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(dictionary.model.setData(dictionary.model.made(0, 0, farm), "FIELD"));
        QVERIFY(!dictionary.model.setData(dictionary.model.made(0, 0, farm), "JOB"));
        QCOMPARE(robot.texts(), QStringList(kEntity));
        QCOMPARE(farm->getName(), QString("FIELD"));
    }
};

QTEST_MAIN(tst_EntityRenaming)
#include "tst_EntityRenaming.moc"
