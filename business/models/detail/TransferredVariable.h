#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariant>

class MetadataVariables;
class TDmVariable;

namespace tessel::detail {

/// One field as a catalogue sent it, and what it gives to the variable that it becomes.
class TransferredVariable {
public:
    /// Reads \a json; a text that is no JSON object is a field without any value.
    explicit TransferredVariable(const QString &json);

    /// Name, alias, physical field, label and tag.
    void giveNames(TDmVariable &variable) const;

    /// The categories as they were sent.
    QVariant categories() const { return value(QLatin1String("categories")); }

    /// Type, range, missing and not-applicable codes, place in the record; makes a lookup of it if it is one.
    void giveTypeAndCodes(TDmVariable &variable) const;

private:
    QVariant value(QLatin1String key) const { return field.value(key).toVariant(); }
    QString text(QLatin1String key) const { return value(key).toString(); }
    void giveRange(TDmVariable &variable) const;

    QJsonObject field;
};

} // namespace tessel::detail
