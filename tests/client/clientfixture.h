#pragma once

#include "client/manager.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "tests/fakehost/fakehost.h"
#include "ui/tracks/trackitem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brindlex {

using fakehost::host;
using fakehost::Rows;
using testing::ElementsAre;

/// A panel on a fake host that is configured and has an account.
class ClientFixture : public testing::Test {
protected:
    ClientFixture() {
        fakehost::resetHost();
        host().objects.configuration = {{"ServerURL", "https://service"},
                                        {"UserURL", "https://web/me"},
                                        {"ConsumerKey", "key"},
                                        {"ConsumerSecret", "secret"},
                                        {"CallbackURL", "brindlex://authorize"}};
        module = xbr::make<xbr::ModuleComponent>("brindlex", "Kestrova", "Brindlex Support", "");
        module->loadTheme("");
        manager = xbr::make<Manager>();
    }

    void perform(const char* name) { fakehost::press(*manager, name); }
    std::string text(const char* name) { return std::string(xbr::textOf(fakehost::shown(*manager, name))); }

    void connectWithStoredTokens() {
        host().credentials.stored = {"Kestrova_Brindlex_Client", "OAuth2Tokens", "A&R", ""};
        perform("connect");
        host().signals.pump();
    }
    void signIn() {
        if (!manager->client().isAuthorized()) {
            connectWithStoredTokens();
            host().web.answer(200, R"({"user":{"name":"Mara"}})");
        }
    }

    void signOut() {
        manager->client().resetAuthorization(Silence::kTold);
        host().signals.pump();
    }

    TrackListComponent& list() { return manager->trackList(); }
    TrackItem& track(std::size_t index) { return trackAt(list().model(), index); }

    /// Adds a track; a complete one lacks nothing.
    TrackItem& addTrack(const std::string& title, bool complete = true) {
        const std::string url = "file:///music/" + title + ".wav";
        host().files.files[url] = "audio of " + title;
        auto record = xbr::make<TrackMetadata>();
        record->songTitle = record->albumTitle = title;
        record->songArtist = record->albumArtist = complete ? "Artist" : "";
        record->primaryGenre = "Rock";
        const auto objects = xbr::make<xbr::ObjectList>();
        const auto item = xbr::make<TrackItem>(title, xbr::Url(url), std::move(record));
        objects->add(xbr::query<xbr::IObject>(item.get()));
        list().add(*objects);
        return track(countTracks(list().model()) - 1);
    }

    std::vector<int> states() {
        std::vector<int> result;
        for (const auto& track : tracksOf(list().model())) {
            result.push_back(static_cast<int>(track->state));
        }
        return result;
    }

    static int leftovers() {
        int count = 0;
        for (const auto& [url, bytes] : host().files.files) {
            count += url.starts_with("file:///tmp/") ? 1 : 0;
        }
        return count;
    }

    xbr::Ref<xbr::ModuleComponent> module;
    xbr::Ref<Manager> manager;
};

} // namespace brindlex
