#pragma once

#include "documents/DocumentFile.h"

#include <QObject>
#include <QString>

class QWidget;

namespace tessel::editor {

class DictionaryDocument;

/// New, open, save and close, with the questions that keep work from being lost. Borrows the document and the
/// window that stands behind the boxes.
class FileHandling : public QObject {
    Q_OBJECT

public:
    FileHandling(DictionaryDocument &document, QWidget *window);

    /// Opens \a name without asking for a name; false when it cannot be read or the user changed their mind.
    bool openFile(const QString &name);

    /// Shows the sample dictionary, without a file of its own.
    bool openSample();

    /// Offers what a killed program left of a dictionary without a file.
    void offerRecovery();

    /// Looks for what a killed program left of a dictionary without a file, and offers it without a question:
    /// another dictionary has been asked for. From then on that work is safe from what is done here.
    void lookForUnnamedWork();

    /// Stores what is being typed into a cell or a field, which would do so only when the focus leaves it.
    static void finishTyping();

    /// True when nothing is unsaved, or the user saved it or wants to lose it.
    bool isFreeToLeave();

    /// One question when another program has written the file meanwhile.
    void lookForFileChange();

public slots:
    void newDictionary();
    void open();
    bool save();
    bool saveAs();

    /// Takes up what lookForUnnamedWork() has found, once nothing else is unsaved.
    void recoverUnnamed();

signals:
    /// One sentence for the status bar.
    void told(const QString &sentence);

    /// What is wrong with a file; one sentence, to stay until it is seen.
    void failed(const QString &sentence);

    /// What a killed program left of a dictionary without a file is there to be taken up, or no longer.
    void unnamedWorkFound(bool isThere);

private:
    bool load(const QString &name);
    bool write(const QString &name);
    bool acceptsLosses();
    bool recover(const QString &name);
    bool takeUp(const QString &name);
    void putUnnamedWorkAside();

    DictionaryDocument &document;
    QWidget *window;
    bool isAsking = false;
    bool areLossesAccepted = false;
    bool isUnnamedWorkLeft = false;
};

} // namespace tessel::editor
