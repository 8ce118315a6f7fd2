#include "editor/views/ProblemsPane.h"

#include "editor/DictionaryDocument.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kPauseMilliseconds = 400;

} // namespace

ProblemsPane::ProblemsPane(DictionaryDocument &checkedDocument, QWidget *parent)
    : QWidget(parent)
    , document(checkedDocument)
    , list(new QTreeWidget(this))
{
    list->setObjectName(QStringLiteral("problems"));
    list->setAccessibleName(tr("Problems"));
    list->setHeaderLabels({tr("Place"), tr("Problem"), tr("Code")});
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    setFocusProxy(list);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list);
    timer.setSingleShot(true);
    timer.setInterval(kPauseMilliseconds);
    connect(&timer, &QTimer::timeout, this, &ProblemsPane::check);
    connect(&document, &DictionaryDocument::changed, &timer, QOverload<>::of(&QTimer::start));
    connect(&document, &DictionaryDocument::reset, &timer, QOverload<>::of(&QTimer::start));
    connect(list, &QTreeWidget::itemActivated, this, &ProblemsPane::go);
}

int ProblemsPane::count() const { return list->topLevelItemCount(); }

void ProblemsPane::check()
{
    timer.stop();
    // One place may have several problems.
    const auto keyOf = [](const QTreeWidgetItem *item) {
        return item->data(0, kPathRole).toString() + QLatin1Char(' ') + item->text(2);
    };
    const QString current = list->currentItem() ? keyOf(list->currentItem()) : QString();
    const QVector<documents::Finding> findings = documents::findingsIn(document.root());
    list->clear();
    QList<QTreeWidgetItem *> items;
    for (const documents::Finding &finding : findings) {
        auto *item = new QTreeWidgetItem({finding.place, finding.message, finding.code});
        item->setData(0, kPathRole, finding.path);
        item->setToolTip(1, finding.message);
        items.append(item);
    }
    list->addTopLevelItems(items);
    list->resizeColumnToContents(2);
    for (QTreeWidgetItem *item : qAsConst(items)) {
        if (keyOf(item) == current) {
            list->setCurrentItem(item);
            break;
        }
    }
    emit countChanged(count());
}

void ProblemsPane::step(int direction)
{
    // The last edit counts.
    if (timer.isActive())
        check();
    if (count() == 0)
        return;
    const int row = list->indexOfTopLevelItem(list->currentItem());
    const int next = row < 0 ? (direction > 0 ? 0 : count() - 1) : (row + direction + count()) % count();
    list->setCurrentItem(list->topLevelItem(next));
    go();
}

void ProblemsPane::go()
{
    const QTreeWidgetItem *item = list->currentItem();
    if (!item)
        return;
    // Going there may show the problems anew.
    const QString sentence = tr("%1: %2").arg(item->text(0), item->text(1));
    emit goTo(item->data(0, kPathRole).toString());
    emit told(sentence);
}

} // namespace tessel::editor
