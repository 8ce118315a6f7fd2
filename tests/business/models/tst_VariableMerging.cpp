#include "business/models/VariableDiccionaryModel.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/VariableTable.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

using namespace tessel::test;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

constexpr QMessageBox::StandardButton Yes = QMessageBox::Yes;
constexpr QMessageBox::StandardButton No = QMessageBox::No;
constexpr QMessageBox::StandardButton Ok = QMessageBox::Ok;

/// The table of an entity and new variables that may come to it. Frees what the entity does not hold at the
/// end: variables that were skipped or replaced.
class Merging : public VariableTable {
public:
    Merging(const QStringList &held, const QStringList &coming)
        : VariableTable(held)
    {
        for (const QString &text : coming)
            fresh += newVariable(text);
        all = toSet(*house->getVariables()) + toSet(fresh);
    }
    ~Merging()
    {
        const QSet<TDmVariable *> ownerless = all - toSet(*house->getVariables());
        for (const TDmVariable *variable : ownerless)
            delete variable;
    }

    /// What is shown and told while the new variables come: the texts of the boxes, then the number of
    /// announcements.
    QStringList merge(const Answers &answers = {}) { return merge(&fresh, answers); }
    QStringList merge(QList<TDmVariable *> *list, const Answers &answers = {})
    {
        QSignalSpy modified(&model, &VariableDiccionaryModel::signalVariablesModified);
        MessageBoxRobot robot(answers);
        model.updateEntityVariables(list);
        QStringList outcome = robot.texts();
        outcome += QString::number(modified.count());
        if (robot.unplanned() > 0 || robot.unanswered() > 0)
            outcome += QStringLiteral("asked otherwise");
        return outcome;
    }

    /// Where the entity has its old variables ("0", "1") and the new ones ("a", "b").
    QString order() const
    {
        QString places;
        for (TDmVariable *variable : qAsConst(*house->getVariables())) {
            const int at = fresh.indexOf(variable);
            places += at < 0 ? QString::number(old.indexOf(variable)) : QString(QChar('a' + at));
        }
        return places;
    }

    const QList<TDmVariable *> old = *house->getVariables();
    QList<TDmVariable *> fresh;

private:
    static QSet<TDmVariable *> toSet(const QList<TDmVariable *> &list)
    {
        return QSet<TDmVariable *>(list.cbegin(), list.cend());
    }

    QSet<TDmVariable *> all;
};

/// Two descriptions that differ in one text, the one at \a place, and have the same hash, made as the table
/// of known variables makes it: by chance one of so many.
QStringList twoOfOneHash(int place)
{
    // Numbers counted up would not do: checksums, of which the hash may be one, tell such apart.
    QRandomGenerator random(1);
    QHash<uint, QString> known;
    for (int i = 0; i < 2'000'000; ++i) {
        QStringList texts{
            QStringLiteral("AGE"), QStringLiteral("EDAD"), QStringLiteral("Age"), QStringLiteral("PEOPLE")};
        texts[place] += QString::number(random.generate64(), 36);
        uint hash = 0;
        for (const QString &text : qAsConst(texts))
            hash = qHash(text, hash);
        const QString description = texts.join(QLatin1Char('|'));
        const QString other = known.value(hash);
        if (!other.isEmpty())
            return {other, description};
        known.insert(hash, description);
    }
    return {};
}

const QString kAsked = QStringLiteral("AGE already exists.Overwrite?");

} // namespace

