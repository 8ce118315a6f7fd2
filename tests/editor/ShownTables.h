#pragma once

#include "editor/DictionaryDocument.h"
#include "editor/views/LabelPane.h"
#include "editor/views/RangePane.h"
#include "editor/views/TableView.h"
#include "editor/views/VariablePane.h"
#include "tests/editor/EditorFixtures.h"

#include <QHeaderView>
#include <QUndoStack>
#include <QtTest>

namespace tessel::test {

/// The three tables over the small dictionary: the variables of PERSON, labels and ranges of SEX.
struct ShownTables {
    ShownTables()
    {
        for (editor::TablePane *pane : all()) {
            pane->resize(640, 300);
            bringUp(*pane);
        }
        load(document);
        variables.show(&person());
        labels.show(&sex());
        ranges.show(&sex());
    }

    QVector<editor::TablePane *> all() { return {&variables, &labels, &ranges}; }
    TDmEntity &person() { return entityIn(document, "PERSON"); }
    TDmVariable &sex() { return variableIn(document, "PERSON", "SEX"); }

    /// The columns that tests read: of variables the name.
    QString names() const
    {
        QStringList list;
        for (const QString &row : rowsOf(*variables.view()))
            list += row.section('|', 0, 0);
        return list.join(' ');
    }
    QUndoStack &stack() { return *document.undoStack(); }

    editor::DictionaryDocument document;
    editor::VariablePane variables{document};
    editor::LabelPane labels{document};
    editor::RangePane ranges{document};
};

inline void activate(QWidget &pane)
{
    bringUp(pane);
    pane.setFocus();
}

inline void press(editor::TableView &view, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(&view, key, modifiers);
}

inline void sortBy(editor::TableView &view, int column)
{
    QHeaderView *header = view.horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
        {header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2});
}

} // namespace tessel::test
