#pragma once

#include "framework/abi/hostclasses.h"
#include "framework/abi/listmodel.h"
#include "framework/abi/module.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <dlfcn.h>
#include <filesystem>
#include <functional>
#include <vector>

/// The built extension, used as a host does: through its two entry points, and its panels.
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

class Song final : public xbr::Object<xbr::IUrlSource, xbr::IMediaAttributes> {
public:
    explicit Song(std::filesystem::path path) : m_path(std::move(path)) {}
    xbr::Result getUrl(xbr::IString** out) noexcept override {
        return xbr::giveText("file://" + m_path.string(), out);
    }
    xbr::Result getMediaAttributes(xbr::IAttributes* out) noexcept override {
        out->set(xbr::toText("Media:Title"), xbr::textValue(m_path.stem().string()));
        return xbr::kOk;
    }

private:
    std::filesystem::path m_path;
};

inline xbr::Ref<xbr::ObjectList> songsOf(const std::vector<std::filesystem::path>& files) {
    auto songs = xbr::make<xbr::ObjectList>();
    for (const auto& file : files) {
        songs->add(xbr::query<xbr::IObject>(static_cast<xbr::IUrlSource*>(xbr::make<Song>(file).get())));
    }
    return songs;
}

/// A panel of the extension, as its view and the publish menu use it.
class Panel {
public:
    enum Mode { kSingles, kAlbum };
    enum State { kNone, kDone, kFailed, kMissing };
    struct Track {
        std::string file; ///< its name
        State state;
        bool isUploading;
        double progress;
    };

    explicit Panel(xbr::Ref<xbr::IController> controller) : m_controller(std::move(controller)) {}

    void set(const std::string& path, const xbr::Value& value) {
        xbr::Ref<xbr::IParameter>::share(parameter(path.c_str()))->setValue(value);
    }
    void perform(const char* path) { set(path, xbr::integerValue(1)); }
    Mode mode() { return static_cast<Mode>(xbr::integerOf(parameter("TrackList/albumUpload")->value())); }
    void setMode(Mode mode) { set("TrackList/albumUpload", xbr::integerValue(mode)); }
    void clear() { perform("TrackList/removeAll"); }

    /// Drops files on the list.
    void add(const std::vector<std::filesystem::path>& files) { list()->drop(songsOf(files).get()); }
    void edit(std::int32_t row, const std::string& field, const xbr::Value& value) {
        list()->setFocus(row);
        set("TrackList/TrackProperties/" + field, value);
    }
    void remove(std::int32_t row) {
        list()->setFocus(row);
        list()->removeFocused();
    }

    /// Fills in what a release needs.
    void complete() {
        for (std::int32_t row = 0; row < list()->countRows(); ++row) {
            edit(row, "songArtist", xbr::textValue("Ann"));
            edit(row, "albumArtist", xbr::textValue("Ann"));
            edit(row, "primaryGenre", xbr::integerValue(1));
            if (mode() == kAlbum) {
                edit(row, "albumTitle", xbr::textValue("Album"));
            }
        }
    }

    std::vector<Track> tracks() {
        std::vector<Track> tracks;
        for (std::int32_t row = 0; row < list()->countRows(); ++row) {
            xbr::Ref<xbr::IObject> item;
            list()->getItem(row, item.out());
            const auto track = xbr::query<xbr::IPropertySource>(item.get());
            const std::filesystem::path file(xbr::textOf(property(*track, "file")));
            tracks.push_back({file.filename(), static_cast<State>(xbr::integerOf(property(*track, "state"))),
                              xbr::integerOf(property(*track, "uploading")) != 0,
                              xbr::numberOf(property(*track, "progress"))});
        }
        return tracks;
    }
    bool isAuthorized() { return clientFlag("isAuthorized"); }
    bool isIdle() {
        const auto all = tracks();
        return !clientFlag("isBusy") &&
               std::none_of(all.begin(), all.end(), std::mem_fn(&Track::isUploading));
    }

private:
    static xbr::Value property(xbr::IPropertySource& source, const char* name) {
        xbr::Value value{};
        source.getProperty(xbr::toText(name), &value);
        return value;
    }
    xbr::IParameter* parameter(const char* path) { return xbr::findParameter(*m_controller, path); }
    xbr::Ref<xbr::IListViewModel> list() {
        return xbr::findObject<xbr::IListViewModel>(*m_controller, "TrackList/tracks");
    }
    bool clientFlag(const char* name) {
        const auto client = xbr::findObject<xbr::IPropertySource>(*m_controller, "Client");
        return xbr::integerOf(property(*client, name)) != 0;
    }

    xbr::Ref<xbr::IController> m_controller;
};

} // namespace e2e
