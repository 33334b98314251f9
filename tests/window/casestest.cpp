// The same songs, options and answers through both front ends: one plan, one verdict, one sentence.

#include "host/app/window/frame/statusline.h"
#include "tests/window/fixture.h"
#include "tests/window/smalldisk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gmock/gmock.h>
#include <taglib/fileref.h>
#include <taglib/tag.h>

#include <filesystem>

namespace xbr::host::tests {

namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::StartsWith;

/// What one front end made of the songs.
struct Told {
    std::string plan;   ///< "title in file; …"
    std::string result; ///< "number of releases that arrived: sentence (tags of the audio that arrived last)"
};

struct Case {
    bool isAlbum;
    std::vector<std::string> songs;
    const char* sentence;           ///< a part of it
    std::string results;            ///< of the songs, as programs are told
    const char* fault = "";         ///< of the service
    std::string meanwhile = "true"; ///< what happens before they are copied
};

template <class... More>
Case album(std::vector<std::string> songs, const More&... more) {
    return {true, std::move(songs), more...};
}

template <class... More>
Case singles(std::vector<std::string> songs, const More&... more) {
    return {false, std::move(songs), more...};
}

class CasesTest : public WindowTest {
protected:
    CasesTest() { qputenv("TMPDIR", SmallDisk::place().c_str()); }

    const bool isDiskSmall = SmallDisk::place() != fs::temp_directory_path();

    /// What a run of the program told.
    struct Ran {
        std::string plan;    ///< of the releases that it tells of
        std::string results; ///< what became of each song
        QJsonObject last;
    };

    static Ran run(const QStringList& options, const std::vector<std::string>& songs = {}) {
        QStringList arguments{"publish", "--json", "--module", TEST_MODULE};
        arguments += options;
        for (const std::string& song : songs) {
            arguments += QString::fromStdString(song);
        }
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(TEST_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForFinished());
        Ran ran;
        for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
            const QJsonObject event = QJsonDocument::fromJson(line).object();
            for (const auto& each : event["songs"].toArray()) {
                const QJsonObject song = each.toObject();
                ran.plan +=
                    (song["title"].toString() + " in " + song["fileName"].toString() + "; ").toStdString();
            }
            if (event["event"] == "song") {
                ran.results += (event["result"].toString() + " ").toStdString();
            }
            ran.last = event.isEmpty() ? ran.last : event;
        }
        return ran;
    }

    Told onCommandLine(const Case& each) {
        const QStringList options = each.isAlbum ? QStringList("--album") : QStringList();
        stage.forget();
        const Ran dry = run(options + QStringList("--dry-run"), each.songs);
        setFault(each.fault);
        stage.setVisit(Stage::Visit::kAllow, each.meanwhile);
        const std::size_t before = stage.arrived();
        const Ran ran = run(options, each.songs);
        if (dry.last["exitCode"].toInt() != 0) {
            EXPECT_EQ(dry.last["text"], ran.last["text"]) << "a dry run and a run agree";
            EXPECT_EQ(dry.last["exitCode"], ran.last["exitCode"]);
        }
        if (!each.results.empty()) {
            EXPECT_EQ(ran.results, each.results);
        }
        return told(dry.plan, ran.last["text"].toString().toStdString(), before);
    }

    Told inWindow(const Case& each) {
        stage.setVisit(Stage::Visit::kAllow);
        stage.forget();
        stage.open(each.songs);
        const int last = static_cast<int>(each.songs.size()) - 1;
        EXPECT_TRUE(waitFor([&] { return song(last, SongListModel::kFormat) != "Reading…"; }));
        signIn();
        setFault(each.fault);
        const std::size_t before = stage.arrived();
        click(window(), "publish");
        QTest::qWait(50); // the list shows with a later turn what it holds
        std::string plan;
        for (int row = 0; row < trackList().model()->rowCount(); ++row) {
            plan += cell(trackList(), row, 0) + " in " + cell(trackList(), row, 1) + "; ";
        }
        if (stage.status().find("handed over") != std::string::npos) {
            QProcess::execute("/bin/sh", {"-c", QString::fromStdString(each.meanwhile)});
            click(window(), each.isAlbum ? "album" : "singles");
            click(window(), "upload");
            EXPECT_TRUE(waitFor([&] {
                const NoticeKind kind = window().findChild<StatusLine*>()->notice().kind;
                return kind != NoticeKind::kBusy && kind != NoticeKind::kInfo;
            })) << stage.status();
        }
        return told(plan, stage.status(), before);
    }

