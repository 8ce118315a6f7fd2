#include "editor/views/DatasetSourceTab.h"

#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariablesDatasetProxyModel.h"
#include "editor/views/SourceTable.h"

#include <QHeaderView>

namespace tessel::editor {

DatasetSourceTab::DatasetSourceTab(QWidget *parent)
    : SourceTab(QStringLiteral("dataset"),
        {tr("Dataset fields"), tr("Opens a dataset; only the description of its fields is read."),
            tr("Open a dataset to see its fields here."), tr("The dataset has no fields.")},
        new VariablesDatasetProxyModel(nullptr), parent)
{
    showCatalogue<DatasetPropertiesFieldsModel>(
        std::vector<std::unique_ptr<TDmSourceField>>(), QStringLiteral("*"));
    QHeaderView *header = sourceTable()->horizontalHeader();
    // The order of the file, until a header is clicked; that of the tags brings it back.
    header->setSortIndicator(-1, Qt::AscendingOrder);
    sourceTable()->setSortingEnabled(true);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(1, QHeaderView::Stretch);
    header->resizeSection(0, 200);
    header->resizeSection(2, 90);
}

void DatasetSourceTab::setFields(
    std::vector<std::unique_ptr<TDmSourceField>> fields, const QString &title, const QStringList &remarks)
{
    const int size = int(fields.size());
    const QString sentence =
        size == 1 ? tr("%1: 1 field.").arg(title) : tr("%1: %n fields.", nullptr, size).arg(title);
    showCatalogue<DatasetPropertiesFieldsModel>(std::move(fields), QStringLiteral("*"));
    describe(QString(), QStringList(sentence) + remarks);
}

} // namespace tessel::editor
