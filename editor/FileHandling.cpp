#include "editor/FileHandling.h"

#include "editor/AutoSave.h"
#include "editor/DictionaryDocument.h"
#include "editor/Question.h"
#include "editor/Settings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTime>

namespace tessel::editor {
namespace {

QString shown(const QString &name) { return QFileInfo(name).fileName(); }

/// The file \a name in the middle of a sentence.
QString named(const QString &name)
{
    return name.isEmpty() ? FileHandling::tr("a dictionary that has no file yet") : shown(name);
}

QString sentenceOf(const QString &name, const documents::FileProblem &problem)
{
    return problem.line > 0 ? FileHandling::tr("%1, line %2, column %3: %4")
                                  .arg(shown(name))
                                  .arg(problem.line)
                                  .arg(problem.column)
                                  .arg(problem.message)
                            : FileHandling::tr("%1: %2").arg(shown(name), problem.message);
}

} // namespace

FileHandling::FileHandling(DictionaryDocument &editedDocument, QWidget *parentWindow)
    : QObject(parentWindow)
    , document(editedDocument)
    , window(parentWindow)
{
    connect(&document, &DictionaryDocument::reset, this, [this] { areLossesAccepted = false; });
    connect(&document, &DictionaryDocument::modifiedChanged, this, &FileHandling::putUnnamedWorkAside);
}

void FileHandling::newDictionary()
{
    if (isFreeToLeave())
        document.clear();
}

void FileHandling::open()
{
    if (!isFreeToLeave())
        return;
    const QString name = QFileDialog::getOpenFileName(window, tr("Open dictionary"),
        QFileInfo(document.fileName()).path(), tr("Dictionaries (*.json);;All files (*)"));
    if (name.isEmpty())
        return;
    load(name);
}

bool FileHandling::openFile(const QString &name) { return isFreeToLeave() && load(name); }

bool FileHandling::load(const QString &name)
{
    const QString file = QFileInfo(name).absoluteFilePath();
    // The copy of what is open here is no lost work: whoever reads the file again has just given it up.
    if (file != document.fileName() && AutoSave::hasCopy(file) && recover(file))
        return true;
    if (const auto problem = document.open(file)) {
        emit failed(sentenceOf(file, *problem));
        Settings::removeRecentFile(file);
        return false;
    }
    Settings::addRecentFile(file);
    emit told(tr("%1 opened.").arg(shown(file)));
    return true;
}

bool FileHandling::openSample()
{
    if (!isFreeToLeave())
        return false;
    const auto problem = document.openCopy(QStringLiteral(":/samples/census.json"));
    if (problem)
        emit failed(problem->message);
    return !problem;
}

void FileHandling::offerRecovery()
{
    if (AutoSave::hasCopy(QString()))
        recover(QString());
}

void FileHandling::lookForUnnamedWork()
{
    isUnnamedWorkLeft = AutoSave::hasCopy(QString());
    emit unnamedWorkFound(isUnnamedWorkLeft);
}

void FileHandling::recoverUnnamed()
{
    if (!isUnnamedWorkLeft || !isFreeToLeave())
        return;
    // From here on the copy is that of the open dictionary.
    isUnnamedWorkLeft = false;
    takeUp(QString());
    emit unnamedWorkFound(false);
}

/// New work without a file would have its copy where that of the earlier session is.
void FileHandling::putUnnamedWorkAside()
{
    if (!isUnnamedWorkLeft || !document.isModified() || !document.fileName().isEmpty())
        return;
    isUnnamedWorkLeft = false;
    emit told(tr("The unsaved work was put aside as %1.").arg(AutoSave::setAside(QString())));
    emit unnamedWorkFound(false);
}

/// True when the user wants the copy, and it could be read.
bool FileHandling::recover(const QString &name)
{
    if (!isConfirmed(window, tr("Recover unsaved work"),
            tr("The editor ended without saving %1. Go on with the unsaved work?").arg(named(name)))) {
        // Escape is pressed quickly, and the work of a day is not to hang on it.
        emit told(tr("The unsaved work was put aside as %1.").arg(AutoSave::setAside(name)));
        return false;
    }
    return takeUp(name);
}

/// True when the copy could be read.
bool FileHandling::takeUp(const QString &name)
{
    if (const auto problem = document.recover(AutoSave::copyOf(name), name)) {
        emit failed(sentenceOf(AutoSave::copyOf(name), *problem));
        return false;
    }
    emit told(tr("The unsaved work of %1 is back; save it to keep it.").arg(named(name)));
    return true;
}

void FileHandling::finishTyping()
{
    QWidget *field = QApplication::focusWidget();
    if (!field)
        return;
    QWidget *around = field->parentWidget() ? field->parentWidget()->parentWidget() : nullptr;
    if (auto *view = qobject_cast<QAbstractItemView *>(around)) {
        // A cell's field: it goes when it is left.
        view->setFocus();
        return;
    }
    field->clearFocus();
    field->setFocus();
}

bool FileHandling::isFreeToLeave()
{
    finishTyping();
    if (!document.isModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Unsaved changes"),
        tr("Save the changes to %1 before it is closed?")
            .arg(document.fileName().isEmpty() ? tr("the new dictionary") : shown(document.fileName())),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    box.setEscapeButton(QMessageBox::Cancel);
    const int answer = box.exec();
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

bool FileHandling::save()
{
    finishTyping();
    return document.fileName().isEmpty() ? saveAs() : write(document.fileName());
}

bool FileHandling::saveAs()
{
    finishTyping();
    QString name = QFileDialog::getSaveFileName(
        window, tr("Save dictionary"), document.fileName(), tr("Dictionaries (*.json);;All files (*)"));
    return !name.isEmpty() && write(name);
}

bool FileHandling::write(const QString &name)
{
    if (name == document.fileName() && document.hasFileChanged()
        && !isConfirmed(window, tr("File changed on disk"),
            tr("Another program has changed %1 since it was opened here. Overwrite those changes?")
                .arg(shown(name))))
        return false;
    if (!acceptsLosses())
        return false;
    if (const auto problem = document.save(name)) {
        emit failed(
            tr("%1 is not saved; the file is as it was. %2").arg(shown(name), sentenceOf(name, *problem)));
        return false;
    }
    Settings::addRecentFile(QFileInfo(name).absoluteFilePath());
    emit told(tr("%1 saved at %2.").arg(shown(name), QTime::currentTime().toString(QStringLiteral("HH:mm"))));
    return true;
}

/// Saving may drop what the opened file held: told once, with the whole list.
bool FileHandling::acceptsLosses()
{
    const QVector<documents::Loss> &losses = document.losses();
    if (losses.isEmpty() || areLossesAccepted)
        return true;
    QStringList lines;
    for (const documents::Loss &loss : losses)
        lines.append(QStringLiteral("%1 (%2): %3").arg(loss.path, loss.place, loss.sentence()));
    QMessageBox box(QMessageBox::Warning, tr("Saving loses something"),
        tr("The opened file holds %n values that dictionaries do not keep. Save all the same?", nullptr,
            losses.size()),
        QMessageBox::Save | QMessageBox::Cancel, window);
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(lines.join(QLatin1Char('\n')));
    box.setDefaultButton(QMessageBox::Cancel);
    areLossesAccepted = box.exec() == QMessageBox::Save;
    return areLossesAccepted;
}

void FileHandling::lookForFileChange()
{
    if (isAsking || !document.hasFileChanged())
        return;
    isAsking = true;
    const QString question = document.isModified()
        ? tr("Another program has changed %1. Read it again and lose the changes made here?")
        : tr("Another program has changed %1. Read it again?");
    if (isConfirmed(window, tr("File changed on disk"), question.arg(shown(document.fileName())))) {
        if (const auto problem = document.open(document.fileName()))
            emit failed(sentenceOf(document.fileName(), *problem));
    } else {
        document.acceptFileChange();
    }
    isAsking = false;
}

} // namespace tessel::editor
