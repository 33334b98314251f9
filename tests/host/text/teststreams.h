#pragma once

#include "framework/abi/stream.h"
#include "framework/support/data/memorystream.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace xbr::host::tests {

/// A stream that holds these bytes.
inline Ref<MemoryStream> streamOf(std::string_view bytes) {
    auto stream = make<MemoryStream>();
    stream->write(bytes);
    rewind(*stream);
    return stream;
}

/// A stream that answers some bytes and then breaks, in reading as in writing.
class BrokenStream final : public Object<IStream> {
public:
    explicit BrokenStream(std::string bytes) : m_bytes(std::move(bytes)) {}

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override {
        *done = std::min(size, std::uint64_t{m_bytes.size()});
        std::memcpy(buffer, m_bytes.data(), *done);
        m_bytes.erase(0, *done);
        return *done == size ? kOk : kUnexpected;
    }
    Result write(const void* /*buffer*/, std::uint64_t /*size*/, std::uint64_t* done) noexcept override {
        *done = 0;
        return kUnexpected;
    }
    Result seek(std::int64_t /*offset*/, SeekOrigin /*origin*/,
                std::int64_t* /*position*/) noexcept override {
        return kUnexpected;
    }

private:
    std::string m_bytes;
};

inline std::string repeated(std::string_view piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

} // namespace xbr::host::tests
