#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class Range;
class TDmEntity;
class TDmVariable;
class ValueLabelElement;

namespace tessel::editor {

class DictionaryDocument;

/// The edits that the library's models do not offer: adding, taking out and moving. Each is one step of the
/// undo stack. Objects that are handed in belong to the document's tree; nothing here deletes any.
class Structure {
    Q_DECLARE_TR_FUNCTIONS(tessel::editor::Structure)

public:
    explicit Structure(DictionaryDocument &document);

    /// A new entity with a free name below \a parent, behind all others.
    TDmEntity *addEntity(TDmEntity &parent);

    /// Takes \a entity out with everything below it. The dictionary itself cannot be taken out: false.
    bool removeEntity(TDmEntity &entity);

    /// Moves \a entity by \a steps among its siblings; false when there is no room.
    bool moveEntity(TDmEntity &entity, int steps);

    /// The entity that \a entity hangs below; null for the dictionary itself.
    TDmEntity *parentOf(const TDmEntity &entity) const;

    /// A new variable with a free name in \a entity, at \a row, or behind all others for -1.
    TDmVariable *addVariable(TDmEntity &entity, int row = -1);
    bool removeVariables(TDmEntity &entity, const QList<TDmVariable *> &variables);
    bool moveVariables(TDmEntity &entity, const QList<TDmVariable *> &variables, int steps);

    /// A value label with the next free code, at \a row, or behind all others for -1.
    ValueLabelElement *addLabel(TDmVariable &variable, int row = -1);
    bool removeLabels(TDmVariable &variable, const QList<ValueLabelElement *> &labels);
    bool moveLabels(TDmVariable &variable, const QList<ValueLabelElement *> &labels, int steps);

    /// Adds one label for each line of \a text, as spreadsheets copy them: code, tab, label. A line without a
    /// tab is split at its first blank. Gives the number of labels added.
    int pasteLabels(TDmVariable &variable, const QString &text);

    /// Gives all of \a targets the labels that \a source has, in place of their own.
    bool copyLabels(const TDmVariable &source, const QList<TDmVariable *> &targets);

    Range *addRange(TDmVariable &variable, int row = -1);
    bool removeRanges(TDmVariable &variable, const QList<Range *> &ranges);
    bool moveRanges(TDmVariable &variable, const QList<Range *> &ranges, int steps);

private:
    DictionaryDocument &document;
};

} // namespace tessel::editor
