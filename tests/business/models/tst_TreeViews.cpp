#include "business/models/DictionaryTreeModel.h"
#include "business/models/EntityModel.h"
#include "business/models/SelectionBuilderTreeModel.h"
#include "business/models/dictionaryTreeModelDownload.h"

#include "tests/business/models/TreeText.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MessageBoxRobot.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace tessel::test;

namespace {

constexpr int kNodes = 1 + 6 + 6 * 6 + 6 * 6 * 8;

/// 331 nodes: N, N_0 ... N_5, N_0_0 ... N_5_5, N_0_0_0 ... N_5_5_7.
QByteArray treeText(const QByteArray &name = "N", int level = 1)
{
    if (level == 4)
        return name;
    QByteArrayList children;
    for (int i = 0; i < (level == 3 ? 8 : 6); ++i)
        children += treeText(name + '_' + QByteArray::number(i), level + 1);
    return name + '(' + children.join(' ') + ')';
}

/// The names in the order of the rows when all is expanded.
QStringList namesInOrder()
{
    return QString::fromLatin1(treeText()).split(QRegularExpression("[() ]+"), Qt::SkipEmptyParts);
}

void giveCodes(SelectionTreeUnit *unit)
{
    unit->setCode(unit->getName());
    for (SelectionTreeUnit *child : qAsConst(*unit->getChildren()))
        giveCodes(child);
}

/// One of the four models over such a tree, shown in a plain view.
class Shown {
public:
    explicit Shown(const QByteArray &kind)
        : entities(treeFrom<TDmEntity>(treeText().constData()))
        , units(treeFrom<SelectionTreeUnit>(treeText().constData()))
    {
        giveCodes(units.get());
        find(entities.get(), "N_0")->setCheckDelete(true);
        find(entities.get(), "N_1")->setSelectable(true);
        find(units.get(), "N_0")->setUnitState(1);
        if (kind == "dictionary")
            model = std::make_unique<DictionaryTreeModel>(nullptr, entities.get());
        else if (kind == "download")
            model = std::make_unique<dictionaryTreeModelDownload>(nullptr, entities.get());
        else if (kind == "entity")
            model = std::make_unique<EntityModel>(nullptr, entities.get());
        else
            model = std::make_unique<SelectionBuilderTreeModel>(nullptr, units.get(), true, false);
        view.setModel(model.get());
        view.resize(300, 400);
        view.show();
        view.setCurrentIndex(model->index(0, 0));
    }

    /// Waits until keys arrive.
    bool isReady()
    {
        view.activateWindow();
        view.setFocus();
        return QTest::qWaitForWindowActive(&view);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, key, modifiers);
    }

    QString current() const { return nameAt(view.currentIndex()); }
    QString nameAt(const QModelIndex &index) const { return index.data().toString().trimmed(); }

    QLineEdit *editor() const { return view.findChild<QLineEdit *>(); }

    /// What was written to the log, apart from what the platform of the tests says of itself.
    QStringList warnings() const
    {
        QStringList lines = log.messages();
        lines.removeAll("warning default: This plugin does not support propagateSizeHints()");
        return lines;
    }

    LogCatcher log;
    std::unique_ptr<TDmEntity> entities;
    std::unique_ptr<SelectionTreeUnit> units;
    std::unique_ptr<QAbstractItemModel> model;
    QTreeView view;

private:
    Q_DISABLE_COPY_MOVE(Shown)
};

void addKinds()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"dictionary", "download", "entity", "selection"})
        QTest::newRow(kind) << QByteArray(kind);
}

} // namespace

