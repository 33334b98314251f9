#include "framework/support/data/attributes.h"
#include "framework/support/data/memorystream.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/streams.h"

namespace {

std::string written(const xbr::Attributes& root) {
    const auto stream = xbr::make<xbr::MemoryStream>();
    fuzz::expect(xbr::writeJson(root, *stream) && xbr::rewind(*stream));
    return xbr::readAll(*stream);
}

} // namespace

/// What was read can be written, and says the same then.
void fuzz::read(std::string_view input) {
    const auto root = xbr::readJson(*streamOf(input));
    if (!root) {
        return;
    }
    const std::string text = written(*root);
    const auto again = xbr::readJson(*streamOf(text));
    expect(again && written(*again) == text);
}
