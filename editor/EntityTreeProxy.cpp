#include "editor/EntityTreeProxy.h"

namespace tessel::editor {

EntityTreeProxy::EntityTreeProxy(TDmEntity *rootEntity, QObject *parent)
    : PositionalParentProxy(rootEntity, parent)
{
}

} // namespace tessel::editor
