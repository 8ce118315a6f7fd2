#include "editor/DictionaryDocument.h"

#include "documents/DocumentForm.h"
#include "documents/OpenedDocument.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QFileInfo>
#include <QVector>

#include <utility>

namespace tessel::editor {
namespace {

/// The tables judge types in upper case; documents have them in lower case. Only known types are touched, so
/// that saving writes back what was read.
QString shownType(const QString &type)
{
    QString upper = type.toUpper();
    for (const char *known : {"STRING", "INTEGER", "REAL", "BOOL"}) {
        if (upper == QLatin1String(known))
            return upper;
    }
    return type;
}

/// What documents do not hold and the models look at: levels, from 1 at the root, and types in upper case.
void prepare(TDmEntity &root)
{
    root.setLevel(1);
    QVector<TDmEntity *> pending{&root};
    while (!pending.isEmpty()) {
        TDmEntity *entity = pending.takeLast();
        for (TDmVariable *variable : qAsConst(*entity->getVariables())) {
            variable->setLevel(1);
            variable->setVarType(shownType(variable->getVarType()));
        }
        for (TDmEntity *child : qAsConst(*entity->getChildren())) {
            child->setLevel(entity->getLevel() + 1);
            pending.append(child);
        }
    }
}

TDmEntity *newRoot()
{
    auto *root = new TDmEntity;
    root->setName(QStringLiteral("DICTIONARY"));
    return root;
}

} // namespace

DictionaryDocument::DictionaryDocument(QObject *parent)
    : QObject(parent)
    , rootEntity(newRoot())
{
    prepare(*rootEntity);
    connect(&stack, &QUndoStack::cleanChanged, this, [this] { emit modifiedChanged(isModified()); });
}

DictionaryDocument::~DictionaryDocument()
{
    stack.disconnect(this);
    stack.clear();
    unlinked.clear(rootEntity);
}

void DictionaryDocument::clear() { replaceTree(newRoot(), QString(), std::nullopt); }

std::optional<documents::FileProblem> DictionaryDocument::open(const QString &name)
{
    return read(name, name);
}

std::optional<documents::FileProblem> DictionaryDocument::openCopy(const QString &name)
{
    return read(name, QString());
}

std::optional<documents::FileProblem> DictionaryDocument::recover(const QString &copy, const QString &name)
{
    auto problem = read(copy, name);
    if (!problem) {
        isRecovered = true;
        emit modifiedChanged(true);
    }
    return problem;
}

std::optional<documents::FileProblem> DictionaryDocument::read(const QString &source, const QString &name)
{
    // Before the first byte is read: what is written meanwhile is a change.
    const QFileInfo info(source);
    const QDateTime time = info.lastModified();
    const qint64 size = info.size();
    documents::Outcome<documents::OpenedDocument> opened = documents::openToWriteAgain(source);
    if (!opened.result)
        return opened.problem;
    if (opened.result->run)
        return documents::FileProblem{
            tr("is a run configuration, not a dictionary; open it with Run, Open run"), 0, 0};
    replaceTree(opened.result->dictionary.release(), name, opened.result->bytes);
    if (name == source) {
        fileTime = time;
        fileSize = size;
    }
    return std::nullopt;
}

void DictionaryDocument::replaceTree(
    TDmEntity *tree, const QString &name, const std::optional<QByteArray> &bytes)
{
    emit aboutToReset();
    stack.clear();
    unlinked.clear(rootEntity);
    rootEntity = tree;
    prepare(*rootEntity);
    isRecovered = false;
    openedBytes = bytes;
    openedLosses.clear();
    setFile(name);
    emit reset();
    emit modifiedChanged(false);
}

std::optional<documents::FileProblem> DictionaryDocument::save(const QString &name)
{
    if (auto problem = saveCopy(name))
        return problem;
    // What the file did not keep is gone with the saving, and was told before.
    openedBytes.reset();
    openedLosses.clear();
    isRecovered = false;
    setFile(name);
    stack.setClean();
    emit modifiedChanged(false);
    return std::nullopt;
}

std::optional<documents::FileProblem> DictionaryDocument::saveCopy(const QString &name) const
{
    return documents::writeFile(name, documents::dictionaryText(*rootEntity));
}

const QVector<documents::Loss> &DictionaryDocument::losses()
{
    if (openedBytes) {
        const QJsonObject object = documents::parseObject(*openedBytes).result.value_or(QJsonObject());
        openedLosses = documents::lossesOf(*openedBytes, object, documents::normalForm(object));
        openedBytes.reset();
    }
    return openedLosses;
}

bool DictionaryDocument::hasFileChanged() const
{
    if (file.isEmpty())
        return false;
    const QFileInfo info(file);
    return info.exists() && (info.lastModified() != fileTime || info.size() != fileSize);
}

void DictionaryDocument::acceptFileChange()
{
    const QFileInfo info(file);
    fileTime = info.lastModified();
    fileSize = info.size();
}

void DictionaryDocument::setFile(const QString &name)
{
    file = name;
    acceptFileChange();
    emit fileNameChanged(file);
}

} // namespace tessel::editor
