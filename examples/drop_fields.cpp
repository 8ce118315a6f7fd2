// A list of source fields; drag them onto the table, and they become variables.
// Usage: example_drop_fields [PICTURE]; with PICTURE, drops all fields, saves what the window shows and ends.

#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariableDiccionaryModel.h"
#include "model/TDmEntity.h"

#include <QApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QSplitter>
#include <QTableView>

#include <memory>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    TDmSourceField sex;
    sex.name = QStringLiteral("P03_SEX");
    sex.label = QStringLiteral("Sex");
    sex.fieldType = QStringLiteral("INTEGER");
    sex.rangeMin = QStringLiteral("1");
    sex.rangeMax = QStringLiteral("2");
    sex.categories = QStringLiteral("1 Male\t2 Female");
    TDmSourceField town;
    town.name = QStringLiteral("TOWN");
    town.label = QStringLiteral("Town of birth");
    town.fieldType = QStringLiteral("STRING");
    QList<TDmSourceField *> fields{&sex, &town};
    TDmEntity person;
    person.setName(QStringLiteral("PERSON"));

    DatasetPropertiesFieldsModel catalogue(nullptr, &fields, QStringLiteral("*"));
    VariableDiccionaryModel variables(nullptr, &person, &person);
    QSplitter window;
    auto *source = new QTableView(&window);
    source->setModel(&catalogue);
    source->setSelectionBehavior(QTableView::SelectRows);
    source->setDragEnabled(true);
    auto *table = new QTableView(&window);
    table->setModel(&variables);
    table->setAcceptDrops(true);
    table->horizontalHeader()->setStretchLastSection(true);
    window.resize(900, 300);
    window.show();
    if (argc < 2)
        return QApplication::exec();
    source->selectAll();
    const std::unique_ptr<QMimeData> drag(catalogue.mimeData(source->selectionModel()->selectedIndexes()));
    variables.dropMimeData(drag.get(), Qt::CopyAction, -1, -1, QModelIndex());
    return window.grab().save(QApplication::arguments().at(1)) ? 0 : 2;
}
