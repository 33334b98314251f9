#include "host/app/audio/audioformat.h"
#include "host/app/audio/mediatags.h"
#include "tests/fuzz/fuzz.h"

#include <iterator>

namespace {

constexpr const char* kNames[] = {"song.wav", "song.mp3", "song.flac", "song.aiff", "song.ogg"};

} // namespace

/// libsndfile forgets what it made for an Ogg stream whose headers it then refuses: some kilobytes for each
/// file.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the sanitizer's name
extern "C" const char* __lsan_default_suppressions() {
    return "leak:vorbis_info_init\n";
}

/// Songs from anywhere: tags that modules can be given, and a format that people can be told.
void fuzz::read(std::string_view input) {
    const char* const name = kNames[takeChoice(input) % std::size(kNames)];
    const std::string path = fileOf(name, input);
    for (const auto& tags :
         {xbr::host::readTags(path).value_or(xbr::host::MediaTags{}), xbr::host::readForeignTags(path)}) {
        expect(tags.trackIndex >= 0 && tags.trackIndex <= 9999);
        for (const auto& [key, text] : tags.texts) {
            expect(!key.empty() && !text.empty());
        }
    }
    if (const auto format = xbr::host::readAudioFormat(path)) {
        expect(format->milliseconds >= 0 && format->sampleRate >= 0);
    }
}
