#include "host/app/publishing/publishing.h"

#include "host/app/publishing/signin/reachability.h"
#include "host/app/publishing/verdict/words.h"

#include <algorithm>
#include <utility>

namespace xbr::host {

namespace {

/// The rows of the songs that were sent and not taken.
std::vector<std::int32_t> notTakenOf(const std::vector<TrackReport>& tracks) {
    std::vector<std::int32_t> rows;
    for (const TrackReport& track : tracks) {
        if (isNotTaken(track)) {
            rows.push_back(track.index);
        }
    }
    return rows;
}

/// Of songs that could not be handed over.
Verdict judgeHandOver(const Problem& problem) {
    if (problem.fault == Fault::kCancelled) {
        SignInFacts given;
        given.isCancelled = true;
        return judge(given);
    }
    if (problem.fault == Fault::kModule) {
        return judgeModule(problem);
    }
    UploadFacts facts;
    facts.tracks.push_back({});
    facts.tracks.front().label = fileNameOf(problem.subject);
    facts.tracks.front().source = problem.subject;
    facts.files.push_back(problem);
    return judge(facts);
}

} // namespace

Publishing::Publishing(Activity& activity, const ConfigurationReport& settings, GadgetPanel& panel,
                       PublishingListener& listener)
    : m_activity(&activity),
      m_settings(&settings),
      m_panel(&panel),
      m_listener(&listener),
      m_follow(panel, activity,
               {[this](const PreparationProgress& progress) { m_listener->preparing(progress); },
                [this](const UploadProgress& progress) { m_listener->sending(progress); },
                [this](const TrackReport& track) { m_listener->trackChanged(track); },
                [this](const UploadFacts& facts) { judgeUpload(facts); },
                [this] { m_listener->tracksTouched(); }}),
      m_signIn(panel, activity, settings) {
    m_start.setSingleShot(true);
    m_start.setInterval(0);
    m_start.callOnTimeout([this] { begin(); });
}

void Publishing::judgeUpload(UploadFacts facts) {
    for (TrackFact& track : facts.tracks) {
        nameServer(track.problem);
    }
    m_isStopped = false; // it is told with the facts
    const Verdict verdict = judge(facts);
    remember(verdict, facts);
    end(verdict);
}

std::string Publishing::account() const {
    return m_wantedAccount.empty() ? m_panel->text("userName") : m_wantedAccount;
}

std::optional<Publication> Publishing::findPublished(const std::string& path) const {
    return m_history.find(path, account());
}

std::optional<Publication> Publishing::findPublishedFingerprint(const std::string& fingerprint) const {
    return m_history.findFingerprint(fingerprint, account());
}

/// What the service took in this upload goes into the history.
void Publishing::remember(const Verdict& verdict, const UploadFacts& facts) {
    std::vector<std::string> taken;
    for (std::size_t i = 0; i < verdict.songs.size(); ++i) {
        if (verdict.songs[i].cause == Cause::kPublished && facts.tracks[i].isNew) {
            taken.push_back(facts.tracks[i].source);
        }
    }
    m_history.add(taken, m_panel->text("userName"));
}

Plan Publishing::plan(const PublishEntry& entry, const ReleaseWish& wish,
                      const std::vector<SongFile>& songs) const {
    return makePlan(wish, songs, offerOf(*m_panel, entry));
}

std::optional<Verdict> Publishing::handOver(const PublishEntry& entry, const Plan& plan) {
    if (!plan.canBeHandedOver()) {
        return judge(plan);
    }
    auto rendered = std::make_unique<RenderedSongs>();
    ++m_calls;
    auto handed = [&] {
        // No upload begins with the indicators that are shown in there.
        const Activity::Run own(*m_activity, Activity::Kind::kRendering, {});
        return xbr::host::handOver(plan, *m_panel, entry, *rendered);
    }();
    --m_calls;
    if (!handed) {
        return judgeHandOver(handed.problem());
    }
    m_rendered = std::move(rendered); // the former ones are no longer in the module's list
    m_follow.named(*handed);
    return std::nullopt;
}

void Publishing::publish(const PublishEntry& entry, Plan plan) {
    m_entry = entry;
    m_plan = std::move(plan);
    m_isEnded = false;
    m_isStopped = false;
    m_start.start();
}

void Publishing::signIn(Expired expired) {
    m_isEnded = false;
    m_isStopped = false;
    doInPanel([&] {
        m_signIn.start(
            [this](SignInFacts facts) {
                nameServer(facts.problem);
                if (!m_isEnded) {
                    end(judge(facts));
                }
            },
            expired);
    });
}

void Publishing::restore() {
    m_activity->allowDialogs(false);
    signIn(Expired::kTell);
    m_activity->allowDialogs(true);
}

void Publishing::signOut() {
    const auto removed = m_signIn.forget();
    m_listener->ended(
        removed
            ? judgeSignOut(*removed, m_signIn.mayBeKept())
            : judgeModule({Fault::kModule, m_panel->name(), 0, say(Words::tr("cannot sign out")), {}, {}}));
}

void Publishing::signOutBegan() {
    m_signIn.followRemoval(
        [this](StoreResult removed) { m_listener->ended(judgeSignOut(removed, m_signIn.mayBeKept())); });
}

/// Does something that may run the event loop. False when it all came to its end in there.
template <class Call>
bool Publishing::doInPanel(const Call& call) {
    ++m_calls;
    call();
    --m_calls;
    if (m_isStopped) {
        tellStopped();
    }
    return !m_isEnded && !m_isStopped;
}

void Publishing::begin() {
    std::optional<Verdict> failed;
    if (!doInPanel([&] { failed = handOver(m_entry, m_plan); })) {
        return;
    }
    if (failed) {
        end(*failed);
        return;
    }
    m_listener->tracksKnown(m_follow.tracks());
    doInPanel([this] {
        m_signIn.start([this](SignInFacts facts) {
            nameServer(facts.problem);
            facts.isForUpload = true;
            facts.wantedAccount = m_wantedAccount;
            const Verdict verdict = judge(facts);
            if (m_isEnded) {
                return;
            }
            if (!verdict.isGood()) {
                end(verdict);
                return;
            }
            if (facts.kept) {
                m_listener->signedIn(verdict, facts.account);
            }
            upload();
        });
    });
}

void Publishing::upload() {
    if (!m_panel->isEnabled("upload")) {
        end(judgeModule({Fault::kModule,
                         m_entry.name,
                         0,
                         say(Words::tr("it does not offer to upload the songs")),
                         {},
                         {}}));
        return;
    }
    doInPanel([this] { m_panel->set("upload", 1); });
    if (!m_isEnded) {
        m_follow.asked();
    }
}

bool Publishing::isBusy() {
    m_follow.look();
    return m_calls > 0 || m_follow.isBusy();
}

void Publishing::signInBegan() {
    m_signIn.follow([this](SignInFacts facts) {
        nameServer(facts.problem);
        end(judge(facts));
    });
}

/// The user knows the service by the address in the settings.
void Publishing::nameServer(Problem& problem) const {
    if (problem && !m_settings->serverUrl.empty()) {
        problem.subject = serverOf(m_settings->serverUrl);
    }
}

bool Publishing::canTryAgain() {
    return !isBusy() && !notTakenOf(m_follow.tracks()).empty();
}

void Publishing::uploadComes() {
    const auto& all = m_follow.tracks();
    const bool isWaiting = std::any_of(
        all.begin(), all.end(), [](const TrackReport& track) { return track.state == TrackState::kNone; });
    const auto rows = notTakenOf(all);
    if (!isWaiting && !isBusy() && !rows.empty()) {
        resetTracks(*m_panel->tracks(), rows);
    }
}

void Publishing::tryAgain() {
    if (isBusy()) {
        return;
    }
    resetTracks(*m_panel->tracks(), notTakenOf(m_follow.tracks()));
    ++m_calls;
    m_panel->set("upload", 1);
    --m_calls;
    m_follow.asked();
}

Hindrance Publishing::hindrance() {
    return hindranceOf(m_follow.tracks(), m_panel->isClient("isAuthorized"), isBusy());
}

void Publishing::stop() {
    m_isStopped = true;
    m_activity->end({});
    if (m_follow.isBusy() || m_calls == 0) {
        tellStopped();
    }
}

void Publishing::tellStopped() {
    if (m_follow.isBusy()) {
        m_follow.stop();
        return;
    }
    m_isStopped = false;
    if (!m_isEnded) {
        SignInFacts given;
        given.isCancelled = true;
        end(judge(given));
    }
}

void Publishing::end(const Verdict& verdict) {
    m_isEnded = true;
    m_listener->ended(verdict);
}

} // namespace xbr::host
