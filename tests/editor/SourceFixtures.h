#pragma once

#include "editor/views/SourceTable.h"
#include "editor/views/SourcesPane.h"
#include "model/TDmSourceField.h"

#include <QFile>
#include <QHeaderView>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <vector>

namespace tessel::test {

/// A folder with files, gone with the object.
class SourceFiles {
public:
    /// The whole name of a new file \a name that holds \a bytes.
    QString make(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no room for %s", name);
        return file.fileName();
    }

    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }

private:
    QTemporaryDir folder;
};

/// Fields of a dataset, one for each "NAME=Label".
inline std::vector<std::unique_ptr<TDmSourceField>> fieldsOf(const QStringList &texts)
{
    std::vector<std::unique_ptr<TDmSourceField>> fields;
    for (const QString &text : texts) {
        auto field = std::make_unique<TDmSourceField>();
        field->name = text.section(QLatin1Char('='), 0, 0);
        field->label = text.section(QLatin1Char('='), 1);
        field->fieldType = QStringLiteral("INTEGER");
        field->rangeMin = QStringLiteral("0");
        field->rangeMax = QStringLiteral("9");
        field->categories = QStringLiteral("1 Yes\t2 No");
        fields.push_back(std::move(field));
    }
    return fields;
}

template<typename Widget>
Widget *childOf(const QWidget &widget, const char *name)
{
    auto *child = widget.findChild<Widget *>(QLatin1String(name));
    if (!child)
        qFatal("no child %s", name);
    return child;
}

/// The rows that \a table shows, cells parted by bars.
inline QStringList rowsOf(const tessel::editor::SourceTable &table)
{
    QStringList rows;
    const QAbstractItemModel &model = *table.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        rows.append(cells.join(QLatin1Char('|')));
    }
    return rows;
}

/// A click into the first cell of \a row.
inline void clickRow(tessel::editor::SourceTable &table, int row, Qt::KeyboardModifiers keys = Qt::NoModifier)
{
    const QRect cell = table.visualRect(table.model()->index(row, 0));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, keys, cell.center());
}

} // namespace tessel::test
