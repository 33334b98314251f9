#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "tests/fuzz/fuzz.h"

/// A module's archive: what it says to have can be read whole or not at all.
void fuzz::read(std::string_view input) {
    auto& files = *XBRGetFileSystem();
    if (files.registerResources(xbr::toText("fuzz"), input.data(), input.size()) != xbr::kOk) {
        return;
    }
    for (const std::string_view url : {"resource://fuzz/a", "resource://fuzz/b/c", "resource://fuzz/b"}) {
        xbr::Ref<xbr::IStream> stream;
        if (files.openForReading(xbr::toText(url), stream.out()) == xbr::kOk) {
            expect(files.fileExists(xbr::toText(url)));
            const auto size = xbr::measure(*stream);
            expect(size >= 0 && xbr::readAll(*stream).size() == static_cast<std::size_t>(size));
        }
        files.folderExists(xbr::toText(url));
    }
    expect(files.unregisterResources(xbr::toText("fuzz")) == xbr::kOk);
}
