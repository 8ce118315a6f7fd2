#pragma once

#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmEntity.h"
#include "tests/business/models/VariableText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

namespace tessel::test {

/// The variable that the table makes of the transfer text \a json, as text.
inline QString transferred(const QString &json)
{
    TDmEntity entity;
    VariableDiccionaryModel model(nullptr, &entity, &entity);
    const std::unique_ptr<TDmVariable> variable(model.getVariableFromJsonDrop(json));
    // Making a variable is not yet adding it.
    return entity.getVariables()->isEmpty() ? textOf(*variable) : QStringLiteral("added");
}

inline QString transferred(const QJsonObject &field)
{
    return transferred(QString::fromUtf8(QJsonDocument(field).toJson()));
}

/// As above; single quotes for double ones.
inline QString transferred(const QByteArray &json)
{
    return transferred(QString::fromUtf8(json).replace(QLatin1Char('\''), QLatin1Char('"')));
}

inline QString transferred(const char *json) { return transferred(QByteArray(json)); }

/// What a field without type, range and name becomes.
inline QString nothingTransferred() { return QStringLiteral("missing=1 notappl=2 position=1 range=0..0"); }

} // namespace tessel::test
