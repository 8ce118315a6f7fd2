#pragma once

#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/business/models/TreeText.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MessageBoxRobot.h"

#include <QMap>
#include <QMetaEnum>
#include <QSignalSpy>

#include <memory>

namespace tessel::test {

/// A new variable, the caller's, from "name|alias|label|group". What is not told is empty.
inline TDmVariable *newVariable(const QString &texts)
{
    const QStringList parts = texts.split(QLatin1Char('|'));
    auto *variable = new TDmVariable;
    variable->setName(parts.value(0));
    variable->setAlias(parts.value(1));
    variable->setLabel(parts.value(2));
    variable->setGroup(parts.value(3));
    return variable;
}

/// A new variable, the caller's, whose texts may hold any character.
inline TDmVariable *namedVariable(const QString &name, const QString &alias = {})
{
    auto *variable = new TDmVariable;
    variable->setName(name);
    variable->setAlias(alias);
    return variable;
}

/// All that the table shows of \a variable: "name|alias|label|group|tag".
inline QString textOf(const TDmVariable *variable)
{
    if (!variable)
        return QStringLiteral("null");
    const QStringList texts = {variable->getName(), variable->getAlias(), variable->getLabel(),
        variable->getGroup(), QString::number(variable->getTag())};
    return texts.join(QLatin1Char('|'));
}

/// The names of the variables of \a entity, in its order: "A B".
inline QString namesOf(const TDmEntity &entity)
{
    QStringList names;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
        names += variable ? variable->getName() : QStringLiteral("null");
    return names.join(QLatin1Char(' '));
}

/// What \a box is but for its text: "Question, RefCode Variable, Yes No Cancel, default Yes, plain, modal".
inline QString formOf(const MessageBoxRobot::Box &box)
{
    const auto buttons = [](QMessageBox::StandardButtons set) {
        QString names;
        const auto name = [&](QMessageBox::StandardButton button, const char *text) {
            if (set.testFlag(button))
                names += QLatin1Char(' ') + QLatin1String(text);
            set.setFlag(button, false);
        };
        name(QMessageBox::Ok, "Ok");
        name(QMessageBox::Yes, "Yes");
        name(QMessageBox::No, "No");
        name(QMessageBox::Cancel, "Cancel");
        return set ? names + QStringLiteral(" and others") : names;
    };
    return QStringLiteral("%1, %2,%3, default%4, %5, %6%7")
        .arg(QLatin1String(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box.icon)), box.title,
            buttons(box.buttons), buttons(box.defaultButton),
            QLatin1String(box.textFormat == Qt::PlainText ? "plain" : "not plain"),
            QLatin1String(box.isModal ? "modal" : "not modal"),
            QLatin1String(box.parent ? ", above a window" : ""));
}

/// What \a catcher has of the library's own: the platform without windows has something to say about each
/// box.
inline QStringList ownMessages(const LogCatcher &catcher)
{
    QStringList messages;
    const QStringList all = catcher.messages();
    for (const QString &message : all) {
        if (!message.contains(QLatin1String("propagateSizeHints")))
            messages += message;
    }
    return messages;
}

/// The model with its protected parts in reach.
class OpenVariables : public VariableDiccionaryModel {
public:
    OpenVariables(TDmEntity *shownEntity, TDmEntity *dictionaryRoot)
        : VariableDiccionaryModel(nullptr, shownEntity, dictionaryRoot)
    {
    }
    QModelIndex made(int row, int column, TDmVariable *variable) const
    {
        return createIndex(row, column, variable);
    }
};

/// The variables of the entity HOUSE, in the middle of a dictionary, and the table that shows them.
class VariableTable {
public:
    using Answers = QList<QMessageBox::StandardButton>;

    /// Variables as newVariable() reads them.
    explicit VariableTable(const QStringList &variables)
        : VariableTable(made(variables), Taken())
    {
    }

    /// Takes over \a variables.
    static VariableTable holding(const QList<TDmVariable *> &variables)
    {
        return VariableTable(variables, Taken());
    }

    /// The entity that was called \a name at first.
    TDmEntity *entity(const char *name) const { return entities.value(QLatin1String(name)); }
    TDmVariable *variable(int row) const { return house->getVariables()->at(row); }

    /// What becomes of \a value, typed into a cell: the boxes as "title: text", then "accepted" or "refused".
    /// Checks that an accepted text is announced once by either signal and that a refused one is not, and
    /// changes nothing.
    QString edit(int row, int column, const QVariant &value, const Answers &answers = {QMessageBox::Ok})
    {
        const QString before = state();
        const QModelIndex cell = model.index(row, column);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QSignalSpy modified(&model, &VariableDiccionaryModel::signalVariablesModified);
        MessageBoxRobot robot(answers);
        const bool accepted = model.setData(cell, value);
        QStringList outcome;
        const QList<MessageBoxRobot::Box> boxes = robot.boxes();
        for (const MessageBoxRobot::Box &box : boxes)
            outcome += box.title + QStringLiteral(": ") + box.text;
        outcome += QString::fromLatin1(accepted ? "accepted" : "refused");
        if (changed.count() != int(accepted) || modified.count() != int(accepted))
            outcome += QStringLiteral("announced oddly");
        const QVariantList told = changed.value(0);
        if (accepted
            && (told.value(0).toModelIndex() != cell || told.value(1).toModelIndex() != cell
                || !told.value(2).value<QVector<int>>().isEmpty()))
            outcome += QStringLiteral("announced for other cells");
        if (!accepted && state() != before)
            outcome += QStringLiteral("changed all the same");
        if (robot.unplanned() > 0)
            outcome += QStringLiteral("asked too much");
        return outcome.join(QStringLiteral("; "));
    }

    /// Everything that an edit can change.
    QString state() const
    {
        QStringList texts = {house->getRefCode()};
        for (const TDmVariable *variable : qAsConst(*house->getVariables()))
            texts += textOf(variable);
        for (const TDmEntity *any : entities)
            texts += QString::number(any->getSelectable());
        return texts.join(QLatin1Char('\n'));
    }

    std::unique_ptr<TDmEntity> root;
    TDmEntity *house;
    OpenVariables model;

private:
    struct Taken { };
    VariableTable(const QList<TDmVariable *> &variables, Taken)
        : root(treeFrom<TDmEntity>("LAND(HOUSE(ROOM(BED) BATH) FARM)"))
        , house(filled(find(root.get(), QStringLiteral("HOUSE")), variables))
        , model(house, root.get())
    {
        for (const char *name : {"LAND", "HOUSE", "ROOM", "BED", "BATH", "FARM"})
            entities.insert(QLatin1String(name), find(root.get(), QLatin1String(name)));
    }
    static QList<TDmVariable *> made(const QStringList &texts)
    {
        QList<TDmVariable *> variables;
        for (const QString &text : texts)
            variables += newVariable(text);
        return variables;
    }
    static TDmEntity *filled(TDmEntity *entity, const QList<TDmVariable *> &variables)
    {
        for (TDmVariable *variable : variables)
            entity->addVariables(variable);
        return entity;
    }

    QMap<QString, TDmEntity *> entities;
};

} // namespace tessel::test
