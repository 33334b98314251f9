#include "host/app/publishing/plan.h"

#include "host/base/textscan.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace xbr::host {

namespace {

using Kind = Finding::Kind;
using Weight = Finding::Weight;

/// Kinds of files whose name has to be right when they go as they are.
struct NamedKind {
    const char* extension;
    const char* kind;
};

constexpr NamedKind kNamedKinds[] = {{"wav", "WAV"}, {"flac", "FLAC"}, {"mp3", "MP3"}};

Problem problemOfKind(const SongFile& song, const std::string& extension) {
    for (const NamedKind& named : kNamedKinds) {
        if (extension == named.extension && song.kind != named.kind) {
            const Fault fault = song.kind.empty() ? Fault::kNotAudio : Fault::kWrongKind;
            return {fault, song.path, 0, {}, song.kind, named.kind};
        }
    }
    return {};
}

Problem problemOfName(const SongFile& song) {
    const std::string name = fileNameOf(song.path);
    if (!isUtf8(name)) {
        return {Fault::kNameNotUtf8, song.path, 0, {}, {}, {}};
    }
    return hasControls(name) ? Problem{Fault::kNameControl, song.path, 0, {}, {}, {}} : Problem{};
}

/// Why a song cannot be published, whatever else is in the release.
Problem problemOf(const SongFile& song, const Offer& offer) {
    if (song.problem) {
        return song.problem;
    }
    if (Problem problem = problemOfName(song)) {
        return problem;
    }
    const std::string extension = extensionOf(song.path);
    const std::string wanted = offer.wantedInstead(extension);
    if (wanted.empty()) {
        return problemOfKind(song, extension);
    }
    return wanted == "wav" ? Problem{} : Problem{Fault::kModule, song.path, 0, {}, extension, wanted};
}

const std::string& firstOf(const std::string& wished, const std::string& read) {
    return wished.empty() ? read : wished;
}

/// Makes one plan.
class Planner {
public:
    Planner(const ReleaseWish& wish, const std::vector<SongFile>& songs, const Offer& offer)
        : m_wish(&wish),
          m_files(&songs),
          m_offer(&offer) {
        m_plan.isForPanel = wish.mode == ReleaseMode::kPanel;
        const bool isPanelAlbum = m_plan.isForPanel && (songs.size() > 1 || offer.isAlbumOn);
        m_plan.mode =
            isPanelAlbum || wish.mode == ReleaseMode::kAlbum ? ReleaseMode::kAlbum : ReleaseMode::kSingles;
    }

    Plan make() {
        findSameFiles();
        planSongs();
        chooseFileNames();
        makeReleases();
        findSameNames();
        for (const PlannedRelease& release : m_plan.releases) {
            findUnknownGenre(release);
            findMissing(release);
        }
        findTwoNumbers();
        findPublished();
        leaveOutIncomplete();
        std::stable_sort(
            m_plan.findings.begin(), m_plan.findings.end(),
            [](const Finding& left, const Finding& right) { return left.weight < right.weight; });
        return std::move(m_plan);
    }

private:
    Finding& find(Kind kind, Weight weight, const std::string& path, const std::string& song) {
        Finding& finding = m_plan.findings.emplace_back();
        finding.kind = kind;
        finding.weight = weight;
        finding.path = path;
        finding.song = song;
        return finding;
    }

    void findSameFiles() {
        std::set<std::string> known;
        for (const SongFile& file : *m_files) {
            if (!file.identity.empty() && !known.insert(file.identity).second) {
                find(Kind::kSameFile, Weight::kFatal, file.path, fileNameOf(file.path));
            }
        }
    }

    void planSongs() {
        std::vector<std::pair<std::size_t, Problem>> bad;
        m_songs.reserve(m_files->size());
        for (std::size_t i = 0; i < m_files->size(); ++i) {
            const bool isPublished = (*m_files)[i].published != 0 && !m_wish->sendsAgain;
            if (Problem problem = problemOf((*m_files)[i], *m_offer)) {
                bad.emplace_back(i, std::move(problem));
            } else if (isPublished && !m_plan.isAlbum()) {
                m_published.push_back(i);
            } else {
                if (isPublished) {
                    m_published.push_back(i);
                }
                m_songs.push_back(planSong(i));
            }
        }
        const bool isSkipped = m_wish->skipsUnreadable && !m_songs.empty();
        for (auto& [index, problem] : bad) {
            const std::string& path = (*m_files)[index].path;
            find(Kind::kUnreadable, isSkipped ? Weight::kToBeKnown : Weight::kFatal, path, fileNameOf(path))
                .problem = std::move(problem);
        }
    }

