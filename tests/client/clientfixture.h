#pragma once

#include "client/manager.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "tests/fakehost/fakehost.h"
#include "ui/tracks/trackitem.h"

#include <gtest/gtest.h>

namespace brindlex {

/// A panel on a fake host that is configured and has an account.
class ClientFixture : public testing::Test {
protected:
    ClientFixture() {
        fakehost::resetHost();
        auto& host = fakehost::host();
        host.objects.configuration = {{"ServerURL", "https://service"},
                                      {"UserURL", "https://web/me"},
                                      {"ConsumerKey", "key"},
                                      {"ConsumerSecret", "secret"},
                                      {"CallbackURL", "brindlex://authorize"}};
        module = xbr::make<xbr::ModuleComponent>("brindlex", "Kestrova", "Brindlex Support", "");
        module->loadTheme("");
        manager = xbr::make<Manager>();
    }

    void perform(const char* name) {
        manager->findParameter(xbr::toText(name))->setValue(xbr::integerValue(1));
    }
    bool isEnabled(const char* name) { return manager->findParameter(xbr::toText(name))->isEnabled(); }
    std::string text(const char* name) {
        return std::string(xbr::textOf(manager->findParameter(xbr::toText(name))->value()));
    }

    void signIn() {
        if (manager->client().isAuthorized()) {
            return;
        }
        fakehost::host().credentials.stored = {"Kestrova_Brindlex_Client", "OAuth2Tokens", "A&R", ""};
        perform("connect");
        fakehost::host().signals.pump();
        fakehost::host().web.answer(200, R"({"user":{"name":"Mara"}})");
    }

    /// Adds a track; a complete one lacks nothing.
    TrackItem& addTrack(const std::string& title, bool complete = true) {
        const std::string url = "file:///music/" + title + ".wav";
        fakehost::host().files.files[url] = "audio of " + title;
        auto record = xbr::make<TrackMetadata>();
        record->songTitle = title;
        record->songArtist = complete ? "Artist" : "";
        record->albumTitle = title;
        record->albumArtist = complete ? "Artist" : "";
        record->primaryGenre = "Rock";
        const auto objects = xbr::make<xbr::ObjectList>();
        const auto item = xbr::make<TrackItem>(title, xbr::Url(url), std::move(record));
        objects->add(xbr::query<xbr::IObject>(item.get()));
        manager->trackList().add(*objects);
        return trackAt(manager->trackList().model(), countTracks(manager->trackList().model()) - 1);
    }

    std::vector<int> states() {
        std::vector<int> result;
        for (const auto& track : tracksOf(manager->trackList().model())) {
            result.push_back(static_cast<int>(track->state));
        }
        return result;
    }

    static int leftovers() {
        int count = 0;
        for (const auto& [url, bytes] : fakehost::host().files.files) {
            count += url.starts_with("file:///tmp/") ? 1 : 0;
        }
        return count;
    }

    xbr::Ref<xbr::ModuleComponent> module;
    xbr::Ref<Manager> manager;
};

} // namespace brindlex
