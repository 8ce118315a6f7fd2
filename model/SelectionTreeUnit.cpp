#include "model/SelectionTreeUnit.h"

#include "model/DeepDelete.h"

SelectionTreeUnit::SelectionTreeUnit() = default;

SelectionTreeUnit::~SelectionTreeUnit()
{
    deepDelete(children, [](SelectionTreeUnit &unit) { return &unit.children; });
}

QList<SelectionTreeUnit *> *SelectionTreeUnit::getChildren() const { return &children; }
void SelectionTreeUnit::addChild(SelectionTreeUnit *child) { children.append(child); }

int SelectionTreeUnit::getLevel() const { return level; }
void SelectionTreeUnit::setLevel(int depth) { level = depth; }

QString SelectionTreeUnit::getName() const { return name; }
void SelectionTreeUnit::setName(const QString &text) { name = text; }

QString SelectionTreeUnit::getCode() const { return code; }
void SelectionTreeUnit::setCode(const QString &text) { code = text; }

std::pair<std::string, std::string> SelectionTreeUnit::getArea() const { return area; }
void SelectionTreeUnit::setArea(const std::pair<std::string, std::string> &texts) { area = texts; }

int SelectionTreeUnit::getUnitState() const { return unitState; }
void SelectionTreeUnit::setUnitState(int state) { unitState = state; }

QModelIndex SelectionTreeUnit::getIndex() const { return index; }
void SelectionTreeUnit::setIndex(const QModelIndex &kept) { index = kept; }
