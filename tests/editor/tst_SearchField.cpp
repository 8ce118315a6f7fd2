#include "editor/views/SearchField.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QToolButton>
#include <QtTest>

using namespace tessel::editor;

namespace {

/// A search field over five fruits.
struct Search {
    Search()
        : fruits({"APPLE", "PEAR", "PLUM", "PINEAPPLE", "FIG.A"})
    {
        proxy.setSourceModel(&fruits);
        field = std::make_unique<SearchField>(proxy, "Search fruits");
        line = field->findChild<QLineEdit *>("search");
        pattern = field->findChild<QToolButton *>("pattern");
        field->show();
        field->activateWindow();
    }

    QString shown() const
    {
        QStringList names;
        for (int row = 0; row < proxy.rowCount(); ++row)
            names += proxy.index(row, 0).data().toString();
        return names.join(' ');
    }

    QStringListModel fruits;
    QSortFilterProxyModel proxy;
    std::unique_ptr<SearchField> field;
    QLineEdit *line;
    QToolButton *pattern;
};

} // namespace

class tst_SearchField : public QObject {
    Q_OBJECT

private slots:
    void whatIsTypedIsLookedFor_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("asPattern");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("count");
        QTest::newRow("nothing") << "" << false << "APPLE PEAR PLUM PINEAPPLE FIG.A"
                                 << "5";
        QTest::newRow("lower case") << "apple" << false << "APPLE PINEAPPLE"
                                    << "2 of 5";
        QTest::newRow("upper case") << "PLUM" << false << "PLUM"
                                    << "1 of 5";
        QTest::newRow("what is nowhere") << "kiwi" << false << ""
                                         << "0 of 5";
        QTest::newRow("a point is a point") << "." << false << "FIG.A"
                                            << "1 of 5";
        QTest::newRow("a blank at the end does not count") << "a " << false << "APPLE PEAR PINEAPPLE FIG.A"
                                                           << "4 of 5";
        QTest::newRow("a bracket is a bracket") << "(" << false << ""
                                                << "0 of 5";
        QTest::newRow("a pattern") << "^p.*(r|m)$" << true << "PEAR PLUM"
                                   << "2 of 5";
        QTest::newRow("a pattern with a class in lower case") << "\\wear" << true << "PEAR"
                                                              << "1 of 5";
        QTest::newRow("an empty pattern") << "" << true << "APPLE PEAR PLUM PINEAPPLE FIG.A"
                                          << "5";
    }
    void whatIsTypedIsLookedFor()
    {
        QFETCH(QString, typed);
        QFETCH(bool, asPattern);
        Search search;
        if (asPattern)
            QTest::mouseClick(search.pattern, Qt::LeftButton);
        QTest::keyClicks(search.line, typed);
        QTEST(search.shown(), "shown");
        QTEST(search.field->countText(), "count");
        QVERIFY(search.field->isPatternValid());
        QCOMPARE(search.field->text(), typed);
        QCOMPARE(search.field->findChild<QLabel *>("count")->text(), search.field->countText());
    }

    void theSwitchJudgesWhatStandsThereAnew()
    {
        Search search;
        QTest::keyClicks(search.line, "g.a");
        QCOMPARE(search.shown(), QString("FIG.A"));
        search.line->setText("p.e");
        QCOMPARE(search.shown(), QString());
        QTest::mouseClick(search.pattern, Qt::LeftButton);
        QCOMPARE(search.shown(), QString("APPLE PINEAPPLE"));
        QTest::mouseClick(search.pattern, Qt::LeftButton);
        QCOMPARE(search.shown(), QString());
    }

    void aBadPatternIsRedAndSaysWhy()
    {
        Search search;
        const QColor usual = search.line->palette().color(QPalette::Text);
        QTest::keyClicks(search.line, "(");
        QVERIFY(search.field->isPatternValid());
        QTest::mouseClick(search.pattern, Qt::LeftButton);
        QVERIFY(!search.field->isPatternValid());
        QCOMPARE(search.line->palette().color(QPalette::Text), QColor(0xb3, 0, 0));
        QCOMPARE(search.line->toolTip(), QString("This is no pattern: unexpected end."));
        QTest::keyClicks(search.line, "pl)");
        QVERIFY(search.field->isPatternValid());
        QCOMPARE(search.line->palette().color(QPalette::Text), usual);
        QCOMPARE(search.line->toolTip(),
            QString("Part of a text, or a regular expression such as ^P0[1-9]; letter case does not count."));
        QCOMPARE(search.shown(), QString("APPLE PLUM PINEAPPLE"));
    }

    void aGoodPatternHasTheColourOfItsPalette()
    {
        Search search;
        QTest::mouseClick(search.pattern, Qt::LeftButton);
        QTest::keyClicks(search.line, "(");
        QTest::keyClick(search.line, Qt::Key_Backspace);
        QPalette dark = QApplication::palette();
        dark.setColor(QPalette::Text, Qt::white);
        search.field->setPalette(dark);
        QCOMPARE(search.line->palette().color(QPalette::Text), QColor(Qt::white));
    }

    void theCountFollowsTheRows()
    {
        Search search;
        search.fruits.insertRows(0, 1);
        QCOMPARE(search.field->countText(), QString("6"));
        search.fruits.setStringList({"APPLE", "PEAR", "PLUM", "FIG"});
        QCOMPARE(search.field->countText(), QString("4"));
        QTest::keyClicks(search.line, "p");
        QCOMPARE(search.field->countText(), QString("3 of 4"));
        search.fruits.setStringList({"POMELO"});
        QCOMPARE(search.field->countText(), QString("1 of 1"));
        search.fruits.setData(search.fruits.index(0), "LIME");
        QCOMPARE(search.field->countText(), QString("0 of 1"));
        search.proxy.setSourceModel(nullptr);
        QCOMPARE(search.field->countText(), QString("0 of 0"));
    }

    void theWholeTextIsChosenWhenTheFieldIsGoneTo()
    {
        Search search;
        QVERIFY(QTest::qWaitForWindowActive(search.field.get()));
        search.pattern->setFocus();
        search.line->setText("plum");
        search.field->activate();
        QCOMPARE(QApplication::focusWidget(), search.line);
        QCOMPARE(search.line->selectedText(), QString("plum"));
        // With the cursor in it, too.
        search.line->deselect();
        search.field->activate();
        QCOMPARE(search.line->selectedText(), QString("plum"));
        QTest::keyClicks(search.line, "fig");
        QCOMPARE(search.shown(), QString("FIG.A"));
        search.field->clear();
        QCOMPARE(search.field->text(), QString());
        QCOMPARE(search.proxy.rowCount(), 5);
    }

    void whatItIsForStandsInTheEmptyField()
    {
        Search search;
        QCOMPARE(search.line->placeholderText(), QString("Search fruits"));
        QCOMPARE(search.line->accessibleName(), QString("Search fruits"));
        QCOMPARE(search.pattern->toolTip(), QString("Search with a pattern (regular expression)"));
        QCOMPARE(search.field->focusProxy(), search.line);
    }
};

QTEST_MAIN(tst_SearchField)
#include "tst_SearchField.moc"
