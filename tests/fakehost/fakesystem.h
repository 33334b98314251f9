#pragma once

#include "framework/abi/credentials.h"
#include "framework/abi/dates.h"
#include "framework/abi/filesystem.h"
#include "framework/abi/filetype.h"
#include "framework/abi/graphics.h"
#include "framework/abi/locale.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/message.h"
#include "tests/fakehost/answers.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace fakehost {

struct StoredCredential {
    std::string target;
    std::string userName;
    std::string password;
    std::string note;
};

class Credential final : public xbr::Object<xbr::ICredential> {
public:
    explicit Credential(StoredCredential stored) : m_stored(std::move(stored)) {}
    xbr::Text userName() const noexcept override { return m_texts.lend(m_stored.userName); }
    xbr::Text password() const noexcept override { return m_texts.lend(m_stored.password); }

private:
    StoredCredential m_stored;
    Lender m_texts;
};

class FileType final : public xbr::Object<xbr::IFileType> {
public:
    explicit FileType(std::string extension, std::string mimeType = {})
        : m_extension(std::move(extension)),
          m_mimeType(std::move(mimeType)) {}
    xbr::Text extension() const noexcept override { return m_texts.lend(m_extension); }
    xbr::Text mimeType() const noexcept override { return m_texts.lend(m_mimeType); }
    xbr::Text description() const noexcept override { return xbr::toText(""); }

private:
    std::string m_extension;
    std::string m_mimeType;
    Lender m_texts;
};

class TranslationTable final : public xbr::Object<xbr::ITranslationTable> {
public:
    xbr::Result translate(xbr::Text, xbr::IString** out) noexcept override {
        return give(xbr::Ref<xbr::IString>(), out);
    }
};

class Image final : public xbr::Object<xbr::IImage> {
public:
    Image(std::int32_t width, std::int32_t height, std::int32_t pixelWidth, std::int32_t pixelHeight)
        : m_sizes{width, height, pixelWidth, pixelHeight} {}
    std::int32_t width() const noexcept override { return m_sizes[0]; }
    std::int32_t height() const noexcept override { return m_sizes[1]; }
    std::int32_t pixelWidth() const noexcept override { return m_sizes[2]; }
    std::int32_t pixelHeight() const noexcept override { return m_sizes[3]; }

private:
    std::int32_t m_sizes[4];
};

/// Has its answer from the start, and tells of it with the next turn.
class DecodingTask final : public xbr::Object<xbr::IDecodingTask, xbr::ISubject> {
public:
    ~DecodingTask() override { XBRGetSignalHandler()->forgetSubject(this); }

    xbr::Result getImage(xbr::IImage** out) noexcept override { return give(image, out, result); }

    xbr::Result result = xbr::kFalse;
    xbr::Ref<xbr::IImage> image;
};

inline xbr::Result decode(const std::string& bytes, xbr::IImage** out) {
    std::istringstream text(bytes);
    std::int32_t width = 0;
    std::int32_t height = 0;
    char times = '\0';
    text >> width >> times >> height;
    return give(text && times == 'x' ? xbr::make<Image>(width, height, width, height) : nullptr, out,
                xbr::kInvalidArgument);
}

class FakeSystem final : public xbr::Object<xbr::ISystem> {
public:
    std::int64_t currentTime() const noexcept override { return time; }
    xbr::Result getTemporaryFolder(xbr::IString** out) noexcept override {
        *out = nullptr;
        return fails() ? xbr::kUnexpected : xbr::giveText("file:///tmp/host", out);
    }
    void writeDebugWarning(xbr::Text message) noexcept override { warnings += xbr::view(message); }

    std::int64_t time = 1'000'000;
    std::string warnings;
};

class FakeSystemShell final : public xbr::Object<xbr::ISystemShell> {
public:
    xbr::Result openUrl(xbr::Text url) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        opened.push_back(xbr::toString(url));
        return xbr::kOk;
    }

    std::vector<std::string> opened;
};

/// A credential store with one field per part of a credential.
class FakeCredentialManager final : public xbr::Object<xbr::ICredentialManager> {
public:
    xbr::Result add(xbr::Text target, xbr::Text userName, xbr::Text password,
                    xbr::Text note) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        stored = StoredCredential{xbr::toString(target), xbr::toString(userName), xbr::toString(password),
                                  xbr::toString(note)};
        return xbr::kOk;
    }
    xbr::Result find(xbr::Text target, xbr::ICredential** out) noexcept override {
        const bool found = stored && stored->target == xbr::view(target);
        return giveUnlessItFails(found ? xbr::make<Credential>(*stored) : nullptr, out);
    }
    xbr::Result remove(xbr::Text target) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        ++removals;
        if (!stored || stored->target != xbr::view(target)) {
            return xbr::kFalse;
        }
        stored.reset();
        return xbr::kOk;
    }

    std::optional<StoredCredential> stored;
    int removals = 0;
};

