#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace xbr::host::tests {
namespace {

TEST(FileTypeRegistryTest, KnowsTypesByExtensionAndByMimeType) {
    const std::pair<const char*, const char*> cases[] = {
        {"wav", "wav audio/x-wav"},
        {"WAV", "wav audio/x-wav"},
        {"mp3", "mp3 audio/mpeg"},
        {"aiff", "aiff audio/x-aiff"},
        {"", "-"},
        {"no-such-type", "-"},
        {"audio/wav", "wav audio/x-wav"},
        {"audio/mpeg", "mp3 audio/mpeg"},
        {"Image/JPEG; charset=binary", "jpg image/jpeg"},
        {"application/octet-stream", "-"},
    };
    auto& registry = *XBRGetFileTypeRegistry();
    for (const auto& [asked, expected] : cases) {
        Ref<IFileType> type;
        const bool isMimeType = std::string_view(asked).find('/') != std::string_view::npos;
        isMimeType ? registry.getTypeByMimeType(toText(asked), type.out())
                   : registry.getTypeByExtension(toText(asked), type.out());
        const auto known = type ? toString(type->extension()) + " " + toString(type->mimeType()) : "-";
        EXPECT_EQ(known, expected) << asked;
    }
}

class Handler final : public Object<IFileHandler> {
public:
    bool openUrl(Text /*url*/) noexcept override { return takes(); }

    std::function<bool()> takes;
};

TEST(FileTypeRegistryTest, HandlersMayLeaveWhileAUrlIsOffered) {
    auto& registry = *XBRGetFileTypeRegistry();
    std::vector<int> asked;
    Ref<Handler> handlers[3];
    for (auto& handler : handlers) {
        handler = make<Handler>();
        handler->takes = [&] {
            asked.push_back(static_cast<int>(&handler - handlers));
            return true;
        };
        EXPECT_EQ(registry.addHandler(handler.get()), kOk);
    }
    EXPECT_EQ(registry.addHandler(handlers[2].get()), kFalse);
    // The first one removes itself and the second one, and the registry held their last references.
    handlers[0]->takes = [&] {
        asked.push_back(0);
        for (auto* handler : {&handlers[0], &handlers[1]}) {
            registry.removeHandler(handler->get());
            handler->reset();
        }
        return false;
    };
    EXPECT_TRUE(registry.openUrl(toText("brindlex://x")));
    EXPECT_EQ(asked, (std::vector{0, 2}));
    EXPECT_EQ(registry.removeHandler(handlers[2].get()), kOk);
    EXPECT_EQ(registry.removeHandler(handlers[2].get()), kFalse);
    EXPECT_FALSE(registry.openUrl(toText("brindlex://x")));
}

} // namespace
} // namespace xbr::host::tests
