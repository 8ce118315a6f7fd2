#pragma once

#include "tests/support/MessageBoxRobot.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

#include <random>

class TDmEntity;
class TDmVariable;

namespace tessel::editor {
class DictionaryDocument;
}

namespace tessel::test {

/// Edits a document as a restless person would: each step is one operation on objects drawn at random, by the
/// editor's own operations, through the library's models, or straight into the objects. The same seed gives
/// the same steps. Answers the boxes that come meanwhile, at random too.
class RandomEdits : public QObject {
    Q_OBJECT

public:
    RandomEdits(editor::DictionaryDocument &document, unsigned seed);
    ~RandomEdits() override;

    /// One operation, which may turn out to change nothing. Gives its name.
    QString step();

    /// How often each operation was chosen.
    const QHash<QString, int> &counts() const { return chosen; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int below(int limit);
    bool chance(int percent) { return below(100) < percent; }
    QString freshName(const char *stem);
    TDmEntity *anyEntity();
    TDmEntity *anyEntityWithVariables();
    TDmVariable *anyVariable();
    template<typename Item>
    QList<Item *> someOf(const QList<Item *> &list);

    void entityStep(const QString &name);
    void variableStep(const QString &name);
    void labelStep(const QString &name);
    void rangeStep(const QString &name);
    void editEntityField(TDmEntity &entity);
    void editVariableField(TDmVariable &variable);
    void typeIntoVariableTable();
    void renameInTree();
    void dropFields();
    void press(QMessageBox &box);

    editor::DictionaryDocument &document;
    std::mt19937 numbers;
    int names = 0;
    QHash<QString, int> chosen;
};

} // namespace tessel::test
