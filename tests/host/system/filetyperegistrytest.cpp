#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace xbr::host::tests {
namespace {

struct Known {
    const char* asked;
    const char* extension; ///< null: unknown
    const char* mimeType;
};

void expectType(const Known& expected, Result result, const Ref<IFileType>& type) {
    SCOPED_TRACE(expected.asked);
    ASSERT_EQ(result, expected.extension ? kOk : kFalse);
    ASSERT_EQ(static_cast<bool>(type), expected.extension != nullptr);
    if (type) {
        EXPECT_EQ(view(type->extension()), expected.extension);
        EXPECT_EQ(view(type->mimeType()), expected.mimeType);
    }
}

TEST(FileTypeRegistryTest, KnowsTheTypesOfExtensions) {
    const std::vector<Known> table = {
        {"wav", "wav", "audio/x-wav"},      {"WAV", "wav", "audio/x-wav"}, {"Flac", "flac", "audio/flac"},
        {"mp3", "mp3", "audio/mpeg"},       {"ogg", "ogg", "audio/ogg"},   {"aiff", "aiff", "audio/x-aiff"},
        {"aif", "aif", "audio/x-aiff"},     {"jpg", "jpg", "image/jpeg"},  {"", nullptr, nullptr},
        {"no-such-type", nullptr, nullptr}, {"a/wav", nullptr, nullptr},
    };
    for (const auto& known : table) {
        Ref<IFileType> type;
        const auto result = XBRGetFileTypeRegistry()->getTypeByExtension(toText(known.asked), type.out());
        expectType(known, result, type);
    }
}

TEST(FileTypeRegistryTest, KnowsTheTypesOfMimeTypes) {
    const std::vector<Known> table = {
        {"audio/x-wav", "wav", "audio/x-wav"},
        {"audio/wav", "wav", "audio/x-wav"},
        {"audio/flac", "flac", "audio/flac"},
        {"audio/mpeg", "mp3", "audio/mpeg"},
        {"audio/x-aiff", "aiff", "audio/x-aiff"},
        {"audio/ogg", "ogg", "audio/ogg"},
        {"Image/JPEG; charset=binary", "jpg", "image/jpeg"},
        {"application/octet-stream", nullptr, nullptr}, // says nothing about the file
        {"nonsense", nullptr, nullptr},
        {"", nullptr, nullptr},
    };
    for (const auto& known : table) {
        Ref<IFileType> type;
        const auto result = XBRGetFileTypeRegistry()->getTypeByMimeType(toText(known.asked), type.out());
        expectType(known, result, type);
    }
}

TEST(FileTypeRegistryTest, MakesTypesAsTheyAreAskedFor) {
    Ref<IFileType> type;
    EXPECT_EQ(XBRGetFileTypeRegistry()->createType(toText("Odd"), type.out()), kOk);
    EXPECT_EQ(view(type->extension()), "Odd");
    EXPECT_EQ(XBRGetFileTypeRegistry()->createType(Text{}, type.out()), kInvalidArgument);
    EXPECT_FALSE(type);
}

class Handler final : public Object<IFileHandler> {
public:
    explicit Handler(std::function<bool()> takes) : m_takes(std::move(takes)) {}
    bool openUrl(Text /*url*/) noexcept override { return m_takes(); }

private:
    std::function<bool()> m_takes;
};

TEST(FileTypeRegistryTest, HandlersMayLeaveWhileAUrlIsOffered) {
    auto& registry = *XBRGetFileTypeRegistry();
    std::vector<int> asked;
    Ref<Handler> first;
    Ref<Handler> second;
    // The first one removes itself and the second one, and the registry held their last references.
    first = make<Handler>([&] {
        asked.push_back(1);
        registry.removeHandler(first.get());
        registry.removeHandler(second.get());
        first.reset();
        second.reset();
        return false;
    });
    second = make<Handler>([&] {
        asked.push_back(2);
        return true;
    });
    const auto third = make<Handler>([&] {
        asked.push_back(3);
        return true;
    });
    for (auto* handler : {first.get(), second.get(), third.get()}) {
        EXPECT_EQ(registry.addHandler(handler), kOk);
    }
    EXPECT_EQ(registry.addHandler(third.get()), kFalse);
    EXPECT_TRUE(registry.openUrl(toText("brindlex://x")));
    EXPECT_EQ(asked, (std::vector{1, 3}));
    EXPECT_EQ(registry.removeHandler(third.get()), kOk);
    EXPECT_EQ(registry.removeHandler(third.get()), kFalse);
    EXPECT_FALSE(registry.openUrl(toText("brindlex://x")));
}

} // namespace
} // namespace xbr::host::tests
