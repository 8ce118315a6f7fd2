#include "tests/editor/RandomEdits.h"

#include "business/models/CsvPropertiesModel.h"
#include "business/models/DictionaryTreeModel.h"
#include "business/models/VarRangeModel.h"
#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/Edit.h"
#include "editor/Structure.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMimeData>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace tessel::test {

using namespace editor;

RandomEdits::RandomEdits(DictionaryDocument &editedDocument, unsigned seed)
    : document(editedDocument)
    , numbers(seed)
{
    qApp->installEventFilter(this);
}

RandomEdits::~RandomEdits() { qApp->removeEventFilter(this); }

int RandomEdits::below(int limit) { return int(numbers() % unsigned(limit)); }

QString RandomEdits::freshName(const char *stem) { return QLatin1String(stem) + QString::number(++names); }

TDmEntity *RandomEdits::anyEntity()
{
    // In document order, so that the choice does not depend on where objects lie in memory.
    QList<TDmEntity *> all{&document.root()};
    for (int i = 0; i < all.size(); ++i)
        all += *all.at(i)->getChildren();
    return all.at(below(all.size()));
}

TDmEntity *RandomEdits::anyEntityWithVariables()
{
    for (int attempt = 0; attempt < 20; ++attempt) {
        TDmEntity *entity = anyEntity();
        if (!entity->getVariables()->isEmpty())
            return entity;
    }
    return nullptr;
}

TDmVariable *RandomEdits::anyVariable()
{
    const TDmEntity *entity = anyEntityWithVariables();
    return entity ? entity->getVariables()->at(below(entity->getVariables()->size())) : nullptr;
}

template<typename Item>
QList<Item *> RandomEdits::someOf(const QList<Item *> &list)
{
    QList<Item *> some;
    for (Item *item : list) {
        if (chance(40))
            some.append(item);
    }
    return some;
}

QString RandomEdits::step()
{
    static const QStringList operations{
        QStringLiteral("add entity"),
        QStringLiteral("remove entity"),
        QStringLiteral("move entity"),
        QStringLiteral("rename entity in the tree"),
        QStringLiteral("edit entity"),
        QStringLiteral("add variable"),
        QStringLiteral("add variable"),
        QStringLiteral("remove variables"),
        QStringLiteral("move variables"),
        QStringLiteral("edit variable"),
        QStringLiteral("edit variable"),
        QStringLiteral("type into the variable table"),
        QStringLiteral("type into the variable table"),
        QStringLiteral("drop fields"),
        QStringLiteral("add label"),
        QStringLiteral("remove labels"),
        QStringLiteral("move labels"),
        QStringLiteral("paste labels"),
        QStringLiteral("copy labels"),
        QStringLiteral("type into the label table"),
        QStringLiteral("add range"),
        QStringLiteral("remove ranges"),
        QStringLiteral("move ranges"),
        QStringLiteral("type into the range table"),
        QStringLiteral("change nothing"),
    };
    const QString name = operations.at(below(operations.size()));
    ++chosen[name];
    if (name == QLatin1String("rename entity in the tree"))
        renameInTree();
    else if (name == QLatin1String("type into the variable table"))
        typeIntoVariableTable();
    else if (name == QLatin1String("drop fields"))
        dropFields();
    else if (name.contains(QLatin1String("entity")))
        entityStep(name);
    else if (name.contains(QLatin1String("variable")))
        variableStep(name);
    else if (name.contains(QLatin1String("label")))
        labelStep(name);
    else if (name.contains(QLatin1String("range")))
        rangeStep(name);
    else
        Edit(document, Scope::ofEntity(*anyEntity())).commit(name);
    return name;
}

void RandomEdits::entityStep(const QString &name)
{
    Structure structure(document);
    TDmEntity *entity = anyEntity();
    if (name == QLatin1String("add entity")) {
        structure.addEntity(*entity);
    } else if (name == QLatin1String("remove entity")) {
        // The tops stay mostly, or little would be left to edit.
        if (entity->getChildren()->size() < 2 && structure.parentOf(*entity) != &document.root())
            structure.removeEntity(*entity);
    } else if (name == QLatin1String("move entity")) {
        structure.moveEntity(*entity, below(5) - 2);
    } else {
        Edit edit(document, Scope::ofTree(*entity));
        editEntityField(*entity);
        if (chance(30) && !entity->getChildren()->isEmpty())
            editEntityField(*entity->getChildren()->first());
        edit.commit(name);
    }
}

