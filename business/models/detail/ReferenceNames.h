#pragma once

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QString>

namespace tessel::detail {

/// Internal: the names of the variables that hold an entity's code, label and weight; the run takes them
/// along without being asked.
class ReferenceNames {
public:
    /// Those of \a entity; a null entity refers to no variable.
    explicit ReferenceNames(const TDmEntity *entity)
        : hasEntity(entity)
    {
        if (!entity)
            return;
        code = entity->getRefCode();
        label = entity->getRefLabel();
        weight = entity->getWeightVariable();
    }

    /// Whether \a variable bears one of the names, to the letter.
    bool hold(const TDmVariable &variable) const
    {
        const QString name = variable.getName();
        return hasEntity && (name == code || name == label || name == weight);
    }

private:
    bool hasEntity;
    QString code;
    QString label;
    QString weight;
};

} // namespace tessel::detail
