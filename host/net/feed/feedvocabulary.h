#pragma once

#include "host/net/feed/xmlnamespaces.h"

#include <cstdint>

namespace xbr::host {

/// What an element of a feed is to its reader.
enum class FeedPart : std::uint8_t {
    kOutside, ///< above the root
    kSkipped, ///< neither it nor what is in it is read
    kRss,
    kFeed,
    kFeedTitle,
    kEntry,
    kTitle,
    kSummary,
    kContent,
    kPublished,
    kUpdated,
    kLink,      ///< Atom's: everything is in its attributes
    kAddress,   ///< RSS's link: its text is the address
    kEnclosure, ///< RSS's
    kGuid,
    kCategory, ///< Atom's
    kSubject,  ///< RSS's category: its text is the term
    kMarkup,   ///< XHTML in a text
};

/// How the contents of an element are written.
enum class FeedText : std::uint8_t {
    kNone,
    kRaw,
    kAtom, ///< as the attribute "type" says (RFC 4287, sections 3.1.1 and 4.1.3)
    kHtml, ///< RSS does not say, and most write HTML
    kRfc3339Date,
    kRfc822Date,
};

struct FeedElement {
    FeedPart part = FeedPart::kSkipped;
    FeedText text = FeedText::kNone;
};

/// What an element is inside an element that is `parent`. Those of other vocabularies, and those in the wrong
/// place, are skipped.
FeedElement feedElement(FeedPart parent, const XmlName& name);

} // namespace xbr::host
