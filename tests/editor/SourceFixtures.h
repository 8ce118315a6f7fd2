#pragma once

#include "editor/views/SourceLine.h"
#include "editor/views/SourceTable.h"
#include "editor/views/SourcesPane.h"
#include "model/TDmSourceField.h"
#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
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

/// What reads any file as one with \a fields.
inline auto readerOf(const QStringList &fields)
{
    return [fields](const QString &, const sources::ReadOptions &) {
        sources::SourceOutcome outcome;
        outcome.result.emplace();
        outcome.result->fields = fieldsOf(fields);
        return outcome;
    };
}

/// Opens \a fields in \a pane as those of the dataset \a name, which need not be there.
inline void showDataset(tessel::editor::SourcesPane &pane, const QStringList &fields, const QString &name)
{
    pane.setDatasetReader(readerOf(fields));
    if (!pane.openDataset(name))
        qFatal("no fields in %s", qPrintable(name));
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

inline QStringList sentencesOf(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &arguments : spy)
        texts.append(arguments.first().toString());
    return texts;
}

inline QString lineOf(const tessel::editor::SourcesPane &pane, const char *name)
{
    return childOf<tessel::editor::SourceLine>(pane, name)->text();
}

/// Drops \a urls on \a target with Shift pressed, which asks for moving; returns whether they were taken as
/// copies.
inline bool drop(
    QWidget &target, const QList<QUrl> &urls, Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    enter.ignore();
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted() || enter.dropAction() != Qt::CopyAction)
        return false;
    QDropEvent event(QPointF(5, 5), actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    event.ignore();
    QApplication::sendEvent(&target, &event);
    return event.isAccepted() && event.dropAction() == Qt::CopyAction;
}

/// The file dialog that \a pane shows; null when it shows none.
inline QFileDialog *dialogOf(const tessel::editor::SourcesPane &pane)
{
    return pane.findChild<QFileDialog *>();
}

/// Chooses \a name in the file dialog of \a pane.
inline void choose(const tessel::editor::SourcesPane &pane, const QString &name)
{
    auto *edit = childOf<QLineEdit>(*dialogOf(pane), "fileNameEdit");
    edit->clear();
    QTest::keyClicks(edit, name);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace tessel::test
