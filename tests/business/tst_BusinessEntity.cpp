#include "business/BusinessEntity.h"

#include "model/TDmEntity.h"
#include "tests/support/MessageBoxRobot.h"

#include <QLabel>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <type_traits>

using tessel::test::MessageBoxRobot;

using EntityList = QList<TDmEntity *>;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

static_assert(std::is_default_constructible_v<BusinessEntity>);
static_assert(!std::is_copy_constructible_v<BusinessEntity> && !std::is_move_constructible_v<BusinessEntity>);
static_assert(std::is_same_v<decltype(&BusinessEntity::verifyChildrenSelectCheck),
    EntityList *(BusinessEntity::*)(TDmEntity *)>);

namespace {

const QString kBefore =
    QStringLiteral("You have child entities that are selectable, and they are as follows:\n");
const QString kBehind =
    QStringLiteral("\nAre you sure you want to deselect this entity and its child entities?.\n");

TDmEntity *add(TDmEntity &parent, const QString &name, bool selected)
{
    auto *entity = new TDmEntity;
    entity->setName(name);
    entity->setSelectable(selected);
    parent.getChildren()->append(entity);
    return entity;
}

/// What the service answers for \a entity; the list is freed.
EntityList verified(TDmEntity &entity)
{
    BusinessEntity business;
    return *std::unique_ptr<EntityList>(business.verifyChildrenSelectCheck(&entity));
}

} // namespace

