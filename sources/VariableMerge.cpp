#include "sources/VariableMerge.h"

#include "business/models/detail/KnownVariables.h"
#include "model/TDmEntity.h"

#include <algorithm>

namespace tessel::sources {

VariableMerge::VariableMerge(TDmEntity &changedEntity, OnClash clash)
    : entity(changedEntity)
    , onClash(clash)
{
    for (int i = 0; i < entity.getVariables()->size(); ++i)
        positions[entity.getVariables()->at(i)->getName()].append(i);
}

void VariableMerge::add(std::vector<ImportedField> fields)
{
    for (ImportedField &imported : fields) {
        const bool isNameless = imported.variable->getName().trimmed().isEmpty();
        int position = positionOf(*imported.variable);
        if (position >= 0) {
            clashList.append({imported.field, reasonOf(*imported.variable, position)});
            if (onClash == OnClash::Skip)
                continue;
            delete entity.getVariables()->at(position);
            entity.getVariables()->replace(position, imported.variable.release());
        } else {
            position = entity.getVariables()->size();
            positions[imported.variable->getName()].append(position);
            entity.addVariables(imported.variable.release());
        }
        origins.insert(position, imported.field);
        if (!imported.declaredCodes.isEmpty())
            codeList.append({imported.field, imported.declaredCodes});
        if (isNameless)
            namelessList.append({imported.field,
                tr("gives a variable without a name, because it begins with \"_\" and a digit; name the "
                   "variable in the dictionary")});
    }
}

/// Where the variable stands that \a variable meets; -1 when there is none.
int VariableMerge::positionOf(const TDmVariable &variable) const
{
    const QVector<int> named = positions.value(variable.getName());
    const auto same = std::find_if(named.cbegin(), named.cend(), [&](int position) {
        return detail::KnownVariables::isSame(*entity.getVariables()->at(position), variable);
    });
    if (same != named.cend())
        return *same;
    return named.isEmpty() ? -1 : named.first();
}

QString VariableMerge::reasonOf(const TDmVariable &fresh, int position) const
{
    const QString name = fresh.getName();
    const auto origin = origins.constFind(position);
    if (origin != origins.constEnd())
        return tr("an earlier field, %1, gives %2 a variable %3 too").arg(*origin, entity.getName(), name);
    if (detail::KnownVariables::isSame(*entity.getVariables()->at(position), fresh))
        return tr("%1 has the variable %2 already, with the same alias, label and group")
            .arg(entity.getName(), name);
    return tr("%1 has a variable %2 already, with another alias, label or group").arg(entity.getName(), name);
}

} // namespace tessel::sources
