#pragma once

#include "model/ModelExport.h"

#include <QList>
#include <QString>

class Range;

/// Where a variable's value lies in its source record, and which values are valid.
///
/// Owns its ranges and the list that holds them. Start and length stand here as in the source document; the
/// variable's own field position and size are what is written back.
class MODEL_TESSEL_EXPORT MetadataVariables {
public:
    /// An empty layout: no field or record, start and length 0, no lookup, an empty range list.
    MetadataVariables();
    ~MetadataVariables();

    /// The record type that holds the field.
    QString getRecord() const;
    void setRecord(const QString &text);

    /// The field's name in its source.
    QString getField() const;
    void setField(const QString &text);

    /// Start position in the record, counted from 1; 0: unknown.
    int getStart() const;
    void setStart(int position);

    /// Length in the record, in characters; 0: unknown.
    int getLength() const;
    void setLength(int characters);

    /// True when the value is looked up in a table of its own.
    bool getLookup() const;
    void setLookup(bool on);

    /// The list of valid ranges itself, in order, not a copy. Never null unless setRange() was given null.
    QList<Range *> *getRange() const;

    /// Takes \a list and the ranges in it; frees the list held before, not the ranges that were in it.
    /// Handing back the held list changes nothing.
    void setRange(QList<Range *> *list);

    /// Appends \a item and takes it over.
    void addItemRange(Range *item);

private:
    QString record;
    QString field;
    int start = 0;
    int length = 0;
    bool lookup = false;
    // The getter is const and still hands out the list to be changed.
    mutable QList<Range *> ownRange;
    QList<Range *> *range = &ownRange;

    Q_DISABLE_COPY_MOVE(MetadataVariables)
};
