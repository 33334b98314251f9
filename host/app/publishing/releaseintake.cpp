#include "host/app/publishing/releaseintake.h"

#include "framework/abi/hostclasses.h"
#include "framework/support/objects/text.h"
#include "host/app/audio/mediasignature.h"
#include "host/app/audio/mediatags.h"
#include "host/app/audio/soundfile.h"
#include "host/base/fileurl.h"

#include <QString>
#include <QStringDecoder>

#include <filesystem>
#include <map>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAlbumMode = "TrackList/albumUpload";
constexpr std::string_view kGenre = "TrackList/TrackProperties/primaryGenre";

/// The extension of the files that the publish entry wants instead of this one; empty when it takes it.
std::string wantedInstead(IPublisher& publisher, const std::string& file) {
    IFileType* type = fileTypeOf(file).detach();
    const Result result = publisher.acceptFileType(&type);
    const auto answered = Ref<IFileType>::adopt(type);
    return result == kOk ? "" : toString(answered->extension());
}

std::string fileNameOf(const std::string& path) {
    return fs::path(path).filename().string();
}

bool isWhatItsNameSays(const std::string& path) {
    const std::string extension =
        QString::fromStdString(fs::path(path).extension().string()).toLower().toStdString();
    switch (recognise(path)) {
    case MediaKind::kWav:
        return extension == ".wav";
    case MediaKind::kFlac:
        return extension == ".flac";
    case MediaKind::kMp3:
        return extension == ".mp3";
    default:
        return false;
    }
}

bool isUtf8(const std::string& text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    [[maybe_unused]] const QString decoded = decoder(QByteArrayView(text));
    return !decoder.hasError();
}

/// Two songs whose files have the same name; empty when there are none. In one release a song is found by
/// that name.
std::string sameNames(const std::vector<TakenSong>& songs) {
    std::map<std::string, std::string> known;
    for (const TakenSong& song : songs) {
        const auto [other, isNew] = known.emplace(fileNameOf(song.file), song.source);
        if (!isNew) {
            return "'" + other->second + "' and '" + song.source + "' have the same file name: in an album " +
                   "each song needs one of its own";
        }
    }
    return {};
}

void setText(Attributes& media, std::string_view name, const std::string& text) {
    if (!text.empty()) {
        media.set(name, text);
    }
}

} // namespace

ReleaseIntake::Outcome ReleaseIntake::take(const ReleaseWish& plan) {
    const auto entries = findPublishEntries();
    const auto publisher = entries.empty() ? Ref<IPublisher>() : createPublisher(entries.front());
    if (!publisher || !m_panel->tracks()) {
        return {PublishResult::kNoPublisher, "the module has no publish entry, or no list of tracks"};
    }
    Outcome outcome = checkGenres(plan, GenreList::read(*m_panel));
    for (const SongWish& song : plan.songs) {
        if (outcome.result != PublishResult::kDone) {
            return outcome;
        }
        TakenSong taken{song.path, song.path, false, {}};
        if (const std::string problem = look(*publisher, taken); !problem.empty()) {
            outcome = {PublishResult::kFileProblem, "'" + song.path + "' " + problem};
        }
        m_songs.push_back(std::move(taken));
    }
    if (outcome.result == PublishResult::kDone) {
        outcome = check(plan);
    }
    if (outcome.result == PublishResult::kDone && m_rendering == Rendering::kDo) {
        outcome = render();
    }
    return outcome.result == PublishResult::kDone ? publish(*publisher, plan) : outcome;
}

ReleaseIntake::Outcome ReleaseIntake::checkGenres(const ReleaseWish& plan, const GenreList& genres) {
    for (const SongWish& song : plan.songs) {
        const std::string& wanted = song.genre.empty() ? plan.genre : song.genre;
        const auto known = genres.isEmpty() || wanted.empty() ? std::optional(wanted) : genres.find(wanted);
        if (!known) {
            return {PublishResult::kWrongPlan, genres.describeUnknown(wanted)};
        }
        m_genres.push_back(*known);
    }
    return {};
}

std::string ReleaseIntake::look(IPublisher& publisher, TakenSong& song) const {
    std::string problem = problemOfFile(song.source);
    if (!problem.empty()) {
        return problem;
    }
    const std::string wanted = wantedInstead(publisher, song.source);
    if (!isUtf8(fileNameOf(song.source))) {
        return "has a name that is not UTF-8, which an archive cannot hold; rename it";
    }
    if (wanted.empty()) {
        return isWhatItsNameSays(song.source) ? ""
                                              : "is not an audio file, or not of the kind that its name says";
    }
    if (wanted != "wav") {
        return "would have to be rendered to " + wanted + ", which this host cannot";
    }
    song.isRendered = true;
    const auto sound = SoundFile::open(song.source);
    return sound ? problem : sound.problem().words;
}

