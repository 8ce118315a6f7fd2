#pragma once

#include "documents/DocumentForm.h"
#include "editor/DictionaryDocument.h"
#include "editor/Structure.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/RunWizard.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

#include <memory>

namespace tessel::test {

/// Where the samples are.
inline QString sample(const char *name)
{
    return QStringLiteral(TESSEL_SAMPLES "/%1").arg(QLatin1String(name));
}

/// All that a wizard could change in \a root: the document, and the marks that it does not hold.
inline QByteArray stateOf(TDmEntity &root)
{
    QByteArray state = documents::dictionaryText(root);
    for (const TDmEntity *entity : editor::entitiesBelow(root)) {
        state += entity->getSelectable() ? '1' : '0';
        for (const TDmVariable *variable : qAsConst(*entity->getVariables()))
            state +=
                QByteArray::number(variable->getChecked()) + '/' + QByteArray::number(variable->getLevel());
    }
    return state;
}

/// A wizard over the sample dictionary, and what a person does to it.
class ShownRunWizard {
public:
    ShownRunWizard()
    {
        if (document.open(sample("census.json")))
            qFatal("the sample dictionary cannot be read");
        wizard = std::make_unique<editor::RunWizard>(document);
    }

    void show()
    {
        wizard->show();
        wizard->activateWindow();
        if (!QTest::qWaitForWindowActive(wizard.get()))
            qFatal("the wizard is not active");
    }

    template<typename Widget>
    Widget &at(const char *name) const
    {
        auto *widget = wizard->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no widget \"%s\"", name);
        return *widget;
    }

    /// Types a name for the database and goes on to \a page.
    void goTo(editor::RunWizard::Page page)
    {
        show();
        if (at<QLineEdit>("databaseNameLine").text().isEmpty())
            QTest::keyClicks(&at<QLineEdit>("databaseNameLine"), "DB");
        while (wizard->currentId() != page)
            press(QWizard::NextButton);
    }

    void press(QWizard::WizardButton which) { QTest::mouseClick(wizard->button(which), Qt::LeftButton); }
    void press(const char *name) { QTest::mouseClick(&at<QPushButton>(name), Qt::LeftButton); }
    void key(const char *name, Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&at<QWidget>(name), which, modifiers);
    }

    /// The cell in \a view that shows \a text in the first column.
    QModelIndex row(const char *view, const QString &text, int column = 0) const
    {
        const QAbstractItemView &items = at<QAbstractItemView>(view);
        QVector<QModelIndex> pending{items.rootIndex()};
        while (!pending.isEmpty()) {
            const QModelIndex parent = pending.takeLast();
            const bool isTree = qobject_cast<const QTreeView *>(&items);
            for (int i = 0; i < items.model()->rowCount(parent); ++i) {
                const QModelIndex index = items.model()->index(i, 0, parent);
                if (index.data().toString() == text)
                    return items.model()->index(i, column, parent);
                if (isTree)
                    pending.append(index);
            }
        }
        qFatal("no row \"%s\"", qPrintable(text));
    }

    /// A click on the check box of \a index.
    void click(const char *view, const QModelIndex &index)
    {
        QAbstractItemView &items = at<QAbstractItemView>(view);
        items.scrollTo(index);
        const QRect rect = items.visualRect(index);
        const int half = items.style()->pixelMetric(QStyle::PM_IndicatorWidth) / 2;
        const int margin = items.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        QTest::mouseClick(items.viewport(), Qt::LeftButton, Qt::NoModifier,
            QPoint(rect.left() + margin + half, rect.center().y()));
    }

    void space(const char *view, const QModelIndex &index)
    {
        at<QAbstractItemView>(view).setCurrentIndex(index);
        key(view, Qt::Key_Space);
    }

    void chooseEntity(const QString &name)
    {
        QListWidget &list = at<QListWidget>("tickedEntities");
        for (int i = 0; i < list.count(); ++i) {
            if (list.item(i)->text().startsWith(name + " ("))
                return list.setCurrentRow(i);
        }
        qFatal("no entity \"%s\"", qPrintable(name));
    }

    QStringList lines(const char *name) const
    {
        QStringList list;
        const QListWidget &widget = at<QListWidget>(name);
        for (int i = 0; i < widget.count(); ++i)
            list.append(widget.item(i)->text());
        return list;
    }

    QString text(const char *label) const { return at<QLabel>(label).text(); }

    /// "A 1" for each entity of the tree, 1 for a tick.
    QString entityTicks() const
    {
        QStringList list;
        for (const char *name :
            {"COUNTRY", "REGION", "PROVINCE", "MUNICIPALITY", "DWELLING", "HOUSEHOLD", "PERSON"}) {
            const bool on = row("entityTree", name).data(Qt::CheckStateRole).toInt() == Qt::Checked;
            list.append(on ? "1" : "0");
        }
        return list.join(' ');
    }

    /// What would be saved of \a entity.
    QString chosen(const QString &entity) const
    {
        const std::unique_ptr<Config> config = wizard->runPlan().config();
        for (const ConfigEntities *section : qAsConst(*config->getEntities())) {
            if (section->getName() != entity)
                continue;
            const QString all = section->getAllVariables() ? "all" : "";
            return section->getVariables() ? all + section->getVariables()->join(' ') : all;
        }
        return "not chosen";
    }

    editor::DictionaryDocument document;
    std::unique_ptr<editor::RunWizard> wizard;

private:
    Q_DISABLE_COPY_MOVE(ShownRunWizard)
};

} // namespace tessel::test
