#pragma once

#include <QString>

/// The database that a run builds. A plain record: may be copied. All texts are empty to begin with.
class ConfigDb {
public:
    /// Name of the database.
    QString getName() const { return name; }
    void setName(const QString &text) { name = text; }

    /// Folder in which the database is built.
    QString getFolder() const { return folder; }
    void setFolder(const QString &text) { folder = text; }

    /// Main source file of the run.
    QString getSourceFile() const { return sourceFile; }
    void setSourceFile(const QString &text) { sourceFile = text; }

    /// Filter expression. This and the three below are read from documents and never written back.
    QString getFilter() const { return filter; }
    void setFilter(const QString &text) { filter = text; }

    /// Selection filter.
    QString getSelectFilter() const { return selectFilter; }
    void setSelectFilter(const QString &text) { selectFilter = text; }

    /// File filter.
    QString getFileFilter() const { return fileFilter; }
    void setFileFilter(const QString &text) { fileFilter = text; }

    /// Project reference.
    QString getProject() const { return project; }
    void setProject(const QString &text) { project = text; }

private:
    QString name;
    QString folder;
    QString sourceFile;
    QString filter;
    QString selectFilter;
    QString fileFilter;
    QString project;
};
