#include "business/models/VariableDiccionaryModel.h"

#include "tests/business/models/ContextTranslator.h"
#include "tests/business/models/VariableTable.h"

#include <QMimeData>
#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, VariableDiccionaryModel>);
static_assert(std::is_constructible_v<VariableDiccionaryModel, QObject *, TDmEntity *, TDmEntity *>);
static_assert(std::is_convertible_v<decltype(&VariableDiccionaryModel::getItemData),
    QVariant (VariableDiccionaryModel::*)(TDmVariable *, int) const>);
static_assert(std::is_same_v<decltype(&VariableDiccionaryModel::updateEntityVariables),
    void (VariableDiccionaryModel::*)(QList<TDmVariable *> *)>);
static_assert(std::is_same_v<decltype(&VariableDiccionaryModel::showDuplicatedNamesWarning),
    void (VariableDiccionaryModel::*)()>);
static_assert(std::is_same_v<decltype(&VariableDiccionaryModel::signalVariablesModified),
    void (VariableDiccionaryModel::*)()>);

namespace {

const QStringList kPeople = {"AGE|EDAD|Age in years|PERSONS", "SEX|SEXO|Sex|PERSONS", "INCOME|||"};

QString rowText(const QAbstractItemModel &model, int row, int role = Qt::DisplayRole)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts += model.data(model.index(row, column), role).toString();
    return texts.join(QLatin1Char('|'));
}

} // namespace

class tst_VariableDiccionaryModel : public QObject {
    Q_OBJECT

private slots:
    void theModelBelongsToItsParentAndTheVariablesToTheEntity()
    {
        VariableTable table(kPeople);
        auto owner = std::make_unique<QObject>();
        const auto *model = new VariableDiccionaryModel(owner.get(), table.house, table.root.get());
        QCOMPARE(model->QObject::parent(), owner.get());
        QCOMPARE(model->rowCount(), 3);
        owner.reset();
        QCOMPARE(namesOf(*table.house), QString("AGE SEX INCOME"));
    }

