#include "tests/support/MessageBoxRobot.h"

#include <QDialog>
#include <QPushButton>
#include <QWidget>
#include <QtTest>

#include <memory>

using tessel::test::MessageBoxRobot;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)

namespace {

/// Asks \a text with \a buttons and returns the button pressed.
int ask(const QString &text, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Title"), text, buttons);
    return box.exec();
}

} // namespace

class tst_MessageBoxRobot : public QObject {
    Q_OBJECT

private slots:
    void boxesAreAnsweredInTheOrderOfThePlan()
    {
        MessageBoxRobot robot({QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel});
        const QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        QCOMPARE(robot.unanswered(), 3);
        QCOMPARE(ask("1", buttons), int(QMessageBox::Yes));
        QCOMPARE(robot.unanswered(), 2);
        QCOMPARE(ask("2", buttons), int(QMessageBox::No));
        QCOMPARE(ask("3", buttons), int(QMessageBox::Cancel));
        QCOMPARE(robot.texts(), (QStringList{"1", "2", "3"}));
        QCOMPARE(robot.boxes().size(), 3);
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.unplanned(), 0);
    }

    void keysAndTheCloseButtonArePartsOfAPlan_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("planned");
        QTest::addColumn<int>("pressed");
        QTest::newRow("Escape") << MessageBoxRobot::PressEscape << int(QMessageBox::Cancel);
        QTest::newRow("Return") << MessageBoxRobot::PressReturn << int(QMessageBox::No);
        QTest::newRow("the window's close button")
            << MessageBoxRobot::CloseWindow << int(QMessageBox::Cancel);
    }

    void keysAndTheCloseButtonArePartsOfAPlan()
    {
        QFETCH(QMessageBox::StandardButton, planned);
        QFETCH(int, pressed);
        MessageBoxRobot robot({planned});
        QMessageBox box(QMessageBox::Question, QString(), QString(),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::No);
        QCOMPARE(box.exec(), pressed);
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.unplanned(), 0);
    }

    void anUnplannedBoxIsClosedAndCounted_data()
    {
        QTest::addColumn<QMessageBox::StandardButtons>("buttons");
        QTest::addColumn<int>("pressed");
        const QMessageBox::StandardButtons noWayOut = QMessageBox::Yes | QMessageBox::Save;
        QTest::newRow("closing counts as its escape button")
            << (QMessageBox::Yes | QMessageBox::Cancel) << int(QMessageBox::Cancel);
        QTest::newRow("closed although it refuses to be closed") << noWayOut << int(QMessageBox::NoButton);
    }

    void anUnplannedBoxIsClosedAndCounted()
    {
        QFETCH(QMessageBox::StandardButtons, buttons);
        QFETCH(int, pressed);
        MessageBoxRobot robot({QMessageBox::Yes});
        QCOMPARE(ask("planned", buttons), int(QMessageBox::Yes));
        QCOMPARE(robot.unplanned(), 0);
        QCOMPARE(ask("unplanned", buttons), pressed);
        QCOMPARE(ask("unplanned too", buttons), pressed);
        QCOMPARE(robot.unplanned(), 2);
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.texts(), (QStringList{"planned", "unplanned", "unplanned too"}));
    }

    void answersThatNoBoxAskedForAreCounted()
    {
        MessageBoxRobot robot({QMessageBox::Yes, QMessageBox::No});
        QCOMPARE(ask("?", QMessageBox::Yes | QMessageBox::No), int(QMessageBox::Yes));
        QCOMPARE(robot.unanswered(), 1);
        QCOMPARE(robot.unplanned(), 0);
    }

    void withoutBoxesNothingIsCounted()
    {
        MessageBoxRobot robot;
        QCoreApplication::processEvents();
        QCOMPARE(robot.boxes().size(), 0);
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.unplanned(), 0);
    }

    void whatABoxShowedIsRemembered()
    {
        MessageBoxRobot robot({QMessageBox::No, QMessageBox::Ok});
        QWidget parent;
        QMessageBox question(QMessageBox::Question, QStringLiteral("A title"), QStringLiteral("<b>?</b>"),
            QMessageBox::Yes | QMessageBox::No, &parent);
        question.setTextFormat(Qt::PlainText);
        question.setDefaultButton(QMessageBox::No);
        question.exec();
        QMessageBox warning(QMessageBox::Warning, QString(), QStringLiteral("!"), QMessageBox::Ok);
        warning.setTextFormat(Qt::RichText);
        warning.exec();

        const MessageBoxRobot::Box first = robot.boxes().at(0);
        QCOMPARE(first.title, QStringLiteral("A title"));
        QCOMPARE(first.text, QStringLiteral("<b>?</b>"));
        QCOMPARE(first.icon, QMessageBox::Question);
        QCOMPARE(first.buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(first.defaultButton, QMessageBox::No);
        QCOMPARE(first.textFormat, Qt::PlainText);
        QVERIFY(first.isModal);
        QCOMPARE(first.parent, &parent);

        const MessageBoxRobot::Box second = robot.boxes().at(1);
        QCOMPARE(second.title, QString());
        QCOMPARE(second.text, QStringLiteral("!"));
        QCOMPARE(second.icon, QMessageBox::Warning);
        QCOMPARE(second.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(second.defaultButton, QMessageBox::Ok);
        QCOMPARE(second.textFormat, Qt::RichText);
        QCOMPARE(second.parent, nullptr);
    }

    void aBoxThatLetsOneGoOnIsNotModal()
    {
        MessageBoxRobot robot({QMessageBox::Ok});
        QMessageBox box(QMessageBox::Information, QString(), QString(), QMessageBox::Ok);
        box.setModal(false);
        box.show();
        QTRY_VERIFY(!box.isVisible());
        QCOMPARE(robot.boxes().size(), 1);
        QVERIFY(!robot.boxes().first().isModal);
    }

    void aBoxAboveAnotherBoxIsAnsweredFirst()
    {
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Yes});
        QMessageBox below(QMessageBox::Question, QString(), QStringLiteral("below"), QMessageBox::Ok);
        int above = 0;
        connect(below.button(QMessageBox::Ok), &QAbstractButton::clicked,
            [&above] { above = ask("above", QMessageBox::Yes | QMessageBox::No); });
        QCOMPARE(below.exec(), int(QMessageBox::Ok));
        QCOMPARE(above, int(QMessageBox::Yes));
        QCOMPARE(robot.texts(), (QStringList{"below", "above"}));
    }

    void aBoxThatIsGoneBeforeItsAnswerIsNotMissed()
    {
        MessageBoxRobot robot({QMessageBox::Ok});
        auto box = std::make_unique<QMessageBox>();
        box->show();
        box.reset();
        QCoreApplication::processEvents();
        QCOMPARE(robot.boxes().size(), 0);
        QCOMPARE(robot.unanswered(), 1);
    }

    void otherWindowsAreLeftAlone()
    {
        MessageBoxRobot robot({QMessageBox::Ok});
        QDialog dialog;
        dialog.show();
        QCoreApplication::processEvents();
        QVERIFY(dialog.isVisible());
        QCOMPARE(robot.boxes().size(), 0);
        QCOMPARE(robot.unanswered(), 1);
    }

    void aRobotThatIsGoneAnswersNothing()
    {
        std::make_unique<MessageBoxRobot>(QList<QMessageBox::StandardButton>{QMessageBox::Yes}).reset();
        QMessageBox box(QMessageBox::Question, QString(), QString(), QMessageBox::Yes | QMessageBox::No);
        box.show();
        QCoreApplication::processEvents();
        QVERIFY(box.isVisible());
    }
};

QTEST_MAIN(tst_MessageBoxRobot)
#include "tst_MessageBoxRobot.moc"
