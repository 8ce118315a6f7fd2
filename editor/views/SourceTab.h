#pragma once

#include <QAbstractItemModel>
#include <QList>
#include <QWidget>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QBoxLayout;
class QLabel;
class QMimeData;
class QPushButton;
class QSortFilterProxyModel;

namespace tessel::editor {

class SearchLine;
class SourceLine;
class SourceTable;

/// One catalogue of the sources: its table with a filter, what is known of the opened file, and the way into
/// the variable table.
class SourceTab : public QWidget {
    Q_OBJECT

public:
    /// What one tab says differently from the next.
    struct Words {
        QString name; ///< Of the table, for those who do not see it.
        QString openTip;
        QString emptyText; ///< What to do as long as nothing has been opened.
        QString nothingFound; ///< For what was opened and holds no rows.
    };

    /// \a proxyModel filters and sorts the catalogue; it becomes a child of this tab. The catalogue is to be
    /// set at once, if only an empty one. Names of child widgets begin with \a prefix.
    SourceTab(
        const QString &prefix, const Words &tabWords, QSortFilterProxyModel *proxyModel, QWidget *parent);
    ~SourceTab() override;

    /// Gives the keyboard to the filter.
    void focusFilter();

signals:
    /// \a data holds the selected rows as the catalogue writes them; it is good until the receivers return.
    void addRequested(const QMimeData *data);

    /// A file is wanted: the button was pressed.
    void openRequested();

    /// Something could not be read; one sentence.
    void problemFound(const QString &sentence);

protected:
    /// Shows a catalogue of \a items instead of the one before, and keeps them as long as it: a Model made of
    /// their list and of \a more. The filter is cleared.
    template<typename Model, typename Item, typename... More>
    void showCatalogue(std::vector<std::unique_ptr<Item>> items, const More &...more)
    {
        const auto kept = std::make_shared<std::vector<std::unique_ptr<Item>>>(std::move(items));
        QList<Item *> list;
        for (const auto &item : *kept)
            list.append(item.get());
        setCatalogue(kept, std::make_unique<Model>(nullptr, &list, more...));
    }

    /// Tells what is known of the file: \a title with its whole path, and \a sentences. From now on the tab
    /// is one that was opened.
    void describe(const QString &title, const QStringList &sentences);

    /// Asks for a file in a window that leaves the program running; \a receive gets its name.
    void askForFile(const QString &title, const QString &filters, const QString &folder,
        const std::function<void(const QString &)> &receive);

    SourceTable *sourceTable() const { return table; }
    QBoxLayout *toolRow() const { return tools; }

    /// The row of what is known of the file.
    QBoxLayout *lineRow() const { return knowledge; }

private:
    void setCatalogue(std::shared_ptr<void> objects, std::unique_ptr<QAbstractItemModel> model);
    void add();
    void showState();

    const Words words;
    QSortFilterProxyModel *const proxy;
    std::shared_ptr<void> borrowed;
    std::unique_ptr<QAbstractItemModel> catalogue;
    QBoxLayout *tools;
    QBoxLayout *knowledge;
    SourceLine *line;
    SearchLine *filter;
    QLabel *count;
    QPushButton *addButton;
    SourceTable *table;
    bool isOpened = false;
};

} // namespace tessel::editor
