#pragma once

#include "editor/Scope.h"

#include <QWidget>

#include <functional>
#include <vector>

class QFormLayout;

namespace tessel::editor {

class DictionaryDocument;

/// A form over one object of the dictionary: each field shows what the object holds and, once left, stores
/// what it holds as one step of the undo stack.
class FormPane : public QWidget {
    Q_OBJECT

protected:
    FormPane(DictionaryDocument &document, QWidget *parent);

    using GetText = std::function<QString()>;
    using SetText = std::function<void(const QString &)>;
    using GetNumber = std::function<int()>;
    using SetNumber = std::function<void(int)>;
    using GetMark = std::function<bool()>;
    using SetMark = std::function<void(bool)>;
    using Choices = std::function<QStringList()>;

    /// One line of text; without \a set it is only shown.
    void addText(const QString &title, const QString &name, GetText get, SetText set);
    void addLongText(const QString &title, const QString &name, GetText get, SetText set);

    /// A whole number; where \a isOffered is given and false, it cannot be typed.
    void addNumber(const QString &title, const QString &name, GetNumber get, SetNumber set,
        GetMark isOffered = GetMark());
    void addMark(const QString &title, const QString &name, GetMark get, SetMark set);

    /// A text chosen from \a choices or typed.
    void addChoice(const QString &title, const QString &name, Choices choices, GetText get, SetText set);

    /// Shows what the object holds now; nothing, and no field to type into, when there is none.
    void refresh();

    virtual bool hasObject() const = 0;

    /// What storing a field may change.
    virtual Scope editScope() const = 0;

    /// The object's name, for the undo menu.
    virtual QString shownName() const = 0;

private:
    void addRow(const QString &title, const QString &name, QWidget *field, std::function<void()> show);
    void store(const QString &title, const std::function<void()> &change);

    DictionaryDocument &editedDocument;
    QFormLayout *form;
    std::vector<std::function<void()>> shows;
};

} // namespace tessel::editor
