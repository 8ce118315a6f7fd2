// What the start of the editor is held against: a window with an empty tree and an empty table.

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QTableView>
#include <QTreeView>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto *dock = new QDockWidget(&window);
    dock->setWidget(new QTreeView);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.setCentralWidget(new QTableView);
    window.resize(1280, 800);
    window.show();
    QApplication::processEvents();
    return 0;
}
