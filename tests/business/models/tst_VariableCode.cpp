#include "business/models/VariableDiccionaryModel.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/VariableTable.h"

#include <QtTest>

#include <sys/resource.h>

using namespace tessel::test;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

const QString kAccepted = QStringLiteral("accepted");
const QString kAsked =
    QStringLiteral("RefCode Variable: Variable identified as RefCode.\nKeep it as RefCode?; accepted");

/// The variable AGE holds the code of HOUSE, and all entities are selectable.
class Coded : public VariableTable {
public:
    Coded()
        : VariableTable({"AGE|EDAD", "SEX|SEXO", "TWIN", "TWIN"})
    {
        house->setRefCode("AGE");
        house->setWeightVariable("AGE");
        house->setRefLabel("AGE");
        root->setRefCode("AGE");
        entity("ROOM")->setRefCode("AGE");
        for (const char *name : {"LAND", "HOUSE", "ROOM", "BED", "BATH", "FARM"})
            entity(name)->setSelectable(true);
    }

    /// The names of the selectable entities.
    QString selectable() const
    {
        QStringList names;
        for (const char *name : {"LAND", "HOUSE", "ROOM", "BED", "BATH", "FARM"}) {
            if (entity(name)->getSelectable())
                names += QLatin1String(name);
        }
        return names.join(' ');
    }
};

/// While it lives, the main thread's stack, on which boxes must be shown, is too small for one call per level
/// of a deep tree.
class SmallMainStack {
public:
    SmallMainStack()
    {
        getrlimit(RLIMIT_STACK, &before);
        rlimit small = before;
        small.rlim_cur = 1024 * 1024;
        isSmall = setrlimit(RLIMIT_STACK, &small) == 0;
    }
    ~SmallMainStack() { setrlimit(RLIMIT_STACK, &before); }

    bool isSmall = false;

private:
    rlimit before{};
    Q_DISABLE_COPY_MOVE(SmallMainStack)
};

const QString kAll = QStringLiteral("LAND HOUSE ROOM BED BATH FARM");

} // namespace

