// The same songs, options and answers through both front ends: one plan, one verdict, one sentence.

#include "host/app/window/frame/statusline.h"
#include "tests/e2e/fulldisk.h"
#include "tests/window/fixture.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>
#include <taglib/fileref.h>
#include <taglib/tag.h>

#include <filesystem>
#include <fstream>

namespace xbr::host::tests {

namespace {

namespace fs = std::filesystem;

/// What one front end made of the songs.
struct Told {
    std::string plan; ///< "title in file; …"
    std::string sentence;
    std::size_t arrived = 0; ///< releases
    std::string tags;        ///< of the audio that arrived last

    bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* out) {
    *out << told.arrived << " arrived, “" << told.sentence << "”, " << told.plan << ", " << told.tags;
}

struct Case {
    const char* what;
    bool isAlbum;
    std::vector<std::string> songs;
    const char* fault;
    const char* sentence; ///< a part of it
    std::size_t arrived;
    std::string results;            ///< of the songs, as programs are told
    const char* meanwhile = "true"; ///< what happens before they are copied
};

class CasesTest : public WindowTest {
protected:
    CasesTest() { qputenv("TMPDIR", e2e::SmallDisk::place().c_str()); }

    const bool isDiskSmall = e2e::SmallDisk::place() != fs::temp_directory_path();

    /// What a run of the program told.
    struct Ran {
        std::string plan;    ///< of the releases that it tells of
        std::string results; ///< what became of each song
        QJsonObject last;
    };

    Ran run(const std::string& options, const std::vector<std::string>& songs) {
        // By way of a script: names of files are bytes, and may hold anything but a quote here.
        std::ofstream script(stage.path("run.sh"));
        script << "exec '" TEST_PROGRAM "' publish --json --module '" TEST_MODULE "' " << options;
        for (const std::string& song : songs) {
            script << " '" << song << "'";
        }
        script.close();
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start("/bin/sh", {QString::fromStdString(stage.path("run.sh"))});
        EXPECT_TRUE(process.waitForFinished());
        Ran ran;
        for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
            const QJsonObject event = QJsonDocument::fromJson(line).object();
            for (const auto& song : event["songs"].toArray()) {
                ran.plan += (song.toObject()["title"].toString() + " in " +
                             song.toObject()["fileName"].toString() + "; ")
                                .toStdString();
            }
            if (event["event"] == "song") {
                ran.results += (event["result"].toString() + " ").toStdString();
            }
            ran.last = event.isEmpty() ? ran.last : event;
        }
        return ran;
    }

    /// Things that happen when the songs were taken, before they are copied: a line of a shell.
    void setMeanwhile(const char* command) {
        std::ofstream(stage.path("browser")) << "#!/bin/sh\n"
                                             << command << "\nexec " TEST_BROWSER " \"$1\"\n";
    }

    Told onCommandLine(const Case& each) {
        const std::string options = each.isAlbum ? "--album" : "";
        stage.forget();
        const Ran dry = run(options + " --dry-run", each.songs);
        setFault(each.fault);
        setMeanwhile(each.meanwhile);
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
        setMeanwhile("true");
        stage.forget();
        stage.open(each.songs);
        const int last = static_cast<int>(each.songs.size()) - 1;
        EXPECT_TRUE(waitFor([&] { return cell(songList(), last, SongListModel::kFormat) != "Reading…"; }));
        signIn();
        setFault(each.fault);
        const std::size_t before = stage.arrived();
        click(window(), "publish");
        QTest::qWait(50); // the list shows with a later turn what it holds
        std::string plan;
        for (int row = 0; row < trackList().model()->rowCount(); ++row) {
            plan += cell(trackList(), row, 0) + " in " + cell(trackList(), row, 1) + "; ";
        }
        if (stage.status().find("handed over") == std::string::npos) {
            return told(plan, stage.status(), before);
        }
        QProcess::execute("/bin/sh", {"-c", each.meanwhile});
        click(window(), each.isAlbum ? "album" : "singles");
        click(window(), "upload");
        EXPECT_TRUE(waitFor([&] {
            const NoticeKind kind = window().findChild<StatusLine*>()->notice().kind;
            return kind != NoticeKind::kBusy && kind != NoticeKind::kInfo;
        })) << stage.status();
        return told(plan, stage.status(), before);
    }

