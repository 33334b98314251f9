// What a file says it holds, and what it holds.

#include "host/app/audio/audioformat.h"
#include "tests/fixtures/soundfiles.h"
#include "tests/fixtures/testfolder.h"

#include <gtest/gtest.h>

#include <FLAC/stream_encoder.h>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>

namespace xbr::host {

namespace {

Fault faultOf(const std::string& path) {
    const auto format = readAudioFormat(path);
    return format ? Fault::kNone : format.problem().fault;
}

/// Writes a number of four bytes, the lowest first, behind a chunk's name.
void setSize(const std::string& path, const std::string& chunk, std::uint32_t size) {
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    std::string start(4096, '\0');
    file.read(start.data(), static_cast<std::streamsize>(start.size()));
    file.clear();
    file.seekp(static_cast<std::streamoff>(start.find(chunk) + chunk.size()));
    for (unsigned shift = 0; shift < 32; shift += 8) {
        file.put(static_cast<char>(size >> shift));
    }
}

struct Encoding {
    const char* name;
    int format;
};

TEST(Wholeness, isAskedOfEveryFormat) {
    constexpr Encoding kEncodings[] = {
        {"a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16},   {"f.wav", SF_FORMAT_WAV | SF_FORMAT_FLOAT},
        {"x.wav", SF_FORMAT_WAVEX | SF_FORMAT_PCM_24}, {"64.wav", SF_FORMAT_RF64 | SF_FORMAT_PCM_16},
        {"a.w64", SF_FORMAT_W64 | SF_FORMAT_PCM_16},   {"a.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_24},
        {"a.au", SF_FORMAT_AU | SF_FORMAT_PCM_16},     {"a.caf", SF_FORMAT_CAF | SF_FORMAT_PCM_16},
        {"l.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_16},  {"a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16},
        {"a.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS},   {"i.wav", SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM},
    };
    const TestFolder folder;
    for (const auto& [name, format] : kEncodings) {
        SCOPED_TRACE(name);
        const std::string path = folder.path(name);
        writeSound(path, format, 48000, 96000);
        EXPECT_EQ(faultOf(path), Fault::kNone);
        std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
        EXPECT_EQ(faultOf(path), Fault::kCutShort);
    }
    const auto cut = readAudioFormat(folder.path("a.wav"));
    ASSERT_FALSE(cut);
    EXPECT_EQ(cut.problem().subject, folder.path("a.wav"));
    EXPECT_EQ(cut.problem().found + " of " + cut.problem().expected, "0:00 of 0:02");
}

TEST(Wholeness, isThereWhereASizeSaysUnknown) {
    const TestFolder folder;
    const std::string path = folder.path("stream.wav");
    for (const std::uint32_t unknown : {0U, 0xFFFFFFFFU}) {
        for (const std::uint32_t outer : {0U, 36U, 0xFFFFFFFFU}) {
            writeSound(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 48000, 96000);
            setSize(path, "RIFF", outer);
            setSize(path, "data", unknown);
            const auto format = readAudioFormat(path);
            ASSERT_TRUE(format) << unknown << " " << outer;
            EXPECT_EQ(format->milliseconds, 2000) << unknown << " " << outer;
        }
    }
    writeSound(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 48000, 0);
    EXPECT_EQ(faultOf(path), Fault::kNotAudio) << "no frames at all";
    std::ofstream(path, std::ios::binary | std::ios::app) << std::string("LIST\4\0\0\0INFO", 12);
    setSize(path, "RIFF", static_cast<std::uint32_t>(std::filesystem::file_size(path)) - 8);
    EXPECT_EQ(faultOf(path), Fault::kNotAudio) << "no frames, but texts behind them";
}

/// Two seconds of FLAC from an encoder that cannot go back to fill in the length.
void writeStream(const std::string& path) {
    const auto write = [](const FLAC__StreamEncoder*, const FLAC__byte* bytes, size_t size, std::uint32_t,
                          std::uint32_t, void* file) {
        static_cast<std::ofstream*>(file)->write(reinterpret_cast<const char*>(bytes),
                                                 static_cast<std::streamsize>(size));
        return FLAC__STREAM_ENCODER_WRITE_STATUS_OK;
    };
    std::ofstream file(path, std::ios::binary);
    FLAC__StreamEncoder* encoder = FLAC__stream_encoder_new();
    FLAC__stream_encoder_set_sample_rate(encoder, 48000);
    FLAC__stream_encoder_init_stream(encoder, write, nullptr, nullptr, nullptr, &file);
    std::vector<int> samples = testSamples(2 * 96000);
    std::for_each(samples.begin(), samples.end(), [](int& sample) { sample /= 65536; });
    FLAC__stream_encoder_process_interleaved(encoder, samples.data(), 96000);
    FLAC__stream_encoder_finish(encoder);
    FLAC__stream_encoder_delete(encoder);
}

TEST(Wholeness, isLookedForAtTheEndOfAFlacThatDoesNotTellItsLength) {
    const TestFolder folder;
    const std::string path = folder.path("stream");
    writeStream(path);
    const auto whole = readAudioFormat(path);
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->milliseconds, 2000);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) - 1);
    EXPECT_EQ(faultOf(path), Fault::kCutShort);
    writeStream(path);
    std::ofstream(path, std::ios::binary | std::ios::app) << "TAG" << std::string(125, ' ');
    EXPECT_EQ(faultOf(path), Fault::kNone) << "with a tag behind the audio";
}

TEST(Wholeness, isNotThereWhereNobodyCanTellTheLength) {
    const TestFolder folder;
    const std::string path = folder.path("a.ogg");
    writeSound(path, SF_FORMAT_OGG | SF_FORMAT_VORBIS, 44100, 44100);
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary | std::ios::ate);
    file.seekp(-40, std::ios::end);
    file << std::string(8, '\0'); // the page that holds the length fails its check sum
    file.close();
    EXPECT_EQ(faultOf(path), Fault::kCutShort);
}

TEST(Wholeness, needsARateAndNumbers) {
    const TestFolder folder;
    const std::string path = folder.path("odd.wav");
    for (const int rate : {1, 999, 67'000'000}) {
        writeSound(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, rate);
        EXPECT_EQ(faultOf(path), Fault::kWrongRate) << rate;
    }
    for (const int rate : {8000, 44100, 768'000}) {
        writeSound(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, rate);
        EXPECT_EQ(faultOf(path), Fault::kNone) << rate;
    }
    for (const float wrong :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        SF_INFO info{};
        info.samplerate = 48000;
        info.channels = 1;
        info.format = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
        std::vector<float> samples(100'000, 1.5F); // beyond full scale is fine
        samples[90'000] = wrong;
        SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
        sf_writef_float(file, samples.data(), static_cast<sf_count_t>(samples.size()));
        sf_close(file);
        EXPECT_EQ(faultOf(path), Fault::kNotNumbers) << wrong;
    }
}

TEST(Wholeness, isMoreThanTheStartOfAnMp3) {
    const TestFolder folder;
    const std::string path = folder.path("a.mp3");
    writeSound(path, SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 48000, 480'000);
    EXPECT_EQ(faultOf(path), Fault::kNone);
    std::filesystem::resize_file(path, 2000);
    EXPECT_EQ(faultOf(path), Fault::kCutShort);
    const std::string frame = std::string("\xFF\xFB\x90\x00", 4) + std::string(413, '\0');
    EXPECT_EQ(faultOf(folder.write("one.mp3", frame)), Fault::kNotAudio) << "a frame is no song";
}

} // namespace

} // namespace xbr::host
