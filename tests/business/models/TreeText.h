#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <QStringList>

#include <cstring>
#include <memory>

namespace tessel::test {

/// What \a at begins with, "A(B C)" for a node A with the children B and C; \a at is moved behind it.
template<typename Node>
std::unique_ptr<Node> readNode(const char *&at, int level)
{
    QString name;
    while (*at && !std::strchr("() ", *at))
        name += QLatin1Char(*at++);
    if (name.isEmpty())
        qFatal("no name at \"%s\"", at);
    auto node = std::make_unique<Node>();
    node->setName(name);
    node->setLevel(level);
    if (*at != '(')
        return node;
    do {
        ++at;
        node->getChildren()->append(readNode<Node>(at, level + 1).release());
    } while (*at == ' ');
    if (*at++ != ')')
        qFatal("a parenthesis is missing");
    return node;
}

/// The tree that \a text draws: "A(B(C D) E)" is A above B and E, and B above C and D. Levels count from 1.
template<typename Node>
std::unique_ptr<Node> treeFrom(const char *text)
{
    return readNode<Node>(text, 1);
}

/// The first node called \a name, depth first; null when there is none.
template<typename Node>
Node *find(Node *node, const QString &name)
{
    if (!node || node->getName() == name)
        return node;
    for (Node *child : qAsConst(*node->getChildren())) {
        Node *found = child ? find(child, name) : nullptr;
        if (found)
            return found;
    }
    return nullptr;
}

/// The index of \a node, reached row by row from the top.
template<typename Node>
QModelIndex indexOf(const QAbstractItemModel &model, const Node *node, const QModelIndex &parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QModelIndex found = index.internalPointer() == node ? index : indexOf(model, node, index);
        if (found.isValid())
            return found;
    }
    return {};
}

/// The tree as \a model gives it, drawn as above.
template<typename Node>
QString drawn(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList nodes;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = drawn<Node>(model, index);
        const QString name = static_cast<Node *>(index.internalPointer())->getName();
        nodes += below.isEmpty() ? name : QStringLiteral("%1(%2)").arg(name, below);
    }
    return nodes.join(QLatin1Char(' '));
}

/// \a index as "row, column, name of the node", or "invalid", or with "null" for the name.
template<typename Node>
QString written(const QModelIndex &index)
{
    if (!index.isValid())
        return QStringLiteral("invalid");
    const auto *node = static_cast<const Node *>(index.internalPointer());
    return QStringLiteral("%1, %2, %3")
        .arg(index.row())
        .arg(index.column())
        .arg(node ? node->getName() : QStringLiteral("null"));
}

} // namespace tessel::test
