#include "editor/views/RangePane.h"

#include "business/models/VarRangeModel.h"
#include "business/models/VarRangeProxyModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/Structure.h"
#include "editor/views/TableView.h"
#include "model/Range.h"
#include "model/TDmVariable.h"

namespace tessel::editor {

RangePane::RangePane(DictionaryDocument &document, QWidget *parent)
    : TablePane(document, new VarRangeProxyModel(nullptr), tr("Ranges"), tr("Search ranges"), parent)
{
    view()->setObjectName(QStringLiteral("ranges"));
    view()->setHint(tr("Choose a variable to see its valid ranges."));
    connect(view(), &TableView::endReached, this, &RangePane::addRow);
    connect(&document, &DictionaryDocument::aboutToReset, this, [this] { show(nullptr); });
}

void RangePane::show(TDmVariable *variable)
{
    if (variable == shown)
        return;
    shown = variable;
    view()->setHint(shown ? tr("No ranges: every value is valid. Press Ins to add one.")
                          : tr("Choose a variable to see its valid ranges."));
    rebuild();
    view()->scrollToTop();
}

QAbstractItemModel *RangePane::newModel() { return shown ? new VarRangeModel(nullptr, shown) : nullptr; }

Scope RangePane::editScope(void *) const { return Scope::ofVariable(*shown); }

QString RangePane::editText(void *, const QString &column) const
{
    return tr("change %1 of %2").arg(column, shown->getName());
}

bool RangePane::concerns(const Touched &touched) const { return shown && touched.variables.contains(shown); }

void *RangePane::addObject(int row) { return shown ? Structure(document()).addRange(*shown, row) : nullptr; }

void RangePane::removeObjects(const QList<void *> &objects)
{
    Structure(document()).removeRanges(*shown, objectsAs<Range>(objects));
}

void RangePane::moveObjects(const QList<void *> &objects, int steps)
{
    Structure(document()).moveRanges(*shown, objectsAs<Range>(objects), steps);
}

} // namespace tessel::editor