class tst_TreeViews : public QObject {
    Q_OBJECT

private slots:
    void theDownKeyReachesEveryRowInOrderAndTheUpKeyGoesBack_data() { addKinds(); }
    void theDownKeyReachesEveryRowInOrderAndTheUpKeyGoesBack()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        shown.view.expandAll();
        QStringList down;
        for (int i = 0; i < kNodes; ++i) {
            down += shown.current();
            shown.press(Qt::Key_Down);
        }
        QCOMPARE(down, namesInOrder());
        QCOMPARE(shown.current(), QString("N_5_5_7"));
        QStringList up;
        for (int i = 0; i < kNodes; ++i) {
            up.prepend(shown.current());
            shown.press(Qt::Key_Up);
        }
        QCOMPARE(up, namesInOrder());
        QCOMPARE(shown.warnings(), QStringList());
    }

    void theRightKeyOpensWhatIsClosed_data() { addKinds(); }
    void theRightKeyOpensWhatIsClosed()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        for (const char *next : {"N_0", "N_0_0", "N_0_0_0"}) {
            const QModelIndex index = shown.view.currentIndex();
            QVERIFY(!shown.view.isExpanded(index));
            shown.press(Qt::Key_Right);
            QVERIFY(shown.view.isExpanded(index));
            QCOMPARE(shown.view.currentIndex(), index);
            shown.press(Qt::Key_Down);
            QCOMPARE(shown.current(), QString::fromLatin1(next));
        }
        shown.press(Qt::Key_Right);
        QCOMPARE(shown.current(), QString("N_0_0_0"));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void pageEndAndHomeKeysFindTheirWay_data() { addKinds(); }
    void pageEndAndHomeKeysFindTheirWay()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        shown.view.expandAll();
        shown.press(Qt::Key_End);
        QCOMPARE(shown.current(), QString("N_5_5_7"));
        shown.press(Qt::Key_Home);
        QCOMPARE(shown.current(), QString("N"));

        const QStringList names = namesInOrder();
        int row = 0;
        while (row < kNodes - 1) {
            shown.press(Qt::Key_PageDown);
            const int next = names.indexOf(shown.current());
            QVERIFY(next > row);
            row = next;
        }
        while (row > 0) {
            shown.press(Qt::Key_PageUp);
            const int next = names.indexOf(shown.current());
            QVERIFY(next >= 0 && next < row);
            row = next;
        }
        QCOMPARE(shown.warnings(), QStringList());
    }

    void everyRowCanBeSelected_data() { addKinds(); }
    void everyRowCanBeSelected()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        shown.view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        shown.view.expandAll();
        shown.press(Qt::Key_A, Qt::ControlModifier);
        QStringList selected;
        for (const QModelIndex &index : shown.view.selectionModel()->selectedIndexes())
            selected += shown.nameAt(index);
        selected.sort();
        QStringList expected = namesInOrder();
        expected.sort();
        QCOMPARE(selected, expected);

        shown.press(Qt::Key_Home);
        for (int i = 0; i < 3; ++i)
            shown.press(Qt::Key_Down, Qt::ShiftModifier);
        selected.clear();
        for (const QModelIndex &index : shown.view.selectionModel()->selectedIndexes())
            selected += shown.nameAt(index);
        selected.sort();
        QCOMPARE(selected, QStringList({"N", "N_0", "N_0_0", "N_0_0_0"}));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void typedLettersFindARow_data() { addKinds(); }
    void typedLettersFindARow()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        shown.view.expandAll();
        shown.view.keyboardSearch("N_3_2_7");
        QCOMPARE(shown.current(), QString("N_3_2_7"));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aClickFindsItsRow_data() { addKinds(); }
    void aClickFindsItsRow()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        shown.view.expandAll();
        const QModelIndex wanted = shown.model->index(
            4, 0, shown.model->index(2, 0, shown.model->index(3, 0, shown.model->index(0, 0))));
        QCOMPARE(shown.nameAt(wanted), QString("N_3_2_4"));
        shown.view.scrollTo(wanted);
        QTest::mouseClick(
            shown.view.viewport(), Qt::LeftButton, Qt::NoModifier, shown.view.visualRect(wanted).center());
        QCOMPARE(shown.view.currentIndex(), wanted);
        QVERIFY(shown.view.selectionModel()->isSelected(wanted));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void theLeftKeyMayMissItsRowAndHarmsNothing_data() { addKinds(); }
    void theLeftKeyMayMissItsRowAndHarmsNothing()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        shown.view.expandAll();
        for (int i = 0; i < 40; ++i) {
            shown.press(i % 3 == 2 ? Qt::Key_Left : Qt::Key_Down);
            QVERIFY(shown.view.currentIndex().isValid());
        }
        shown.view.expandAll();
        shown.press(Qt::Key_End);
        shown.press(Qt::Key_Home);
        QCOMPARE(shown.current(), QString("N"));
        QVERIFY(!shown.view.grab().isNull());
        QCOMPARE(drawn<TDmEntity>(EntityModel(nullptr, shown.entities.get())), QString(treeText()));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aTypedNameIsAccepted()
    {
        Shown shown("dictionary");
        shown.view.expandAll();
        QVERIFY(shown.isReady());
        for (int i = 0; i < 3; ++i)
            shown.press(Qt::Key_Down);
        MessageBoxRobot robot;
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        shown.press(Qt::Key_F2);
        QVERIFY(shown.editor());
        QCOMPARE(shown.editor()->text(), QString("N_0_0_0"));
        QTest::keyClicks(shown.editor(), " PERSON ");
        QTest::keyClick(shown.editor(), Qt::Key_Return);
        QTRY_VERIFY(!shown.editor());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(shown.current(), QString("PERSON"));
        QVERIFY(find(shown.entities.get(), "PERSON"));
        QVERIFY(!find(shown.entities.get(), "N_0_0_0"));
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(shown.warnings(), QStringList());
    }

    void aTypedNameThatIsRefusedLeavesTheOldOne_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("a name in use") << "N_5_5_7" << QStringList("Entity name already exists");
        QTest::newRow("too long") << QString(51, 'x') << QStringList("Chain with length greater than 50");
        QTest::newRow("empty") << " " << QStringList();
        QTest::newRow("no name") << "1" << QStringList();
    }
    void aTypedNameThatIsRefusedLeavesTheOldOne()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, texts);
        Shown shown("dictionary");
        QVERIFY(shown.isReady());
        MessageBoxRobot robot({QMessageBox::Ok});
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        shown.press(Qt::Key_F2);
        QVERIFY(shown.editor());
        QTest::keyClicks(shown.editor(), typed);
        QTest::keyClick(shown.editor(), Qt::Key_Return);
        QTRY_VERIFY(!shown.editor());
        QCOMPARE(robot.texts(), texts);
        QCOMPARE(robot.unplanned(), 0);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(shown.current(), QString("N"));
        QCOMPARE(shown.entities->getName(), QString("N"));
        // The view still answers.
        shown.press(Qt::Key_Right);
        shown.press(Qt::Key_Down);
        QCOMPARE(shown.current(), QString("N_0"));
        QCOMPARE(shown.warnings(), QStringList());
    }

    void theEscapeKeyGivesUpTheEdit()
    {
        Shown shown("dictionary");
        QVERIFY(shown.isReady());
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        shown.press(Qt::Key_F2);
        QVERIFY(shown.editor());
        QTest::keyClicks(shown.editor(), "PERSON");
        QTest::keyClick(shown.editor(), Qt::Key_Escape);
        QTRY_VERIFY(!shown.editor());
        QCOMPARE(shown.entities->getName(), QString("N"));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(shown.warnings(), QStringList());
    }

    void theOtherTreesOpenNoEditorAndNoMarkCanBeChanged_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char *kind : {"download", "entity", "selection"})
            QTest::newRow(kind) << QByteArray(kind);
    }
    void theOtherTreesOpenNoEditorAndNoMarkCanBeChanged()
    {
        QFETCH(QByteArray, kind);
        Shown shown(kind);
        QVERIFY(shown.isReady());
        shown.view.setEditTriggers(QAbstractItemView::AllEditTriggers);
        QSignalSpy changed(shown.model.get(), &QAbstractItemModel::dataChanged);
        shown.press(Qt::Key_F2);
        shown.press(Qt::Key_Space);
        shown.press(Qt::Key_X);
        const QRect row = shown.view.visualRect(shown.model->index(0, 0));
        for (int x = row.left() + 2; x < row.right(); x += 4)
            QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::NoModifier, {x, row.center().y()});
        QVERIFY(!shown.editor());
        QCOMPARE(changed.count(), 0);
        QCOMPARE(shown.entities->getSelectable(), false);
        QCOMPARE(shown.units->getUnitState(), 0);
        QCOMPARE(shown.current(), QString("N"));
        QCOMPARE(shown.warnings(), QStringList());
    }
};

QTEST_MAIN(tst_TreeViews)
#include "tst_TreeViews.moc"