void RandomEdits::editEntityField(TDmEntity &entity)
{
    const QString text = freshName("E");
    switch (below(11)) {
    case 0:
        return entity.setName(text);
    case 1:
        return entity.setAlias(text);
    case 2:
        return entity.setLabel(text);
    case 3:
        // The code is mostly a variable's, so that renaming it asks.
        return entity.setRefCode(
            entity.getVariables()->isEmpty() ? text : entity.getVariables()->first()->getName());
    case 4:
        return entity.setRefLabel(text);
    case 5:
        return entity.setWeightVariable(text);
    case 6:
        return entity.setDocumentationEntity(text);
    case 7:
        return entity.setIsvirtual(!entity.getIsvirtual());
    case 8:
        return entity.setSelectable(!entity.getSelectable());
    case 9:
        return entity.setCheckDelete(!entity.getCheckDelete());
    default:
        return entity.setLevel(below(100));
    }
}

void RandomEdits::variableStep(const QString &name)
{
    Structure structure(document);
    TDmEntity *entity = name == QLatin1String("add variable") ? anyEntity() : anyEntityWithVariables();
    if (!entity)
        return;
    QList<TDmVariable *> &variables = *entity->getVariables();
    if (name == QLatin1String("add variable")) {
        structure.addVariable(*entity, below(variables.size() + 2) - 1);
    } else if (name == QLatin1String("remove variables")) {
        structure.removeVariables(*entity, someOf(variables));
    } else if (name == QLatin1String("move variables")) {
        structure.moveVariables(*entity, someOf(variables), below(5) - 2);
    } else {
        TDmVariable *variable = variables.at(below(variables.size()));
        Edit edit(document, chance(50) ? Scope::ofVariable(*variable) : Scope::ofEntity(*entity));
        editVariableField(*variable);
        edit.commit(name);
    }
}

void RandomEdits::editVariableField(TDmVariable &variable)
{
    MetadataVariables &layout = *variable.getMetadataVariables();
    const QString text = freshName("V");
    const int number = below(100);
    switch (below(22)) {
    case 0:
        return variable.setName(text);
    case 1:
        return variable.setLabel(text);
    case 2:
        return variable.setAlias(text);
    case 3:
        return variable.setGroup(text);
    case 4:
        return variable.setVarType(QStringLiteral("REAL"));
    case 5:
        return variable.setDocumentation(text);
    case 6:
        return variable.setFileName(text);
    case 7:
        return variable.setLocal(!variable.getLocal());
    case 8:
        return variable.setSize(number);
    case 9:
        return variable.setDecimals(number);
    case 10:
        return variable.setFieldRelativePosition(number);
    case 11:
        return variable.setFieldSize(number);
    case 12:
        return variable.setMissing(number);
    case 13:
        return variable.setNotappl(number);
    case 14:
        return variable.setTag(number);
    case 15:
        return variable.setChecked(number);
    case 16:
        return variable.setLevel(number);
    case 17:
        return layout.setRecord(text);
    case 18:
        return layout.setField(text);
    case 19:
        return layout.setStart(number);
    case 20:
        return layout.setLength(number);
    default:
        return layout.setLookup(!layout.getLookup());
    }
}

void RandomEdits::labelStep(const QString &name)
{
    Structure structure(document);
    TDmVariable *variable = anyVariable();
    if (!variable)
        return;
    QList<ValueLabelElement *> &labels = *variable->getValueLabelElementList();
    if (name == QLatin1String("add label")) {
        structure.addLabel(*variable, below(labels.size() + 2) - 1);
    } else if (name == QLatin1String("remove labels")) {
        structure.removeLabels(*variable, someOf(labels));
    } else if (name == QLatin1String("move labels")) {
        structure.moveLabels(*variable, someOf(labels), below(5) - 2);
    } else if (name == QLatin1String("paste labels")) {
        structure.pasteLabels(*variable, QStringLiteral("1\tOne\n2\tTwo\r\n3 Three\n"));
    } else if (name == QLatin1String("copy labels")) {
        QList<TDmVariable *> targets;
        for (int i = below(4); i > 0; --i)
            targets.append(anyVariable());
        structure.copyLabels(*variable, targets);
    } else if (!labels.isEmpty()) {
        Edit edit(document, Scope::ofVariable(*variable));
        VarValueLabelDiccionaryModel model(nullptr, variable);
        model.setData(model.index(below(labels.size()), below(2)), freshName("L"));
        edit.commit(name);
    }
}

