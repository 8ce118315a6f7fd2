#include "model/TDmEntity.h"

#include "model/DeepDelete.h"
#include "model/TDmVariable.h"

TDmEntity::TDmEntity() = default;

TDmEntity::~TDmEntity()
{
    if (children)
        deepDelete(*children, [](TDmEntity &entity) { return entity.children; });
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
