#include "host/text/streams.h"

namespace xbr::host {

StreamContents readUpTo(IStream& stream, std::uint64_t limit) {
    static constexpr std::uint64_t kPiece = std::uint64_t{1} << 16U;
    std::string bytes;
    for (;;) {
        const auto size = bytes.size();
        bytes.resize(size + kPiece);
        std::uint64_t done = 0;
        const Result result = stream.read(bytes.data() + size, kPiece, &done);
        bytes.resize(size + std::min(done, kPiece));
        if (!succeeded(result)) {
            return {kUnexpected, {}};
        }
        if (bytes.size() > limit) {
            return {kInvalidArgument, {}};
        }
        if (done < kPiece) {
            return {kOk, std::move(bytes)};
        }
    }
}

} // namespace xbr::host
