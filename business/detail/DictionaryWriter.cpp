#include "business/detail/DictionaryWriter.h"

#include "business/Constants.h"
#include "business/detail/Guarded.h"
#include "business/detail/JsonInsert.h"
#include "business/detail/JsonText.h"
#include "business/detail/VariableKeys.h"
#include "model/TDmEntity.h"

#include <QJsonDocument>

namespace tessel::detail {
namespace {

/// Inserting texts one by one costs a JSON object several allocations each; parsing the variable's text takes
/// less than half the time and gives the same object. What has no text (a number that is not finite) is
/// inserted.
QJsonObject variableToJson(const TDmVariable &variable, TextBuffer &buffer)
{
    buffer.clear();
    JsonText text(buffer);
    writeVariable(text, variable);
    text.close();
    if (text.isExact()) {
        const QByteArray bytes = QByteArray::fromRawData(buffer.data(), int(buffer.size()));
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        if (document.isObject())
            return document.object();
    }
    QJsonObject object;
    JsonInsert insert(object);
    writeVariable(insert, variable);
    return object;
}

} // namespace

void writeEntity(const TDmEntity &entity, QJsonObject &out)
{
    guarded([&] {
        insertText(out, QLatin1String("name"), entity.getName());
        insertText(out, QLatin1String("alias"), entity.getAlias());
        insertText(out, QLatin1String("label"), entity.getLabel());
        insertText(out, QLatin1String("weightVar"), entity.getWeightVariable());
        insertText(out, QLatin1String("documentation"), entity.getDocumentationEntity());
        insertValue(out, QLatin1String("selectable"), entity.getSelectable());
        insertValue(out, QLatin1String("virtual"), entity.getIsvirtual());
        insertText(out, QLatin1String("codeVar"), entity.getRefCode());
        insertText(out, QLatin1String("labelVar"), entity.getRefLabel());

        QJsonArray variables;
        TextBuffer buffer;
        for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
            if (variable)
                variables.append(variableToJson(*variable, buffer));
        }
        insertArray(out, QLatin1String("variables"), variables);

        QJsonArray children;
        const QList<TDmEntity *> *childList = entity.getChildren();
        for (int i = 0; childList && i < childList->size(); ++i) {
            if (const TDmEntity *child = childList->at(i)) {
                QJsonObject object;
                writeEntity(*child, object);
                children.append(object);
            }
        }
        insertArray(out, QLatin1String("entities"), children);
    });
}

} // namespace tessel::detail
