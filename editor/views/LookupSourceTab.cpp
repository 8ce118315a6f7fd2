#include "editor/views/LookupSourceTab.h"

#include "business/models/LookupPropertiesModel.h"
#include "editor/sources/LookupList.h"
#include "editor/views/SourceProblem.h"
#include "editor/views/SourceTable.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QSortFilterProxyModel>

namespace tessel::editor {

LookupSourceTab::LookupSourceTab(QWidget *parent)
    : SourceTab(QStringLiteral("lookup"),
        {tr("Lookups"), tr("Opens a list of lookups in JSON."),
            tr("Open a list of lookups to see them here."), tr("The list of lookups is empty.")},
        new QSortFilterProxyModel, parent)
{
    sourceTable()->horizontalHeader()->hide();
    showCatalogue<LookupPropertiesModel>(std::vector<std::unique_ptr<TDmLookup>>());
    connect(this, &SourceTab::openRequested, this, [this] {
        askForFile(tr("Open a list of lookups"), tr("Lists of lookups (*.json);;All files (*)"),
            QFileInfo(file).path(), [this](const QString &name) { open(name); });
    });
}

bool LookupSourceTab::open(const QString &name)
{
    file = name;
    documents::Outcome<LookupList> outcome = LookupList::readFile(name);
    if (!outcome.result) {
        emit problemFound(sentenceOn(name, outcome.problem));
        return false;
    }
    const int size = int(outcome.result->lookups.size());
    const QString title = QFileInfo(name).fileName();
    const QString sentence =
        size == 1 ? tr("%1: 1 lookup.").arg(title) : tr("%1: %n lookups.", nullptr, size).arg(title);
    showCatalogue<LookupPropertiesModel>(std::move(outcome.result->lookups));
    describe(QDir::toNativeSeparators(name), {sentence});
    return true;
}

} // namespace tessel::editor
