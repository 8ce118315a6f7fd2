#include "editor/views/FieldDrop.h"

#include "tests/business/models/DropTable.h"

#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

/// What an entity takes of many fields, judged before anything is asked.
class tst_FieldDrop : public QObject {
    Q_OBJECT

private slots:
    void lookupsAreJudgedAtOnce_data()
    {
        QTest::addColumn<bool>("isSelectable");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("refused");
        QTest::addColumn<QStringList>("rest");
        const QString a = field("A");
        const QString b = field("B");
        const QString x = lookup("X");
        const QString y = lookup("ID_Y");
        QTest::newRow("nothing") << false << QStringList() << QStringList() << QStringList();
        QTest::newRow("fields") << false << QStringList({a, b}) << QStringList() << QStringList({a, b});
        QTest::newRow("a single lookup is the model's")
            << false << QStringList({a, x}) << QStringList() << QStringList({a, x});
        QTest::newRow("the same lookup twice is one")
            << false << QStringList({x, x}) << QStringList() << QStringList({x, x});
        QTest::newRow("two lookups among fields")
            << false << QStringList({x, a, y, b}) << QStringList({"X", "ID_Y"}) << QStringList({a, b});
        QTest::newRow("nothing but lookups")
            << false << QStringList({x, y}) << QStringList({"X", "ID_Y"}) << QStringList("none");
        QTest::newRow("a selectable entity takes all")
            << true << QStringList({x, a, y}) << QStringList() << QStringList({x, a, y});
        QTest::newRow("no JSON is no lookup")
            << false << QStringList({"odd", x, y}) << QStringList({"X", "ID_Y"}) << QStringList("odd");
    }
    void lookupsAreJudgedAtOnce()
    {
        QFETCH(bool, isSelectable);
        QFETCH(QStringList, texts);
        DropTable table;
        table.entity.setSelectable(isSelectable);
        const auto data = dataOf(payloadOf(texts));
        const FieldDrop drop(*data, table.entity, *table.model);
        QTEST(drop.refused(), "refused");
        QStringList rest("none");
        if (drop.rest()) {
            rest.clear();
            QDataStream stream(drop.rest()->data(transferType()));
            while (!stream.atEnd()) {
                QString text;
                stream >> text;
                rest.append(text);
            }
        }
        QTEST(rest, "rest");
        QVERIFY(table.entity.getVariables()->isEmpty());
    }
};

QTEST_MAIN(tst_FieldDrop)
#include "tst_FieldDrop.moc"
