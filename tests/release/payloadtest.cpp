#include "release/payload.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/object.h"
#include "release/audiofile.h"
#include "release/multipartbody.h"
#include "release/payloadbuilder.h"
#include "tests/fakehost/fakehost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using fakehost::host;
using testing::HasSubstr;

constexpr const char* kArchive = "file:///tmp/host/Brindlex/payload.zip";

class PayloadTest : public testing::Test {
protected:
    PayloadTest() {
        fakehost::resetHost();
        indicator = xbr::createHostObject<xbr::IProgressIndicator>();
        progress = xbr::query<xbr::IProgress>(indicator.get());
        host().files.files["file:///music/My%20Song.wav"] = "RIFF";
        host().files.files["file:///music/b.mp3"] = "ID3";
    }

    static xbr::Ref<brindlex::TrackMetadata> record(const char* title) {
        auto metadata = xbr::make<brindlex::TrackMetadata>();
        metadata->songTitle = title;
        metadata->albumTitle = std::string("Album of ") + title;
        return metadata;
    }

    /// Temporary files that are there.
    static int leftovers() {
        int count = 0;
        for (const auto& [url, bytes] : host().files.files) {
            count += url.starts_with("file:///tmp/") ? 1 : 0;
        }
        return count;
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
    const xbr::Url file("file:///music/My%20Song.wav");
    const auto request = brindlex::buildTrackPayload(*record("S"), file, "key", *progress);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->path, "api/frontstage/release_ingestion");
    const std::string prefix = "multipart/form-data; boundary=";
    ASSERT_TRUE(request->contentType.starts_with(prefix));
    const std::string boundary = request->contentType.substr(prefix.size());
    EXPECT_EQ(boundary.size(), 42U);
    const std::string archive = host().files.files.at(kArchive);
    EXPECT_EQ(xbr::readAll(*request->body),
              "--" + boundary +
                  "\r\nContent-Disposition: form-data; name=\"payload\"; filename=\"payload.zip\"\r\n"
                  "Content-Transfer-Encoding: binary\r\nContent-Type: application/octet-stream\r\n\r\n" +
                  archive + "\r\n--" + boundary + "--\r\n");
    EXPECT_THAT(archive, HasSubstr("compressed:1;"));
    EXPECT_THAT(archive, HasSubstr("assets/My%20Song.wav=RIFF;"));
    EXPECT_THAT(archive, HasSubstr(R"("songs":[{"title":"S","audio_filename":"My Song.wav")"));
}

TEST_F(PayloadTest, AlbumTakesTheReleaseFromItsFirstTrack) {
    const std::vector records{record("A"), record("B")};
    const std::vector files{xbr::Url("file:///music/My%20Song.wav"), xbr::Url("file:///music/b.mp3")};
    ASSERT_TRUE(brindlex::buildAlbumPayload(records, files, "key", *progress));
    const std::string archive = host().files.files.at(kArchive);
    EXPECT_THAT(archive, HasSubstr(R"("title":"Album of A","main_artists")"));
    EXPECT_THAT(archive, testing::Not(HasSubstr("Album of B")));
    EXPECT_THAT(archive, HasSubstr(R"({"title":"B","audio_filename":"b.mp3")"));
    EXPECT_THAT(archive, HasSubstr("assets/b.mp3=ID3;"));
}

TEST_F(PayloadTest, FileThatCannotBeOpenedFailsTheBuild) {
    host().files.unreadable.insert("file:///music/b.mp3");
    const std::vector records{record("A"), record("B")};
    const std::vector files{xbr::Url("file:///music/My%20Song.wav"), xbr::Url("file:///music/b.mp3")};
    EXPECT_FALSE(brindlex::buildAlbumPayload(records, files, "key", *progress));
    EXPECT_FALSE(brindlex::buildTrackPayload(*records[1], files[1], "key", *progress));
    EXPECT_FALSE(host().files.files.contains(kArchive));
}

TEST_F(PayloadTest, ArchiveThatCannotBeMadeGivesNoRequest) {
    const xbr::Url file("file:///music/b.mp3");
    host().packages.failsToCreate = true;
    EXPECT_FALSE(brindlex::buildTrackPayload(*record("S"), file, "key", *progress));
    host().packages.failsToCreate = false;
    host().packages.failsToFlush = true;
    EXPECT_FALSE(brindlex::buildTrackPayload(*record("S"), file, "key", *progress));
    host().packages.failsToFlush = false;
    host().files.unreadable.insert(kArchive);
    EXPECT_FALSE(brindlex::buildTrackPayload(*record("S"), file, "key", *progress));
    EXPECT_GT(leftovers(), 0) << "the files stay until they are cleaned up";
    brindlex::cleanupPayload();
    EXPECT_EQ(leftovers(), 0);
    brindlex::cleanupPayload();
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
