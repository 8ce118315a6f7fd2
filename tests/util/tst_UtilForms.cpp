#include "util/UtilForms.h"

#include "tests/support/MessageBoxRobot.h"

#include <QLabel>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <type_traits>

using tessel::test::MessageBoxRobot;

using Show = void (*)(QString);
using Act = std::function<void(QMessageBox &)>;

static_assert(!std::is_default_constructible_v<UtilForms>);
static_assert(std::is_same_v<decltype(&UtilForms::showErrorMessage), Show>);
static_assert(std::is_same_v<decltype(&UtilForms::showInfoMessage), Show>);
static_assert(
    std::is_same_v<decltype(&UtilForms::displayYesNoCancelMessageBox), int (*)(QWidget *, QString, QString)>);

Q_DECLARE_METATYPE(Show)
Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

/// Does \a act to each message box that is shown while it lives. A box that is still there afterwards is
/// taken away, so that a test fails instead of waiting.
class OnBox : public QObject {
public:
    explicit OnBox(Act action)
        : act(std::move(action))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = qobject_cast<QMessageBox *>(watched);
        if (box && event->type() == QEvent::Show) {
            QTimer::singleShot(0, box, [this, box] {
                ++count;
                act(*box);
                if (box->isVisible())
                    box->done(QMessageBox::NoButton);
            });
        }
        return false;
    }

    int count = 0;

private:
    Act act;
};

/// Says the same of every text of UtilForms, with its context.
class Translation : public QTranslator {
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "UtilForms") == 0 ? QStringLiteral("translated %1").arg(QLatin1String(source))
                                                  : QString();
    }
    bool isEmpty() const override { return false; }
};

void addTexts()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a sentence") << "Invalid string";
    QTest::newRow("no text") << "";
    QTest::newRow("two lines") << "A\nB\n";
    QTest::newRow("markup") << "<b>bold</b><br><img src='x.png'>";
    QTest::newRow("a whole rich text") << "<html><body><h1>Title</h1></body></html>";
    QTest::newRow("entities") << "&amp; &lt; &#65;";
    QTest::newRow("an ampersand before a letter") << "R&D && more";
    QTest::newRow("placeholders") << "%1 %2 %L1 %n";
    QTest::newRow("control characters") << QString("a\tb\u0001") + QChar(0) + "c";
    QTest::newRow("an unpaired surrogate") << QString(QChar(0xd800));
    QTest::newRow("beyond the basic plane") << "\U0001F600";
    QTest::newRow("a hundred thousand characters") << QString(100'000, 'x');
}

/// What the box's own label shows, and how.
QString shownBy(const QMessageBox &box)
{
    const auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    return label && label->textFormat() == Qt::PlainText && label->isVisible() ? label->text()
                                                                               : QStringLiteral("(no label)");
}

int question(QWidget *parent = nullptr)
{
    return UtilForms::displayYesNoCancelMessageBox(
        parent, QStringLiteral("Overwrite"), QStringLiteral("AGE already exists. Overwrite?"));
}

/// The standard button that has the keyboard in \a box.
QMessageBox::StandardButton focused(const QMessageBox &box)
{
    auto *button = qobject_cast<QAbstractButton *>(box.focusWidget());
    return button ? box.standardButton(button) : QMessageBox::NoButton;
}

} // namespace

class tst_UtilForms : public QObject {
    Q_OBJECT

private slots:
    void aMessageIsOneModalBoxWithOneButton_data()
    {
        QTest::addColumn<Show>("show");
        QTest::addColumn<QMessageBox::Icon>("icon");
        QTest::addColumn<QString>("title");
        QTest::newRow("error") << Show(&UtilForms::showErrorMessage) << QMessageBox::Critical << "Error";
        QTest::newRow("information") << Show(&UtilForms::showInfoMessage) << QMessageBox::Information
                                     << "Information";
    }

