#pragma once

#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmEntity.h"
#include "tests/business/models/LeftToNobody.h"
#include "tests/business/models/VariableText.h"

#include <QDataStream>
#include <QMimeData>
#include <QSignalSpy>
#include <QStringList>

#include <memory>

namespace tessel::test {

inline QString transferType() { return QStringLiteral("application/vnd.text.list"); }

/// \a texts as a catalogue sends them.
inline QByteArray payloadOf(const QStringList &texts)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    for (const QString &text : texts)
        stream << text;
    return payload;
}

/// \a payload under the transfer type.
inline std::unique_ptr<QMimeData> dataOf(const QByteArray &payload)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(transferType(), payload);
    return data;
}

/// The transfer text of a text field; \a rest is what else it says, with single quotes.
inline QString field(const QString &name, const QByteArray &rest = QByteArray())
{
    return "{\"name\": \"" + name + "\", \"fieldType\": \"STRING\""
        + QString::fromUtf8(rest).replace(QLatin1Char('\''), QLatin1Char('"')) + "}";
}

/// The transfer text of a lookup.
inline QString lookup(const QString &name) { return field(name, ", 'type': 'LOOKUP'"); }

/// The names of \a variables, parted by blanks.
inline QString namesOf(const QList<TDmVariable *> &variables)
{
    QStringList names;
    for (const TDmVariable *variable : variables)
        names += variable->getName();
    return names.join(QLatin1Char(' '));
}

/// An entity with a table of its variables, into which fields are dropped.
struct DropTable {
    explicit DropTable(const QStringList &names = {})
    {
        for (const QString &name : names)
            add(name);
        model = std::make_unique<VariableDiccionaryModel>(nullptr, &entity, &entity);
    }

    TDmVariable *add(const QString &name)
    {
        auto *variable = new TDmVariable;
        variable->setName(name);
        entity.addVariables(variable);
        return variable;
    }

    bool drop(const QByteArray &payload, Qt::DropAction action = Qt::CopyAction, int row = -1,
        int column = -1, const QModelIndex &parent = QModelIndex())
    {
        const std::unique_ptr<QMimeData> data = dataOf(payload);
        return model->dropMimeData(data.get(), action, row, column, parent);
    }
    bool drop(const QStringList &texts) { return drop(payloadOf(texts)); }

    /// A drop that leaves variables to nobody.
    bool dropAndLeave(const QStringList &texts)
    {
        const LeftToNobody allowance;
        return drop(texts);
    }

    TDmVariable *variable(int position) const { return entity.getVariables()->at(position); }

    /// What the entity has.
    QString names() const { return namesOf(*entity.getVariables()); }

    /// What the table shows.
    QString shown() const
    {
        QStringList names;
        for (int row = 0; row < model->rowCount(); ++row)
            names += model->index(row, 0).data().toString();
        return names.join(QLatin1Char(' '));
    }

    TDmEntity entity;
    std::unique_ptr<VariableDiccionaryModel> model;
};

/// Counts what a table announces, as "reset 1 modified 2"; "nothing" when it is silent.
class Announcements {
public:
    explicit Announcements(const VariableDiccionaryModel &model)
        : aboutToReset(&model, &QAbstractItemModel::modelAboutToBeReset)
        , reset(&model, &QAbstractItemModel::modelReset)
        , modified(&model, &VariableDiccionaryModel::signalVariablesModified)
        , changed(&model, &QAbstractItemModel::dataChanged)
        , inserted(&model, &QAbstractItemModel::rowsInserted)
        , removed(&model, &QAbstractItemModel::rowsRemoved)
        , moved(&model, &QAbstractItemModel::rowsMoved)
    {
    }

    QString text() const
    {
        QStringList parts;
        const auto add = [&parts](const char *name, const QSignalSpy &spy) {
            if (!spy.isEmpty())
                parts += QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(spy.count());
        };
        if (aboutToReset.count() != reset.count())
            parts += "unbalanced";
        add("reset", reset);
        add("modified", modified);
        add("changed", changed);
        add("inserted", inserted);
        add("removed", removed);
        add("moved", moved);
        return parts.isEmpty() ? QStringLiteral("nothing") : parts.join(QLatin1Char(' '));
    }

private:
    QSignalSpy aboutToReset;
    QSignalSpy reset;
    QSignalSpy modified;
    QSignalSpy changed;
    QSignalSpy inserted;
    QSignalSpy removed;
    QSignalSpy moved;
};

} // namespace tessel::test
