#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "host/app/audio/mediasignature.h"
#include "host/app/audio/mediatags.h"
#include "tests/fixtures/soundfiles.h"
#include "tests/fixtures/testfolder.h"
#include "tests/fixtures/wavefile.h"

#include <gtest/gtest.h>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>

namespace xbr::host {

namespace {

constexpr std::uint64_t kMiB = std::uint64_t{1} << 20U;
const std::string kFrame("\xFF\xFB\x90\x64", 4); // of an MP3 file

std::string id3Head(char version, std::uint64_t size) {
    std::string head{'I', 'D', '3', version, '\0', '\0'};
    for (int shift = 21; shift >= 0; shift -= 7) {
        head += static_cast<char>(size >> static_cast<unsigned>(shift) & 0x7FU);
    }
    return head;
}

std::string flacBlock(char type, std::uint32_t size) {
    const std::string number = littleEndian(size, 3);
    return type + std::string(number.rbegin(), number.rend());
}

std::string apeFooter(std::uint64_t size) {
    return "APETAGEX" + littleEndian(2000) + littleEndian(size) + std::string(16, '\0');
}

/// The most that this process ever took, in bytes.
std::uint64_t mostMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::uint64_t>(usage.ru_maxrss) * 1024;
}

/// Attributes as one text in the order of the border's documentation.
std::string textOf(const Attributes& attributes) {
    std::string text;
    for (const char* key :
         {"Media:Title", "Media:Artist", "Media:Album", "Media:AlbumArtist", "Media:Genre"}) {
        text += attributes.getString(key) + "|";
    }
    return text + std::to_string(integerOf(attributes.get("Media:TrackIndex")));
}

class Media : public testing::Test {
protected:
    /// The attributes of a file with these bytes.
    std::string attributesOf(std::string_view bytes) {
        m_folder.write("named.flac", bytes);
        const auto attributes = make<Attributes>();
        const bool isAudio = m_info->open(toText(m_folder.url("named.flac"))) == kOk &&
                             m_info->getAttributes(attributes.get()) == kOk;
        return isAudio ? textOf(*attributes) : "no audio";
    }

    TestFolder m_folder;
    Ref<MediaFileInfo> m_info = make<MediaFileInfo>();
};

} // namespace

TEST_F(Media, bytesTellWhatAFileIsAndSays) {
    const auto info =
        infoChunk({{"INAM", "Night"}, {"IART", "Ann"}, {"IPRD", "Moon"}, {"IGNR", "Pop"}, {"IPRT", "7"}});
    const auto id3 = chunk("id3 ", id3Tag({{"TIT2", "Day"}, {"TPE2", "Band"}, {"TRCK", "3/12"}}));
    const std::string tag = id3Tag({{"TIT2", "Song"}, {"TRCK", "x"}});
    const std::string wave = waveFile();
    std::string manyChunks = wave.substr(0, 36);
    for (int i = 0; i < 5000; ++i) {
        manyChunks += chunk("junk", "");
    }
    const std::pair<std::string, const char*> cases[] = {
        {wave, "|||||0"},
        {"RF64" + wave.substr(4), "|||||0"},
        {waveFile(info), "Night|Ann|Moon||Pop|7"},
        {waveFile(id3), "Day|||Band||3"},
        {waveFile(info + id3), "Day|Ann|Moon|Band|Pop|3"},
        {waveFile(infoChunk({{"ITRK", "05"}})), "|||||5"},
        {waveFile(infoChunk({{"INAM", "Ax\xC3\xA9"}})), "Axé|||||0"},
        {waveFile(infoChunk({{"INAM", "Ax\xE9"}})), "Axé|||||0"},
        {tag + std::string(100, '\0') + kFrame + std::string(500, '\0'), "Song|||||0"},
        {"", "no audio"},
        {"just text, long enough to be looked at as something else", "no audio"},
        {wave.substr(0, 12), "no audio"},                                        // nothing behind the head
        {wave.substr(0, 36), "no audio"},                                        // no audio
        {wave.substr(0, 8) + "AVI " + wave.substr(12), "no audio"},              // another form
        {"RIFF\xFF\xFF\xFF\xFFWAVE" + std::string(4000, '\xFF'), "no audio"},    // sizes beyond the end
        {"ID3\x04" + std::string(3, '\0') + std::string(4, '\x7F'), "no audio"}, // 256 MiB that are not there
        {manyChunks + chunk("data", "xx"), "no audio"},
    };
    for (const auto& [bytes, expected] : cases) {
        EXPECT_EQ(attributesOf(bytes), expected) << bytes.substr(0, 60);
    }
    EXPECT_EQ(recognise(m_folder.write("a", std::string(10, '\0') + kFrame)), MediaKind::kMp3);
    EXPECT_EQ(recognise(m_folder.write("b", "fLaC" + std::string(60, '\0'))), MediaKind::kFlac);
    EXPECT_EQ(recognise(m_folder.write("c", tag + "fLaC")), MediaKind::kFlac);
}

