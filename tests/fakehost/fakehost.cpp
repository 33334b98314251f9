#include "tests/fakehost/fakehost.h"

#include <memory>

namespace fakehost {

namespace {

std::unique_ptr<FakeHost>& slot() {
    static auto instance = std::make_unique<FakeHost>();
    return instance;
}

} // namespace

FakeHost& host() {
    return *slot();
}

bool fails(const char* call) {
    const bool isThis = ++host().calls == host().failingCall || host().failing.contains(call);
    if (isThis) {
        host().failed = call;
    }
    return isThis;
}

void FakeGraphicsHelper::endDecoding() {
    holdsDecoding = false;
    for (const auto& task : std::exchange(held, {})) {
        xbr::signal(*task, "decoded");
    }
    host().signals.pump();
}

void resetHost() {
    slot() = std::make_unique<FakeHost>();
}

} // namespace fakehost

using fakehost::host;

xbr::ISignalHandler* XBRGetSignalHandler() noexcept {
    return &host().signals;
}
xbr::IWebService* XBRGetWebService() noexcept {
    return &host().web;
}
xbr::IGraphicsHelper* XBRGetGraphicsHelper() noexcept {
    return &host().graphics;
}
xbr::IFileSystem* XBRGetFileSystem() noexcept {
    return &host().files;
}
xbr::IPackageHandler* XBRGetPackageHandler() noexcept {
    return &host().files;
}
xbr::ISystem* XBRGetSystem() noexcept {
    return &host().system;
}
xbr::ISystemShell* XBRGetSystemShell() noexcept {
    return &host().shell;
}
xbr::ICredentialManager* XBRGetCredentialManager() noexcept {
    return &host().credentials;
}
xbr::IFileTypeRegistry* XBRGetFileTypeRegistry() noexcept {
    return &host().fileTypes;
}
xbr::ILocaleManager* XBRGetLocaleManager() noexcept {
    return &host().locale;
}
xbr::IPlugInManager* XBRGetPlugInManager() noexcept {
    return &host().objects;
}
