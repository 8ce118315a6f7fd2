#include "documents/OpenedDocument.h"

#include "documents/DocumentForm.h"
#include "documents/QuickReader.h"
#include "documents/QuickWriter.h"

namespace tessel::documents {

Outcome<OpenedDocument> openDocument(const QByteArray &bytes)
{
    OpenedDocument opened;
    opened.dictionary = readQuickly(bytes);
    opened.isPlain = opened.dictionary != nullptr;
    if (!opened.isPlain) {
        const Outcome<QJsonObject> parsed = parseObject(bytes);
        if (!parsed.result)
            return {std::nullopt, parsed.problem};
        if (kindOf(*parsed.result) == DocumentKind::Run)
            opened.run = readRun(*parsed.result);
        else
            opened.dictionary = readDictionary(*parsed.result);
    }
    return {std::move(opened), {}};
}

Outcome<OpenedDocument> openFile(const QString &name)
{
    const Outcome<QByteArray> read = readFile(name);
    return read.result ? openDocument(*read.result) : Outcome<OpenedDocument>{std::nullopt, read.problem};
}

bool isKeptAsItIs(const QByteArray &bytes)
{
    const std::unique_ptr<TDmEntity> root = readQuickly(bytes);
    return root && isWrittenAs(*root, bytes);
}

} // namespace tessel::documents
