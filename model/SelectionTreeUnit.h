#pragma once

#include "model/ModelExport.h"

#include <QList>
#include <QModelIndex>
#include <QString>

#include <string>
#include <utility>

/// One unit that may be selected for a run (an area, a part of an area, ...): a node of the selection tree.
///
/// Owns its children; the destructor deletes those that it holds at that moment and everything below them, at
/// any depth, without recursion.
class MODEL_TESSEL_EXPORT SelectionTreeUnit {
public:
    /// A unit of level 1 that is not selected, with empty texts, no children and an invalid index.
    SelectionTreeUnit();
    ~SelectionTreeUnit();

    /// The list of children itself, in display order, not a copy. Never null.
    QList<SelectionTreeUnit *> *getChildren() const;

    /// Appends \a child and takes it over.
    void addChild(SelectionTreeUnit *child);

    /// Depth in the tree; the root has level 1.
    int getLevel() const;
    void setLevel(int depth);

    /// What kind of unit this is.
    QString getName() const;
    void setName(const QString &text);

    /// The unit's code.
    QString getCode() const;
    void setCode(const QString &text);

    /// Two texts in UTF-8 that say which area this is.
    std::pair<std::string, std::string> getArea() const;
    void setArea(const std::pair<std::string, std::string> &texts);

    /// 1: partly selected, 2: selected, anything else: not selected.
    int getUnitState() const;
    void setUnitState(int state);

    /// An index kept for the model that shows the unit. Not owned; it dies with that model.
    QModelIndex getIndex() const;
    void setIndex(const QModelIndex &kept);

private:
    // The getter is const and still hands out the list to be changed.
    mutable QList<SelectionTreeUnit *> children;
    QString name;
    QString code;
    std::pair<std::string, std::string> area;
    int level = 1;
    int unitState = 0;
    QModelIndex index;

    Q_DISABLE_COPY_MOVE(SelectionTreeUnit)
};
