#pragma once

#include <QAbstractItemModel>
#include <QStringList>

#include <utility>

namespace tessel::test {

/// Writes down what a model announces while this object lives, each with the rows that there were at that
/// time: "removing 2-3 of 6", "removed 2-3, 4 left".
class Announcements {
public:
    explicit Announcements(QAbstractItemModel &model)
    {
        using Model = QAbstractItemModel;
        const auto onRows = [&](auto signal, const char *text) {
            QObject::connect(&model, signal, &context,
                [this, &model, text](const QModelIndex &parent, int first, int last) {
                    lines += QString::fromLatin1(text).arg(first).arg(last).arg(model.rowCount())
                        + (parent.isValid() ? QStringLiteral(" below a row") : QString());
                });
        };
        onRows(&Model::rowsAboutToBeInserted, "inserting %1-%2, %3 there");
        onRows(&Model::rowsInserted, "inserted %1-%2, %3 there");
        onRows(&Model::rowsAboutToBeRemoved, "removing %1-%2 of %3");
        onRows(&Model::rowsRemoved, "removed %1-%2, %3 left");
        QObject::connect(&model, &Model::dataChanged, &context,
            [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                lines += QStringLiteral("changed %1,%2 to %3,%4, %5 roles")
                             .arg(first.row())
                             .arg(first.column())
                             .arg(last.row())
                             .arg(last.column())
                             .arg(roles.size());
            });
        const auto onAny = [&](auto signal, const char *text) {
            QObject::connect(&model, signal, &context, [this, text] { lines += QString::fromLatin1(text); });
        };
        onAny(&Model::modelReset, "reset");
        onAny(&Model::layoutChanged, "layout changed");
        onAny(&Model::headerDataChanged, "header changed");
        onAny(&Model::rowsMoved, "rows moved");
        onAny(&Model::columnsInserted, "columns inserted");
        onAny(&Model::columnsRemoved, "columns removed");
    }

    /// What came since the last call.
    QStringList take() { return std::exchange(lines, {}); }

private:
    QObject context;
    QStringList lines;

    Q_DISABLE_COPY_MOVE(Announcements)
};

} // namespace tessel::test
