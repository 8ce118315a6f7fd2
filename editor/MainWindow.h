#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>

class QDockWidget;
class QLabel;
class QMenu;
class QStackedWidget;
class QTabWidget;

namespace tessel::editor {

class AutoSave;
class DeclaredCodesOffer;
class DictionaryDocument;
class EntityForm;
class EntityPane;
class FileHandling;
class LabelPane;
class NoticeBar;
class ProblemsPane;
class RangePane;
class SourcesPane;
class StartPage;
class TablePane;
class VariableForm;
class VariablePane;

/// The editor's window. It only composes: panes, menus and what one selection means to the others.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    DictionaryDocument &document() { return *dictionary; }
    FileHandling &files() { return *fileHandling; }

    /// Goes to the place that the JSON pointer \a path names.
    void goTo(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makePanes();
    QDockWidget *makeDock(
        const QString &title, const QString &name, QWidget *content, Qt::DockWidgetArea area);
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeDictionaryMenu();
    void makeRunMenu();
    void makeHelpMenu();
    void makeLanguageMenu(QMenu *menu);
    void connectPanes();
    void restoreWindow();

    void showEntity();
    void showVariable();
    void showTitle();
    void showCounts();
    void showStart(bool on);
    void tellLosses();
    void fillRecentFiles(QMenu *menu);

    /// Shows \a page of the details, wherever they are.
    void showDetails(QWidget *page);

    /// The table that has the focus, or holds what has; null for the tree and the rest.
    TablePane *focusedTable() const;
    bool isTreeFocused() const;
    void addAtFocus();
    void removeAtFocus();
    void moveAtFocus(int steps);
    void find();

    std::unique_ptr<DictionaryDocument> dictionary;
    FileHandling *fileHandling;
    AutoSave *autoSave;
    QStackedWidget *centre = nullptr;
    StartPage *startPage = nullptr;
    NoticeBar *notice = nullptr;
    DeclaredCodesOffer *codesOffer = nullptr;
    EntityPane *entities = nullptr;
    VariablePane *variables = nullptr;
    LabelPane *labels = nullptr;
    RangePane *ranges = nullptr;
    VariableForm *variableForm = nullptr;
    EntityForm *entityForm = nullptr;
    SourcesPane *sources = nullptr;
    ProblemsPane *problems = nullptr;
    QTabWidget *details = nullptr;
    QDockWidget *entityDock = nullptr;
    QDockWidget *detailDock = nullptr;
    QDockWidget *sourcesDock = nullptr;
    QDockWidget *problemsDock = nullptr;
    QLabel *counts = nullptr;
    QLabel *heading = nullptr;
};

} // namespace tessel::editor
