#include "tests/editor/Files.h"
#include "tests/editor/ShownWindow.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

using namespace tessel::editor;
using namespace tessel::test;

/// For those who do not see.
class tst_MainWindowAccess : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { folder.use("tst_MainWindowAccess"); }
    void init() { WindowFolder::forget(); }

    void everythingHasANameForReaders_data()
    {
        QTest::addColumn<QString>("state");
        for (const char *state : {"start", "sample", "notice"})
            QTest::newRow(state) << QString(state);
    }
    void everythingHasANameForReaders()
    {
        QFETCH(QString, state);
        ShownWindow window;
        if (state != "start") {
            window.openSample();
            window.goTo(personInSample() + "/variables/4/valueLabels/0");
        }
        if (state == "notice") {
            QVERIFY(put(folder.filePath("odd.json"), R"({"name": "D", "odd": 1})"));
            QVERIFY(window.main.files().openFile(folder.filePath("odd.json")));
            QTRY_VERIFY(!window.notice().isEmpty());
        }
        QStringList nameless;
        QSet<QObject *> seen;
        int named = 0;
        const auto isPartOfNamed = [](const QWidget *widget) {
            // Qt's own parts: the tabs' arrows, a scroll bar's, the buttons of a dock's title and the one in
            // the bars that shows what does not fit; what opens with a box's arrow; the corner of a table
            // and its headers, which tables speak for; the line inside a box, which the box speaks for.
            const QByteArray type = widget->metaObject()->className();
            const QString name = widget->objectName();
            return type == "QDockWidgetTitleButton" || type == "QToolBarExtension" || type == "QSizeGrip"
                || name == "qt_menubar_ext_button" || type == "QMainWindowTabBar"
                || type == "QComboBoxPrivateContainer" || type == "QComboBoxListView"
                || type == "QTableCornerButton" || type == "QHeaderView" || type == "QScrollBar"
                || type == "QTabBar" || name == "qt_spinbox_lineedit" || name == "ScrollLeftButton"
                || name == "ScrollRightButton" || name == "qt_toolbar_ext_button"
                || name.startsWith("qt_dockwidget") || type == "QLineEditIconButton";
        };
        const std::function<void(QWidget *)> walk = [&](QWidget *widget) {
            if (seen.contains(widget))
                return;
            seen.insert(widget);
            QAccessibleInterface *readable = QAccessible::queryAccessibleInterface(widget);
            const bool wantsName = qobject_cast<QAbstractItemView *>(widget)
                || qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractButton *>(widget)
                || qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget)
                || qobject_cast<QPlainTextEdit *>(widget);
            if (wantsName && !isPartOfNamed(widget)) {
                if (!readable || readable->text(QAccessible::Name).trimmed().isEmpty())
                    nameless +=
                        QString("%1 \"%2\"").arg(widget->metaObject()->className(), widget->objectName());
                else
                    ++named;
            }
            for (QObject *child : widget->children()) {
                if (child->isWidgetType() && !isPartOfNamed(widget))
                    walk(static_cast<QWidget *>(child));
            }
        };
        walk(&window.main);
        QCOMPARE(nameless.join("; "), QString());
        QVERIFY2(named > 40, qPrintable(QString::number(named)));
        // What readers walk by themselves reaches the tables.
        QStringList reached;
        const std::function<void(QAccessibleInterface *)> read = [&](QAccessibleInterface *item) {
            if (item->object() && item->role() == QAccessible::Table)
                reached += item->text(QAccessible::Name);
            if (item->role() == QAccessible::Table || item->role() == QAccessible::Tree)
                return;
            for (int i = 0; i < item->childCount(); ++i) {
                if (QAccessibleInterface *child = item->child(i))
                    read(child);
            }
        };
        read(QAccessible::queryAccessibleInterface(&window.main));
        for (const char *name : {"Variables", "Value labels", "Ranges"})
            QVERIFY2(reached.contains(name), qPrintable(reached.join(", ")));
        QFile::remove(folder.filePath("odd.json"));
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindowAccess)
#include "tst_MainWindowAccess.moc"