    Told told(const std::string& plan, const std::string& sentence, std::size_t before) {
        const std::size_t arrived = stage.arrived();
        return {plan, sentence, arrived - before, arrived > before ? tagsOf(arrived) : ""};
    }

    /// The tags of a release's audio.
    std::string tagsOf(std::size_t release) {
        std::string tags;
        const fs::path folder =
            fs::path(stage.service().inbox()) / ("000" + std::to_string(release)).substr(release > 9);
        for (const auto& entry : fs::directory_iterator(folder / "assets")) {
            const TagLib::FileRef file(entry.path().c_str(), false);
            const TagLib::Tag& tag = *file.tag();
            for (const auto& text : {tag.title(), tag.artist(), tag.album(), tag.genre()}) {
                tags += text.to8Bit(true) + ", ";
            }
        }
        return tags;
    }

    void setFault(const char* fault) {
        stage.service().clearFaults();
        if (*fault) {
            stage.service().addFault(
                std::string(R"({"path":"/api/frontstage/release_ingestion","times":9,)") + fault + "}");
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
        file.tag()->setGenre(TagLib::String(genre, TagLib::String::UTF8));
        file.save();
        return path;
    }
};

} // namespace

TEST_F(CasesTest, bothFrontEndsSayTheSame) {
    const auto& songs = stage.songs();
    const std::vector<std::string> numbered(songs.rbegin(), songs.rend()); // the window sorts
    std::ofstream(stage.path("text.wav")) << "no song";
    const std::string tooShort = copy(1, "cut.aiff"); // a FLAC file, whatever its name says
    const std::string filler = (e2e::SmallDisk::place() / "filler").string();
    const std::string going = "rm '" + stage.path("going.wav") + "'";
    const std::string filling = "cat /dev/zero >'" + filler + "' 2>/dev/null";
    const Case cases[] = {
        {"singles", false, numbered, "", "Published 3 songs as singles.", 3,
         "published published published "},
        {"an album", true, numbered, "", "Published the album “Night Drive” with 3 songs.", 1,
         "published published published "},
        {"a song that is rendered", false, {tooShort}, "", "Published “", 1, "published "},
        {"two files of one name",
         true,
         {copy(0, "one/mix.mp3"), copy(0, "two/mix.mp3")},
         "",
         "have the same file name; in an album each song needs its own. Nothing was sent.",
         0,
         "not-sent not-sent "},
        {"another kind than the name says",
         false,
         {copy(2, "liar.mp3")},
         "",
         "“liar.mp3” cannot be published: it is WAV, not MP3 as its name says. Nothing was sent.",
         0,
         "not-sent "},
        {"no audio",
         false,
         {stage.path("text.wav")},
         "",
         "holds no audio that can be read. Nothing was sent.",
         0,
         "not-sent "},
        {"control characters",
         false,
         {copy(2, "a\x01.wav")},
         "",
         "its name holds control characters. Nothing was sent.",
         0,
         "not-sent "},
        {"a genre that is unknown",
         false,
         {withGenre(1, "genre.flac", "Romantic Classical")},
         "",
         "has the genre “Romantic Classical”, which the service does not know. Nearest: Classical. Nothing "
         "was "
         "sent.",
         0,
         "not-sent "},
        {"a file that is gone",
         false,
         {stage.path("none.wav")},
         "",
         "“none.wav” cannot be published: it is not there. Nothing was sent.",
         0,
         "not-sent "},
        {"refused with words",
         false,
         {songs[0]},
         R"("status":422,"body":{"errors":"This title already exists"})",
         "(422): This title already exists",
         0,
         "refused "},
        {"refused without", false, {songs[0]}, R"("status":404)", "(404) and gave no reason.", 0, "refused "},
        {"too large", false, {songs[0]}, R"("status":413)", "because it is too large (", 0, "refused "},
        {"a fault of the service", true, numbered, R"("status":500)",
         "The service has a fault (500). The album “Night Drive” was not taken; nothing is wrong with it.", 0,
         "refused refused refused "},
        {"details that the service misses",
         false,
         {songs[0]},
         R"("status":422,"body":{"errors":"did not contain a required property: 'isrc'"})",
         "because details are missing, but none is empty here: did not contain a required property: 'isrc'",
         0,
         "refused "},
        {"a connection that breaks",
         false,
         {songs[2]},
         R"("reset_after":1000)",
         "The connection broke after ",
         0,
         ""}, // how much has left by then differs from time to time
        {"a wait that the service asks for",
         false,
         {songs[0]},
         R"("status":429,"headers":{"Retry-After":"90"})",
         "The service asks to wait 2 min before the next upload. “Café del Último” was not taken.",
         0,
         "refused "},
        {"a file that goes before it is copied",
         false,
         {copy(2, "going.wav")},
         "",
         "“going.wav” is no longer there. “Opening” was not sent.",
         0,
         "not-sent ",
         going.c_str()},
        {"a full disk",
         false,
         {copy(2, "large.wav")},
         "",
         "There is not enough room in ",
         0,
         "not-sent ",
         filling.c_str()},
    };
    for (const Case& each : cases) {
        if (each.meanwhile == filling && !isDiskSmall) {
            continue; // nothing could be mounted
        }
        SCOPED_TRACE(each.what);
        const Told line = onCommandLine(each);
        fs::remove(filler);
        EXPECT_NE(line.sentence.find(each.sentence), std::string::npos) << line.sentence;
        EXPECT_EQ(line.arrived, each.arrived);
        if (each.meanwhile == going) {
            copy(2, "going.wav");
        }
        Told shown = inWindow(each);
        for (const std::string start : {"The connection broke after ", "There is not enough room in "}) {
            if (line.sentence.starts_with(start)) { // the numbers differ from time to time
                EXPECT_TRUE(shown.sentence.starts_with(start)) << shown.sentence;
                shown.sentence = line.sentence;
            }
        }
        if (line.plan.empty()) {
            shown.plan.clear(); // what is not handed over shows what was there before
        }
        EXPECT_EQ(shown, line);
        stage.close();
        fs::remove(filler);
    }
}

TEST_F(CasesTest, aFolderOfSongsWithoutTagsIsAnAlbumWithNumbersAndTitles) {
    std::vector<std::string> songs;
    fs::create_directory(stage.path("album"));
    for (int i = 1; i <= 12; ++i) {
        const std::string number = (i < 10 ? "0" : "") + std::to_string(i);
        songs.push_back(stage.untaggedSong("album/" + number + " Song " +
                                           std::string(1, static_cast<char>('A' + i - 1)) + ".wav"));
    }
    const std::string options =
        "--album --album-title='Night Drive' --genre Ambient --album-artist 'The Lamps' '" +
        stage.path("album") + "' --artist 'The Lamps'";
    EXPECT_EQ(run("--dry-run " + options, {}).last["exitCode"].toInt(), 0);
    const Ran ran = run(options, {});
    EXPECT_EQ(ran.last["text"].toString().toStdString(), "Published the album “Night Drive” with 12 songs.");
    std::ifstream document(fs::path(stage.service().inbox()) / "0001" / "metadata.json");
    const std::string text((std::istreambuf_iterator<char>(document)), {});
    const QJsonArray sent =
        QJsonDocument::fromJson(QByteArray::fromStdString(text)).object()["songs"].toArray();
    ASSERT_EQ(sent.size(), 12);

    open(songs);
    click(window(), "publish");
    EXPECT_TRUE(waitFor([&] { return trackList().model()->rowCount() == 12; }));
    for (int row = 0; row < 12; ++row) {
        const std::string title = "Song " + std::string(1, static_cast<char>('A' + row));
        EXPECT_EQ(sent[row].toObject()["title"].toString().toStdString(), title);
        EXPECT_EQ(sent[row].toObject()["track_number"].toInt(), row + 1);
        EXPECT_EQ(cell(songList(), row, SongListModel::kNumber), std::to_string(row + 1));
        EXPECT_EQ(cell(trackList(), row, 0), title);
    }
}

} // namespace xbr::host::tests