class tst_VariableCode : public QObject {
    Q_OBJECT

private slots:
    void theAnswerDecidesOnNameCodeAndSelection_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("selectable");
        QTest::newRow("Yes keeps the text as typed") << QMessageBox::Yes << " YEARS "
                                                     << " YEARS " << kAll;
        QTest::newRow("No gives up the code and the selection below") << QMessageBox::No << " YEARS "
                                                                      << ""
                                                                      << "LAND FARM";
        QTest::newRow("Cancel changes nothing and is announced all the same") << QMessageBox::Cancel << "AGE"
                                                                              << "AGE" << kAll;
        QTest::newRow("Escape is Cancel") << MessageBoxRobot::PressEscape << "AGE"
                                          << "AGE" << kAll;
        QTest::newRow("closing is Cancel") << MessageBoxRobot::CloseWindow << "AGE"
                                           << "AGE" << kAll;
    }
    void theAnswerDecidesOnNameCodeAndSelection()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QString, name);
        QFETCH(QString, code);
        QFETCH(QString, selectable);
        Coded coded;
        QCOMPARE(coded.edit(0, 0, " YEARS ", {answer}), kAsked);
        QCOMPARE(textOf(coded.variable(0)), name + "|EDAD|||0");
        QCOMPARE(coded.house->getRefCode(), code);
        QCOMPARE(coded.selectable(), selectable);
        // The other parts and the other entities keep what they have.
        QCOMPARE(coded.house->getWeightVariable(), QString("AGE"));
        QCOMPARE(coded.house->getRefLabel(), QString("AGE"));
        QCOMPARE(coded.root->getRefCode(), QString("AGE"));
        QCOMPARE(coded.entity("ROOM")->getRefCode(), QString("AGE"));
    }

    void theQuestionIsOneBoxOfThreeButtons()
    {
        Coded coded;
        MessageBoxRobot robot({QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Cancel});
        coded.model.setData(coded.model.index(0, 0), "YEARS");
        QCOMPARE(robot.texts(), QStringList("Variable identified as RefCode.\nKeep it as RefCode?"));
        QMessageBox::question(
            nullptr, "RefCode Variable", "", QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        MessageBoxRobot::Box usual = robot.boxes().last();
        usual.textFormat = Qt::PlainText;
        QCOMPARE(formOf(robot.boxes().first()), formOf(usual));
        QVERIFY(formOf(usual).startsWith("Question, RefCode Variable, Yes No Cancel, "));
        QVERIFY(formOf(usual).endsWith(", plain, modal"));

        const ContextTranslator translator;
        coded.model.setData(coded.model.index(0, 0), "YEARS");
        QCOMPARE(robot.texts().last(),
            QString("VariableDiccionaryModel: Variable identified as RefCode.\nKeep it as RefCode?"));
        QCOMPARE(robot.boxes().last().title, QString("VariableDiccionaryModel: RefCode Variable"));
    }

    void theQuestionComesWhenTheNameTrimmedIsTheCodeToTheLetter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("asked");
        QTest::newRow("the same") << "AGE"
                                  << "AGE" << true;
        QTest::newRow("a name with blanks") << " \tAGE\n"
                                            << "AGE" << true;
        QTest::newRow("a code with blanks is no name's") << "AGE"
                                                         << "AGE " << false;
        QTest::newRow("code and name with the same blanks") << "AGE "
                                                            << "AGE " << false;
        QTest::newRow("another letter case") << "age"
                                             << "AGE" << false;
        QTest::newRow("no code") << "AGE"
                                 << "" << false;
        QTest::newRow("neither code nor name") << ""
                                               << "" << true;
        QTest::newRow("no code and a name of blanks") << "  "
                                                      << "" << true;
        QTest::newRow("the code of another variable") << "SEX"
                                                      << "AGE" << false;
        QTest::newRow("a code that is a pattern") << "AGE"
                                                  << "A.E" << false;
    }
    void theQuestionComesWhenTheNameTrimmedIsTheCodeToTheLetter()
    {
        QFETCH(QString, name);
        QFETCH(QString, code);
        QFETCH(bool, asked);
        VariableTable table = VariableTable::holding({namedVariable(name)});
        table.house->setRefCode(code);
        table.root->setRefCode(name);
        QCOMPARE(table.edit(0, 0, "YEARS",
                     asked ? VariableTable::Answers{QMessageBox::Yes} : VariableTable::Answers{}),
            asked ? kAsked : kAccepted);
        QCOMPARE(table.variable(0)->getName(), QString("YEARS"));
        QCOMPARE(table.house->getRefCode(), asked ? QString("YEARS") : code);
    }

    void aRefusedNameIsNotAskedAbout()
    {
        Coded coded;
        QCOMPARE(
            coded.edit(0, 0, "FARM"), QString("Error: The typed character string already exists; refused"));
        QCOMPARE(coded.edit(0, 0, "TWIN"),
            QString("Error: The typed character string already exists as the alias of a variable; refused"));
        QCOMPARE(coded.edit(0, 0, "\""), QString("Information: Invalid string; refused"));
        QCOMPARE(coded.edit(0, 0, " AGE "), QString("refused"));
    }

    void otherCellsAreNotAskedAbout()
    {
        Coded coded;
        for (const int column : {1, 2, 3, 4, 5})
            QCOMPARE(coded.edit(0, column, QString::number(column)), kAccepted);
        QCOMPARE(coded.edit(1, 0, "GENDER"), kAccepted);
        QCOMPARE(coded.house->getRefCode(), QString("AGE"));
        QCOMPARE(coded.selectable(), kAll);
    }

    void aCodeKeptWithBlanksIsNotRecognizedLater()
    {
        Coded coded;
        QCOMPARE(coded.edit(0, 0, "YEARS ", {QMessageBox::Yes}), kAsked);
        QCOMPARE(coded.edit(0, 0, "LATER", {}), kAccepted);
        QCOMPARE(coded.house->getRefCode(), QString("YEARS "));
    }

    void aCodeThatWasGivenUpIsAskedAboutOnce()
    {
        Coded coded;
        QCOMPARE(coded.edit(0, 0, "YEARS", {QMessageBox::No}), kAsked);
        QCOMPARE(coded.edit(0, 0, "LATER", {}), kAccepted);
    }

    void anotherVariableMayBeGivenTheNameThatIsTheCode()
    {
        // The name AGE counts as the variable's own; afterwards two variables are the code.
        Coded coded;
        QCOMPARE(coded.edit(1, 0, "AGE", {}), kAccepted);
        QCOMPARE(coded.edit(1, 0, "GENDER", {QMessageBox::Yes}), kAsked);
        QCOMPARE(coded.house->getRefCode(), QString("GENDER"));
    }

    void noTakesTheMarkFromEverythingBelowEvenUnderUnmarkedEntities()
    {
        Coded coded;
        coded.entity("ROOM")->setSelectable(false);
        coded.house->setSelectable(false);
        coded.house->getChildren()->prepend(nullptr);
        QCOMPARE(coded.selectable(), QString("LAND BED BATH FARM"));
        QCOMPARE(coded.edit(0, 0, "YEARS", {QMessageBox::No}), kAsked);
        QCOMPARE(coded.selectable(), QString("LAND FARM"));
    }

    void nothingChangesBeforeTheAnswer()
    {
        // Looks at the dictionary while the question is there.
        class Watcher : public QObject {
        public:
            explicit Watcher(const Coded &watched)
                : coded(watched)
            {
                qApp->installEventFilter(this);
            }
            bool eventFilter(QObject *watched, QEvent *event) override
            {
                if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(watched))
                    states += coded.state();
                return false;
            }
            const Coded &coded;
            QStringList states;
        };
        Coded coded;
        const QString before = coded.state();
        const Watcher watcher(coded);
        QCOMPARE(coded.edit(0, 0, "YEARS", {QMessageBox::No}), kAsked);
        QCOMPARE(watcher.states, QStringList(before));
    }

    void noReachesTheEndOfADeepChain()
    {
        constexpr int depth = 250'000;
        Coded coded;
        TDmEntity *last = coded.entity("BED");
        for (int level = 0; level < depth; ++level) {
            auto *below = new TDmEntity;
            below->setSelectable(true);
            last->getChildren()->append(below);
            last = below;
        }
        {
            const SmallMainStack stack;
            QVERIFY(stack.isSmall);
            QCOMPARE(coded.edit(0, 0, "YEARS", {QMessageBox::No}), kAsked);
        }
        int marked = 0;
        int count = 0;
        for (const TDmEntity *at = coded.entity("BED"); !at->getChildren()->isEmpty(); ++count) {
            at = at->getChildren()->first();
            marked += int(at->getSelectable());
        }
        QCOMPARE(count, depth);
        QCOMPARE(marked, 0);
    }
};

QTEST_MAIN(tst_VariableCode)
#include "tst_VariableCode.moc"
