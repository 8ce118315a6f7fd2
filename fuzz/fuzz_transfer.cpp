// Any text as what a catalogue sends of one field: it becomes a variable that keeps the rules of such
// variables, and that the document's writer and reader know what to do with.

#include "business/models/VariableDiccionaryModel.h"
#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "fuzz/support/Desk.h"
#include "fuzz/support/Expect.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <memory>

namespace docs = tessel::documents;
using tessel::fuzz::expect;
using tessel::fuzz::expectSame;

namespace {

/// Name and alias are the field's name, whole or parted at an underscore.
void expectNames(const TDmVariable &variable)
{
    const QString field = variable.getMetadataVariables()->getField();
    const QString joined = variable.getName() + QLatin1Char('_') + variable.getAlias();
    expect(field == joined || (field == variable.getName() && variable.getAlias().isEmpty()),
        "a name is not made of the field's name");
}

void expectLayout(const TDmVariable &variable)
{
    const bool isText = variable.getVarType() == QLatin1String("STRING");
    const bool isLookup = variable.getMetadataVariables()->getLookup();
    const int ranges = variable.getMetadataVariables()->getRange()->size();
    expect(variable.getFieldRelativePosition() == 1, "a place in the record was taken over");
    expect(variable.getFieldSize() == variable.getSize(), "a variable has two sizes");
    expect(!isLookup || (isText && variable.getSize() == 64), "a lookup is no text of 64");
    expect(isLookup ? ranges <= 1 : ranges == int(!isText), "a number has one range and a text none");
    expect(!isText || (variable.getMissing() == 0 && variable.getNotappl() == 0), "a text has codes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    tessel::fuzz::openDesk();
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    TDmEntity root;
    auto *entity = new TDmEntity;
    root.getChildren()->append(entity);
    VariableDiccionaryModel table(nullptr, entity, &root);
    TDmVariable *variable = table.getVariableFromJsonDrop(text);
    entity->addVariables(variable);

    expectNames(*variable);
    expectLayout(*variable);
    const QJsonObject sent = QJsonDocument::fromJson(text.toUtf8()).object();
    expect(variable->getValueLabelElementList()->size()
            == sent.value(QStringLiteral("categories")).toVariant().toList().size(),
        "a category became none or more than one value label");

    const QByteArray first = docs::normalForm(*docs::parseObject(docs::dictionaryText(root)).result);
    const QByteArray second = docs::normalForm(*docs::parseObject(first).result);
    expectSame(QString::fromUtf8(second), QString::fromUtf8(first), "writing the variable again changes it");
    return 0;
}
