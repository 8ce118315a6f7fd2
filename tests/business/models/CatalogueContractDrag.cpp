#include "tests/business/models/CatalogueContract.h"

#include "tests/support/LogCatcher.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

namespace tessel::test {
namespace {

const QStringList kThree = {"AGE", "SEX", "P12_JOB"};

/// The names in the transfer objects of \a payload, in order.
QStringList namesIn(const QByteArray &payload)
{
    QStringList names;
    for (const QString &text : textsOf(payload))
        names += QJsonDocument::fromJson(text.toUtf8()).object().value("name").toString("none");
    return names;
}

} // namespace

void CatalogueContract::anEditIsAnnouncedInEveryRoleAndChangesNothing()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    const QString before = catalogue->state();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (int column = 0; column < model.columnCount() + 2; ++column) {
        const QModelIndex index = model.index(1, column);
        for (int role = -1; role <= Qt::UserRole + 2; ++role) {
            changed.clear();
            QVERIFY(model.setData(index, 7, role));
            QCOMPARE(changed.count(), 1);
            QCOMPARE(changed.at(0).at(0).toModelIndex(), index);
            QCOMPARE(changed.at(0).at(1).toModelIndex(), index);
            QCOMPARE(changed.at(0).at(2).value<QVector<int>>(), QVector<int>());
        }
        QCOMPARE(catalogue->state(), before);
    }
    QVERIFY(model.setData(model.index(0, 0), QVariant()));
    QVERIFY(model.setData(model.index(0, 0), "NEW"));
    QCOMPARE(catalogue->state(), before);
}

void CatalogueContract::anEditOfNoItemIsRefusedAndNotAnnounced()
{
    const std::unique_ptr<Catalogue> catalogue = open({"AGE", QString()});
    const std::unique_ptr<Catalogue> other = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy changedThere(&other->model(), &QAbstractItemModel::dataChanged);
    for (const QModelIndex &index : {QModelIndex(), model.index(1, 0), catalogue->made(0, 0, -1),
             catalogue->made(-1, 0, 0), catalogue->made(0, -1, 0), other->model().index(0, 0)}) {
        for (int role = 0; role <= Qt::UserRole; ++role)
            QVERIFY(!model.setData(index, "NEW", role));
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(changedThere.count(), 0);
}

void CatalogueContract::everyRowCanBeDraggedAndDroppedOnAndNoneEdited()
{
    const std::unique_ptr<Catalogue> catalogue = open({"AGE", QString()});
    QAbstractItemModel &model = catalogue->model();
    const Qt::ItemFlags expected =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < model.columnCount() + 2; ++column)
            QCOMPARE(model.flags(model.index(row, column)), expected);
    }
    // The room below the last row.
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::ItemIsDropEnabled));
}

void CatalogueContract::dragsCopyOrMoveOneFormat()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    QCOMPARE(model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    QCOMPARE(model.supportedDragActions(), Qt::CopyAction | Qt::MoveAction);
    QCOMPARE(model.mimeTypes(), QStringList("application/vnd.text.list"));
}

void CatalogueContract::aDropChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("what it dragged out itself") << "AGE";
    QTest::newRow("letters of another alphabet") << QString::fromUtf8(u8"年齢");
    // What reads numbers where texts stand would find huge and negative ones.
    QTest::newRow("all bits set") << QString(401, QChar(0xFFFF));
    QTest::newRow("the highest bit set") << QString(402, QChar(0x8080));
}
void CatalogueContract::aDropChangesNothing()
{
    QFETCH(QString, name);
    const std::unique_ptr<Catalogue> catalogue = open({name, "SEX"});
    QAbstractItemModel &model = catalogue->model();
    const QString before = catalogue->state();
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0), model.index(1, 0)}));
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    LogCatcher log;
    for (const QModelIndex &parent : {QModelIndex(), model.index(0, 0)}) {
        for (const Qt::DropAction action : {Qt::CopyAction, Qt::MoveAction, Qt::IgnoreAction}) {
            for (int row = -1; row < 3; ++row)
                QVERIFY(!model.dropMimeData(data.get(), action, row, row < 0 ? -1 : 0, parent));
        }
    }
    // Bytes of another program under the same name: Qt's own reading of them could throw.
    QMimeData foreign;
    foreign.setData("application/vnd.text.list", QByteArray(4096, '\x7f'));
    QVERIFY(!model.dropMimeData(&foreign, Qt::CopyAction, 0, 0, QModelIndex()));
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(catalogue->state(), before);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(removed.count(), 0);
}

void CatalogueContract::everyCellIsOneTextInTheOrderOfTheIndexes()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    QModelIndexList indexes;
    QStringList expected;
    for (const int row : {2, 0, 1, 2}) {
        for (int column = model.columnCount() - 1; column >= 0; --column) {
            indexes += model.index(row, column);
            expected += kThree.at(row);
        }
    }
    QCOMPARE(namesIn(payloadOf(model, indexes)), expected);

    // All cells of a row carry the same, to the byte.
    const QStringList texts = textsOf(payloadOf(model, indexes));
    for (int i = 1; i < model.columnCount(); ++i)
        QCOMPARE(texts.at(i), texts.at(0));
    QByteArray joined;
    for (const QModelIndex &index : indexes)
        joined += payloadOf(model, {index});
    QCOMPARE(payloadOf(model, indexes), joined);
}

