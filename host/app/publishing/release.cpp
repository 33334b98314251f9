#include "host/app/publishing/release.h"

#include "host/base/textscan.h"

namespace xbr::host {

std::string problemOfText(const std::string& name, const std::string& text) {
    if (text.find_first_not_of(' ') == std::string::npos) {
        return name + " is empty; leave it out to keep what the file's tags say";
    }
    if (!isUtf8(text)) {
        return name + " is not UTF-8";
    }
    return hasControls(text) ? name + " holds a line break or another control character" : "";
}

} // namespace xbr::host
