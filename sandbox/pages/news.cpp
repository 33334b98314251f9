#include "sandbox/pages/news.h"

#include "sandbox/http/text.h"
#include "sandbox/pages/pages.h"
#include "sandbox/pages/picture.h"

#include <array>
#include <string_view>

namespace sandbox {
namespace {

constexpr const char* kLastModified = "Mon, 02 Jun 2025 09:30:00 GMT";
constexpr const char* kFeedUpdated = "2025-06-02T09:30:00Z";

struct Entry {
    const char* title;
    const char* summary;
    const char* content;
    const char* published; // empty: the entry has no dates
    const char* category;
    const char* enclosures; // XML
};

constexpr std::array<Entry, 6> kEntries = {{
    {"Lossless delivery for every release", "FLAC and 24-bit WAV now reach all stores.",
     "Hand in your masters as they are. We convert where a store needs it, and keep the original.",
     "2025-06-02T09:30:00Z", "Product",
     R"(<link rel="enclosure" type="image/png" href="news/image1.png"/>
    <link rel="enclosure" type="image/png" devicePixelRatio="2x" href="news/image1@2x.png"/>)"},
    {"Release planning: Fridays & the week before", "Why 'in good time' means seven days.",
     "Stores plan their front pages a week ahead. Hand in by Friday to be seen on Friday.",
     "2025-05-23T08:00:00+02:00", "Guide",
     R"(<link rel="enclosure" type="image/png" devicePixelRatio="2x" href="/news/image2@2x.png"/>
    <link rel="enclosure" type="image/png" href="/news/image2.png"/>)"},
    {"Portrait: Hafþór and the 4 <am> sessions", "Eleven tracks, one harbour, no daylight.",
     "A conversation about field recordings, patience and mixing on headphones.", "2025-05-12T17:45:00Z",
     "Artists", R"(<link rel="enclosure" type="image/png" href="news/image3.png"/>)"},
    {"House rules for cover artwork", "Square, sharp, yours.",
     "No logos of stores, no prices, no web addresses. This entry has no picture on purpose.", "", "Guide",
     ""},
    {"Listen: the night shift mix", "Forty minutes from this month's releases.",
     "The mix is an audio enclosure; there is no picture to go with it.", "2025-04-30T20:00:00Z", "Listening",
     R"(<link rel="enclosure" type="audio/mpeg" length="38400000" href="news/night-shift.mp3"/>)"},
    {"Maintenance on 6 April", "Uploads pause for half an hour.",
     "From 02:00 to 02:30 UTC releases cannot be handed in. Nothing that was handed in before is affected.",
     "2025-04-01T12:00:00Z", "Service",
     R"(<link rel="enclosure" type="image/png" href="news/image6.png"/>
    <link rel="enclosure" type="image/png" devicePixelRatio="2x" href="news/image6@2x.png"/>)"},
}};

std::string element(const std::string& name, const std::string& text, const std::string& attributes = "") {
    return "    <" + name + attributes + ">" + escapeMarkup(text) + "</" + name + ">\n";
}

std::string entryXml(const Entry& entry, std::size_t number) {
    const auto index = std::to_string(number);
    std::string out = "  <entry>\n" + element("id", "tag:brindlex.example,2025:news/" + index) +
                      element("title", entry.title);
    if (*entry.published != '\0') {
        out += element("updated", entry.published) + element("published", entry.published);
    }
    out += element("summary", entry.summary) + element("content", entry.content, " type=\"text\"");
    out += "    <link rel=\"alternate\" type=\"text/html\" href=\"news/" + index + "\"/>\n";
    out += "    <category term=\"" + escapeMarkup(entry.category) + "\"/>\n";
    if (*entry.enclosures != '\0') {
        out += "    " + std::string(entry.enclosures) + "\n";
    }
    return out + "  </entry>\n";
}

std::string feedXml() {
    std::string out =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<feed xmlns=\"http://www.w3.org/2005/Atom\">\n"
        "  <id>tag:brindlex.example,2025:news</id>\n  <title>Brindlex News</title>\n"
        "  <author><name>Brindlex</name></author>\n  <updated>" +
        std::string(kFeedUpdated) + "</updated>\n  <link rel=\"self\" href=\"feed.atom\"/>\n";
    for (std::size_t i = 0; i < kEntries.size(); ++i) {
        out += entryXml(kEntries[i], i + 1);
    }
    return out + "</feed>\n";
}

// Any of the tags that the reader lists; "*" means any at all.
bool listsTag(const std::string& list, const std::string& tag) {
    return list == "*" || list.find(tag) != std::string::npos;
}

bool isCurrent(const RequestHead& head, const std::string& tag) {
    if (head.has("If-None-Match")) {
        return listsTag(head.header("If-None-Match"), tag);
    }
    return head.header("If-Modified-Since") == kLastModified;
}

} // namespace

News::News() {
    m_documents.push_back({"/feed.atom", "application/atom+xml; charset=utf-8", "\"feed-1\"", feedXml});
    for (std::size_t i = 0; i < kEntries.size(); ++i) {
        const auto index = std::to_string(i + 1);
        m_documents.push_back({"/news/" + index, "text/html; charset=utf-8", "\"news-" + index + "-1\"",
                               [i] { return articlePage(kEntries[i].title, kEntries[i].content); }});
    }
    addPicture("image1", 320, 180, 0);
    addPicture("image1@2x", 640, 360, 0);
    addPicture("image2", 320, 180, 1);
    addPicture("image2@2x", 640, 360, 1);
    addPicture("image3", 320, 180, 2);
    addPicture("image6", 201, 113, 3);
    addPicture("image6@2x", 401, 225, 3);
}

void News::addPicture(const std::string& name, int width, int height, int variant) {
    m_documents.push_back({"/news/" + name + ".png", "image/png", "\"" + name + "-1\"",
                           [width, height, variant] { return drawPicture(width, height, variant); }});
}

Reply News::serve(const Document& document, const RequestHead& head) {
    Reply reply;
    if (isCurrent(head, document.tag)) {
        reply.status = 304;
    } else {
        reply.contentType = document.contentType;
        reply.body = document.make();
    }
    reply.headers = {{"ETag", document.tag}, {"Last-Modified", kLastModified}, {"Cache-Control", "no-cache"}};
    return reply;
}

} // namespace sandbox
