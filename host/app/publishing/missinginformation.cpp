#include "host/app/publishing/missinginformation.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"

namespace xbr::host {

namespace {

constexpr std::string_view kFields[] = {"albumTitle", "albumArtist", "primaryGenre", "songTitle",
                                        "songArtist"};

/// Of a list of choices the first is "not set".
bool isMissing(const IParameter& parameter) {
    const Value value = parameter.value();
    return parameter.kind() == ParameterKind::kList ? integerOf(value) == 0 : textOf(value).empty();
}

std::vector<std::string> missingFields(GadgetPanel& panel) {
    std::vector<std::string> missing;
    for (const auto field : kFields) {
        const std::string path = "TrackList/TrackProperties/" + std::string(field);
        const IParameter* parameter = findParameter(panel.controller(), path);
        if (parameter && isMissing(*parameter)) {
            missing.emplace_back(field);
        }
    }
    return missing;
}

std::string titleOf(IListViewModel& tracks, std::int32_t row) {
    Ref<IObject> object;
    tracks.getItem(row, object.out());
    const auto item = query<IPropertySource>(object.get());
    Value title{};
    return item && item->getProperty(toText("title"), &title) == kOk ? std::string(textOf(title))
                                                                     : std::string();
}

} // namespace

std::vector<IncompleteTrack> findIncompleteTracks(GadgetPanel& panel) {
    std::vector<IncompleteTrack> incomplete;
    const auto tracks = panel.tracks();
    if (!tracks) {
        return incomplete;
    }
    const std::int32_t focus = tracks->focus();
    for (std::int32_t row = 0; row < tracks->countRows(); ++row) {
        tracks->setFocus(row);
        auto fields = missingFields(panel);
        if (!fields.empty()) {
            incomplete.push_back({row, titleOf(*tracks, row), std::move(fields)});
        }
    }
    tracks->setFocus(focus);
    return incomplete;
}

} // namespace xbr::host
