#pragma once

#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "release/genrecatalogue.h"
#include "tests/fakehost/fakehost.h"
#include "ui/tracks/trackitem.h"
#include "ui/tracks/tracklistcomponent.h"

#include <gtest/gtest.h>

namespace brindlex {

/// A file that is dragged or chosen.
class DraggedFile final : public xbr::Object<xbr::IUrlSource> {
public:
    explicit DraggedFile(std::string url) : m_url(std::move(url)) {}
    xbr::Result getUrl(xbr::IString** out) noexcept override { return xbr::giveText(m_url, out); }

private:
    std::string m_url;
};

/// An empty track list with the genres "Rock" and "Jazz".
class TrackListFixture : public testing::Test {
protected:
    TrackListFixture() {
        fakehost::resetHost();
        fakehost::host().files.files["resource://brindlex/brindlex_genres.csv"] = "Rock\nJazz\n";
        loadGenres();
        list = xbr::make<TrackListComponent>();
    }

    static xbr::Ref<xbr::ObjectList> files(std::initializer_list<const char*> urls) {
        auto objects = xbr::make<xbr::ObjectList>();
        for (const char* url : urls) {
            objects->add(xbr::query<xbr::IObject>(xbr::make<DraggedFile>(url).get()));
        }
        return objects;
    }

    void add(std::initializer_list<const char*> urls) { list->add(*files(urls)); }
    TrackItem& track(std::size_t index) { return trackAt(list->model(), index); }
    TrackMetadata& record(std::size_t index) { return *track(index).metadata; }

    void switchTo(UploadMode mode) {
        fakehost::set(*list, "albumUpload", xbr::integerValue(mode == UploadMode::kAlbum ? 1 : 0));
    }

    xbr::Ref<TrackListComponent> list;
};

} // namespace brindlex