class tst_VariableMerging : public QObject {
    Q_OBJECT

private slots:
    void newVariablesAreAddedAtTheEndAndTheRowsStay()
    {
        Merging merging({"AGE|EDAD", "SEX"}, {"INCOME", "AREA", "BATHS"});
        const QList<TDmVariable *> list = merging.fresh;
        QSignalSpy changed(&merging.model, &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(&merging.model, &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(&merging.model, &QAbstractItemModel::modelReset);
        const LogCatcher catcher;
        QCOMPARE(merging.merge(), QStringList("3"));
        QCOMPARE(merging.order(), QString("01abc"));
        QCOMPARE(merging.fresh, list);
        QCOMPARE(merging.model.rowCount(), 2);
        QCOMPARE(changed.count() + inserted.count() + reset.count(), 0);
        QCOMPARE(ownMessages(catcher), QStringList());
        QVERIFY(merging.root->getVariables()->isEmpty());
    }

    void oneHashDoesNotMakeThemEqual_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("names differ") << 0;
        QTest::newRow("aliases differ") << 1;
        QTest::newRow("labels differ") << 2;
        QTest::newRow("groups differ") << 3;
    }

    void oneHashDoesNotMakeThemEqual()
    {
        QFETCH(int, place);
        const QStringList two = twoOfOneHash(place);
        QCOMPARE(two.size(), 2);
        Merging merging({two.first()}, {two.last()});
        MessageBoxRobot robot({Ok});
        merging.model.updateEntityVariables(&merging.fresh);
        QVERIFY(robot.boxes().isEmpty() || robot.boxes().first().title != "Overwrite variable");
        QCOMPARE(merging.order(), QString("0a"));
    }

    void equalAreNameAliasLabelAndGroupToTheLetter_data()
    {
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("coming");
        QTest::addColumn<bool>("equal");
        const auto row = [](const char *tag, const char *held, const char *coming, bool equal) {
            QTest::newRow(tag) << QString(held) << QString(coming) << equal;
        };
        row("all the same", "AGE|EDAD|Age|PEOPLE", "AGE|EDAD|Age|PEOPLE", true);
        row("only names", "AGE", "AGE", true);
        row("no names", "|||PEOPLE", "|||PEOPLE", true);
        row("another name", "AGE|EDAD|Age|PEOPLE", "AGES|EDAD|Age|PEOPLE", false);
        row("another alias", "AGE|EDAD|Age|PEOPLE", "AGE|EDADES|Age|PEOPLE", false);
        row("another label", "AGE|EDAD|Age|PEOPLE", "AGE|EDAD|Years|PEOPLE", false);
        row("another group", "AGE|EDAD|Age|PEOPLE", "AGE|EDAD|Age|PERSONS", false);
        row("a name in another letter case", "AGE", "age", false);
        row("a name with a blank", "AGE", "AGE ", false);
        row("an alias in another letter case", "A|EDAD", "A|edad", false);
        row("a label with a blank", "A|B|Age", "A|B| Age", false);
        row("a group in another letter case", "A|B|C|PEOPLE", "A|B|C|people", false);
        row("name and alias changed about", "A|B", "B|A", false);
        row("label and group changed about", "A||L|G", "A||G|L", false);
        row("the same text in parts", "AB|C", "A|BC", false);
        row("a pattern", "AXB", "A.B", false);
    }
    void equalAreNameAliasLabelAndGroupToTheLetter()
    {
        QFETCH(QString, held);
        QFETCH(QString, coming);
        QFETCH(bool, equal);
        Merging merging({held}, {coming});
        // All the rest may differ, or be the same.
        merging.old.first()->setTag(equal ? 1 : 7);
        merging.old.first()->setVarType(equal ? "REAL" : "STRING");
        merging.fresh.first()->setTag(7);
        merging.fresh.first()->setVarType("STRING");
        MessageBoxRobot robot({equal ? No : Ok});
        merging.model.updateEntityVariables(&merging.fresh);
        const QString title = robot.boxes().isEmpty() ? QString() : robot.boxes().first().title;
        QCOMPARE(title == "Overwrite variable", equal);
        QCOMPARE(merging.order(), QString(equal ? "0" : "0a"));
    }

    void theAnswerDecidesWhichOfTheTwoStays_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<bool>("replaced");
        QTest::newRow("Yes") << Yes << true;
        QTest::newRow("No") << No << false;
        QTest::newRow("Escape is No") << MessageBoxRobot::PressEscape << false;
        QTest::newRow("closing is No") << MessageBoxRobot::CloseWindow << false;
    }
    void theAnswerDecidesWhichOfTheTwoStays()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(bool, replaced);
        Merging merging({"SEX", "AGE|EDAD|Age|PEOPLE", "INCOME"}, {"AGE|EDAD|Age|PEOPLE"});
        QCOMPARE(merging.merge({answer}), QStringList({kAsked, replaced ? "1" : "0"}));
        // The new one comes to the end, not to the place of the old one, which nobody deletes.
        QCOMPARE(merging.order(), QString(replaced ? "02a" : "012"));
        QCOMPARE(textOf(merging.old.at(1)), QString("AGE|EDAD|Age|PEOPLE|0"));
        QCOMPARE(textOf(merging.fresh.first()), QString("AGE|EDAD|Age|PEOPLE|0"));
        QCOMPARE(merging.model.rowCount(), 3);
        QCOMPARE(merging.model.index(1, 0).internalPointer(), merging.old.at(1));
    }

    void theQuestionIsOneBoxOfTwoButtonsWithoutDefault()
    {
        Merging merging({"<b>AGE</b>"}, {"<b>AGE</b>"});
        MessageBoxRobot robot({No, No, No});
        merging.model.updateEntityVariables(&merging.fresh);
        QMessageBox::question(nullptr, "Overwrite variable", "", QMessageBox::Yes | QMessageBox::No);
        MessageBoxRobot::Box usual = robot.boxes().last();
        usual.textFormat = Qt::PlainText;
        QCOMPARE(robot.texts().first(), QString("<b>AGE</b> already exists.Overwrite?"));
        QCOMPARE(formOf(robot.boxes().first()), formOf(usual));
        QVERIFY(formOf(usual).startsWith("Question, Overwrite variable, Yes No, "));
        QVERIFY(formOf(usual).endsWith(", plain, modal"));

        const ContextTranslator translator;
        merging.model.updateEntityVariables(&merging.fresh);
        QCOMPARE(robot.boxes().last().title, QString("VariableDiccionaryModel: Overwrite variable"));
        QCOMPARE(robot.texts().last(),
            QString("<b>AGE</b> VariableDiccionaryModel: already exists."
                    "VariableDiccionaryModel: Overwrite?"));
    }

    void eachVariableIsAskedAboutByItselfInTheOrderOfTheList()
    {
        Merging merging({"A", "B", "C", "D"}, {"C", "X", "A", "D", "Y", "B"});
        QCOMPARE(merging.merge({Yes, No, Yes, No}),
            QStringList({"C already exists.Overwrite?", "A already exists.Overwrite?",
                "D already exists.Overwrite?", "B already exists.Overwrite?", "4"}));
        QCOMPARE(merging.order(), QString("01abde"));
    }

    void theFirstOfSeveralEqualVariablesIsReplaced()
    {
        Merging merging({"SEX", "AGE|E", "INCOME", "AGE|E", "AGE|E"}, {"AGE|E", "AGE|E"});
        const QString warning = "Duplicated names:\nName: AGE - Alias: E\nName: AGE - Alias: E\n"
                                "Name: AGE - Alias: E\n";
        QCOMPARE(merging.merge({Yes, Yes, Ok}), QStringList({kAsked, kAsked, warning, "2"}));
        QCOMPARE(merging.order(), QString("024ab"));
    }

    void whatCameBeforeInTheListIsAlreadyThere()
    {
        Merging overwritten({"SEX"}, {"AGE", "AGE", "AGE"});
        QCOMPARE(overwritten.merge({Yes, Yes}), QStringList({kAsked, kAsked, "3"}));
        QCOMPARE(overwritten.order(), QString("0c"));
        Merging skipped({"SEX"}, {"AGE", "AGE", "AGE"});
        QCOMPARE(skipped.merge({No, No}), QStringList({kAsked, kAsked, "1"}));
        QCOMPARE(skipped.order(), QString("0a"));
    }

    void theSameVariableTwiceInTheListIsHeldOnce()
    {
        Merging overwritten({"SEX"}, {"AGE", "INCOME"});
        overwritten.fresh += overwritten.fresh.first();
        QCOMPARE(overwritten.merge({Yes}), QStringList({kAsked, "3"}));
        QCOMPARE(overwritten.order(), QString("0ba"));
        Merging skipped({"SEX"}, {"AGE", "INCOME"});
        skipped.fresh += skipped.fresh.first();
        QCOMPARE(skipped.merge({No}), QStringList({kAsked, "2"}));
        QCOMPARE(skipped.order(), QString("0ab"));
    }

    void aVariableThatTheEntityHoldsAlreadyIsItsOwnEqual()
    {
        Merging merging({"AGE", "SEX"}, {});
        QList<TDmVariable *> list = {merging.old.first()};
        QCOMPARE(merging.merge(&list, {No}), QStringList({kAsked, "0"}));
        QCOMPARE(merging.order(), QString("01"));
        QCOMPARE(merging.merge(&list, {Yes}), QStringList({kAsked, "1"}));
        QCOMPARE(merging.order(), QString("10"));
    }

    void theEntitysOwnListMayBeGivenAndMayBeKept()
    {
        Merging merging({"A", "B", "C"}, {});
        QCOMPARE(merging.merge(merging.house->getVariables(), {No, No, No}),
            QStringList({"A already exists.Overwrite?", "B already exists.Overwrite?",
                "C already exists.Overwrite?", "0"}));
        QCOMPARE(merging.order(), QString("012"));
    }

    void anAnnouncementComesWhenTheVariableIsThere()
    {
        Merging merging({"A", "B"}, {"C", "A", "D"});
        QStringList seen;
        connect(&merging.model, &VariableDiccionaryModel::signalVariablesModified, &merging.model,
            [&] { seen += merging.order(); });
        QCOMPARE(merging.merge({Yes}), QStringList({"A already exists.Overwrite?", "3"}));
        QCOMPARE(seen, QStringList({"01a", "1ab", "1abc"}));
    }

    void aNameThatComesTwiceIsAddedWithoutQuestionAndWarnedOf()
    {
        Merging merging({"AGE|EDAD"}, {"AGE|YEARS"});
        const QString warning = "Duplicated names:\nName: AGE - Alias: EDAD\nName: AGE - Alias: YEARS\n";
        QCOMPARE(merging.merge({Ok}), QStringList({warning, "1"}));
        QCOMPARE(merging.order(), QString("0a"));
    }

    void aWarningIsGivenEvenWhenNothingComes()
    {
        Merging merging({"AGE|EDAD", "AGE|YEARS"}, {});
        QCOMPARE(merging.merge({Ok}),
            QStringList({"Duplicated names:\nName: AGE - Alias: EDAD\nName: AGE - Alias: YEARS\n", "0"}));
        Merging unique({"AGE"}, {});
        QCOMPARE(unique.merge(), QStringList("0"));
        QCOMPARE(unique.merge(nullptr), QStringList("0"));
    }

    void nullsAreNeitherAddedNorComparedWith()
    {
        Merging merging({"AGE"}, {"AGE", "SEX"});
        merging.house->getVariables()->prepend(nullptr);
        merging.house->getVariables()->append(nullptr);
        merging.fresh.prepend(nullptr);
        merging.fresh.append(nullptr);
        QCOMPARE(merging.merge({Yes}), QStringList({kAsked, "2"}));
        QCOMPARE(namesOf(*merging.house), QString("null null AGE SEX"));
        merging.fresh.removeAll(nullptr);
    }

    void withoutEntityNothingComes()
    {
        Merging merging({"AGE"}, {"SEX"});
        VariableDiccionaryModel model(nullptr, nullptr, merging.root.get());
        QSignalSpy modified(&model, &VariableDiccionaryModel::signalVariablesModified);
        MessageBoxRobot robot;
        model.updateEntityVariables(&merging.fresh);
        model.showDuplicatedNamesWarning();
        QCOMPARE(modified.count(), 0);
        QCOMPARE(robot.boxes().size(), 0);
        QCOMPARE(merging.order(), QString("0"));
    }

    void twentyThousandVariablesComeToTwentyThousand()
    {
        constexpr int count = 20'000;
        QStringList held;
        QStringList coming;
        for (int i = 0; i < count; ++i) {
            held += QStringLiteral("OLD%1|A|B|C").arg(i);
            coming += QStringLiteral("NEW%1|A|B|C").arg(i);
        }
        coming[count / 2] = held.last();
        coming[count - 1] = held.first();
        Merging merging(held, coming);
        QCOMPARE(merging.merge({Yes, No}),
            QStringList({"OLD19999 already exists.Overwrite?", "OLD0 already exists.Overwrite?", "19999"}));
        QList<TDmVariable *> expected = merging.old;
        expected.removeLast();
        expected += merging.fresh;
        expected.removeLast();
        QCOMPARE(*merging.house->getVariables(), expected);
    }
};

QTEST_MAIN(tst_VariableMerging)
#include "tst_VariableMerging.moc"
