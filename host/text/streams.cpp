#include "host/text/streams.h"

#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

#include <optional>
#include <string>

namespace xbr::host {

namespace {

class TextStreamer final : public Object<ITextStreamer> {
public:
    explicit TextStreamer(IStream* stream) : m_stream(Ref<IStream>::share(stream)) {}

    Result readLine(IString** out) noexcept override {
        *out = nullptr;
        auto end = m_buffer.find('\n', m_start);
        while (end == std::string::npos && !m_isAtEnd) {
            const auto searched = m_buffer.size() - m_start;
            if (!fill()) {
                return kUnexpected;
            }
            end = m_buffer.find('\n', searched);
        }
        if (m_start == m_buffer.size()) {
            return kFalse;
        }
        return giveText(takeLine(end), out);
    }

private:
    /// Removes the line that ends at `end` (npos: the last one, which has no line end).
    std::string takeLine(std::size_t end) {
        std::string line = m_buffer.substr(m_start, end == std::string::npos ? end : end - m_start);
        m_start = end == std::string::npos ? m_buffer.size() : end + 1;
        if (end != std::string::npos && line.ends_with('\r')) {
            line.pop_back();
        }
        return line;
    }

    /// Appends a piece of the stream, after dropping what has been answered.
    bool fill() {
        static constexpr std::uint64_t kPiece = std::uint64_t{1} << 14U;
        m_buffer.erase(0, m_start);
        m_start = 0;
        const auto size = m_buffer.size();
        m_buffer.resize(size + kPiece);
        std::uint64_t done = 0;
        const Result result = m_stream->read(m_buffer.data() + size, kPiece, &done);
        m_buffer.resize(size + std::min(done, kPiece));
        m_isAtEnd = done < kPiece;
        skipByteOrderMark();
        return succeeded(result);
    }

    void skipByteOrderMark() {
        if (m_isAtStart && m_buffer.starts_with("\xEF\xBB\xBF")) {
            m_start = 3;
        }
        m_isAtStart = false;
    }

    Ref<IStream> m_stream;
    std::string m_buffer;
    std::size_t m_start = 0; ///< of what has not been answered yet
    bool m_isAtStart = true;
    bool m_isAtEnd = false;
};

} // namespace

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

xbr::Result XBRCreateTextStreamer(xbr::IStream* stream, xbr::ITextStreamer** out) noexcept {
    *out = nullptr;
    if (!stream) {
        return xbr::kInvalidArgument;
    }
    *out = xbr::make<xbr::host::TextStreamer>(stream).detach();
    return xbr::kOk;
}
