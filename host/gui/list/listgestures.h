#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/ref.h"

class QMimeData;

namespace xbr::host {

/// The locations that are dragged, as objects (IUrlSource) in their order.
Ref<IObjectIterator> draggedObjects(const QMimeData& data);

} // namespace xbr::host
