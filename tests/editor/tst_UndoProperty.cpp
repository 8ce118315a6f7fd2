#include "tests/editor/DeepText.h"
#include "tests/editor/RandomEdits.h"
#include "tests/editor/SmallCensus.h"
#include "tests/support/LogCatcher.h"

#include <QtTest>

#include <memory>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

constexpr int kSteps = 200;

/// What a document announced as changed, held against what has changed.
class Witness : public QObject {
public:
    explicit Witness(DictionaryDocument &watched)
        : document(watched)
        , lines(deepLines(watched.root()))
    {
        connect(&document, &DictionaryDocument::changed, this, [this](const Touched &touched) {
            ++announcements;
            objects.clear();
            for (const TDmEntity *entity : touched.entities)
                objects.insert(entity);
            for (const TDmVariable *variable : touched.variables)
                objects.insert(variable);
        });
    }

    /// Empty when one announcement has named just those objects that are not as they were at the last call,
    /// of those that are still there. Without a change there must be none.
    QString fault()
    {
        const QHash<const void *, QString> now = deepLines(document.root());
        QSet<const void *> different;
        for (auto i = now.cbegin(); i != now.cend(); ++i) {
            if (lines.contains(i.key()) && lines.value(i.key()) != i.value())
                different.insert(i.key());
        }
        QSet<const void *> told;
        for (const void *object : qAsConst(objects)) {
            if (now.contains(object) && lines.contains(object))
                told.insert(object);
        }
        const int expected = different.isEmpty() ? 0 : 1;
        const QString fault = announcements == expected && told == different
            ? QString()
            : QStringLiteral("%1 announcements of %2 objects, %3 have changed")
                  .arg(announcements)
                  .arg(told.size())
                  .arg(different.size());
        lines = now;
        objects.clear();
        announcements = 0;
        return fault;
    }

private:
    DictionaryDocument &document;
    QHash<const void *, QString> lines;
    QSet<const void *> objects;
    int announcements = 0;
};

} // namespace

/// Whatever is done can be undone and redone, to the last mark, and nothing is lost or freed twice.
class tst_UndoProperty : public QObject {
    Q_OBJECT

private slots:
    void init() { catcher = std::make_unique<LogCatcher>(); }
    void cleanup() { catcher.reset(); }

    void allThatIsDoneIsUndoneAndRedone_data() { seeds(); }

    void allThatIsDoneIsUndoneAndRedone()
    {
        QFETCH(unsigned, seed);
        SmallCensus census;
        QUndoStack &stack = *census.document.undoStack();
        RandomEdits edits(census.document, seed);
        Witness witness(census.document);
        QStringList states{deepTree(census.document.root())};
        edit(census.document, edits, witness, states);
        QVERIFY(stack.count() > kSteps / 2);

        for (int index = stack.count(); index > 0; --index) {
            stack.undo();
            QCOMPARE(deepTree(census.document.root()), states.at(index - 1));
            QCOMPARE(witness.fault(), QString());
        }
        QVERIFY(!census.document.isModified());
        for (int index = 1; index <= stack.count(); ++index) {
            stack.redo();
            QCOMPARE(deepTree(census.document.root()), states.at(index));
            QCOMPARE(witness.fault(), QString());
        }
    }

    void editingGoesOnInTheMiddle_data() { seeds(); }

    void editingGoesOnInTheMiddle()
    {
        QFETCH(unsigned, seed);
        SmallCensus census;
        QUndoStack &stack = *census.document.undoStack();
        RandomEdits edits(census.document, seed + 1000);
        Witness witness(census.document);
        QStringList states{deepTree(census.document.root())};
        for (int round = 0; round < 3; ++round) {
            edit(census.document, edits, witness, states);
            const int half = stack.count() / 2;
            while (stack.index() > half)
                stack.undo();
            QCOMPARE(deepTree(census.document.root()), states.at(half));
            witness.fault();
            // What was undone is gone with the next edit.
            states = states.mid(0, half + 1);
        }
        edit(census.document, edits, witness, states);
        stack.setIndex(0);
        QCOMPARE(deepTree(census.document.root()), states.first());
        stack.setIndex(stack.count());
        QCOMPARE(deepTree(census.document.root()), states.last());
    }

    void anyWayThroughTheStepsIsTheSame_data() { seeds(); }

    void anyWayThroughTheStepsIsTheSame()
    {
        QFETCH(unsigned, seed);
        SmallCensus census;
        QUndoStack &stack = *census.document.undoStack();
        RandomEdits edits(census.document, seed + 2000);
        Witness witness(census.document);
        QStringList states{deepTree(census.document.root())};
        edit(census.document, edits, witness, states);
        std::mt19937 numbers(seed);
        for (int i = 0; i < 40; ++i) {
            const int index = int(numbers() % unsigned(stack.count() + 1));
            stack.setIndex(index);
            QCOMPARE(deepTree(census.document.root()), states.at(index));
        }
        // Left somewhere in the middle: what hangs nowhere then is freed with the document.
    }

    void whatWasTakenOutIsFreedWhenAnotherTreeComes()
    {
        SmallCensus census;
        RandomEdits edits(census.document, 4);
        for (int i = 0; i < kSteps; ++i)
            edits.step();
        census.document.undoStack()->setIndex(census.document.undoStack()->count() / 3);
        census.document.clear();
        QCOMPARE(census.document.undoStack()->count(), 0);
        QVERIFY(census.document.root().getChildren()->isEmpty());
        edits.step();
    }

    void allOperationsAreChosen()
    {
        QSet<QString> chosen;
        for (unsigned seed = 1; seed <= 3; ++seed) {
            SmallCensus census;
            RandomEdits edits(census.document, seed);
            for (int i = 0; i < kSteps; ++i)
                edits.step();
            const QList<QString> names = edits.counts().keys();
            chosen += QSet<QString>(names.cbegin(), names.cend());
        }
        QCOMPARE(chosen.size(), 22);
    }

private:
    static void seeds()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {1U, 7U, 42U, 2023U, 31337U})
            QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
    }

    /// Makes many steps and appends the state after each that is on the stack; one that is not changes
    /// nothing.
    static void edit(DictionaryDocument &document, RandomEdits &edits, Witness &witness, QStringList &states)
    {
        QUndoStack &stack = *document.undoStack();
        for (int i = 0; i < kSteps; ++i) {
            const int before = stack.index();
            const QString name = edits.step();
            const QString state = deepTree(document.root());
            const QString fault = witness.fault();
            QVERIFY2(fault.isEmpty(), qPrintable(name + QStringLiteral(": ") + fault));
            if (stack.index() == before) {
                QVERIFY2(state == states.last(), qPrintable(name + QStringLiteral(" is not on the stack")));
                continue;
            }
            QCOMPARE(stack.index(), before + 1);
            QVERIFY2(state != states.last(), qPrintable(name + QStringLiteral(" changed nothing")));
            states.append(state);
        }
    }

    std::unique_ptr<LogCatcher> catcher;
};

QTEST_MAIN(tst_UndoProperty)
#include "tst_UndoProperty.moc"
