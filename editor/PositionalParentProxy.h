#pragma once

#include <QIdentityProxyModel>
#include <QList>
#include <QVector>

namespace tessel::editor {

/// Stands between a tree model of the library and a view: the same rows, but the parent of an index has its
/// true row. The library's trees answer with the row of the child's level, which upsets the left arrow key,
/// expanding by key and whatever else compares indexes.
///
/// For models of one root, whose indexes carry their node as internal pointer. The parent is looked for anew
/// at every call, from the root down, so that it is right whoever has changed the tree. Borrows the root,
/// which must be the one that the source model shows and outlive this object.
template<typename Node>
class PositionalParentProxy : public QIdentityProxyModel {
public:
    using QObject::parent;

    /// Another root; to be followed by setSourceModel() with the model that shows it. Null: no index has a
    /// parent.
    void setRoot(Node *node) { root = node; }

    /// The node that \a index shows; null for an invalid index and for one of another model.
    Node *nodeAt(const QModelIndex &index) const
    {
        return index.isValid() && index.model() == this ? static_cast<Node *>(index.internalPointer())
                                                        : nullptr;
    }

    /// The index of \a node; invalid when it is not in the tree.
    QModelIndex indexOf(const Node *node) const
    {
        if (!node)
            return QModelIndex();
        if (node == root)
            return index(0, 0);
        const Place place = placeOf(node);
        return place.parent ? createIndex(place.row, 0, place.parent->getChildren()->at(place.row))
                            : QModelIndex();
    }

    /// Invalid for the root and for what is not in the tree.
    QModelIndex parent(const QModelIndex &child) const override
    {
        const Node *node = nodeAt(child);
        if (!node || node == root)
            return QModelIndex();
        const Place place = placeOf(node);
        return place.parent ? createIndex(place.parentRow, 0, place.parent) : QModelIndex();
    }

protected:
    PositionalParentProxy(Node *rootNode, QObject *parent)
        : QIdentityProxyModel(parent)
        , root(rootNode)
    {
    }

private:
    struct Place {
        Node *parent = nullptr;
        int parentRow = 0;
        int row = 0;
    };

    /// Without a parent when \a node is not below the root.
    Place placeOf(const Node *node) const
    {
        struct Step {
            Node *node;
            int row;
        };
        // Not by recursion: a chain of nodes may be longer than the stack is deep.
        QVector<Step> pending{{root, 0}};
        while (!pending.isEmpty()) {
            const Step step = pending.takeLast();
            const QList<Node *> *children = step.node ? step.node->getChildren() : nullptr;
            for (int row = 0; children && row < children->size(); ++row) {
                if (children->at(row) == node)
                    return {step.node, step.row, row};
                pending.append({children->at(row), row});
            }
        }
        return {};
    }

    Node *root;
};

} // namespace tessel::editor
