#include "editor/views/EntityPane.h"

#include "business/models/DictionaryTreeModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/NameOrLabelProxy.h"
#include "editor/Question.h"
#include "editor/RecordingDelegate.h"
#include "editor/Structure.h"
#include "model/TDmEntity.h"
#include "util/Validate.h"

#include <QTreeView>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

/// The model refuses two kinds of names without a word.
QString silentFaultOf(const QString &name)
{
    Validate rules;
    if (!rules.validateEmpty(name))
        return EntityPane::tr("an entity needs a name");
    return rules.validateName(name)
        ? QString()
        : EntityPane::tr("a name begins with a letter or _ and goes on with letters, digits and _");
}

} // namespace

EntityPane::EntityPane(DictionaryDocument &editedDocument, QWidget *parent)
    : QWidget(parent)
    , document(editedDocument)
    , tree(new QTreeView(this))
{
    tree->setObjectName(QStringLiteral("entities"));
    tree->setAccessibleName(tr("Entities"));
    tree->setHeaderHidden(true);
    tree->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    tree->setUniformRowHeights(true);
    // Census trees are deep and the dock is narrow.
    tree->setIndentation(12);
    tree->setExpandsOnDoubleClick(false);
    auto *delegate = new RecordingDelegate(document,
        {[this](const QModelIndex &index) {
             Scope scope;
             if (TDmEntity *entity = proxy->nodeAt(index))
                 scope = Scope::ofEntity(*entity);
             return scope;
         },
            [](const QModelIndex &index) { return tr("rename %1").arg(index.data(Qt::EditRole).toString()); },
            [](const QModelIndex &, const QString &typed) { return silentFaultOf(typed); }},
        this);
    tree->setItemDelegate(delegate);
    connect(delegate, &RecordingDelegate::refused, this, &EntityPane::told);
    connect(delegate, &RecordingDelegate::notTaken, this, &EntityPane::warned);
    setFocusProxy(tree);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tree);
    connect(&document, &DictionaryDocument::changed, this, &EntityPane::followEdit);
    connect(&document, &DictionaryDocument::aboutToReset, this, [this] {
        forget();
        collapsed.clear();
    });
    connect(tree, &QTreeView::collapsed, this,
        [this](const QModelIndex &index) { collapsed.insert(proxy->nodeAt(index)); });
    connect(tree, &QTreeView::expanded, this,
        [this](const QModelIndex &index) { collapsed.remove(proxy->nodeAt(index)); });
    connect(&document, &DictionaryDocument::reset, this, [this] {
        rebuild();
        // The first place where there is something to see.
        const QList<TDmEntity *> &tops = *document.root().getChildren();
        select(tops.isEmpty() ? &document.root() : tops.first());
    });
    rebuild();
}

EntityPane::~EntityPane() { forget(); }

void EntityPane::forget()
{
    tree->setModel(nullptr);
    proxy.reset();
    model.reset();
}

TDmEntity *EntityPane::currentEntity() const { return proxy ? proxy->nodeAt(tree->currentIndex()) : nullptr; }

void EntityPane::select(const TDmEntity *entity)
{
    const QModelIndex index = proxy->indexOf(entity);
    if (index.isValid())
        tree->setCurrentIndex(index);
}

void EntityPane::showLabels(bool on)
{
    showsLabels = on;
    proxy->setShowsLabels(on);
    tree->viewport()->update();
}

void EntityPane::followEdit(const Touched &touched)
{
    if (touched.isTree)
        rebuild();
    else if (!touched.entities.isEmpty())
        tree->viewport()->update();
}

void EntityPane::rebuild()
{
    const TDmEntity *current = currentEntity();
    const auto forEachIndex = [this](auto &&visit) {
        QModelIndexList pending{proxy->index(0, 0)};
        while (!pending.isEmpty()) {
            const QModelIndex index = pending.takeLast();
            visit(index);
            for (int row = 0; row < proxy->rowCount(index); ++row)
                pending.append(proxy->index(row, 0, index));
        }
    };
    forget();
    model = std::make_unique<DictionaryTreeModel>(nullptr, &document.root());
    proxy = std::make_unique<NameOrLabelProxy>(&document.root());
    proxy->setShowsLabels(showsLabels);
    proxy->setSourceModel(model.get());
    tree->setModel(proxy.get());
    connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &EntityPane::currentEntityChanged);
    // What is collapsed is remembered, so that new entities are seen at once. One without children is never
    // expanded: the key to the left would have to collapse it first.
    forEachIndex([&](const QModelIndex &index) {
        if (proxy->rowCount(index) > 0 && !collapsed.contains(proxy->nodeAt(index)))
            tree->expand(index);
    });
    const QModelIndex known = proxy->indexOf(current);
    tree->setCurrentIndex(known.isValid() ? known : proxy->index(0, 0));
}

void EntityPane::addRow()
{
    TDmEntity *parent = currentEntity();
    TDmEntity *entity = Structure(document).addEntity(parent ? *parent : document.root());
    select(entity);
    tree->setFocus();
    tree->edit(tree->currentIndex());
}

void EntityPane::removeSelected()
{
    TDmEntity *entity = currentEntity();
    if (!entity || entity == &document.root())
        return;
    const bool holdsWork = !entity->getChildren()->isEmpty() || !entity->getVariables()->isEmpty();
    if (holdsWork
        && !isConfirmed(this, tr("Delete entity"),
            tr("%1 goes with its variables and all entities below it. Delete?").arg(entity->getName())))
        return;
    Structure structure(document);
    TDmEntity *parent = structure.parentOf(*entity);
    structure.removeEntity(*entity);
    select(parent);
}

void EntityPane::moveSelected(int steps)
{
    if (TDmEntity *entity = currentEntity())
        Structure(document).moveEntity(*entity, steps);
}

} // namespace tessel::editor
