#include "model/MetadataVariables.h"

#include "model/Range.h"

MetadataVariables::MetadataVariables() = default;

MetadataVariables::~MetadataVariables()
{
    if (range)
        qDeleteAll(*range);
    if (range != &ownRange)
        delete range;
}

QString MetadataVariables::getRecord() const { return record; }
void MetadataVariables::setRecord(const QString &text) { record = text; }

QString MetadataVariables::getField() const { return field; }
void MetadataVariables::setField(const QString &text) { field = text; }

int MetadataVariables::getStart() const { return start; }
void MetadataVariables::setStart(int position) { start = position; }

int MetadataVariables::getLength() const { return length; }
void MetadataVariables::setLength(int characters) { length = characters; }

bool MetadataVariables::getLookup() const { return lookup; }
void MetadataVariables::setLookup(bool on) { lookup = on; }

QList<Range *> *MetadataVariables::getRange() const { return range; }

void MetadataVariables::setRange(QList<Range *> *list)
{
    if (list == range)
        return;
    if (range != &ownRange)
        delete range;
    range = list;
}

void MetadataVariables::addItemRange(Range *item)
{
    if (!range) {
        // What stood here before was given up with setRange().
        ownRange.clear();
        range = &ownRange;
    }
    range->append(item);
}
