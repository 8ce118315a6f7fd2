#pragma once

#include "business/models/VariableModel.h"
#include "business/models/VariableModelDownStep4.h"
#include "business/models/VariableModelSplitStep3.h"
#include "business/models/VariablesDatasetProxyModel.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "business/models/VariablesProxyModel.h"
#include "business/models/VariablesProxyModelDownStep4.h"
#include "model/TDmEntity.h"

#include "tests/business/models/VariableRows.h"
#include "tests/support/LogCatcher.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QtTest>

#include <memory>

namespace tessel::test {

/// A table view with its options in reach.
class Table : public QTableView {
public:
    QRect boxOf(const QModelIndex &index) const
    {
        QStyleOptionViewItem option = viewOptions();
        option.rect = visualRect(index);
        option.features |= QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
    }
};

/// One of the lists below one of the proxies, in a view with a search field, as the run wizard shows them.
class ShownVariables {
public:
    ShownVariables(const QByteArray &list, const QByteArray &proxyKind)
    {
        entity.setRefCode("CODE");
        entity.setRefLabel("NAME");
        entity.setWeightVariable("WEIGHT");
        variables.add("CODE", "Code");
        variables.add("SEX", "Sex of person", "P2", "Base", 9);
        variables.add("AGE", "Age of person", "P1", "Base", 10);
        variables.add("NAME", "Name");
        variables.add("JOB", "z work@a", "P4", "Work", 100);
        variables.add("WEIGHT", "Weight");
        variables.add("WAGE", "a work@b", "P3", "Work", 2)->setLevel(2);
        if (list == "VariableModel")
            model = std::make_unique<VariableModel>(nullptr, &entity, &variables.list);
        else if (list == "VariableModelSplitStep3")
            model = std::make_unique<VariableModelSplitStep3>(nullptr, &entity, &variables.list);
        else
            model = std::make_unique<VariableModelDownStep4>(nullptr, &entity, &variables.list);
        if (proxyKind == "VariablesProxyModel")
            proxy = std::make_unique<VariablesProxyModel>(nullptr);
        else if (proxyKind == "VariablesDatasetProxyModel")
            proxy = std::make_unique<VariablesDatasetProxyModel>(nullptr);
        else if (proxyKind == "VariablesDictionaryProxyModel")
            proxy = std::make_unique<VariablesDictionaryProxyModel>(nullptr);
        else
            proxy = std::make_unique<VariablesProxyModelDownStep4>(nullptr);
        proxy->setSourceModel(model.get());
        QObject::connect(&search, &QLineEdit::textChanged, proxy.get(),
            [this](const QString &text) { proxy->setFilterRegExp(QRegExp(text)); });
        view.setModel(proxy.get());
        view.resize(700, 400);
        view.show();
        search.show();
    }

    QStringList names() const { return columnTexts(*proxy); }

    QModelIndex indexOf(const QString &name) const { return proxy->index(names().indexOf(name), 0); }

    void click(const QPoint &place)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void clickBox(const QString &name) { click(view.boxOf(indexOf(name)).center()); }

    void clickHeader(int column)
    {
        const QHeaderView *header = view.horizontalHeader();
        const QPoint place(
            header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    void type(const QString &pattern)
    {
        search.clear();
        QTest::keyClicks(&search, pattern);
    }

    /// The names of the ticked variables, of all that there are.
    QStringList ticked() const
    {
        QStringList texts;
        for (const TDmVariable *variable : variables.list) {
            if (variable->getChecked())
                texts += variable->getName();
        }
        return texts;
    }

    /// What was written to the log, apart from what the platform of the tests says of itself.
    QStringList warnings() const
    {
        QStringList lines = log.messages();
        lines.removeAll("warning default: This plugin does not support propagateSizeHints()");
        return lines;
    }

    LogCatcher log;
    TDmEntity entity;
    Variables variables;
    std::unique_ptr<QAbstractItemModel> model;
    std::unique_ptr<QSortFilterProxyModel> proxy;
    Table view;
    QLineEdit search;

private:
    Q_DISABLE_COPY_MOVE(ShownVariables)
};

} // namespace tessel::test
