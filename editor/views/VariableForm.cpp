#include "editor/views/VariableForm.h"

#include "editor/DictionaryDocument.h"
#include "model/MetadataVariables.h"
#include "model/TDmVariable.h"

namespace tessel::editor {

VariableForm::VariableForm(DictionaryDocument &document, QWidget *parent)
    : FormPane(document, parent)
{
    const auto types = [] {
        return QStringList{QStringLiteral("STRING"), QStringLiteral("INTEGER"), QStringLiteral("REAL"),
            QStringLiteral("BOOL")};
    };
    addChoice(
        tr("&Type"), QStringLiteral("type"), types, [this] { return variable->getVarType(); },
        [this](const QString &text) { variable->setVarType(text); });
    addNumber(
        tr("Si&ze"), QStringLiteral("size"), [this] { return variable->getSize(); },
        [this](int n) { variable->setSize(n); },
        // Of other types documents hold no size.
        [this] { return variable->getVarType().trimmed().toUpper() == QLatin1String("STRING"); });
    addNumber(
        tr("De&cimals"), QStringLiteral("decimals"), [this] { return variable->getDecimals(); },
        // Files hold neither decimals nor record: both are only shown, so that nobody types what is lost.
        SetNumber(), [] { return false; });
    addNumber(
        tr("&Missing"), QStringLiteral("missing"), [this] { return variable->getMissing(); },
        [this](int n) { variable->setMissing(n); });
    addNumber(
        tr("Not &applicable"), QStringLiteral("notApplicable"), [this] { return variable->getNotappl(); },
        [this](int n) { variable->setNotappl(n); });
    // The variable's own start and length are what is saved; the layout keeps the same.
    addNumber(
        tr("&Start"), QStringLiteral("start"), [this] { return variable->getFieldRelativePosition(); },
        [this](int n) {
            variable->setFieldRelativePosition(n);
            variable->getMetadataVariables()->setStart(n);
        });
    addNumber(
        tr("&Length"), QStringLiteral("length"), [this] { return variable->getFieldSize(); },
        [this](int n) {
            variable->setFieldSize(n);
            variable->getMetadataVariables()->setLength(n);
        });
    addText(
        tr("Rec&ord"), QStringLiteral("record"),
        [this] { return variable->getMetadataVariables()->getRecord(); }, SetText());
    addText(
        tr("F&ield"), QStringLiteral("field"),
        [this] { return variable->getMetadataVariables()->getField(); },
        [this](const QString &text) { variable->getMetadataVariables()->setField(text); });
    addLongText(
        tr("Doc&umentation"), QStringLiteral("documentation"),
        [this] { return variable->getDocumentation(); },
        [this](const QString &text) { variable->setDocumentation(text); });
    refresh();
    connect(&document, &DictionaryDocument::changed, this, [this](const Touched &touched) {
        if (touched.variables.contains(variable))
            refresh();
    });
    connect(&document, &DictionaryDocument::aboutToReset, this, [this] { show(nullptr); });
}

VariableForm::~VariableForm()
{
    // The field that has the focus is left now, while there is somebody to ask.
    variable = nullptr;
    hide();
}

void VariableForm::show(TDmVariable *shown)
{
    variable = shown;
    refresh();
}

Scope VariableForm::editScope() const { return Scope::ofVariable(*variable); }

QString VariableForm::shownName() const { return variable->getName(); }

} // namespace tessel::editor
