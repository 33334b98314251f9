// Renders a few short songs as a musician's workstation would: WAV, FLAC and MP3 with tags. For the demo, the
// tests and the benchmarks; what it writes depends on its arguments only.

#include <sndfile.h>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

#include <charconv>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <numbers>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

constexpr int kRate = 48000;
constexpr int kChannels = 2;

struct Song {
    const char* fileName;
    int format;
    const char* title;
    const char* artist;
    const char* genre;
    const char* number;
    double root; ///< Hz
};

/// What the service takes as it is.
constexpr Song kSongs[] = {
    {"Opening.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24, "Opening", "The Lamps", "Electronica", "1", 110.0},
    {"Night Drive.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, "Night Drive", "The Lamps", "Electronica", "2",
     146.83},
    {"Café del Último.mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, "Café del Último",
     "The Lamps feat. Axé", "Ambient", "3", 164.81},
};

/// What a host has to render first.
constexpr Song kForeignSongs[] = {
    {"Harbour.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_24, "Harbour", "The Lamps", "Electronica", "4", 130.81},
    {"Tide.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS, "Tide", "The Lamps", "Ambient", "5", 98.0},
};

/// Plucked chords with a little room noise: neither silence nor noise, so that it compresses as music does.
std::vector<float> render(const Song& song, int seconds) {
    static constexpr double kChord[] = {1.0, 1.25, 1.5, 2.0};
    std::mt19937 random(static_cast<unsigned>(song.root));
    std::normal_distribution<float> hiss(0.0F, 0.0008F);
    std::vector<float> samples(static_cast<std::size_t>(seconds) * kRate * kChannels);
    for (std::size_t frame = 0; frame * kChannels < samples.size(); ++frame) {
        const double time = static_cast<double>(frame) / kRate;
        const double beat = std::fmod(time, 0.5);
        const double note = song.root * kChord[static_cast<std::size_t>(time / 0.5) % 4];
        double value = 0.0;
        for (int harmonic = 1; harmonic <= 6; ++harmonic) {
            const double level = std::exp(-beat * (2.0 + harmonic)) / harmonic;
            value += level * std::sin(2.0 * std::numbers::pi * note * harmonic * time);
        }
        for (int channel = 0; channel < kChannels; ++channel) {
            samples[frame * kChannels + static_cast<std::size_t>(channel)] =
                static_cast<float>(0.25 * value) + hiss(random);
        }
    }
    return samples;
}

bool write(const std::filesystem::path& path, const Song& song, int seconds) {
    SF_INFO info{};
    info.samplerate = kRate;
    info.channels = kChannels;
    info.format = song.format;
    SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
    if (!file) {
        std::cerr << path << ": " << sf_strerror(nullptr) << '\n';
        return false;
    }
    const std::vector<float> samples = render(song, seconds);
    const auto frames = static_cast<sf_count_t>(samples.size()) / kChannels;
    const bool complete = sf_writef_float(file, samples.data(), frames) == frames;
    return sf_close(file) == 0 && complete;
}

bool tag(const std::filesystem::path& path, const Song& song) {
    const auto text = [](const char* value) {
        return TagLib::StringList(TagLib::String(value, TagLib::String::UTF8));
    };
    TagLib::FileRef file(path.c_str(), false);
    TagLib::PropertyMap properties;
    properties.insert("TITLE", text(song.title));
    properties.insert("ARTIST", text(song.artist));
    properties.insert("ALBUM", text("Night Drive"));
    properties.insert("ALBUMARTIST", text("The Lamps"));
    properties.insert("GENRE", text(song.genre));
    properties.insert("TRACKNUMBER", text(song.number));
    return !file.isNull() && file.file()->setProperties(properties).isEmpty() && file.save();
}

constexpr const char* kHelp = R"(Usage: brindlex-songs FOLDER [SECONDS [foreign]]

Writes songs with tags into FOLDER, which is made when it is not there: one WAV, one FLAC and one MP3 file, or with
"foreign" one AIFF and one Ogg file, which a host has to render. SECONDS is their length, 1 to 3600; 4 without it.

  --help                 this text
)";

int refuse(std::string_view reason) {
    std::cerr << "brindlex-songs: " << reason << "\nTry 'brindlex-songs --help'.\n";
    return 2;
}

/// 0 when it is not a length that can be used.
int readSeconds(std::string_view text) {
    int seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && seconds >= 1 && seconds <= 3600 ? seconds : 0;
}

int writeSongs(const std::filesystem::path& folder, std::span<const Song> songs, int seconds) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    for (const Song& song : songs) {
        const auto path = folder / song.fileName;
        if (error || !write(path, song, seconds) || !tag(path, song)) {
            std::cerr << "brindlex-songs: cannot write " << path << '\n';
            return 1;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> words(argv + 1, argv + argc);
    for (const auto word : words) {
        if (word == "--help") {
            std::cout << kHelp;
            return 0;
        }
        if (word.starts_with('-')) {
            return refuse("there is no option '" + std::string(word) + "'");
        }
    }
    if (words.empty() || words.size() > 3) {
        return refuse("a folder is needed, and at most a length and \"foreign\" after it");
    }
    const int seconds = words.size() > 1 ? readSeconds(words[1]) : 4;
    if (seconds == 0) {
        return refuse("the length must be 1 to 3600 seconds");
    }
    if (words.size() == 3 && words[2] != "foreign") {
        return refuse("the only kind of songs to name is \"foreign\"");
    }
    return writeSongs(words[0], words.size() == 3 ? std::span<const Song>(kForeignSongs) : kSongs, seconds);
}
