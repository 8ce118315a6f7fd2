#pragma once

#include <QString>

/// Where a variable that is still being worked on is taken from in a source. A plain record: may be copied.
class VarWipChoice {
public:
    /// The kind of source that provides the field.
    QString getDataProvider() const { return dataProvider; }
    void setDataProvider(const QString &text) { dataProvider = text; }

    /// The field's name in the source.
    QString getField() const { return field; }
    void setField(const QString &text) { field = text; }

    /// The record type that holds the field.
    QString getRecType() const { return recType; }
    void setRecType(const QString &text) { recType = text; }

    /// Start position of the field in its record.
    int getStart() const { return start; }
    void setStart(int position) { start = position; }

private:
    QString dataProvider;
    QString field;
    QString recType;
    int start = 0;
};
