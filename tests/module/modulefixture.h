#pragma once

#include "client/manager.h"
#include "framework/abi/module.h"
#include "framework/abi/publisher.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"
#include "tests/fixtures/hostcontext.h"
#include "ui/tracks/trackitem.h"

#include <gtest/gtest.h>

namespace brindlex {

/// A song that the host rendered. Its tags are named after their keys, but for the title.
class Song final : public xbr::Object<xbr::IUrlSource, xbr::IMediaAttributes> {
public:
    Song(std::string url, std::string title) : m_url(std::move(url)), m_title(std::move(title)) {}
    xbr::Result getUrl(xbr::IString** out) noexcept override {
        *out = nullptr;
        return m_url.empty() ? xbr::kFalse : xbr::giveText(m_url, out);
    }
    xbr::Result getMediaAttributes(xbr::IAttributes* out) noexcept override {
        for (const char* key : {"Media:Artist", "Media:Album", "Media:AlbumArtist", "Media:Genre"}) {
            out->set(xbr::toText(key), xbr::textValue(std::string(key).substr(6)));
        }
        out->set(xbr::toText("Media:Title"), xbr::textValue(m_title));
        out->set(xbr::toText("Media:TrackIndex"), xbr::integerValue(7));
        return xbr::kOk;
    }

private:
    std::string m_url;
    std::string m_title;
};

/// Songs of these titles, with their files.
inline xbr::Ref<xbr::ObjectList> songs(std::initializer_list<const char*> titles) {
    auto list = xbr::make<xbr::ObjectList>();
    for (const std::string title : titles) {
        const std::string url = "file:///music/" + title + ".wav";
        fakehost::host().files.files[url] = "audio of " + title;
        list->add(xbr::query<xbr::IObject>(xbr::make<Song>(url, title).get()));
    }
    return list;
}

template <class Interface>
xbr::Ref<Interface> create(xbr::IClassFactory& factory, const xbr::Uid& uid) {
    void* object = nullptr;
    factory.createInstance(uid, Interface::kUid, &object);
    return xbr::Ref<Interface>::adopt(static_cast<Interface*>(object));
}

/// The genres of every host in this program, as the catalogue is filled once.
inline void addGenres() {
    fakehost::host().files.files["resource://brindlex/brindlex_genres.csv"] = "Rock\nJazz\n";
}

/// The module as a host has it after loading: started, with its service.
class ModuleFixture : public testing::Test {
protected:
    ModuleFixture() {
        fakehost::resetHost();
        addGenres();
        EXPECT_EQ(XBRModuleMain(this, 1), 1);
        auto* factory = XBRGetClassFactory();
        service = create<xbr::IProgramService>(*factory, factory->classAt(0)->uid);
    }
    ~ModuleFixture() override {
        service.reset();
        XBRModuleMain(this, 2);
        EXPECT_EQ(fakehost::host().signals.remaining(), 0U);
        EXPECT_TRUE(fakehost::host().fileTypes.handlers.empty());
    }

    xbr::Ref<xbr::host::TestHostContext> context = xbr::make<xbr::host::TestHostContext>();
    xbr::Ref<xbr::IProgramService> service;
};

} // namespace brindlex