    void rowsAreTheVariablesOfTheEntityAloneInItsOrder()
    {
        VariableTable table(kPeople);
        table.root->addVariables(newVariable("AREA"));
        table.entity("ROOM")->addVariables(newVariable("FLOOR"));
        const VariableDiccionaryModel model(nullptr, table.house, table.root.get());
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(rowText(model, 0), QString("AGE|EDAD|Age in years|PERSONS|0000"));
        QCOMPARE(rowText(model, 1), QString("SEX|SEXO|Sex|PERSONS|0000"));
        QCOMPARE(rowText(model, 2), QString("INCOME||||0000"));
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(rowText(model, row, Qt::EditRole), rowText(model, row));
            QCOMPARE(model.index(row, 0).internalPointer(), table.variable(row));
        }
    }

    void indexesHoldTheVariableAndAnyColumn()
    {
        const VariableTable table(kPeople);
        for (const int column : {0, 1, 4, 5, INT_MAX}) {
            const QModelIndex index = table.model.index(1, column);
            QVERIFY(index.isValid());
            QCOMPARE(index.row(), 1);
            QCOMPARE(index.column(), column);
            QCOMPARE(index.internalPointer(), table.variable(1));
            QCOMPARE(index.model(), &table.model);
        }
        QVERIFY(!table.model.index(1, -1).isValid());
    }

    void rowsThatAreNotThereAndRowsBelowARowHaveNoIndex()
    {
        const VariableTable table(kPeople);
        for (const int row : {3, 4, INT_MAX, -1, INT_MIN})
            QVERIFY(!table.model.index(row, 0).isValid());
        QVERIFY(!table.model.index(0, 0, table.model.index(0, 0)).isValid());
        QVERIFY(!table.model.index(0, 0, table.model.index(2, 4)).isValid());
        QVERIFY(!VariableTable(QStringList()).model.index(0, 0).isValid());
    }

    void noIndexHasAParent()
    {
        const VariableTable table(kPeople);
        QVERIFY(!table.model.parent(QModelIndex()).isValid());
        QVERIFY(!table.model.parent(table.model.index(0, 0)).isValid());
        QVERIFY(!table.model.parent(table.model.made(9, 9, table.variable(2))).isValid());
    }

    void countsAreThoseOfTheTableWhateverTheParent()
    {
        const VariableTable table(kPeople);
        for (const QModelIndex &parent :
            {QModelIndex(), table.model.index(0, 0), table.model.index(2, 4), table.model.index(0, 9)}) {
            QCOMPARE(table.model.rowCount(parent), 3);
            QCOMPARE(table.model.columnCount(parent), 5);
        }
        const VariableTable empty((QStringList()));
        QCOMPARE(empty.model.rowCount(), 0);
        QCOMPARE(empty.model.columnCount(), 5);
    }

    void headersNameTheColumns()
    {
        const VariableTable table(kPeople);
        const QStringList names = {"Name", "Alias", "Label", "Group", "Tag"};
        for (int section = 0; section < 5; ++section) {
            QCOMPARE(table.model.headerData(section, Qt::Horizontal), QVariant(names.at(section)));
            for (int role = 0; role <= Qt::UserRole + 2; ++role) {
                QCOMPARE(
                    table.model.headerData(section, Qt::Horizontal, role).isValid(), role == Qt::DisplayRole);
                QVERIFY(!table.model.headerData(section, Qt::Vertical, role).isValid());
            }
        }
        for (const int section : {-1, INT_MIN, 5, INT_MAX}) {
            QVERIFY(!table.model.headerData(section, Qt::Horizontal).isValid());
            QVERIFY(!table.model.headerData(section, Qt::Vertical).isValid());
        }
        const ContextTranslator translator;
        for (int section = 0; section < 5; ++section)
            QCOMPARE(table.model.headerData(section, Qt::Horizontal),
                QVariant("VariableDiccionaryModel: " + names.at(section)));
    }

    void getItemDataShowsAnyVariable()
    {
        const VariableTable table((QStringList()));
        const std::unique_ptr<TDmVariable> variable(newVariable(" <b>N</b> |\tA\n|L\"\\|G"));
        variable->setTag(7);
        QCOMPARE(table.model.getItemData(variable.get(), 0), QVariant(" <b>N</b> "));
        QCOMPARE(table.model.getItemData(variable.get(), 1), QVariant("\tA\n"));
        QCOMPARE(table.model.getItemData(variable.get(), 2), QVariant("L\"\\"));
        QCOMPARE(table.model.getItemData(variable.get(), 3), QVariant("G"));
        QCOMPARE(table.model.getItemData(variable.get(), 4), QVariant("0007"));
        for (const int column : {-1, INT_MIN, 5, INT_MAX})
            QVERIFY(!table.model.getItemData(variable.get(), column).isValid());
        for (int column = 0; column < 5; ++column)
            QVERIFY(!table.model.getItemData(nullptr, column).isValid());
    }

    void theTagHasFourDigitsOrMore_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << 0 << "0000";
        QTest::newRow("one digit") << 7 << "0007";
        QTest::newRow("three digits") << 999 << "0999";
        QTest::newRow("four digits") << 1000 << "1000";
        QTest::newRow("five digits are not cut") << 12345 << "12345";
        QTest::newRow("the highest") << INT_MAX << "2147483647";
        QTest::newRow("the sign takes a place") << -7 << "-007";
        QTest::newRow("the lowest") << INT_MIN << "-2147483648";
    }
    void theTagHasFourDigitsOrMore()
    {
        QFETCH(int, tag);
        QFETCH(QString, text);
        const VariableTable table(kPeople);
        table.variable(1)->setTag(tag);
        const QModelIndex cell = table.model.index(1, 4);
        QCOMPARE(table.model.data(cell, Qt::DisplayRole), QVariant(text));
        QCOMPARE(table.model.data(cell, Qt::EditRole), QVariant(text));
        QCOMPARE(table.model.getItemData(table.variable(1), 4), QVariant(text));
    }

    void textsHaveTwoRolesAndTheNameHasAPicture()
    {
        const VariableTable table(kPeople);
        for (const int column : {0, 1, 2, 3, 4, 5, INT_MAX}) {
            QList<int> roles;
            for (int role = -1; role <= Qt::UserRole + 2; ++role) {
                if (table.model.data(table.model.index(0, column), role).isValid())
                    roles += role;
                QVERIFY(!table.model.data(QModelIndex(), role).isValid());
            }
            QList<int> expected;
            if (column == 0)
                expected += Qt::DisplayRole, expected += Qt::DecorationRole, expected += Qt::EditRole;
            else if (column < 5)
                expected += Qt::DisplayRole, expected += Qt::EditRole;
            QCOMPARE(roles, expected);
        }
        QCOMPARE(table.model.data(table.model.index(1, 2)), QVariant("Sex"));
    }

    void cellsOfAnotherModelShowNothing()
    {
        const VariableTable table(kPeople);
        const VariableTable other(kPeople);
        for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::DecorationRole})
            QVERIFY(!table.model.data(other.model.index(0, 0), role).isValid());
    }

    void aRowWithoutVariableShowsNothing()
    {
        const VariableTable table = VariableTable::holding({newVariable("AGE"), nullptr, newVariable("SEX")});
        QCOMPARE(table.model.rowCount(), 3);
        QCOMPARE(rowText(table.model, 0), QString("AGE||||0000"));
        QCOMPARE(rowText(table.model, 1), QString("||||"));
        QCOMPARE(rowText(table.model, 2), QString("SEX||||0000"));
        for (int role = 0; role <= Qt::UserRole + 2; ++role)
            QVERIFY(!table.model.data(table.model.index(1, 0), role).isValid());
    }

    void withoutEntityThereAreNoRows()
    {
        const VariableTable table(kPeople);
        const VariableDiccionaryModel model(nullptr, nullptr, table.root.get());
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.columnCount(), 5);
        QVERIFY(!model.index(0, 0).isValid());
        QCOMPARE(VariableDiccionaryModel(nullptr, table.house, nullptr).rowCount(), 3);
    }

    void rowsStayThoseOfTheBeginning()
    {
        const VariableTable table(kPeople);
        table.house->addVariables(newVariable("LATER"));
        QCOMPARE(table.model.rowCount(), 3);
        const std::unique_ptr<TDmVariable> unlinked(table.house->getVariables()->takeFirst());
        QCOMPARE(table.model.rowCount(), 3);
        QCOMPARE(rowText(table.model, 0), QString("AGE|EDAD|Age in years|PERSONS|0000"));
        QCOMPARE(VariableDiccionaryModel(nullptr, table.house, table.root.get()).rowCount(), 3);
    }

    void whatChangesInAVariableIsShownAtOnce()
    {
        const VariableTable table(kPeople);
        TDmVariable *variable = table.variable(0);
        variable->setName("OLD");
        variable->setTag(31);
        QCOMPARE(rowText(table.model, 0), QString("OLD|EDAD|Age in years|PERSONS|0031"));
    }

    void everyCellCanBeEditedAndDraggedAndDroppedOn()
    {
        const VariableTable table = VariableTable::holding({newVariable("AGE"), nullptr});
        const Qt::ItemFlags all = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable
            | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
        for (int row = 0; row < 2; ++row) {
            for (const int column : {0, 1, 2, 3, 4, 5})
                QCOMPARE(table.model.flags(table.model.index(row, column)), all);
        }
    }

    void belowTheLastRowADropIsAccepted()
    {
        const VariableTable table(kPeople);
        QCOMPARE(table.model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsDropEnabled));
        QCOMPARE(
            VariableTable(QStringList()).model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsDropEnabled));
    }

    void rowsAreMarkedDraggableButGiveNoDragData()
    {
        const VariableTable table(kPeople);
        QCOMPARE(table.model.mimeData({}), nullptr);
        QCOMPARE(table.model.mimeData({QModelIndex()}), nullptr);
        QCOMPARE(table.model.mimeData({table.model.index(0, 0), table.model.index(1, 4)}), nullptr);
        QCOMPARE(table.model.mimeTypes(), QStringList("application/vnd.text.list"));
        QCOMPARE(table.model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    }
};

QTEST_MAIN(tst_VariableDiccionaryModel)
#include "tst_VariableDiccionaryModel.moc"