    Told told(const std::string& plan, std::string sentence, std::size_t before) {
        for (const std::string start : {"The connection broke after ", "There is not enough room in "}) {
            sentence = sentence.starts_with(start) ? start : sentence; // the numbers differ from time to time
        }
        const std::size_t arrived = stage.arrived();
        return {plan, std::to_string(arrived - before) + ": " + sentence + " (" +
                          (arrived > before ? tagsOf(arrived) : "") + ")"};
    }

    /// The tags of a release's audio.
    std::string tagsOf(std::size_t release) {
        std::string tags;
        const std::string number = "000" + std::to_string(release);
        for (const auto& entry :
             fs::directory_iterator(stage.service().inbox() / number.substr(number.size() - 4) / "assets")) {
            const TagLib::FileRef file(entry.path().c_str(), false);
            const TagLib::Tag& tag = *file.tag();
            for (const auto& text : {tag.title(), tag.artist(), tag.album(), tag.genre()}) {
                tags += text.to8Bit(true) + ", ";
            }
        }
        return tags;
    }

    void setFault(const std::string& fault) {
        stage.service().clearFaults();
        if (!fault.empty()) {
            addFault(R"("times":9,)" + fault);
        }
    }

    /// A copy of a song under another name.
    std::string copy(std::size_t song, const std::string& name) {
        fs::create_directories(fs::path(stage.path(name)).parent_path());
        fs::copy_file(stage.songs()[song], stage.path(name));
        return stage.path(name);
    }

    std::string withGenre(std::size_t song, const std::string& name, const char* genre) {
        const std::string path = copy(song, name);
        TagLib::FileRef file(path.c_str(), false);
        file.tag()->setGenre(genre);
        file.save();
        return path;
    }
};

} // namespace

