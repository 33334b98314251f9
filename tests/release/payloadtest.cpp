#include "release/payload.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/object.h"
#include "release/audiofile.h"
#include "release/multipartbody.h"
#include "release/payloadbuilder.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using fakehost::host;

constexpr const char* kSong = "file:///music/My%20Song.wav";
constexpr const char* kArchive = "file:///tmp/host/Brindlex/payload.zip";

class PayloadTest : public testing::Test {
protected:
    PayloadTest() {
        fakehost::resetHost();
        indicator = xbr::createHostObject<xbr::IProgressIndicator>();
        progress = xbr::query<xbr::IProgress>(indicator.get());
        host().files.files[kSong] = "RIFF";
        host().files.files["file:///music/b.mp3"] = "ID3";
    }

    xbr::Ref<brindlex::IngestionRequest>
    build(const std::vector<std::pair<const char*, const char*>>& songs) {
        std::vector<xbr::Ref<brindlex::TrackMetadata>> records;
        std::vector<xbr::Url> files;
        for (const auto& [title, file] : songs) {
            records.push_back(record(title));
            files.emplace_back(file);
        }
        return brindlex::buildPayload(records, files, "key", *progress);
    }

    static xbr::Ref<brindlex::TrackMetadata> record(const char* title) {
        auto metadata = xbr::make<brindlex::TrackMetadata>();
        metadata->songTitle = title;
        metadata->albumTitle = std::string("Album of ") + title;
        return metadata;
    }

    xbr::Ref<xbr::IProgressIndicator> indicator;
    xbr::Ref<xbr::IProgress> progress;
};

TEST_F(PayloadTest, BoundaryHasFifteenBitsInFourDigits) {
    struct Case {
        int number;
        const char* digits;
    };
    for (const auto& [number, digits] : {Case{10, "000A"}, Case{0, "0000"}, Case{0x7FFF, "7FFF"},
                                         Case{0x7FFFFFFF, "7FFF"}, Case{0x12348765, "0765"}}) {
        EXPECT_EQ(brindlex::makeBoundary(number), std::string(28, '-') + "XXBOUNDARY" + digits);
    }
}

TEST_F(PayloadTest, BodyIsExactToTheByte) {
    const auto request = build({{"A", kSong}, {"B", "file:///music/b.mp3"}});
    ASSERT_TRUE(request);
    EXPECT_EQ(request->path, "api/frontstage/release_ingestion");
    const std::string prefix = "multipart/form-data; boundary=";
    ASSERT_TRUE(request->contentType.starts_with(prefix));
    const std::string boundary = request->contentType.substr(prefix.size());
    EXPECT_EQ(boundary.size(), 42U);
    EXPECT_EQ(
        xbr::readAll(*request->body),
        "--" + boundary +
            "\r\nContent-Disposition: form-data; name=\"payload\"; filename=\"payload.zip\"\r\n"
            "Content-Transfer-Encoding: binary\r\nContent-Type: application/octet-stream\r\n\r\n"
            "compressed:1;assets/My%20Song.wav=RIFF;assets/b.mp3=ID3;metadata.json="
            R"({"external_release_id":"","client_id":"key","title":"Album of A","main_artists":[{}],"songs":[)"
            R"({"title":"A","audio_filename":"My Song.wav","artists":[{"roles":["Main Artist"]}],"track_number":1},)"
            R"({"title":"B","audio_filename":"b.mp3","artists":[{"roles":["Main Artist"]}],"track_number":1}]};)"
            "\r\n--" +
            boundary + "--\r\n");
}

TEST_F(PayloadTest, WithoutAWholeArchiveThereIsNoRequest) {
    const std::pair<const char*, std::function<void()>> faults[] = {
        {"no file", [] { host().files.unreadable.insert(kSong); }},
        {"not created", [] { host().packages.failsToCreate = true; }},
        {"not written", [] { host().packages.failsToFlush = true; }},
        {"not read", [] { host().files.unreadable.insert(kArchive); }},
    };
    for (const auto& [name, fault] : faults) {
        host().files.unreadable.clear();
        host().packages.failsToCreate = host().packages.failsToFlush = false;
        fault();
        EXPECT_FALSE(build({{"B", "file:///music/b.mp3"}, {"A", kSong}})) << name;
        EXPECT_TRUE(brindlex::isPayloadOnDisk()) << name << ": the files stay until they are cleaned up";
        brindlex::cleanupPayload();
        EXPECT_FALSE(brindlex::isPayloadOnDisk()) << name;
        brindlex::cleanupPayload();
    }
    host().failingCall = host().calls + 1;
    EXPECT_TRUE(brindlex::isPayloadOnDisk()) << "nobody knows where to look";
}

TEST_F(PayloadTest, OnlyAudioFilesOfTheServiceAreTaken) {
    struct Case {
        const char* url;
        bool supported;
    };
    host().files.files["file:///a/folder.wav/inside.txt"] = "";
    for (const auto& [url, supported] :
         {Case{"file:///a/folder.wav", false}, Case{"file:///a/Song.FLAC", true},
          Case{"file:///a/s.wav", true}, Case{"file:///a/s.Mp3", true}, Case{"file:///a/s.aiff", false},
          Case{"file:///a/wav", false}, Case{"file:///a/s.wav/", false}, Case{"file:///a/s.wav%20", false},
          Case{"https://h/s.wav", false}, Case{"file:///a/s.wav.zip", false}, Case{"", false}}) {
        EXPECT_EQ(brindlex::isSupportedAudioFile(xbr::Url(url)), supported) << url;
    }
}

} // namespace