ReleaseIntake::Outcome ReleaseIntake::check(const ReleaseWish& plan) {
    for (const TakenSong& song : m_songs) {
        if (!song.isRendered) {
            m_rendered.reserve(fileNameOf(song.source));
        }
    }
    for (TakenSong& song : m_songs) {
        if (song.isRendered) {
            song.file = m_rendered.choosePath(song.source);
        }
    }
    const std::string problem = plan.mode == ReleaseMode::kAlbum ? sameNames(m_songs) : "";
    return {problem.empty() ? PublishResult::kDone : PublishResult::kFileProblem, problem};
}

ReleaseIntake::Outcome ReleaseIntake::render() {
    for (const TakenSong& song : m_songs) {
        std::string error;
        switch (song.isRendered ? m_rendered.render(song.source, song.file, error) : RenderResult::kDone) {
        case RenderResult::kDone:
            if (song.isRendered) {
                writeWavTags(song.file, readForeignTags(song.source));
            }
            break;
        case RenderResult::kGivenUp:
            return {PublishResult::kCancelled, {}};
        case RenderResult::kFailed:
            return {PublishResult::kFileProblem, "'" + song.source + "' " + error};
        }
    }
    return {};
}

Ref<Attributes> ReleaseIntake::mediaOf(const ReleaseWish& plan, std::size_t index) {
    TakenSong& taken = m_songs[index];
    const SongWish& song = plan.songs[index];
    auto media = attributesOf(taken.isRendered ? readForeignTags(taken.source)
                                               : readTags(taken.source).value_or(MediaTags{}));
    setText(*media, "Media:Title", song.title);
    setText(*media, "Media:Artist", song.artist);
    setText(*media, "Media:Album", plan.albumTitle);
    setText(*media, "Media:AlbumArtist", plan.albumArtist);
    setText(*media, "Media:Genre", m_genres[index]);
    if (song.number > 0) {
        media->set("Media:TrackIndex", integerValue(song.number));
    }
    taken.genre = media->getString("Media:Genre");
    return media;
}

ReleaseIntake::Outcome ReleaseIntake::publish(IPublisher& publisher, const ReleaseWish& plan) {
    const auto items = make<PublishedItems>();
    for (std::size_t i = 0; i < m_songs.size(); ++i) {
        items->add(fileUrl(fs::absolute(m_songs[i].file).string()), mediaOf(plan, i));
    }
    // Set before, so that the one song of an album is taken with its album's title; and after, as several
    // songs make the module think of an album.
    const int mode = plan.mode == ReleaseMode::kAlbum ? 1 : 0;
    m_panel->set(kAlbumMode, mode);
    const bool isTaken = publisher.publish(items.get()) == kOk &&
                         m_panel->tracks()->countRows() == static_cast<std::int32_t>(m_songs.size());
    if (!isTaken) {
        return {PublishResult::kNoPublisher, "the module does not take the files"};
    }
    m_panel->set(kAlbumMode, mode);
    if (plan.mode == ReleaseMode::kSingles) {
        dropForeignGenres();
    }
    return {};
}

/// As the module thought of an album first, where all songs share the first one's genre, a single that came
/// without one has it still.
void ReleaseIntake::dropForeignGenres() {
    const auto tracks = m_panel->tracks();
    const std::int32_t focus = tracks->focus();
    for (std::int32_t row = 0; row < tracks->countRows(); ++row) {
        if (m_songs[static_cast<std::size_t>(row)].genre.empty()) {
            tracks->setFocus(row);
            // An editor that does not know the genre shows none already, and would not hear of a change.
            m_panel->set(kGenre, 1);
            m_panel->set(kGenre, 0);
        }
    }
    tracks->setFocus(focus);
}

std::string ReleaseIntake::sourceOf(const std::string& url) const {
    const auto path = localPath(url);
    for (const TakenSong& song : m_songs) {
        if (path && song.isRendered && fs::path(*path) == fs::absolute(song.file)) {
            return fileUrl(fs::absolute(song.source).string());
        }
    }
    return url;
}

} // namespace xbr::host
