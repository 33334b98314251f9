#include "host/net/feed/feedbuilder.h"

#include "framework/support/objects/text.h"
#include "host/base/qttext.h"

#include <QDate>
#include <QDateTime>
#include <QRegularExpression>

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

/// The first of several counts.
void keepFirst(std::string& present, std::string text) {
    if (present.empty()) {
        present = std::move(text);
    }
}

/// A date and time of RFC 3339 (section 5.6): any number of fraction digits, "T" and "Z" in either case or a
/// blank between, leap seconds. Seconds since 1970-01-01T00:00:00Z; nothing without an offset from UTC.
std::optional<std::int64_t> parseTime(std::string_view text) {
    static const QRegularExpression kForm(
        QStringLiteral("^([0-9]{4}-[0-9]{2}-[0-9]{2})[Tt ]([01][0-9]|2[0-3]):([0-5][0-9]):([0-5][0-9]|60)"
                       "(?:\\.[0-9]+)?(?:[Zz]|([+-])([01][0-9]|2[0-3]):?([0-5][0-9]))$"));
    static constexpr qint64 kMinute = 60;
    static constexpr qint64 kHour = 60 * kMinute;
    const auto found = kForm.match(toQString(trim(text)));
    const QDate day = QDate::fromString(found.captured(1), Qt::ISODate);
    if (!day.isValid()) {
        return std::nullopt;
    }
    const auto number = [&](int group) { return found.captured(group).toLongLong(); };
    const qint64 ahead = (number(6) * kHour + number(7) * kMinute) * (found.captured(5) == u"-" ? -1 : 1);
    return day.startOfDay(Qt::UTC).toSecsSinceEpoch() + number(2) * kHour + number(3) * kMinute + number(4) -
           ahead;
}

void keepFirst(std::optional<std::int64_t>& present, std::string_view text) {
    if (!present) {
        present = parseTime(text);
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
    const QUrl relative(toQString(reference));
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
    if (part == FeedPart::kEntry) {
        m_feed.entries.emplace_back();
    } else if (part == FeedPart::kLink) {
        addLink(attributes, base);
    } else if (part == FeedPart::kCategory && m_feed.entries.back().categories.size() < kMaximumOfEntry) {
        m_feed.entries.back().categories.emplace_back(attributeOf(attributes, "term"));
    }
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

void FeedBuilder::end(FeedPart part, std::string text) {
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
        return keepFirst(entry.published, text);
    case FeedPart::kUpdated:
        return keepFirst(entry.updated, text);
    default:
        return;
    }
}

} // namespace xbr::host
