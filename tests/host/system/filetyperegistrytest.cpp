#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace xbr::host::tests {
namespace {

/// "extension mime-type" of what the registry answers; "-" when it knows none.
template <class Method>
std::string asked(Method method, std::string_view what) {
    Ref<IFileType> type;
    const auto result = (XBRGetFileTypeRegistry()->*method)(toText(what), type.out());
    EXPECT_EQ(result, type ? kOk : kFalse) << what;
    return type ? toString(type->extension()) + " " + toString(type->mimeType()) : "-";
}

TEST(FileTypeRegistryTest, KnowsTypesByExtensionAndByMimeType) {
    const std::pair<const char*, const char*> extensions[] = {
        {"wav", "wav audio/x-wav"},    {"WAV", "wav audio/x-wav"}, {"mp3", "mp3 audio/mpeg"},
        {"aiff", "aiff audio/x-aiff"}, {"jpg", "jpg image/jpeg"},  {"", "-"},
        {"no-such-type", "-"},
    };
    for (const auto& [extension, expected] : extensions) {
        EXPECT_EQ(asked(&IFileTypeRegistry::getTypeByExtension, extension), expected) << extension;
    }
    const std::pair<const char*, const char*> mimeTypes[] = {
        {"audio/x-wav", "wav audio/x-wav"},
        {"audio/wav", "wav audio/x-wav"},
        {"audio/mpeg", "mp3 audio/mpeg"},
        {"audio/x-aiff", "aiff audio/x-aiff"},
        {"Image/JPEG; charset=binary", "jpg image/jpeg"},
        {"application/octet-stream", "-"},
        {"", "-"},
    };
    for (const auto& [type, expected] : mimeTypes) {
        EXPECT_EQ(asked(&IFileTypeRegistry::getTypeByMimeType, type), expected) << type;
    }
    Ref<IFileType> made;
    EXPECT_EQ(XBRGetFileTypeRegistry()->createType(toText("Odd"), made.out()), kOk);
    EXPECT_EQ(view(made->extension()), "Odd");
    EXPECT_EQ(XBRGetFileTypeRegistry()->createType(Text{}, made.out()), kInvalidArgument);
    EXPECT_FALSE(made);
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
