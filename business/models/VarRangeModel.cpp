#include "business/models/VarRangeModel.h"

#include "business/Constants.h"
#include "business/models/detail/NearestInt.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"

using namespace tessel::detail;

namespace {

const QList<Range *> *rangesOf(const TDmVariable *variable)
{
    return variable && variable->getMetadataVariables() ? variable->getMetadataVariables()->getRange()
                                                        : nullptr;
}

} // namespace

Columns<Range> VarRangeModel::columns()
{
    static const Column<Range> table[] = {
        {QT_TR_NOOP("Minimum"), [](const Range &range) -> QVariant { return range.getRangeMin(); },
            [](Range &range, const QVariant &value) { range.setRangeMin(value.toDouble()); }},
        {QT_TR_NOOP("Maximum"), [](const Range &range) -> QVariant { return range.getRangeMax(); },
            [](Range &range, const QVariant &value) { range.setRangeMax(value.toDouble()); }},
    };
    return table;
}

VarRangeModel::VarRangeModel(QObject *parent, TDmVariable *shownVariable)
    : EditableListModel(parent)
    , variable(shownVariable)
{
    fill(rangesOf(variable));
}

bool VarRangeModel::isInteger() const
{
    // To the letter: "integer", as documents have it, is not whole. Meant so.
    return variable && variable->getVarType() == tessel::constants::kTypeInteger;
}

QVariant VarRangeModel::getItemData(Range *range, int column) const
{
    const QVariant bound = EditableListModel::getItemData(range, column);
    return bound.isValid() && isInteger() ? QVariant(NearestInt::of(bound.toDouble())) : bound;
}

void VarRangeModel::write(Range &range, int column, const QVariant &value)
{
    EditableListModel::write(range, column, isInteger() ? QVariant(value.toInt()) : value);
}