    /// Of an album nothing goes without the others, and of singles there may be nothing else.
    void findPublished() {
        const bool isAll = m_plan.isAlbum() || m_plan.releases.empty();
        for (const std::size_t index : m_published) {
            const SongFile& file = (*m_files)[index];
            find(Kind::kPublished, isAll ? Weight::kFatal : Weight::kToBeKnown, file.path,
                 firstOf(m_wish->songs[index].title, namesOf(file).title))
                .time = file.published;
        }
    }

    PlannedSong planSong(std::size_t index) {
        const SongFile& file = (*m_files)[index];
        const SongWish& wish = m_wish->songs[index];
        PlannedSong song;
        song.wish = index;
        song.source = file.path;
        song.size = file.size;
        song.isRendered = !m_offer->wantedInstead(extensionOf(file.path)).empty();
        song.artist = firstOf(wish.artist, tagOf(file.tags, "Media:Artist"));
        song.album = tagOf(file.tags, "Media:Album");
        song.albumArtist = tagOf(file.tags, "Media:AlbumArtist");
        song.genre = chooseGenre(file, wish);
        nameSong(song, file, wish);
        if (song.artist.empty()) {
            song.missing.push_back(Detail::kSongArtist);
        }
        return song;
    }

    void nameSong(PlannedSong& song, const SongFile& file, const SongWish& wish) const {
        const NameTags names = namesOf(file);
        song.title = firstOf(wish.title, names.title);
        song.saidNumber = wish.number > 0 ? wish.number : names.number;
        // The panel numbers a single 1, and an album's song without a number, too.
        song.number = m_plan.isAlbum() && song.saidNumber > 0 ? song.saidNumber : 1;
    }

    std::string chooseGenre(const SongFile& file, const SongWish& wish) {
        const std::string& wished = firstOf(wish.genre, m_wish->genre);
        std::string genre = firstOf(wished, tagOf(file.tags, "Media:Genre"));
        if (genre.empty() || m_offer->genres.isEmpty()) {
            return genre;
        }
        if (const auto known = m_offer->genres.match(genre)) {
            return *known;
        }
        if (wished.empty()) {
            m_unknown.emplace(file.path, genre);
        } else if (m_unknownWishes.insert(wished).second) {
            tellGenre(find(Kind::kUnknownGenre, Weight::kFatal, file.path, fileNameOf(file.path)), wished)
                .isWish = true;
        }
        return {};
    }

    Finding& tellGenre(Finding& finding, const std::string& genre) const {
        finding.text = genre;
        finding.near = m_offer->genres.near(genre);
        return finding;
    }

    /// Rendered songs share a folder, and an album's song is found by its file's name.
    void chooseFileNames() {
        std::set<std::string> taken;
        for (PlannedSong& song : m_songs) {
            if (!song.isRendered) {
                song.fileName = fileNameOf(song.source);
                taken.insert(song.fileName);
            }
        }
        for (PlannedSong& song : m_songs) {
            if (!song.isRendered) {
                continue;
            }
            const std::string stem = std::filesystem::path(song.source).stem().string();
            song.fileName = stem + ".wav";
            for (int i = 2; !taken.insert(song.fileName).second; ++i) {
                song.fileName = stem + " (" + std::to_string(i) + ").wav";
            }
        }
    }

    void makeReleases() {
        if (m_plan.isAlbum() && !m_songs.empty()) {
            m_plan.releases.push_back(makeRelease(m_songs.front()));
            m_plan.releases.back().songs = std::move(m_songs);
            return;
        }
        for (PlannedSong& song : m_songs) {
            m_plan.releases.push_back(makeRelease(song));
            m_plan.releases.back().songs.push_back(std::move(song));
        }
    }

    /// The release that a song begins: an album takes what its first song says.
    PlannedRelease makeRelease(const PlannedSong& song) const {
        PlannedRelease release;
        release.genre = song.genre;
        release.title = m_plan.isAlbum() ? firstOf(m_wish->albumTitle, song.album) : song.title;
        release.artist = m_plan.isAlbum() ? firstOf(m_wish->albumArtist, song.albumArtist) : song.artist;
        if (release.title.empty()) {
            release.missing.push_back(Detail::kAlbumTitle);
        }
        if (release.artist.empty()) {
            release.missing.push_back(Detail::kAlbumArtist);
        }
        if (release.genre.empty()) {
            release.missing.push_back(Detail::kGenre);
        }
        return release;
    }

    void findSameNames() {
        if (!m_plan.isAlbum()) {
            return;
        }
        const auto songs = m_plan.songs();
        std::vector<std::string> names;
        names.reserve(songs.size());
        for (const PlannedSong* song : songs) {
            names.push_back(song->fileName);
        }
        if (const auto pair = sameNames(names)) {
            const Weight weight = m_plan.isForPanel ? Weight::kOpen : Weight::kFatal;
            find(Kind::kSameName, weight, songs[pair->second]->source, songs[pair->second]->title).text =
                songs[pair->first]->source;
        }
    }

