#pragma once

#include "editor/Touched.h"

#include <QSet>
#include <QWidget>

#include <memory>

class QTreeView;
class DictionaryTreeModel;
class TDmEntity;

namespace tessel::editor {

class DictionaryDocument;
class NameOrLabelProxy;

/// The dictionary's entities as a tree, shown by names or by labels: renamed in place under the dictionary's
/// rules, added, deleted and moved. What is expanded and chosen survives every edit.
class EntityPane : public QWidget {
    Q_OBJECT

public:
    explicit EntityPane(DictionaryDocument &document, QWidget *parent = nullptr);
    ~EntityPane() override;

    QTreeView *view() const { return tree; }

    /// Null when nothing is chosen.
    TDmEntity *currentEntity() const;
    void select(const TDmEntity *entity);

public slots:
    /// Adds an entity below the chosen one, or below the dictionary, and opens its name for typing.
    void addRow();
    void removeSelected();
    void moveSelected(int steps);

    /// Shows the entities' labels instead of their names. What is typed is a name either way.
    void showLabels(bool on);

signals:
    void currentEntityChanged();

    /// One sentence about what could not be done.
    void told(const QString &sentence);

    /// A sentence to stay until it is seen, and what there is to read besides.
    void warned(const QString &sentence, const QString &details);

private:
    void rebuild();
    void followEdit(const Touched &touched);
    void forget();

    DictionaryDocument &document;
    QTreeView *tree;
    std::unique_ptr<DictionaryTreeModel> model;
    std::unique_ptr<NameOrLabelProxy> proxy;
    bool showsLabels = false;

    /// Remembered by entity: the view knows rows, and these have other entities once one is moved.
    QSet<const TDmEntity *> collapsed;
};

} // namespace tessel::editor
