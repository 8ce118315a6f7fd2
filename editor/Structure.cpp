#include "editor/Structure.h"

#include "editor/DictionaryDocument.h"
#include "editor/Edit.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "util/DictionaryUtil.h"

#include <QSet>
#include <QVector>

#include <algorithm>

namespace tessel::editor {
namespace {

/// \a stem with the lowest number behind it that \a taken does not hold.
QString freeName(const QString &stem, const QStringList &taken)
{
    const QSet<QString> used(taken.cbegin(), taken.cend());
    for (int number = 1;; ++number) {
        QString name = stem + QString::number(number);
        if (!used.contains(name))
            return name;
    }
}

int rowFor(int row, int size) { return row < 0 || row > size ? size : row; }

/// \a list without \a unwanted.
template<typename Item>
QList<Item *> without(const QList<Item *> &list, const QList<Item *> &unwanted)
{
    const QSet<Item *> gone(unwanted.cbegin(), unwanted.cend());
    QList<Item *> rest;
    std::copy_if(list.cbegin(), list.cend(), std::back_inserter(rest),
        [&gone](Item *item) { return !gone.contains(item); });
    return rest;
}

/// \a list with \a items moved by \a steps, each past one neighbour per step; as it is when one of them would
/// leave the list.
template<typename Item>
QList<Item *> moved(QList<Item *> list, const QList<Item *> &items, int steps)
{
    QVector<int> rows;
    for (Item *item : items) {
        const int row = list.indexOf(item);
        if (row < 0 || row + steps < 0 || row + steps >= list.size())
            return list;
        rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    // The one that goes first makes room for the next.
    if (steps > 0)
        std::reverse(rows.begin(), rows.end());
    for (const int row : qAsConst(rows))
        list.move(row, row + steps);
    return list;
}

QList<ValueLabelElement *> &labelsOf(TDmVariable &variable) { return *variable.getValueLabelElementList(); }
QList<Range *> &rangesOf(TDmVariable &variable) { return *variable.getMetadataVariables()->getRange(); }

ValueLabelElement *newLabel(const QString &code, const QString &text)
{
    auto *label = new ValueLabelElement;
    label->setValue(code);
    label->setLabel(text);
    return label;
}

/// One above the highest whole number among the codes of \a variable.
QString nextCode(TDmVariable &variable)
{
    qint64 highest = 0;
    for (const ValueLabelElement *label : qAsConst(labelsOf(variable)))
        highest = std::max(highest, label->getValue().toLongLong());
    // There is no number above the highest one of its type.
    return QString::number(quint64(highest) + 1);
}

} // namespace

Structure::Structure(DictionaryDocument &editedDocument)
    : document(editedDocument)
{
}

TDmEntity *Structure::addEntity(TDmEntity &parent)
{
    DictionaryUtil util;
    const QStringList taken = util.getNamesEntitiesDictionary(&document.root(), {})
        + util.getAliasEntitiesDictionary(&document.root(), {})
        + util.getGroupEntitiesDictionary(&document.root(), {});
    Edit edit(document, Scope::ofEntity(parent));
    auto *entity = new TDmEntity;
    entity->setName(freeName(QStringLiteral("ENTITY_"), taken));
    entity->setLevel(parent.getLevel() + 1);
    parent.getChildren()->append(entity);
    edit.commit(tr("add %1").arg(entity->getName()));
    return entity;
}

bool Structure::removeEntity(TDmEntity &entity)
{
    TDmEntity *parent = parentOf(entity);
    if (!parent)
        return false;
    Edit edit(document, Scope::ofEntity(*parent));
    parent->getChildren()->removeOne(&entity);
    return edit.commit(tr("delete %1").arg(entity.getName()));
}

bool Structure::moveEntity(TDmEntity &entity, int steps)
{
    TDmEntity *parent = parentOf(entity);
    if (!parent)
        return false;
    Edit edit(document, Scope::ofEntity(*parent));
    *parent->getChildren() = moved(*parent->getChildren(), {&entity}, steps);
    return edit.commit(tr("move %1").arg(entity.getName()));
}

TDmEntity *Structure::parentOf(const TDmEntity &entity) const
{
    QVector<TDmEntity *> pending{&document.root()};
    while (!pending.isEmpty()) {
        TDmEntity *parent = pending.takeLast();
        for (TDmEntity *child : qAsConst(*parent->getChildren())) {
            if (child == &entity)
                return parent;
            pending.append(child);
        }
    }
    return nullptr;
}

TDmVariable *Structure::addVariable(TDmEntity &entity, int row)
{
    DictionaryUtil util;
    const QStringList taken =
        util.getNamesVariablesByEntities(&entity, {}) + util.getNamesEntitiesDictionary(&document.root(), {});
    Edit edit(document, Scope::ofEntity(entity));
    auto *variable = new TDmVariable;
    variable->setName(freeName(QStringLiteral("VARIABLE_"), taken));
    variable->setVarType(QStringLiteral("INTEGER"));
    variable->setLevel(1);
    entity.getVariables()->insert(rowFor(row, entity.getVariables()->size()), variable);
    edit.commit(tr("add %1").arg(variable->getName()));
    return variable;
}

bool Structure::removeVariables(TDmEntity &entity, const QList<TDmVariable *> &variables)
{
    Edit edit(document, Scope::ofEntity(entity));
    *entity.getVariables() = without(*entity.getVariables(), variables);
    return edit.commit(variables.size() == 1 ? tr("delete %1").arg(variables.first()->getName())
                                             : tr("delete %n variables", nullptr, variables.size()));
}

bool Structure::moveVariables(TDmEntity &entity, const QList<TDmVariable *> &variables, int steps)
{
    Edit edit(document, Scope::ofEntity(entity));
    *entity.getVariables() = moved(*entity.getVariables(), variables, steps);
    return edit.commit(variables.size() == 1 ? tr("move %1").arg(variables.first()->getName())
                                             : tr("move %n variables", nullptr, variables.size()));
}

ValueLabelElement *Structure::addLabel(TDmVariable &variable, int row)
{
    Edit edit(document, Scope::ofVariable(variable));
    ValueLabelElement *label = newLabel(nextCode(variable), QString());
    labelsOf(variable).insert(rowFor(row, labelsOf(variable).size()), label);
    edit.commit(tr("add label %1 to %2").arg(label->getValue(), variable.getName()));
    return label;
}

bool Structure::removeLabels(TDmVariable &variable, const QList<ValueLabelElement *> &labels)
{
    Edit edit(document, Scope::ofVariable(variable));
    labelsOf(variable) = without(labelsOf(variable), labels);
    return edit.commit(tr("delete labels of %1").arg(variable.getName()));
}

bool Structure::moveLabels(TDmVariable &variable, const QList<ValueLabelElement *> &labels, int steps)
{
    Edit edit(document, Scope::ofVariable(variable));
    labelsOf(variable) = moved(labelsOf(variable), labels, steps);
    return edit.commit(tr("move labels of %1").arg(variable.getName()));
}

int Structure::pasteLabels(TDmVariable &variable, const QString &text)
{
    Edit edit(document, Scope::ofVariable(variable));
    int added = 0;
    QString plain = text;
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QStringList lines = plain.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const int tab = line.indexOf(QLatin1Char('\t'));
        const QString cell = tab < 0 ? line.trimmed() : line;
        const int cut = tab < 0 ? cell.indexOf(QLatin1Char(' ')) : tab;
        const QString code = cut < 0 ? cell : cell.left(cut);
        const QString label = cut < 0 ? QString() : cell.mid(cut + 1).section(QLatin1Char('\t'), 0, 0);
        labelsOf(variable).append(newLabel(code.trimmed(), label.trimmed()));
        ++added;
    }
    edit.commit(tr("paste %n labels", nullptr, added));
    return added;
}

bool Structure::copyLabels(const TDmVariable &source, const QList<TDmVariable *> &targets)
{
    Scope scope;
    for (TDmVariable *target : targets)
        scope |= Scope::ofVariable(*target);
    Edit edit(document, scope);
    // Each once: a target that was named twice would leave its first copies to nobody.
    for (TDmVariable *target : scope.variables()) {
        if (target == &source)
            continue;
        QList<ValueLabelElement *> copies;
        for (const ValueLabelElement *label : qAsConst(*source.getValueLabelElementList()))
            copies.append(newLabel(label->getValue(), label->getLabel()));
        labelsOf(*target) = copies;
    }
    return edit.commit(tr("copy labels of %1").arg(source.getName()));
}

Range *Structure::addRange(TDmVariable &variable, int row)
{
    Edit edit(document, Scope::ofVariable(variable));
    auto *range = new Range;
    rangesOf(variable).insert(rowFor(row, rangesOf(variable).size()), range);
    edit.commit(tr("add range to %1").arg(variable.getName()));
    return range;
}

bool Structure::removeRanges(TDmVariable &variable, const QList<Range *> &ranges)
{
    Edit edit(document, Scope::ofVariable(variable));
    rangesOf(variable) = without(rangesOf(variable), ranges);
    return edit.commit(tr("delete ranges of %1").arg(variable.getName()));
}

bool Structure::moveRanges(TDmVariable &variable, const QList<Range *> &ranges, int steps)
{
    Edit edit(document, Scope::ofVariable(variable));
    rangesOf(variable) = moved(rangesOf(variable), ranges, steps);
    return edit.commit(tr("move ranges of %1").arg(variable.getName()));
}

} // namespace tessel::editor
