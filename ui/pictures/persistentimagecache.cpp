#include "ui/pictures/persistentimagecache.h"

#include "framework/abi/filestore.h"
#include "framework/abi/filesystem.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "ui/pictures/picturefile.h"

#include <algorithm>
#include <vector>

namespace brindlex {

namespace {

constexpr std::string_view kFolder = "/brindlex/pictures";

struct File {
    std::string url;
    std::uint64_t size;
    std::int64_t modified;
};

xbr::Ref<xbr::IFileStore> fileStore() {
    return xbr::query<xbr::IFileStore>(XBRGetFileSystem());
}

/// The files of the folder, the newest first.
std::vector<File> filesIn(const std::string& folder) {
    std::vector<File> files;
    xbr::Ref<xbr::IFileList> list;
    if (fileStore()->getFiles(xbr::toText(folder), list.out()) == xbr::kOk) {
        for (std::int32_t i = 0; i < list->count(); ++i) {
            files.push_back({xbr::toString(list->urlAt(i)), list->sizeAt(i), list->modifiedAt(i)});
        }
    }
    std::sort(files.begin(), files.end(),
              [](const File& a, const File& b) { return a.modified > b.modified; });
    return files;
}

} // namespace

const std::string& PersistentImageCache::folder() {
    if (!m_folder) {
        const auto files = fileStore();
        xbr::Ref<xbr::IString> base;
        const bool isThere = files && files->getCacheFolder(base.out()) == xbr::kOk;
        m_folder = isThere ? take(base) + std::string(kFolder) : std::string();
    }
    return *m_folder;
}

std::string PersistentImageCache::fileOf(std::string_view location) {
    return folder() + "/" + pictureFileName(location);
}

std::optional<StoredPicture> PersistentImageCache::load(std::string_view location) {
    xbr::Ref<xbr::IStream> stream;
    if (folder().empty() ||
        XBRGetFileSystem()->openForReading(xbr::toText(fileOf(location)), stream.out()) != xbr::kOk) {
        return std::nullopt;
    }
    auto picture = readPicture(xbr::readAll(*stream));
    return picture && picture->location == location ? std::move(picture) : std::nullopt;
}

void PersistentImageCache::store(std::string_view location, const xbr::CopyTerms& terms,
                                 const std::string& bytes) {
    if (!terms.mayBeKept) {
        remove(location);
        return;
    }
    write({std::string(location), xbr::toString(terms.entityTag), xbr::toString(terms.lastModified), bytes});
}

void PersistentImageCache::remove(std::string_view location) {
    if (!folder().empty()) {
        XBRGetFileSystem()->removeFile(xbr::toText(fileOf(location)));
    }
}

void PersistentImageCache::write(const StoredPicture& picture) {
    if (folder().empty()) {
        return;
    }
    const std::string file = writePicture(picture);
    if (fileStore()->replaceFile(xbr::toText(fileOf(picture.location)), file.data(), file.size()) ==
        xbr::kOk) {
        m_bytes += file.size();
    }
    if (!m_isCounted || m_bytes > kMaximumBytes) {
        tidy();
    }
}

void PersistentImageCache::tidy() {
    // Not each time that a picture comes when the folder is as good as full.
    static constexpr std::uint64_t kAfterwards = kMaximumBytes / 4 * 3;
    const std::int64_t oldest = XBRGetSystem()->currentTime() - kKeepSeconds;
    const auto files = filesIn(folder());
    std::uint64_t all = 0;
    for (const File& file : files) {
        all += file.size;
    }
    const std::uint64_t limit = all > kMaximumBytes ? kAfterwards : kMaximumBytes;
    m_bytes = 0;
    for (const File& file : files) {
        if (file.modified < oldest || m_bytes + file.size > limit) {
            XBRGetFileSystem()->removeFile(xbr::toText(file.url));
        } else {
            m_bytes += file.size;
        }
    }
    m_isCounted = true;
}

} // namespace brindlex
