#pragma once

#include "editor/DictionaryDocument.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QFileInfo>
#include <QObject>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace tessel::test {

/// All that a document announces while the log lives, one line each. Objects are shown by the names that they
/// have at that moment; a modified state that is announced twice in a row is written once.
class DocumentLog : public QObject {
public:
    explicit DocumentLog(editor::DictionaryDocument &document)
    {
        using editor::DictionaryDocument;
        connect(&document, &DictionaryDocument::aboutToReset, this,
            [this, &document] { write(QStringLiteral("about to reset ") + topNames(document)); });
        connect(&document, &DictionaryDocument::reset, this,
            [this, &document] { write(QStringLiteral("reset ") + topNames(document)); });
        connect(&document, &DictionaryDocument::changed, this,
            [this](const editor::Touched &touched) { write(QStringLiteral("changed ") + shown(touched)); });
        connect(&document, &DictionaryDocument::modifiedChanged, this, [this](bool modified) {
            const QString line = QLatin1String(modified ? "modified" : "clean");
            if (lines.isEmpty() || lines.last() != line)
                lines.append(line);
        });
        connect(&document, &DictionaryDocument::fileNameChanged, this,
            [this](const QString &name) { write(QStringLiteral("file ") + QFileInfo(name).fileName()); });
    }

    /// The lines since the last call.
    QStringList take() { return std::exchange(lines, {}); }

    /// "entities A B; lists A; variables X; tree": what is empty is left out.
    static QString shown(const editor::Touched &touched)
    {
        QStringList parts;
        if (!touched.entities.isEmpty())
            parts << QStringLiteral("entities ") + names(touched.entities);
        if (!touched.relisted.isEmpty())
            parts << QStringLiteral("lists ") + names(touched.relisted);
        if (!touched.variables.isEmpty())
            parts << QStringLiteral("variables ") + names(touched.variables);
        if (touched.isTree)
            parts << QStringLiteral("tree");
        return parts.join(QLatin1String("; "));
    }

private:
    template<typename Object>
    static QString names(const QSet<Object *> &objects)
    {
        QStringList list;
        for (const Object *object : objects)
            list.append(object->getName());
        list.sort();
        return list.join(QLatin1Char(' '));
    }

    static QString topNames(const editor::DictionaryDocument &document)
    {
        QStringList list;
        for (const TDmEntity *entity : qAsConst(*document.root().getChildren()))
            list.append(entity->getName());
        return list.join(QLatin1Char(' '));
    }

    void write(const QString &line) { lines.append(line.trimmed()); }

    QStringList lines;
};

} // namespace tessel::test
