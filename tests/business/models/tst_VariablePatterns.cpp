#include "business/models/VariableDiccionaryModel.h"

#include "business/models/detail/VariableEditRules.h"
#include "tests/business/models/VariableTable.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace tessel::test;
using tessel::detail::VariableEditRules;

namespace {

const QString kAccepted = QStringLiteral("accepted");
const QString kVariable =
    QStringLiteral("Error: The typed character string already exists as the alias of a variable; refused");
const QString kAliasOrName =
    QStringLiteral("Error: The value already exists as the name/alias of a variable alias ; refused");

/// Entries on which "(a+)+b" tries all ways to part the letters.
const QString kSlow = QString(60, 'a') + "cb";

} // namespace

/// A typed name or label is read as a pattern, and the first entry that it matches does not count as a clash.
class tst_VariablePatterns : public QObject {
    Q_OBJECT

private slots:
    void theFirstEntryThatMatchesAsAWholeIsTakenOut_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<int>("removed");
        const auto row = [](const char *tag, const QString &typed, const QStringList &entries, int removed) {
            QTest::newRow(tag) << typed << entries << removed;
        };
        const int none = -1;
        row("a plain name", "B", {"A", "B", "C"}, 1);
        row("one of two", "B", {"A", "B", "B"}, 1);
        row("no such entry", "B", {"A", "C"}, none);
        row("no entries", "B", {}, none);
        row("only the beginning", "B", {"BC"}, none);
        row("only the end", "B", {"AB"}, none);
        row("a line feed at the end", "B", {"B\n"}, none);
        row("one of several lines", "B", {"A\nB\nC"}, none);
        row("blanks around the text", " B ", {"B"}, none);
        row("blanks around the entry", "B", {" B "}, none);
        row("another letter case", "b", {"B"}, none);
        row("any character", "A.B", {"AB", "AXXB", "AXB", "A.B"}, 2);
        row("any character is no line feed", "A.B", {"A\nB", "A.B"}, 1);
        row("an alternative is matched as a whole", "A|B", {"AX", "XB", "B", "A"}, 2);
        row("an alternative that begins like another", "A|AB", {"AB"}, 0);
        row("anything", ".*", {"", "A"}, 0);
        row("nothing", "", {"A", ""}, 1);
        row("classes", "[A-C]+", {"D", "ABCD", "CAB"}, 2);
        row("digits of other scripts are no digits", "\\d", {QString::fromUtf8("\u0661"), "1"}, 1);
        row("an option inside", "(?i)b", {"A", "B"}, 1);
        row("beyond the basic plane, one character", "A.B", {QString::fromUtf8("A\U0001F600B")}, 0);
        row("an unbalanced parenthesis", "a(b", {"a(b", "ab"}, none);
        row("a lone repetition", "*", {"*", ""}, none);
        row("an unclosed class", "[a", {"[a", "a"}, none);
        row("a pattern that the whole match would complete", "a)(?:b", {"ab", "a)(?:b"}, none);
        row("a comment that would swallow the end", "(?x)a #", {"a", "(?x)a #"}, none);
        row("an unpaired surrogate", QString(QChar(0xd800)), {QString(QChar(0xd800)), "A"}, none);
        row("a limit of its own", "(*LIMIT_MATCH=0)a", {"b", "a"}, none);
        row("a million letters are too large a pattern", QString(1'000'000, 'x'),
            {"x", QString(1'000'000, 'x')}, none);
        row("a match without end", "(a+)+b", {kSlow, "ab"}, none);
        row("a match without end behind the entry", "(a+)+b", {"ab", kSlow}, 0);
        row("an ordinary name that is long", QString(10'000, 'x'), {"x", QString(10'000, 'x')}, 1);
    }
    void theFirstEntryThatMatchesAsAWholeIsTakenOut()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, entries);
        QFETCH(int, removed);
        QStringList left = entries;
        const LogCatcher catcher;
        VariableEditRules::removeFirstMatch(left, typed);
        QCOMPARE(ownMessages(catcher), QStringList());
        if (removed >= 0)
            entries.removeAt(removed);
        QCOMPARE(left, entries);
    }

    void aTypedNameTakesOutWhatItMatchesInsteadOfItself_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("others");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char *tag, const char *typed, const QStringList &others, bool accepted) {
            QTest::newRow(tag) << typed << others << accepted;
        };
        row("the other variable alone", "B", {"B"}, true);
        row("two other variables", "B", {"B", "B"}, false);
        row("the text itself comes first", "A.B", {"A.B", "AXB"}, true);
        row("AXB comes first and is taken out instead", "A.B", {"AXB", "A.B"}, false);
        row("AXB alone is no clash", "A.B", {"AXB"}, true);
        row("only one is taken out", "A.B", {"AXB", "AYB", "A.B"}, false);
        row("what is longer is not taken out", "A.B", {"AXBC", "A.B"}, true);
        row("the edited variable itself is taken out", "O.D", {"O.D"}, false);
        row("no pattern takes out nothing", "A(B", {"A(B"}, false);
        row("a lone repetition takes out nothing", "*", {"*"}, false);
        row("a lone repetition is a name", "*", {"AXB"}, true);
        row("a comment takes out nothing", "(?x)a #", {"a", "(?x)a #"}, false);
        row("a half of two groups takes out nothing", "a)(?:b", {"ab", "a)(?:b"}, false);
        row("pattern characters that do not match themselves", "^$.*+?()[]{}|", {"^$.*+?()[]{}|"}, false);
        row("pattern characters that are new", "^$.*+?()[]{}|", {"A", "B"}, true);
        row("any text matches the edited variable", ".*", {".*"}, false);
    }
    void aTypedNameTakesOutWhatItMatchesInsteadOfItself()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, others);
        QFETCH(bool, accepted);
        QList<TDmVariable *> named = {namedVariable("OLD", "ALIAS")};
        QList<TDmVariable *> aliased = {namedVariable("NAME", "OLD")};
        for (const QString &other : qAsConst(others)) {
            named += namedVariable(other);
            aliased += namedVariable("OTHER", other);
        }
        const LogCatcher catcher;
        VariableTable names = VariableTable::holding(named);
        QCOMPARE(names.edit(0, 0, typed), accepted ? kAccepted : kVariable);
        QCOMPARE(names.variable(0)->getName(), accepted ? typed : QString("OLD"));
        VariableTable aliases = VariableTable::holding(aliased);
        QCOMPARE(aliases.edit(0, 2, typed), accepted ? kAccepted : kAliasOrName);
        QCOMPARE(aliases.variable(0)->getLabel(), accepted ? typed : QString());
        QCOMPARE(ownMessages(catcher),
            QStringList(
                {"debug default: VARIABLE CURRENT INDEX 0", "debug default: VARIABLE CURRENT INDEX 2"}));
    }

    void aLabelTakesNothingOutOfTheNamesAndAGroupNothingAtAll()
    {
        VariableTable table({"AGE", "A.B|ALIAS", "SEX|C.D"});
        QCOMPARE(table.edit(0, 2, "A.B"), kAliasOrName);
        const QString anyName =
            "Error: The value already exists as the name-entity/name-variable/alias; refused";
        QCOMPARE(table.edit(0, 3, "A.B"), anyName);
        QCOMPARE(table.edit(0, 3, "C.D"), anyName);
        QCOMPARE(table.edit(0, 2, "C.D"), kAccepted);
    }

    void aNameTakesNothingOutOfTheEntities()
    {
        VariableTable table({"AGE", "SEX"});
        QCOMPARE(
            table.edit(0, 0, "FARM"), QString("Error: The typed character string already exists; refused"));
        table.entity("FARM")->setName("F.RM");
        QCOMPARE(
            table.edit(0, 0, "F.RM"), QString("Error: The typed character string already exists; refused"));
    }

    void aMatchWithoutEndEndsSoon()
    {
        // The first entry that takes too long ends the search: not even all of them together may take long.
        QList<TDmVariable *> variables = {namedVariable("OLD", "ALIAS")};
        for (int i = 0; i < 2000; ++i)
            variables += namedVariable(QString(1000 + i, 'a') + "cb", QString(1000 + i, 'a') + "cb");
        VariableTable table = VariableTable::holding(variables);
        for (const char *typed : {"(a+)+b", "(a|aa)+b", "(a*)*b", "((a+)+)+b", "(.*)*x?b{2}"}) {
            QElapsedTimer clock;
            clock.start();
            QCOMPARE(table.edit(0, 2, typed, {}), kAccepted);
            QCOMPARE(table.edit(0, 0, typed, {}), kAccepted);
            QVERIFY2(clock.elapsed() < 20'000, typed);
        }
    }

    void aMillionCharactersAreComparedAsTheyAre()
    {
        const QString million(1'000'000, 'x');
        VariableTable table = VariableTable::holding({namedVariable("OLD"), namedVariable(million)});
        const LogCatcher catcher;
        QCOMPARE(table.edit(0, 0, million + "y", {}), kAccepted);
        QCOMPARE(table.edit(0, 0, " " + million), kVariable);
        QCOMPARE(table.edit(0, 0, QString(1'000'000, '('), {}), kAccepted);
        QCOMPARE(ownMessages(catcher),
            QStringList({"debug default: VARIABLE CURRENT INDEX 0", "debug default: VARIABLE CURRENT INDEX 0",
                "debug default: VARIABLE CURRENT INDEX 0"}));
    }
};

QTEST_MAIN(tst_VariablePatterns)
#include "tst_VariablePatterns.moc"
