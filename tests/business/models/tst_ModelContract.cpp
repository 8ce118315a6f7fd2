#include "tests/business/models/Announcements.h"
#include "tests/business/models/ModelSweep.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MessageBoxRobot.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QStandardItemModel>
#include <QtTest>

using namespace tessel::test;

namespace {

const ModelRow &fetched()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(',', 0, 0);
    for (const ModelRow &row : modelTable()) {
        if (name == QLatin1String(row.name))
            return row;
    }
    qFatal("no such model");
}

/// Every model that \a isWanted, by its name alone.
template<typename IsWanted>
void addModelsThat(IsWanted &&isWanted)
{
    QTest::addColumn<bool>("isProxy");
    for (const ModelRow &row : modelTable()) {
        if (isWanted(row))
            QTest::addRow("%s", row.name) << bool(row.proxy);
    }
}

/// Every model in every shape.
void addModels()
{
    QTest::addColumn<int>("shape");
    for (const ModelRow &row : modelTable()) {
        QTest::addRow("%s, whole", row.name) << int(Shape::Whole);
        QTest::addRow("%s, with null objects", row.name) << int(Shape::WithNulls);
        QTest::addRow("%s, over nothing", row.name) << int(Shape::Nothing);
    }
}

} // namespace

/// What is promised of every model and proxy of the library alike.
class tst_ModelContract : public QObject {
    Q_OBJECT

private slots:
    void everyExportedModelHasARow()
    {
        QFile file(TESSEL_SOURCE_DIR "/tests/package/exported_classes.txt");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList exported;
        const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
        for (const QString &line : lines) {
            if (!line.startsWith('#') && line.section(' ', 1, 1).contains("Model"))
                exported += line.section(' ', 1, 1);
        }
        QStringList listed;
        for (const ModelRow &row : modelTable())
            listed += QString::fromLatin1(row.name);
        exported.sort();
        listed.sort();
        QCOMPARE(listed, exported);
        QCOMPARE(listed.size(), 22);
    }

    void everyRowOpensItsOwnModel_data() { addModels(); }
    void everyRowOpensItsOwnModel()
    {
        QFETCH(int, shape);
        const auto opened = fetched().open(Shape(shape));
        QCOMPARE(opened->model().metaObject()->className(), fetched().name);
        QCOMPARE(qobject_cast<QSortFilterProxyModel *>(&opened->model()) != nullptr, bool(fetched().proxy));
    }

    void everyListedRoleIsAnswered_data()
    {
        addModelsThat([](const ModelRow &) { return true; });
    }
    void everyListedRoleIsAnswered()
    {
        const ModelRow &row = fetched();
        const auto opened = row.open(Shape::Whole);
        const QAbstractItemModel &model = opened->model();
        QSet<int> inTheFirst;
        QSet<int> elsewhere;
        const LogCatcher log;
        QModelIndexList all = cells(model);
        if (!row.proxy)
            all += opened->made(0, model.columnCount(), model.index(0, 0).internalPointer());
        for (const QModelIndex &index : qAsConst(all)) {
            for (const int role : rolesAnswered(model, index))
                (index.column() == 0 ? inTheFirst : elsewhere).insert(role);
        }
        const auto asSet = [](const QList<int> &list) { return QSet<int>(list.begin(), list.end()); };
        QCOMPARE(inTheFirst, asSet(row.rolesInTheFirstColumn));
        QCOMPARE(elsewhere, asSet(row.rolesElsewhere));
    }

    void onlyListedRolesAreAnsweredBeforeAndAfterEdits_data() { addModels(); }
    void onlyListedRolesAreAnsweredBeforeAndAfterEdits()
    {
        QFETCH(int, shape);
        const auto opened = fetched().open(Shape(shape));
        MessageBoxRobot robot;
        const LogCatcher log;
        Announcements announced(opened->model());
        QCOMPARE(faults(*opened, fetched()), QStringList());
        QCOMPARE(announced.take(), QStringList());
        editAll(*opened);
        QCOMPARE(faults(*opened, fetched()), QStringList());
    }

    void theHeadersAreThoseOfTheTableBeforeAndAfterEdits_data() { addModels(); }
    void theHeadersAreThoseOfTheTableBeforeAndAfterEdits()
    {
        QFETCH(int, shape);
        const auto opened = fetched().open(Shape(shape));
        MessageBoxRobot robot;
        const LogCatcher log;
        QCOMPARE(headerFaults(opened->model(), fetched()), QStringList());
        editAll(*opened);
        QCOMPARE(headerFaults(opened->model(), fetched()), QStringList());
    }

