#pragma once

#include "documents/Findings.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QVector>

class TDmEntity;
class TDmVariable;

namespace tessel::documents {

/// Judges the variables of one entity after the other, as the table of variables would judge what is typed.
class VariableFindings {
    Q_DECLARE_TR_FUNCTIONS(tessel::documents::VariableFindings)

public:
    /// Appends to \a list, which must outlive this object. \a names are those of all entities, trimmed.
    VariableFindings(QSet<QString> names, QVector<Finding> &list);

    /// Judges what \a entity says of its variables, then each variable. \a path and \a place are the
    /// entity's.
    void judge(const TDmEntity &entity, const QString &path, const QString &place);

private:
    void judgeReferences(const TDmEntity &entity, const QString &path, const QString &place);
    void judgeName(const QString &name, QSet<QString> &known);
    void judgeLabels(const TDmVariable &variable);
    void judgeRanges(const TDmVariable &variable);
    void add(const char *code, const QString &path, const QString &message);

    QSet<QString> entityNames;
    QVector<Finding> &findings;
    QString variablePath;
    QString variablePlace;
};

} // namespace tessel::documents
