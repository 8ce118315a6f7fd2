#include "editor/AboutBox.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::editor", text); }

QString plain(QString text) { return text.remove(QLatin1Char('&')); }

void addKeys(QTreeWidget *list, const QString &menu, const QList<QAction *> &actions)
{
    for (const QAction *action : actions) {
        if (action->menu())
            addKeys(list, menu, action->menu()->actions());
        else if (!action->shortcut().isEmpty())
            list->addTopLevelItem(new QTreeWidgetItem(
                {action->shortcut().toString(QKeySequence::NativeText), plain(action->text()), menu}));
    }
}

} // namespace

void showAbout(QWidget *parent)
{
    QMessageBox box(QMessageBox::NoIcon, tr("About Tessel"),
        tr("Tessel %1\n\nData dictionaries for hierarchical statistical databases.")
            .arg(QCoreApplication::applicationVersion()),
        QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setIconPixmap(QApplication::windowIcon().pixmap(64));
    box.exec();
}

void showKeys(QWidget *parent, const QMenuBar *menus)
{
    auto *dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Keys"));
    auto *list = new QTreeWidget(dialog);
    list->setAccessibleName(tr("Keys"));
    list->setHeaderLabels({tr("Key"), tr("Does"), tr("Menu")});
    list->setRootIsDecorated(false);
    const QList<QAction *> actions = menus->actions();
    for (const QAction *menu : actions) {
        if (menu->menu())
            addKeys(list, plain(menu->text()), menu->menu()->actions());
    }
    // Keys of the tables, which stand in no menu.
    list->addTopLevelItem(
        new QTreeWidgetItem({QStringLiteral("F2"), tr("Type into the cell"), tr("Tables")}));
    list->addTopLevelItem(
        new QTreeWidgetItem({tr("Return"), tr("Keep what was typed and go to the next row"), tr("Tables")}));
    for (int column = 0; column < 3; ++column)
        list->resizeColumnToContents(column);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(list);
    layout->addWidget(buttons);
    dialog->resize(560, 560);
    dialog->show();
}

} // namespace tessel::editor
