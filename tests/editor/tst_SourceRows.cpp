#include "business/models/CsvPropertiesModel.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/LookupPropertiesModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "editor/views/SearchLine.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include "tests/editor/SourceFixtures.h"
#include "tests/support/LogCatcher.h"

#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

const char *const kPayload = "application/vnd.text.list";

/// What the catalogue of the dataset fields \a texts writes for the cells of \a rows, in that order.
QByteArray datasetPayload(const QStringList &texts, const QList<int> &rows)
{
    const auto fields = fieldsOf(texts);
    QList<TDmSourceField *> list;
    for (const auto &field : fields)
        list.append(field.get());
    const DatasetPropertiesFieldsModel model(nullptr, &list, QStringLiteral("*"));
    QModelIndexList cells;
    for (const int row : rows) {
        for (int column = 0; column < 3; ++column)
            cells.append(model.index(row, column));
    }
    return std::unique_ptr<QMimeData>(model.mimeData(cells))->data(kPayload);
}

QByteArray csvPayload(const QStringList &names)
{
    std::vector<TDmSourceField> fields(std::size_t(names.size()));
    QList<TDmSourceField *> list;
    for (int i = 0; i < names.size(); ++i) {
        fields[std::size_t(i)].name = names.at(i);
        list.append(&fields[std::size_t(i)]);
    }
    const CsvPropertiesModel model(nullptr, &list);
    QModelIndexList cells;
    for (int row = 0; row < names.size(); ++row)
        cells.append(model.index(row, 0));
    return std::unique_ptr<QMimeData>(model.mimeData(cells))->data(kPayload);
}

/// Remembers what a pane wants to be added.
class Receiver {
public:
    explicit Receiver(SourcesPane &pane)
    {
        QObject::connect(&pane, &SourcesPane::addRequested, &pane, [this](const QMimeData *data) {
            formats = data->formats();
            payloads.append(data->data(kPayload));
            last = const_cast<QMimeData *>(data);
        });
    }

    QStringList formats;
    QList<QByteArray> payloads;
    QPointer<QMimeData> last;
};

QStringList namesOf(TDmEntity &entity)
{
    QStringList names;
    for (TDmVariable *variable : qAsConst(*entity.getVariables()))
        names.append(variable->getName());
    return names;
}

} // namespace

class tst_SourceRows : public QObject {
    Q_OBJECT

private:
    const QStringList people{"SEX=Sex", "AGE=Age in years", "KIN=Kinship", "LIT=Can read (and write)"};
    LogCatcher *log = nullptr;

private slots:
    // The catalogues write every category to the debug log.
    void init() { log = new LogCatcher; }
    void cleanup() { delete log; }

    // The buttons that clear filters fade in and out by animations that belong to nobody and free themselves.
    void cleanupTestCase() { QTest::qWait(200); }

