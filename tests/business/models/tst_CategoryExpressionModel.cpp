#include "business/models/CategoryExpressionModel.h"

#include "tests/business/models/Announcements.h"
#include "tests/business/models/ExpressionListContract.h"
#include "tests/support/LogCatcher.h"

#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, CategoryExpressionModel>);
static_assert(std::is_constructible_v<CategoryExpressionModel, QObject *, QList<ValueLabelElement *> *,
    eEntityShowMode>);
static_assert(std::is_same_v<decltype(std::declval<CategoryExpressionModel>().getData()),
    QList<ValueLabelElement *> *>);
static_assert(std::is_same_v<decltype(std::declval<CategoryExpressionModel>().getItemData(
                                 std::declval<ValueLabelElement *>(), 0)),
    QVariant>);

class tst_CategoryExpressionModel : public ExpressionListContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenExpressionList> open(
        const QStringList &names, int mode, QObject *parent) const override
    {
        return std::make_unique<OpenList<CategoryExpressionModel, ValueLabelElement>>(names, mode, parent);
    }
    std::unique_ptr<OpenExpressionList> openWithoutList() const override
    {
        return std::make_unique<OpenList<CategoryExpressionModel, ValueLabelElement>>();
    }
    QString textOf(const QString &name, int) const override
    {
        return name + QStringLiteral("-label of ") + name;
    }
    QStringList mimeTypes() const override
    {
        return {QStringLiteral("application/x-qabstractitemmodeldatalist")};
    }
    Qt::DropActions dropActions() const override { return Qt::CopyAction; }
    QStringList linesOfARemoval() const override { return {}; }

private slots:
    void codeAndLabelAreJoinedWithoutBlanksInEveryMode_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("text");
        QTest::newRow("both") << "1"
                              << "Urban"
                              << "1-Urban";
        QTest::newRow("no code") << ""
                                 << "Urban"
                                 << "-Urban";
        QTest::newRow("no label") << "1"
                                  << ""
                                  << "1-";
        QTest::newRow("neither") << ""
                                 << ""
                                 << "-";
        QTest::newRow("blanks and hyphens of their own stay") << " 1 "
                                                              << "- a -"
                                                              << " 1 -- a -";
    }
    void codeAndLabelAreJoinedWithoutBlanksInEveryMode()
    {
        QFETCH(QString, code);
        QFETCH(QString, label);
        QFETCH(QString, text);
        ValueLabelElement category;
        category.setValue(code);
        category.setLabel(label);
        QList<ValueLabelElement *> categories = {&category};
        for (const eEntityShowMode mode : {ShowName, ShowLabel, ShowNameAndLabel}) {
            CategoryExpressionModel model(nullptr, &categories, mode);
            QCOMPARE(model.getItemData(&category, 0), QVariant(text));
            QCOMPARE(model.index(0, 0).data(), QVariant(text));
        }
    }

    void nothingCanBeAdded()
    {
        const auto tested = open({"A", "B"}, ShowName, nullptr);
        Announcements announced(tested->model());
        for (const int row : {INT_MIN, -1, 0, 2, INT_MAX}) {
            for (const int count : {INT_MIN, -1, 0, 1, 3, INT_MAX})
                QVERIFY(!tested->model().insertRows(row, count, tested->model().index(0, 0)));
        }
        QCOMPARE(tested->listed(), QStringList({"A", "B"}));
        QCOMPARE(announced.take(), QStringList());
    }
};

QTEST_MAIN(tst_CategoryExpressionModel)
#include "tst_CategoryExpressionModel.moc"
