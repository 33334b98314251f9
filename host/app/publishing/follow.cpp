#include "host/app/publishing/follow.h"

#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/base/fileurl.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"

#include <algorithm>
#include <cassert>
#include <filesystem>
#include <utility>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAlbumMode = "TrackList/albumUpload";

bool isAlbumOn(GadgetPanel& panel) {
    const IParameter* mode = findParameter(panel.controller(), kAlbumMode);
    return mode && integerOf(mode->value()) != 0;
}

/// The folder for copies, as the user knows it: the one that ours lies in.
std::string folderForCopies() {
    Ref<IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    return fs::path(localPath(take(url)).value_or("")).parent_path().string();
}

bool isThere(const std::string& path) {
    std::error_code failed;
    return fs::exists(path, failed);
}

/// Songs are copied, and the copies packed.
void measureSpace(UploadFacts& facts) {
    std::error_code failed;
    for (const TrackFact& track : facts.tracks) {
        const auto size = fs::file_size(track.source, failed);
        facts.neededSpace += failed ? 0 : 2 * static_cast<std::int64_t>(size);
    }
    facts.folder = folderForCopies();
    const auto space = fs::space(facts.folder, failed);
    facts.freeSpace = failed ? 0 : static_cast<std::int64_t>(space.available);
}

/// Modules say nothing of songs that they could not prepare; the reason may be seen still.
void findReasons(UploadFacts& facts) {
    for (const TrackFact& track : facts.tracks) {
        if (track.state != TrackState::kDone && !track.wasSent && !isThere(track.source)) {
            facts.files.push_back({Fault::kMissing, track.source, 0, {}, {}, {}});
        }
    }
    const bool wasSent = std::any_of(facts.tracks.begin(), facts.tracks.end(),
                                     [](const TrackFact& track) { return track.wasSent; });
    if (facts.files.empty() && !wasSent && !facts.folder.empty() && facts.freeSpace < facts.neededSpace) {
        facts.files.push_back({Fault::kDiskFull, facts.folder, 0, {}, {}, {}});
    }
    for (Problem& problem : facts.files) {
        const bool isSong =
            std::any_of(facts.tracks.begin(), facts.tracks.end(),
                        [&](const TrackFact& track) { return track.source == problem.subject; });
        if (problem.fault == Fault::kMissing && (!isSong || isThere(problem.subject))) {
            problem.fault = Fault::kNoTemporaryFolder; // the place for the copy is missing
        }
    }
}

} // namespace

Follow::Follow(GadgetPanel& panel, Activity& activity, Preparing preparing, Changed changed, Ended ended)
    : m_panel(&panel),
      m_activity(&activity),
      m_preparing(std::move(preparing)),
      m_changed(std::move(changed)),
      m_ended(std::move(ended)),
      m_follower(
          panel.tracks(), [] {},
          [this](const TrackReport& track) {
              noteTravelling();
              if (isBusy()) {
                  m_changed(named(track));
              }
          }),
      m_watching(activity.watch(*this)) {
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    m_later.callOnTimeout([this] { look(); });
}

void Follow::named(std::vector<HandedSong> songs) {
    m_songs = std::move(songs);
    m_carried.clear();
}

void Follow::setPhase(Phase phase) {
    assert(phase != Phase::kSending || m_phase == Phase::kPreparing || m_phase == Phase::kSending);
    m_phase = phase;
}

void Follow::began(Activity::Kind kind) {
    if (kind != Activity::Kind::kPreparing) {
        return;
    }
    if (m_phase == Phase::kIdle) {
        beginUpload();
    }
    m_wasPrepared = true;
    setPhase(Phase::kPreparing);
    m_preparing();
    checkNames();
    checkRoom();
}

void Follow::beginUpload() {
    m_files.clear();
    m_findings.clear();
    m_isCancelled = false;
    m_hasNoRoom = false;
    for (const TrackReport& track : m_follower.reports()) {
        if (track.state == TrackState::kNone) {
            m_carried.erase(track.file); // it goes anew
        }
    }
}

/// In an album the service finds a song by its file's name. Tracks that were added in the panel, and those of
/// singles that became an album, come by here for the first time.
void Follow::checkNames() {
    if (!isAlbumOn(*m_panel)) {
        return;
    }
    std::vector<std::string> names;
    const auto& reports = m_follower.reports();
    names.reserve(reports.size());
    for (const TrackReport& track : reports) {
        names.push_back(fileNameOf(localPath(track.file).value_or(track.file)));
    }
    if (const auto pair = sameNames(names)) {
        Finding finding;
        finding.kind = Finding::Kind::kSameName;
        finding.weight = Finding::Weight::kFatal;
        finding.text = sourceOf(reports[pair->first].file);
        finding.path = sourceOf(reports[pair->second].file);
        m_findings.push_back(std::move(finding));
        m_activity->end(Activity::Kind::kPreparing);
    }
}

/// An album that cannot fit says so before it fills the disk. Singles are copied and removed one by one; that
/// one does not fit is seen when it is copied.
void Follow::checkRoom() {
    if (!isAlbumOn(*m_panel)) {
        return;
    }
    UploadFacts album;
    for (const TrackReport& report : m_follower.reports()) {
        album.tracks.push_back(factOf(report));
    }
    measureSpace(album);
    if (album.freeSpace > 0 && album.freeSpace < album.neededSpace) {
        m_files.push_back({Fault::kDiskFull, album.folder, 0, {}, {}, {}});
        m_hasNoRoom = true;
        m_activity->end(Activity::Kind::kPreparing);
    }
}