TEST_F(CasesTest, bothFrontEndsSayTheSame) {
    const auto& songs = stage.songs();
    const std::vector<std::string> numbered(songs.rbegin(), songs.rend()); // the window sorts
    writeFile(stage.path("text.wav"), "no song");
    const std::string all = "published published published ";
    const std::string filler = (SmallDisk::place() / "filler").string();
    const std::string going = "rm '" + stage.path("going.wav") + "'";
    const std::string filling = "cat /dev/zero >'" + filler + "' 2>/dev/null";
    const Case cases[] = {
        singles(numbered, "Published 3 songs as singles.", all),
        album(numbered, "Published the album “Night Drive” with 3 songs.", all),
        singles({copy(1, "really.aiff")}, "Published “", "published "), // rendered, as it is FLAC
        album({copy(0, "one/mix.mp3"), copy(0, "two/mix.mp3")},
              "have the same file name; in an album each song needs its own. Nothing was sent.",
              "not-sent not-sent "),
        singles({copy(2, "liar.mp3")},
                "“liar.mp3” cannot be published: it is WAV, not MP3 as its name says. Nothing was sent.",
                "not-sent "),
        singles({stage.path("text.wav")}, "holds no audio that can be read. Nothing was sent.", "not-sent "),
        singles({copy(2, "a\x01.wav")}, "its name holds control characters. Nothing was sent.", "not-sent "),
        singles({withGenre(1, "genre.flac", "Romantic Classical")},
                "has the genre “Romantic Classical”, which the service does not know. Nearest: Classical. "
                "Nothing was sent.",
                "not-sent "),
        singles({stage.path("none.wav")},
                "“none.wav” cannot be published: it is not there. Nothing was sent.", "not-sent "),
        singles({songs[0]}, "(422): This title already exists", "refused ",
                R"("status":422,"body":{"errors":"This title already exists"})"),
        singles({songs[0]}, "(404) and gave no reason.", "refused ", R"("status":404)"),
        singles({songs[0]}, "because it is too large (", "refused ", R"("status":413)"),
        singles({songs[0]}, "does not accept the stored sign-in any more.", "", R"("status":401)"),
        album(
            numbered,
            "The service has a fault (500). The album “Night Drive” was not taken; nothing is wrong with it.",
            "refused refused refused ", R"("status":500)"),
        singles({songs[0]},
                "because details are missing, but none is empty here: did not contain a required property: "
                "'isrc'",
                "refused ",
                R"("status":422,"body":{"errors":"did not contain a required property: 'isrc'"})"),
        singles({songs[2]}, "The connection broke after ", "", R"("reset_after":1000)"), // how much has left
        singles({songs[0]},
                "The service asks to wait 2 min before the next upload. “Café del Último” was not taken.",
                "refused ", R"("status":429,"headers":{"Retry-After":"90"})"),
        singles({copy(2, "going.wav")}, "“going.wav” is no longer there. “Opening” was not sent.",
                "not-sent ", "", going),
        album({copy(2, "huge.wav"), songs[0]}, "There is not enough room in ", "not-sent not-sent ", "",
              "truncate -s 4T '" + stage.path("huge.wav") + "'"),
        singles({copy(2, "large.wav")}, "There is not enough room in ", "not-sent ", "", filling),
    };
    for (const Case& each : cases) {
        if (each.meanwhile == filling && !isDiskSmall) {
            continue; // nothing could be mounted
        }
        SCOPED_TRACE(each.sentence);
        const std::size_t arrived = each.results.starts_with("published") ? each.songs.size() : 0;
        const Told line = onCommandLine(each);
        EXPECT_THAT(line.result, HasSubstr(each.sentence));
        EXPECT_THAT(line.result, StartsWith(std::to_string(each.isAlbum && arrived > 0 ? 1 : arrived) + ":"));
        fs::remove(filler);
        fs::copy_file(songs[2], stage.path("going.wav"), fs::copy_options::skip_existing);
        fs::copy_file(songs[2], stage.path("huge.wav"), fs::copy_options::overwrite_existing);
        const Told shown = inWindow(each);
        EXPECT_EQ(shown.result, line.result);
        EXPECT_EQ(line.plan.empty() ? "" : shown.plan, line.plan); // a panel may hold what cannot be sent
        stage.close();
        fs::remove(filler);
    }
}

TEST_F(CasesTest, aFolderOfSongsWithoutTagsIsAnAlbumWithNumbersAndTitles) {
    std::vector<std::string> songs;
    for (int i = 1; i <= 12; ++i) {
        const std::string number = (i < 10 ? "0" : "") + std::to_string(i);
        songs.push_back(
            stage.untaggedSong("album/" + number + " Song " + static_cast<char>('@' + i) + ".wav"));
    }
    QStringList options{"--album", "--album-title=Night Drive", "--genre", "Ambient"};
    options << "--album-artist=The Lamps" << stage.path("album").c_str() << "--artist"
            << "The Lamps";
    EXPECT_EQ(run(options + QStringList("--dry-run")).last["exitCode"].toInt(), 0);
    EXPECT_EQ(run(options).last["text"].toString().toStdString(),
              "Published the album “Night Drive” with 12 songs.");
    const std::string sent = readFile(stage.service().inbox() / "0001" / "metadata.json");
    const QJsonArray entries =
        QJsonDocument::fromJson(QByteArray::fromStdString(sent)).object()["songs"].toArray();
    ASSERT_EQ(entries.size(), 12);

    open(songs);
    click(window(), "publish");
    EXPECT_TRUE(areTracks(12));
    for (int row = 0; row < 12; ++row) {
        const std::string title = std::string("Song ") + static_cast<char>('A' + row);
        EXPECT_EQ(entries[row].toObject()["title"].toString().toStdString(), title);
        EXPECT_EQ(entries[row].toObject()["track_number"].toInt(), row + 1);
        EXPECT_EQ(song(row, SongListModel::kNumber), std::to_string(row + 1));
        EXPECT_EQ(cell(trackList(), row, 0), title);
    }
}

} // namespace xbr::host::tests
