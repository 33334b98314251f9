// What a recording says it holds, what it holds, and what is rendered from it.

#include "host/app/audio/audioformat.h"
#include "host/app/audio/rendering.h"
#include "host/app/audio/soundfile.h"
#include "tests/fixtures/soundfiles.h"
#include "tests/fixtures/testfolder.h"
#include "tests/fixtures/wavefile.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Lt;

class Renderer : public testing::Test {
protected:
    Problem render(
        const std::string& song, const RenderProgress& goOn = [](double) { return true; }) {
        return renderToWav(song, m_target, goOn).problem();
    }
    bool isTargetThere() const { return std::filesystem::exists(m_target); }

    TestFolder m_folder;
    std::string m_target = m_folder.path("target.wav");
};

class Wholeness : public testing::Test {
protected:
    Fault fault() const {
        const auto format = readAudioFormat(m_path);
        return format ? Fault::kNone : format.problem().fault;
    }

    void write(int format, int rate = 48000, int frames = 96000) const {
        writeSound(m_path, format, rate, frames);
    }

    /// Replaces bytes at a place from the start, or from the end when it is negative.
    void patch(std::ptrdiff_t place, const std::string& bytes) const {
        std::string all = readFile(m_path);
        all.replace(static_cast<std::size_t>(place < 0 ? std::ssize(all) + place : place), bytes.size(),
                    bytes);
        writeFile(m_path, all);
    }

    /// Sets the size that follows a chunk's name.
    void setSize(const std::string& chunk, std::uint64_t size) const {
        patch(static_cast<std::ptrdiff_t>(readFile(m_path).find(chunk) + chunk.size()), littleEndian(size));
    }

    void append(const std::string& bytes) const { writeFile(m_path, readFile(m_path) + bytes); }

    void cut(std::uintmax_t size) const { std::filesystem::resize_file(m_path, size); }

    std::uintmax_t size() const { return std::filesystem::file_size(m_path); }

    TestFolder m_folder;
    std::string m_path = m_folder.path("a.wav"); // the bytes count, not the name
};

} // namespace

