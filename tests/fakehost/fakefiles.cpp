#include "tests/fakehost/fakefiles.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"
#include "tests/fakehost/lender.h"

#include <algorithm>

namespace fakehost {

namespace {

xbr::Ref<xbr::MemoryStream> makeStream(const std::string& bytes) {
    auto stream = xbr::make<xbr::MemoryStream>();
    stream->write(bytes);
    xbr::rewind(*stream);
    return stream;
}

/// Puts every byte written into the file at once.
class FileWriter final : public xbr::Object<xbr::IStream> {
public:
    explicit FileWriter(std::string url) : m_url(std::move(url)) {}

    xbr::Result read(void*, std::uint64_t, std::uint64_t*) noexcept override { return xbr::kNotImplemented; }
    xbr::Result write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override {
        if (fails()) {
            host().files.incomplete.insert(m_url);
            return xbr::kUnexpected;
        }
        host().files.files[m_url].append(static_cast<const char*>(buffer), size);
        if (done) {
            *done = size;
        }
        return xbr::kOk;
    }
    xbr::Result seek(std::int64_t, xbr::SeekOrigin, std::int64_t*) noexcept override {
        return xbr::kNotImplemented;
    }

private:
    std::string m_url;
};

class FileList final : public xbr::Object<xbr::IFileList> {
public:
    void add(std::string url, std::uint64_t size, std::int64_t modified) {
        m_files.push_back({std::move(url), size, modified});
    }
    std::int32_t count() const noexcept override { return static_cast<std::int32_t>(m_files.size()); }
    xbr::Text urlAt(std::int32_t index) const noexcept override { return m_texts.lend(at(index).url); }
    std::uint64_t sizeAt(std::int32_t index) const noexcept override { return at(index).size; }
    std::int64_t modifiedAt(std::int32_t index) const noexcept override { return at(index).modified; }

private:
    struct File {
        std::string url;
        std::uint64_t size;
        std::int64_t modified;
    };
    const File& at(std::int32_t index) const { return m_files.at(static_cast<std::size_t>(index)); }

    std::vector<File> m_files;
    Lender m_texts;
};

class FakePackage final : public xbr::Object<xbr::IPackage> {
public:
    explicit FakePackage(std::string url) : m_url(std::move(url)) {}

