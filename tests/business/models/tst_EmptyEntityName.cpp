#include "business/models/DictionaryTreeModel.h"

#include "tests/business/models/TreeText.h"
#include "tests/support/MessageBoxRobot.h"
#include "util/Validate.h"

#include <QSignalSpy>
#include <QtTest>

using namespace tessel::test;

namespace {

QStringList asked;
QString refused;

} // namespace

// Stands in for the library's own rule. What is empty is no name either, so that with the real rules nobody
// could tell which of the two refuses.
bool Validate::validateEmpty(QString text)
{
    asked += text;
    return text != refused;
}

class tst_EmptyEntityName : public QObject {
    Q_OBJECT

private slots:
    void whatTheEmptyRuleRefusesIsRefusedInSilenceBeforeAllElse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a name") << "FIELD";
        // The rule of names, which refuses this one in silence too, comes after.
        QTest::newRow("no name") << "1A";
        QTest::newRow("a name in use") << "HOUSE";
        QTest::newRow("an alias") << "DWELLING";
        QTest::newRow("no text") << "\tFIELD";
        QTest::newRow("too long") << QString(51, 'x');
    }
    void whatTheEmptyRuleRefusesIsRefusedInSilenceBeforeAllElse()
    {
        QFETCH(QString, text);
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE FARM)");
        root->getChildren()->first()->setAlias("DWELLING");
        DictionaryTreeModel model(nullptr, root.get());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        MessageBoxRobot robot;
        asked.clear();
        refused = text;
        QVERIFY(!model.setData(model.index(1, 0, model.index(0, 0)), text));
        QCOMPARE(asked, QStringList(text));
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(changed.count(), 0);
        QCOMPARE(drawn<TDmEntity>(model), QString("LAND(HOUSE FARM)"));
    }

    void theEmptyRuleIsAskedOnceWithTheUntrimmedText()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        DictionaryTreeModel model(nullptr, root.get());
        asked.clear();
        refused = "LAND";
        QVERIFY(model.setData(model.index(0, 0), "  FIELD "));
        QCOMPARE(asked, QStringList("  FIELD "));
        QCOMPARE(root->getName(), QString("FIELD"));
    }
};

QTEST_MAIN(tst_EmptyEntityName)
#include "tst_EmptyEntityName.moc"
