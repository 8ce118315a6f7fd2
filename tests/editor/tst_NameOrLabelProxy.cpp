#include "editor/NameOrLabelProxy.h"

#include "business/models/DictionaryTreeModel.h"

#include <QtTest>

using namespace tessel::editor;

/// The tree of entities by names or by labels.
class tst_NameOrLabelProxy : public QObject {
    Q_OBJECT

private slots:
    void oneIsShownAndTheOtherIsTheToolTip_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("isLabelShown");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("the name") << "Persons" << false << "PERSON"
                                  << "Persons";
        QTest::newRow("the label") << "Persons" << true << "Persons"
                                   << "PERSON";
        QTest::newRow("the name where there is no label") << "" << true << "PERSON"
                                                          << "";
        QTest::newRow("the name where the label is blank") << "  " << true << "PERSON"
                                                           << "  ";
        QTest::newRow("a label as it is") << " a <b> " << true << " a <b> "
                                          << "PERSON";
    }
    void oneIsShownAndTheOtherIsTheToolTip()
    {
        QFETCH(QString, label);
        QFETCH(bool, isLabelShown);
        TDmEntity root;
        root.setLevel(1);
        root.setName("PERSON");
        root.setLabel(label);
        DictionaryTreeModel model(nullptr, &root);
        NameOrLabelProxy proxy(&root);
        proxy.setSourceModel(&model);
        proxy.setShowsLabels(isLabelShown);
        const QModelIndex index = proxy.index(0, 0);
        QTEST(index.data().toString(), "shown");
        QTEST(index.data(Qt::ToolTipRole).toString(), "toolTip");
        QCOMPARE(index.data(Qt::EditRole).toString(), QString("PERSON"));
        QCOMPARE(index.data(Qt::DecorationRole), QVariant());
        QVERIFY(proxy.setData(index, "HUMAN"));
        QCOMPARE(root.getName(), QString("HUMAN"));
        QCOMPARE(root.getLabel(), label);
    }

    void whatIsNoEntityShowsNothing()
    {
        TDmEntity root;
        root.setLevel(1);
        const NameOrLabelProxy proxy(&root);
        QCOMPARE(proxy.data(QModelIndex()), QVariant());
        QCOMPARE(proxy.data(QModelIndex(), Qt::ToolTipRole), QVariant());
    }
};

QTEST_GUILESS_MAIN(tst_NameOrLabelProxy)
#include "tst_NameOrLabelProxy.moc"
