#include "editor/ExpressionText.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

namespace tessel::editor {

QString termOf(const TDmEntity &entity) { return entity.getName(); }

QString termOf(const TDmEntity &entity, const TDmVariable &variable)
{
    return entity.getName() + QLatin1Char('.') + variable.getName();
}

QString termOf(const TDmVariable &variable, const ValueLabelElement &category)
{
    QString code = category.getValue();
    // Files hold types in lower case.
    if (variable.getVarType().trimmed().toUpper() != QLatin1String("STRING"))
        return code;
    const QLatin1Char quote('\'');
    return quote + code.replace(quote, QLatin1String("''")) + quote;
}

bool isBlankNeeded(QChar left, QChar right)
{
    if (left.isNull() || right.isNull() || left.isSpace() || right.isSpace())
        return false;
    return left != QLatin1Char('(') && right != QLatin1Char(')');
}

QList<TDmEntity *> entitiesForExpressions(TDmEntity &root)
{
    QList<TDmEntity *> found;
    QList<TDmEntity *> pending{&root};
    while (!pending.isEmpty()) {
        TDmEntity *entity = pending.takeLast();
        if (entity != &root || !root.getVariables()->isEmpty())
            found.append(entity);
        const QList<TDmEntity *> *children = entity->getChildren();
        if (!children)
            continue;
        for (int row = children->size() - 1; row >= 0; --row)
            pending.append(children->at(row));
    }
    return found;
}

QString termMimeType() { return QStringLiteral("application/x-tessel-expression-term"); }

} // namespace tessel::editor
