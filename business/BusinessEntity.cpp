#include "business/BusinessEntity.h"

#include "business/Constants.h"
#include "model/TDmEntity.h"
#include "util/DictionaryUtil.h"
#include "util/detail/PlainBox.h"

namespace {

/// The question, with No as the default: deselecting is what cannot be seen afterwards.
bool isConfirmed(const QString &names)
{
    // Not translated, and "?." at the end: meant so.
    const QString text =
        QStringLiteral("You have child entities that are selectable, and they are as follows:\n%1\n"
                       "Are you sure you want to deselect this entity and its child entities?.\n")
            .arg(names);
    return tessel::detail::PlainBox::show(QMessageBox::Question, nullptr, QString(), text,
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

} // namespace

BusinessEntity::BusinessEntity()
    : dictionaryUtil(std::make_unique<DictionaryUtil>())
{
}

BusinessEntity::~BusinessEntity() = default;

QList<TDmEntity *> *BusinessEntity::verifyChildrenSelectCheck(TDmEntity *entity)
{
    std::unique_ptr<QList<TDmEntity *>> checked(
        dictionaryUtil->getChildEntitiesChecked(entity, new QList<TDmEntity *>));
    if (checked->isEmpty() || entity->getSelectable())
        return checked.release();

    QString names;
    for (const TDmEntity *child : qAsConst(*checked))
        names += child->getName() + QLatin1Char('\n');
    const bool confirmed = isConfirmed(names);
    entity->setSelectable(!confirmed);
    return confirmed ? checked.release() : new QList<TDmEntity *>;
}
