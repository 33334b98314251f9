#pragma once

#include "framework/abi/module.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <dlfcn.h>

/// The built extension, used through its two entry points as a host does.
namespace e2e {

class Context final : public xbr::Object<xbr::IHostContext> {
public:
    std::uint32_t borderVersion() const noexcept override { return xbr::kBorderVersion; }
    xbr::Text hostName() const noexcept override { return xbr::toText("lifecycle test"); }
    xbr::Text hostVersion() const noexcept override { return xbr::toText("1"); }
};

/// The extension's library, opened.
class Library {
public:
    Library() : m_handle(dlopen(BRINDLEX_MODULE, RTLD_NOW | RTLD_LOCAL)) {
        if (m_handle) {
            main = reinterpret_cast<decltype(main)>(dlsym(m_handle, "XBRModuleMain"));
            getFactory = reinterpret_cast<decltype(getFactory)>(dlsym(m_handle, "XBRGetClassFactory"));
        } else {
            ADD_FAILURE() << dlerror(); // NOLINT(concurrency-mt-unsafe): the C library keeps it per thread
        }
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { dlclose(m_handle); }

    static bool isMapped() {
        void* handle = dlopen(BRINDLEX_MODULE, RTLD_NOW | RTLD_NOLOAD);
        if (handle) {
            dlclose(handle);
        }
        return handle != nullptr;
    }

    std::int32_t load() { return main(m_handle, 1); }
    std::int32_t unload() { return main(m_handle, 2); }

    std::int32_t (*main)(void*, std::int32_t) = nullptr;
    xbr::IClassFactory* (*getFactory)() = nullptr;

private:
    void* m_handle;
};

template <class Interface>
xbr::Ref<Interface> create(xbr::IClassFactory& factory, std::int32_t index) {
    void* object = nullptr;
    factory.createInstance(factory.classAt(index)->uid, Interface::kUid, &object);
    return xbr::Ref<Interface>::adopt(static_cast<Interface*>(object));
}

} // namespace e2e
