#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "host/app/audio/mediasignature.h"
#include "host/app/audio/mediatags.h"
#include "host/base/fileurl.h"
#include "tests/fixtures/testfolder.h"
#include "tests/fixtures/wavefile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>

namespace xbr::host {

namespace {

constexpr std::uint64_t kMiB = std::uint64_t{1} << 20U;

std::string id3Head(char version, std::uint64_t size) {
    std::string head{'I', 'D', '3', version, '\0', '\0'};
    for (int shift = 21; shift >= 0; shift -= 7) {
        head += static_cast<char>(size >> static_cast<unsigned>(shift) & 0x7FU);
    }
    return head;
}

std::string flacBlock(char type, std::uint32_t size) {
    return {type, static_cast<char>(size >> 16U), static_cast<char>(size >> 8U & 0xFFU),
            static_cast<char>(size & 0xFFU)};
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

class Media : public testing::Test {
protected:
    Result open(const std::string& path) { return m_info->open(toText(fileUrl(path))); }

    /// The attributes of a file with these bytes, as one text in the order of the border's documentation.
    std::string attributesOf(const std::string& name, std::string_view bytes) {
        const auto attributes = make<Attributes>();
        if (open(m_folder.write(name, bytes)) != kOk || m_info->getAttributes(attributes.get()) != kOk) {
            return "no audio";
        }
        std::string text;
        for (const char* key :
             {"Media:Title", "Media:Artist", "Media:Album", "Media:AlbumArtist", "Media:Genre"}) {
            text += attributes->getString(key) + "|";
        }
        return text + std::to_string(integerOf(attributes->get("Media:TrackIndex")));
    }

    TestFolder m_folder;
    Ref<MediaFileInfo> m_info = make<MediaFileInfo>();
};

} // namespace

TEST_F(Media, wavTagsComeFromInfoAndId3) {
    const auto info =
        infoChunk({{"INAM", "Night"}, {"IART", "Ann"}, {"IPRD", "Moon"}, {"IGNR", "Pop"}, {"IPRT", "7"}});
    const auto id3 = chunk("id3 ", id3Tag({{"TIT2", "Day"}, {"TPE2", "Band"}, {"TRCK", "3/12"}}));
    EXPECT_EQ(attributesOf("plain.wav", waveFile()), "|||||0");
    EXPECT_EQ(attributesOf("info.wav", waveFile(info)), "Night|Ann|Moon||Pop|7");
    EXPECT_EQ(attributesOf("id3.wav", waveFile(id3)), "Day|||Band||3");
    EXPECT_EQ(attributesOf("both.wav", waveFile(info + id3)), "Day|Ann|Moon|Band|Pop|3");
    EXPECT_EQ(attributesOf("itrk.wav", waveFile(infoChunk({{"ITRK", "05"}}))), "|||||5");
}

TEST_F(Media, infoTextIsUtf8OrLatin1) {
    EXPECT_EQ(attributesOf("u.wav", waveFile(infoChunk({{"INAM", "Ax\xC3\xA9"}}))), "Axé|||||0");
    EXPECT_EQ(attributesOf("l.wav", waveFile(infoChunk({{"INAM", "Ax\xE9"}}))), "Axé|||||0");
}

TEST_F(Media, theBytesCountNotTheName) {
    const std::string tag = id3Tag({{"TIT2", "Song"}, {"TRCK", "x"}});
    const std::string frame("\xFF\xFB\x90\x64", 4);
    EXPECT_EQ(attributesOf("a.mp3", tag + std::string(100, '\0') + frame + std::string(500, '\0')),
              "Song|||||0");
    EXPECT_EQ(attributesOf("named.flac", waveFile()), "|||||0");
    EXPECT_EQ(recognise(m_folder.write("b.mp3", std::string(10, '\0') + frame)), MediaKind::kMp3);
    EXPECT_EQ(recognise(m_folder.write("c.flac", "fLaC" + std::string(60, '\0'))), MediaKind::kFlac);
    EXPECT_EQ(recognise(m_folder.write("d.flac", tag + "fLaC")), MediaKind::kFlac);
    EXPECT_EQ(recognise(m_folder.write("e.wav", "RF64" + waveFile().substr(4))), MediaKind::kWav);
}

TEST_F(Media, damagedFilesAreRefused) {
    const std::string wave = waveFile();
    const std::string bodies[] = {
        "",
        "RIFF",
        "just text, long enough to be looked at as something else",
        wave.substr(0, 12),                                        // nothing behind the head
        wave.substr(0, 36),                                        // no audio
        wave.substr(0, 8) + "AVI " + wave.substr(12),              // another form
        "RIFF\xFF\xFF\xFF\xFFWAVE" + std::string(4000, '\xFF'),    // sizes beyond the end
        "ID3\x04" + std::string(3, '\0') + std::string(4, '\x7F'), // a tag of 256 MiB that is not there
        std::string("PK\x03\x04", 4) + std::string(1000, 'x'),
    };
    for (const std::string& body : bodies) {
        EXPECT_EQ(attributesOf("damaged.wav", body), "no audio") << body.substr(0, 20);
    }
    std::string manyChunks = wave.substr(0, 36);
    for (int i = 0; i < 5000; ++i) {
        manyChunks += chunk("junk", "");
    }
    EXPECT_EQ(attributesOf("chunks.wav", manyChunks + chunk("data", "xx")), "no audio");
}

TEST_F(Media, tagsCutShortDoNoHarm) {
    const auto id3 = chunk("id3 ", id3Tag({{"TIT2", std::string(300, 'T')}, {"TPE1", "Ann"}}));
    const std::string whole = waveFile(infoChunk({{"INAM", "Night"}, {"IART", "Ann"}}) + id3);
    for (std::size_t length = waveFile().size(); length < whole.size(); length += 7) {
        EXPECT_NE(attributesOf("cut.wav", whole.substr(0, length)), "no audio") << length;
    }
}

TEST_F(Media, hostileTagsCostLittle) {
    const std::string frame("\xFF\xFB\x90\x64", 4);
    const std::string bomb = compressedText(100 * kMiB);
    const std::string picture(3 * kMiB, 'P');
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
    const std::string wave = waveFile();
    /// A file is `start`, zeros up to `size`, and `end`.
    struct Case {
        const char* what;
        std::string start;
        std::uint64_t size;
        std::string end;
        const char* title;
    };
    const Case cases[] = {
        {"a picture", id3Tag({{"APIC", picture}, {"TIT2", "Song"}}) + frame, 0, "", "Song"},
        {"a tag of 70 MiB", id3Head(4, 70 * kMiB), 71 * kMiB, frame, ""},
        {"an old tag of 20 MiB", id3Head(2, 20 * kMiB) + std::string("TT2\0\0\1x", 7), 21 * kMiB, frame, ""},
        {"many frames", many + frame, 0, "", ""},
        {"a text of many parts", parts + frame, 0, "", ""},
        {"a frame that grows", compressed + frame, 0, "", "Song"},
        {"the same in a recording", waveFile(chunk("id3 ", compressed)), 0, "", "Song"},
        {"the same in a chapter", id3Tag({{"CHAP", std::string(17, 'c') + inner, '\x20'}}) + frame, 0, "",
         ""},
        {"an APE tag of 64 MiB", frame, 100 * kMiB, apeFooter(64 * kMiB), ""},
        {"the same before an ID3v1 tag", frame, 100 * kMiB,
         apeFooter(64 * kMiB) + "TAGSong" + std::string(121, '\0'), ""},
        {"a gap of 200 MiB before the first frame", std::string(500, '\0') + frame, 200 * kMiB, "", ""},
        {"a picture", "fLaC" + flacBlock(6, 16) + std::string(16, 'p') + flacBlock('\x81', 9), 0, "", ""},
        {"texts of 16 MiB", flacTexts, 17 * kMiB, "", ""},
        {"endless blocks", "fLaC" + flacBlock(6, 16 * kMiB - 1), 100 * kMiB, "", ""},
        {"info of 1 MiB", wave + "LIST" + littleEndian(kMiB) + "INFO", kMiB + wave.size(), "", ""},
        {"info of 8 MiB", wave + "LIST" + littleEndian(8 * kMiB) + "INFO", 9 * kMiB, "", ""},
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
    const std::string pipe = m_folder.path("pipe.wav");
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRWXU), 0);
    EXPECT_EQ(open(pipe), kUnexpected); // opening it would wait for a writer
    EXPECT_EQ(open(m_folder.path()), kUnexpected);
    EXPECT_EQ(open(m_folder.path("none.wav")), kUnexpected);
    EXPECT_EQ(m_info->open(toText("https://example.org/a.wav")), kInvalidArgument);
    EXPECT_EQ(m_info->getAttributes(make<Attributes>().get()), kUnexpected);
}

} // namespace xbr::host
