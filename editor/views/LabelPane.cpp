#include "editor/views/LabelPane.h"

#include "business/models/VarValueLabelDiccionaryModel.h"
#include "business/models/VarValueLabelDiccionaryProxyModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/Structure.h"
#include "editor/views/TableView.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

namespace tessel::editor {

LabelPane::LabelPane(DictionaryDocument &document, QWidget *parent)
    : TablePane(document, new VarValueLabelDiccionaryProxyModel(nullptr), tr("Value labels"),
        tr("Search codes and labels"), parent)
{
    view()->setObjectName(QStringLiteral("labels"));
    view()->setHint(tr("Choose a variable to see its value labels."));
    connect(view(), &TableView::endReached, this, &LabelPane::addRow);
    connect(view(), &TableView::copyRequested, this, &LabelPane::copy);
    connect(view(), &TableView::pasteRequested, this, &LabelPane::paste);
    connect(&document, &DictionaryDocument::aboutToReset, this, [this] { show(nullptr); });
}

void LabelPane::show(TDmVariable *variable)
{
    if (variable == shown)
        return;
    shown = variable;
    view()->setHint(shown
            ? tr("No value labels yet. Press Ins, or paste codes and labels from a spreadsheet.")
            : tr("Choose a variable to see its value labels."));
    rebuild();
    view()->scrollToTop();
}

QAbstractItemModel *LabelPane::newModel()
{
    return shown ? new VarValueLabelDiccionaryModel(nullptr, shown) : nullptr;
}

Scope LabelPane::editScope(void *) const { return Scope::ofVariable(*shown); }

QString LabelPane::editText(void *object, const QString &column) const
{
    return tr("change %1 of label %2").arg(column, static_cast<ValueLabelElement *>(object)->getValue());
}

bool LabelPane::concerns(const Touched &touched) const { return shown && touched.variables.contains(shown); }

void *LabelPane::addObject(int row) { return shown ? Structure(document()).addLabel(*shown, row) : nullptr; }

void LabelPane::removeObjects(const QList<void *> &objects)
{
    Structure(document()).removeLabels(*shown, objectsAs<ValueLabelElement>(objects));
}

void LabelPane::moveObjects(const QList<void *> &objects, int steps)
{
    Structure(document()).moveLabels(*shown, objectsAs<ValueLabelElement>(objects), steps);
}

void LabelPane::sizeColumns()
{
    view()->horizontalHeader()->resizeSection(0, fontMetrics().averageCharWidth() * 9);
}

void LabelPane::paste()
{
    if (!shown)
        return;
    const int added = Structure(document()).pasteLabels(*shown, QGuiApplication::clipboard()->text());
    emit told(added > 0 ? tr("%n labels pasted.", nullptr, added)
                        : tr("The clipboard holds no lines of codes and labels."));
}

void LabelPane::copy()
{
    QStringList lines;
    const auto labels = objectsAs<ValueLabelElement>(selectedObjects());
    for (const ValueLabelElement *label : labels)
        lines.append(label->getValue() + QLatin1Char('\t') + label->getLabel());
    if (lines.isEmpty())
        return;
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    emit told(tr("%n labels copied.", nullptr, lines.size()));
}

} // namespace tessel::editor
