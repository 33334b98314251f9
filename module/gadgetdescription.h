#pragma once

#include "framework/abi/publisher.h"
#include "framework/support/data/formencoding.h"
#include "framework/support/objects/object.h"

#include <string>

namespace brindlex {

/// What the host knows of the panel before it opens it: the attributes of the "Gadget" element of the
/// module's resource "gadget.xml". Without the resource there are none.
class GadgetDescription final : public xbr::Object<xbr::IGadgetDescription> {
public:
    GadgetDescription();

    xbr::Text attribute(xbr::Text name) const noexcept override;

private:
    xbr::Pairs m_attributes;
};

} // namespace brindlex
