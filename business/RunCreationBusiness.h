#pragma once

#include "business/BusinessExport.h"

#include <QJsonDocument>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

class Config;

/// Writes the configuration of a run as a JSON document and reads it back.
///
/// Holds no state. Writer and reader differ in the keys that they know: a database's filters and project and
/// an entity's marks are read and never written; a set "createSDC" and a cleared "checkSequence" are the only
/// ones written. The reader never fails: unknown keys are skipped, missing ones leave the defaults, and
/// values of another type are converted by QVariant's rules.
class BUSINESS_TESSEL_EXPORT RunCreationBusiness {
public:
    RunCreationBusiness();

    /// The document of \a config, which must not be null and must have its three sections. Null pointers in
    /// the entity list are passed over.
    QJsonDocument exportConfigToJson(Config *config);

    /// A new configuration from a document's top object \a root; the caller owns it with all that is in it.
    Config *recorrerNodosEntitiesJsonYCargaEstructuraConfig(QMap<QString, QVariant> root);

    /// The names in \a value, which is what stands under an entity's "variables", as a new list that the
    /// caller owns. What does not convert to a list gives an empty one.
    QList<QString> *recorrerVariablesNodosJson(QVariant value);
};
