#pragma once

#include "framework/abi/credentials.h"
#include "framework/abi/dates.h"
#include "framework/abi/filetype.h"
#include "framework/abi/locale.h"
#include "framework/abi/system.h"
#include "framework/support/objects/object.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fakehost {

class FakeSystem final : public xbr::Object<xbr::ISystem> {
public:
    std::int64_t currentTime() const noexcept override { return time; }
    xbr::Result getTemporaryFolder(xbr::IString** out) noexcept override;
    void writeDebugWarning(xbr::Text message) noexcept override;

    std::int64_t time = 1'000'000;
    std::string warnings;
};

class FakeSystemShell final : public xbr::Object<xbr::ISystemShell> {
public:
    xbr::Result openUrl(xbr::Text url) noexcept override;

    std::vector<std::string> opened;
    bool fails = false;
};

/// A credential store with one field per part of a credential.
class FakeCredentialManager final : public xbr::Object<xbr::ICredentialManager> {
public:
    struct Stored {
        std::string target;
        std::string userName;
        std::string password;
        std::string note;
    };

    xbr::Result add(xbr::Text target, xbr::Text userName, xbr::Text password,
                    xbr::Text note) noexcept override;
    xbr::Result find(xbr::Text target, xbr::ICredential** out) noexcept override;
    xbr::Result remove(xbr::Text target) noexcept override;

    std::optional<Stored> stored;
    int removals = 0;
    bool locked = false;
};

class FakeFileTypeRegistry final : public xbr::Object<xbr::IFileTypeRegistry> {
public:
    xbr::Result getTypeByExtension(xbr::Text extension, xbr::IFileType** out) noexcept override;
    xbr::Result getTypeByMimeType(xbr::Text mimeType, xbr::IFileType** out) noexcept override;
    xbr::Result createType(xbr::Text extension, xbr::IFileType** out) noexcept override;
    xbr::Result addHandler(xbr::IFileHandler* handler) noexcept override;
    xbr::Result removeHandler(xbr::IFileHandler* handler) noexcept override;
    bool openUrl(xbr::Text url) noexcept override;

    std::vector<xbr::Ref<xbr::IFileHandler>> handlers;
    std::map<std::string, std::string> mimeTypes; ///< of the known types, by extension
};

/// Writes dates as "year-month-day/format"; the user lives at Greenwich and reads what is written, but for
/// the texts that are translated here.
class FakeLocaleManager final : public xbr::Object<xbr::ILocaleManager, xbr::IDateFormats> {
public:
    xbr::Result getTable(xbr::Text module, xbr::ITranslationTable** out) noexcept override;
    xbr::Result getLocalDate(std::int64_t time, xbr::Date* out) noexcept override;
    xbr::Result formatDate(const xbr::Date& date, std::int32_t format, xbr::IString** out) noexcept override;

    std::map<std::string, std::string> translations;
};

} // namespace fakehost
