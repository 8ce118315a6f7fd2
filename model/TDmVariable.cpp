#include "model/TDmVariable.h"

#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"

TDmVariable::TDmVariable()
    : metadataVariables(new MetadataVariables)
{
}

TDmVariable::~TDmVariable()
{
    qDeleteAll(valueLabelElementList);
    delete metadataVariables;
}

QString TDmVariable::getName() const { return name; }
void TDmVariable::setName(const QString &text) { name = text; }

QString TDmVariable::getLabel() const { return label; }
void TDmVariable::setLabel(const QString &text) { label = text; }

QString TDmVariable::getAlias() const { return alias; }
void TDmVariable::setAlias(const QString &text) { alias = text; }

QString TDmVariable::getGroup() const { return group; }
void TDmVariable::setGroup(const QString &text) { group = text; }

QString TDmVariable::getVarType() const { return varType; }
void TDmVariable::setVarType(const QString &text) { varType = text; }

QString TDmVariable::getDocumentation() const { return documentation; }
void TDmVariable::setDocumentation(const QString &text) { documentation = text; }

QString TDmVariable::getFileName() const { return fileName; }
void TDmVariable::setFileName(const QString &text) { fileName = text; }

bool TDmVariable::getLocal() const { return local; }
void TDmVariable::setLocal(const bool &on) { local = on; }

int TDmVariable::getSize() const { return size; }
void TDmVariable::setSize(int characters) { size = characters; }

int TDmVariable::getDecimals() const { return decimals; }
void TDmVariable::setDecimals(int count) { decimals = count; }

int TDmVariable::getFieldRelativePosition() const { return fieldRelativePosition; }
void TDmVariable::setFieldRelativePosition(int position) { fieldRelativePosition = position; }

int TDmVariable::getFieldSize() const { return fieldSize; }
void TDmVariable::setFieldSize(int characters) { fieldSize = characters; }

int TDmVariable::getMissing() const { return missing; }
void TDmVariable::setMissing(int code) { missing = code; }

int TDmVariable::getNotappl() const { return notappl; }
void TDmVariable::setNotappl(int code) { notappl = code; }

int TDmVariable::getTag() const { return tag; }
void TDmVariable::setTag(int number) { tag = number; }

int TDmVariable::getChecked() const { return checked; }
void TDmVariable::setChecked(int mark) { checked = mark; }

int TDmVariable::getLevel() const { return level; }
void TDmVariable::setLevel(int mark) { level = mark; }

MetadataVariables *TDmVariable::getMetadataVariables() const { return metadataVariables; }

void TDmVariable::setMetadataVariables(MetadataVariables *layout)
{
    if (layout == metadataVariables)
        return;
    delete metadataVariables;
    metadataVariables = layout;
}

QList<ValueLabelElement *> *TDmVariable::getValueLabelElementList() const { return &valueLabelElementList; }
void TDmVariable::addValueLabelElement(ValueLabelElement *element) { valueLabelElementList.append(element); }
