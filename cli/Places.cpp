#include "cli/Places.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <algorithm>
#include <iterator>

namespace tessel::cli {
namespace {

QString joined(const QString &path, const QString &name)
{
    return path.isEmpty() ? name : path + QLatin1Char('/') + name;
}

void addPlaces(const Place &place, QVector<Place> &places)
{
    places.append(place);
    const QList<TDmVariable *> &variables = *place.entity->getVariables();
    for (int i = 0; i < variables.size(); ++i) {
        places.append({place.entity, variables.at(i), joined(place.path, variables.at(i)->getName()),
            place.pointer + QStringLiteral("/variables/%1").arg(i)});
    }
    const QList<TDmEntity *> &children = *place.entity->getChildren();
    for (int i = 0; i < children.size(); ++i) {
        addPlaces({children.at(i), nullptr, joined(place.path, children.at(i)->getName()),
                      place.pointer + QStringLiteral("/entities/%1").arg(i)},
            places);
    }
}

template<typename Accept>
QVector<Place> filtered(const QVector<Place> &places, Accept &&accept)
{
    QVector<Place> found;
    std::copy_if(places.cbegin(), places.cend(), std::back_inserter(found), accept);
    return found;
}

} // namespace

QVector<Place> placesBelow(TDmEntity &root)
{
    QVector<Place> places;
    addPlaces({&root, nullptr, QString(), QString()}, places);
    return places;
}

QVector<Place> placesNamed(const QVector<Place> &places, const QString &path)
{
    // A document may call its child lists "root", and so do the messages about it.
    const QString pointer = QString(path).replace(QLatin1String("/root/"), QLatin1String("/entities/"));
    QVector<Place> found = filtered(places, [&](const Place &place) { return place.pointer == pointer; });
    if (found.isEmpty())
        found = filtered(places, [&](const Place &place) { return place.path == path; });
    if (found.isEmpty()) {
        const QString tail = QLatin1Char('/') + path;
        found = filtered(places, [&](const Place &place) { return place.path.endsWith(tail); });
    }
    return found;
}

} // namespace tessel::cli
