#pragma once

#include "framework/abi/filetype.h"
#include "framework/support/objects/object.h"

namespace brindlex {

/// Takes the URLs of protocol "brindlex" that the host is asked to open: the browser's way back from the
/// sign-in. They go to the current Manager's client.
class CallbackHandler final : public xbr::Object<xbr::IFileHandler> {
public:
    /// The module's one handler, created on first use.
    static CallbackHandler& instance();

    bool openUrl(xbr::Text url) noexcept override;
};

} // namespace brindlex
