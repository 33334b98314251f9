#include "module/classtable.h"

#include "framework/support/parts/classfactory.h"

namespace brindlex {

const xbr::ClassDescription& gadgetClass() {
    static const auto description =
        xbr::describe(xbr::uid("3dbae410-4475-46d7-9788-c05ba9eb837a"), "Gadget", "Brindlex Client");
    return description;
}

const xbr::ClassDescription& metaClass() {
    static const auto description =
        xbr::describe(xbr::uid("9c4d1f8f-6332-43eb-af86-5aef3f58a3b0"), "MetaClass", "Brindlex Client");
    return description;
}

const xbr::ClassDescription& publisherClass() {
    static const auto description =
        xbr::describe(xbr::uid("f991ed34-bbc9-4c1a-bbe4-41f7ea4305d4"), "Publisher", "Upload to Brindlex");
    return description;
}

const xbr::ClassDescription& supportServiceClass() {
    static const auto description =
        xbr::describe(xbr::uid("4f434a75-5d50-4eb3-a75a-bc12b06532be"), "ProgramService", "Brindlex Support");
    return description;
}

} // namespace brindlex
