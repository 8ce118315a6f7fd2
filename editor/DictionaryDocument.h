#pragma once

#include "documents/DocumentFile.h"
#include "documents/Losses.h"
#include "editor/Attic.h"
#include "editor/Touched.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUndoStack>

#include <optional>

class TDmEntity;

namespace tessel::editor {

/// The dictionary that is being edited: its tree, its file, and what can be undone. The only place that reads
/// and writes dictionary files. Owns the tree and everything that edits have taken out of it; pointers into
/// it are good until the next reset().
class DictionaryDocument : public QObject {
    Q_OBJECT

public:
    /// An empty dictionary without a file.
    explicit DictionaryDocument(QObject *parent = nullptr);
    ~DictionaryDocument() override;

    /// The dictionary itself, of level 1; its top entities have level 2. Never null.
    TDmEntity &root() const { return *rootEntity; }

    QUndoStack *undoStack() { return &stack; }
    bool isModified() const { return !stack.isClean() || isRecovered; }

    /// Empty for a dictionary that has no file yet.
    QString fileName() const { return file; }

    /// An empty dictionary instead of this one.
    void clear();

    /// The dictionary in \a name instead of this one; a problem leaves this one as it is.
    std::optional<documents::FileProblem> open(const QString &name);

    /// What \a name holds instead of this one, as a dictionary without a file: to begin with, not to go on
    /// with.
    std::optional<documents::FileProblem> openCopy(const QString &name);

    /// Reads \a copy, an autosaved one, as the state that \a name had when the program ended without saving;
    /// an empty \a name stands for a dictionary without a file. It counts as modified.
    std::optional<documents::FileProblem> recover(const QString &copy, const QString &name);

    /// Writes the dictionary to \a name, which becomes its file. A problem leaves the file as it was, and the
    /// dictionary modified.
    std::optional<documents::FileProblem> save(const QString &name);

    /// Writes the dictionary to \a name and changes nothing else.
    std::optional<documents::FileProblem> saveCopy(const QString &name) const;

    /// What the opened file holds that saving would lose or change. Looked for at the first call.
    const QVector<documents::Loss> &losses();

    /// Whether another program has written the file since it was read or saved here.
    bool hasFileChanged() const;

    /// Takes the file as it is on disk now for the one that is known: the user has been asked.
    void acceptFileChange();

    /// Where unlinked objects are kept; for commands.
    Attic &attic() { return unlinked; }

    /// Tells all views what has changed; for commands.
    void announce(const Touched &touched) { emit changed(touched); }

signals:
    /// Another tree stands here now; all pointers into the old one are dangling from aboutToReset() on.
    void reset();
    void aboutToReset();
    void changed(const tessel::editor::Touched &touched);
    void modifiedChanged(bool modified);
    void fileNameChanged(const QString &name);

private:
    std::optional<documents::FileProblem> read(const QString &source, const QString &name);
    void replaceTree(TDmEntity *tree, const QString &name, const std::optional<QByteArray> &bytes);
    void setFile(const QString &name);

    TDmEntity *rootEntity;
    Attic unlinked;
    QUndoStack stack;
    QString file;
    QDateTime fileTime;
    qint64 fileSize = -1;
    bool isRecovered = false;
    std::optional<QByteArray> openedBytes;
    QVector<documents::Loss> openedLosses;

    Q_DISABLE_COPY_MOVE(DictionaryDocument)
};

} // namespace tessel::editor
