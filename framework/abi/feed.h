#pragma once

#include "framework/abi/stream.h"
#include "framework/abi/text.h"

namespace xbr {

/// One entry of a feed. All texts are plain text: markup is taken out, its paragraphs become lines.
struct IFeedEntry : IObject {
    static constexpr Uid kUid = uid("68684f8f-5e59-476c-ae82-e4be093e9f68");

    virtual Text title() const noexcept = 0;
    virtual Text summary() const noexcept = 0;

    /// Empty also when the entry only refers to its content, or the content is no text.
    virtual Text content() const noexcept = 0;

    /// When the entry was published, or changed last if it does not tell that; kFalse when it tells neither,
    /// or not in a legal form.
    virtual Result getPublished(std::int64_t* time) const noexcept = 0;

    virtual std::int32_t countLinks() const noexcept = 0;

    /// An attribute of link `index`, empty when it has none of that name. "rel" is always there ("alternate"
    /// unless the feed says otherwise), "href" is absolute if the feed's location is; of attributes of
    /// foreign namespaces only the local names count.
    virtual Text linkAttribute(std::int32_t index, Text name) const noexcept = 0;

    virtual std::int32_t countCategories() const noexcept = 0;
    virtual Text categoryTermAt(std::int32_t index) const noexcept = 0; ///< empty beyond the last
};

/// A feed as it was read. Never changes.
struct IFeed : IObject {
    static constexpr Uid kUid = uid("1a9e9d9a-1bf5-4863-acb8-9b625c07ac52");

    virtual Text title() const noexcept = 0;
    virtual std::int32_t countEntries() const noexcept = 0;

    /// Entry `index` in the order of the feed, 0 to countEntries() - 1; null beyond. Borrowed.
    virtual IFeedEntry* entryAt(std::int32_t index) noexcept = 0;
};

/// Reads feeds; asked of the web service. Sends no requests.
struct IFeedReader : IObject {
    static constexpr Uid kUid = uid("926982b8-2118-4dc5-bc32-3f117ed0968e");

    /// Reads an Atom 1.0 document (RFC 4287) from the stream's position, handed over. `location` is where it
    /// was found, for its relative references; `mimeType` what the server declared, for the encoding (RFC
    /// 7303). Either may be empty.
    ///
    /// kInvalidArgument and null: no such document, ill-formed, with a document type declaration, of more
    /// than 8 MiB or 10,000 entries, or deeper than 64; kUnexpected: reading failed.
    virtual Result readFeed(IStream* stream, Text location, Text mimeType, IFeed** out) noexcept = 0;
};

} // namespace xbr
