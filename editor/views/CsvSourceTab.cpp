#include "editor/views/CsvSourceTab.h"

#include "business/models/CsvPropertiesModel.h"
#include "editor/views/SourceProblem.h"
#include "editor/views/SourceTable.h"
#include "sources/CsvReader.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QSortFilterProxyModel>

namespace tessel::editor {

CsvSourceTab::CsvSourceTab(QWidget *parent)
    : SourceTab(QStringLiteral("csv"),
        {tr("CSV fields"), tr("Opens a CSV file; only its header is read."),
            tr("Open a CSV file to see its fields here."), QString()},
        new QSortFilterProxyModel, parent)
    , separatorBox(new QComboBox(this))
{
    separatorBox->setObjectName(QStringLiteral("csvSeparator"));
    separatorBox->setAccessibleName(tr("Separator of the CSV file"));
    separatorBox->setToolTip(tr("What stands between the fields; a choice reads the header again."));
    separatorBox->addItem(tr("Automatic"), QChar());
    separatorBox->addItem(tr("Comma"), QChar(QLatin1Char(',')));
    separatorBox->addItem(tr("Semicolon"), QChar(QLatin1Char(';')));
    separatorBox->addItem(tr("Tab"), QChar(QLatin1Char('\t')));
    separatorBox->addItem(tr("Bar"), QChar(QLatin1Char('|')));
    separatorBox->setEnabled(false);
    auto *label = new QLabel(tr("&Separator:"), this);
    label->setBuddy(separatorBox);
    toolRow()->insertWidget(1, label);
    toolRow()->insertWidget(2, separatorBox);
    sourceTable()->horizontalHeader()->hide();

    showCatalogue<CsvPropertiesModel>(std::vector<std::unique_ptr<TDmSourceField>>());
    connect(separatorBox, QOverload<int>::of(&QComboBox::activated), this, [this] { read(); });
    connect(this, &SourceTab::openRequested, this, [this] {
        askForFile(tr("Open a CSV file"), tr("CSV files (*.csv *.txt *.tsv);;All files (*)"),
            QFileInfo(file).path(), [this](const QString &name) { open(name); });
    });
}

bool CsvSourceTab::open(const QString &name)
{
    file = name;
    separatorBox->setCurrentIndex(0);
    separatorBox->setEnabled(true);
    return read();
}

bool CsvSourceTab::read()
{
    sources::ReadOptions options;
    options.separator = separatorBox->currentData().toChar();
    sources::SourceOutcome outcome = sources::readCsv(file, options);
    if (!outcome.result) {
        emit problemFound(sentenceOn(file, outcome.problem));
        return false;
    }
    sources::SourceFields &source = *outcome.result;
    const QString name = QFileInfo(file).fileName();
    const int size = int(source.fields.size());
    QStringList sentences{size == 1 ? tr("%1: 1 field in %2.").arg(name, source.encoding)
                                    : tr("%1: %n fields in %2.", nullptr, size).arg(name, source.encoding)};
    const int found = separatorBox->findData(source.separator);
    if (size > 1)
        sentences.append(tr("Separator: %1.").arg(separatorBox->itemText(found).toLower()));
    for (const sources::SourceRemark &remark : qAsConst(source.remarks))
        sentences.append(remark.sentence());
    showCatalogue<CsvPropertiesModel>(std::move(source.fields));
    describe(QDir::toNativeSeparators(file), sentences);
    return true;
}

} // namespace tessel::editor
