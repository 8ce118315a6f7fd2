#include "business/models/VariableDiccionaryModel.h"

#include "business/Constants.h"
#include "business/models/detail/KnownVariables.h"
#include "business/models/detail/TransferredVariable.h"
#include "business/models/detail/VariableEditRules.h"
#include "business/models/detail/VariableType.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "util/DictionaryUtil.h"
#include "util/UtilForms.h"
#include "util/detail/PlainBox.h"

#include <QDebug>
#include <QHash>
#include <QIcon>

#include <cmath>
#include <limits>

using namespace tessel::constants;
using namespace tessel::detail;

namespace {

constexpr int kHighestTag = 9999;

/// The whole number that \a value is, if there is one that an int holds.
bool readTag(const QVariant &value, int *tag)
{
    bool isNumber = false;
    *tag = value.toInt(&isNumber);
    if (!isNumber)
        return false;
    // QVariant wraps numbers around that no int holds.
    bool isComparable = false;
    const double exact = std::round(value.toDouble(&isComparable));
    return !isComparable || exact == *tag;
}

int limitedTag(int tag)
{
    // The clamp comes before the absolute value: -20000 is stored as 20000.
    if (tag > kHighestTag)
        return kHighestTag;
    return tag == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : qAbs(tag);
}

} // namespace

Columns<TDmVariable> VariableDiccionaryModel::columns()
{
    static const Column<TDmVariable> table[] = {
        {QT_TR_NOOP("Name"), [](const TDmVariable &v) -> QVariant { return v.getName(); }},
        {QT_TR_NOOP("Alias"), [](const TDmVariable &v) -> QVariant { return v.getAlias(); },
            [](TDmVariable &v, const QVariant &value) { v.setAlias(value.toString()); }},
        {QT_TR_NOOP("Label"), [](const TDmVariable &v) -> QVariant { return v.getLabel(); },
            [](TDmVariable &v, const QVariant &value) { v.setLabel(value.toString()); }},
        {QT_TR_NOOP("Group"), [](const TDmVariable &v) -> QVariant { return v.getGroup(); },
            [](TDmVariable &v, const QVariant &value) { v.setGroup(value.toString()); }},
        {QT_TR_NOOP("Tag"),
            [](const TDmVariable &v) -> QVariant {
                return QStringLiteral("%1").arg(v.getTag(), 4, 10, QLatin1Char('0'));
            },
            [](TDmVariable &v, const QVariant &value) {
                int tag = 0;
                if (readTag(value, &tag))
                    v.setTag(limitedTag(tag));
            }},
    };
    return table;
}

VariableDiccionaryModel::VariableDiccionaryModel(
    QObject *parent, TDmEntity *shownEntity, TDmEntity *dictionaryRoot)
    : TransferListModel(parent, EditText::Shown)
    , validate(std::make_unique<Validate>())
    , dictionaryUtil(std::make_unique<DictionaryUtil>())
    , entity(shownEntity)
    , root(dictionaryRoot)
{
    takeRows();
}

VariableDiccionaryModel::~VariableDiccionaryModel() = default;

void VariableDiccionaryModel::takeRows()
{
    beginResetModel();
    rows = entity ? *entity->getVariables() : QList<TDmVariable *>();
    endResetModel();
}

QVariant VariableDiccionaryModel::markData(TDmVariable &variable, int column, int role) const
{
    return column == 0 && role == Qt::DecorationRole ? QVariant(QIcon(iconOf(variable))) : QVariant();
}

QLatin1String VariableDiccionaryModel::iconOf(const TDmVariable &variable) const
{
    const MetadataVariables *layout = variable.getMetadataVariables();
    if (layout && layout->getLookup())
        return kIconProjectSave;
    switch (variableTypeOf(variable.getVarType())) {
    case VariableType::String: {
        // Only texts show their part in the entity: meant so. A weight that is a number looks like a number.
        const QString name = variable.getName().trimmed();
        if (name == entity->getRefCode().trimmed())
            return kIconEntityCode;
        if (name == entity->getWeightVariable().trimmed())
            return kIconEntityWeight;
        return name == entity->getRefLabel().trimmed() ? kIconEntityLabel : kIconVariableString;
    }
    case VariableType::Integer:
        return kIconVariableInteger;
    case VariableType::Real:
        return kIconVariableDecimal;
    case VariableType::Bool:
        return kIconVariableBool;
    case VariableType::Other:
        break;
    }
    return kIconProjectPreferences;
}

