#pragma once

#include <QAbstractItemModel>
#include <QList>

namespace tessel::detail {

/// Internal: the skeleton of the tree models, for nodes that have getChildren() and getLevel().
///
/// One column, one root that is the only row of the top level. Every index carries its node as internal
/// pointer; the nodes are borrowed, walked afresh on every call, and must outlive the model. No parent links,
/// no caches.
template<typename Node>
class TreeModel : public QAbstractItemModel {
public:
    using QObject::parent;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override
    {
        const QList<Node *> *nodes = parent.isValid() ? childrenOf(nodeOf(parent)) : &rootList;
        if (!nodes || row < 0 || row >= nodes->size())
            return QModelIndex();
        return createIndex(row, column, nodes->at(row));
    }

    QModelIndex parent(const QModelIndex &child) const override
    {
        Node *node = nodeOf(child);
        // The root knows itself by its level.
        if (!node || node->getLevel() == 1)
            return QModelIndex();
        return recorrerStructuraArbol(node, root, root);
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        const QList<Node *> *nodes = parent.isValid() ? childrenOf(nodeOf(parent)) : &rootList;
        return nodes ? nodes->size() : 0;
    }

    int columnCount(const QModelIndex & = QModelIndex()) const override { return 1; }

    /// The index of the parent of \a target, looked for depth first in \a node, whose parent is \a
    /// nodeParent; invalid when \a target is not there. Its row is the level of \a target, not the parent's
    /// place among its siblings: meant so, callers compare with it.
    QModelIndex recorrerStructuraArbol(Node *target, Node *node, Node *nodeParent) const
    {
        if (!target)
            return QModelIndex();
        if (target == node)
            return createIndex(target->getLevel(), 0, nodeParent);
        while (const QList<Node *> *children = childrenOf(node)) {
            if (children->isEmpty())
                break;
            // Recursion for all children but the last, so that a chain of any length is walked on a small
            // stack.
            const int last = children->size() - 1;
            for (int i = 0; i < last; ++i) {
                const QModelIndex found = recorrerStructuraArbol(target, children->at(i), node);
                if (found.isValid())
                    return found;
            }
            if (children->at(last) == target)
                return createIndex(target->getLevel(), 0, node);
            node = children->at(last);
        }
        return QModelIndex();
    }

protected:
    TreeModel(QObject *parent, Node *rootNode)
        : QAbstractItemModel(parent)
        , rootList{rootNode}
        , root(rootNode)
    {
    }

    /// The node that \a index shows: null for an invalid index and for one of another model.
    Node *nodeOf(const QModelIndex &index) const
    {
        return index.isValid() && index.model() == this ? static_cast<Node *>(index.internalPointer())
                                                        : nullptr;
    }

    QList<Node *> rootList; ///< The top level: the root alone.
    Node *root;

private:
    static const QList<Node *> *childrenOf(const Node *node) { return node ? node->getChildren() : nullptr; }
};

} // namespace tessel::detail
