#pragma once

#include "sources/FieldImport.h"

#include <QCoreApplication>
#include <QHash>
#include <QVector>

class TDmEntity;

namespace tessel::sources {

/// Adds imported variables to one entity. What the table of variables would ask or warn about, a variable
/// that is the same as another or has its name, is decided beforehand and listed instead.
///
/// Borrows the entity, which must outlive this object and which nobody else may change meanwhile.
class VariableMerge {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::VariableMerge)

public:
    /// What becomes of a variable whose name the entity has already.
    enum class OnClash {
        Skip, ///< It is left out.
        Overwrite, ///< It takes the place of the other, which is deleted.
    };

    VariableMerge(TDmEntity &entity, OnClash onClash);

    /// Adds what \a fields hold behind the variables of the entity, which takes them over. Each field that
    /// met a variable of its name, be it of an earlier field, is told in clashes().
    ///
    /// Of several variables with the name, the one that is the same in alias, label and group as well is
    /// meant, or else the first one.
    void add(std::vector<ImportedField> fields);

    /// The fields whose variable's name was there already, in the order in which they were added: what is
    /// there, not what became of it.
    const QVector<SourceRemark> &clashes() const { return clashList; }

    /// What the declared codes of the fields that were added changed, in order.
    const QVector<SourceRemark> &declaredCodes() const { return codeList; }

    /// The fields that were added and whose variable got no name, in order.
    const QVector<SourceRemark> &nameless() const { return namelessList; }

private:
    int positionOf(const TDmVariable &variable) const;
    QString reasonOf(const TDmVariable &fresh, int position) const;

    TDmEntity &entity;
    OnClash onClash;
    QHash<QString, QVector<int>> positions; ///< In the entity, by name.
    QHash<int, QString> origins; ///< The field that gave the variable at a position.
    QVector<SourceRemark> clashList;
    QVector<SourceRemark> codeList;
    QVector<SourceRemark> namelessList;
};

} // namespace tessel::sources
