#include "editor/views/EntityPane.h"

#include "editor/DictionaryDocument.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/editor/EditorFixtures.h"
#include "tests/support/MessageBoxRobot.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// The small dictionary in a tree that has the focus.
struct Tree {
    Tree()
    {
        pane.resize(300, 400);
        bringUp(pane);
        load(document);
        pane.setFocus();
    }

    QTreeView &view() { return *pane.view(); }
    void choose(const QString &name) { pane.select(&entityIn(document, name)); }
    QString chosen() const { return pane.currentEntity() ? pane.currentEntity()->getName() : QString(); }
    void press(Qt::Key key) { QTest::keyClick(&view(), key); }
    int steps() { return document.undoStack()->count(); }

    DictionaryDocument document;
    EntityPane pane{document};
};

/// How often a widget was painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

const QStringList kAll = {"DICTIONARY", ".HOUSE", "..PERSON", ".PLOT"};

} // namespace

class tst_EntityPane : public QObject {
    Q_OBJECT

private slots:
    void allIsOpenAndTheFirstEntityChosen()
    {
        Tree tree;
        QCOMPARE(treeOf(tree.view()), kAll);
        QCOMPARE(tree.chosen(), QString("HOUSE"));
        tree.document.clear();
        QCOMPARE(treeOf(tree.view()), QStringList("DICTIONARY"));
        QCOMPARE(tree.chosen(), QString("DICTIONARY"));
    }

