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
            const auto file = xbr::make<DraggedFile>(url);
            objects->add(xbr::query<xbr::IObject>(file.get()));
        }
        return objects;
    }

    void add(std::initializer_list<const char*> urls) { list->add(*files(urls)); }
    TrackItem& track(std::size_t index) { return trackAt(list->model(), index); }
    TrackMetadata& record(std::size_t index) { return *track(index).metadata; }

    void switchTo(UploadMode mode) {
        list->findParameter(xbr::toText("albumUpload"))
            ->setValue(xbr::integerValue(mode == UploadMode::kAlbum ? 1 : 0));
    }

    /// What the user types or chooses in the editor.
    void edit(const char* name, const xbr::Value& value) {
        list->editor().findParameter(xbr::toText(name))->setValue(value);
    }
    void edit(const char* name, const char* text) { edit(name, xbr::textValue(text)); }

    xbr::Value shown(const char* name) { return list->editor().findParameter(xbr::toText(name))->value(); }
    std::string text(const char* name) { return std::string(xbr::textOf(shown(name))); }
    std::int64_t number(const char* name) { return xbr::integerOf(shown(name)); }

    void select(std::initializer_list<std::int32_t> rows, std::int32_t focus) {
        list->model().setSelection(rows.begin(), static_cast<std::int32_t>(rows.size()));
        list->model().setFocus(focus);
    }

    xbr::Ref<TrackListComponent> list;
};

} // namespace brindlex
