#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/publisher.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/object.h"

#include <string>
#include <vector>

namespace xbr::host {

/// An entry of the publish menu: a class of a module that takes songs.
struct PublishEntry {
    Uid uid{};
    std::string name; ///< for people, in the user's language
};

/// The publish entries of all modules that are loaded.
std::vector<PublishEntry> findPublishEntries();

/// Null when the module cannot make it.
Ref<IPublisher> createPublisher(const PublishEntry& entry);

/// A song that is handed to a publish entry: where it is and what is known about it.
class PublishedItem final : public Object<IUrlSource, IMediaAttributes> {
public:
    PublishedItem(std::string url, Ref<Attributes> media)
        : m_url(std::move(url)),
          m_media(std::move(media)) {}

    Result getUrl(IString** out) noexcept override;
    Result getMediaAttributes(IAttributes* out) noexcept override;

private:
    std::string m_url;
    Ref<Attributes> m_media;
};

/// Gives published items one after the other.
class PublishedItems final : public Object<IObjectIterator> {
public:
    void add(std::string url, Ref<Attributes> media);

    /// Gives each item away.
    Result next(IObject** out) noexcept override;

private:
    std::vector<Ref<PublishedItem>> m_items;
    std::size_t m_next = 0;
};

/// The type of a file by its extension, known to the registry or not; of a name without one, that of some
/// audio.
Ref<IFileType> fileTypeOf(const std::string& path);

} // namespace xbr::host
