#pragma once

class QJsonObject;
class TDmEntity;

/// The writing half of ProcessDictionaryBusiness.
namespace tessel::detail {

/// Writes \a entity with everything below it into \a out, under a handler of its own at each level.
void writeEntity(const TDmEntity &entity, QJsonObject &out);

} // namespace tessel::detail
