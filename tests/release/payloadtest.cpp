#include "release/payload.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/object.h"
#include "release/audiofile.h"
#include "release/multipartbody.h"
#include "release/payloadbuilder.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using fakehost::host;
using fakehost::Rows;

constexpr const char* kSong = "file:///music/My%20Song.wav";

class PayloadTest : public testing::Test {
protected:
    PayloadTest() {
        fakehost::resetHost();
        indicator = xbr::createHostObject<xbr::IProgressIndicator>();
        progress = xbr::query<xbr::IProgress>(indicator.get());
        host().files.files[kSong] = "RIFF";
        host().files.files["file:///music/b.mp3"] = "ID3";
    }

    xbr::Ref<brindlex::IngestionRequest> build(const Rows<std::string, const char*>& songs) {
        std::vector<xbr::Ref<brindlex::TrackMetadata>> records;
        std::vector<xbr::Url> files;
        for (const auto& [title, file] : songs) {
            records.push_back(xbr::make<brindlex::TrackMetadata>());
            records.back()->songTitle = title;
            records.back()->albumTitle = "Album of " + title;
            files.emplace_back(file);
        }
        return brindlex::buildPayload(records, files, "key", *progress);
    }

    xbr::Ref<xbr::IProgressIndicator> indicator;
    xbr::Ref<xbr::IProgress> progress;
};

TEST_F(PayloadTest, BoundaryHasFifteenBitsInFourDigits) {
    for (const auto& [number, digits] : Rows<int, const char*>{
             {10, "000A"}, {0, "0000"}, {0x7FFF, "7FFF"}, {0x7FFFFFFF, "7FFF"}, {0x12348765, "0765"}}) {
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
    for (const char* call : {"copyFile", "create", "flush", "openForReading"}) {
        host().failing.clear();
        host().files.onCopy = [call] { host().failing = {call}; }; // from the first song's copy on
        EXPECT_FALSE(build({{"B", "file:///music/b.mp3"}, {"A", kSong}})) << call;
        EXPECT_TRUE(brindlex::isPayloadOnDisk()) << call << ": the files stay until they are cleaned up";
        brindlex::cleanupPayload();
        EXPECT_FALSE(brindlex::isPayloadOnDisk()) << call;
        brindlex::cleanupPayload();
    }
    host().failing = {"getTemporaryFolder"};
    EXPECT_TRUE(brindlex::isPayloadOnDisk()) << "nobody knows where to look";
}

TEST_F(PayloadTest, TheHostLivesWhileALargeArchiveIsReadAndMayCancel) {
    int updates = 0;
    int last = 0;
    host().objects.onProgressUpdate = [&] { host().objects.cancelled = ++updates == last; };
    EXPECT_TRUE(build({{"A", kSong}}));
    const int atLeast = std::exchange(updates, 0);
    host().files.files[kSong] = std::string(std::size_t{40} << 20U, 'x');
    EXPECT_TRUE(build({{"A", kSong}}));
    EXPECT_EQ(std::exchange(updates, 0), atLeast + 2) << "after each 16 MiB, the last 8 aside";
    last = atLeast + 1;
    EXPECT_FALSE(build({{"A", kSong}}));
    EXPECT_EQ(updates, last);
}

TEST_F(PayloadTest, OnlyAudioFilesOfTheServiceAreTaken) {
    host().files.files["file:///a/folder.wav/inside.txt"] = "";
    for (const char* url : {"file:///a/Song.FLAC", "file:///a/s.wav", "file:///a/s.Mp3"}) {
        EXPECT_TRUE(brindlex::isSupportedAudioFile(xbr::Url(url))) << url;
    }
    for (const char* url : {"file:///a/folder.wav", "file:///a/s.aiff", "file:///a/wav", "file:///a/s.wav/",
                            "file:///a/s.wav%20", "https://h/s.wav", "file:///a/s.wav.zip", ""}) {
        EXPECT_FALSE(brindlex::isSupportedAudioFile(xbr::Url(url))) << url;
    }
}

} // namespace
