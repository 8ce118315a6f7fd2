#pragma once

#include "cli/Places.h"
#include "model/TDmEntity.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace tessel::cli {

/// The dictionary that gets variables: a new one, or one that was read. Owns its tree. What cannot be done is
/// said on standard error.
class TargetDictionary {
public:
    /// Takes in the dictionary \a file; false, once said why, when there is none. What writing it again would
    /// lose or change is listed.
    bool read(const QString &file);

    /// Whether something was listed.
    bool hasLosses() const { return losses; }

    /// The one entity called \a name, blanks around it aside, or a new top entity with the label \a label;
    /// null, once said why, when there are several, or when no entity may be called so.
    TDmEntity *entityNamed(const QString &name, const QString &label);

    /// The entity that is called like the data file \a file, if it was not given away before; else a new top
    /// entity with the label \a label, whose name comes as near to the file's as the rules allow. Null, once
    /// said why, when there are several.
    TDmEntity *entityOfFile(const QString &file, const QString &label);

    /// Lists the faults that the dictionary did not have when it came in; \a output is only named. Returns
    /// whether there are any.
    bool tellNewFaults(const QString &output);

    /// Writes the dictionary to \a output; "-" is standard output. The file that was read is not replaced
    /// when something would be lost. Returns an ExitStatus.
    int write(const QString &output);

private:
    QVector<Place> placesNamed(const QString &name);
    void tellSeveral(const QString &name, const QVector<Place> &places) const;
    TDmEntity *give(TDmEntity *entity);
    TDmEntity *addEntity(const QString &name, const QString &label);

    std::unique_ptr<TDmEntity> root = std::make_unique<TDmEntity>();
    std::optional<QString> source; ///< The file that was read.
    QByteArray bytes; ///< As they were read.
    bool losses = false;
    QSet<QStringList> oldFaults;
    QSet<TDmEntity *> given; ///< Entities that files got.
};

} // namespace tessel::cli
