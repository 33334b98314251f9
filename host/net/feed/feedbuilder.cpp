#include "host/net/feed/feedbuilder.h"

#include "framework/support/objects/text.h"
#include "host/net/feed/timestamps.h"

#include <algorithm>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::string_view kAlternate = "alternate";

/// Relations that IANA registered may be written as a whole IRI (RFC 4287, section 4.2.7.2).
std::string relationName(std::string_view relation) {
    static constexpr std::string_view kRegistered = "http://www.iana.org/assignments/relation/";
    relation = trim(relation);
    if (relation.starts_with(kRegistered)) {
        relation.remove_prefix(kRegistered.size());
    }
    return relation.empty() ? std::string(kAlternate) : std::string(relation);
}

bool isAlternate(const FeedLink& link) {
    return attributeOf(link, "rel") == kAlternate;
}

/// The first of several counts.
void keepFirst(std::string& present, std::string text) {
    if (present.empty()) {
        present = std::move(text);
    }
}

void keepFirst(std::optional<std::int64_t>& present, FeedText kind, std::string_view text) {
    if (!present) {
        // Dublin Core's dates may be days only; a day without a clock is not an instant and does not count.
        present = kind == FeedText::kRfc822Date ? parseRfc822(text) : parseRfc3339(text);
    }
}

} // namespace

std::string_view attributeOf(const FeedAttributes& attributes, std::string_view name) {
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const auto& pair) { return pair.first == name; });
    return found == attributes.end() ? std::string_view() : std::string_view(found->second);
}

void setAttribute(FeedAttributes& attributes, std::string_view name, std::string value) {
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const auto& pair) { return pair.first == name; });
    if (found == attributes.end()) {
        attributes.emplace_back(name, std::move(value));
    } else {
        found->second = std::move(value);
    }
}

QUrl resolved(const QUrl& base, std::string_view reference) {
    reference = trim(reference);
    if (reference.size() > kMaximumAddress) {
        return {};
    }
    const QUrl relative(QString::fromUtf8(reference.data(), static_cast<qsizetype>(reference.size())));
    if (!relative.isValid() && !reference.empty()) {
        return {};
    }
    const QUrl target = base.isEmpty() ? relative : base.resolved(relative);
    return static_cast<std::size_t>(target.path().size()) > kMaximumAddress ? QUrl() : target;
}

void FeedBuilder::begin(FeedPart part, const FeedAttributes& attributes, const QUrl& base) {
    m_isOverLimits = m_isOverLimits || (part == FeedPart::kEntry && m_feed.entries.size() == kMaximumEntries);
    if (m_isOverLimits) {
        return;
    }
    switch (part) {
    case FeedPart::kEntry:
        m_feed.entries.emplace_back();
        break;
    case FeedPart::kLink:
        addLink(attributes, base);
        break;
    case FeedPart::kEnclosure:
        addEnclosure(attributes, base);
        break;
    case FeedPart::kCategory:
        addCategory(std::string(attributeOf(attributes, "term")));
        break;
    default:
        break;
    }
}

void FeedBuilder::addEnclosure(FeedLink link, const QUrl& base) {
    setAttribute(link, "href", std::string(attributeOf(link, "url")));
    setAttribute(link, "rel", "enclosure");
    addLink(std::move(link), base);
}

void FeedBuilder::addLink(FeedLink link, const QUrl& base) {
    static constexpr std::size_t kLeast = 64; // an address that comes to nothing is work as well
    auto& links = m_feed.entries.back().links;
    const QUrl target = resolved(base, attributeOf(link, "href"));
    std::string address = target.toString(QUrl::FullyEncoded).toStdString();
    m_addressBytes += std::max(address.size(), kLeast);
    m_isOverLimits = m_addressBytes > kMaximumAddressBytes;
    if (attributeOf(link, "href").empty() || !target.isValid() || links.size() == kMaximumOfEntry) {
        return;
    }
    setAttribute(link, "rel", relationName(attributeOf(link, "rel")));
    setAttribute(link, "href", std::move(address));
    links.push_back(std::move(link));
}

void FeedBuilder::addAddress(const std::string& address, const QUrl& base) {
    addLink({{"rel", std::string(kAlternate)}, {"href", address}}, base);
}

void FeedBuilder::addGuid(const FeedAttributes& attributes, std::string text) {
    if (attributeOf(attributes, "isPermaLink") != "false") {
        m_permanentLink = std::move(text);
    }
}

void FeedBuilder::addCategory(std::string term) {
    auto& categories = m_feed.entries.back().categories;
    if (categories.size() < kMaximumOfEntry) {
        categories.push_back(std::move(term));
    }
}

void FeedBuilder::end(FeedPart part, FeedText kind, const FeedAttributes& attributes, const QUrl& base,
                      std::string text) {
    if (part == FeedPart::kFeedTitle) {
        return keepFirst(m_feed.title, std::move(text));
    }
    if (m_feed.entries.empty() || m_isOverLimits) {
        return;
    }
    auto& entry = m_feed.entries.back();
    switch (part) {
    case FeedPart::kTitle:
        return keepFirst(entry.title, std::move(text));
    case FeedPart::kSummary:
        return keepFirst(entry.summary, std::move(text));
    case FeedPart::kContent:
        return keepFirst(entry.content, std::move(text));
    case FeedPart::kPublished:
        return keepFirst(entry.published, kind, text);
    case FeedPart::kUpdated:
        return keepFirst(entry.updated, kind, text);
    case FeedPart::kAddress:
        return addAddress(text, base);
    case FeedPart::kGuid:
        return addGuid(attributes, std::move(text));
    case FeedPart::kSubject:
        return addCategory(std::move(text));
    case FeedPart::kEntry:
        return endEntry();
    default:
        return;
    }
}

void FeedBuilder::endEntry() {
    const std::string permanent = std::exchange(m_permanentLink, {});
    const auto& links = m_feed.entries.back().links;
    // A permanent link is a whole address; what is not is a number or a name that nobody can follow.
    const bool isWeb = permanent.starts_with("http://") || permanent.starts_with("https://");
    if (isWeb && std::none_of(links.begin(), links.end(), &isAlternate)) {
        addAddress(permanent, {});
    }
}

} // namespace xbr::host
