#pragma once

#include "framework/abi/feed.h"
#include "framework/abi/webservice.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"

#include <string>
#include <string_view>

namespace xbr::host::test {

/// What a reader was given.
struct FeedSource {
    std::string document;
    std::string location = "https://news.example/feeds/feed.atom";
    std::string mimeType = {};
};

inline Ref<IFeed> readFeed(const FeedSource& source, Result* result = nullptr) {
    const auto stream = make<MemoryStream>();
    stream->write(source.document);
    rewind(*stream);
    Ref<IFeed> feed;
    const Result answered =
        query<IFeedReader>(XBRGetWebService())
            ->readFeed(stream.get(), toText(source.location), toText(source.mimeType), feed.out());
    if (result) {
        *result = answered;
    }
    return feed;
}

/// An Atom feed around some XML.
inline std::string atom(std::string_view inside, std::string_view attributes = {}) {
    return "<feed xmlns=\"http://www.w3.org/2005/Atom\" " + std::string(attributes) + ">" +
           std::string(inside) + "</feed>";
}

inline std::string atomEntry(std::string_view inside) {
    return atom("<entry>" + std::string(inside) + "</entry>");
}

/// "rel type href" of each link, in lines.
inline std::string linksOf(const IFeedEntry& entry) {
    std::string text;
    for (std::int32_t i = 0; i < entry.countLinks(); ++i) {
        for (const char* name : {"rel", "type", "href"}) {
            text += toString(entry.linkAttribute(i, toText(name))) +
                    (std::string_view(name) == "href" ? "\n" : " ");
        }
    }
    return text;
}

} // namespace xbr::host::test
