// Any bytes dropped on the variable table: as the payload itself, or each line of them as one dragged field,
// so that the fuzzer need not guess the lengths in a payload. Boxes are answered in any way.

#include "business/models/VariableDiccionaryModel.h"
#include "business/models/detail/FieldTransfer.h"
#include "fuzz/support/BoxAnswerer.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "fuzz/support/Input.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/business/models/LeftToNobody.h"

#include <QSet>

#include <memory>

using namespace tessel::fuzz;
using tessel::detail::FieldTransfer;

namespace {

/// How a drop arrives.
struct Way {
    explicit Way(Input &input)
        : isPayload(input.flag())
        , answers(unsigned(input.anyInt()))
        , times(input.number(1, 2))
        , action(input.number(0, 7) == 0 ? Qt::IgnoreAction : Qt::CopyAction)
        , row(input.anyInt())
        , column(input.number(-1, 1))
    {
    }

    const bool isPayload;
    const unsigned answers;
    const int times; ///< A second drop finds every variable there already.
    const Qt::DropAction action;
    const int row;
    const int column;
};

std::unique_ptr<QMimeData> dataOf(const Way &way, const QByteArray &bytes)
{
    if (!way.isPayload)
        return std::unique_ptr<QMimeData>(
            FieldTransfer::wrapped(QString::fromUtf8(bytes).split(QLatin1Char('\n'))));
    auto data = std::make_unique<QMimeData>();
    data->setData(FieldTransfer::mimeType(), bytes);
    return data;
}

bool hasRepeatedNames(const TDmEntity &entity)
{
    QSet<QString> names;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
        names.insert(variable->getName());
    return names.size() != entity.getVariables()->size();
}

/// Drops \a data once, and holds what the entity has afterwards against the boxes that were shown.
void dropOnce(TDmEntity &entity, VariableDiccionaryModel &table, const QMimeData &data, const Way &way)
{
    const QList<TDmVariable *> before = *entity.getVariables();
    const int sent = FieldTransfer::unwrapped(data).size();
    const BoxAnswerer boxes(way.answers);
    bool isTaken = false;
    {
        const tessel::test::LeftToNobody allowance;
        isTaken = table.dropMimeData(&data, way.action, way.row, way.column, {});
    }
    const QList<TDmVariable *> after = *entity.getVariables();
    if (way.action == Qt::IgnoreAction || way.column > 0) {
        expect(isTaken == (way.action == Qt::IgnoreAction), "a drop that is none is answered wrongly");
        expect(after == before, "a drop that is none changes the entity");
        return;
    }
    expect(isTaken, "a drop is refused");
    // Each question leaves the number as it was: the old one goes or the new one does not come.
    expect(after.size() == before.size() + sent - boxes.others() - boxes.questions(), "a field was lost");
    expect(entity.getSelectable() ? boxes.others() == 0 : true, "a lookup is refused for no reason");
    expect(boxes.warnings() == int(hasRepeatedNames(entity)), "repeated names are not told of once");
    expect(table.rowCount() == after.size(), "the table does not show what the entity has");
    for (int row = 0; row < after.size(); ++row)
        expect(table.index(row, 0).internalPointer() == after.at(row), "a row shows another variable");

    // What was overwritten belongs to nobody: here it is known, and deleted.
    const QSet<TDmVariable *> kept(after.begin(), after.end());
    int gone = 0;
    for (TDmVariable *variable : before) {
        if (kept.contains(variable))
            continue;
        ++gone;
        delete variable;
    }
    expect(gone <= boxes.consents(), "a variable is overwritten that was to stay");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    openDesk();
    Input input(data, size);
    const Way way(input);
    TDmEntity entity;
    entity.setSelectable(input.flag());
    VariableDiccionaryModel table(nullptr, &entity, &entity);
    const std::unique_ptr<QMimeData> dropped = dataOf(way, input.rest());
    for (int i = 0; i < way.times; ++i)
        dropOnce(entity, table, *dropped, way);
    return 0;
}
