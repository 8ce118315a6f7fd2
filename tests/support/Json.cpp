#include "tests/support/Json.h"

#include "business/ProcessDictionaryBusiness.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessel::test {

QVariant valueOf(const char *text)
{
    QByteArray bytes(text);
    bytes.replace('\'', '"');
    QJsonParseError error;
    // A document's top may only be an array or an object.
    const QJsonDocument document = QJsonDocument::fromJson('[' + bytes + ']', &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("not JSON: %s (%s)", text, qPrintable(error.errorString()));
    return document.array().at(0).toVariant();
}

QVariantMap objectOf(const char *text)
{
    const QVariant value = valueOf(text);
    if (value.userType() != QMetaType::QVariantMap)
        qFatal("not a JSON object: %s", text);
    return value.toMap();
}

QByteArray documentOf(TDmEntity &entity)
{
    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&entity, &out);
    return QJsonDocument(out).toJson(QJsonDocument::Compact).replace('"', '\'');
}

} // namespace tessel::test