void RandomEdits::rangeStep(const QString &name)
{
    Structure structure(document);
    TDmVariable *variable = anyVariable();
    if (!variable)
        return;
    QList<Range *> &ranges = *variable->getMetadataVariables()->getRange();
    if (name == QLatin1String("add range")) {
        structure.addRange(*variable, below(ranges.size() + 2) - 1);
    } else if (name == QLatin1String("remove ranges")) {
        structure.removeRanges(*variable, someOf(ranges));
    } else if (name == QLatin1String("move ranges")) {
        structure.moveRanges(*variable, someOf(ranges), below(5) - 2);
    } else if (!ranges.isEmpty()) {
        Edit edit(document, Scope::ofVariable(*variable));
        VarRangeModel model(nullptr, variable);
        model.setData(model.index(below(ranges.size()), below(2)), below(1000) / 8.0);
        edit.commit(name);
    }
}

void RandomEdits::renameInTree()
{
    DictionaryTreeModel model(nullptr, &document.root());
    QModelIndex index = model.index(0, 0);
    while (model.rowCount(index) > 0 && chance(80))
        index = model.index(below(model.rowCount(index)), 0, index);
    Edit edit(document, Scope::ofTree(document.root()));
    // Now and then a text that the model refuses.
    model.setData(index, chance(80) ? freshName("TREE") : QStringLiteral("1 is no name"));
    edit.commit(QStringLiteral("rename entity"));
}

void RandomEdits::typeIntoVariableTable()
{
    TDmEntity *entity = anyEntityWithVariables();
    if (!entity)
        return;
    const int row = below(entity->getVariables()->size());
    const int column = chance(50) ? 0 : below(5);
    Scope scope = Scope::ofTree(*entity);
    scope |= Scope::ofVariable(*entity->getVariables()->at(row));
    Edit edit(document, scope);
    VariableDiccionaryModel model(nullptr, entity, &document.root());
    QString text = column == 4 ? QString::number(below(20000)) : freshName("T");
    if (chance(20))
        text = entity->getVariables()->first()->getName();
    model.setData(model.index(row, column), text);
    edit.commit(QStringLiteral("change a cell"));
}

void RandomEdits::dropFields()
{
    TDmEntity *entity = anyEntity();
    QList<TDmSourceField *> fields;
    for (int i = 1 + below(3); i > 0; --i) {
        fields.append(new TDmSourceField);
        // Few names, so that some are there already.
        fields.last()->name = QStringLiteral("F%1").arg(below(6));
    }
    const CsvPropertiesModel catalogue(nullptr, &fields);
    QModelIndexList rows;
    for (int row = 0; row < fields.size(); ++row)
        rows.append(catalogue.index(row, 0));
    const std::unique_ptr<QMimeData> data(catalogue.mimeData(rows));
    qDeleteAll(fields);
    Edit edit(document, Scope::ofEntity(*entity));
    VariableDiccionaryModel table(nullptr, entity, &document.root());
    table.dropMimeData(data.get(), Qt::CopyAction, -1, -1, QModelIndex());
    edit.commit(QStringLiteral("add fields"));
}

bool RandomEdits::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Show) {
        QTimer::singleShot(0, this, [this, shown = QPointer<QMessageBox>(box)] {
            if (shown)
                press(*shown);
        });
    }
    return QObject::eventFilter(watched, event);
}

void RandomEdits::press(QMessageBox &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    QAbstractButton *button = buttons.at(below(buttons.size()));
    // A field that does not overwrite another one would be nobody's.
    if (box.windowTitle() == QLatin1String("Overwrite variable"))
        button = box.button(QMessageBox::Yes);
    button->click();
}

} // namespace tessel::test
