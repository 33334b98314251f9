#include "host/app/publishing/publishing.h"

#include "host/app/publishing/reachability.h"
#include "host/app/publishing/words.h"

#include <utility>

namespace xbr::host {

namespace {

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
      m_follow(
          panel, activity, [this] { m_listener->preparing(); },
          [this](const TrackReport& track) { m_listener->trackChanged(track); },
          [this](UploadFacts facts) {
              for (TrackFact& track : facts.tracks) {
                  nameServer(track.problem);
              }
              end(judge(facts));
          }),
      m_signIn(panel, activity, settings) {
    m_start.setSingleShot(true);
    m_start.setInterval(0);
    m_start.callOnTimeout([this] { begin(); });
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
    m_follow.named(std::move(*handed));
    return std::nullopt;
}

void Publishing::publish(const PublishEntry& entry, Plan plan) {
    m_entry = entry;
    m_plan = std::move(plan);
    m_isEnded = false;
    m_start.start();
}

void Publishing::signIn(Expired expired) {
    m_isEnded = false;
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

/// Does something that may run the event loop. False when it all came to its end in there.
template <class Call>
bool Publishing::doInPanel(const Call& call) {
    ++m_calls;
    call();
    --m_calls;
    if (m_isCancelled) {
        tellCancelled();
    }
    return !m_isEnded;
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
            const Verdict verdict = judge(facts);
            if (!m_isEnded) {
                verdict.isGood() ? upload() : end(verdict);
            }
        });
    });
}

void Publishing::upload() {
    if (!m_panel->isEnabled("upload")) {
        end(judgeModule(
            {Fault::kModule,
             m_entry.name,
             0,
             say(QCoreApplication::translate("xbr::host::Words", "it does not offer to upload the songs")),
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

void Publishing::cancel() {
    m_isCancelled = true;
    if (m_calls == 0) {
        tellCancelled();
    }
}

void Publishing::tellCancelled() {
    if (m_follow.isBusy()) {
        m_follow.stop();
    } else if (!m_isEnded) {
        SignInFacts given;
        given.isCancelled = true;
        end(judge(given));
    }
}

void Publishing::end(const Verdict& verdict) {
    // After the user gave it up the module may go on for a while; that is no news.
    if (!std::exchange(m_isEnded, true) || !m_isCancelled) {
        m_listener->ended(verdict);
    }
}

} // namespace xbr::host
