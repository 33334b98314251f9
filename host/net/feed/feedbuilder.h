#pragma once

#include "host/net/feed/feedrecord.h"

#include <QUrl>

#include <cstdint>
#include <string>
#include <string_view>

namespace xbr::host {

/// What an element of a feed is to its reader.
enum class FeedPart : std::uint8_t {
    kOutside, ///< above the root
    kSkipped, ///< neither it nor what is in it is read
    kFeed,
    kFeedTitle,
    kEntry,
    kTitle,
    kSummary,
    kContent,
    kPublished,
    kUpdated,
    kLink,
    kCategory,
    kMarkup, ///< XHTML in a text
};

/// An element's attributes by local name.
using FeedAttributes = FeedLink;

std::string_view attributeOf(const FeedAttributes& attributes, std::string_view name);

/// Adds an attribute, or replaces the one of that name.
void setAttribute(FeedAttributes& attributes, std::string_view name, std::string value);

/// Puts together what the elements of a feed tell.
class FeedBuilder {
public:
    static constexpr std::size_t kMaximumEntries = 10'000;

    /// Each of very many short references may become a long address.
    static constexpr std::size_t kMaximumAddressBytes = std::size_t{16} << 20U;

    /// More links or categories of one entry are left out.
    static constexpr std::size_t kMaximumOfEntry = 64;

    /// The element `part` begins.
    void begin(FeedPart part, const FeedAttributes& attributes, const QUrl& base);

    /// The element `part` ends; its text is plain.
    void end(FeedPart part, std::string text);

    /// True when the feed has more than a feed has. What came after that was left out.
    bool isOverLimits() const { return m_isOverLimits; }

    FeedRecord take() { return std::move(m_feed); }

private:
    void addLink(FeedLink link, const QUrl& base);

    FeedRecord m_feed;
    std::size_t m_addressBytes = 0; ///< what all links take, see kMaximumAddressBytes
    bool m_isOverLimits = false;
};

/// The longest address, absolute or relative, that is looked at.
constexpr std::size_t kMaximumAddress = 2048;

/// A reference made absolute; invalid when it is no reference, or when it or the result is too long.
QUrl resolved(const QUrl& base, std::string_view reference);

} // namespace xbr::host