/// Each test has an entity that was just deselected, with the selected children A and B.
class tst_BusinessEntity : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        entity = std::make_unique<TDmEntity>();
        entity->setName("E");
        a = add(*entity, "A", true);
        b = add(*entity, "B", true);
    }

    void cleanup() { entity.reset(); }

    void theQuestionIsAskedToTheLetter()
    {
        MessageBoxRobot robot({QMessageBox::Yes});
        verified(*entity);
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.boxes().size(), 1);
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.text,
            QStringLiteral(
                "You have child entities that are selectable, and they are as follows:\nA\nB\n\nAre "
                "you sure you want to deselect this entity and its child entities?.\n"));
        QCOMPARE(box.title, QString());
        QCOMPARE(box.icon, QMessageBox::Question);
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
        QCOMPARE(box.defaultButton, QMessageBox::No);
        QCOMPARE(box.textFormat, Qt::PlainText);
        QVERIFY(box.isModal);
        QCOMPARE(box.parent, nullptr);
    }

    void yesReturnsTheSelectedOnesAndLeavesTheEntityDeselected()
    {
        MessageBoxRobot robot({QMessageBox::Yes});
        QCOMPARE(verified(*entity), (EntityList{a, b}));
        QVERIFY(!entity->getSelectable());
        // Deselecting them is the caller's.
        QVERIFY(a->getSelectable());
        QVERIFY(b->getSelectable());
        QCOMPARE(robot.unplanned(), 0);
    }

    void anythingElseSelectsTheEntityAgainAndReturnsNothing_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("planned");
        QTest::newRow("No") << QMessageBox::No;
        QTest::newRow("Return presses No") << MessageBoxRobot::PressReturn;
        QTest::newRow("Escape counts as No") << MessageBoxRobot::PressEscape;
        QTest::newRow("closing the window counts as No") << MessageBoxRobot::CloseWindow;
    }

    void anythingElseSelectsTheEntityAgainAndReturnsNothing()
    {
        QFETCH(QMessageBox::StandardButton, planned);
        MessageBoxRobot robot({planned});
        QCOMPARE(verified(*entity), EntityList());
        QVERIFY(entity->getSelectable());
        QVERIFY(a->getSelectable());
        QVERIFY(b->getSelectable());
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.unplanned(), 0);
        QCOMPARE(robot.boxes().size(), 1);
    }

    void aBoxTakenAwayWithoutAnAnswerCountsAsNo()
    {
        QTimer::singleShot(0, this, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                box->done(QMessageBox::NoButton);
        });
        QCOMPARE(verified(*entity), EntityList());
        QVERIFY(entity->getSelectable());
    }

    void withoutSelectedEntitiesBelowNothingIsAsked_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::newRow("deselected") << false;
        QTest::newRow("still selected") << true;
    }

    void withoutSelectedEntitiesBelowNothingIsAsked()
    {
        QFETCH(bool, selected);
        a->setSelectable(false);
        b->setSelectable(false);
        entity->setSelectable(selected);
        MessageBoxRobot robot;
        QCOMPARE(verified(*entity), EntityList());
        QCOMPARE(entity->getSelectable(), selected);
        QCOMPARE(robot.boxes().size(), 0);

        a->setSelectable(selected);
        QCOMPARE(verified(*a), EntityList());
        QCOMPARE(a->getSelectable(), selected);
        QCOMPARE(robot.boxes().size(), 0);
    }

    void aStillSelectedEntityIsNotAskedAbout()
    {
        entity->setSelectable(true);
        MessageBoxRobot robot;
        QCOMPARE(verified(*entity), (EntityList{a, b}));
        QVERIFY(entity->getSelectable());
        QVERIFY(a->getSelectable());
        QVERIFY(b->getSelectable());
        QCOMPARE(robot.boxes().size(), 0);
    }

    void entitiesAtAnyDepthAreToldParentsFirst()
    {
        a->setSelectable(false);
        TDmEntity *a1 = add(*a, "A1", true);
        TDmEntity *a11 = add(*a1, "A11", true);
        add(*a, "A2", false);
        TDmEntity *b1 = add(*b, "B1", true);
        MessageBoxRobot robot({QMessageBox::Yes});
        QCOMPARE(verified(*entity), (EntityList{a1, a11, b, b1}));
        QCOMPARE(robot.texts(), QStringList(kBefore + "A1\nA11\nB\nB1\n" + kBehind));
    }

    void namesAreToldAsTheyAre_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << "";
        QTest::newRow("markup") << "<b>bold</b><br>";
        QTest::newRow("a whole rich text") << "<html><body>x</body></html>";
        QTest::newRow("entities") << "&amp; &lt;";
        QTest::newRow("an ampersand before a letter") << "R&D";
        QTest::newRow("the place for the names") << "%1";
        QTest::newRow("other placeholders") << "%2 %L1 %n %%";
        QTest::newRow("a line feed") << "x\ny";
        QTest::newRow("blanks around") << " x ";
        QTest::newRow("control characters") << QString("a\u0001") + QChar(0) + "b";
        QTest::newRow("an unpaired surrogate") << QString(QChar(0xd800));
        QTest::newRow("a hundred thousand characters") << QString(100'000, 'x');
    }

    void namesAreToldAsTheyAre()
    {
        QFETCH(QString, name);
        a->setName(name);
        QString shown;
        QTimer::singleShot(0, this, [&shown] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            auto *label = box ? box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label")) : nullptr;
            if (label && label->textFormat() == Qt::PlainText)
                shown = label->text();
        });
        MessageBoxRobot robot({QMessageBox::No});
        verified(*entity);
        QCOMPARE(robot.texts(), QStringList(kBefore + name + "\nB\n" + kBehind));
        QCOMPARE(shown, kBefore + name + "\nB\n" + kBehind);
    }

    void anAnswerCountsWhateverHappenedToTheFlagMeanwhile()
    {
        QTimer::singleShot(0, this, [this] { entity->setSelectable(true); });
        MessageBoxRobot robot({QMessageBox::Yes});
        QCOMPARE(verified(*entity), (EntityList{a, b}));
        QVERIFY(!entity->getSelectable());
    }

    void theMarkForDeletionAndTheTreeStay()
    {
        a->setCheckDelete(true);
        MessageBoxRobot robot({QMessageBox::Yes, QMessageBox::No});
        verified(*entity);
        verified(*entity);
        QCOMPARE(*entity->getChildren(), (EntityList{a, b}));
        QVERIFY(a->getCheckDelete());
        QVERIFY(!b->getCheckDelete());
        QVERIFY(!entity->getCheckDelete());
        QCOMPARE(entity->getName(), QStringLiteral("E"));
    }

    void everyListIsNewAndTheCallers()
    {
        MessageBoxRobot robot({QMessageBox::Yes, QMessageBox::Yes, QMessageBox::No});
        BusinessEntity business;
        const std::unique_ptr<EntityList> first(business.verifyChildrenSelectCheck(entity.get()));
        const std::unique_ptr<EntityList> second(business.verifyChildrenSelectCheck(entity.get()));
        const std::unique_ptr<EntityList> refused(business.verifyChildrenSelectCheck(entity.get()));
        const std::unique_ptr<EntityList> unasked(business.verifyChildrenSelectCheck(entity.get()));
        QVERIFY(first != second);
        QVERIFY(first.get() != entity->getChildren());
        first->clear();
        QCOMPARE(*second, (EntityList{a, b}));
        QCOMPARE(*refused, EntityList());
        QCOMPARE(*unasked, (EntityList{a, b}));
        QCOMPARE(robot.boxes().size(), 3);
    }

    void aListOutlivesTheService()
    {
        entity->setSelectable(true);
        MessageBoxRobot robot;
        auto business = std::make_unique<BusinessEntity>();
        const std::unique_ptr<EntityList> list(business->verifyChildrenSelectCheck(entity.get()));
        business.reset();
        QCOMPARE(*list, (EntityList{a, b}));
        QCOMPARE(robot.boxes().size(), 0);
    }

    void nullChildrenAreNeitherToldNorReturned()
    {
        entity->getChildren()->insert(1, nullptr);
        MessageBoxRobot robot({QMessageBox::Yes});
        QCOMPARE(verified(*entity), (EntityList{a, b}));
        QCOMPARE(robot.texts(), QStringList(kBefore + "A\nB\n" + kBehind));
    }

    void aNullEntityHasNothingBelow()
    {
        MessageBoxRobot robot;
        BusinessEntity business;
        const std::unique_ptr<EntityList> list(business.verifyChildrenSelectCheck(nullptr));
        QVERIFY(list);
        QCOMPARE(*list, EntityList());
        QCOMPARE(robot.boxes().size(), 0);
    }

private:
    std::unique_ptr<TDmEntity> entity;
    TDmEntity *a = nullptr;
    TDmEntity *b = nullptr;
};

QTEST_MAIN(tst_BusinessEntity)
#include "tst_BusinessEntity.moc"
