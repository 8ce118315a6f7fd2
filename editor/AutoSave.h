#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace tessel::editor {

class DictionaryDocument;

/// Keeps a copy of unsaved work beside the dictionary's file (or with the program's data, for a dictionary
/// without a file), written at most a minute after an edit and removed when there is nothing unsaved left. A
/// program that was killed leaves its copy behind.
class AutoSave : public QObject {
    Q_OBJECT

public:
    explicit AutoSave(DictionaryDocument &document, QObject *parent = nullptr);

    /// Where the copy of the file \a name is kept; of a dictionary without a file for an empty name.
    static QString copyOf(const QString &name);

    /// Whether an ended program left a copy of \a name that is newer than the file.
    static bool hasCopy(const QString &name);
    static void removeCopy(const QString &name);

    /// Puts the copy of \a name aside, under its own name and ".declined": it is not offered again, and not
    /// gone either. Gives the new name.
    static QString setAside(const QString &name);

    /// Removes the copy of the work done here, which the user has saved or given up.
    void finish() { removeOwnCopy(); }

    /// Milliseconds from the first edit to the copy.
    void setPause(int milliseconds) { timer.setInterval(milliseconds); }

signals:
    /// The copy could not be written; one sentence.
    void failed(const QString &sentence);

private:
    void write();
    void follow(const QString &name);
    void removeOwnCopy();

    DictionaryDocument &document;
    QTimer timer;
    QString known;
    bool isOwn = false; ///< A copy under the known name is of work done, or taken up, here.
};

} // namespace tessel::editor