Qt::ItemFlags VariableDiccionaryModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = TransferListModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

QMimeData *VariableDiccionaryModel::mimeData(const QModelIndexList &) const { return nullptr; }

bool VariableDiccionaryModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDmVariable *variable = itemOf(index);
    if (!variable)
        return false;
    if (role == Qt::EditRole) {
        const QString text = value.toString();
        if (index.column() < VariableEditRules::Tag) {
            qDebug() << "VARIABLE CURRENT INDEX" << index.column();
            if (!isAllowed(index.column(), text, *variable))
                return false;
        }
        if (index.column() == VariableEditRules::Name)
            rename(*variable, text);
        else
            write(*variable, index.column(), value);
    }
    // Announced for every role, whether something changed or not: meant so.
    emit dataChanged(index, index);
    emit signalVariablesModified();
    return true;
}

/// Judges \a text against the dictionary as it stands now, and tells of a refusal.
bool VariableDiccionaryModel::isAllowed(int column, const QString &text, const TDmVariable &variable)
{
    const VariableEditRules::Taken taken{
        dictionaryUtil->getNamesEntitiesDictionary(root, {}),
        dictionaryUtil->getNamesVariablesByEntities(entity, {}),
        dictionaryUtil->getAliasVariableByEntity(entity, {}),
    };
    using Fault = VariableEditRules::Fault;
    switch (VariableEditRules::faultOf(column, text, variable.getName(), taken, *validate)) {
    case Fault::None:
        return true;
    case Fault::SameName:
        return false;
    case Fault::EntityName:
        UtilForms::showErrorMessage(tr("The typed character string already exists"));
        return false;
    case Fault::VariableName:
        // The clash is with a name, the text speaks of an alias: meant so.
        UtilForms::showErrorMessage(
            tr("The typed character string already exists as the alias of a variable"));
        return false;
    case Fault::AliasOrName:
        // The blank at the end is part of the text.
        UtilForms::showErrorMessage(tr("The value already exists as the name/alias of a variable alias "));
        return false;
    case Fault::AnyName:
        UtilForms::showErrorMessage(tr("The value already exists as the name-entity/name-variable/alias"));
        return false;
    case Fault::NoText:
        UtilForms::showInfoMessage(tr("Invalid string"));
        return false;
    }
    return false;
}

/// Gives \a variable its new name, as typed; asks first when it holds the entity's code.
void VariableDiccionaryModel::rename(TDmVariable &variable, const QString &name)
{
    if (variable.getName().trimmed() == entity->getRefCode()) {
        constexpr int no = 1;
        constexpr int cancel = 2;
        const int answer = UtilForms::displayYesNoCancelMessageBox(
            nullptr, tr("RefCode Variable"), tr("Variable identified as RefCode.\nKeep it as RefCode?"));
        if (answer == cancel)
            return;
        if (answer == no)
            giveUpCode();
        else
            entity->setRefCode(name);
    }
    variable.setName(name);
}

/// An entity without a code cannot be selected, nor can those below it.
void VariableDiccionaryModel::giveUpCode()
{
    entity->setRefCode(QString());
    entity->setSelectable(false);
    QList<TDmEntity *> selectable;
    for (TDmEntity *below : qAsConst(*dictionaryUtil->getChildEntitiesChecked(entity, &selectable)))
        below->setSelectable(false);
}