    xbr::Result setOption(xbr::Text name, std::int64_t value) noexcept override {
        m_listing += xbr::toString(name) + ":" + std::to_string(value) + ";";
        return xbr::kOk;
    }
    xbr::Result create() noexcept override {
        return fails() || host().packages.failsToCreate ? xbr::kUnexpected : xbr::kOk;
    }
    xbr::Result addFolder(xbr::Text folder, std::int32_t, xbr::IProgress* progress) noexcept override {
        if (fails()) {
            m_isRefused = true;
            return xbr::kUnexpected;
        }
        const std::string prefix = xbr::toString(folder) + "/";
        const auto& incomplete = host().files.incomplete;
        m_isRefused = std::any_of(incomplete.begin(), incomplete.end(),
                                  [&](const auto& url) { return url.starts_with(prefix); });
        for (const auto& [url, bytes] : host().files.files) {
            if (url.starts_with(prefix)) {
                m_listing += url.substr(prefix.size()) + "=" + bytes + ";";
            }
        }
        progress->update(0.5, xbr::toText("half"));
        return xbr::kOk;
    }
    xbr::Result flush(xbr::IProgress*) noexcept override {
        if (fails() || host().packages.failsToFlush || m_isRefused) {
            return xbr::kUnexpected;
        }
        m_isFlushed = true;
        return xbr::kOk;
    }
    xbr::Result close() noexcept override {
        if (m_isFlushed) {
            host().files.files[m_url] = m_listing;
        }
        return xbr::kOk;
    }

private:
    std::string m_url;
    std::string m_listing;
    bool m_isRefused = false;
    bool m_isFlushed = false;
};

} // namespace

xbr::Result FakeFileSystem::openForReading(xbr::Text url, xbr::IStream** out) noexcept {
    if (fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    const auto found = files.find(xbr::toString(url));
    const bool readable = found != files.end() && !unreadable.contains(found->first);
    *out = readable ? makeStream(found->second).detach() : nullptr;
    return readable ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeFileSystem::createFile(xbr::Text url, xbr::IStream** out) noexcept {
    if (fails()) {
        incomplete.insert(xbr::toString(url));
        *out = nullptr;
        return xbr::kUnexpected;
    }
    files[xbr::toString(url)].clear();
    *out = xbr::make<FileWriter>(xbr::toString(url)).detach();
    return xbr::kOk;
}

xbr::Result FakeFileSystem::copyFile(xbr::Text from, xbr::Text to) noexcept {
    if (fails() || !fileExists(from) || uncopyable.contains(xbr::toString(from))) {
        incomplete.insert(xbr::toString(to));
        return xbr::kUnexpected;
    }
    if (onCopy) {
        onCopy();
    }
    incomplete.erase(xbr::toString(to));
    files[xbr::toString(to)] = files[xbr::toString(from)];
    return xbr::kOk;
}

bool FakeFileSystem::fileExists(xbr::Text url) noexcept {
    return files.contains(xbr::toString(url));
}

bool FakeFileSystem::folderExists(xbr::Text url) noexcept {
    const std::string prefix = xbr::toString(url) + "/";
    const auto found = files.lower_bound(prefix);
    return found != files.end() && found->first.starts_with(prefix);
}

xbr::Result FakeFileSystem::removeFile(xbr::Text url) noexcept {
    return files.erase(xbr::toString(url)) > 0 ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeFileSystem::removeFolder(xbr::Text url) noexcept {
    if (fails() || unremovable.contains(xbr::toString(url))) {
        return xbr::kUnexpected;
    }
    const std::string prefix = xbr::toString(url) + "/";
    std::erase_if(incomplete, [&](const auto& file) { return file.starts_with(prefix); });
    return std::erase_if(files, [&](const auto& file) { return file.first.starts_with(prefix); }) > 0
               ? xbr::kOk
               : xbr::kFalse;
}

xbr::Result FakeFileSystem::registerResources(xbr::Text name, const void*, std::uint64_t) noexcept {
    if (fails()) {
        return xbr::kUnexpected;
    }
    return resources.insert(xbr::toString(name)).second ? xbr::kOk : xbr::kFalse;
}
xbr::Result FakeFileSystem::unregisterResources(xbr::Text name) noexcept {
    return resources.erase(xbr::toString(name)) > 0 ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeFileSystem::getCacheFolder(xbr::IString** out) noexcept {
    *out = nullptr;
    return hasCacheFolder ? xbr::giveText("file:///cache", out) : xbr::kUnexpected;
}

xbr::Result FakeFileSystem::replaceFile(xbr::Text url, const void* bytes, std::uint64_t size) noexcept {
    files[xbr::toString(url)].assign(static_cast<const char*>(bytes), size);
    modified[xbr::toString(url)] = host().system.time;
    return xbr::kOk;
}

xbr::Result FakeFileSystem::getFiles(xbr::Text folder, xbr::IFileList** out) noexcept {
    auto list = xbr::make<FileList>();
    for (const auto& [url, bytes] : files) {
        if (url.starts_with(xbr::toString(folder) + "/")) {
            list->add(url, bytes.size(), modified[url]);
        }
    }
    *out = list.detach();
    return xbr::kOk;
}

xbr::Result FakePackageHandler::createPackage(const xbr::Uid&, xbr::Text url, xbr::IPackage** out) noexcept {
    if (fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    *out = xbr::make<FakePackage>(xbr::toString(url)).detach();
    return xbr::kOk;
}

} // namespace fakehost
