#include "framework/support/objects/text.h"
#include "host/app/audio/mediatags.h"
#include "host/app/audio/rendering.h"
#include "host/app/audio/soundfile.h"
#include "tests/fixtures/soundfiles.h"
#include "tests/fixtures/testfolder.h"

#include <gmock/gmock.h>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

#include <filesystem>

namespace xbr::host {

namespace {

using testing::HasSubstr;

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

} // namespace

TEST_F(Renderer, keepsDepthRateAndSamples) {
    const struct {
        const char* name;
        int format;
        int rate;
        int subtype;
    } cases[] = {
        {"a.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 44100, SF_FORMAT_PCM_16},
        {"b.aif", SF_FORMAT_AIFF | SF_FORMAT_PCM_24, 96000, SF_FORMAT_PCM_24},
        {"c.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_32, 192000, SF_FORMAT_PCM_32},
        {"d.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_S8, 22050, SF_FORMAT_PCM_U8},
        {"e.aifc", SF_FORMAT_AIFF | SF_FORMAT_FLOAT, 48000, SF_FORMAT_FLOAT},
        {"f.aifc", SF_FORMAT_AIFF | SF_FORMAT_DOUBLE, 48000, SF_FORMAT_DOUBLE},
        {"g.caf", SF_FORMAT_CAF | SF_FORMAT_ALAC_24, 44100, SF_FORMAT_PCM_24},
        {"h.au", SF_FORMAT_AU | SF_FORMAT_PCM_24, 11025, SF_FORMAT_PCM_24},
        {"i.w64", SF_FORMAT_W64 | SF_FORMAT_PCM_24, 44100, SF_FORMAT_PCM_24},
    };
    for (const auto& one : cases) {
        const std::string song = m_folder.path(one.name);
        writeSound(song, one.format, one.rate);
        ASSERT_EQ(render(song), Problem()) << one.name;
        const SF_INFO info = soundInfo(m_target);
        EXPECT_EQ(info.format, SF_FORMAT_WAV | one.subtype) << one.name;
        EXPECT_EQ(info.samplerate, one.rate);
        EXPECT_EQ(info.channels, 2);
        const bool isFloat = one.subtype == SF_FORMAT_FLOAT || one.subtype == SF_FORMAT_DOUBLE;
        EXPECT_TRUE(isFloat ? readNumbers(m_target) == readNumbers(song)
                            : readIntegers(m_target) == readIntegers(song))
            << one.name;
    }
}

TEST_F(Renderer, lossyAudioGets24Bits) {
    const std::string song = m_folder.path("a.ogg");
    for (const int format : {SF_FORMAT_OGG | SF_FORMAT_VORBIS, SF_FORMAT_OGG | SF_FORMAT_OPUS}) {
        writeSound(song, format, 48000, 48000);
        ASSERT_EQ(render(song), Problem());
        EXPECT_EQ(soundInfo(m_target).format, SF_FORMAT_WAV | SF_FORMAT_PCM_24);
        EXPECT_EQ(soundInfo(m_target).frames, soundInfo(song).frames);
        const auto decoded = readNumbers(song);
        const auto rendered = readNumbers(m_target);
        for (std::size_t i = 0; i < decoded.size(); i += 101) {
            ASSERT_NEAR(rendered[i], std::clamp(decoded[i], -1.0, 1.0), 1e-6) << "wrapped around at a peak";
        }
    }
}

TEST_F(Renderer, sameSongSameBytes) {
    const std::string song = m_folder.path("a.aiff");
    writeSound(song, SF_FORMAT_AIFF | SF_FORMAT_FLOAT);
    ASSERT_EQ(render(song), Problem());
    const std::string first = readFile(m_target);
    ASSERT_EQ(render(song), Problem());
    EXPECT_EQ(readFile(m_target), first);
}

TEST_F(Renderer, whatDoesNotFitIntoFourGibibytesIsRf64) {
    const struct {
        sf_count_t frames;
        int channels;
        int subtype;
        int container;
    } cases[] = {
        {715'000'000, 2, SF_FORMAT_PCM_24, SF_FORMAT_WAV},
        {716'000'000, 2, SF_FORMAT_PCM_24, SF_FORMAT_RF64},
        {1'073'000'000, 1, SF_FORMAT_FLOAT, SF_FORMAT_WAV},
        {1'074'000'000, 1, SF_FORMAT_FLOAT, SF_FORMAT_RF64},
        {716'000'000, 2, SF_FORMAT_VORBIS, SF_FORMAT_RF64},
        {716'000'000, 2, SF_FORMAT_PCM_16, SF_FORMAT_WAV},
    };
    for (const auto& one : cases) {
        SF_INFO info{};
        info.frames = one.frames;
        info.channels = one.channels;
        info.format = SF_FORMAT_AIFF | one.subtype;
        EXPECT_EQ(wavFormatFor(info).format & SF_FORMAT_TYPEMASK, one.container) << one.frames;
    }
}

TEST_F(Renderer, damagedFilesAreToldAndLeaveNothing) {
    writeSound(m_folder.path("whole.aiff"), SF_FORMAT_AIFF | SF_FORMAT_PCM_24);
    const std::string aiff = readFile(m_folder.path("whole.aiff"));
    const struct {
        const char* name;
        std::string bytes;
        const char* words;
    } cases[] = {
        {"cut.aiff", aiff.substr(0, aiff.size() - 4000), "a part of the audio is missing"},
        {"head.aiff", aiff.substr(0, 40), "is "},
        {"empty.aiff", "", "not audio"},
        {"text.aiff", "just some words in a file", "not audio"},
        {"any.vox", aiff.substr(100, 1000), "not audio"}, // of a kind that has no header
    };
    for (const auto& one : cases) {
        EXPECT_THAT(render(m_folder.write(one.name, one.bytes)).words, HasSubstr(one.words)) << one.name;
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
    EXPECT_THAT(told, testing::ElementsAre(testing::Lt(0.3), testing::Lt(0.5), testing::Lt(0.7)));
    {
        const FileSizeLimit full(100'000);
        EXPECT_THAT(render(song).words, HasSubstr("cannot be rendered to WAV: "));
    }
    EXPECT_FALSE(isTargetThere());
}

TEST_F(Renderer, renderedSongsGoWithTheirOwner) {
    std::string folder;
    {
        RenderedSongs songs;
        const std::string path = songs.pathOf("a (2).wav");
        writeSound(m_folder.path("a.aiff"), SF_FORMAT_AIFF | SF_FORMAT_PCM_16);
        EXPECT_EQ(songs.render(m_folder.path("a.aiff"), path).problem(), Problem());
        EXPECT_TRUE(std::filesystem::exists(path));
        folder = std::filesystem::path(path).parent_path();
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(Renderer, tagsOfForeignFormatsAreRead) {
    for (const auto& [name, format] : {std::pair{"a.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16},
                                       std::pair{"a.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS},
                                       std::pair{"a.opus", SF_FORMAT_OGG | SF_FORMAT_OPUS}}) {
        const std::string song = m_folder.path(name);
        writeSound(song, format, 48000);
        EXPECT_EQ(readForeignTags(song).texts.size(), 0U) << name;
        const TagLib::FileRef file(song.c_str(), false);
        TagLib::PropertyMap properties;
        for (const char* key : {"TITLE", "ARTIST", "ALBUM", "ALBUMARTIST", "GENRE"}) {
            properties.insert(
                key, TagLib::StringList(TagLib::String(key + std::string(" Axé"), TagLib::String::UTF8)));
        }
        properties.insert("TRACKNUMBER", TagLib::StringList("7/9"));
        file.file()->setProperties(properties);
        ASSERT_TRUE(file.file()->save());
        const auto media = attributesOf(readForeignTags(song));
        EXPECT_EQ(media->getString("Media:Title"), "TITLE Axé") << name;
        EXPECT_EQ(media->getString("Media:Artist"), "ARTIST Axé");
        EXPECT_EQ(media->getString("Media:Album"), "ALBUM Axé");
        EXPECT_EQ(media->getString("Media:AlbumArtist"), "ALBUMARTIST Axé");
        EXPECT_EQ(media->getString("Media:Genre"), "GENRE Axé");
        EXPECT_EQ(integerOf(media->get("Media:TrackIndex")), 7);
    }
}

} // namespace xbr::host
