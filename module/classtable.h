#pragma once

#include "framework/abi/module.h"

namespace brindlex {

/// The classes that the module offers to the host. The UIDs are fixed: hosts remember them.
const xbr::ClassDescription& gadgetClass();         ///< "Gadget": the panel's controller, a Manager
const xbr::ClassDescription& metaClass();           ///< "MetaClass": describes the gadget before it is opened
const xbr::ClassDescription& publisherClass();      ///< "Publisher": the host's publish menu entry
const xbr::ClassDescription& supportServiceClass(); ///< "ProgramService": offers the three others

} // namespace brindlex
