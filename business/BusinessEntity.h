#pragma once

#include "business/BusinessExport.h"

#include <QList>

#include <memory>

class DictionaryUtil;
class TDmEntity;

/// Guards the deselection of an entity for a run.
class BUSINESS_TESSEL_EXPORT BusinessEntity {
public:
    BusinessEntity();
    ~BusinessEntity();

    /// To be called when \a entity was just deselected. When entities below it are still selected, asks
    /// whether to deselect them too. Yes: they are returned, to be deselected by the caller. No, or the box
    /// closed: \a entity is selected again and nothing is returned. Without such entities nothing is asked;
    /// nor while \a entity is still selected, when they are returned as they are. The list is new and the
    /// caller's; the entities in it stay the tree's.
    QList<TDmEntity *> *verifyChildrenSelectCheck(TDmEntity *entity);

private:
    std::unique_ptr<DictionaryUtil> dictionaryUtil;

    Q_DISABLE_COPY_MOVE(BusinessEntity)
};
