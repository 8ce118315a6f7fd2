#include "model/TDmEntity.h"

#include "model/TDmVariable.h"

#include <utility>

TDmEntity::TDmEntity() = default;

TDmEntity::~TDmEntity()
{
    // A work list instead of recursion: a chain of entities may be longer than the stack is deep. Each entity
    // is robbed of its children before it is deleted, so its own destructor finds nothing left to walk.
    QList<TDmEntity *> pending;
    if (children)
        pending.swap(*children);
    while (!pending.isEmpty()) {
        TDmEntity *entity = pending.takeLast();
        if (!entity)
            continue;
        if (entity->children) {
            if (pending.isEmpty())
                pending.swap(*entity->children);
            else
                pending += std::exchange(*entity->children, {});
        }
        delete entity;
    }
    qDeleteAll(variables);
    if (children != &ownChildren)
        delete children;
}

QString TDmEntity::getName() const { return name; }
void TDmEntity::setName(const QString &text) { name = text; }

QString TDmEntity::getAlias() const { return alias; }
void TDmEntity::setAlias(const QString &text) { alias = text; }

QString TDmEntity::getLabel() const { return label; }
void TDmEntity::setLabel(const QString &text) { label = text; }

QString TDmEntity::getRefCode() const { return refCode; }
void TDmEntity::setRefCode(const QString &variableName) { refCode = variableName; }

QString TDmEntity::getRefLabel() const { return refLabel; }
void TDmEntity::setRefLabel(const QString &variableName) { refLabel = variableName; }

QString TDmEntity::getWeightVariable() const { return weightVariable; }
void TDmEntity::setWeightVariable(const QString &variableName) { weightVariable = variableName; }

QString TDmEntity::getDocumentationEntity() const { return documentationEntity; }
void TDmEntity::setDocumentationEntity(const QString &text) { documentationEntity = text; }

bool TDmEntity::getIsvirtual() const { return isvirtual; }
void TDmEntity::setIsvirtual(bool on) { isvirtual = on; }

bool TDmEntity::getSelectable() const { return selectable; }
void TDmEntity::setSelectable(bool on) { selectable = on; }

int TDmEntity::getLevel() const { return level; }
void TDmEntity::setLevel(int depth) { level = depth; }

bool TDmEntity::getCheckDelete() const { return checkDelete; }
void TDmEntity::setCheckDelete(bool on) { checkDelete = on; }

QList<TDmEntity *> *TDmEntity::getChildren() const { return children; }
void TDmEntity::setChildren(QList<TDmEntity *> *list) { children = list; }

QList<TDmVariable *> *TDmEntity::getVariables() const { return &variables; }
void TDmEntity::addVariables(TDmVariable *variable) { variables.append(variable); }