class FakeFileTypeRegistry final : public xbr::Object<xbr::IFileTypeRegistry> {
public:
    xbr::Result getTypeByExtension(xbr::Text extension, xbr::IFileType** out) noexcept override {
        const auto known = mimeTypes.find(xbr::toString(extension));
        return give(known == mimeTypes.end() ? nullptr : xbr::make<FileType>(known->first, known->second),
                    out);
    }
    xbr::Result getTypeByMimeType(xbr::Text mimeType, xbr::IFileType** out) noexcept override {
        const auto known = std::find_if(mimeTypes.begin(), mimeTypes.end(),
                                        [&](const auto& type) { return type.second == xbr::view(mimeType); });
        return give(known == mimeTypes.end() ? nullptr : xbr::make<FileType>(known->first, known->second),
                    out);
    }
    xbr::Result createType(xbr::Text extension, xbr::IFileType** out) noexcept override {
        return give(xbr::make<FileType>(xbr::toString(extension)), out);
    }
    xbr::Result addHandler(xbr::IFileHandler* handler) noexcept override {
        handlers.push_back(xbr::Ref<xbr::IFileHandler>::share(handler));
        return xbr::kOk;
    }
    xbr::Result removeHandler(xbr::IFileHandler* handler) noexcept override {
        std::erase_if(handlers, [&](const auto& held) { return held.get() == handler; });
        return xbr::kOk;
    }
    bool openUrl(xbr::Text url) noexcept override {
        const auto snapshot = handlers;
        return std::any_of(snapshot.begin(), snapshot.end(),
                           [&](const auto& handler) { return handler->openUrl(url); });
    }

    std::vector<xbr::Ref<xbr::IFileHandler>> handlers;
    std::map<std::string, std::string> mimeTypes; ///< of the known types, by extension
};

/// Writes dates as "year-month-day/format"; the user lives at Greenwich and reads what is written, and
/// nothing is translated.
class FakeLocaleManager final : public xbr::Object<xbr::ILocaleManager, xbr::IDateFormats> {
public:
    xbr::Result getTable(xbr::Text module, xbr::ITranslationTable** out) noexcept override {
        return give(xbr::view(module) == "brindlex" ? xbr::make<TranslationTable>() : nullptr, out);
    }
    xbr::Result getLocalDate(std::int64_t time, xbr::Date* out) noexcept override {
        const auto day =
            std::chrono::floor<std::chrono::days>(std::chrono::sys_seconds(std::chrono::seconds(time)));
        const std::chrono::year_month_day date(day);
        *out = {static_cast<int>(date.year()), static_cast<std::int32_t>(static_cast<unsigned>(date.month())),
                static_cast<std::int32_t>(static_cast<unsigned>(date.day()))};
        return xbr::kOk;
    }
    xbr::Result formatDate(const xbr::Date& date, std::int32_t format, xbr::IString** out) noexcept override {
        const std::string text = std::to_string(date.year) + "-" + std::to_string(date.month) + "-" +
                                 std::to_string(date.day) + "/" + std::to_string(format);
        return xbr::giveText(text, out);
    }
};

/// Decodes "pictures" that are their size in words, such as "320x180". Any other bytes are no picture.
class FakeGraphicsHelper final : public xbr::Object<xbr::IGraphicsHelper, xbr::IImageDecoder> {
public:
    xbr::Result decodeImage(xbr::IStream* stream, xbr::IFileType* type, xbr::IImage** out) noexcept override {
        decoded.push_back(type ? xbr::toString(type->extension()) : "(none)");
        return decode(xbr::readAll(*stream), out);
    }
    xbr::Result loadImage(xbr::Text url, xbr::IImage** out) noexcept override {
        xbr::Ref<xbr::IStream> stream;
        *out = nullptr;
        const auto result = XBRGetFileSystem()->openForReading(url, stream.out());
        return stream ? decode(xbr::readAll(*stream), out) : result;
    }
    xbr::Result createHighResolutionImage(xbr::IImage* image, std::int32_t width, std::int32_t height,
                                          xbr::IImage** out) noexcept override {
        return give(xbr::make<Image>(width, height, image->pixelWidth(), image->pixelHeight()), out);
    }
    double displayScale() const noexcept override { return scale; }
    xbr::Result decodeLater(xbr::IStream* stream, xbr::IFileType* type, std::int64_t,
                            xbr::IDecodingTask** out) noexcept override {
        auto task = xbr::make<DecodingTask>();
        task->result = hasRoom ? decodeImage(stream, type, task->image.out()) : xbr::kUnexpected;
        held.push_back(xbr::query<xbr::ISubject>(task.get()));
        if (!holdsDecoding) {
            xbr::postSignal(*std::exchange(held, {}).front(), "decoded");
        }
        return give(std::move(task), out);
    }

    /// Ends the decoding that was held, and runs what follows from it.
    void endDecoding();

    double scale = 1.0;
    bool holdsDecoding = false; ///< until `endDecoding`
    bool hasRoom = true;
    std::vector<xbr::Ref<xbr::ISubject>> held;
    std::vector<std::string> decoded; ///< the extensions of the types as which streams were decoded
};

} // namespace fakehost
