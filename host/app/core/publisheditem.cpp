#include "host/app/core/publisheditem.h"

#include "framework/support/attributes.h"
#include "framework/support/hostobject.h"
#include "framework/support/text.h"
#include "host/system/hostfileurl.h"

#include <filesystem>
#include <unistd.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// Why a file cannot be published; empty when it can be.
std::string problemOf(const std::string& path) {
    std::error_code failed;
    const auto status = fs::status(path, failed);
    if (!fs::exists(status)) {
        return "is not there";
    }
    if (!fs::is_regular_file(status)) {
        return "is not a file";
    }
    return access(path.c_str(), R_OK) == 0 ? "" : "cannot be read";
}

} // namespace

Result PublishedItem::getUrl(IString** out) noexcept {
    return giveText(m_url, out);
}

Result PublishedItem::getMediaAttributes(IAttributes* out) noexcept {
    return m_info->getAttributes(out);
}

bool PublishedItems::add(const std::string& path, std::string& error) {
    const std::string problem = problemOf(path);
    if (!problem.empty()) {
        error = "'" + path + "' " + problem;
        return false;
    }
    std::string url = fileUrl(fs::absolute(path).string());
    auto info = createHostObject<IMediaFileInfo>();
    if (!info || info->open(toText(url)) != kOk) {
        error = "'" + path + "' is not an audio file that can be published (wav, flac or mp3)";
        return false;
    }
    m_items.push_back(make<PublishedItem>(std::move(url), std::move(info)));
    return true;
}

bool PublishedItems::hasLastGenre() const {
    const auto tags = make<Attributes>();
    m_items.back()->getMediaAttributes(tags.get());
    return !tags->getString("Media:Genre").empty();
}

Result PublishedItems::next(IObject** out) noexcept {
    *out = nullptr;
    if (m_next == m_items.size()) {
        return kFalse;
    }
    *out = query<IObject>(m_items[m_next++].get()).detach();
    return kOk;
}

Ref<IFileType> fileTypeOf(const std::string& path) {
    const std::string extension = fs::path(path).extension().string();
    Ref<IFileType> type;
    if (extension.size() > 1) {
        const Text name = toText(std::string_view(extension).substr(1));
        if (XBRGetFileTypeRegistry()->getTypeByExtension(name, type.out()) != kOk) {
            XBRGetFileTypeRegistry()->createType(name, type.out());
        }
    }
    return type;
}

} // namespace xbr::host
