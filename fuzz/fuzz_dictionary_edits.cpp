// A dictionary of any shape, with all the models that edit one open over it at once, and any edits through
// them: texts, drops, filters, sorting, rows asked for and taken out. A refused edit changes nothing and
// announces nothing; an accepted one is announced once; no drop takes a variable away; the dictionary can be
// written and read at any time.

#include "business/models/DictionaryTreeModel.h"
#include "business/models/EntityModel.h"
#include "business/models/VarRangeModel.h"
#include "business/models/VarRangeProxyModel.h"
#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/VariableModel.h"
#include "business/models/VariableModelDownStep4.h"
#include "business/models/VariableModelSplitStep3.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "business/models/dictionaryTreeModelDownload.h"
#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "fuzz/support/BoxAnswerer.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "fuzz/support/Gestures.h"
#include "fuzz/support/Input.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/business/models/LeftToNobody.h"

#include <array>
#include <memory>
#include <vector>

namespace docs = tessel::documents;
using namespace tessel::fuzz;

namespace {

QString nameFrom(Input &input)
{
    constexpr std::array<const char *, 6> names = {"AGE", "SEX", "PERSON", "LAND", "A1", ""};
    const int which = input.number(0, int(names.size()));
    return which < int(names.size()) ? QString::fromLatin1(names[std::size_t(which)]) : input.text(12);
}

std::unique_ptr<TDmVariable> variableFrom(Input &input)
{
    constexpr std::array<const char *, 5> types = {"INTEGER", "STRING", "REAL", "integer", " Odd"};
    auto variable = std::make_unique<TDmVariable>();
    variable->setName(nameFrom(input));
    variable->setAlias(nameFrom(input));
    variable->setVarType(QString::fromLatin1(types[std::size_t(input.number(0, int(types.size()) - 1))]));
    variable->setTag(input.anyInt());
    variable->setLevel(input.number(0, 1));
    for (int i = input.number(0, 3); i > 0; --i) {
        auto *label = new ValueLabelElement;
        label->setValue(input.value().toString());
        variable->addValueLabelElement(label);
        variable->getMetadataVariables()->addItemRange(new Range);
    }
    return variable;
}

/// An entity with variables and with at most \a depth levels below it.
std::unique_ptr<TDmEntity> entityFrom(Input &input, int level, int depth)
{
    auto entity = std::make_unique<TDmEntity>();
    entity->setName(nameFrom(input));
    entity->setAlias(nameFrom(input));
    entity->setRefCode(nameFrom(input));
    entity->setSelectable(input.flag());
    entity->setLevel(level);
    for (int i = input.number(0, 3); i > 0; --i)
        entity->addVariables(variableFrom(input).release());
    for (int i = depth > 0 ? input.number(0, 3) : 0; i > 0; --i)
        entity->getChildren()->append(entityFrom(input, level + 1, depth - 1).release());
    return entity;
}

/// The entity reached from \a root by going down as the input says.
TDmEntity &anyEntity(TDmEntity &root, Input &input)
{
    TDmEntity *entity = &root;
    while (!entity->getChildren()->isEmpty() && input.flag())
        entity = entity->getChildren()->at(input.number(0, entity->getChildren()->size() - 1));
    return *entity;
}

/// All that edits one dictionary, opened over one of its entities and one of that entity's variables.
class Desk {
public:
    Desk(TDmEntity &root, Input &input)
    {
        TDmEntity &entity = anyEntity(root, input);
        open<DictionaryTreeModel>(&root);
        open<EntityModel>(&root);
        open<dictionaryTreeModelDownload>(&root);
        open<VariableModel>(&entity, entity.getVariables());
        open<VariableModelDownStep4>(&entity, entity.getVariables());
        open<VariableModelSplitStep3>(&entity, entity.getVariables());
        openBelow<VariablesDictionaryProxyModel>(open<VariableDiccionaryModel>(&entity, &root));
        if (entity.getVariables()->isEmpty())
            return;
        TDmVariable *variable = entity.getVariables()->at(input.number(0, entity.getVariables()->size() - 1));
        openBelow<VarValueLabelDiccionaryProxyModel>(open<VarValueLabelDiccionaryModel>(variable));
        openBelow<VarRangeProxyModel>(open<VarRangeModel>(variable));
    }

    QAbstractItemModel &any(Input &input)
    {
        return *models[std::size_t(input.number(0, int(models.size()) - 1))];
    }

private:
    template<typename Model, typename... Arguments>
    QAbstractItemModel &open(Arguments... arguments)
    {
        models.push_back(std::make_unique<Model>(nullptr, arguments...));
        return *models.back();
    }

    template<typename Proxy>
    void openBelow(QAbstractItemModel &source)
    {
        auto proxy = std::make_unique<Proxy>(nullptr);
        proxy->setSourceModel(&source);
        proxy->setDynamicSortFilter(true);
        models.push_back(std::move(proxy));
    }