void CatalogueContract::aColumnThatDoesNotExistStillCarriesItsItem()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    QCOMPARE(payloadOf(model, {model.index(1, 77)}), payloadOf(model, {model.index(1, 0)}));
}

void CatalogueContract::whatHasNoItemIsLeftOutOfTheDrag()
{
    const std::unique_ptr<Catalogue> catalogue = open({"AGE", QString(), "SEX"});
    const std::unique_ptr<Catalogue> other = open({"THERE"});
    QAbstractItemModel &model = catalogue->model();
    QStandardItemModel stranger(1, 1);
    const QModelIndexList indexes = {QModelIndex(), model.index(2, 0), catalogue->made(-1, 0, 0),
        catalogue->made(0, -1, 0), model.index(1, 0), other->model().index(0, 0), stranger.index(0, 0),
        catalogue->made(0, 0, -1), model.index(3, 0), model.index(0, 0), QModelIndex()};
    QCOMPARE(namesIn(payloadOf(model, indexes)), QStringList({"SEX", "AGE"}));
}

void CatalogueContract::aDragOfNothingStillHasItsFormat()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    for (const QModelIndexList &indexes : {QModelIndexList(), QModelIndexList({QModelIndex()}),
             QModelIndexList({QModelIndex(), QModelIndex()})}) {
        const std::unique_ptr<QMimeData> data(model.mimeData(indexes));
        QVERIFY(data);
        QCOMPARE(data->formats(), QStringList("application/vnd.text.list"));
        QVERIFY(data->hasFormat("application/vnd.text.list"));
        QCOMPARE(data->data("application/vnd.text.list"), QByteArray());
    }
}

void CatalogueContract::everyDragIsANewObjectOfNobody()
{
    const std::unique_ptr<Catalogue> catalogue = open(kThree);
    QAbstractItemModel &model = catalogue->model();
    const std::unique_ptr<QMimeData> first(model.mimeData({model.index(0, 0)}));
    const std::unique_ptr<QMimeData> second(model.mimeData({model.index(0, 0)}));
    QVERIFY(first != second);
    QVERIFY(!first->parent());
    QCOMPARE(first->formats(), QStringList("application/vnd.text.list"));
    QCOMPARE(first->data(transferFormat()), second->data(transferFormat()));
}

void CatalogueContract::aDragOutlivesItsCatalogue()
{
    std::unique_ptr<QMimeData> data;
    {
        const std::unique_ptr<Catalogue> catalogue = open(kThree);
        data.reset(catalogue->model().mimeData({catalogue->model().index(1, 0)}));
    }
    QCOMPARE(namesIn(data->data(transferFormat())), QStringList("SEX"));
}

void CatalogueContract::namesAreCarriedWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    const auto same = [](const char *tag, const QString &name) { QTest::newRow(tag) << name << name; };
    same("no name", "");
    same("blanks", "  AGE ");
    same("markup", "<b>AGE</b> &amp;");
    same("letters of many alphabets", QString::fromUtf8(u8"Año Größe 年齢 возраст"));
    same("beyond the first plane", QString::fromUtf8(u8"😀𐐷"));
    same("line separators", QString(QChar(0x2028)) + QChar(0x2029));
    same("the byte order mark inside", QString("A") + QChar(0xFEFF) + "B");
    same("places for arguments", "%1 %2");
    same("100,000 letters", QString(100'000, QChar(0xF1)));
    QTest::newRow("quotes") << "\"AGE\" \\ /"
                            << "\\\"AGE\\\" \\\\ /";
    QTest::newRow("line ends and tabs") << "A\tB\r\nC"
                                        << "A\\tB\\r\\nC";
    QTest::newRow("other controls") << QString("A") + QChar(1) + QChar(0x1F) << "A\\u0001\\u001f";
    // The text ends at its first NUL byte; in JSON there is none.
    QTest::newRow("a NUL") << QString("A") + QChar(0) + "B"
                           << "A\\u0000B";
    QTest::newRow("a NUL in front") << QString(QChar(0)) + "B"
                                    << "\\u0000B";
    // No form of UTF-8 holds them; they are written as numbers.
    QTest::newRow("half a surrogate pair") << QString("A") + QChar(0xD800) + "B"
                                           << "A\\ud800B";
    QTest::newRow("the other half") << QString("A") + QChar(0xDC00) + "B"
                                    << "A\\udc00B";
    QTest::newRow("half a pair at the end") << QString("A") + QChar(0xD800) << "A\\ud800";
}
void CatalogueContract::namesAreCarriedWhole()
{
    QFETCH(QString, name);
    QFETCH(QString, written);
    const std::unique_ptr<Catalogue> catalogue = open({name, "NEXT"});
    QAbstractItemModel &model = catalogue->model();
    const QStringList texts = textsOf(payloadOf(model, {model.index(0, 0), model.index(1, 0)}));
    QCOMPARE(texts.size(), 2);
    QVERIFY2(texts.at(0).contains(QStringLiteral("    \"name\": \"%1\",\n").arg(written)),
        qPrintable(texts.at(0).left(1000)));
    QCOMPARE(namesIn(payloadOf(model, {model.index(0, 0)})), QStringList(name));
    QVERIFY2(texts.at(0).endsWith("\n}\n"), qPrintable(texts.at(0).right(100)));
    QVERIFY(texts.at(1).contains("    \"name\": \"NEXT\",\n"));
}

} // namespace tessel::test
