#pragma once

#include "model/ModelExport.h"

#include <QList>
#include <QString>

class MetadataVariables;
class ValueLabelElement;

/// One variable of an entity: identifiers, type, codes, the place of its field in the source record, its
/// value labels and its physical layout.
///
/// Owns its value labels and its layout; the destructor deletes what it holds at that moment.
/// Nothing is validated here and nothing is announced.
class MODEL_TESSEL_EXPORT TDmVariable {
public:
    /// A variable with empty texts (the type included), zero numbers, no labels and an empty layout.
    TDmVariable();
    ~TDmVariable();

    /// The variable's identifier, unique in its entity.
    QString getName() const;
    void setName(const QString &text);

    /// What people read.
    QString getLabel() const;
    void setLabel(const QString &text);

    /// A second identifier, for sources that call the variable otherwise.
    QString getAlias() const;
    void setAlias(const QString &text);

    /// The group of variables to which this one belongs; empty: none.
    QString getGroup() const;
    void setGroup(const QString &text);

    /// Type name, as given: "STRING", "REAL", "INTEGER" or "BOOL" in the models, lower case in documents.
    QString getVarType() const;
    void setVarType(const QString &text);

    /// Free text about the variable: question wording, universe, notes.
    QString getDocumentation() const;
    void setDocumentation(const QString &text);

    /// The source file that the variable was read from.
    QString getFileName() const;
    void setFileName(const QString &text);

    /// True for a local variable.
    bool getLocal() const;
    void setLocal(const bool &on);

    /// Declared width of the value, in characters.
    int getSize() const;
    void setSize(int characters);

    /// Number of decimals.
    int getDecimals() const;
    void setDecimals(int count);

    /// Start of the field in its record, counted from 1; 0: unknown.
    int getFieldRelativePosition() const;
    void setFieldRelativePosition(int position);

    /// Length of the field in its record, in characters; 0: unknown.
    int getFieldSize() const;
    void setFieldSize(int characters);

    /// The code that marks a missing value.
    int getMissing() const;
    void setMissing(int code);

    /// The code that marks a value as not applicable.
    int getNotappl() const;
    void setNotappl(int code);

    /// Numeric tag; 0: none.
    int getTag() const;
    void setTag(int number);

    /// Selection mark of the variable lists: zero or not.
    int getChecked() const;
    void setChecked(int mark);

    /// Level mark: the run wizard ticks only variables of level 1.
    int getLevel() const;
    void setLevel(int mark);

    /// The physical layout, still owned by the variable. Never null unless setMetadataVariables() was given
    /// null.
    MetadataVariables *getMetadataVariables() const;

    /// Takes over \a layout and frees the one held before. Handing back the held one changes nothing.
    void setMetadataVariables(MetadataVariables *layout);

    /// The list of value labels itself, in order, not a copy. Never null.
    QList<ValueLabelElement *> *getValueLabelElementList() const;

    /// Appends \a element and takes it over.
    void addValueLabelElement(ValueLabelElement *element);

private:
    QString name;
    QString label;
    QString alias;
    QString group;
    QString varType;
    QString documentation;
    QString fileName;
    int size = 0;
    int decimals = 0;
    int fieldRelativePosition = 0;
    int fieldSize = 0;
    int missing = 0;
    int notappl = 0;
    int tag = 0;
    int checked = 0;
    int level = 0;
    bool local = false;
    MetadataVariables *metadataVariables;
    // The getter is const and still hands out the list to be changed.
    mutable QList<ValueLabelElement *> valueLabelElementList;

    Q_DISABLE_COPY_MOVE(TDmVariable)
};
