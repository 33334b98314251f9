#include "tests/ui/editingmodel.h"
#include "tests/ui/tracklistfixture.h"

#include <random>

// Random work on a track list, side by side with a model of the rules that takes no short cuts.

namespace brindlex {

namespace {

using editingmodel::Field;
using editingmodel::TrackPtr;

constexpr const char* kParameters[] = {"albumTitle", "albumArtist", "primaryGenre", "songTitle",
                                       "songArtist"};
constexpr const char* kTexts[] = {"", "", "Ann", "Night", "Rock"};
constexpr const char* kTagGenres[] = {"", "", "Rock", "rOCK", "az", "Polka"};

class EditingSequenceTest : public TrackListFixture, public testing::WithParamInterface<unsigned> {
protected:
    template <class Choices>
    const char* any(const Choices& choices) {
        return choices[std::uniform_int_distribution<std::size_t>(0, std::size(choices) - 1)(m_random)];
    }
    int upTo(int last) { return std::uniform_int_distribution<>(0, last)(m_random); }
    TrackPtr anyTrack() { return m_model.tracks[static_cast<std::size_t>(upTo(rows() - 1))]; }
    int rows() const { return static_cast<int>(m_model.tracks.size()); }

    void insert(const xbr::Ref<TrackItem>& item, const TrackPtr& track) {
        auto objects = xbr::make<xbr::ObjectList>();
        objects->add(xbr::query<xbr::IObject>(item.get()));
        list->add(*objects);
        m_model.insert(track);
    }

    void addFiles() {
        auto& tags = fakehost::host().objects.tags["file:///m/take.wav"];
        tags = {{"Media:Title", any(kTexts)}, {"Media:Genre", any(kTagGenres)}};
        add({"file:///m/take.wav", "file:///m/take.wav"});
        for (int i = 0; i < 2; ++i) {
            const auto track = std::make_shared<editingmodel::Track>();
            track->title = tags["Media:Title"].empty() ? "take" : tags["Media:Title"];
            track->texts = {track->title, "", tags["Media:Genre"], track->title, ""};
            track->albumModeTitle = m_model.album ? track->title : "";
            m_model.insert(track);
        }
    }

    void addReadyTrack() {
        const auto track = std::make_shared<editingmodel::Track>();
        track->title = any(kTexts);
        track->texts = {any(kTexts), any(kTexts), any(kTagGenres), track->title, any(kTexts)};
        track->number = track->albumNumber = upTo(20);
        auto made = xbr::make<TrackMetadata>();
        made->albumTitle = track->texts[editingmodel::kAlbumTitle];
        made->albumArtist = track->texts[editingmodel::kAlbumArtist];
        made->primaryGenre = track->texts[editingmodel::kGenre];
        made->songTitle = track->texts[editingmodel::kSongTitle];
        made->songArtist = track->texts[editingmodel::kSongArtist];
        made->trackNumber = made->albumTrackNumber = track->number;
        insert(xbr::make<TrackItem>(track->title, xbr::Url("file:///m/song.wav"), made), track);
    }

    void addOneAgain() {
        const auto row = static_cast<std::size_t>(upTo(rows() - 1));
        insert(xbr::Ref<TrackItem>::share(&track(row)), m_model.tracks[row]);
    }

    void selectSome() {
        std::vector<std::int32_t> chosen;
        m_model.selection.clear();
        for (int i = upTo(2); i > 0; --i) {
            chosen.push_back(upTo(rows() - 1));
            const auto track = m_model.tracks[static_cast<std::size_t>(chosen.back())];
            if (std::find(m_model.selection.begin(), m_model.selection.end(), track) ==
                m_model.selection.end()) {
                m_model.selection.push_back(track);
            }
        }
        list->model().setSelection(chosen.data(), static_cast<std::int32_t>(chosen.size()));
        m_model.focus = upTo(rows()) - 1;
        list->model().setFocus(-1); // so that the editor is loaded again in any case
        list->model().setFocus(m_model.focus);
        m_model.load(m_model.focused());
    }

    /// What the user types or chooses in the editor.
    void edit(const char* name, const xbr::Value& value) { fakehost::set(list->editor(), name, value); }

    void editOne() {
        const auto field = static_cast<Field>(upTo(editingmodel::kFields - 1));
        const bool isGenre = field == editingmodel::kGenre;
        const char* const value =
            isGenre ? genreNames()[static_cast<std::size_t>(upTo(2))].c_str() : any(kTexts);
        const bool acts = m_model.focused() && m_model.shown.texts[field] != value;
        if (isGenre) {
            const auto& names = genreNames();
            edit("primaryGenre",
                 xbr::integerValue(std::find(names.begin(), names.end(), value) - names.begin()));
        } else {
            edit(kParameters[field], xbr::textValue(value));
        }
        if (acts) {
            m_model.edit(field, value);
        }
    }

    void editNumber() {
        const int value = upTo(9) + 1;
        edit("trackNumber", xbr::integerValue(value));
        if (m_model.focused() && std::max(m_model.shown.number, 1) != value) {
            m_model.number(value);
        }
    }