void Follow::ended(Activity::Kind kind, bool isCancelled) {
    if (kind == Activity::Kind::kPreparing && m_phase != Phase::kIdle) {
        m_isCancelled = m_isCancelled || isCancelled;
        noteTravelling(); // the module has marked them by now
        lookLater();
    }
}

void Follow::noteTravelling() {
    for (const TrackReport& track : m_follower.reports()) {
        if (track.isUploading &&
            std::find(m_travelling.begin(), m_travelling.end(), track.file) == m_travelling.end()) {
            m_travelling.push_back(track.file);
        }
    }
    if (!m_travelling.empty() && m_phase == Phase::kPreparing &&
        !m_activity->isOpen(Activity::Kind::kPreparing)) {
        setPhase(Phase::kSending);
    }
}

void Follow::exchangeEnded(const Exchange& exchange) {
    // With credentials and a body it is an upload; asking for the account has none, signing in no
    // credentials.
    if (m_phase == Phase::kIdle || !exchange.hadCredentials || !exchange.hadBody) {
        return;
    }
    for (const std::string& file : std::exchange(m_travelling, {})) {
        m_carried[file] = {exchange.sent, exchange.size, exchange.status, exchange.said, exchange.problem};
    }
    lookLater();
}

void Follow::fileFailed(const Problem& problem) {
    if (m_phase == Phase::kPreparing) {
        m_files.push_back(problem);
        m_files.back().subject = sourceOf(fileUrl(problem.subject));
    }
}

void Follow::asked() {
    if (!std::exchange(m_wasPrepared, false) && !isBusy()) {
        m_isCancelled = false;
        m_files.clear();
        m_findings.clear();
        UploadFacts nothing = facts();
        nothing.isNothingWaiting = true;
        m_ended(nothing);
    }
}

void Follow::stop() {
    m_isCancelled = true;
    if (m_phase != Phase::kIdle) {
        noteTravelling();
        abortAllRequests(); // tells how far they came
        finish();
    }
}

void Follow::lookLater() {
    if (m_phase != Phase::kIdle) {
        m_later.start();
    }
}

bool Follow::isAtRest() {
    return !m_activity->isOpen(Activity::Kind::kPreparing) && !hasPostedMessages() &&
           !m_panel->isClient("isBusy") && !m_follower.isUploading();
}

void Follow::look() {
    if (m_phase != Phase::kIdle && isAtRest()) {
        finish();
    }
}

void Follow::finish() {
    const UploadFacts found = facts();
    m_travelling.clear();
    m_wasPrepared = false;
    setPhase(Phase::kIdle);
    m_ended(found);
}

std::string Follow::sourceOf(const std::string& url) const {
    const auto path = localPath(url);
    const auto found = std::find_if(m_songs.begin(), m_songs.end(),
                                    [&](const HandedSong& song) { return path && song.file == *path; });
    return found == m_songs.end() ? path.value_or(url) : found->source;
}

/// The user knows a song by the file that it came from, not by what was rendered from it.
TrackReport Follow::named(TrackReport report) const {
    report.file = fileUrl(sourceOf(report.file));
    return report;
}

std::vector<TrackReport> Follow::tracks() {
    std::vector<TrackReport> all;
    for (const TrackReport& report : m_follower.reports()) {
        all.push_back(named(report));
    }
    return all;
}

TrackFact Follow::factOf(const TrackReport& report) const {
    TrackFact fact;
    fact.label = labelOf(named(report));
    fact.source = sourceOf(report.file);
    fact.state = report.state;
    const auto carried = m_carried.find(report.file);
    fact.wasSent = carried != m_carried.end();
    if (fact.wasSent) {
        fact.sent = carried->second.sent;
        fact.total = carried->second.total;
        fact.status = carried->second.status;
        fact.said = carried->second.said;
        fact.problem = carried->second.problem;
    }
    return fact;
}

UploadFacts Follow::facts() {
    UploadFacts facts;
    for (const TrackReport& report : m_follower.reports()) {
        facts.tracks.push_back(factOf(report));
    }
    facts.isAlbum = isAlbumOn(*m_panel);
    facts.albumTitle = facts.isAlbum ? albumTitleOf(*m_panel) : std::string();
    facts.files = m_files;
    facts.findings = m_findings;
    facts.isCancelled = m_isCancelled && m_findings.empty() && !m_hasNoRoom;
    measureSpace(facts);
    if (!facts.isCancelled && facts.findings.empty()) {
        findReasons(facts);
    }
    addMissing(facts);
    return facts;
}

/// Looks into the editor only when a track was refused: that moves its focus.
void Follow::addMissing(UploadFacts& facts) {
    const bool isRefused = std::any_of(facts.tracks.begin(), facts.tracks.end(), [](const TrackFact& track) {
        return track.state == TrackState::kMissingInformation;
    });
    if (isRefused) {
        for (IncompleteTrack& track : findIncompleteTracks(*m_panel)) {
            facts.tracks[static_cast<std::size_t>(track.index)].missing = std::move(track.missing);
        }
    }
}

} // namespace xbr::host
