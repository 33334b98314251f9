#include "tests/fakehost/fakesystem.h"

#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"
#include "tests/fakehost/lender.h"

#include <algorithm>
#include <chrono>

namespace fakehost {

namespace {

class Credential final : public xbr::Object<xbr::ICredential> {
public:
    explicit Credential(FakeCredentialManager::Stored stored) : m_stored(std::move(stored)) {}
    xbr::Text userName() const noexcept override { return m_texts.lend(m_stored.userName); }
    xbr::Text password() const noexcept override { return m_texts.lend(m_stored.password); }

private:
    FakeCredentialManager::Stored m_stored;
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
    xbr::Result translate(xbr::Text source, xbr::IString** out) noexcept override {
        const auto found = host().locale.translations.find(xbr::toString(source));
        *out = nullptr;
        return found == host().locale.translations.end() ? xbr::kFalse : xbr::giveText(found->second, out);
    }
};

} // namespace

xbr::Result FakeSystem::getTemporaryFolder(xbr::IString** out) noexcept {
    if (fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    return xbr::giveText("file:///tmp/host", out);
}

void FakeSystem::writeDebugWarning(xbr::Text message) noexcept {
    warnings += xbr::view(message);
}

xbr::Result FakeSystemShell::openUrl(xbr::Text url) noexcept {
    if (fakehost::fails()) {
        return xbr::kUnexpected;
    }
    opened.push_back(xbr::toString(url));
    return fails ? xbr::kUnexpected : xbr::kOk;
}

xbr::Result FakeCredentialManager::add(xbr::Text target, xbr::Text userName, xbr::Text password,
                                       xbr::Text note) noexcept {
    if (fails()) {
        return xbr::kUnexpected;
    }
    if (locked) {
        return xbr::kUnexpected;
    }
    stored =
        Stored{xbr::toString(target), xbr::toString(userName), xbr::toString(password), xbr::toString(note)};
    return xbr::kOk;
}

xbr::Result FakeCredentialManager::find(xbr::Text target, xbr::ICredential** out) noexcept {
    if (fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    const bool found = stored && stored->target == xbr::view(target);
    *out = found ? xbr::make<Credential>(*stored).detach() : nullptr;
    return found ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeCredentialManager::remove(xbr::Text target) noexcept {
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

xbr::Result FakeFileTypeRegistry::getTypeByExtension(xbr::Text extension, xbr::IFileType** out) noexcept {
    const auto known = mimeTypes.find(xbr::toString(extension));
    *out = known == mimeTypes.end() ? nullptr : xbr::make<FileType>(known->first, known->second).detach();
    return *out ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeFileTypeRegistry::getTypeByMimeType(xbr::Text mimeType, xbr::IFileType** out) noexcept {
    const auto known = std::find_if(mimeTypes.begin(), mimeTypes.end(),
                                    [&](const auto& type) { return type.second == xbr::view(mimeType); });
    *out = known == mimeTypes.end() ? nullptr : xbr::make<FileType>(known->first, known->second).detach();
    return *out ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeLocaleManager::getTable(xbr::Text module, xbr::ITranslationTable** out) noexcept {
    *out = xbr::view(module) == "brindlex" ? xbr::make<TranslationTable>().detach() : nullptr;
    return *out ? xbr::kOk : xbr::kFalse;
}

xbr::Result FakeLocaleManager::getLocalDate(std::int64_t time, xbr::Date* out) noexcept {
    const auto day =
        std::chrono::floor<std::chrono::days>(std::chrono::sys_seconds(std::chrono::seconds(time)));
    const std::chrono::year_month_day date(day);
    *out = {static_cast<int>(date.year()), static_cast<std::int32_t>(static_cast<unsigned>(date.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(date.day()))};
    return xbr::kOk;
}

xbr::Result FakeLocaleManager::formatDate(const xbr::Date& date, std::int32_t format,
                                          xbr::IString** out) noexcept {
    const std::string text = std::to_string(date.year) + "-" + std::to_string(date.month) + "-" +
                             std::to_string(date.day) + "/" + std::to_string(format);
    return xbr::giveText(text, out);
}

xbr::Result FakeFileTypeRegistry::createType(xbr::Text extension, xbr::IFileType** out) noexcept {
    *out = xbr::make<FileType>(xbr::toString(extension)).detach();
    return xbr::kOk;
}

xbr::Result FakeFileTypeRegistry::addHandler(xbr::IFileHandler* handler) noexcept {
    handlers.push_back(xbr::Ref<xbr::IFileHandler>::share(handler));
    return xbr::kOk;
}

xbr::Result FakeFileTypeRegistry::removeHandler(xbr::IFileHandler* handler) noexcept {
    std::erase_if(handlers, [&](const auto& held) { return held.get() == handler; });
    return xbr::kOk;
}

bool FakeFileTypeRegistry::openUrl(xbr::Text url) noexcept {
    const auto snapshot = handlers;
    for (const auto& handler : snapshot) {
        if (handler->openUrl(url)) {
            return true;
        }
    }
    return false;
}

} // namespace fakehost
