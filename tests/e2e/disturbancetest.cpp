// What becomes of releases when something happens in the middle of an upload: the built extension in the real
// host's libraries, and the stand-in of the service, all in this process.

#include "tests/e2e/publishingstage.h"

#include <nlohmann/json.hpp>

namespace xbr::host::tests {
namespace {

/// Something that happens in the middle of an upload.
struct Disturbance {
    const char* name;
    std::function<void(PublishingStage&, Moment)> happen;
};

const Disturbance kDisturbances[] = {
    {"Abort",
     [](auto& stage, Moment moment) {
         if (moment == Moment::kCopying || moment == Moment::kPacking) {
             stage.cancelPreparation();
         } else {
             stage.reopen(stage.first);
         }
     }},
    {"SignOut", [](auto& stage, Moment) { stage.first->perform("Client/resetAuthorization"); }},
    {"ModeSwitch", [](auto& stage, Moment) { stage.first->setAlbum(!stage.first->isAlbum()); }},
    {"TrackAdded", [](auto& stage, Moment) { stage.first->add({stage.song("later")}); }},
    {"TrackRemoved", [](auto& stage, Moment) { stage.first->remove(0); }},
    {"TrackEdited", [](auto& stage, Moment) { stage.first->edit(0, "songTitle", textValue("edited")); }},
    {"SecondPanel", [](auto& stage, Moment) { stage.second->perform("upload"); }},
    {"SecondPublish",
     [](auto& stage, Moment) {
         stage.publish({stage.song("p1"), stage.song("p2")});
     }},
    {"DiskFull", [](auto& stage, Moment) { stage.fullDisk.emplace(1000); }},
    {"SourceChanged", [](auto& stage, Moment) { stage.change(stage.song("c")); }},
    {"SourceGone", [](auto& stage, Moment) { fs::remove(stage.song("c")); }},
    {"ServiceDown", {}},
};

/// A release as it arrived.
struct Release {
    std::map<std::string, std::string> audio;  ///< by file name
    std::map<std::string, std::string> titles; ///< by file name
};

class Disturbances : public testing::TestWithParam<Disturbance> {
protected:
    /// Those that arrived since the last call.
    std::vector<Release> arrived() {
        std::vector<Release> releases;
        for (const auto& folder : fs::directory_iterator(stage.inbox())) {
            if (folder.path().filename().string().starts_with('.') || !m_seen.insert(folder.path()).second) {
                continue;
            }
            Release& release = releases.emplace_back();
            const auto document = nlohmann::json::parse(readFile(folder.path() / "metadata.json"));
            for (const auto& song : document.at("songs")) {
                release.titles[song.at("audio_filename")] = song.at("title");
            }
            for (const auto& file : fs::directory_iterator(folder.path() / "assets")) {
                release.audio[file.path().filename()] = readFile(file.path());
            }
        }
        return releases;
    }

    /// Every release is whole, and what shows "Done" is in one of them, once, as it was.
    void expectTruth(const std::vector<Release>& releases) {
        for (const Release& release : releases) {
            ASSERT_EQ(release.audio.size(), release.titles.size());
            for (const auto& [file, bytes] : release.audio) {
                ++m_arrivals[file];
                EXPECT_TRUE(stage.wasEver(file, bytes)) << file;
                EXPECT_EQ(release.titles.at(file) + ".wav", file) << "as it was when upload was pressed";
            }
        }
        for (auto* panel : {&stage.first, &stage.second}) {
            for (const auto& track : (*panel)->tracks()) {
                EXPECT_FALSE(track.isUploading) << track.file;
                if (track.state == TrackState::kDone) {
                    EXPECT_EQ(m_arrivals[fs::path(track.file).filename()], 1) << track.file << " shows Done";
                }
            }
        }
    }

    /// A release that follows holds its own file and no other.
    void expectNextReleaseIsClean() {
        stage.signInAgain();
        stage.first->prepare(false, {stage.song("next")});
        stage.first->perform("upload");
        stage.settle();
        auto releases = arrived();
        expectTruth(releases);
        // One that was given up while its reply was awaited may have been accepted late.
        std::erase_if(releases, [](const Release& release) { return !release.audio.contains("next.wav"); });
        ASSERT_EQ(releases.size(), 1U);
        EXPECT_EQ(releases[0].audio.size(), 1U);
        EXPECT_EQ(stage.first->tracks().at(0).state, TrackState::kDone);
        EXPECT_EQ(stage.leftFiles(), std::vector<fs::path>());
    }

    PublishingStage stage;
    std::set<fs::path> m_seen;
    std::map<std::string, int> m_arrivals; ///< of this disturbance, by file name
};

TEST_P(Disturbances, LeaveTheTruthInEveryTrack) {
    const std::pair<const char*, Moment> moments[] = {{"copying", Moment::kCopying},
                                                      {"packing", Moment::kPacking},
                                                      {"sending", Moment::kSending},
                                                      {"waiting", Moment::kWaiting}};
    for (const bool asAlbum : {false, true}) {
        for (const auto& [name, moment] : moments) {
            SCOPED_TRACE(std::string(asAlbum ? "album, " : "singles, ") + name);
            stage.prepare(asAlbum);
            m_arrivals.clear();
            const auto& happen = GetParam().happen;
            if (!happen) {
                stage.breakConnection(moment);
            }
            bool hasHappened = false;
            stage.uploadAndAt(moment, [&, when = moment] {
                hasHappened = true;
                happen ? happen(stage, when) : void();
            });
            stage.settle();
            EXPECT_TRUE(hasHappened);
            stage.fullDisk.reset();
            expectTruth(arrived());
            expectNextReleaseIsClean();
            if (HasFailure()) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Disturbances, testing::ValuesIn(kDisturbances),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
} // namespace xbr::host::tests
