#include "editor/views/FieldDrop.h"

#include "business/models/VariableDiccionaryModel.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

namespace tessel::editor {

using tessel::detail::FieldTransfer;

FieldDrop::FieldDrop(const QMimeData &fields, const TDmEntity &entity, VariableDiccionaryModel &target)
    : all(&fields)
{
    if (entity.getSelectable())
        return;
    QStringList names;
    QStringList taken;
    const QStringList texts = FieldTransfer::unwrapped(fields);
    for (const QString &text : texts) {
        const std::unique_ptr<TDmVariable> variable(target.getVariableFromJsonDrop(text));
        if (variable->getMetadataVariables()->getLookup())
            names.append(variable->getMetadataVariables()->getField());
        else
            taken.append(text);
    }
    if (names.size() < 2)
        return;
    refusedNames = names;
    all = nullptr;
    if (!taken.isEmpty())
        own.reset(FieldTransfer::wrapped(taken));
}

} // namespace tessel::editor
