#include "editor/views/DatasetSourceTab.h"

#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/VariablesDatasetProxyModel.h"
#include "editor/views/DetailsDialog.h"
#include "editor/views/EncodingBox.h"
#include "editor/views/ReadingProgress.h"
#include "editor/views/SourceProblem.h"
#include "editor/views/SourceTable.h"
#include "sources/SourceReader.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace tessel::editor {
namespace {

constexpr int kRecords = 10000;
constexpr int kMostRecords = 99999999;

bool hasEnding(const QString &file, QLatin1String ending)
{
    return QFileInfo(file).suffix().compare(ending, Qt::CaseInsensitive) == 0;
}

} // namespace

DatasetSourceTab::DatasetSourceTab(QWidget *parent)
    : SourceTab(QStringLiteral("dataset"),
        {tr("Dataset fields"), tr("Opens a dataset; only the description of its fields is read."),
            tr("Open a dataset to see its fields here."), tr("The dataset has no fields.")},
        new VariablesDatasetProxyModel(nullptr), parent)
    , reader(sources::readSource)
    , encodingBox(new EncodingBox(this))
    , recordsBox(new QSpinBox(this))
    , rangesButton(new QPushButton(tr("Ra&nges from data"), this))
    , remarksButton(new QPushButton(this))
{
    addTools();
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

    connect(encodingBox, &EncodingBox::encodingChosen, this, [this](const QString &encoding) {
        sources::ReadOptions how = options;
        how.encoding = encoding;
        read(file, how);
    });
    connect(rangesButton, &QPushButton::clicked, this, [this] {
        sources::ReadOptions how = options;
        how.rows = recordsBox->value();
        read(file, how);
    });
    connect(remarksButton, &QPushButton::clicked, this, &DatasetSourceTab::showRemarks);
    connect(this, &SourceTab::openRequested, this, [this] {
        askForFile(tr("Open a dataset"),
            tr("Datasets (*.sav *.zsav *.por *.dta *.sas7bdat *.xpt);;SPSS (*.sav *.zsav *.por);;"
               "Stata (*.dta);;SAS (*.sas7bdat *.xpt);;SAS catalogues of labels (*.sas7bcat);;All files (*)"),
            QFileInfo(file).path(), [this](const QString &name) { open(name); });
    });
}

void DatasetSourceTab::addTools()
{
    encodingBox->setObjectName(QStringLiteral("datasetEncoding"));
    encodingBox->lineEdit()->setObjectName(QStringLiteral("datasetEncodingText"));
    encodingBox->view()->setObjectName(QStringLiteral("datasetEncodingList"));
    auto *label = new QLabel(tr("En&coding:"), this);
    label->setBuddy(encodingBox);
    recordsBox->setObjectName(QStringLiteral("datasetRecords"));
    recordsBox->setRange(1, kMostRecords);
    recordsBox->setValue(kRecords);
    recordsBox->setSingleStep(kRecords);
    recordsBox->setGroupSeparatorShown(true);
    recordsBox->setSuffix(tr(" records"));
    recordsBox->setAccessibleName(tr("How many records are looked at for ranges and categories"));
    recordsBox->setToolTip(tr("How many records are looked at, from the first."));
    rangesButton->setObjectName(QStringLiteral("datasetRanges"));
    rangesButton->setAccessibleName(tr("Find ranges and categories in the records of the dataset"));
    rangesButton->setToolTip(tr("Reads the first records: numbers get the range of their values, and fields "
                                "without categories get those that are found."));
    remarksButton->setObjectName(QStringLiteral("datasetRemarks"));
    remarksButton->setToolTip(tr("Lists what the file says and the fields do not carry."));
    remarksButton->setAccessibleName(tr("Remarks on the dataset"));
    remarksButton->hide();
    auto *edit = recordsBox->findChild<QLineEdit *>();
    edit->setAcceptDrops(false);
    connect(edit, &QLineEdit::returnPressed, rangesButton, &QPushButton::click);

    toolRow()->insertWidget(1, label);
    toolRow()->insertWidget(2, encodingBox);
    for (QWidget *tool : fileTools())
        tool->setEnabled(false);
    // Behind the line, which gives way, so that the pane fits into narrow windows.
    lineRow()->addStretch();
    lineRow()->addWidget(remarksButton);
    lineRow()->addWidget(rangesButton);
    lineRow()->addWidget(recordsBox);
}

