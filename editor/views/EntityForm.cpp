#include "editor/views/EntityForm.h"

#include "editor/DictionaryDocument.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "util/DictionaryUtil.h"

namespace tessel::editor {

EntityForm::EntityForm(DictionaryDocument &document, QWidget *parent)
    : FormPane(document, parent)
{
    // The empty choice stands for no variable.
    const auto variables = [this] {
        return DictionaryUtil().getNamesVariablesByEntities(entity, {QString()});
    };
    addText(
        tr("&Label"), QStringLiteral("label"), [this] { return entity->getLabel(); },
        [this](const QString &text) { entity->setLabel(text); });
    addText(
        tr("&Alias"), QStringLiteral("alias"), [this] { return entity->getAlias(); },
        [this](const QString &text) { entity->setAlias(text); });
    addChoice(
        tr("&Code variable"), QStringLiteral("code"), variables, [this] { return entity->getRefCode(); },
        [this](const QString &text) { entity->setRefCode(text); });
    addChoice(
        tr("Label var&iable"), QStringLiteral("labelVariable"), variables,
        [this] { return entity->getRefLabel(); }, [this](const QString &text) { entity->setRefLabel(text); });
    addChoice(
        tr("&Weight variable"), QStringLiteral("weight"), variables,
        [this] { return entity->getWeightVariable(); },
        [this](const QString &text) { entity->setWeightVariable(text); });
    addMark(
        tr("Virt&ual"), QStringLiteral("virtual"), [this] { return entity->getIsvirtual(); },
        [this](bool on) { entity->setIsvirtual(on); });
    addMark(
        tr("&Selectable"), QStringLiteral("selectable"), [this] { return entity->getSelectable(); },
        [this](bool on) { entity->setSelectable(on); });
    addLongText(
        tr("D&ocumentation"), QStringLiteral("documentation"),
        [this] { return entity->getDocumentationEntity(); },
        [this](const QString &text) { entity->setDocumentationEntity(text); });
    refresh();
    connect(&document, &DictionaryDocument::changed, this, [this](const Touched &touched) {
        if (touched.entities.contains(entity) || !touched.variables.isEmpty())
            refresh();
    });
    connect(&document, &DictionaryDocument::aboutToReset, this, [this] { show(nullptr); });
}

EntityForm::~EntityForm()
{
    // The field that has the focus is left now, while there is somebody to ask.
    entity = nullptr;
    hide();
}

void EntityForm::show(TDmEntity *shown)
{
    entity = shown;
    refresh();
}

Scope EntityForm::editScope() const
{
    // Only the entity's own fields; its variables stay as they are.
    return Scope::ofEntity(*entity);
}

QString EntityForm::shownName() const { return entity->getName(); }

} // namespace tessel::editor
