#include "business/models/SelectionBuilderTreeModel.h"

#include "tests/business/models/OpenSelection.h"
#include "tests/support/LogCatcher.h"

#include <QIcon>
#include <QtTest>

#include <climits>
#include <string>

using namespace tessel::test;

class tst_SelectionBuilderData : public QObject {
    Q_OBJECT

private slots:
    void theTextIsMadeOfNameCodeAndArea_data()
    {
        QTest::addColumn<bool>("useUnitCode");
        QTest::addColumn<bool>("prefixUnitName");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("text");
        QTest::newRow("both areas") << false << false << 2 << u8"Área 1 Süd 東";
        QTest::newRow("code and second area") << true << false << 2 << u8"C7 Süd 東";
        QTest::newRow("name and both areas") << false << true << 2 << u8"NÖRD | Área 1 Süd 東";
        QTest::newRow("name, code and second area") << true << true << 2 << u8"NÖRD | C7 Süd 東";
        QTest::newRow("the root, both areas") << false << false << 1 << u8"Área 1 Süd 東";
        QTest::newRow("the root, code") << true << false << 1 << u8"C7 Süd 東";
        QTest::newRow("the root has no name in front") << false << true << 1 << u8"Área 1 Süd 東";
        QTest::newRow("the root, code, no name in front") << true << true << 1 << u8"C7 Süd 東";
        QTest::newRow("level 0 is not the root") << true << true << 0 << u8"NÖRD | C7 Süd 東";
        QTest::newRow("level -1 is not the root") << true << true << -1 << u8"NÖRD | C7 Süd 東";
    }
    void theTextIsMadeOfNameCodeAndArea()
    {
        QFETCH(bool, useUnitCode);
        QFETCH(bool, prefixUnitName);
        QFETCH(int, level);
        QFETCH(QString, text);
        Unit unit;
        unit.setName(QString::fromUtf8(u8"NÖRD"));
        unit.setCode("C7");
        unit.setArea({u8"Área 1", u8"Süd 東"});
        unit.setLevel(level);
        const OpenSelection model(&unit, useUnitCode, prefixUnitName);
        QCOMPARE(model.getItemData(&unit, 0), QVariant(text));
        QCOMPARE(model.data(model.index(0, 0), Qt::DisplayRole), QVariant(text));
        QCOMPARE(model.data(model.index(0, 0), Qt::EditRole), QVariant(text));
        for (const int column : {INT_MIN, -1, 1, INT_MAX})
            QVERIFY(!model.getItemData(&unit, column).isValid());
        QVERIFY(!model.getItemData(nullptr, 0).isValid());
    }

    void emptyTextsLeaveTheirBlanksAndBar_data()
    {
        QTest::addColumn<bool>("useUnitCode");
        QTest::addColumn<bool>("prefixUnitName");
        QTest::addColumn<QString>("text");
        QTest::newRow("a single blank of the areas") << false << false << " ";
        QTest::newRow("a single blank of the code") << true << false << " ";
        QTest::newRow("a bar and a blank") << false << true << " |  ";
        QTest::newRow("a bar and the code's blank") << true << true << " |  ";
    }
    void emptyTextsLeaveTheirBlanksAndBar()
    {
        QFETCH(bool, useUnitCode);
        QFETCH(bool, prefixUnitName);
        QFETCH(QString, text);
        Unit unit;
        unit.setLevel(2);
        QCOMPARE(OpenSelection(&unit, useUnitCode, prefixUnitName).getItemData(&unit, 0).toString(), text);
    }

