#include "tests/business/models/DropTable.h"
#include "tests/support/MessageBoxRobot.h"

#include <QUrl>
#include <QtTest>

#include <climits>

using namespace tessel::test;

class tst_VariableDrop : public QObject {
    Q_OBJECT

private slots:
    void aDropThatIsToBeIgnoredIsTrueAndCreatesNothing()
    {
        DropTable table({"AGE"});
        const Announcements announced(*table.model);
        QMimeData foreign;
        foreign.setText("AGE");
        table.add("LATER");
        for (const int column : {-1, 0, 1, INT_MAX}) {
            QVERIFY(table.drop(payloadOf({field("SEX"), lookup("AREA")}), Qt::IgnoreAction, 0, column));
            QVERIFY(table.model->dropMimeData(nullptr, Qt::IgnoreAction, 0, column, QModelIndex()));
            QVERIFY(table.model->dropMimeData(&foreign, Qt::IgnoreAction, 0, column, QModelIndex()));
        }
        QCOMPARE(table.names(), QString("AGE LATER"));
        QCOMPARE(table.shown(), QString("AGE"));
        QCOMPARE(announced.text(), QString("nothing"));
    }

    void anotherFormatIsRefusedInSilence_data()
    {
        QTest::addColumn<QStringList>("formats");
        QTest::newRow("nothing at all") << QStringList();
        QTest::newRow("plain text") << QStringList("text/plain");
        QTest::newRow("files") << QStringList("text/uri-list");
        QTest::newRow("rows of Qt's own models") << QStringList("application/x-qabstractitemmodeldatalist");
        QTest::newRow("almost the same") << QStringList("application/vnd.text.lists");
        QTest::newRow("other letter case") << QStringList("application/vnd.TEXT.list");
        QTest::newRow("many") << QStringList({"text/plain", "text/html", "image/png"});
    }
    void anotherFormatIsRefusedInSilence()
    {
        QFETCH(QStringList, formats);
        DropTable table({"AGE"});
        table.add("AGE");
        const Announcements announced(*table.model);
        MessageBoxRobot robot;
        QMimeData data;
        for (const QString &format : formats)
            data.setData(format, payloadOf({field("SEX")}));
        for (const Qt::DropAction action : {Qt::CopyAction, Qt::MoveAction, Qt::LinkAction}) {
            QVERIFY(!table.model->dropMimeData(&data, action, 0, 0, QModelIndex()));
            QVERIFY(!table.model->dropMimeData(nullptr, action, 0, 0, QModelIndex()));
        }
        QCOMPARE(table.names(), QString("AGE AGE"));
        QCOMPARE(table.shown(), QString("AGE"));
        QCOMPARE(announced.text(), QString("nothing"));
        QVERIFY(robot.boxes().isEmpty());
    }

    void theFormatMayStandAmongOthers()
    {
        DropTable table;
        const std::unique_ptr<QMimeData> data = dataOf(payloadOf({field("AGE")}));
        data->setText("SEX");
        data->setUrls({QUrl("file:///AREA")});
        QVERIFY(table.model->dropMimeData(data.get(), Qt::CopyAction, -1, -1, QModelIndex()));
        QCOMPARE(table.names(), QString("AGE"));
    }

