// A variable's value labels, to be edited, sorted and searched.
// Usage: example_value_labels [PICTURE]; with PICTURE, searches, saves what the window shows and ends.

#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    TDmVariable water; // Owns its labels.
    int code = 0;
    for (const char *label :
        {"Public network", "Well in the yard", "Public well", "River", "Rain", "Truck"}) {
        auto *element = new ValueLabelElement;
        element->setValue(QString::number(++code));
        element->setLabel(QLatin1String(label));
        water.addValueLabelElement(element);
    }
    VarValueLabelDiccionaryModel model(nullptr, &water);
    VarValueLabelDiccionaryProxyModel proxy(nullptr);
    proxy.setSourceModel(&model);

    QWidget window;
    auto *search = new QLineEdit;
    search->setPlaceholderText(QStringLiteral("Search code or label"));
    auto *table = new QTableView;
    table->setModel(&proxy);
    table->setSortingEnabled(true);
    table->sortByColumn(0, Qt::AscendingOrder);
    table->horizontalHeader()->setStretchLastSection(true);
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(search);
    layout->addWidget(table);
    // The proxy looks at upper-case texts, so the pattern must not heed letter case.
    QObject::connect(search, &QLineEdit::textChanged, &proxy, [&proxy](const QString &text) {
        proxy.setFilterRegExp(QRegExp(text, Qt::CaseInsensitive, QRegExp::FixedString));
    });
    window.resize(400, 300);
    window.show();
    if (argc < 2)
        return QApplication::exec();
    search->setText(QStringLiteral("well"));
    return window.grab().save(QApplication::arguments().at(1)) && proxy.rowCount() == 2 ? 0 : 2;
}
