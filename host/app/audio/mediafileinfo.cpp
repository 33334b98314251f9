#include "host/app/audio/mediafileinfo.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/app/audio/mediatags.h"
#include "host/system/hostfileurl.h"

namespace xbr::host {

Result MediaFileInfo::open(Text url) noexcept {
    m_attributes.reset();
    const auto path = localPath(view(url));
    if (!path) {
        return kInvalidArgument;
    }
    const auto tags = readTags(*path);
    if (!tags) {
        return kUnexpected;
    }
    m_attributes = attributesOf(*tags);
    return kOk;
}

Result MediaFileInfo::getAttributes(IAttributes* out) noexcept {
    if (!m_attributes || !out) {
        return kUnexpected;
    }
    for (std::int32_t i = 0; i < m_attributes->count(); ++i) {
        const Text name = m_attributes->nameAt(i);
        out->set(name, m_attributes->get(view(name)));
    }
    return kOk;
}

} // namespace xbr::host
