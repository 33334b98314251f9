#pragma once

#include "framework/abi/package.h"
#include "framework/support/objects/object.h"
#include "host/system/package/packageentries.h"

#include <string>
#include <vector>

namespace xbr::host {

/// Writes a ZIP archive. Adding a folder notes what it holds; all bytes are read and written by `flush`. Both
/// do their work on threads of their own, which end before the call does; whoever is called back is called on
/// the main thread.
class ZipPackage final : public Object<IPackage> {
public:
    explicit ZipPackage(std::string path) : m_path(std::move(path)) {}

    Result setOption(Text name, std::int64_t value) noexcept override;
    Result create() noexcept override;
    Result addFolder(Text folder, std::int32_t mode, IProgress* progress) noexcept override;
    Result flush(IProgress* progress) noexcept override;
    Result close() noexcept override;

private:
    enum class State { kNew, kCreated, kBusy, kRefused, kFlushed, kClosed };

    Result write(IProgress* progress);

    std::string m_path;
    std::vector<PackageEntry> m_entries;
    State m_state = State::kNew;
    bool m_isCompressed = false;
};

/// Makes packages.
class PackageHandler final : public Object<IPackageHandler> {
public:
    Result createPackage(const Uid& type, Text url, IPackage** out) noexcept override;
};

} // namespace xbr::host