    void theFilterKeepsWhatMatches_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("count");
        QTest::newRow("nothing") << "" << QStringList{"SEX", "AGE", "KIN", "LIT"} << "";
        QTest::newRow("blanks") << "  " << QStringList{"SEX", "AGE", "KIN", "LIT"} << "";
        QTest::newRow("a part of a name") << "KI" << QStringList{"KIN"} << "1 of 4";
        QTest::newRow("letter case does not count") << "ki" << QStringList{"KIN"} << "1 of 4";
        QTest::newRow("a part of a label") << "years" << QStringList{"AGE"} << "1 of 4";
        QTest::newRow("a tag") << "3" << QStringList{"KIN"} << "1 of 4";
        QTest::newRow("blanks around the pattern") << " SEX " << QStringList{"SEX"} << "1 of 4";
        QTest::newRow("a regular expression") << "^(sex|lit)$" << QStringList{"SEX", "LIT"} << "2 of 4";
        QTest::newRow("a quoted bracket") << "\\(and" << QStringList{"LIT"} << "1 of 4";
        QTest::newRow("what nothing matches") << "xyz" << QStringList() << "0 of 4";
    }

    void theFilterKeepsWhatMatches()
    {
        QFETCH(QString, pattern);
        SourcesPane pane;
        showDataset(pane, people, QStringLiteral("people.sav"));
        pane.show();
        auto *filter = childOf<QLineEdit>(pane, "datasetFilter");
        QTest::keyClicks(filter, pattern);
        const auto *table = childOf<SourceTable>(pane, "datasetTable");
        QStringList names;
        for (const QString &row : rowsOf(*table))
            names.append(row.section(QLatin1Char('|'), 0, 0));
        QTEST(names, "names");
        const auto *count = childOf<QLabel>(pane, "datasetCount");
        QTEST(count->text(), "count");
        QCOMPARE(count->isVisible(), !count->text().isEmpty());
        QCOMPARE(table->emptyText(), QString("No row matches the filter."));
    }

    void anAnchoredPatternLooksAtTheOnlyColumn()
    {
        const SourceFiles files;
        SourcesPane pane;
        QVERIFY(pane.openCsv(files.make("a.csv", "ABC,DEF,CAB\n")));
        QTest::keyClicks(childOf<QLineEdit>(pane, "csvFilter"), QStringLiteral("^[a-c]*$"));
        QCOMPARE(rowsOf(*childOf<SourceTable>(pane, "csvTable")), (QStringList{"ABC", "CAB"}));
        QCOMPARE(childOf<QLabel>(pane, "csvCount")->text(), QString("2 of 3"));
    }

    void lookupsAreFilteredByIdAndLabel()
    {
        const SourceFiles files;
        SourcesPane pane;
        QVERIFY(pane.openLookups(
            files.make("a.json", R"([{"id": "OCC", "label": "Trades"}, {"id": "REL", "label": "Faith"}])")));
        QTest::keyClicks(childOf<QLineEdit>(pane, "lookupFilter"), QStringLiteral("c-tr"));
        QCOMPARE(rowsOf(*childOf<SourceTable>(pane, "lookupTable")), (QStringList{"OCC-Trades"}));
        QCOMPARE(childOf<QLabel>(pane, "lookupCount")->text(), QString("1 of 2"));
    }

    void aBadPatternIsRedAndMatchesNothing()
    {
        SourcesPane pane;
        showDataset(pane, people, QStringLiteral("people.sav"));
        auto *filter = childOf<SearchLine>(pane, "datasetFilter");
        const auto *table = childOf<SourceTable>(pane, "datasetTable");
        const auto *count = childOf<QLabel>(pane, "datasetCount");
        const QColor plain = filter->palette().color(QPalette::Text);
        const QString hint = filter->toolTip();

        QTest::keyClicks(filter, QStringLiteral("e"));
        QCOMPARE(count->text(), QString("3 of 4"));
        QTest::keyClicks(filter, QStringLiteral("(x"));
        QVERIFY(filter->isBad());
        QCOMPARE(filter->palette().color(QPalette::Text), QColor(0xb3, 0, 0));
        QCOMPARE(filter->toolTip(), QString("This is no pattern: unexpected end."));
        QCOMPARE(filter->accessibleDescription(), filter->toolTip());
        QCOMPARE(count->text(), QString("0 of 4"));
        QCOMPARE(rowsOf(*table).size(), 0);

        QTest::keyClicks(filter, QStringLiteral("|q)"));
        QVERIFY(!filter->isBad());
        QCOMPARE(filter->palette().color(QPalette::Text), plain);
        QCOMPARE(filter->toolTip(), hint);
        QCOMPARE(filter->accessibleDescription(), QString());
        QCOMPARE(count->text(), QString("1 of 4"));
    }

    void redIsLightOnDark()
    {
        const QPalette before = QApplication::palette();
        QPalette dark = before;
        dark.setColor(QPalette::Base, Qt::black);
        QApplication::setPalette(dark);
        SearchLine filter;
        QTest::keyClicks(&filter, QStringLiteral("["));
        const QColor color = filter.palette().color(QPalette::Text);
        QApplication::setPalette(before);
        QCOMPARE(color, QColor(0xff, 0x7b, 0x72));
    }

    void keysLeadFromTheFilterToTheRows()
    {
        SourcesPane pane;
        showDataset(pane, people, QStringLiteral("people.sav"));
        pane.show();
        QVERIFY(QTest::qWaitForWindowActive(&pane));
        auto *filter = childOf<QLineEdit>(pane, "datasetFilter");
        const auto *table = childOf<SourceTable>(pane, "datasetTable");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down, Qt::Key_Escape}) {
            pane.focusFilter();
            QVERIFY(filter->hasFocus());
            QTest::keyClick(filter, key);
            QVERIFY(table->hasFocus());
        }
        pane.focusFilter();
        QTest::keyClicks(filter, QStringLiteral("kin"));
        QTest::keyClick(filter, Qt::Key_Escape);
        QCOMPARE(filter->text(), QString());
        QVERIFY(filter->hasFocus());
        QCOMPARE(rowsOf(*table).size(), 4);
        QTest::keyClicks(filter, QStringLiteral("age"));
        QTest::keyClick(filter, Qt::Key_Down, Qt::ControlModifier);
        pane.focusFilter();
        QCOMPARE(filter->selectedText(), QString("age"));
    }

    void addedRowsAreWhatTheCatalogueWrites()
    {
        SourcesPane pane;
        Receiver receiver(pane);
        pane.resize(900, 300);
        showDataset(pane, people, QStringLiteral("people.sav"));
        pane.show();
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        auto *add = childOf<QPushButton>(pane, "datasetAdd");
        QVERIFY(!add->isEnabled());
        QTest::mouseClick(add, Qt::LeftButton);
        QCOMPARE(receiver.payloads.size(), 0);

        clickRow(*table, 1);
        QVERIFY(add->isEnabled());
        QTest::mouseClick(add, Qt::LeftButton);
        QCOMPARE(receiver.formats, QStringList{kPayload});
        QCOMPARE(receiver.payloads, QList<QByteArray>{datasetPayload(people, {1})});
        QVERIFY(receiver.last.isNull());

        clickRow(*table, 3, Qt::ControlModifier);
        clickRow(*table, 0, Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(receiver.payloads.size(), 2);
        QCOMPARE(receiver.payloads.last(), datasetPayload(people, {0, 1, 3}));
        QTest::keyClick(table, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(receiver.payloads.size(), 3);

        const QSignalSpy chosen(table, &SourceTable::rowsChosen);
        table->clearSelection();
        QVERIFY(!add->isEnabled());
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(chosen.count(), 0);
        QCOMPARE(receiver.payloads.size(), 3);
    }

    void aDoubleClickAddsTheRow()
    {
        SourcesPane pane;
        Receiver receiver(pane);
        pane.resize(900, 300);
        showDataset(pane, people, QStringLiteral("people.sav"));
        pane.show();
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        const QPoint place = table->visualRect(table->model()->index(2, 1)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(receiver.payloads, QList<QByteArray>{datasetPayload(people, {2})});

        const QPoint below(10, table->visualRect(table->model()->index(3, 0)).bottom() + 20);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, below);
        QTest::mouseDClick(table->viewport(), Qt::RightButton, Qt::NoModifier, place);
        QCOMPARE(receiver.payloads.size(), 1);
    }

    void filteredAndSortedRowsComeAsTheyAreSeen()
    {
        SourcesPane pane;
        Receiver receiver(pane);
        pane.resize(900, 300);
        showDataset(pane, people, QStringLiteral("people.sav"));
        pane.show();
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        QHeaderView *header = table->horizontalHeader();
        const QPoint name(header->sectionPosition(0) + 10, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, name);
        if (header->sortIndicatorOrder() == Qt::DescendingOrder)
            QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, name);
        QTest::keyClicks(childOf<QLineEdit>(pane, "datasetFilter"), QStringLiteral("e"));
        QCOMPARE(
            rowsOf(*table), (QStringList{"AGE|Age in years|2", "LIT|Can read (and write)|4", "SEX|Sex|1"}));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(receiver.payloads, QList<QByteArray>{datasetPayload(people, {1, 3, 0})});
        const std::unique_ptr<QMimeData> dragged(table->model()->mimeData(table->selectedIndexes()));
        QCOMPARE(dragged->data(kPayload), receiver.payloads.first());
        QCOMPARE(dragged->formats(), QStringList{kPayload});
    }

    void csvFieldsAndLookupsComeAsTheirCataloguesWriteThem()
    {
        const SourceFiles files;
        SourcesPane pane;
        Receiver receiver(pane);
        QVERIFY(pane.openCsv(files.make("a.csv", "ID_P,A\xc3\xb1o,SEX\n")));
        auto *fields = childOf<SourceTable>(pane, "csvTable");
        fields->selectAll();
        QTest::keyClick(fields, Qt::Key_Return);
        QCOMPARE(receiver.payloads.last(), csvPayload({"ID_P", QStringLiteral("A\u00f1o"), "SEX"}));

        QVERIFY(pane.openLookups(files.make("a.json", R"([{"id": "OCC", "label": "Trades"}])")));
        auto *lookups = childOf<SourceTable>(pane, "lookupTable");
        lookups->selectAll();
        QTest::keyClick(lookups, Qt::Key_Return);
        TDmLookup lookup;
        lookup.id = QStringLiteral("OCC");
        lookup.label = QStringLiteral("Trades");
        QList<TDmLookup *> list{&lookup};
        const LookupPropertiesModel model(nullptr, &list);
        const std::unique_ptr<QMimeData> written(model.mimeData({model.index(0, 0)}));
        QCOMPARE(receiver.payloads.last(), written->data(kPayload));
        QCOMPARE(receiver.payloads.size(), 2);
    }

    void whatIsAddedBecomesVariables()
    {
        SourcesPane pane;
        TDmEntity person;
        VariableDiccionaryModel variables(nullptr, &person, &person);
        showDataset(pane, people, QStringLiteral("people.sav"));
        connect(&pane, &SourcesPane::addRequested, &pane, [&](const QMimeData *data) {
            variables.dropMimeData(data, Qt::CopyAction, -1, -1, QModelIndex());
        });
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        table->selectAll();
        QTest::keyClick(table, Qt::Key_Return);
        QCOMPARE(namesOf(person), (QStringList{"SEX", "AGE", "KIN", "LIT"}));
    }

    void rowsAreDraggedWithTheMouse()
    {
        SourcesPane pane;
        pane.resize(900, 300);
        showDataset(pane, people, QStringLiteral("people.sav"));
        pane.show();
        auto *table = childOf<SourceTable>(pane, "datasetTable");
        clickRow(*table, 3);
        clickRow(*table, 0, Qt::ControlModifier);
        const QPoint start = table->visualRect(table->model()->index(0, 0)).center();
        QTest::mousePress(table->viewport(), Qt::LeftButton, Qt::NoModifier, start);
        const QPoint away = start + QPoint(0, 3 * QApplication::startDragDistance());
        for (const QPoint &point : {start + QPoint(1, 1), away}) {
            QMouseEvent move(QEvent::MouseMove, point, table->viewport()->mapToGlobal(point), Qt::NoButton,
                Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(table->viewport(), &move);
        }
        // Without a screen a drag is over at once, but lives on until the next turn of the event loop.
        const auto *drag = table->findChild<QDrag *>();
        QVERIFY(drag);
        QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::CopyAction));
        QCOMPARE(drag->mimeData()->formats(), QStringList{kPayload});
        QCOMPARE(drag->mimeData()->data(kPayload), datasetPayload(people, {0, 3}));

        TDmEntity person;
        VariableDiccionaryModel variables(nullptr, &person, &person);
        QVERIFY(variables.dropMimeData(drag->mimeData(), Qt::CopyAction, -1, -1, QModelIndex()));
        QCOMPARE(namesOf(person), (QStringList{"SEX", "LIT"}));
        QCOMPARE(rowsOf(*table).size(), 4);
    }
};

QTEST_MAIN(tst_SourceRows)
#include "tst_SourceRows.moc"
