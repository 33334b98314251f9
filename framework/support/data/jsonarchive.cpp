#include "framework/support/data/jsonarchive.h"

#include "framework/abi/textformats.h"

namespace xbr {

Ref<Attributes> readJson(IStream& stream) {
    auto root = make<Attributes>();
    return XBRJsonParse(&stream, root.get()) == kOk ? root : nullptr;
}

bool writeJson(const Attributes& root, IStream& stream) {
    return XBRJsonStringify(&root, &stream) == kOk;
}

} // namespace xbr
