#include "business/models/dictionaryTreeModelDownload.h"

#include "tests/business/models/EntityTreeContract.h"
#include "tests/business/models/TreeText.h"
#include "tests/support/MessageBoxRobot.h"

#include <QIcon>
#include <QSignalSpy>
#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

static_assert(std::is_base_of_v<QAbstractItemModel, dictionaryTreeModelDownload>);
static_assert(std::is_constructible_v<dictionaryTreeModelDownload, QObject *, TDmEntity *>);
static_assert(std::is_convertible_v<decltype(&dictionaryTreeModelDownload::recorrerStructuraArbol),
    QModelIndex (dictionaryTreeModelDownload::*)(TDmEntity *, TDmEntity *, TDmEntity *) const>);
static_assert(std::is_convertible_v<decltype(&dictionaryTreeModelDownload::getItemData),
    QVariant (dictionaryTreeModelDownload::*)(TDmEntity *, int) const>);

namespace {

// The form that a pixmap keeps on its own.
QImage pixels(const QImage &image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); }

} // namespace

class tst_dictionaryTreeModelDownload : public EntityTreeContract {
    Q_OBJECT

protected:
    std::unique_ptr<OpenEntityTree> open(TDmEntity *root) const override
    {
        return std::make_unique<Open<dictionaryTreeModelDownload>>(root);
    }
    QList<int> answeredRoles() const override { return {Qt::DisplayRole, Qt::EditRole, Qt::CheckStateRole}; }
    Qt::ItemFlags flagsOfAnEntity() const override { return Qt::ItemIsSelectable | Qt::ItemIsEnabled; }

private slots:
    void theModelBelongsToItsParent()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        QObject owner;
        const auto *model = new dictionaryTreeModelDownload(&owner, root.get());
        QCOMPARE(model->QObject::parent(), &owner);
    }

    void theNameIsShownAndOfferedForEditing()
    {
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
        const dictionaryTreeModelDownload model(nullptr, root.get());
        const QModelIndex house = model.index(0, 0, model.index(0, 0));
        QCOMPARE(model.data(house, Qt::DisplayRole), QVariant("HOUSE"));
        QCOMPARE(model.data(house, Qt::EditRole), QVariant("HOUSE"));
    }

    void theCheckMarkIsTheSelectableFlagAndNeverPartial()
    {
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE FARM)");
        const dictionaryTreeModelDownload model(nullptr, root.get());
        const auto state = [&](const char *name) {
            return model.data(
                indexOf(model, find(root.get(), QString::fromLatin1(name))), Qt::CheckStateRole);
        };
        QCOMPARE(state("LAND"), QVariant(Qt::Unchecked));
        find(root.get(), "HOUSE")->setSelectable(true);
        // One of two children: the parent still tells of itself alone.
        QCOMPARE(state("LAND"), QVariant(Qt::Unchecked));
        QCOMPARE(state("HOUSE"), QVariant(Qt::Checked));
        QCOMPARE(state("FARM"), QVariant(Qt::Unchecked));
        root->setSelectable(true);
        QCOMPARE(state("LAND"), QVariant(Qt::Checked));
        find(root.get(), "HOUSE")->setSelectable(false);
        QCOMPARE(state("HOUSE"), QVariant(Qt::Unchecked));
        QCOMPARE(state("HOUSE").toInt(), int(Qt::Unchecked));
        QCOMPARE(state("LAND").toInt(), int(Qt::Checked));
    }

    void theDeletionMarkIsTheProjectsOwnPicture()
    {
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
        const dictionaryTreeModelDownload model(nullptr, root.get());
        const QModelIndex house = model.index(0, 0, model.index(0, 0));
        root->setCheckDelete(true);
        QVERIFY(!model.data(house, Qt::DecorationRole).isValid());
        root->getChildren()->first()->setCheckDelete(true);

        const QVariant decoration = model.data(house, Qt::DecorationRole);
        QCOMPARE(decoration.userType(), int(QMetaType::QIcon));
        const QIcon icon = decoration.value<QIcon>();
        QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(48, 48)}));
        const QImage drawing =
            pixels(QImage(TESSEL_SOURCE_DIR "/resources/icons/48px-numberplaceholder.png"));
        QCOMPARE(drawing.size(), QSize(48, 48));
        QCOMPARE(pixels(icon.pixmap(48, 48).toImage()), drawing);

        root->getChildren()->first()->setCheckDelete(false);
        QVERIFY(!model.data(house, Qt::DecorationRole).isValid());
    }

    void marksAreShownInTheFirstColumnOnly()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        root->setCheckDelete(true);
        root->setSelectable(true);
        const Open<dictionaryTreeModelDownload> model(root.get());
        for (const int role : {Qt::DecorationRole, Qt::CheckStateRole}) {
            QVERIFY(model.data(model.made(0, 0, root.get()), role).isValid());
            QVERIFY(!model.data(model.made(0, 1, root.get()), role).isValid());
            QVERIFY(!model.data(model.made(0, INT_MAX, root.get()), role).isValid());
        }
    }

    void anyTextIsStoredTrimmedAndUnjudged_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("stored");
        QTest::newRow("a name") << QVariant("NEW") << "NEW";
        QTest::newRow("blanks around it") << QVariant(" \tNEW NAME\n ") << "NEW NAME";
        QTest::newRow("blanks alone") << QVariant("   ") << "";
        QTest::newRow("nothing") << QVariant() << "";
        QTest::newRow("a number") << QVariant(5) << "5";
        QTest::newRow("a name in use") << QVariant("LAND") << "LAND";
        QTest::newRow("no name") << QVariant("<b>\"\\") << "<b>\"\\";
        QTest::newRow("51 characters") << QVariant(QString(51, 'x')) << QString(51, 'x');
        QTest::newRow("100,000 characters") << QVariant(QString(100'000, 'x')) << QString(100'000, 'x');
    }
    void anyTextIsStoredTrimmedAndUnjudged()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, stored);
        const auto root = treeFrom<TDmEntity>("LAND(HOUSE)");
        dictionaryTreeModelDownload model(nullptr, root.get());
        MessageBoxRobot robot;
        QVERIFY(model.setData(model.index(0, 0, model.index(0, 0)), value));
        QCOMPARE(root->getChildren()->first()->getName(), stored);
        QCOMPARE(root->getName(), QString("LAND"));
        QCOMPARE(robot.texts(), QStringList());
    }

    void everyRoleIsAnnouncedAndOnlyOneStores()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        dictionaryTreeModelDownload model(nullptr, root.get());
        const QModelIndex top = model.index(0, 0);
        for (int role = 0; role <= Qt::UserRole + 2; ++role) {
            root->setName("LAND");
            QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
            QVERIFY(model.setData(top, "NEW", role));
            QCOMPARE(root->getName(), QString(role == Qt::EditRole ? "NEW" : "LAND"));
            QCOMPARE(changed.count(), 1);
            QCOMPARE(changed.at(0).at(0).toModelIndex(), top);
            QCOMPARE(changed.at(0).at(1).toModelIndex(), top);
            QCOMPARE(changed.at(0).at(2).value<QVector<int>>(), QVector<int>());
        }
    }

    void anEditOfTheCheckMarkChangesNothingAndIsAnsweredWithTrue()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        dictionaryTreeModelDownload model(nullptr, root.get());
        QVERIFY(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(root->getSelectable(), false);
        QCOMPARE(root->getName(), QString("LAND"));
        root->setSelectable(true);
        QVERIFY(model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(root->getSelectable(), true);
    }

    void anotherColumnIsAnnouncedAndNotStored()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        Open<dictionaryTreeModelDownload> model(root.get());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(model.setData(model.made(0, 1, root.get()), "NEW"));
        QCOMPARE(root->getName(), QString("LAND"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex().column(), 1);
    }

    void indexesWithoutEntityAreRefusedAndNotAnnounced()
    {
        const auto root = treeFrom<TDmEntity>("LAND");
        Open<dictionaryTreeModelDownload> model(root.get());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        for (const QModelIndex &index : {QModelIndex(), model.made(0, 0, nullptr),
                 model.made(-1, 0, root.get()), model.made(0, -1, root.get())})
            QVERIFY(!model.setData(index, "NEW"));
        QCOMPARE(root->getName(), QString("LAND"));
        QCOMPARE(changed.count(), 0);
    }
};

QTEST_MAIN(tst_dictionaryTreeModelDownload)
#include "tst_dictionaryTreeModelDownload.moc"
