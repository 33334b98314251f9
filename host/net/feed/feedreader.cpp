#include "host/net/feed/feedreader.h"

#include "framework/abi/textformats.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "host/net/feed/feedencoding.h"
#include "host/net/feed/feedobjects.h"
#include "host/net/feed/feedparser.h"

#include <vector>

namespace xbr::host {

namespace {

constexpr std::uint64_t kMaximumSize = std::uint64_t{8} << 20U;

/// Reads to the end. kInvalidArgument when that is farther than a feed is long.
Result readBytes(IStream& stream, std::string& bytes) {
    std::vector<char> piece(std::size_t{64} << 10U);
    for (;;) {
        std::uint64_t done = 0;
        if (stream.read(piece.data(), piece.size(), &done) != kOk) {
            return kUnexpected;
        }
        bytes.append(piece.data(), done);
        if (bytes.size() > kMaximumSize) {
            return kInvalidArgument;
        }
        if (done < piece.size()) {
            return kOk;
        }
    }
}

Ref<MemoryStream> streamOf(std::string_view bytes) {
    auto stream = make<MemoryStream>();
    stream->write(bytes);
    rewind(*stream);
    return stream;
}

} // namespace

Result readFeed(IStream& stream, Text location, Text mimeType, IFeed** out) {
    std::string bytes;
    if (const Result result = readBytes(stream, bytes); result != kOk) {
        return result;
    }
    const auto document = utf8Document(bytes, view(mimeType));
    if (!document) {
        return kInvalidArgument;
    }
    const auto parser = make<FeedParser>(resolved({}, view(location)));
    // The parser refuses document types, and documents that are too deep or ill-formed.
    if (XBRXmlParse(streamOf(*document).get(), parser.get()) != kOk || !parser->isFeed()) {
        return kInvalidArgument;
    }
    giveFeed(parser->take(), out);
    return kOk;
}

} // namespace xbr::host
