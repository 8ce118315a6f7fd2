#include "documents/QuickWriter.h"

#include "business/detail/VariableKeys.h"
#include "documents/IndentedText.h"

#include <QBuffer>

#include <cstring>
#include <exception>

namespace tessel::documents {
namespace {

/// Keys are written sorted.
void writeEntity(IndentedText &out, const TDmEntity &entity)
{
    using detail::writeTextIfAny;
    writeTextIfAny(out, "alias", entity.getAlias());
    writeTextIfAny(out, "codeVar", entity.getRefCode());
    writeTextIfAny(out, "documentation", entity.getDocumentationEntity());
    if (const QList<TDmEntity *> *children = entity.getChildren())
        out.objects("entities", *children, writeEntity);
    writeTextIfAny(out, "label", entity.getLabel());
    writeTextIfAny(out, "labelVar", entity.getRefLabel());
    writeTextIfAny(out, "name", entity.getName());
    out.boolean("selectable", entity.getSelectable());
    out.objects("variables", *entity.getVariables(),
        [](IndentedText &item, const TDmVariable &variable) { detail::writeVariable(item, variable); });
    out.boolean("virtual", entity.getIsvirtual());
    writeTextIfAny(out, "weightVar", entity.getWeightVariable());
}

/// Writes the document to \a receiver; false when it wanted no more, or the text is of no use.
bool write(const TDmEntity &root, TextStream::Receiver receiver)
{
    try {
        TextStream stream(std::move(receiver));
        IndentedText out(stream, 0);
        writeEntity(out, root);
        out.close();
        char *at = stream.room(1);
        *at = '\n';
        stream.wrote(at + 1);
        stream.finish();
        return stream.isWanted() && out.isExact();
    } catch (const std::exception &) {
        return false;
    }
}

} // namespace

std::optional<QByteArray> textQuickly(const TDmEntity &root)
{
    QByteArray text;
    const auto append = [&text](const char *piece, std::size_t length) {
        text.append(piece, int(length));
        return true;
    };
    if (!write(root, append))
        return std::nullopt;
    return text;
}

bool isWrittenAs(const TDmEntity &root, QIODevice &document)
{
    QByteArray there;
    const auto compare = [&](const char *piece, std::size_t length) {
        there.resize(int(length));
        return document.read(there.data(), there.size()) == there.size()
            && std::memcmp(there.constData(), piece, length) == 0;
    };
    return write(root, compare) && document.atEnd();
}

bool isWrittenAs(const TDmEntity &root, const QByteArray &bytes)
{
    QBuffer document;
    document.setData(bytes);
    document.open(QIODevice::ReadOnly);
    return isWrittenAs(root, document);
}

} // namespace tessel::documents
