#pragma once

#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/business/models/Catalogue.h"
#include "tests/business/models/TreeText.h"
#include "tests/support/MessageBoxRobot.h"
#include "tests/support/PointerRobot.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableView>
#include <QtTest>

#include <memory>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace tessel::test {

/// The variable table, telling what was dropped on it and how.
class Table : public VariableDiccionaryModel {
public:
    explicit Table(TDmEntity *shown)
        : VariableDiccionaryModel(nullptr, shown, shown)
    {
    }

    bool dropMimeData(
        const QMimeData *data, Qt::DropAction action, int row, int column, const QModelIndex &parent) override
    {
        drops += QStringLiteral("%1 at %2,%3 %4")
                     .arg(action == Qt::CopyAction      ? "copied"
                             : action == Qt::MoveAction ? "moved"
                                                        : "?")
                     .arg(row)
                     .arg(column)
                     .arg(parent.isValid() ? QStringLiteral("on row %1").arg(parent.row()) : "on no row");
        payload = data->data(transferFormat());
#ifdef __SANITIZE_ADDRESS__
        // What is refused is nobody's, by design.
        if (isRefusal)
            __lsan_disable();
#endif
        const bool isTaken = VariableDiccionaryModel::dropMimeData(data, action, row, column, parent);
#ifdef __SANITIZE_ADDRESS__
        if (isRefusal)
            __lsan_enable();
#endif
        return isTaken;
    }

    QStringList drops;
    QByteArray payload;
    bool isRefusal = false;
};

/// A window with a catalogue on the left and the variable table of an entity on the right.
class Desk {
public:
    Desk(QAbstractItemView *sourceView, QAbstractItemModel *catalogue, const QStringList &variables = {},
        const QList<QMessageBox::StandardButton> &answers = {})
        : robot(answers)
        , entity(treeFrom<TDmEntity>("PERSON"))
        , source(sourceView)
    {
        for (const QString &name : variables) {
            auto variable = std::make_unique<TDmVariable>();
            variable->setName(name);
            entity->addVariables(variable.release());
        }
        table = std::make_unique<Table>(entity.get());
        source->setModel(catalogue);
        source->setDragEnabled(true);
        source->setSelectionMode(QAbstractItemView::ExtendedSelection);
        target = new QTableView;
        target->setModel(table.get());
        target->setAcceptDrops(true);
        auto *layout = new QHBoxLayout(&window);
        layout->addWidget(source, 2);
        layout->addWidget(target, 3);
        window.resize(1000, 400);
        window.show();
    }

    ~Desk()
    {
        source->setModel(nullptr);
        target->setModel(nullptr);
    }

    bool isReady()
    {
        window.activateWindow();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitForWindowActive(&window);
    }

    PointerRobot::Place inSource(int row, int column = 0) const
    {
        const QModelIndex index = source->model()->index(row, column);
        return {source, source->visualRect(index).center()};
    }
    PointerRobot::Place onRow(int row, int column) const
    {
        return {target, target->visualRect(table->index(row, column)).center()};
    }
    PointerRobot::Place aboveRow(int row, int column) const
    {
        const QRect cell = target->visualRect(table->index(row, column));
        return {target, {cell.center().x(), cell.top() + 1}};
    }
    PointerRobot::Place belowTheLastRow() const
    {
        const int bottom = target->verticalHeader()->length();
        return {target, {150, bottom + 60}};
    }

    /// What the table shows, a row in a line.
    QString shown() const
    {
        QStringList lines;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < table->columnCount(); ++column)
                texts += table->data(table->index(row, column)).toString();
            lines += texts.join('|');
        }
        return lines.join('\n');
    }

    TDmVariable *variable(int position) const { return entity->getVariables()->at(position); }

    MessageBoxRobot robot; ///< Boxes that nobody plans for are closed.
    std::unique_ptr<TDmEntity> entity;
    std::unique_ptr<Table> table;
    QWidget window;
    QAbstractItemView *source;
    QTableView *target;
    PointerRobot pointer;

private:
    Q_DISABLE_COPY_MOVE(Desk)
};

} // namespace tessel::test
