#include "host/app/publishing/upload/tracks.h"

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

TrackDetails readDetails(IPropertySource& item) {
    TrackDetails details;
    for (const Detail detail : kDetails) {
        const Value value = property(item, parameterOf(detail));
        details.isKnown = value.kind != ValueKind::kNone;
        // Rationale: the first choice of a menu stands for nothing, and may be a blank.
        const std::string text(textOf(value));
        details.texts[static_cast<std::size_t>(detail)] = text == " " ? std::string() : text;
    }
    details.number = integerOf(property(item, "trackNumber"));
    return details;
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
        report.details = readDetails(*item);
    }
    return report;
}

} // namespace

std::string labelOf(const TrackReport& track) {
    const std::string path = localPath(track.file).value_or(track.file);
    return track.title.empty() ? path.substr(path.rfind('/') + 1) : track.title;
}

std::vector<Detail> missingDetails(const TrackReport& track) {
    std::vector<Detail> missing;
    for (const Detail detail : kDetails) {
        if (track.details.isKnown && track.details.text(detail).empty()) {
            missing.push_back(detail);
        }
    }
    return missing;
}

TrackFollower::TrackFollower(Ref<IListViewModel> tracks, std::function<void()> touched, Changed changed,
                             Name name)
    : m_tracks(std::move(tracks)),
      m_touched(std::move(touched)),
      m_changed(std::move(changed)),
      m_name(std::move(name)),
      m_listener([this](ISubject*, const IMessage& message) {
          if (isNamed(message, "itemChanged")) {
              readRow(static_cast<std::int32_t>(integerOf(message.argument(0), -1)));
              m_touched();
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
    m_touched();
}

void TrackFollower::readRow(std::int32_t row) {
    if (row < 0 || static_cast<std::size_t>(row) >= m_reports.size()) {
        return;
    }
    TrackReport report = read(*m_tracks, row);
    m_name(report);
    auto& known = m_reports[static_cast<std::size_t>(row)];
    if (!(report == known)) {
        known = report;
        m_changed(report);
    }
}

} // namespace xbr::host
