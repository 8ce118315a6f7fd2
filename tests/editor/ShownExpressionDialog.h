#pragma once

#include "editor/ExpressionDialog.h"
#include "editor/PickList.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

#include <memory>

namespace tessel::test {

using editor::ExpressionDialog;
using editor::PickList;

inline TDmEntity *addEntity(TDmEntity &parent, const char *name, const char *label)
{
    auto *entity = new TDmEntity;
    entity->setName(name);
    entity->setLabel(label);
    parent.getChildren()->append(entity);
    return entity;
}

/// \a categories are "code=label".
inline void addVariable(TDmEntity &entity, const char *name, const char *label, const char *type,
    const QStringList &categories = {})
{
    auto *variable = new TDmVariable;
    variable->setName(name);
    variable->setLabel(label);
    variable->setVarType(type);
    for (const QString &text : categories) {
        auto *category = new ValueLabelElement;
        category->setValue(text.section('=', 0, 0));
        category->setLabel(text.section('=', 1));
        variable->addValueLabelElement(category);
    }
    entity.addVariables(variable);
}

/// HOUSE with ROOMS, ROOF and OWNER; PERSON below it with SEX; FARM without variables.
inline void fill(TDmEntity &root)
{
    root.setName("ROOT");
    TDmEntity *house = addEntity(root, "HOUSE", "Dwelling");
    addVariable(*house, "ROOMS", "Number of rooms", "integer");
    addVariable(*house, "ROOF", "Material of the roof", "integer", {"1=Tiles", "2=Straw", "=None"});
    addVariable(*house, "OWNER", "Who owns it", "string", {"O'N=O'Neil", "<b>=Bank"});
    addVariable(*addEntity(*house, "PERSON", "Resident"), "SEX", "Sex", "integer", {"1=Male", "2=Female"});
    addEntity(root, "FARM", "Farm");
}

/// The dialog over a small dictionary, or an empty one, and what a person does to it.
class ShownExpressionDialog {
public:
    explicit ShownExpressionDialog(bool isEmpty = false)
    {
        if (!isEmpty)
            fill(root);
        QGuiApplication::clipboard()->setText("before");
        dialog = std::make_unique<ExpressionDialog>(root);
        dialog->show();
        dialog->activateWindow();
        if (!QTest::qWaitForWindowActive(dialog.get()))
            qFatal("the dialog is not active");
    }

    template<typename Widget = QWidget>
    Widget &at(const char *name) const
    {
        auto *widget = dialog->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no widget \"%s\"", name);
        return *widget;
    }

    /// What a list shows, "*" before the current row; its hint in brackets if it is empty.
    QString list(const char *name) const
    {
        const PickList &view = at<PickList>(name);
        QStringList rows;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            const QModelIndex index = view.model()->index(row, 0);
            rows.append((index == view.currentIndex() ? "*" : "") + index.data().toString());
        }
        return rows.isEmpty() ? "(" + view.hint() + ")" : rows.join(", ");
    }

    QPoint place(const char *name, int row) const
    {
        const PickList &view = at<PickList>(name);
        return view.visualRect(view.model()->index(row, 0)).center();
    }

    void click(const char *name, int row)
    {
        QTest::mouseClick(at<PickList>(name).viewport(), Qt::LeftButton, Qt::NoModifier, place(name, row));
    }

    void doubleClick(const char *name, int row)
    {
        click(name, row);
        QTest::mouseDClick(at<PickList>(name).viewport(), Qt::LeftButton, Qt::NoModifier, place(name, row));
        // Two of these are no triple click.
        QTest::mouseRelease(at<PickList>(name).viewport(), Qt::LeftButton, Qt::NoModifier, place(name, row));
    }

    void press(const char *button) { QTest::mouseClick(&at(button), Qt::LeftButton); }

    /// A key that goes to whatever has the focus.
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(dialog->focusWidget(), which, modifiers);
    }

    QString focus() const { return dialog->focusWidget()->objectName(); }
    QString text() const { return dialog->text(); }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    TDmEntity root;
    std::unique_ptr<ExpressionDialog> dialog;

private:
    Q_DISABLE_COPY_MOVE(ShownExpressionDialog)
};

} // namespace tessel::test
