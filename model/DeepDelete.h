#pragma once

#include <QList>

#include <utility>

/// Frees the nodes in \a nodes and everything below them, and leaves the list empty. \a childrenOf gives the
/// list of a node's children, or null.
///
/// A work list instead of recursion: a chain may be longer than the stack is deep. Each node is robbed of its
/// children before it is deleted, so its own destructor finds nothing left to walk.
template<typename Node, typename ChildrenOf>
void deepDelete(QList<Node *> &nodes, ChildrenOf &&childrenOf)
{
    QList<Node *> pending;
    pending.swap(nodes);
    while (!pending.isEmpty()) {
        Node *node = pending.takeLast();
        if (!node)
            continue;
        if (QList<Node *> *children = childrenOf(*node)) {
            if (pending.isEmpty())
                pending.swap(*children);
            else
                pending += std::exchange(*children, {});
        }
        delete node;
    }
}
