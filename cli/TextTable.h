#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace tessel::cli {

/// A table for a terminal: columns as wide as their widest cell, two blanks between them.
class TextTable {
public:
    enum class Align { Left, Right };

    /// One column: its title and on which side its cells stand.
    struct Column {
        QString title;
        Align align = Align::Left;
    };

    explicit TextTable(QVector<Column> columns);

    /// One row with a cell for each column. Control characters are shown, not sent.
    void addRow(const QStringList &cells);

    /// The lines, the titles first. A column without any text in its cells is left out.
    QString text() const;

    /// The lines without the titles.
    QString rowText() const;

private:
    QVector<int> widths(bool withTitles) const;
    QString line(const QStringList &cells, const QVector<int> &widths) const;

    QVector<Column> columns;
    QVector<QStringList> rows;
};

/// One thing with what is known of it: \a title on a line of its own, then a line for each name and text of
/// \a facts that has a text.
QString factsText(const QString &title, const QVector<QPair<QString, QString>> &facts);

} // namespace tessel::cli
