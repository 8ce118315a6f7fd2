#include "editor/views/DeclaredCodesOffer.h"

#include "business/models/detail/FieldTransfer.h"
#include "editor/DictionaryDocument.h"
#include "editor/Edit.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace tessel::editor {
namespace {

/// The codes that \a fields declare, by the names of the fields.
QHash<QString, sources::DeclaredCodes> codesIn(const QMimeData &fields)
{
    QHash<QString, sources::DeclaredCodes> codes;
    const QStringList texts = detail::FieldTransfer::unwrapped(fields);
    for (const QString &text : texts) {
        const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
        TDmSourceField field;
        field.missing = object.value(QLatin1String("fieldMissing")).toString();
        field.notApp = object.value(QLatin1String("fieldNotApp")).toString();
        codes.insert(object.value(QLatin1String("name")).toString(), sources::DeclaredCodes::of(field));
    }
    return codes;
}

} // namespace

DeclaredCodesOffer::DeclaredCodesOffer(DictionaryDocument &editedDocument, QWidget *parent)
    : NoticeBar(QStringLiteral("codes"), parent)
    , document(editedDocument)
{
    const QPushButton *set = addButton(tr("&Set them"), QStringLiteral("codesSet"));
    const QPushButton *leave = addButton(tr("&Leave"), QStringLiteral("codesLeave"));
    connect(set, &QPushButton::clicked, this, &DeclaredCodesOffer::setCodes);
    connect(leave, &QPushButton::clicked, this, &DeclaredCodesOffer::forget);
    connect(this, &NoticeBar::closed, this, &DeclaredCodesOffer::forget);
    connect(&document, &DictionaryDocument::changed, this, &DeclaredCodesOffer::refresh);
    connect(&document, &DictionaryDocument::aboutToReset, this, &DeclaredCodesOffer::forget);
}

void DeclaredCodesOffer::consider(
    TDmEntity *entity, const QList<TDmVariable *> &variables, const QMimeData *fields)
{
    const QHash<QString, sources::DeclaredCodes> codes = codesIn(*fields);
    QList<Declaration> fresh;
    for (TDmVariable *variable : variables)
        fresh.append({entity, variable, codes.value(variable->getMetadataVariables()->getField())});
    // A drop that asks for nothing does not count among the variables that an open offer speaks of.
    const bool isConcerned = std::any_of(fresh.cbegin(), fresh.cend(),
        [](const Declaration &each) { return each.codes.wouldChange(*each.variable); });
    if (isConcerned)
        considered += fresh;
    refresh();
}

QList<DeclaredCodesOffer::Declaration> DeclaredCodesOffer::present() const
{
    const QSet<TDmEntity *> entities = Scope::ofTree(document.root()).entities();
    QSet<TDmVariable *> variables;
    for (const Declaration &each : considered) {
        if (entities.contains(each.entity))
            variables |= Scope::ofEntity(*each.entity).variables();
    }
    QList<Declaration> list;
    std::copy_if(considered.cbegin(), considered.cend(), std::back_inserter(list),
        [&variables](const Declaration &each) { return variables.contains(each.variable); });
    return list;
}

QList<DeclaredCodesOffer::Declaration> DeclaredCodesOffer::differing() const
{
    const QList<Declaration> all = present();
    QList<Declaration> list;
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(list),
        [](const Declaration &each) { return each.codes.wouldChange(*each.variable); });
    return list;
}

QString DeclaredCodesOffer::difference(const Declaration &declaration)
{
    const TDmVariable &variable = *declaration.variable;
    const sources::DeclaredCodes &codes = declaration.codes;
    QStringList parts;
    if (codes.missing && *codes.missing != variable.getMissing())
        parts.append(tr("%1: missing code %2 instead of %3.")
                         .arg(variable.getName(), QString::number(*codes.missing),
                             QString::number(variable.getMissing())));
    if (codes.notApplicable && *codes.notApplicable != variable.getNotappl())
        parts.append(tr("%1: not-applicable code %2 instead of %3.")
                         .arg(variable.getName(), QString::number(*codes.notApplicable),
                             QString::number(variable.getNotappl())));
    return parts.join(QLatin1Char('\n'));
}

void DeclaredCodesOffer::forget()
{
    considered.clear();
    hide();
}

void DeclaredCodesOffer::refresh()
{
    const QList<Declaration> open = differing();
    if (open.isEmpty()) {
        forget();
        return;
    }
    QStringList lines;
    for (const Declaration &each : open)
        lines.append(difference(each));
    tell(tr("%n of the %1 new variables have missing or not-applicable codes declared in the file.", nullptr,
             open.size())
             .arg(present().size()),
        lines.join(QLatin1Char('\n')));
}

void DeclaredCodesOffer::setCodes()
{
    const QList<Declaration> open = differing();
    Scope scope;
    for (const Declaration &each : open)
        scope |= Scope::ofVariable(*each.variable);
    Edit edit(document, scope);
    for (const Declaration &each : open)
        each.codes.giveTo(*each.variable);
    edit.commit(tr("set declared codes"));
    emit told(tr("%n variables have the declared codes now.", nullptr, open.size()));
}

} // namespace tessel::editor
