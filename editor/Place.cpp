#include "editor/Place.h"

#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QStringList>

namespace tessel::editor {
namespace {

template<typename Item>
Item *itemAt(const QList<Item *> &list, const QString &step)
{
    bool isNumber = false;
    const int row = step.toInt(&isNumber);
    return isNumber ? list.value(row) : nullptr;
}

} // namespace

Place placeAt(TDmEntity &root, const QString &path)
{
    Place place;
    place.entity = &root;
    const QStringList steps = path.split(QLatin1Char('/'));
    for (int i = 1; i + 1 < steps.size(); i += 2) {
        const QString &key = steps.at(i);
        if (key == QLatin1String("metadata")) {
            --i;
            continue;
        }
        const QString &row = steps.at(i + 1);
        if (key == QLatin1String("entities")) {
            TDmEntity *child = itemAt(*place.entity->getChildren(), row);
            if (!child)
                return place;
            place.entity = child;
        } else if (key == QLatin1String("variables")) {
            place.variable = itemAt(*place.entity->getVariables(), row);
        } else if (key == QLatin1String("valueLabels") && place.variable) {
            place.label = itemAt(*place.variable->getValueLabelElementList(), row);
        } else if (key == QLatin1String("range") && place.variable) {
            place.range = itemAt(*place.variable->getMetadataVariables()->getRange(), row);
        }
    }
    return place;
}

} // namespace tessel::editor
