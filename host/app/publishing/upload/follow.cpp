#include "host/app/publishing/upload/follow.h"

#include "framework/support/parts/path.h"
#include "host/app/publishing/upload/reasons.h"
#include "host/base/fileurl.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace xbr::host {

namespace {

/// With credentials and a body it is an upload; asking for the account has none, signing in no credentials.
bool isUpload(const Exchange& exchange) {
    return exchange.hadCredentials && exchange.hadBody;
}

std::string userFileOf(const TrackReport& track) {
    return localPath(track.file).value_or(track.file);
}

} // namespace

Follow::Follow(GadgetPanel& panel, Activity& activity, Listener listener)
    : m_panel(&panel),
      m_activity(&activity),
      m_hears(std::move(listener)),
      m_follower(
          panel.tracks(), [this] { m_hears.touched(); },
          [this](const TrackReport& track) {
              noteTravelling(track);
              if (isBusy()) {
                  m_hears.changed(track);
              }
          },
          [this](TrackReport& track) { name(track); }),
      m_watching(activity.watch(*this)) {
    static constexpr int kTellEvery = 250; // milliseconds
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    m_later.callOnTimeout([this] { look(); });
    m_telling.setInterval(kTellEvery);
    m_telling.callOnTimeout([this] { tellSending(); });
}

void Follow::named(const std::vector<HandedSong>& songs) {
    m_sources.clear();
    for (const HandedSong& song : songs) {
        m_sources.emplace(song.file, song.source);
    }
    m_carried.clear();
    m_follower.rename();
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
    workProgressed(kind, 0.0, {});
    checkNames();
    checkRoom();
    if (m_isCancelled) { // between two songs: the next one is not to go
        m_activity->end(Activity::Kind::kPreparing);
    }
}

void Follow::beginUpload() {
    m_files.clear();
    m_findings.clear();
    m_isCancelled = false;
    m_hasNoRoom = false;
    ++m_upload;
    m_meter = {};
    for (const TrackReport& track : m_follower.reports()) {
        if (track.state == TrackState::kNone) {
            m_carried.erase(sentFile(track)); // it goes anew
        }
    }
}

/// In an album the service finds a song by its file's name. Tracks that were added in the panel, and those of
/// singles that became an album, come by here for the first time.
void Follow::checkNames() {
    if (!m_panel->isAlbum()) {
        return;
    }
    std::vector<std::string> names;
    const auto& reports = m_follower.reports();
    names.reserve(reports.size());
    for (const TrackReport& track : reports) {
        const std::string& file = sentFile(track);
        names.push_back(fileNameOf(localPath(file).value_or(file)));
    }
    if (const auto pair = sameNames(names)) {
        Finding finding;
        finding.kind = Finding::Kind::kSameName;
        finding.weight = Finding::Weight::kFatal;
        finding.text = userFileOf(reports[pair->first]);
        finding.path = userFileOf(reports[pair->second]);
        m_findings.push_back(std::move(finding));
        m_activity->end(Activity::Kind::kPreparing);
    }
}

/// An album that cannot fit says so before it fills the disk. Singles are copied and removed one by one; that
/// one does not fit is seen when it is copied.
void Follow::checkRoom() {
    if (!m_panel->isAlbum()) {
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
        noteTravelling(track);
    }
}

void Follow::noteTravelling(const TrackReport& track) {
    if (track.isUploading) {
        m_travelling.insert(sentFile(track));
    }
    if (!m_travelling.empty() && m_phase == Phase::kPreparing &&
        !m_activity->isOpen(Activity::Kind::kPreparing)) {
        setPhase(Phase::kSending);
    }
}

void Follow::exchangeBegan(const Exchange& exchange) {
    if (m_phase != Phase::kIdle && isUpload(exchange)) {
        m_meter.requestBegan(exchange.size);
        m_telling.start();
    }
}

void Follow::exchangeProgressed(const Exchange& exchange) {
    if (isUpload(exchange)) {
        m_meter.requestProgressed(exchange.sent);
    }
}

void Follow::exchangeEnded(const Exchange& exchange) {
    if (m_phase == Phase::kIdle || !isUpload(exchange)) {
        return;
    }
    m_telling.stop();
    m_meter.requestEnded(exchange.sent);
    for (const std::string& file : std::exchange(m_travelling, {})) {
        m_carried[file] = {exchange, m_upload};
    }
    lookLater();
}

void Follow::tellSending() {
    if (m_phase != Phase::kSending) {
        return;
    }
    m_hears.sending(m_meter.upload(m_follower.reports(), m_panel->isAlbum()));
}

void Follow::workProgressed(Activity::Kind kind, double fraction, const std::string& what) {
    if (kind == Activity::Kind::kPreparing && m_phase == Phase::kPreparing) {
        m_hears.preparing(m_meter.preparation(m_follower.reports(), m_panel->isAlbum(), fraction, what));
    }
}

void Follow::fileFailed(const Problem& problem) {
    if (m_phase == Phase::kPreparing) {
        m_files.push_back(problem);
        m_files.back().subject = sourceOf(problem.subject);
    }
}

void Follow::asked() {
    if (!std::exchange(m_wasPrepared, false) && !isBusy()) {
        m_isCancelled = false;
        m_files.clear();
        m_findings.clear();
        UploadFacts nothing = facts();
        nothing.isNothingWaiting = true;
        m_hears.ended(nothing);
    }
}

void Follow::stop() {
    if (m_phase != Phase::kIdle) {
        m_isCancelled = true;
        noteTravelling();
        m_activity->end(Activity::Kind::kPreparing);
        abortUploads();
        lookLater();
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
    m_hears.ended(found);
}

std::string Follow::sourceOf(const std::string& path) const {
    const auto found = m_sources.find(path);
    return found == m_sources.end() ? path : found->second;
}

/// The user knows a song by the file that it came from, not by what was rendered from it.
void Follow::name(TrackReport& report) const {
    if (m_sources.empty()) {
        return; // the rule, and each key that is typed asks for all of a long list
    }
    const std::string path = localPath(report.file).value_or(report.file);
    if (std::string source = sourceOf(path); source != path) {
        report.rendered = std::exchange(report.file, fileUrl(source));
    }
}

TrackFact Follow::factOf(const TrackReport& report) const {
    TrackFact fact;
    fact.label = labelOf(report);
    fact.source = userFileOf(report);
    fact.state = report.state;
    fact.missing = missingDetails(report);
    const auto carried = m_carried.find(sentFile(report));
    fact.wasSent = carried != m_carried.end();
    if (fact.wasSent) {
        const Exchange& exchange = carried->second.exchange;
        fact.sent = exchange.sent;
        fact.total = exchange.size;
        fact.status = exchange.status;
        fact.said = exchange.said;
        fact.wait = exchange.wait;
        fact.problem = exchange.problem;
        fact.isNew = carried->second.upload == m_upload;
    }
    return fact;
}

UploadFacts Follow::facts() {
    UploadFacts facts;
    for (const TrackReport& report : m_follower.reports()) {
        facts.tracks.push_back(factOf(report));
    }
    facts.isAlbum = m_panel->isAlbum();
    if (facts.isAlbum && !m_follower.reports().empty()) {
        facts.albumTitle = m_follower.reports().front().details.text(Detail::kAlbumTitle);
    }
    facts.files = m_files;
    facts.findings = m_findings;
    facts.isCancelled = m_isCancelled && m_findings.empty() && !m_hasNoRoom;
    measureSpace(facts);
    if (!facts.isCancelled && facts.findings.empty()) {
        findReasons(facts);
    }
    return facts;
}

} // namespace xbr::host
