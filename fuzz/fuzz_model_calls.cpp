// Any calls in any order on one of the models and proxies, over whole objects, with null objects among them,
// or over nothing. The list of models is that of the contract tests.

#include "fuzz/support/BoxAnswerer.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "fuzz/support/Gestures.h"
#include "fuzz/support/Input.h"
#include "tests/business/models/LeftToNobody.h"
#include "tests/business/models/ModelSweep.h"

#include <QItemSelectionModel>

using namespace tessel::fuzz;
namespace contract = tessel::test;

namespace {

/// \a row over \a shape. A drop may overwrite one of its objects, which is nobody's then, by design.
std::unique_ptr<contract::OpenModel> openedOf(const contract::ModelRow &row, contract::Shape shape)
{
    const contract::LeftToNobody allowance;
    return row.open(shape);
}

/// One model, what looks at it, and the calls that the input makes on it.
class Session {
public:
    explicit Session(Input &source)
        : input(source)
        , row(contract::modelTable().at(input.number(0, contract::modelTable().size() - 1)))
        , opened(openedOf(row, contract::Shape(input.number(0, 2))))
        , stranger(row.open(contract::Shape::Whole))
        , model(opened->model())
        , proxy(qobject_cast<QSortFilterProxyModel *>(&model))
        , selection(&model)
    {
        setFaultPlace(row.name);
    }

    void play()
    {
        constexpr int most = 60;
        for (int i = 0; i < most && !input.isAtEnd(); ++i) {
            call();
            expectRows({}, 0);
            expectSelection();
        }
    }

    /// Asks everything of every index, as the contract tests do.
    void sweep()
    {
        expectSame(contract::faults(*opened, row).join(QLatin1Char('\n')), QString(), row.name);
        expectSame(contract::headerFaults(model, row).join(QLatin1Char('\n')), QString(), row.name);
    }

private:
    /// An index as a view has it, or as nobody should.
    QModelIndex anyIndex()
    {
        const QModelIndex parent = input.flag() ? model.index(0, 0) : QModelIndex();
        switch (input.number(0, 7)) {
        case 0:
            return {};
        case 1:
            return model.index(input.anyInt(), input.anyInt(), parent);
        case 2:
            return opened->made(input.anyInt(), input.anyInt(), nullptr);
        case 3:
            return proxy ? QModelIndex() : stranger->model().index(0, 0);
        default:
            return model.index(input.number(0, 7), input.number(0, 5), parent);
        }
    }

    /// A row, a column or a number of them. Qt's proxies add them up without a look at the limits of int.
    int anyPlace() { return proxy ? input.number(-1, 9) : input.anyInt(); }

    void call()
    {
        switch (input.number(0, 15)) {
        case 0:
        case 1:
        case 2:
            model.setData(anyIndex(), input.value(), input.flag() ? Qt::EditRole : input.number(0, 260));
            break;
        case 3:
            model.setItemData(anyIndex(), {{Qt::EditRole, input.value()}, {input.anyInt(), input.value()}});
            break;
        case 4:
            model.insertRows(anyPlace(), anyPlace(), anyIndex());
            break;
        case 5:
            model.removeRows(anyPlace(), anyPlace(), anyIndex());
            break;
        case 6:
            drop();
            break;
        case 7:
            // Qt itself falls over at columns below -1.
            model.sort(input.number(-1, 9), input.flag() ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 8:
            filter();
            break;
        case 9:
            select();
            break;
        case 10:
            kept.append(QPersistentModelIndex(anyIndex()));
            break;
        case 11:
            ask(anyIndex());
            break;
        case 12:
            model.setHeaderData(input.anyInt(), Qt::Horizontal, input.value(), input.anyInt());
            break;
        case 13:
            model.match(model.index(0, 0), input.number(0, 9), input.value(), input.number(-1, 3),
                Qt::MatchFlags(input.number(0, 3)) | Qt::MatchRecursive);
            break;
        case 14:
            model.moveRows({}, anyPlace(), anyPlace(), anyIndex(), anyPlace());
            break;
        default:
            model.removeColumns(anyPlace(), anyPlace(), anyIndex());
            model.insertColumns(anyPlace(), anyPlace(), anyIndex());
            break;
        }
    }

    void ask(const QModelIndex &index)
    {
        contract::rolesAnswered(model, index);
        model.headerData(input.anyInt(), input.flag() ? Qt::Horizontal : Qt::Vertical, input.anyInt());
        model.sibling(input.anyInt(), input.anyInt(), index);
    }

    void drop()
    {
        const std::unique_ptr<QMimeData> data = payloadFrom(input);
        const Qt::DropAction action = input.flag() ? Qt::CopyAction : Qt::MoveAction;
        const contract::LeftToNobody allowance;
        model.dropMimeData(data.get(), action, input.anyInt(), input.number(-1, 1), anyIndex());
    }

    void filter()
    {
        const QRegExp pattern = patternFrom(input);
        if (proxy)
            proxy->setFilterRegExp(pattern);
    }

    void select()
    {
        const QModelIndex index = model.index(input.number(0, 7), input.number(0, 5));
        const auto how = QItemSelectionModel::SelectionFlags(input.number(0, 63));
        selection.select(index, how);
        if (input.flag())
            selection.setCurrentIndex(index, how);
    }

    /// What index() gives for the rows that are there is where it says to be, and what is not there is not
    /// given.
    void expectRows(const QModelIndex &parent, int depth)
    {
        const int rows = model.rowCount(parent);
        const int columns = model.columnCount(parent);
        expect(rows >= 0 && columns >= 0, "a number of rows or columns is negative");
        expect(!model.index(rows, 0, parent).isValid(), "there is a row behind the last one");
        expect(!model.index(-1, 0, parent).isValid(), "there is a row before the first one");
        for (int at = 0; at < rows; ++at) {
            const QModelIndex cell = model.index(at, 0, parent);
            // A flat list says that it has rows below its rows, and has none: meant so.
            if (!cell.isValid() && parent.isValid())
                return;
            expect(cell.isValid() && cell.row() == at && cell.column() == 0, "a row is somewhere else");
            expect(cell.model() == &model, "a row is another model's");
            // The row of a tree's parent is a level: meant so. It is the same object all the same.
            const bool isFound = model.parent(cell).internalPointer() == parent.internalPointer();
            expect(isFound || proxy || !cell.internalPointer(), "a row has another parent");
            // All proxies stand over flat lists, whose rows below rows are none.
            if (!proxy && depth < 4)
                expectRows(cell, depth + 1);
        }
    }

    /// A proxy announces rightly, so that a selection never points at rows that are gone.
    void expectSelection()
    {
        const QModelIndexList selected = selection.selectedIndexes();
        if (!proxy)
            return;
        for (const QModelIndex &index : selected)
            expect(index.row() < model.rowCount(), "a row is selected that is not there");
        for (const QPersistentModelIndex &index : qAsConst(kept))
            expect(!index.isValid() || index.row() < model.rowCount(), "a row is kept that is not there");
    }

    Input &input;
    const contract::ModelRow &row;
    std::unique_ptr<contract::OpenModel> opened;
    std::unique_ptr<contract::OpenModel> stranger;
    QAbstractItemModel &model;
    QSortFilterProxyModel *proxy;
    QItemSelectionModel selection;
    QList<QPersistentModelIndex> kept;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    openDesk();
    Input input(data, size);
    const BoxAnswerer boxes(unsigned(input.anyInt()));
    // The sweep takes as long as hundreds of calls.
    const bool isSwept = input.number(0, 63) == 1;
    Session session(input);
    session.play();
    if (isSwept)
        session.sweep();
    return 0;
}
