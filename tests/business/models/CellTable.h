#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace tessel::test {

/// A table whose cells can be changed behind the back of whoever shows it, and that notes what is read.
class CellTable : public QAbstractTableModel {
public:
    explicit CellTable(int tableColumns)
        : columns(tableColumns)
    {
    }

    /// Appends a row of \a values; the cells behind them are empty texts.
    void add(QVector<QVariant> values)
    {
        while (values.size() < columns)
            values += QString();
        cells += values;
    }

    /// Appends a row that has \a value in \a column and empty texts elsewhere.
    void addAt(int column, const QVariant &value)
    {
        QVector<QVariant> values(columns, QString());
        values[column] = value;
        cells += values;
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : cells.size();
    }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : columns;
    }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid())
            return QVariant();
        reads += QStringLiteral("%1,%2 %3").arg(index.row()).arg(index.column()).arg(role);
        return role == Qt::DisplayRole ? cells.at(index.row()).at(index.column()) : QVariant("other role");
    }

    QVector<QVector<QVariant>> cells;
    mutable QStringList reads; ///< "row,column role", in order.

private:
    int columns;
};

} // namespace tessel::test