    void onlyTheFirstColumnAndThePlaceBelowTheRowsTakeADrop_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("taken");
        QTest::newRow("the lowest") << INT_MIN << true;
        QTest::newRow("-1") << -1 << true;
        QTest::newRow("0") << 0 << true;
        QTest::newRow("1") << 1 << false;
        QTest::newRow("4") << 4 << false;
        QTest::newRow("the highest") << INT_MAX << false;
    }
    void onlyTheFirstColumnAndThePlaceBelowTheRowsTakeADrop()
    {
        QFETCH(int, column);
        QFETCH(bool, taken);
        DropTable table({"AGE"});
        const Announcements announced(*table.model);
        MessageBoxRobot robot;
        // Where the drop is refused, so is the lookup, without a word.
        const QStringList texts =
            taken ? QStringList{field("SEX")} : QStringList{field("SEX"), lookup("AREA")};
        QCOMPARE(table.drop(payloadOf(texts), Qt::CopyAction, 0, column), taken);
        QCOMPARE(table.names(), QString(taken ? "AGE SEX" : "AGE"));
        QCOMPARE(announced.text(), QString(taken ? "reset 1 modified 1" : "nothing"));
        QVERIFY(robot.boxes().isEmpty());
    }

    void whereverTheDropIsFieldsGoToTheEnd_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("parentRow");
        QTest::newRow("on nothing") << -1 << -1;
        QTest::newRow("on a row") << -1 << 0;
        QTest::newRow("above the first row") << 0 << -1;
        QTest::newRow("between rows") << 1 << -1;
        QTest::newRow("below the last row") << 2 << -1;
        QTest::newRow("inside a row") << 0 << 1;
        QTest::newRow("far below") << INT_MAX << -1;
        QTest::newRow("far above") << INT_MIN << -1;
    }
    void whereverTheDropIsFieldsGoToTheEnd()
    {
        QFETCH(int, row);
        QFETCH(int, parentRow);
        for (const Qt::DropAction action :
            {Qt::CopyAction, Qt::MoveAction, Qt::LinkAction, Qt::TargetMoveAction}) {
            DropTable table({"AGE", "SEX"});
            const QModelIndex parent = table.model->index(parentRow, 0);
            QVERIFY(table.drop(payloadOf({field("Z"), field("A"), field("M")}), action, row, 0, parent));
            QCOMPARE(table.names(), QString("AGE SEX Z A M"));
            QCOMPARE(table.shown(), table.names());
        }
    }

    void aDroppedFieldBelongsToTheEntityWithAllItHolds()
    {
        DropTable table;
        QVERIFY(table.drop({field("P12_AGE",
            ", 'label': 'Age', 'tag': 3, 'fieldSize': 2, 'categories': [{'codigoCategoria': '1'}]")}));
        QCOMPARE(textOf(*table.variable(0)),
            QString("name='P12' alias='AGE' field='P12_AGE' label='Age' type='STRING' tag=3 position=1"
                    " fieldSize=2 size=2 (1: )"));
        QCOMPARE(table.model->index(0, 0).internalPointer(), static_cast<void *>(table.variable(0)));
    }

    void eachAddedVariableIsToldAndTheTableIsResetOnce_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("told");
        QTest::newRow("none") << 0 << "reset 1";
        QTest::newRow("one") << 1 << "reset 1 modified 1";
        QTest::newRow("seven") << 7 << "reset 1 modified 7";
    }
    void eachAddedVariableIsToldAndTheTableIsResetOnce()
    {
        QFETCH(int, count);
        QFETCH(QString, told);
        DropTable table({"AGE"});
        const Announcements announced(*table.model);
        QStringList texts;
        for (int i = 0; i < count; ++i)
            texts += field("F" + QString::number(i));
        QVERIFY(table.drop(texts));
        QCOMPARE(announced.text(), told);
        QCOMPARE(table.model->rowCount(), count + 1);
    }

    void theRowsAreTakenAnewAfterAllIsAdded()
    {
        DropTable table({"AGE"});
        QStringList notes;
        const auto note = [&](const char *signal) {
            notes += QLatin1String(signal) + ": " + table.shown() + " of " + table.names();
        };
        VariableDiccionaryModel *model = table.model.get();
        connect(model, &VariableDiccionaryModel::signalVariablesModified, this, [&] { note("modified"); });
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [&] { note("about to reset"); });
        connect(model, &QAbstractItemModel::modelReset, this, [&] { note("reset"); });
        const QPersistentModelIndex before = model->index(0, 0);
        QVERIFY(table.drop({field("SEX"), field("AREA")}));
        QCOMPARE(notes,
            QStringList({"modified: AGE of AGE SEX", "modified: AGE of AGE SEX AREA",
                "about to reset: AGE of AGE SEX AREA", "reset: AGE SEX AREA of AGE SEX AREA"}));
        QVERIFY(!before.isValid());
    }

    void whateverBecameOfTheEntityShowsAfterADropOfNothing()
    {
        DropTable table({"AGE", "SEX"});
        table.add("AREA");
        const std::unique_ptr<TDmVariable> taken(table.entity.getVariables()->takeFirst());
        QCOMPARE(table.shown(), QString("AGE SEX"));
        const Announcements announced(*table.model);
        QVERIFY(table.drop(QByteArray()));
        QCOMPARE(table.shown(), QString("SEX AREA"));
        QCOMPARE(announced.text(), QString("reset 1"));
    }

    void aModelWithoutEntityTakesDropsAndKeepsNothing()
    {
        VariableDiccionaryModel model(nullptr, nullptr, nullptr);
        const Announcements announced(model);
        MessageBoxRobot robot({QMessageBox::Ok});
        const std::unique_ptr<QMimeData> data =
            dataOf(payloadOf({field("AGE"), lookup("AREA"), field("AGE")}));
        {
            const LeftToNobody allowance;
            QVERIFY(model.dropMimeData(data.get(), Qt::CopyAction, -1, -1, QModelIndex()));
        }
        QCOMPARE(robot.texts(), QStringList("Error creating AREA. Must be selectable entity."));
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(announced.text(), QString("reset 1"));
    }

    void fiveThousandFieldsAreTakenAtOnce()
    {
        constexpr int count = 5000;
        DropTable table({"AGE"});
        const Announcements announced(*table.model);
        MessageBoxRobot robot;
        QStringList texts;
        QStringList names{"AGE"};
        for (int i = 0; i < count; ++i) {
            const QString name = "FIELD" + QString::number(i);
            names += name;
            // Each row comes with its three columns.
            texts << field(name) << field(name) << field(name);
        }
        QVERIFY(table.drop(texts));
        QCOMPARE(table.names(), names.join(' '));
        QCOMPARE(table.shown(), table.names());
        QCOMPARE(announced.text(), QStringLiteral("reset 1 modified %1").arg(count));
        QVERIFY(robot.boxes().isEmpty());
    }
};

QTEST_MAIN(tst_VariableDrop)
#include "tst_VariableDrop.moc"