void VariableDiccionaryModel::updateEntityVariables(QList<TDmVariable *> *list)
{
    if (!entity || !list)
        return;
    // A copy, should the list be the entity's own.
    const QList<TDmVariable *> fresh = *list;
    KnownVariables known(entity->getVariables()->size() + fresh.size());
    for (TDmVariable *variable : qAsConst(*entity->getVariables())) {
        if (variable)
            known.append(variable);
    }
    for (TDmVariable *variable : fresh) {
        if (!variable)
            continue;
        if (TDmVariable *same = known.firstSame(*variable)) {
            // No blank between the two sentences: meant so.
            const QString question = variable->getName() + kBlank + tr("already exists.") + tr("Overwrite?");
            const int answer = PlainBox::show(QMessageBox::Question, nullptr, tr("Overwrite variable"),
                question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
            if (answer == QMessageBox::No)
                continue;
            // Unlinked, not deleted: others may hold it.
            entity->getVariables()->removeOne(same);
            known.removeFirstSame(*variable);
        }
        entity->addVariables(variable);
        known.append(variable);
        emit signalVariablesModified();
    }
    showDuplicatedNamesWarning();
}

void VariableDiccionaryModel::showDuplicatedNamesWarning()
{
    if (!entity)
        return;
    // Views into the variables' own texts, which nothing changes before the box is shown.
    QHash<QStringView, int> counts;
    counts.reserve(entity->getVariables()->size());
    for (const TDmVariable *variable : qAsConst(*entity->getVariables())) {
        if (variable)
            ++counts[variable->getName()];
    }
    QString lines;
    for (const TDmVariable *variable : qAsConst(*entity->getVariables())) {
        if (variable && counts.value(variable->getName()) > 1)
            lines += tr("Name") + QLatin1String(": ") + variable->getName() + QLatin1String(" - Alias: ")
                + variable->getAlias() + QLatin1Char('\n');
    }
    if (lines.isEmpty())
        return;
    // The first line is not translated: meant so.
    PlainBox::show(QMessageBox::Warning, nullptr,
        tr("Warning") + QLatin1String(": ") + tr("Duplicated names"),
        QLatin1String("Duplicated names:\n") + lines, QMessageBox::Ok, QMessageBox::Ok);
}

bool VariableDiccionaryModel::dropMimeData(
    const QMimeData *data, Qt::DropAction action, int, int column, const QModelIndex &)
{
    if (action == Qt::IgnoreAction)
        return true;
    if (!data || !data->hasFormat(FieldTransfer::mimeType()) || column > 0)
        return false;
    QList<TDmVariable *> fresh;
    const QStringList texts = FieldTransfer::unwrapped(*data);
    for (const QString &text : texts) {
        TDmVariable *variable = getVariableFromJsonDrop(text);
        if (variable->getMetadataVariables()->getLookup() && !(entity && entity->getSelectable())) {
            PlainBox::show(QMessageBox::NoIcon, nullptr, QString(),
                tr("Error creating") + kBlank + variable->getName() + QLatin1String(". ")
                    + tr("Must be selectable entity."),
                QMessageBox::Ok, QMessageBox::Ok);
            continue;
        }
        fresh.append(variable);
    }
    updateEntityVariables(&fresh);
    takeRows();
    return true;
}

TDmVariable *VariableDiccionaryModel::getVariableFromJsonDrop(QString json)
{
    auto variable = std::make_unique<TDmVariable>();
    const TransferredVariable field(json);
    field.giveNames(*variable);
    const std::unique_ptr<QList<ValueLabelElement *>> labels(loadCategories(field.categories()));
    for (ValueLabelElement *label : qAsConst(*labels))
        variable->addValueLabelElement(label);
    field.giveTypeAndCodes(*variable);
    return variable.release();
}

QList<ValueLabelElement *> *VariableDiccionaryModel::loadCategories(QVariant categories)
{
    auto labels = std::make_unique<QList<ValueLabelElement *>>();
    const QVariantList list = categories.toList();
    for (const QVariant &category : list) {
        const QVariantMap map = category.toMap();
        auto *label = new ValueLabelElement;
        label->setLabel(map.value(QStringLiteral("nombreCategoria")).toString());
        label->setValue(map.value(QStringLiteral("codigoCategoria")).toString());
        labels->append(label);
    }
    return labels.release();
}