TEST_F(Renderer, keepsDepthRateAndSamplesOrHas24BitsOfWhatIsLossy) {
    const std::tuple<const char*, int, int, int> cases[] = {
        {"a.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 44100, SF_FORMAT_PCM_16},
        {"c.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_32, 192000, SF_FORMAT_PCM_32},
        {"d.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_S8, 22050, SF_FORMAT_PCM_U8},
        {"e.aifc", SF_FORMAT_AIFF | SF_FORMAT_FLOAT, 48000, SF_FORMAT_FLOAT},
        {"f.aifc", SF_FORMAT_AIFF | SF_FORMAT_DOUBLE, 48000, SF_FORMAT_DOUBLE},
        {"g.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_24, 44100, SF_FORMAT_PCM_24},
        {"j.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS, 48000, SF_FORMAT_PCM_24},
    };
    for (const auto& [name, format, rate, subtype] : cases) {
        SCOPED_TRACE(name);
        const std::string song = m_folder.path(name);
        writeSound(song, format, rate, 48000);
        ASSERT_EQ(render(song), Problem());
        EXPECT_EQ(readFile(m_target).find("PEAK"), std::string::npos) << "it would hold the time of day";
        const SF_INFO info = soundInfo(m_target);
        EXPECT_EQ(info.format, SF_FORMAT_WAV | subtype);
        EXPECT_EQ(info.samplerate, rate);
        const auto samples = readNumbers(song);
        const auto rendered = readNumbers(m_target);
        ASSERT_EQ(rendered.size(), samples.size());
        const bool isLossy = (format & SF_FORMAT_TYPEMASK) == SF_FORMAT_OGG;
        for (std::size_t i = 0; i < samples.size(); i += 101) {
            ASSERT_NEAR(rendered[i], isLossy ? std::clamp(samples[i], -1.0, 1.0) : samples[i],
                        isLossy ? 1e-6 : 0.0);
        }
    }
}

TEST_F(Renderer, whatDoesNotFitIntoFourGibibytesIsRf64) {
    const std::tuple<sf_count_t, int, int, int> cases[] = {
        {715'000'000, 2, SF_FORMAT_PCM_24, SF_FORMAT_WAV},
        {716'000'000, 2, SF_FORMAT_PCM_24, SF_FORMAT_RF64},
        {1'073'000'000, 1, SF_FORMAT_FLOAT, SF_FORMAT_WAV},
        {1'074'000'000, 1, SF_FORMAT_FLOAT, SF_FORMAT_RF64},
        {716'000'000, 2, SF_FORMAT_VORBIS, SF_FORMAT_RF64},
    };
    for (const auto& [frames, channels, subtype, container] : cases) {
        SF_INFO info{};
        info.frames = frames;
        info.channels = channels;
        info.format = SF_FORMAT_AIFF | subtype;
        EXPECT_EQ(wavFormatFor(info).format & SF_FORMAT_TYPEMASK, container) << frames;
    }
}

TEST_F(Renderer, damagedFilesAreToldAndLeaveNothing) {
    writeSound(m_folder.path("whole.aiff"), SF_FORMAT_AIFF | SF_FORMAT_PCM_24);
    const std::string aiff = readFile(m_folder.path("whole.aiff"));
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"cut.aiff", aiff.substr(0, aiff.size() - 4000), "a part of the audio is missing"},
        {"head.aiff", aiff.substr(0, 40), "is "},
        {"empty.aiff", "", "not audio"},
        {"text.aiff", "just some words in a file", "not audio"},
        {"any.vox", aiff.substr(100, 1000), "not audio"}, // of a kind that has no header
    };
    for (const auto& [name, bytes, words] : cases) {
        EXPECT_THAT(render(m_folder.write(name, bytes)).words, HasSubstr(words)) << name;
        EXPECT_FALSE(isTargetThere());
    }
}

TEST_F(Renderer, whatEndsEarlyLeavesNothing) {
    const std::string song = m_folder.path("a.aiff");
    writeSound(song, SF_FORMAT_AIFF | SF_FORMAT_PCM_24, 44100, 300'000);
    std::vector<double> told;
    const auto giveUp = [&](double fraction) {
        told.push_back(fraction);
        return told.size() < 3;
    };
    EXPECT_EQ(render(song, giveUp).fault, Fault::kCancelled);
    EXPECT_FALSE(isTargetThere());
    EXPECT_THAT(told, ElementsAre(Lt(0.3), Lt(0.5), Lt(0.7)));
    {
        const FileSizeLimit full(100'000);
        EXPECT_THAT(render(song).words, HasSubstr("cannot be rendered to WAV: "));
    }
    EXPECT_FALSE(isTargetThere());
}

TEST_F(Renderer, renderedSongsGoWithTheirOwner) {
    writeSound(m_folder.path("a.aiff"), SF_FORMAT_AIFF | SF_FORMAT_PCM_16);
    auto songs = std::make_unique<RenderedSongs>();
    const std::filesystem::path path = songs->pathOf("a (2).wav");
    EXPECT_EQ(songs->render(m_folder.path("a.aiff"), path).problem(), Problem());
    EXPECT_TRUE(std::filesystem::exists(path));
    songs.reset();
    EXPECT_FALSE(std::filesystem::exists(path.parent_path()));
}

TEST_F(Wholeness, isAskedOfEveryFormat) {
    for (const int format : {SF_FORMAT_WAV | SF_FORMAT_FLOAT, SF_FORMAT_WAVEX | SF_FORMAT_PCM_24,
                             SF_FORMAT_RF64 | SF_FORMAT_PCM_16, SF_FORMAT_W64 | SF_FORMAT_PCM_16,
                             SF_FORMAT_AIFF | SF_FORMAT_PCM_24, SF_FORMAT_AU | SF_FORMAT_PCM_16,
                             SF_FORMAT_CAF | SF_FORMAT_PCM_16, SF_FORMAT_CAF | SF_FORMAT_ALAC_16,
                             SF_FORMAT_FLAC | SF_FORMAT_PCM_16, SF_FORMAT_OGG | SF_FORMAT_VORBIS,
                             SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM, SF_FORMAT_WAV | SF_FORMAT_PCM_16}) {
        write(format);
        EXPECT_EQ(fault(), Fault::kNone) << std::hex << format;
        cut(size() / 2);
        EXPECT_EQ(fault(), Fault::kCutShort) << std::hex << format;
    }
    const Problem problem = readAudioFormat(m_path).problem();
    EXPECT_EQ(problem.subject, m_path);
    EXPECT_EQ(problem.found + " of " + problem.expected, "0:00 of 0:02");
}

TEST_F(Wholeness, isThereWhereASizeSaysUnknown) {
    for (const std::uint64_t unknown : {0U, 0xFFFFFFFFU}) {
        for (const std::uint64_t outer : {0U, 36U, 0xFFFFFFFFU}) {
            write(SF_FORMAT_WAV | SF_FORMAT_PCM_16);
            setSize("RIFF", outer);
            setSize("data", unknown);
            const auto format = readAudioFormat(m_path);
            EXPECT_EQ(format ? format->milliseconds : -1, 2000) << unknown << " " << outer;
        }
    }
    write(SF_FORMAT_WAV | SF_FORMAT_PCM_16, 48000, 0);
    EXPECT_EQ(fault(), Fault::kNotAudio) << "no frames at all";
    append(std::string("LIST\4\0\0\0INFO", 12));
    setSize("RIFF", size() - 8);
    EXPECT_EQ(fault(), Fault::kNotAudio) << "no frames, but texts behind them";
}

TEST_F(Wholeness, isLookedForAtTheEndWhereTheLengthIsNotTold) {
    write(SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    patch(21, std::string(1, static_cast<char>(readFile(m_path)[21] & 0xF0)) + std::string(4, '\0'));
    const auto whole = readAudioFormat(m_path);
    EXPECT_EQ(whole ? whole->milliseconds : -1, 2000);
    append("TAG" + std::string(125, ' '));
    EXPECT_EQ(fault(), Fault::kNone) << "with a tag behind the audio";
    cut(size() - 129);
    EXPECT_EQ(fault(), Fault::kCutShort);
    write(SF_FORMAT_OGG | SF_FORMAT_VORBIS, 44100, 44100);
    patch(-40, std::string(8, '\0')); // the page that holds the length fails its check sum
    EXPECT_EQ(fault(), Fault::kCutShort);
}

TEST_F(Wholeness, needsARateAndNumbers) {
    for (const int rate : {1, 999, 8000, 44100, 768'000, 67'000'000}) {
        write(SF_FORMAT_WAV | SF_FORMAT_PCM_16, rate);
        EXPECT_EQ(fault(), rate < 1000 || rate > 768'000 ? Fault::kWrongRate : Fault::kNone) << rate;
    }
    write(SF_FORMAT_WAV | SF_FORMAT_FLOAT);
    patch(-4, littleEndian(0x3FC00000)); // beyond full scale is fine
    EXPECT_EQ(fault(), Fault::kNone);
    for (const std::uint64_t wrong : {0x7FC00000U, 0x7F800000U}) { // not a number, and infinity
        patch(-4, littleEndian(wrong));
        EXPECT_EQ(fault(), Fault::kNotNumbers) << wrong;
    }
}

TEST_F(Wholeness, isMoreThanTheStartOfAnMp3) {
    write(SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 48000, 480'000);
    EXPECT_EQ(fault(), Fault::kNone);
    cut(2000);
    EXPECT_EQ(fault(), Fault::kCutShort);
    writeFile(m_path, std::string("\xFF\xFB\x90\x00", 4) + std::string(413, '\0'));
    EXPECT_EQ(fault(), Fault::kNotAudio) << "a frame is no song";
}

} // namespace xbr::host
