#pragma once

#include <QList>
#include <QString>

#include <optional>

/// One entity's part in a run: which records, which variables and how they are built. A plain record: may be
/// copied, the list of names included.
///
/// Only checkSequence is set to begin with, all other flags are cleared: the run document leaves out a set
/// checkSequence and a cleared createSDC, so that a saved run loads back unchanged.
class ConfigEntities {
public:
    /// Name of the entity in the dictionary.
    QString getName() const { return name; }
    void setName(const QString &text) { name = text; }

    /// The record type that tells the entity's records in the source.
    QString getRecType() const { return recType; }
    void setRecType(const QString &text) { recType = text; }

    /// Names of the chosen variables, in order: the list itself, still the section's own; null while none was
    /// added.
    QList<QString> *getVariables() const { return variables ? &*variables : nullptr; }

    /// Appends one name; makes the list when there is none.
    void addVariables(QString variableName)
    {
        if (!variables)
            variables.emplace();
        variables->append(variableName);
    }

    /// All of the entity's variables are taken.
    bool getAllVariables() const { return allVariables; }
    void setAllVariables(bool on) { allVariables = on; }

    /// The sequence of the records is checked. Set to begin with.
    bool getCheckSequence() const { return checkSequence; }
    void setCheckSequence(bool on) { checkSequence = on; }

    /// Carried for the program that builds the database.
    bool getCreateCompound() const { return createCompound; }
    void setCreateCompound(bool on) { createCompound = on; }

    /// Carried for the program that builds the database.
    bool getCreateSDC() const { return createSDC; }
    void setCreateSDC(bool on) { createSDC = on; }

    /// Deletion mark; read from documents, never written back.
    bool getCheckDelete() const { return checkDelete; }
    void setCheckDelete(bool on) { checkDelete = on; }

    /// Selection mark; read from documents, never written back.
    bool getCheckSelectable() const { return checkSelectable; }
    void setCheckSelectable(bool on) { checkSelectable = on; }

private:
    QString name;
    QString recType;
    // The getter is const and still hands out the list to be changed.
    mutable std::optional<QList<QString>> variables;
    bool allVariables = false;
    bool checkSequence = true;
    bool createCompound = false;
    bool createSDC = false;
    bool checkDelete = false;
    bool checkSelectable = false;
};