    void keysWalkTheTree_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QStringList>("shown");
        const QList<int> left = {Qt::Key_Left};
        QTest::newRow("left from a leaf goes to its parent") << "PERSON" << left << "HOUSE" << kAll;
        QTest::newRow("left closes") << "HOUSE" << left << "HOUSE"
                                     << QStringList({"DICTIONARY", ".HOUSE+", "..PERSON", ".PLOT"});
        QTest::newRow("left twice closes and goes up")
            << "HOUSE" << left + left << "DICTIONARY"
            << QStringList({"DICTIONARY", ".HOUSE+", "..PERSON", ".PLOT"});
        QTest::newRow("left from the last top entity") << "PLOT" << left << "DICTIONARY" << kAll;
        QTest::newRow("right opens") << "HOUSE" << QList<int>({Qt::Key_Left, Qt::Key_Right}) << "HOUSE"
                                     << kAll;
        QTest::newRow("right goes to the first child")
            << "HOUSE" << QList<int>({Qt::Key_Right}) << "PERSON" << kAll;
        QTest::newRow("down") << "PERSON" << QList<int>({Qt::Key_Down}) << "PLOT" << kAll;
        QTest::newRow("up") << "PLOT" << QList<int>({Qt::Key_Up}) << "PERSON" << kAll;
    }
    void keysWalkTheTree()
    {
        QFETCH(QString, from);
        QFETCH(QList<int>, keys);
        Tree tree;
        tree.choose(from);
        for (const int key : keys)
            tree.press(Qt::Key(key));
        QTEST(tree.chosen(), "chosen");
        QTEST(treeOf(tree.view()), "shown");
    }

    void anEntityIsRenamedInPlace()
    {
        Tree tree;
        tree.choose("PERSON");
        tree.press(Qt::Key_F2);
        type(tree.view(), "RESIDENT");
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".HOUSE", "..RESIDENT", ".PLOT"}));
        QCOMPARE(tree.chosen(), QString("RESIDENT"));
        QCOMPARE(tree.document.undoStack()->undoText(), QString("rename PERSON"));
        tree.document.undoStack()->undo();
        QCOMPARE(treeOf(tree.view()), kAll);
        tree.document.undoStack()->redo();
        QCOMPARE(tree.chosen(), QString("RESIDENT"));
    }

    void aDoubleClickOpensTheNameAndClosesNothing()
    {
        Tree tree;
        const QPoint place = tree.view().visualRect(tree.view().currentIndex()).center();
        QTest::mouseClick(tree.view().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(tree.view().viewport(), Qt::LeftButton, {}, place);
        QVERIFY(isTyping(tree.view()));
        QCOMPARE(treeOf(tree.view()), kAll);
    }

    void theDictionarysRulesHold_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("boxes");
        QTest::newRow("empty") << "" << QStringList();
        QTest::newRow("no name") << "1A" << QStringList();
        QTest::newRow("the same") << "PERSON" << QStringList();
        QTest::newRow("in use") << "PLOT" << QStringList("Entity name already exists");
        QTest::newRow("a group") << "DEMO" << QStringList("Entity name already exists as a group name");
        QTest::newRow("too long") << QString(51, 'A') << QStringList("Chain with length greater than 50");
    }
    void theDictionarysRulesHold()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, boxes);
        Tree tree;
        tree.choose("PERSON");
        tree.press(Qt::Key_F2);
        MessageBoxRobot robot({QMessageBox::Ok});
        type(tree.view(), typed);
        QCOMPARE(robot.texts(), boxes);
        QCOMPARE(treeOf(tree.view()), kAll);
        QCOMPARE(tree.steps(), 0);
        QVERIFY(!tree.document.isModified());
    }

    void anEntityIsAddedBelowTheChosenOneAndTyped()
    {
        Tree tree;
        tree.choose("PERSON");
        tree.pane.addRow();
        QCOMPARE(
            treeOf(tree.view()), QStringList({"DICTIONARY", ".HOUSE", "..PERSON", "...ENTITY_1", ".PLOT"}));
        QVERIFY(isTyping(tree.view()));
        type(tree.view(), "EVENT");
        QCOMPARE(tree.chosen(), QString("EVENT"));
        QCOMPARE(tree.pane.currentEntity()->getLevel(), 4);
        QCOMPARE(tree.steps(), 2);
        tree.document.undoStack()->undo();
        QCOMPARE(tree.chosen(), QString("ENTITY_1"));
        tree.document.undoStack()->undo();
        QCOMPARE(treeOf(tree.view()), kAll);
    }

    void escapeKeepsTheNameThatWasGiven()
    {
        Tree tree;
        tree.choose("PLOT");
        tree.pane.addRow();
        type(tree.view(), "EVENT", Qt::Key_Escape);
        QCOMPARE(tree.chosen(), QString("ENTITY_1"));
        QCOMPARE(tree.steps(), 1);
    }

    void anEntityWithNothingInItIsDeletedWithoutAQuestion()
    {
        Tree tree;
        MessageBoxRobot robot;
        tree.choose("PLOT");
        tree.pane.removeSelected();
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".HOUSE", "..PERSON"}));
        QCOMPARE(tree.chosen(), QString("DICTIONARY"));
        QCOMPARE(tree.document.undoStack()->undoText(), QString("delete PLOT"));
        tree.document.undoStack()->undo();
        QCOMPARE(treeOf(tree.view()), kAll);
        // The choice goes to the parent.
        tree.choose("PERSON");
        tree.pane.addRow();
        tree.pane.removeSelected();
        QCOMPARE(tree.chosen(), QString("PERSON"));
        QVERIFY(robot.boxes().isEmpty());
    }

    void workIsDeletedOnlyAfterAYes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("isDeleted");
        QTest::newRow("yes") << "PERSON" << int(QMessageBox::Yes) << true;
        QTest::newRow("no") << "PERSON" << int(QMessageBox::No) << false;
        QTest::newRow("Return is no") << "PERSON" << int(MessageBoxRobot::PressReturn) << false;
        QTest::newRow("Escape is no") << "PERSON" << int(MessageBoxRobot::PressEscape) << false;
        QTest::newRow("closing is no") << "PERSON" << int(MessageBoxRobot::CloseWindow) << false;
        QTest::newRow("entities below count") << "HOUSE" << int(QMessageBox::Yes) << true;
    }
    void workIsDeletedOnlyAfterAYes()
    {
        QFETCH(QString, name);
        QFETCH(int, answer);
        QFETCH(bool, isDeleted);
        Tree tree;
        // HOUSE without variables of its own still holds PERSON.
        const QByteArray before = textOf(tree.document);
        tree.choose(name);
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        tree.pane.removeSelected();
        QCOMPARE(
            robot.texts(), QStringList(name + " goes with its variables and all entities below it. Delete?"));
        QCOMPARE(robot.boxes().first().title, QString("Delete entity"));
        QCOMPARE(robot.boxes().first().defaultButton, QMessageBox::No);
        QCOMPARE(robot.boxes().first().parent, &tree.pane);
        QCOMPARE(treeOf(tree.view()).join(' ').contains(name), !isDeleted);
        QCOMPARE(tree.steps(), int(isDeleted));
        tree.document.undoStack()->undo();
        QCOMPARE(textOf(tree.document), before);
    }

    void anEntityThatOnlyHoldsEntitiesIsAskedForToo()
    {
        Tree tree;
        tree.choose("PLOT");
        tree.pane.addRow();
        type(tree.view(), "TREE");
        tree.choose("PLOT");
        MessageBoxRobot robot({QMessageBox::No});
        tree.pane.removeSelected();
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(tree.steps(), 2);
    }

    void theDictionaryItselfStays()
    {
        Tree tree;
        MessageBoxRobot robot;
        tree.choose("DICTIONARY");
        tree.pane.removeSelected();
        tree.pane.moveSelected(1);
        QCOMPARE(treeOf(tree.view()), kAll);
        QCOMPARE(tree.steps(), 0);
        QVERIFY(robot.boxes().isEmpty());
    }

    void entitiesMoveAmongTheirSiblings()
    {
        Tree tree;
        tree.choose("PLOT");
        tree.pane.moveSelected(-1);
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".PLOT", ".HOUSE", "..PERSON"}));
        QCOMPARE(tree.chosen(), QString("PLOT"));
        QCOMPARE(tree.document.undoStack()->undoText(), QString("move PLOT"));
        tree.pane.moveSelected(-1);
        QCOMPARE(tree.steps(), 1);
        tree.document.undoStack()->undo();
        QCOMPARE(treeOf(tree.view()), kAll);
        QCOMPARE(tree.chosen(), QString("PLOT"));
    }

    void whatIsClosedStaysClosed()
    {
        Tree tree;
        tree.press(Qt::Key_Left);
        const QStringList closed = {"DICTIONARY", ".HOUSE+", "..PERSON", ".PLOT"};
        QCOMPARE(treeOf(tree.view()), closed);
        tree.choose("PLOT");
        tree.pane.moveSelected(-1);
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".PLOT", ".HOUSE+", "..PERSON"}));
        tree.document.undoStack()->undo();
        QCOMPARE(treeOf(tree.view()), closed);
        QCOMPARE(tree.chosen(), QString("PLOT"));
    }

    void theChoiceIsTold()
    {
        Tree tree;
        QSignalSpy told(&tree.pane, &EntityPane::currentEntityChanged);
        tree.choose("PLOT");
        QCOMPARE(told.count(), 1);
        tree.choose("PLOT");
        QCOMPARE(told.count(), 1);
        tree.pane.removeSelected();
        QVERIFY(told.count() > 1);
    }

    void labelsAreShownAndNamesAreTyped()
    {
        Tree tree;
        tree.pane.showLabels(true);
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".House", "..PERSON", ".PLOT"}));
        tree.choose("HOUSE");
        tree.press(Qt::Key_F2);
        QCOMPARE(tree.view().viewport()->findChild<QLineEdit *>()->text(), QString("HOUSE"));
        type(tree.view(), "HOME");
        QCOMPARE(tree.document.undoStack()->undoText(), QString("rename HOUSE"));
        QCOMPARE(entityIn(tree.document, "HOME").getLabel(), QString("House"));
        // A tree that is made anew shows what it showed.
        tree.choose("PLOT");
        tree.pane.moveSelected(-1);
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".PLOT", ".House", "..PERSON"}));
        tree.pane.showLabels(false);
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".PLOT", ".HOME", "..PERSON"}));
        QCOMPARE(tree.chosen(), QString("PLOT"));
    }

    void labelsArePaintedAtOnce()
    {
        Tree tree;
        PaintCounter paints(*tree.view().viewport());
        QSignalSpy told(&tree.pane, &EntityPane::currentEntityChanged);
        for (const bool on : {true, false}) {
            // What is to be painted anyway comes first.
            QCoreApplication::processEvents();
            paints.count = 0;
            tree.pane.showLabels(on);
            QTRY_COMPARE(paints.count, 1);
        }
        QCOMPARE(told.count(), 0);
    }

    void anotherEntitysRenamingIsSeen()
    {
        Tree tree;
        entityIn(tree.document, "PLOT").setName("FIELD");
        Touched touched;
        touched.entities.insert(&entityIn(tree.document, "FIELD"));
        tree.document.announce(touched);
        QCOMPARE(treeOf(tree.view()), QStringList({"DICTIONARY", ".HOUSE", "..PERSON", ".FIELD"}));
        QCOMPARE(tree.chosen(), QString("HOUSE"));
    }
};

QTEST_MAIN(tst_EntityPane)
#include "tst_EntityPane.moc"
