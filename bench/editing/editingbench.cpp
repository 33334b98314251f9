#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "release/genrecatalogue.h"
#include "tests/fakehost/fakehost.h"
#include "ui/tracks/tracklistcomponent.h"

#include <benchmark/benchmark.h>
#include <numeric>

// What working on a long list costs for each of its tracks: it has to be the same for 100 and for 10,000.

namespace brindlex {

namespace {

class DroppedFile final : public xbr::Object<xbr::IUrlSource> {
public:
    explicit DroppedFile(std::string url) : m_url(std::move(url)) {}
    xbr::Result getUrl(xbr::IString** out) noexcept override { return xbr::giveText(m_url, out); }

private:
    std::string m_url;
};

xbr::Ref<xbr::ObjectList> files(std::int64_t count) {
    auto objects = xbr::make<xbr::ObjectList>();
    for (std::int64_t i = 0; i < count; ++i) {
        const auto file = xbr::make<DroppedFile>("file:///music/take%20" + std::to_string(i) + ".wav");
        objects->add(xbr::query<xbr::IObject>(file.get()));
    }
    return objects;
}

xbr::Ref<TrackListComponent> emptyList(UploadMode mode) {
    fakehost::resetHost();
    fakehost::host().files.files["resource://brindlex/brindlex_genres.csv"] = "Rock\nJazz\n";
    loadGenres();
    auto list = xbr::make<TrackListComponent>();
    list->prepareMode(mode);
    return list;
}

/// All tracks selected, the first with the focus.
xbr::Ref<TrackListComponent> fullList(UploadMode mode, std::int64_t count) {
    auto list = emptyList(mode);
    list->add(*files(count));
    std::vector<std::int32_t> rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), 0);
    list->model().setSelection(rows.data(), static_cast<std::int32_t>(count));
    list->model().setFocus(0);
    return list;
}

void setParameter(xbr::Component& component, const char* name, const xbr::Value& value) {
    component.findParameter(xbr::toText(name))->setValue(value);
}

void countTracks(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void addFiles(benchmark::State& state, UploadMode mode) {
    for (auto _ : state) {
        state.PauseTiming();
        auto list = emptyList(mode);
        const auto dropped = files(state.range(0));
        state.ResumeTiming();
        list->add(*dropped);
        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
    countTracks(state);
}

void typeText(benchmark::State& state, UploadMode mode, const char* parameter) {
    const auto list = fullList(mode, state.range(0));
    std::int64_t typed = 0;
    for (auto _ : state) {
        const std::string text = "Title " + std::to_string(++typed);
        setParameter(list->editor(), parameter, xbr::textValue(text));
    }
    countTracks(state);
}

void switchMode(benchmark::State& state) {
    const auto list = fullList(UploadMode::kSingles, state.range(0));
    std::int64_t album = 0;
    for (auto _ : state) {
        album = 1 - album;
        setParameter(*list, "albumUpload", xbr::integerValue(album));
    }
    countTracks(state);
}

void removeAll(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto list = fullList(UploadMode::kAlbum, state.range(0));
        state.ResumeTiming();
        setParameter(*list, "removeAll", xbr::integerValue(1));
        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
    countTracks(state);
}

void markMissing(benchmark::State& state) {
    const auto list = fullList(UploadMode::kAlbum, state.range(0));
    for (auto _ : state) {
        list->validateForUpload(Marks::kSet);
    }
    countTracks(state);
}

/// The peer of adding: every track is looked at again for each one that comes.
void addFilesLookingAtAll(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto list = emptyList(UploadMode::kAlbum);
        state.ResumeTiming();
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            list->prepareMode(UploadMode::kAlbum);
            list->add(*files(1));
        }
        state.PauseTiming();
        list.reset();
        state.ResumeTiming();
    }
    countTracks(state);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(100, 10000)->MinTime(0.3);
}

BENCHMARK_CAPTURE(addFiles, , UploadMode::kSingles)->Name("add files as singles")->Apply(sizes);
BENCHMARK_CAPTURE(addFiles, , UploadMode::kAlbum)->Name("add files to an album")->Apply(sizes);
BENCHMARK(addFilesLookingAtAll)->Name("add files, looking at all each time (peer)")->Apply(sizes);
BENCHMARK_CAPTURE(typeText, , UploadMode::kAlbum, "albumTitle")->Name("type an album title")->Apply(sizes);
BENCHMARK_CAPTURE(typeText, , UploadMode::kSingles, "songArtist")
    ->Name("type all singles' artist")
    ->Apply(sizes);
BENCHMARK(switchMode)->Name("switch the mode")->Apply(sizes);
BENCHMARK(markMissing)->Name("mark what is missing")->Apply(sizes);
BENCHMARK(removeAll)->Name("remove all")->Apply(sizes);

} // namespace

} // namespace brindlex
