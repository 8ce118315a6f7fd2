#pragma once

#include "model/TDmVariable.h"

#include <QHash>
#include <QString>

namespace tessel::detail {

/// Internal: what makes two variables of an entity the same one: name, alias, label and group, to the letter.
class VariableIdentity {
public:
    explicit VariableIdentity(const TDmVariable &variable)
        : name(variable.getName())
        , alias(variable.getAlias())
        , label(variable.getLabel())
        , group(variable.getGroup())
    {
    }

    friend bool operator==(const VariableIdentity &left, const VariableIdentity &right)
    {
        return left.name == right.name && left.alias == right.alias && left.label == right.label
            && left.group == right.group;
    }

    friend uint qHash(const VariableIdentity &identity, uint seed = 0)
    {
        seed = qHash(identity.name, seed);
        seed = qHash(identity.alias, seed);
        seed = qHash(identity.label, seed);
        return qHash(identity.group, seed);
    }

private:
    QString name;
    QString alias;
    QString label;
    QString group;
};

} // namespace tessel::detail