    std::vector<std::unique_ptr<QAbstractItemModel>> models;
};

QModelIndex anyCell(const QAbstractItemModel &model, Input &input)
{
    QModelIndex cell = model.index(input.number(0, 3), input.number(0, 5), {});
    while (cell.isValid() && input.flag()) {
        const QModelIndex below = model.index(input.number(0, 3), 0, cell);
        if (!below.isValid())
            break;
        cell = below;
    }
    return cell;
}

/// Mostly one in which views edit.
int roleFrom(Input &input)
{
    switch (input.number(0, 7)) {
    case 0:
    case 1:
        return Qt::CheckStateRole;
    case 2:
        return input.anyInt();
    default:
        return Qt::EditRole;
    }
}

QList<TDmVariable *> variablesBelow(const TDmEntity &entity)
{
    QList<TDmVariable *> all = *entity.getVariables();
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        all += variablesBelow(*child);
    return all;
}

void drop(TDmEntity &root, QAbstractItemModel &model, Input &input)
{
    const std::unique_ptr<QMimeData> data = payloadFrom(input);
    const QModelIndex cell = anyCell(model, input);
    const int before = variablesBelow(root).size();
    // What is not taken belongs to nobody: meant so.
    const tessel::test::LeftToNobody allowance;
    model.dropMimeData(data.get(), Qt::CopyAction, input.number(-1, 3), input.number(-1, 1), cell);
    setFaultPlace(model.metaObject()->className());
    expect(variablesBelow(root).size() >= before, "a drop takes a variable away");
}

/// The models have rows put in and taken out by what they show alone.
void resize(TDmEntity &root, QAbstractItemModel &model, Input &input)
{
    const QByteArray before = docs::dictionaryText(root);
    const QModelIndex cell = anyCell(model, input);
    model.insertRows(input.number(-1, 3), input.number(-1, 3), cell);
    model.removeRows(input.number(-1, 3), input.number(-1, 3), cell);
    setFaultPlace(model.metaObject()->className());
    expectSame(QString::fromUtf8(docs::dictionaryText(root)), QString::fromUtf8(before),
        "rows that are put in or taken out change the dictionary");
}

/// One edit, and what is promised of every edit.
void edit(TDmEntity &root, QAbstractItemModel &model, Input &input)
{
    const QModelIndex cell = anyCell(model, input);
    const QVariant value = input.value();
    const int role = roleFrom(input);
    const QByteArray before = docs::dictionaryText(root);
    int announced = 0;
    bool isTaken = false;
    {
        const QObject listener;
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &listener, [&announced] { ++announced; });
        isTaken = model.setData(cell, value, role);
    }
    const QByteArray after = docs::dictionaryText(root);
    setFaultPlace(model.metaObject()->className());
    if (!isTaken) {
        expectSame(QString::fromUtf8(after), QString::fromUtf8(before), "a refused edit changes something");
        expect(announced == 0, "a refused edit is announced");
        return;
    }
    // A proxy may have moved the row instead, and one model never announces anything: meant so.
    const bool isProxy = qobject_cast<QSortFilterProxyModel *>(&model) != nullptr;
    const bool isSilent = qobject_cast<EntityModel *>(&model) != nullptr;
    expect(isProxy || announced == int(!isSilent), "an accepted edit is not announced once");
}

void expectRoundTrip(TDmEntity &root)
{
    const QByteArray written = docs::dictionaryText(root);
    const auto parsed = docs::parseObject(written);
    expect(parsed.result.has_value(), "a dictionary is written that cannot be read");
    const QByteArray first = docs::normalForm(*parsed.result);
    const QByteArray second = docs::normalForm(*docs::parseObject(first).result);
    expectSame(QString::fromUtf8(second), QString::fromUtf8(first), "writing again changes the dictionary");
}

void play(TDmEntity &root, Input &input)
{
    Desk desk(root, input);
    constexpr int most = 40;
    for (int i = 0; i < most && !input.isAtEnd(); ++i) {
        QAbstractItemModel &model = desk.any(input);
        switch (input.number(0, 7)) {
        case 0:
            model.sort(input.number(-1, 5), input.flag() ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 1:
            if (auto *proxy = qobject_cast<QSortFilterProxyModel *>(&model))
                proxy->setFilterRegExp(patternFrom(input));
            break;
        case 2:
            drop(root, model, input);
            break;
        case 3:
            resize(root, model, input);
            break;
        default:
            edit(root, model, input);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    openDesk();
    Input input(data, size);
    const BoxAnswerer boxes(unsigned(input.anyInt()));
    constexpr int levels = 3;
    const std::unique_ptr<TDmEntity> root = entityFrom(input, 1, levels);
    const QList<TDmVariable *> first = variablesBelow(*root);
    play(*root, input);
    expectRoundTrip(*root);
    // What was overwritten belongs to nobody: meant so.
    const QList<TDmVariable *> last = variablesBelow(*root);
    for (TDmVariable *variable : first) {
        if (!last.contains(variable))
            delete variable;
    }
    return 0;
}
