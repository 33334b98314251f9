#include "host/app/audio/tagbounds.h"

#include "tests/host/app/audio/wavefile.h"
#include "tests/host/app/testfolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

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

std::string littleEndian(std::uint64_t size) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(size >> shift & 0xFFU);
    }
    return bytes;
}

std::string apeFooter(std::uint64_t size) {
    return "APETAGEX" + littleEndian(2000) + littleEndian(size) + std::string(16, '\0');
}

std::string manyFrames() {
    return id3Tag(std::vector<Id3Frame>(20000, {"TXXX", "x"}));
}

/// A file is `start`, zeros up to `size`, and `end`.
struct Case {
    const char* what;
    MediaKind kind;
    std::string start;
    std::uint64_t size;
    std::string end;
    bool isBounded;
};

std::string infoOf(std::uint64_t size) {
    return waveFile() + "LIST" + littleEndian(size) + "INFO";
}

} // namespace

TEST(TagBounds, tellOrdinaryTagsFromEndlessOnes) {
    const TestFolder folder;
    const std::string frame("\xFF\xFB\x90\x64", 4);
    const std::string picture(3 * kMiB, 'P');
    const Case cases[] = {
        {"no tags", MediaKind::kMp3, frame, 0, "", true},
        {"a picture", MediaKind::kMp3, id3Tag({{"TIT2", "Song"}, {"APIC", picture}}) + frame, 0, "", true},
        {"a tag of 70 MiB", MediaKind::kMp3, id3Head(4, 70 * kMiB), 71 * kMiB, frame, false},
        {"an old tag of 5 MiB", MediaKind::kMp3, id3Head(2, 5 * kMiB), 6 * kMiB, frame, false},
        {"20,000 frames", MediaKind::kMp3, manyFrames(), 0, "", false},
        {"a frame that grows to 5 KB", MediaKind::kMp3,
         id3Tag({{"TXXX", compressedText(5000), '\x80'}}) + frame, 0, "", true},
        {"a frame that grows to 32 MiB", MediaKind::kMp3,
         id3Tag({{"TXXX", compressedText(32 * kMiB), '\x80'}}) + frame, 0, "", false},
        {"the same in a recording", MediaKind::kWav,
         waveFile(chunk("id3 ", id3Tag({{"TXXX", compressedText(32 * kMiB), '\x80'}}))), 0, "", false},
        {"an APE tag", MediaKind::kMp3, frame, 2 * kMiB, apeFooter(kMiB), true},
        {"an APE tag of 64 MiB", MediaKind::kMp3, frame, 100 * kMiB, apeFooter(64 * kMiB), false},
        {"the same before an ID3v1 tag", MediaKind::kMp3, frame, 100 * kMiB,
         apeFooter(64 * kMiB) + "TAG" + std::string(125, '\0'), false},
        {"a gap before the first frame", MediaKind::kMp3, std::string(500, '\0') + frame, 100 * kMiB, "",
         true},
        {"the same in 1 TiB", MediaKind::kMp3, std::string(500, '\0') + frame, kMiB << 20U, "", false},
        {"a picture", MediaKind::kFlac,
         "fLaC" + flacBlock(6, 16) + std::string(16, 'p') + flacBlock('\x81', 9), 0, "", true},
        {"texts of 5 MiB", MediaKind::kFlac, "fLaC" + flacBlock(4, 5 * kMiB), 6 * kMiB, flacBlock('\x81', 9),
         false},
        {"endless blocks", MediaKind::kFlac, "fLaC" + flacBlock(6, 16 * kMiB - 1), 100 * kMiB, "", false},
        {"info of 1 MiB", MediaKind::kWav, infoOf(kMiB), kMiB, "", true},
        {"info of 8 MiB", MediaKind::kWav, infoOf(8 * kMiB), 9 * kMiB, "", false},
    };
    for (const auto& [what, kind, start, size, end, isBounded] : cases) {
        const std::string path = folder.write("file", start);
        if (size > 0) {
            std::filesystem::resize_file(path, size); // a hole, however large
        }
        std::ofstream(path, std::ios::binary | std::ios::app) << end;
        EXPECT_EQ(areTagsBounded(path, kind), isBounded) << what;
    }
}

} // namespace xbr::host