    void areasThatAreNoTextAreShownAsFarAsTheyCanBe()
    {
        Unit unit;
        const OpenSelection model(&unit);
        unit.setArea({"\xff", std::string(100'000, 'x')});
        QCOMPARE(model.getItemData(&unit, 0).toString(),
            QString(QChar(QChar::ReplacementCharacter)) + ' ' + QString(100'000, 'x'));
        unit.setArea({"<b>A</b>", std::string("B\0C", 3)});
        QCOMPARE(model.getItemData(&unit, 0).toString(), "<b>A</b> " + QString::fromLatin1("B\0C", 3));
    }

    void theCheckMarkFollowsTheState_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("mark");
        QTest::newRow("not selected") << 0 << int(Qt::Unchecked);
        QTest::newRow("partly selected") << 1 << int(Qt::PartiallyChecked);
        QTest::newRow("selected") << 2 << int(Qt::Checked);
        QTest::newRow("3") << 3 << int(Qt::Unchecked);
        QTest::newRow("-1") << -1 << int(Qt::Unchecked);
        QTest::newRow("highest") << INT_MAX << int(Qt::Unchecked);
        QTest::newRow("lowest") << INT_MIN << int(Qt::Unchecked);
    }
    void theCheckMarkFollowsTheState()
    {
        QFETCH(int, state);
        QFETCH(int, mark);
        const Areas areas;
        areas.unit("PORT")->setUnitState(state);
        const QVariant shown = areas.model.data(areas.madeFor("PORT"), Qt::CheckStateRole);
        QVERIFY(shown.isValid());
        QCOMPARE(shown.toInt(), mark);
        QVERIFY(!areas.model.data(areas.model.made(0, 1, areas.unit("PORT")), Qt::CheckStateRole).isValid());
        QCOMPARE(areas.model.data(areas.madeFor("LAND"), Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    }

    void onlyTheUnitOfThatNameCarriesTheIcon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("hasIcon");
        QTest::newRow("NMIR") << "NMIR" << true;
        for (const char *name : {"nmir", "Nmir", " NMIR", "NMIR ", "NMIRS", "NMI", ""})
            QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(QLatin1String(name)))) << name << false;
    }
    void onlyTheUnitOfThatNameCarriesTheIcon()
    {
        QFETCH(QString, name);
        QFETCH(bool, hasIcon);
        const auto root = treeFrom<Unit>("LAND(NORTH(TOWN))");
        const OpenSelection model(root.get());
        for (const char *place : {"LAND", "NORTH", "TOWN"}) {
            Unit *unit = find(root.get(), QString::fromLatin1(place));
            unit->setName(name);
            QCOMPARE(model.data(model.made(0, 0, unit), Qt::DecorationRole).isValid(), hasIcon);
            QVERIFY(!model.data(model.made(0, 1, unit), Qt::DecorationRole).isValid());
            unit->setName(QString::fromLatin1(place));
        }
    }

    void theIconIsTheProjectsOwnPicture()
    {
        Unit unit;
        unit.setName("NMIR");
        const OpenSelection model(&unit);
        const QVariant decoration = model.data(model.index(0, 0), Qt::DecorationRole);
        QCOMPARE(decoration.userType(), int(QMetaType::QIcon));
        const QImage drawing(TESSEL_SOURCE_DIR "/resources/icons/48px-About.png");
        QCOMPARE(drawing.size(), QSize(48, 48));
        // The form that a pixmap keeps on its own.
        const auto format = QImage::Format_ARGB32_Premultiplied;
        QCOMPARE(decoration.value<QIcon>().pixmap(48, 48).toImage().convertToFormat(format),
            drawing.convertToFormat(format));
    }

    void theUserRoleIsAnsweredWithALineInTheLogAlone()
    {
        const Areas areas;
        const LogCatcher log;
        QVERIFY(!areas.model.data(areas.madeFor("PORT"), Qt::UserRole).isValid());
        QCOMPARE(log.messages(), QStringList("debug default: U SER  ROLE "));
        QVERIFY(!areas.model.data(QModelIndex(), Qt::UserRole).isValid());
        QVERIFY(!areas.model.data(areas.model.made(0, 0, nullptr), Qt::UserRole).isValid());
        QVERIFY(!areas.model.data(areas.madeFor("PORT"), Qt::UserRole + 1).isValid());
        QCOMPARE(log.messages().size(), 1);
    }

    void onlyTheNamedRolesAreAnswered()
    {
        const Areas areas;
        const LogCatcher log;
        QCOMPARE(rolesAnswered(areas.model, areas.madeFor("PORT")),
            QList<int>({Qt::DisplayRole, Qt::EditRole, Qt::CheckStateRole}));
        QCOMPARE(log.messages(), QStringList("debug default: U SER  ROLE "));
        areas.unit("PORT")->setName("NMIR");
        QCOMPARE(rolesAnswered(areas.model, areas.madeFor("NMIR")),
            QList<int>({Qt::DisplayRole, Qt::DecorationRole, Qt::EditRole, Qt::CheckStateRole}));
        const QModelIndexList empty = {QModelIndex(), areas.model.made(0, 0, nullptr),
            areas.model.made(-1, 0, areas.root.get()), areas.model.made(0, 1, areas.root.get())};
        for (const QModelIndex &index : empty)
            QCOMPARE(rolesAnswered(areas.model, index), QList<int>());
    }
};

QTEST_MAIN(tst_SelectionBuilderData)
#include "tst_SelectionBuilderData.moc"
