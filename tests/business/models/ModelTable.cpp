#include "tests/business/models/ModelTable.h"

#include "business/models/CategoryExpressionModel.h"
#include "business/models/CsvPropertiesModel.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/DictionaryTreeModel.h"
#include "business/models/EntityExpressionModel.h"
#include "business/models/EntityModel.h"
#include "business/models/LookupPropertiesModel.h"
#include "business/models/SelectionBuilderTreeModel.h"
#include "business/models/VarRangeModel.h"
#include "business/models/VarRangeProxyModel.h"
#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "business/models/VariableExpressionModel.h"
#include "business/models/VariableModel.h"
#include "business/models/VariableModelDownStep4.h"
#include "business/models/VariableModelSplitStep3.h"
#include "business/models/VariablesDatasetProxyModel.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "business/models/VariablesProxyModel.h"
#include "business/models/VariablesProxyModelDownStep4.h"
#include "business/models/dictionaryTreeModelDownload.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/SelectionTreeUnit.h"
#include "model/TDmEntity.h"
#include "model/TDmLookup.h"
#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/business/models/TreeText.h"

#include <utility>
#include <vector>

namespace tessel::test {
namespace {

/// Objects of one type in a list as a caller would hand it over.
template<typename Item>
class Objects {
public:
    Objects(Shape shape, const std::function<void(Item &, const QString &)> &name)
        : isNull(shape == Shape::Nothing)
    {
        for (const char *text : {"A1", "B2", "C3"}) {
            owned.push_back(std::make_unique<Item>());
            name(*owned.back(), QString::fromLatin1(text));
            list.append(owned.back().get());
            if (shape == Shape::WithNulls)
                list.append(nullptr);
        }
    }
    QList<Item *> *orNull() { return isNull ? nullptr : &list; }
    std::vector<std::unique_ptr<Item>> takeAll() { return std::move(owned); }

private:
    bool isNull;
    std::vector<std::unique_ptr<Item>> owned;
    QList<Item *> list;
};

/// The model with its protected parts in reach.
template<typename Model>
class Reached : public Model {
public:
    using Model::createIndex;
    using Model::Model;
};

/// A model over objects that \a Kept holds. The model goes first.
template<typename Model, typename Kept>
class Opened : public OpenModel {
public:
    Opened(std::unique_ptr<Kept> objects, std::unique_ptr<Reached<Model>> model)
        : kept(std::move(objects))
        , reached(std::move(model))
    {
    }
    QAbstractItemModel &model() override { return *reached; }
    QModelIndex made(int row, int column, void *object) const override
    {
        return reached->createIndex(row, column, object);
    }

private:
    std::unique_ptr<Kept> kept;
    std::unique_ptr<Reached<Model>> reached;
};

template<typename Model, typename Kept, typename... Arguments>
std::unique_ptr<OpenModel> opened(std::unique_ptr<Kept> kept, Arguments... arguments)
{
    return std::make_unique<Opened<Model, Kept>>(
        std::move(kept), std::make_unique<Reached<Model>>(nullptr, arguments...));
}

/// A proxy over a source of the library's own.
template<typename Proxy>
class OpenedProxy : public OpenModel {
public:
    explicit OpenedProxy(std::unique_ptr<OpenModel> opened)
        : source(std::move(opened))
        , proxy(nullptr)
    {
        proxy.setSourceModel(&source->model());
    }
    QAbstractItemModel &model() override { return proxy; }
    QModelIndex made(int, int, void *) const override { return {}; }

private:
    std::unique_ptr<OpenModel> source;
    Proxy proxy;
};

template<typename Node>
std::unique_ptr<Node> tree(Shape shape)
{
    if (shape == Shape::Nothing)
        return nullptr;
    auto root = treeFrom<Node>("LAND(NMIR(PERSON) FARM)");
    if (shape == Shape::WithNulls) {
        root->getChildren()->insert(1, nullptr);
        root->getChildren()->first()->getChildren()->append(nullptr);
    }
    return root;
}

template<typename Model>
std::unique_ptr<OpenModel> openTree(Shape shape)
{
    auto root = tree<TDmEntity>(shape);
    if (root) {
        root->setCheckDelete(true);
        root->setSelectable(true);
    }
    TDmEntity *top = root.get();
    return opened<Model>(std::move(root), top);
}

std::unique_ptr<OpenModel> openSelection(Shape shape)
{
    auto root = tree<SelectionTreeUnit>(shape);
    SelectionTreeUnit *top = root.get();
    return opened<SelectionBuilderTreeModel>(std::move(root), top, true, true);
}

void nameField(TDmSourceField &field, const QString &name)
{
    field.name = name;
    field.label = name;
}

std::unique_ptr<OpenModel> openCsv(Shape shape)
{
    auto kept = std::make_unique<Objects<TDmSourceField>>(shape, &nameField);
    auto *list = kept->orNull();
    return opened<CsvPropertiesModel>(std::move(kept), list);
}

std::unique_ptr<OpenModel> openDataset(Shape shape)
{
    auto kept = std::make_unique<Objects<TDmSourceField>>(shape, &nameField);
    auto *list = kept->orNull();
    return opened<DatasetPropertiesFieldsModel>(std::move(kept), list, QStringLiteral("*"));
}

std::unique_ptr<OpenModel> openLookups(Shape shape)
{
    auto kept = std::make_unique<Objects<TDmLookup>>(
        shape, [](TDmLookup &lookup, const QString &name) { lookup.id = name; });
    auto *list = kept->orNull();
    return opened<LookupPropertiesModel>(std::move(kept), list);
}

void nameVariable(TDmVariable &variable, const QString &name)
{
    variable.setName(name);
    variable.setLevel(1);
}

/// Run variables of no entity.
template<typename Model>
std::unique_ptr<OpenModel> openRunVariables(Shape shape)
{
    auto kept = std::make_unique<Objects<TDmVariable>>(shape, &nameVariable);
    auto *list = kept->orNull();
    return opened<Model>(std::move(kept), static_cast<TDmEntity *>(nullptr), list);
}

std::unique_ptr<TDmVariable> variableWithCategoriesAndRanges(Shape shape)
{
    if (shape == Shape::Nothing)
        return nullptr;
    auto variable = std::make_unique<TDmVariable>();
    for (const char *text : {"1", "2"}) {
        auto *label = new ValueLabelElement;
        label->setValue(QString::fromLatin1(text));
        variable->addValueLabelElement(label);
        variable->getMetadataVariables()->addItemRange(new Range);
        if (shape == Shape::WithNulls) {
            variable->getValueLabelElementList()->append(nullptr);
            variable->getMetadataVariables()->getRange()->append(nullptr);
        }
    }
    return variable;
}

template<typename Model>
std::unique_ptr<OpenModel> openOneVariable(Shape shape)
{
    auto variable = variableWithCategoriesAndRanges(shape);
    TDmVariable *shown = variable.get();
    return opened<Model>(std::move(variable), shown);
}

std::unique_ptr<OpenModel> openVariables(Shape shape)
{
    auto root = tree<TDmEntity>(shape);
    if (root) {
        Objects<TDmVariable> variables(shape, &nameVariable);
        for (auto &variable : variables.takeAll()) {
            root->addVariables(variable.release());
            if (shape == Shape::WithNulls)
                root->getVariables()->append(nullptr);
        }
    }
    TDmEntity *top = root.get();
    return opened<VariableDiccionaryModel>(std::move(root), top, top);
}

template<typename Model, typename Item>
std::unique_ptr<OpenModel> openTerms(Shape shape)
{
    auto kept =
        std::make_unique<Objects<Item>>(shape, [](Item &item, const QString &name) { item.setLabel(name); });
    auto *list = kept->orNull();
    return opened<Model>(std::move(kept), list, ShowNameAndLabel);
}

/// The row of \a Proxy, which is opened over the model of \a source and shows what that shows.
template<typename Proxy>
ModelRow over(const ModelRow &source, const char *name)
{
    ModelRow row = source;
    row.name = name;
    row.open = [open = source.open](
                   Shape shape) { return std::make_unique<OpenedProxy<Proxy>>(open(shape)); };
    row.unruly = Unruly::No;
    row.proxy = [] { return std::make_unique<Proxy>(nullptr); };
    return row;
}

QList<ModelRow> makeTable()
{
    const QList<int> text = {Qt::DisplayRole};
    const QList<int> edited = {Qt::DisplayRole, Qt::EditRole};
    const QList<int> pictured = {Qt::DisplayRole, Qt::DecorationRole};
    const QList<int> ticked = {Qt::DisplayRole, Qt::CheckStateRole};
    const QList<int> marked = {Qt::DisplayRole, Qt::DecorationRole, Qt::EditRole, Qt::CheckStateRole};
    const QStringList entity = {"Entity"};
    const QStringList three = {"Name", "Label", "Alias"};
    constexpr Unruly flat = Unruly::RowsBelowEveryRow;
    constexpr Unruly level = Unruly::ParentRowIsALevel;

    const ModelRow labels = {"VarValueLabelDiccionaryModel", &openOneVariable<VarValueLabelDiccionaryModel>,
        edited, edited, Headers::ByColumn, {"Code", "Label"}, flat};
    const ModelRow ranges = {"VarRangeModel", &openOneVariable<VarRangeModel>, edited, edited,
        Headers::ByColumn, {"Minimum", "Maximum"}, flat};
    const ModelRow variables = {"VariableDiccionaryModel", &openVariables,
        {Qt::DisplayRole, Qt::DecorationRole, Qt::EditRole}, edited, Headers::ByColumn,
        {"Name", "Alias", "Label", "Group", "Tag"}, flat};
    const ModelRow dataset = {"DatasetPropertiesFieldsModel", &openDataset, pictured, text, Headers::ByColumn,
        {"Field", "Label", "Tag"}, flat};
    const ModelRow runVariables = {"VariableModel", &openRunVariables<VariableModel>, ticked, text,
        Headers::ByColumn, {"Name", "Label", "Alias", "Group", "Tag"}, flat};
    const ModelRow downloaded = {"VariableModelDownStep4", &openRunVariables<VariableModelDownStep4>, ticked,
        text, Headers::ByColumn, three, flat};

    return {
        {"DictionaryTreeModel", &openTree<DictionaryTreeModel>, edited, {}, Headers::OneForAll, entity,
            level},
        {"EntityModel", &openTree<EntityModel>, text, {}, Headers::OneForAll, entity, level, true},
        {"dictionaryTreeModelDownload", &openTree<dictionaryTreeModelDownload>, marked, {},
            Headers::OneForAll, entity, level},
        {"SelectionBuilderTreeModel", &openSelection, marked, {}, Headers::Numbers, {}, level},
        variables,
        {"CsvPropertiesModel", &openCsv, pictured, {}, Headers::Numbers, {}, flat},
        dataset,
        {"LookupPropertiesModel", &openLookups, pictured, {}, Headers::Numbers, {}, flat},
        labels,
        ranges,
        runVariables,
        {"VariableModelSplitStep3", &openRunVariables<VariableModelSplitStep3>, ticked, text,
            Headers::ByColumn, three, flat},
        downloaded,
        // The texts of these are the same in every column.
        {"EntityExpressionModel", &openTerms<EntityExpressionModel, TDmEntity>, pictured, text,
            Headers::Numbers, {}, flat},
        {"VariableExpressionModel", &openTerms<VariableExpressionModel, TDmVariable>, pictured, text,
            Headers::Numbers, {}, flat},
        {"CategoryExpressionModel", &openTerms<CategoryExpressionModel, ValueLabelElement>, pictured, text,
            Headers::Numbers, {}, flat},
        over<VarValueLabelDiccionaryProxyModel>(labels, "VarValueLabelDiccionaryProxyModel"),
        over<VarRangeProxyModel>(ranges, "VarRangeProxyModel"),
        over<VariablesProxyModel>(runVariables, "VariablesProxyModel"),
        over<VariablesDatasetProxyModel>(dataset, "VariablesDatasetProxyModel"),
        over<VariablesDictionaryProxyModel>(variables, "VariablesDictionaryProxyModel"),
        over<VariablesProxyModelDownStep4>(downloaded, "VariablesProxyModelDownStep4"),
    };
}

} // namespace

const QList<ModelRow> &modelTable()
{
    static const QList<ModelRow> table = makeTable();
    return table;
}

} // namespace tessel::test
