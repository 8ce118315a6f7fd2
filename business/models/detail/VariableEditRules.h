#pragma once

#include "util/Validate.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace tessel::detail {

/// Internal: the rules that a typed text of the variable table obeys, apart from the box that tells of them.
class VariableEditRules {
public:
    enum Column { Name, Alias, Label, Group, Tag };

    /// What is already in use: entities in the whole dictionary, variables in the one entity.
    struct Taken {
        QStringList entityNames;
        QStringList variableNames;
        QStringList variableAliases;
    };

    /// Why a text is refused, in the order in which it is judged.
    enum class Fault { None, SameName, EntityName, VariableName, AliasOrName, AnyName, NoText };

    /// Takes out of \a entries the first one that \a typed matches as a whole when read as a pattern. A text
    /// that is no pattern, or one whose matching takes too long, takes out nothing.
    static void removeFirstMatch(QStringList &entries, const QString &typed)
    {
        if (!QRegularExpression(typed).isValid())
            return;
        // The limit ends a match that would run for hours ("(a+)+b"); ordinary names are far from it.
        const QRegularExpression whole(
            QLatin1String("(*LIMIT_MATCH=1000000)") + QRegularExpression::anchoredPattern(typed));
        if (!whole.isValid())
            return;
        for (int i = 0; i < entries.size(); ++i) {
            const QRegularExpressionMatch match = whole.match(entries.at(i));
            if (!match.isValid())
                return;
            if (match.hasMatch()) {
                entries.removeAt(i);
                return;
            }
        }
    }

    /// The first fault of \a text, typed into \a column of a variable called \a currentName. The checks are
    /// tied to column numbers: the label is held against the aliases, the alias against nothing. Meant so.
    static Fault faultOf(
        int column, const QString &text, const QString &currentName, Taken taken, Validate &validate)
    {
        // The pattern takes out one entry, not always the variable's own: meant so.
        if (column == Name)
            removeFirstMatch(taken.variableNames, text);
        if (column == Label)
            removeFirstMatch(taken.variableAliases, text);

        switch (column) {
        case Name:
            if (text.trimmed() == currentName.trimmed())
                return Fault::SameName;
            if (validate.compare(taken.entityNames, text))
                return Fault::EntityName;
            if (validate.compare(taken.variableNames, text))
                return Fault::VariableName;
            break;
        case Label:
            if (validate.compare(taken.variableAliases, text) || validate.compare(taken.variableNames, text))
                return Fault::AliasOrName;
            break;
        case Group:
            if (validate.compare(taken.entityNames, text) || validate.compare(taken.variableAliases, text)
                || validate.compare(taken.variableNames, text))
                return Fault::AnyName;
            break;
        default:
            break;
        }
        const bool isText = (column != Name && column != Label) || validate.validateStringC(text);
        return isText ? Fault::None : Fault::NoText;
    }
};

} // namespace tessel::detail
