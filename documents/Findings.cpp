#include "documents/Findings.h"

#include "business/models/detail/EntityNameRules.h"
#include "documents/VariableFindings.h"
#include "model/TDmEntity.h"
#include "util/DictionaryUtil.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

namespace tessel::documents {
namespace {

/// Names are compared without the blanks around them.
QSet<QString> trimmedSet(const QStringList &texts)
{
    QSet<QString> set;
    for (const QString &text : texts)
        set.insert(text.trimmed());
    return set;
}

/// Judges one entity after the other, each against what the whole dictionary holds.
class NameCheck {
    Q_DECLARE_TR_FUNCTIONS(tessel::documents::NameCheck)

public:
    explicit NameCheck(TDmEntity &root)
        : variables(trimmedSet(DictionaryUtil().getNamesEntitiesDictionary(&root, {})), findings)
        , aliases(trimmedSet(DictionaryUtil().getAliasEntitiesDictionary(&root, {})))
        , groups(trimmedSet(DictionaryUtil().getGroupEntitiesDictionary(&root, {})))
    {
        if (!root.getName().trimmed().isEmpty())
            firstPlaces.insert(root.getName().trimmed(), tr("the dictionary itself"));
        walk(root, QString(), QString());
    }

    QVector<Finding> findings;

private:
    void walk(const TDmEntity &parent, const QString &path, const QString &place)
    {
        for (int i = 0; i < parent.getChildren()->size(); ++i) {
            const TDmEntity &entity = *parent.getChildren()->at(i);
            const QString below = path + QStringLiteral("/entities/%1").arg(i);
            const QString names =
                path.isEmpty() ? entity.getName() : place + QLatin1Char('/') + entity.getName();
            judge(entity.getName(), below, names);
            variables.judge(entity, below, names);
            walk(entity, below, names);
        }
    }

    void judge(const QString &name, const QString &path, const QString &place)
    {
        const auto add = [&](const char *code, const QString &message) {
            findings.append({QLatin1String(code), path, place, message});
        };
        if (!validate.validateEmpty(name)) {
            add("entity-name-empty", tr("the entity has no name; give it one"));
            return;
        }
        const QString trimmed = name.trimmed();
        if (!validate.validateName(name))
            add("entity-name-invalid",
                tr("an entity's name is a letter or _ followed by letters, digits and _"));
        if (!validate.validateStringC(name))
            add("entity-name-unprintable",
                tr("an entity's name holds no control character, double quote or backslash"));
        if (detail::EntityNameRules::isTooLong(name)) {
            add("entity-name-too-long",
                tr("an entity's name has at most %1 characters; this one has %2")
                    .arg(detail::EntityNameRules::kLongest)
                    .arg(trimmed.size()));
        }
        const auto first = firstPlaces.constFind(trimmed);
        if (first != firstPlaces.constEnd())
            add("entity-name-duplicate",
                tr("the name is already that of %1; rename one of them").arg(*first));
        else
            firstPlaces.insert(trimmed, place);
        if (aliases.contains(trimmed))
            add("entity-name-is-alias", tr("the name is also an alias of an entity; change one of them"));
        if (groups.contains(trimmed))
            add("entity-name-is-group", tr("the name is also a group of variables; change one of them"));
    }

    VariableFindings variables;
    Validate validate;
    QSet<QString> aliases;
    QSet<QString> groups;
    QHash<QString, QString> firstPlaces;
};

} // namespace

QVector<Finding> findingsIn(TDmEntity &root) { return NameCheck(root).findings; }

} // namespace tessel::documents