    void aMessageIsOneModalBoxWithOneButton()
    {
        QFETCH(Show, show);
        QFETCH(QMessageBox::Icon, icon);
        QFETCH(QString, title);
        MessageBoxRobot robot({QMessageBox::Ok});
        show("Entity name already exists");
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.boxes().size(), 1);
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.icon, icon);
        QCOMPARE(box.title, title);
        QCOMPARE(box.text, QStringLiteral("Entity name already exists"));
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.defaultButton, QMessageBox::Ok);
        QCOMPARE(box.textFormat, Qt::PlainText);
        QVERIFY(box.isModal);
        QCOMPARE(box.parent, nullptr);
    }

    void aMessageGoesAwayHoweverItIsAnswered_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("planned");
        QTest::newRow("the button") << QMessageBox::Ok;
        QTest::newRow("Return") << MessageBoxRobot::PressReturn;
        QTest::newRow("Escape") << MessageBoxRobot::PressEscape;
        QTest::newRow("closing the window") << MessageBoxRobot::CloseWindow;
    }

    void aMessageGoesAwayHoweverItIsAnswered()
    {
        QFETCH(QMessageBox::StandardButton, planned);
        MessageBoxRobot robot({planned, planned});
        UtilForms::showErrorMessage("E");
        UtilForms::showInfoMessage("I");
        QCOMPARE(robot.texts(), (QStringList{"E", "I"}));
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.unplanned(), 0);
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void textsAreShownAsTheyAre_data() { addTexts(); }

    void textsAreShownAsTheyAre()
    {
        QFETCH(QString, text);
        QStringList shown;
        OnBox look([&shown](QMessageBox &box) { shown += shownBy(box); });
        UtilForms::showErrorMessage(text);
        UtilForms::showInfoMessage(text);
        UtilForms::displayYesNoCancelMessageBox(nullptr, QStringLiteral("T"), text);
        QCOMPARE(shown, (QStringList{text, text, text}));
        QCOMPARE(look.count, 3);
    }

    void aQuestionIsOneModalBoxWithThreeButtons_data()
    {
        QTest::addColumn<bool>("withParent");
        QTest::newRow("without a parent") << false;
        QTest::newRow("above a widget") << true;
    }

    void aQuestionIsOneModalBoxWithThreeButtons()
    {
        QFETCH(bool, withParent);
        QWidget window;
        QWidget *parent = withParent ? &window : nullptr;
        MessageBoxRobot robot({QMessageBox::No});
        QCOMPARE(question(parent), 1);
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.boxes().size(), 1);
        const MessageBoxRobot::Box box = robot.boxes().first();
        QCOMPARE(box.icon, QMessageBox::Question);
        QCOMPARE(box.title, QStringLiteral("Overwrite"));
        QCOMPARE(box.text, QStringLiteral("AGE already exists. Overwrite?"));
        QCOMPARE(box.buttons,
            QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel));
        QCOMPARE(box.textFormat, Qt::PlainText);
        QVERIFY(box.isModal);
        QCOMPARE(box.parent, parent);
        QVERIFY(window.children().isEmpty());
    }

    void aQuestionKeepsTheTitleItIsGiven_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("none") << "";
        QTest::newRow("words") << "Data dictionary";
        QTest::newRow("markup") << "<b>&amp;</b>";
    }

    void aQuestionKeepsTheTitleItIsGiven()
    {
        QFETCH(QString, title);
        MessageBoxRobot robot({QMessageBox::Cancel});
        UtilForms::displayYesNoCancelMessageBox(nullptr, title, "?");
        QCOMPARE(robot.boxes().value(0).title, title);
    }

    void everyAnswerHasItsNumber_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("planned");
        QTest::addColumn<int>("result");
        QTest::newRow("Yes") << QMessageBox::Yes << 0;
        QTest::newRow("No") << QMessageBox::No << 1;
        QTest::newRow("Cancel") << QMessageBox::Cancel << 2;
        QTest::newRow("Escape counts as Cancel") << MessageBoxRobot::PressEscape << 2;
        QTest::newRow("closing the window counts as Cancel") << MessageBoxRobot::CloseWindow << 2;
    }

    void everyAnswerHasItsNumber()
    {
        QFETCH(QMessageBox::StandardButton, planned);
        QFETCH(int, result);
        QWidget parent;
        MessageBoxRobot robot({planned, planned});
        QCOMPARE(question(), result);
        QCOMPARE(question(&parent), result);
        QCOMPARE(robot.unanswered(), 0);
        QCOMPARE(robot.unplanned(), 0);
    }

    void aQuestionTakenAwayWithoutAnAnswerCountsAsCancel()
    {
        OnBox takeAway([](QMessageBox &box) { box.done(QMessageBox::NoButton); });
        QCOMPARE(question(), 2);
        OnBox reject([](QMessageBox &box) { box.reject(); });
        QCOMPARE(question(), 2);
    }

    void returnPressesTheDefaultButton()
    {
        MessageBoxRobot robot({MessageBoxRobot::PressReturn});
        const int result = question();
        const QMessageBox::StandardButton preset = robot.boxes().value(0).defaultButton;
        QCOMPARE(preset, QMessageBox::Yes);
        QCOMPARE(result, 0);
    }

    void tabGoesRoundThroughAllButtons()
    {
        QList<QMessageBox::StandardButton> reached;
        OnBox look([&reached](QMessageBox &box) {
            QVERIFY(QTest::qWaitForWindowActive(&box));
            const QWidget *start = box.focusWidget();
            QVERIFY(start);
            do {
                if (focused(box) != QMessageBox::NoButton)
                    reached += focused(box);
                QTest::keyClick(&box, Qt::Key_Tab);
            } while (box.focusWidget() != start && reached.size() < 10);
        });
        question();
        QCOMPARE(look.count, 1);
        QCOMPARE(reached,
            (QList<QMessageBox::StandardButton>{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}));
    }

    void spacePressesTheButtonThatHasTheKeyboard_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("button");
        QTest::addColumn<int>("result");
        QTest::newRow("Yes") << QMessageBox::Yes << 0;
        QTest::newRow("No") << QMessageBox::No << 1;
        QTest::newRow("Cancel") << QMessageBox::Cancel << 2;
    }

    void spacePressesTheButtonThatHasTheKeyboard()
    {
        QFETCH(QMessageBox::StandardButton, button);
        QFETCH(int, result);
        OnBox press([button](QMessageBox &box) {
            QVERIFY(QTest::qWaitForWindowActive(&box));
            for (int tab = 0; tab < 9 && focused(box) != button; ++tab)
                QTest::keyClick(&box, Qt::Key_Tab);
            QTest::keyClick(box.focusWidget(), Qt::Key_Space);
        });
        QCOMPARE(question(), result);
    }

    void nothingElseOfTheProgramCanBeUsedMeanwhile_data()
    {
        QTest::addColumn<bool>("withParent");
        QTest::newRow("without a parent") << false;
        QTest::newRow("above a widget") << true;
    }

    void nothingElseOfTheProgramCanBeUsedMeanwhile()
    {
        QFETCH(bool, withParent);
        QWidget window;
        QList<Qt::WindowModality> modalities;
        OnBox look([&modalities](QMessageBox &box) {
            modalities += box.windowModality();
            box.done(QMessageBox::No);
        });
        question(withParent ? &window : nullptr);
        UtilForms::showErrorMessage("E");
        UtilForms::showInfoMessage("I");
        QCOMPARE(modalities,
            (QList<Qt::WindowModality>{Qt::ApplicationModal, Qt::ApplicationModal, Qt::ApplicationModal}));
    }

    void titlesAreTranslatedTextsAreNot()
    {
        Translation translation;
        QVERIFY(QCoreApplication::installTranslator(&translation));
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok, QMessageBox::No});
        UtilForms::showErrorMessage("Error");
        UtilForms::showInfoMessage("Information");
        UtilForms::displayYesNoCancelMessageBox(nullptr, "Error", "Error");
        QCoreApplication::removeTranslator(&translation);
        QStringList titles;
        const QList<MessageBoxRobot::Box> boxes = robot.boxes();
        for (const MessageBoxRobot::Box &box : boxes)
            titles += box.title;
        QCOMPARE(titles, (QStringList{"translated Error", "translated Information", "Error"}));
        QCOMPARE(robot.texts(), (QStringList{"Error", "Information", "Error"}));
    }
};

QTEST_MAIN(tst_UtilForms)
#include "tst_UtilForms.moc"
