#pragma once

#include "framework/abi/filestore.h"
#include "framework/abi/filesystem.h"
#include "framework/abi/package.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "tests/fakehost/answers.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>

namespace fakehost {

/// Files in memory, by URL.
struct FakeFiles {
    std::map<std::string, std::string> files;
    std::set<std::string> incomplete; ///< files that did not come about whole: their folder is not packed
};

/// Puts every byte written into the file at once.
class FileWriter final : public xbr::Object<xbr::IStream> {
public:
    FileWriter(FakeFiles& disk, std::string url) : m_disk(disk), m_url(std::move(url)) {}

    xbr::Result read(void*, std::uint64_t, std::uint64_t*) noexcept override { return xbr::kNotImplemented; }
    xbr::Result write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override {
        if (fails()) {
            m_disk.incomplete.insert(m_url);
            return xbr::kUnexpected;
        }
        m_disk.files[m_url].append(static_cast<const char*>(buffer), size);
        if (done) {
            *done = size;
        }
        return xbr::kOk;
    }
    xbr::Result seek(std::int64_t, xbr::SeekOrigin, std::int64_t*) noexcept override {
        return xbr::kNotImplemented;
    }

private:
    FakeFiles& m_disk;
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

/// An "archive" that lists what was packed, one "name=bytes;" each.
class FakePackage final : public xbr::Object<xbr::IPackage> {
public:
    FakePackage(FakeFiles& disk, std::string url) : m_disk(disk), m_url(std::move(url)) {}

    xbr::Result setOption(xbr::Text name, std::int64_t value) noexcept override {
        m_listing += xbr::toString(name) + ":" + std::to_string(value) + ";";
        return xbr::kOk;
    }
    xbr::Result create() noexcept override { return okUnlessItFails(); }
    xbr::Result addFolder(xbr::Text folder, std::int32_t, xbr::IProgress* progress) noexcept override {
        const std::string prefix = xbr::toString(folder) + "/";
        const auto& incomplete = m_disk.incomplete;
        const bool isFailing = fails();
        m_isRefused = isFailing || std::any_of(incomplete.begin(), incomplete.end(),
                                               [&](const auto& url) { return url.starts_with(prefix); });
        if (isFailing) {
            return xbr::kUnexpected;
        }
        for (const auto& [url, bytes] : m_disk.files) {
            if (url.starts_with(prefix)) {
                m_listing += url.substr(prefix.size()) + "=";
                m_listing += (url.ends_with(".json") ? withoutLayout(bytes) : bytes) + ";";
            }
        }
        progress->update(0.5, xbr::toText("half"));
        return xbr::kOk;
    }
    xbr::Result flush(xbr::IProgress*) noexcept override {
        m_isFlushed = !fails() && !m_isRefused;
        return m_isFlushed ? xbr::kOk : xbr::kUnexpected;
    }
    xbr::Result close() noexcept override {
        if (m_isFlushed) {
            m_disk.files[m_url] = m_listing;
        }
        return xbr::kOk;
    }

private:
    FakeFiles& m_disk;
    std::string m_url;
    std::string m_listing;
    bool m_isRefused = false;
    bool m_isFlushed = false;
};

/// Folders exist as long as they hold a file.
class FakeFileSystem final : public xbr::Object<xbr::IFileSystem, xbr::IFileStore, xbr::IPackageHandler>,
                             public FakeFiles {
public:
    xbr::Result openForReading(xbr::Text url, xbr::IStream** out) noexcept override {
        const auto found = files.find(xbr::toString(url));
        const auto stream = found == files.end() ? nullptr : xbr::make<xbr::MemoryStream>();
        if (stream) {
            stream->write(found->second);
            xbr::rewind(*stream);
        }
        return giveUnlessItFails(stream, out);
    }
    xbr::Result createFile(xbr::Text url, xbr::IStream** out) noexcept override {
        const bool isFailing = fails();
        if (isFailing) {
            incomplete.insert(xbr::toString(url));
        } else {
            files[xbr::toString(url)].clear();
        }
        return give(isFailing ? nullptr
                              : xbr::make<FileWriter>(static_cast<FakeFiles&>(*this), xbr::toString(url)),
                    out, xbr::kUnexpected);
    }
    xbr::Result copyFile(xbr::Text from, xbr::Text to) noexcept override {
        if (fails() || !fileExists(from)) {
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
    bool fileExists(xbr::Text url) noexcept override { return files.contains(xbr::toString(url)); }
    bool folderExists(xbr::Text url) noexcept override {
        const std::string prefix = xbr::toString(url) + "/";
        const auto found = files.lower_bound(prefix);
        return found != files.end() && found->first.starts_with(prefix);
    }
    xbr::Result removeFile(xbr::Text url) noexcept override {
        return files.erase(xbr::toString(url)) > 0 ? xbr::kOk : xbr::kFalse;
    }
    xbr::Result removeFolder(xbr::Text url) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        const std::string prefix = xbr::toString(url) + "/";
        std::erase_if(incomplete, [&](const auto& file) { return file.starts_with(prefix); });
        return std::erase_if(files, [&](const auto& file) { return file.first.starts_with(prefix); }) > 0
                   ? xbr::kOk
                   : xbr::kFalse;
    }
    xbr::Result registerResources(xbr::Text name, const void*, std::uint64_t) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        return resources.insert(xbr::toString(name)).second ? xbr::kOk : xbr::kFalse;
    }
    xbr::Result unregisterResources(xbr::Text name) noexcept override {
        return resources.erase(xbr::toString(name)) > 0 ? xbr::kOk : xbr::kFalse;
    }

    xbr::Result getCacheFolder(xbr::IString** out) noexcept override {
        *out = nullptr;
        return hasCacheFolder ? xbr::giveText("file:///cache", out) : xbr::kUnexpected;
    }
    xbr::Result replaceFile(xbr::Text url, const void* bytes, std::uint64_t size) noexcept override {
        files[xbr::toString(url)].assign(static_cast<const char*>(bytes), size);
        modified[xbr::toString(url)] = XBRGetSystem()->currentTime();
        return xbr::kOk;
    }
    xbr::Result getFiles(xbr::Text folder, xbr::IFileList** out) noexcept override {
        auto list = xbr::make<FileList>();
        for (const auto& [url, bytes] : files) {
            if (url.starts_with(xbr::toString(folder) + "/")) {
                list->add(url, bytes.size(), modified[url]);
            }
        }
        return give(std::move(list), out);
    }

    xbr::Result createPackage(const xbr::Uid&, xbr::Text url, xbr::IPackage** out) noexcept override {
        return giveUnlessItFails(xbr::make<FakePackage>(static_cast<FakeFiles&>(*this), xbr::toString(url)),
                                 out);
    }

    std::map<std::string, std::int64_t> modified; ///< of files that were replaced
    std::set<std::string> resources;              ///< names under which modules registered theirs
    bool hasCacheFolder = true;
    std::function<void()> onCopy; ///< what happens while a file is copied
};

} // namespace fakehost
