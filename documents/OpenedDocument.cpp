#include "documents/OpenedDocument.h"

#include "documents/DocumentForm.h"
#include "documents/QuickReader.h"
#include "documents/QuickWriter.h"

#include <QFile>
#include <QFileInfo>

namespace tessel::documents {
namespace {

Outcome<OpenedDocument> openThroughObject(const QByteArray &bytes)
{
    const Outcome<QJsonObject> parsed = parseObject(bytes);
    if (!parsed.result)
        return {std::nullopt, parsed.problem};
    OpenedDocument opened;
    if (kindOf(*parsed.result) == DocumentKind::Run)
        opened.run = readRun(*parsed.result);
    else
        opened.dictionary = readDictionary(*parsed.result);
    return {std::move(opened), {}};
}

/// Nothing for what is no plain dictionary.
std::optional<OpenedDocument> openQuickly(const QByteArray &bytes)
{
    std::unique_ptr<TDmEntity> root = readQuickly(bytes);
    if (!root)
        return std::nullopt;
    return OpenedDocument{std::move(root), nullptr, true, std::nullopt};
}

/// Standard input, a pipe or a device can be read only once.
bool canBeReadAgain(const QString &name) { return name != QLatin1String("-") && QFileInfo(name).isFile(); }

bool isWrittenInFile(const OpenedDocument &opened, const QString &name)
{
    QFile file(name);
    return opened.isPlain && file.open(QIODevice::ReadOnly) && isWrittenAs(*opened.dictionary, file);
}

} // namespace

Outcome<OpenedDocument> openDocument(const QByteArray &bytes)
{
    if (std::optional<OpenedDocument> plain = openQuickly(bytes))
        return {std::move(plain), {}};
    return openThroughObject(bytes);
}

Outcome<OpenedDocument> openFile(const QString &name)
{
    const bool isReadTwice = canBeReadAgain(name);
    if (isReadTwice) {
        const Outcome<QByteArray> read = readFileWithoutBlanks(name);
        if (!read.result)
            return {std::nullopt, read.problem};
        if (std::optional<OpenedDocument> plain = openQuickly(*read.result))
            return {std::move(plain), {}};
    }
    // With its blanks, for the place of a fault.
    const Outcome<QByteArray> read = readFile(name);
    if (!read.result)
        return {std::nullopt, read.problem};
    return isReadTwice ? openThroughObject(*read.result) : openDocument(*read.result);
}

Outcome<OpenedDocument> openToWriteAgain(const QString &name)
{
    Outcome<OpenedDocument> opened;
    if (canBeReadAgain(name)) {
        opened = openFile(name);
        if (!opened.result || isWrittenInFile(*opened.result, name))
            return opened;
    }
    Outcome<QByteArray> read = readFile(name);
    if (!read.result)
        return {std::nullopt, read.problem};
    if (!opened.result)
        opened = openDocument(*read.result);
    if (opened.result)
        opened.result->bytes = std::move(read.result);
    return opened;
}

bool isKeptAsItIs(const QByteArray &bytes)
{
    const std::unique_ptr<TDmEntity> root = readQuickly(bytes);
    return root && isWrittenAs(*root, bytes);
}

} // namespace tessel::documents
