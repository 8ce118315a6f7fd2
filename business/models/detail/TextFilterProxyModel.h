#pragma once

#include <QDateTime>
#include <QRegExp>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

namespace tessel::detail {

/// Internal: the skeleton of the filtering and sorting proxies: a row is kept when the text of one of the
/// searched columns, in upper case and without blanks around it, holds a match of filterRegExp().
class TextFilterProxyModel : public QSortFilterProxyModel {
public:
    /// Which values are compared as numbers: none, those that are int, or all that a number can be made of,
    /// where a text that is no number counts as 0.
    enum class Numbers { None, Integers, Converted };

    /// How one proxy differs from the next.
    struct Rules {
        int searchedColumns;
        Numbers numbers;
    };

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override
    {
        // The pattern is used as it was set: one in lower case finds nothing unless it ignores letter case.
        const QRegExp pattern = filterRegExp();
        for (int column = 0; column < rules.searchedColumns; ++column) {
            const QModelIndex cell = sourceModel()->index(sourceRow, column, sourceParent);
            const QString text = sourceModel()->data(cell, Qt::DisplayRole).toString();
            if (pattern.indexIn(text.toUpper().trimmed()) != -1)
                return true;
        }
        return false;
    }

    /// The type of the left value alone decides how the two are compared; what is equal is not less.
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override
    {
        const QVariant leftData = sourceModel()->data(left, Qt::DisplayRole);
        const QVariant rightData = sourceModel()->data(right, Qt::DisplayRole);
        if (rules.numbers == Numbers::Converted && leftData.canConvert(QMetaType::Double))
            return leftData.toDouble() < rightData.toDouble();
        if (rules.numbers == Numbers::Integers && leftData.userType() == QMetaType::Int)
            return leftData.toInt() < rightData.toInt();
        if (leftData.userType() == QMetaType::QDateTime)
            return leftData.toDateTime() < rightData.toDateTime();
        return QString::localeAwareCompare(sortText(left, leftData), sortText(right, rightData)) < 0;
    }

protected:
    TextFilterProxyModel(QObject *parent, Rules proxyRules)
        : QSortFilterProxyModel(parent)
        , rules(proxyRules)
    {
    }

private:
    /// In column 1 the word around an at sign stands for the whole text.
    static QString sortText(const QModelIndex &index, const QVariant &value)
    {
        QString text = value.toString();
        if (index.column() != 1 || !text.contains(QLatin1Char('@')))
            return text;
        static const QRegularExpression token(QStringLiteral("[\\w\\.]*@[\\w\\.]*"));
        const QRegularExpressionMatch match = token.match(text);
        return match.hasMatch() ? match.captured(0) : text;
    }

    const Rules rules;
};

} // namespace tessel::detail
