#pragma once

#include "business/models/detail/FieldTransfer.h"
#include "fuzz/support/Input.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QRegExp>

#include <memory>

/// What a person does with a view, made of an input.
namespace tessel::fuzz {

/// A pattern in any of the dialects.
inline QRegExp patternFrom(Input &input)
{
    const auto syntax = QRegExp::PatternSyntax(input.number(QRegExp::RegExp, QRegExp::W3CXmlSchema11));
    return QRegExp(input.value().toString(), Qt::CaseInsensitive, syntax);
}

/// A dragged field of any name, or a lookup.
inline std::unique_ptr<QMimeData> payloadFrom(Input &input)
{
    const QJsonObject field{{QStringLiteral("name"), QJsonValue::fromVariant(input.value())},
        {QStringLiteral("type"), input.flag() ? QStringLiteral("LOOKUP") : QString()}};
    const QString text = QString::fromUtf8(QJsonDocument(field).toJson());
    return std::unique_ptr<QMimeData>(detail::FieldTransfer::wrapped({text}));
}

} // namespace tessel::fuzz
