#include "host/app/process/openhandler.h"

#include "framework/support/objects/text.h"
#include "host/system/hostfileurl.h"

namespace xbr::host {

OpenHandler::OpenHandler(std::function<void(const std::string& path)> openFile)
    : m_openFile(std::move(openFile)) {
    XBRGetFileTypeRegistry()->addHandler(this);
}

void OpenHandler::close() {
    XBRGetFileTypeRegistry()->removeHandler(this);
}

bool OpenHandler::openUrl(Text url) noexcept {
    if (view(url) == kShowWindowUrl) {
        return true; // every URL shows the window
    }
    const auto path = localPath(view(url));
    if (path) {
        m_openFile(*path);
    }
    return path.has_value();
}

} // namespace xbr::host