QList<QWidget *> DatasetSourceTab::fileTools() const { return {encodingBox, rangesButton, recordsBox}; }

bool DatasetSourceTab::isCatalogue(const QString &name) { return hasEnding(name, QLatin1String("sas7bcat")); }

bool DatasetSourceTab::open(const QString &name)
{
    return isCatalogue(name) ? openCatalogue(name) : read(name, {});
}

bool DatasetSourceTab::openCatalogue(const QString &name)
{
    if (!hasEnding(file, QLatin1String("sas7bdat"))) {
        tellProblem(tr("%1: holds labels and no fields; open the .sas7bdat file that they belong to first")
                        .arg(QFileInfo(name).fileName()));
        return false;
    }
    sources::ReadOptions how = options;
    how.catalogue = name;
    return read(file, how);
}

bool DatasetSourceTab::read(const QString &name, const sources::ReadOptions &how)
{
    if (isReading)
        return false;
    sources::SourceOutcome outcome = outcomeOf(name, how);
    if (outcome.result || (outcome.canRetryWithEncoding && !outcome.isCancelled)) {
        file = name;
        options = how;
        for (QWidget *tool : fileTools())
            tool->setEnabled(true);
    }
    encodingBox->setEncoding(options.encoding);
    if (outcome.result) {
        showSource(*outcome.result);
        return true;
    }
    if (outcome.isCancelled)
        return false;
    QString sentence = sentenceOn(name, outcome.problem);
    if (outcome.canRetryWithEncoding) {
        sentence = tr("%1 in the box \"Encoding\"").arg(sentence);
        encodingBox->setFocus(Qt::OtherFocusReason);
        encodingBox->lineEdit()->selectAll();
    }
    tellProblem(sentence);
    return false;
}

sources::SourceOutcome DatasetSourceTab::outcomeOf(const QString &name, const sources::ReadOptions &how)
{
    const QScopedValueRollback<bool> reading(isReading, true);
    ReadingProgress progress(name, this);
    sources::ReadOptions told = how;
    told.progress = [&progress](int percent) { return progress.advance(percent); };
    return reader(name, told);
}

void DatasetSourceTab::showSource(sources::SourceFields &source)
{
    const QString name = QFileInfo(file).fileName();
    const int size = int(source.fields.size());
    QStringList sentences{
        size == 1 ? tr("%1: 1 field.").arg(name) : tr("%1: %n fields.", nullptr, size).arg(name)};
    if (source.rows >= 0)
        sentences.append(tr("Records: %L1.").arg(source.rows));
    if (!source.encoding.isEmpty())
        sentences.append(tr("Encoding: %1.").arg(source.encoding));
    if (!source.format.isEmpty())
        sentences.append(tr("Format: %1.").arg(source.format));
    if (!options.catalogue.isEmpty())
        sentences.append(tr("Labels: %1.").arg(QFileInfo(options.catalogue).fileName()));
    if (source.rowsRead > 0)
        sentences.append(tr("Records looked at: %L1.").arg(source.rowsRead));
    if (!source.title.isEmpty())
        sentences.append(tr("Title: %1.").arg(source.title));
    QStringList lines;
    for (const sources::SourceRemark &remark : qAsConst(source.remarks))
        lines.append(remark.sentence());
    remarks = lines.join(QLatin1Char('\n'));
    remarksButton->setText(lines.size() == 1 ? tr("1 re&mark…") : tr("%n re&marks…", nullptr, lines.size()));
    remarksButton->setAccessibleName(tr("Remarks on the dataset: %1").arg(lines.size()));
    remarksButton->setVisible(!lines.isEmpty());
    // A list that is still open is about what is no longer shown.
    delete remarksDialog;
    showCatalogue<DatasetPropertiesFieldsModel>(std::move(source.fields), QStringLiteral("*"));
    describe(QDir::toNativeSeparators(file), sentences);
    if (!toldProblem.isEmpty())
        emit problemSolved(toldProblem);
    toldProblem.clear();
}

void DatasetSourceTab::tellProblem(const QString &sentence)
{
    toldProblem = sentence;
    emit problemFound(sentence);
}

void DatasetSourceTab::showRemarks()
{
    if (!remarksDialog)
        remarksDialog = new DetailsDialog(tr("Remarks on %1").arg(QFileInfo(file).fileName()), remarks, this);
    remarksDialog->show();
    remarksDialog->raise();
    remarksDialog->activateWindow();
}

} // namespace tessel::editor