TEST_F(Media, tagsOfForeignFormatsAreRead) {
    for (const auto& [name, format] : {std::pair{"a.aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16},
                                       std::pair{"a.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS}}) {
        const std::string song = m_folder.path(name);
        writeSound(song, format, 48000);
        EXPECT_EQ(readForeignTags(song).texts.size(), 0U) << name;
        const TagLib::FileRef file(song.c_str(), false);
        TagLib::PropertyMap properties;
        for (const char* key : {"TITLE", "ARTIST", "ALBUM", "ALBUMARTIST", "GENRE"}) {
            properties.insert(key, TagLib::String(key + std::string(" Axé"), TagLib::String::UTF8));
        }
        properties.insert("TRACKNUMBER", TagLib::String("7/9"));
        file.file()->setProperties(properties);
        ASSERT_TRUE(file.file()->save());
        EXPECT_EQ(textOf(*host::attributesOf(readForeignTags(song))),
                  "TITLE Axé|ARTIST Axé|ALBUM Axé|ALBUMARTIST Axé|GENRE Axé|7");
    }
}

TEST_F(Media, hostileTagsCostLittle) {
    const std::string bomb = compressedText(100 * kMiB);
    constexpr int kMany = 1'000'000;
    std::string many = id3Head(3, std::uint64_t{11} * kMany);
    for (int i = 0; i < kMany; ++i) {
        many.append("TXXX\0\0\0\1\0\0\0", 11);
    }
    const std::string parts = id3Tag({{"TIT2", std::string(20 * kMiB, '\0')}});
    const std::string inner = id3Tag({{"TXXX", bomb, '\x80'}}).substr(10);
    const std::string compressed = id3Tag({{"TIT2", "Song"}, {"TXXX", bomb, '\x80'}});
    const std::string flacTexts =
        "fLaC" + flacBlock('\x84', 16 * kMiB - 1) + littleEndian(0) + littleEndian(9);
    const std::string info = waveFile() + "LIST";
    // A file is a start, zeros up to a size, and an end; its title is known then.
    const std::tuple<const char*, std::string, std::uint64_t, std::string, const char*> cases[] = {
        {"picture", id3Tag({{"APIC", std::string(3 * kMiB, 'P')}, {"TIT2", "Song"}}), 0, kFrame, "Song"},
        {"a tag of 70 MiB", id3Head(4, 70 * kMiB), 71 * kMiB, kFrame, ""},
        {"an old tag", id3Head(2, 20 * kMiB) + std::string("TT2\0\0\1x", 7), 21 * kMiB, kFrame, ""},
        {"many frames", many, 0, kFrame, ""},
        {"a text of many parts", parts, 0, kFrame, ""},
        {"a frame that grows", compressed, 0, kFrame, "Song"},
        {"and in a chapter", id3Tag({{"CHAP", std::string(17, 'c') + inner, '\x20'}}), 0, kFrame, ""},
        {"an APE tag of 64 MiB", kFrame, 100 * kMiB, apeFooter(64 * kMiB), ""},
        {"the same before an ID3v1 tag", kFrame, 100 * kMiB,
         apeFooter(64 * kMiB) + "TAGSong" + std::string(121, '\0'), ""},
        {"a gap before the first frame", std::string(500, '\0') + kFrame, 200 * kMiB, "", ""},
        {"texts of 16 MiB", flacTexts, 17 * kMiB, "", ""},
        {"endless blocks", "fLaC" + flacBlock(6, 16 * kMiB - 1), 100 * kMiB, "", ""},
        {"info of 1 MiB", info + littleEndian(kMiB) + "INFO", kMiB + info.size(), "", ""},
        {"info of 8 MiB", info + littleEndian(8 * kMiB) + "INFO", 9 * kMiB, "", ""},
        {"endless pages", std::string("OggS\0\2", 6), 80 * kMiB, "", ""},
    };
    for (const auto& [what, start, size, end, title] : cases) {
        const std::string path = m_folder.write("file", start);
        if (size > 0) {
            std::filesystem::resize_file(path, size); // a hole, however large
        }
        std::ofstream(path, std::ios::binary | std::ios::app) << end;
        const auto before = mostMemory();
        const auto known = readTags(path);
        const MediaTags tags = known ? *known : readForeignTags(path);
        EXPECT_EQ(tags.texts.empty() ? "" : tags.texts.front().second, title) << what;
        EXPECT_LT(mostMemory() - before, 600 * kMiB) << what;
    }
}

TEST_F(Media, whatIsNoFileIsRefusedAtOnce) {
    ASSERT_EQ(mkfifo(m_folder.path("pipe.wav").c_str(), S_IRWXU), 0);
    for (const char* name : {"pipe.wav", "", "none.wav"}) { // opening the pipe would wait for a writer
        EXPECT_EQ(m_info->open(toText(m_folder.url(name))), kUnexpected) << name;
    }
    EXPECT_EQ(m_info->open(toText("https://example.org/a.wav")), kInvalidArgument);
    EXPECT_EQ(m_info->getAttributes(make<Attributes>().get()), kUnexpected);
}

} // namespace xbr::host
