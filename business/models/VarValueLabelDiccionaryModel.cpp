#include "business/models/VarValueLabelDiccionaryModel.h"

#include "business/Constants.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

using namespace tessel::detail;

Columns<ValueLabelElement> VarValueLabelDiccionaryModel::columns()
{
    static const Column<ValueLabelElement> table[] = {
        {QT_TR_NOOP("Code"), [](const ValueLabelElement &e) -> QVariant { return e.getValue(); },
            [](ValueLabelElement &e, const QVariant &value) { e.setValue(value.toString()); }},
        {QT_TR_NOOP("Label"), [](const ValueLabelElement &e) -> QVariant { return e.getLabel(); },
            [](ValueLabelElement &e, const QVariant &value) { e.setLabel(value.toString()); }},
    };
    return table;
}

VarValueLabelDiccionaryModel::VarValueLabelDiccionaryModel(QObject *parent, TDmVariable *variable)
    : EditableListModel(parent)
{
    fill(variable ? variable->getValueLabelElementList() : nullptr);
}