    void validateSome() {
        if (m_sent) {
            return;
        }
        const auto row = static_cast<std::size_t>(upTo(rows() - 1));
        const bool set = upTo(3) > 0;
        if (list->mode() == UploadMode::kSingles) {
            list->setCurrentUploadItem(&track(row));
        }
        list->validateForUpload(set ? Marks::kSet : Marks::kClear);
        list->setCurrentUploadItem(nullptr);
        m_model.validate(m_model.tracks[row], set);
    }

    /// A track goes on its way, or the one that is has arrived.
    void transferOne() {
        if (std::exchange(m_sent, m_sent ? nullptr : anyTrack())) {
            list->setCurrentUploadItem(nullptr);
            return;
        }
        const auto row = std::find(m_model.tracks.begin(), m_model.tracks.end(), m_sent);
        list->setCurrentUploadItem(&track(static_cast<std::size_t>(row - m_model.tracks.begin())));
    }

    void switchModes() {
        if (!m_sent) { // else the switch is off
            m_model.toggle(!m_model.album);
        }
        switchTo(list->mode() == UploadMode::kAlbum ? UploadMode::kSingles : UploadMode::kAlbum);
    }

    void removeOne() {
        const bool removes = m_model.focused() && m_model.focused() != m_sent;
        EXPECT_EQ(list->model().removeFocused(), removes ? xbr::kOk : xbr::kFalse);
        if (removes) {
            m_model.removeFocused();
        }
    }

    void removeEverything() {
        list->removeAll();
        m_model.removeAll();
    }

    const char* step() {
        using Self = EditingSequenceTest;
        static const fakehost::Rows<int, void (Self::*)(), const char*> kSteps{
            {8, &Self::addFiles, "files added"},
            {14, &Self::addReadyTrack, "ready track added"},
            {16, &Self::addOneAgain, "track added again"},
            {40, &Self::selectSome, "selected"},
            {70, &Self::editOne, "edited"},
            {78, &Self::editNumber, "numbered"},
            {86, &Self::switchModes, "mode switched"},
            {90, &Self::validateSome, "validated"},
            {94, &Self::transferOne, "sent or arrived"},
            {99, &Self::removeOne, "removed"},
            {100, &Self::removeEverything, "emptied"}};
        const int dice = rows() == 0 ? 0 : upTo(99);
        for (const auto& [end, act, name] : kSteps) {
            if (dice < end) {
                (this->*act)();
                return name;
            }
        }
        return "";
    }

    xbr::Value shown(const std::string& name) { return fakehost::shown(list->editor(), name.c_str()); }
    std::int64_t number(const std::string& name) { return xbr::integerOf(shown(name)); }

    editingmodel::Track ourTrack(std::size_t index) {
        const TrackMetadata& ours = record(index);
        return {track(index).title,
                {ours.albumTitle, ours.albumArtist, ours.primaryGenre, ours.songTitle, ours.songArtist},
                ours.singlesGenre,
                ours.albumGenre,
                ours.albumModeTitle,
                ours.trackNumber,
                ours.albumTrackNumber,
                {ours.albumTitleMissing, ours.albumArtistMissing, ours.primaryGenreMissing,
                 ours.songTitleMissing, ours.songArtistMissing}};
    }

    void compareTracks() {
        ASSERT_EQ(countTracks(list->model()), m_model.tracks.size());
        for (std::size_t i = 0; i < m_model.tracks.size(); ++i) {
            EXPECT_TRUE(ourTrack(i) == *m_model.tracks[i]) << "track " << i;
        }
    }

    void compareEditor() {
        for (std::size_t i = 0; i < editingmodel::kFields; ++i) {
            const std::string value = i == editingmodel::kGenre
                                          ? genreNames()[static_cast<std::size_t>(number(kParameters[i]))]
                                          : std::string(xbr::textOf(shown(kParameters[i])));
            EXPECT_EQ(value, m_model.shown.texts[i]) << kParameters[i];
            const std::string mark = std::string(kParameters[i]) + "Missing";
            EXPECT_EQ(number(mark) != 0, m_model.shown.missing[i]) << mark;
        }
        EXPECT_EQ(number("trackNumber"), std::max(m_model.shown.number, 1));
        EXPECT_EQ(list->editor().isReady(), m_model.ready);
    }

    editingmodel::Editing m_model;
    TrackPtr m_sent; ///< on its way

private:
    std::mt19937 m_random{GetParam()};
};

TEST_P(EditingSequenceTest, FollowsTheRules) {
    std::string history;
    for (int i = 0; i < 2000 && !HasFailure(); ++i) {
        history.append(step()).append("; ");
        compareTracks();
        compareEditor();
        if (rows() > 8) {
            removeEverything();
            history.clear();
        }
    }
    EXPECT_FALSE(HasFailure()) << history;
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditingSequenceTest, testing::Range(1U, 6U));

} // namespace

} // namespace brindlex
