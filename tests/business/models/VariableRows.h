#pragma once

#include "model/TDmVariable.h"

#include <QAbstractItemModel>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace tessel::test {

/// Variables that are freed in the end, and the list of them that a model is given.
class Variables {
public:
    Variables() = default;

    /// Variables of level 1 with the names in \a names, which are parted by blanks.
    explicit Variables(const char *names)
    {
        for (const QString &name : QString::fromUtf8(names).split(' '))
            add(name);
    }

    TDmVariable *add(const QString &name, const QString &label = QString(), const QString &alias = QString(),
        const QString &group = QString(), int tag = 0)
    {
        owned.push_back(std::make_unique<TDmVariable>());
        TDmVariable *variable = owned.back().get();
        variable->setName(name);
        variable->setLabel(label);
        variable->setAlias(alias);
        variable->setGroup(group);
        variable->setTag(tag);
        variable->setLevel(1);
        list += variable;
        return variable;
    }

    /// The checked marks in order: "0 1 0".
    QString marks() const
    {
        QStringList texts;
        for (const auto &variable : owned)
            texts += QString::number(variable->getChecked());
        return texts.join(' ');
    }

    QList<TDmVariable *> list;

private:
    std::vector<std::unique_ptr<TDmVariable>> owned;
    Q_DISABLE_COPY_MOVE(Variables)
};

/// What is shown in \a row, "AGE | Age of person | A".
inline QString rowText(const QAbstractItemModel &model, int row)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells += model.index(row, column).data().toString();
    return cells.join(" | ");
}

/// What is shown in \a column, from the first row to the last.
inline QStringList columnTexts(const QAbstractItemModel &model, int column = 0)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, column).data().toString();
    return texts;
}

} // namespace tessel::test