    void findUnknownGenre(const PlannedRelease& release) {
        const PlannedSong& song = release.songs.front();
        const auto unknown = m_unknown.find(song.source);
        if (unknown != m_unknown.end()) {
            tellGenre(find(Kind::kUnknownGenre, Weight::kOpen, song.source, song.title), unknown->second);
        }
    }

    /// A genre that is unknown is told of already; a single's album fields are those of its song.
    void findMissing(const PlannedRelease& release) {
        std::vector<Detail> missing;
        for (const Detail detail : release.missing) {
            const bool isTold =
                detail == Detail::kGenre &&
                (m_unknown.contains(release.songs.front().source) || !m_unknownWishes.empty());
            if (!isTold && (m_plan.isAlbum() || detail == Detail::kGenre)) {
                missing.push_back(detail);
            }
        }
        if (m_plan.isAlbum() && !missing.empty()) {
            Finding& finding = find(Kind::kMissingDetails, Weight::kOpen, {}, release.title);
            finding.missing = std::move(missing);
            finding.isAlbum = true;
            missing.clear();
        }
        for (const PlannedSong& song : release.songs) {
            std::vector<Detail> all = song.missing;
            all.insert(all.end(), missing.begin(), missing.end());
            if (!all.empty()) {
                find(Kind::kMissingDetails, Weight::kOpen, song.source, song.title).missing = std::move(all);
            }
        }
    }

    void findTwoNumbers() {
        std::map<int, const PlannedSong*> known;
        std::set<int> told;
        for (const PlannedSong* song : m_plan.songs()) {
            const auto [other, isNew] = known.emplace(song->number, song);
            if (m_plan.isAlbum() && !isNew && told.insert(song->number).second) {
                Finding& finding = find(Kind::kTwoNumbers, Weight::kToBeKnown, song->source, song->title);
                finding.text = other->second->title;
                finding.number = song->number;
            }
        }
    }

    /// Leaves out singles that lack something, unless nothing would remain.
    void leaveOutIncomplete() {
        const auto isIncomplete = [](const PlannedRelease& release) {
            return !release.missing.empty() || !release.songs.front().missing.empty();
        };
        auto& releases = m_plan.releases;
        if (!m_wish->skipsIncomplete || m_plan.isAlbum() ||
            std::all_of(releases.begin(), releases.end(), isIncomplete)) {
            return;
        }
        std::erase_if(releases, isIncomplete);
        for (Finding& finding : m_plan.findings) {
            if (finding.weight == Weight::kOpen) {
                finding.weight = Weight::kToBeKnown;
            }
        }
    }

    const ReleaseWish* m_wish;
    const std::vector<SongFile>* m_files;
    const Offer* m_offer;
    std::vector<PlannedSong> m_songs;
    std::vector<std::size_t> m_published; ///< of the songs of the wish, before and not to be sent again
    std::map<std::string, std::string> m_unknown; ///< genres of tags by the song's path
    std::set<std::string> m_unknownWishes;
    Plan m_plan;
};

} // namespace

const char* parameterOf(Detail detail) {
    static constexpr const char* kNames[] = {"albumTitle", "albumArtist", "primaryGenre", "songTitle",
                                             "songArtist"};
    return kNames[static_cast<std::size_t>(detail)];
}

bool Plan::canBeHandedOver() const {
    const Weight bearable = isForPanel ? Weight::kOpen : Weight::kToBeKnown;
    return std::all_of(findings.begin(), findings.end(),
                       [bearable](const Finding& finding) { return finding.weight >= bearable; });
}

bool Plan::canBeSent() const {
    return std::all_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return finding.weight == Weight::kToBeKnown; });
}

std::vector<const PlannedSong*> Plan::songs() const {
    std::vector<const PlannedSong*> all;
    for (const PlannedRelease& release : releases) {
        for (const PlannedSong& song : release.songs) {
            all.push_back(&song);
        }
    }
    return all;
}

Plan makePlan(const ReleaseWish& wish, const std::vector<SongFile>& songs, const Offer& offer) {
    return Planner(wish, songs, offer).make();
}

std::optional<std::pair<std::size_t, std::size_t>> sameNames(const std::vector<std::string>& fileNames) {
    std::map<std::string, std::size_t> known;
    for (std::size_t i = 0; i < fileNames.size(); ++i) {
        const auto [other, isNew] = known.emplace(fileNames[i], i);
        if (!isNew) {
            return std::pair(other->second, i);
        }
    }
    return std::nullopt;
}

} // namespace xbr::host
