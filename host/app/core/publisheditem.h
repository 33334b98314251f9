#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/hostclasses.h"
#include "framework/abi/publisher.h"
#include "framework/support/object.h"

#include <string>
#include <vector>

namespace xbr::host {

/// A song that the user chose to publish: where it is and what its tags say.
class PublishedItem final : public Object<IUrlSource, IMediaAttributes> {
public:
    PublishedItem(std::string url, Ref<IMediaFileInfo> info)
        : m_url(std::move(url)),
          m_info(std::move(info)) {}

    Result getUrl(IString** out) noexcept override;
    Result getMediaAttributes(IAttributes* out) noexcept override;

private:
    std::string m_url;
    Ref<IMediaFileInfo> m_info;
};

/// Gives published items one after the other.
class PublishedItems final : public Object<IObjectIterator> {
public:
    /// Checks a file and appends it. False, with the reason in `error`, when it is no regular file, cannot be
    /// read or is no audio. `path` is relative to the working folder, as bytes.
    bool add(const std::string& path, std::string& error);

    bool isEmpty() const { return m_items.empty(); }

    /// True when the tags of the item added last tell its genre.
    bool hasLastGenre() const;

    Result next(IObject** out) noexcept override;

private:
    std::vector<Ref<PublishedItem>> m_items;
    std::size_t m_next = 0;
};

/// The type of a file by its extension, known to the registry or not; empty for a name without extension.
Ref<IFileType> fileTypeOf(const std::string& path);

} // namespace xbr::host