    void whatHasNoObjectIsNotEdited_data() { addModels(); }
    void whatHasNoObjectIsNotEdited()
    {
        QFETCH(int, shape);
        const auto opened = fetched().open(Shape(shape));
        MessageBoxRobot robot;
        const LogCatcher log;
        Announcements announced(opened->model());
        // Its objects are of the same type: what takes them for its own would find them usable.
        const auto stranger = fetched().open(Shape::Whole);
        Announcements strange(stranger->model());
        for (const QModelIndex &index : emptyIndexes(*opened, stranger->model())) {
            const bool isTaken = fetched().takesEditsWithoutObject && index.isValid();
            for (int role = 0; role <= kLastSweptRole; ++role)
                QCOMPARE(opened->model().setData(index, "NEW", role), isTaken);
        }
        QCOMPARE(announced.take(), QStringList());
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(strange.take(), QStringList());
    }

    void nothingIsThereOverNothing_data()
    {
        addModelsThat([](const ModelRow &) { return true; });
    }
    void nothingIsThereOverNothing()
    {
        const auto opened = fetched().open(Shape::Nothing);
        // A tree keeps the row of the root that is not there.
        const bool isTree = fetched().unruly == Unruly::ParentRowIsALevel;
        QCOMPARE(opened->model().rowCount(), isTree ? 1 : 0);
        const auto whole = fetched().open(Shape::Whole);
        QCOMPARE(opened->model().columnCount(), whole->model().columnCount());
        QVERIFY(whole->model().rowCount() > 0);
    }

    void everyModelButTheProxiesHasAReasonToBeSparedQtsTester()
    {
        int spared = 0;
        for (const ModelRow &row : modelTable()) {
            QVERIFY2((row.unruly == Unruly::No) == bool(row.proxy), row.name);
            spared += row.unruly != Unruly::No;
        }
        QCOMPARE(spared, 16);
        QCOMPARE(modelTable().size() - spared, 6);
    }

    void theReasonHolds_data()
    {
        addModelsThat([](const ModelRow &row) { return row.unruly != Unruly::No; });
    }
    void theReasonHolds()
    {
        const auto opened = fetched().open(Shape::Whole);
        const QAbstractItemModel &model = opened->model();
        const QModelIndex top = model.index(0, 0);
        if (fetched().unruly == Unruly::RowsBelowEveryRow) {
            QVERIFY(model.rowCount() > 0);
            QCOMPARE(model.rowCount(top), model.rowCount());
            QVERIFY(!model.index(0, 0, top).isValid());
            return;
        }
        QVERIFY(model.rowCount(top) > 1);
        for (int row = 0; row < model.rowCount(top); ++row) {
            const QModelIndex parent = model.parent(model.index(row, 0, top));
            QCOMPARE(parent.internalPointer(), top.internalPointer());
            QCOMPARE(parent.row(), 2);
            QVERIFY(parent != top);
        }
        QCOMPARE(top.row(), 0);
    }

    void theProxiesFollowQtsRules_data()
    {
        addModelsThat([](const ModelRow &row) { return bool(row.proxy); });
    }
    void theProxiesFollowQtsRules()
    {
        const auto proxy = fetched().proxy();
        using Tester = QAbstractItemModelTester;
        const Tester tester(proxy.get(), Tester::FailureReportingMode::QtTest);
        QStandardItemModel source(6, 5);
        const auto fill = [&] {
            for (int row = 0; row < source.rowCount(); ++row) {
                for (int column = 0; column < source.columnCount(); ++column) {
                    const QVariant value = (row + column) % 2
                        ? QVariant((row * 7 + column) % 5)
                        : QVariant(QStringLiteral("n%1@x").arg((row * 5) % 7));
                    source.setData(source.index(row, column), value, Qt::DisplayRole);
                }
            }
        };
        fill();
        proxy->setSourceModel(&source);
        QCOMPARE(proxy->rowCount(), 6);
        for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            for (int column = 0; column < 5; ++column)
                proxy->sort(column, order);
        }
        proxy->setFilterRegExp(QStringLiteral("N5"));
        QVERIFY(proxy->rowCount() > 0 && proxy->rowCount() < 6);
        source.insertRows(0, 3);
        fill();
        source.removeRows(2, 2);
        proxy->setFilterRegExp(QStringLiteral("NOWHERE"));
        QCOMPARE(proxy->rowCount(), 0);
        proxy->setFilterRegExp(QString());
        QCOMPARE(proxy->rowCount(), 7);
        source.item(1, 0)->appendRow(new QStandardItem(QStringLiteral("below")));
        source.moveRows({}, 0, 1, {}, 4);
        proxy->setData(proxy->index(0, 0), QStringLiteral("NEW"));
        proxy->removeRows(0, 1);
        QCOMPARE(source.rowCount(), 6);
        proxy->sort(-1);
        source.clear();
        QCOMPARE(proxy->rowCount(), 0);
        proxy->setSourceModel(nullptr);
    }
};

QTEST_MAIN(tst_ModelContract)
#include "tst_ModelContract.moc"
