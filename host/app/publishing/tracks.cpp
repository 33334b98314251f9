#include "host/app/publishing/tracks.h"

#include "framework/abi/controller.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/base/fileurl.h"

#include <algorithm>

namespace xbr::host {

namespace {

Value property(IPropertySource& item, std::string_view name) {
    Value value{};
    item.getProperty(toText(name), &value);
    return value;
}

TrackState stateOf(std::int64_t code) {
    return code >= 0 && code <= 3 ? static_cast<TrackState>(code) : TrackState::kFailed;
}

TrackReport read(IListViewModel& tracks, std::int32_t row) {
    TrackReport report;
    report.index = row;
    Ref<IObject> object;
    tracks.getItem(row, object.out());
    if (const auto item = query<IPropertySource>(object.get())) {
        report.title = textOf(property(*item, "title"));
        report.file = textOf(property(*item, "file"));
        report.state = stateOf(integerOf(property(*item, "state")));
        report.isUploading = integerOf(property(*item, "uploading")) != 0;
        report.progress = std::clamp(numberOf(property(*item, "progress")), 0.0, 1.0);
    }
    return report;
}

constexpr Detail kDetails[] = {Detail::kAlbumTitle, Detail::kAlbumArtist, Detail::kGenre, Detail::kSongTitle,
                               Detail::kSongArtist};

const IParameter* editorParameter(const GadgetPanel& panel, Detail detail) {
    return findParameter(panel.controller(), std::string("TrackList/TrackProperties/") + parameterOf(detail));
}

/// Of a list of choices the first is "not set".
bool isMissing(const IParameter& parameter) {
    const Value value = parameter.value();
    return parameter.kind() == ParameterKind::kList ? integerOf(value) == 0 : textOf(value).empty();
}

std::vector<Detail> missingDetails(const GadgetPanel& panel) {
    std::vector<Detail> missing;
    for (const Detail detail : kDetails) {
        const IParameter* parameter = editorParameter(panel, detail);
        if (parameter && isMissing(*parameter)) {
            missing.push_back(detail);
        }
    }
    return missing;
}

} // namespace

std::string labelOf(const TrackReport& track) {
    const std::string path = localPath(track.file).value_or(track.file);
    return track.title.empty() ? path.substr(path.rfind('/') + 1) : track.title;
}

TrackFollower::TrackFollower(Ref<IListViewModel> tracks, std::function<void()> touched, Changed changed)
    : m_tracks(std::move(tracks)),
      m_touched(std::move(touched)),
      m_changed(std::move(changed)),
      m_listener([this](ISubject*, const IMessage& message) {
          m_touched();
          if (isNamed(message, "itemChanged")) {
              readRow(static_cast<std::int32_t>(integerOf(message.argument(0), -1)));
          } else if (isNamed(message, "changed")) {
              m_later.start();
          }
      }) {
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    m_later.callOnTimeout([this] { readAll(); });
    for (std::int32_t row = 0; row < m_tracks->countRows(); ++row) {
        m_reports.push_back(read(*m_tracks, row));
    }
    m_listener.listen(query<ISubject>(m_tracks.get()));
}

const std::vector<TrackReport>& TrackFollower::reports() {
    catchUp();
    return m_reports;
}

void TrackFollower::catchUp() {
    if (m_later.isActive()) {
        m_later.stop();
        readAll();
    }
}

bool TrackFollower::isUploading() {
    catchUp();
    return std::any_of(m_reports.begin(), m_reports.end(),
                       [](const TrackReport& report) { return report.isUploading; });
}

void TrackFollower::readAll() {
    m_reports.resize(static_cast<std::size_t>(m_tracks->countRows()));
    for (std::int32_t row = 0; row < m_tracks->countRows(); ++row) {
        readRow(row);
    }
}

void TrackFollower::readRow(std::int32_t row) {
    if (row < 0 || static_cast<std::size_t>(row) >= m_reports.size()) {
        return;
    }
    TrackReport report = read(*m_tracks, row);
    auto& known = m_reports[static_cast<std::size_t>(row)];
    if (!(report == known)) {
        known = report;
        m_changed(report);
    }
}

std::vector<IncompleteTrack> findIncompleteTracks(GadgetPanel& panel) {
    std::vector<IncompleteTrack> incomplete;
    const auto tracks = panel.tracks();
    const std::int32_t focus = tracks->focus();
    for (std::int32_t row = 0; row < tracks->countRows(); ++row) {
        tracks->setFocus(row);
        if (auto missing = missingDetails(panel); !missing.empty()) {
            incomplete.push_back({row, std::move(missing)});
        }
    }
    tracks->setFocus(focus);
    return incomplete;
}

std::string albumTitleOf(GadgetPanel& panel) {
    const auto tracks = panel.tracks();
    const std::int32_t focus = tracks->focus();
    if (focus < 0) {
        tracks->setFocus(0); // the editor shows what has the focus
    }
    std::string title = panel.text("TrackList/TrackProperties/albumTitle");
    if (focus < 0) {
        tracks->setFocus(focus);
    }
    return title;
}

} // namespace xbr::host
