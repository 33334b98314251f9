#pragma once

#include "framework/abi/filetype.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <string>

namespace xbr::host {

/// The URL that stands for the window of a running host, among those that are handed to it.
constexpr char kShowWindowUrl[] = "xbrhost:window";

/// Takes what a second start of the program hands to the first: the wish to see the window, and songs. With
/// the file-type registry as long as this object is kept and `close` was not called.
class OpenHandler final : public Object<IFileHandler> {
public:
    /// `openFile` gets paths as bytes.
    explicit OpenHandler(std::function<void(const std::string& path)> openFile);

    /// Takes it out of the registry.
    void close();

    bool openUrl(Text url) noexcept override;

private:
    std::function<void(const std::string& path)> m_openFile;
};

} // namespace xbr::host
