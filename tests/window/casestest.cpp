// The same songs, options and answers through both front ends: one plan, one verdict, one sentence.

#include "host/app/window/frame/statusline.h"
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

    bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* out) {
    *out << told.arrived << " arrived, “" << told.sentence << "”, " << told.plan;
}

class CasesTest : public WindowTest {
protected:
    /// Runs the program and answers what it told last, with the releases that it tells of.
    std::pair<QJsonObject, std::string> run(QStringList arguments, const std::vector<std::string>& songs) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        for (const std::string& song : songs) {
            arguments.append(QFile::decodeName(song.c_str()));
        }
        process.start(TEST_PROGRAM, QStringList{"publish", "--json", "--module", TEST_MODULE} + arguments);
        EXPECT_TRUE(process.waitForFinished());
        QJsonObject last;
        std::string plan;
        for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
            const QJsonObject event = QJsonDocument::fromJson(line).object();
            for (const auto& song : event["songs"].toArray()) {
                plan += (song.toObject()["title"].toString() + " in " +
                         song.toObject()["fileName"].toString() + "; ")
                            .toStdString();
            }
            last = event.isEmpty() ? last : event;
        }
        return {last, plan};
    }

    Told onCommandLine(const QStringList& options, const std::vector<std::string>& songs, const char* fault) {
        const auto [dry, plan] = run(options + QStringList{"--dry-run"}, songs);
        setFault(fault);
        const std::size_t before = stage.arrived();
        const QJsonObject last = run(options, songs).first;
        if (dry["exitCode"].toInt() != 0) {
            EXPECT_EQ(dry, last) << "a dry run and a run agree";
        }
        return {plan, last["text"].toString().toStdString(), stage.arrived() - before};
    }

    Told inWindow(bool isAlbum, const std::vector<std::string>& songs, const char* fault) {
        stage.open(songs);
        const int last = static_cast<int>(songs.size()) - 1;
        EXPECT_TRUE(waitFor([&] { return cell(songList(), last, SongListModel::kFormat) != "Reading…"; }));
        signIn();
        setFault(fault);
        const std::size_t before = stage.arrived();
        click(window(), "publish");
        QTest::qWait(50); // the list shows with a later turn what it holds
        std::string plan;
        for (int row = 0; row < trackList().model()->rowCount(); ++row) {
            plan += cell(trackList(), row, 0) + " in " + cell(trackList(), row, 1) + "; ";
        }
        const std::string told = stage.status();
        if (told.find("handed over") == std::string::npos) {
            return {plan, told, stage.arrived() - before};
        }
        click(window(), isAlbum ? "album" : "singles");
        click(window(), "upload");
        EXPECT_TRUE(waitFor([&] {
            const NoticeKind kind = window().findChild<StatusLine*>()->notice().kind;
            return kind != NoticeKind::kBusy && kind != NoticeKind::kInfo;
        })) << stage.status();
        return {plan, stage.status(), stage.arrived() - before};
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
    std::ofstream(stage.path("text.wav")) << "no song";
    const std::string tooShort = copy(1, "cut.aiff"); // a FLAC file, whatever its name says
    struct Case {
        const char* what;
        bool isAlbum;
        std::vector<std::string> songs;
        const char* fault;
        const char* sentence; ///< a part of it
        std::size_t arrived;
    };
    const Case cases[] = {
        {"singles", false, songs, "", "Published 3 songs as singles.", 3},
        {"an album", true, songs, "", "Published the album “Night Drive” with 3 songs.", 1},
        {"a song that is rendered", false, {tooShort}, "", "Published “", 1},
        {"two files of one name",
         true,
         {copy(0, "one/mix.mp3"), copy(0, "two/mix.mp3")},
         "",
         "have the same file name; in an album each song needs its own. Nothing was sent.",
         0},
        {"another kind than the name says",
         false,
         {copy(2, "liar.mp3")},
         "",
         "“liar.mp3” cannot be published: it is WAV, not MP3 as its name says. Nothing was sent.",
         0},
        {"no audio",
         false,
         {stage.path("text.wav")},
         "",
         "holds no audio that can be read. Nothing was sent.",
         0},
        {"control characters",
         false,
         {copy(2, "a\x01.wav")},
         "",
         "its name holds control characters. Nothing was sent.",
         0},
        {"a genre that is unknown",
         false,
         {withGenre(1, "genre.flac", "Romantic Classical")},
         "",
         "has the genre “Romantic Classical”, which the service does not know. Nearest: Classical. Nothing "
         "was "
         "sent.",
         0},
        {"a file that is gone",
         false,
         {stage.path("none.wav")},
         "",
         "“none.wav” cannot be published: it is not there. Nothing was sent.",
         0},
        {"refused with words",
         false,
         {songs[0]},
         R"("status":422,"body":{"errors":"This title already exists"})",
         "(422): This title already exists",
         0},
        {"refused without", false, {songs[0]}, R"("status":404)", "(404) and gave no reason.", 0},
        {"too large", false, {songs[0]}, R"("status":413)", "because it is too large (", 0},
        {"too many", false, {songs[0]}, R"("status":429)", "The service asks to wait a while", 0},
        {"a fault of the service", true, songs, R"("status":500)",
         "The service has a fault (500). The album “Night Drive” was not taken; nothing is wrong with it.",
         0},
        {"details that the service misses",
         false,
         {songs[0]},
         R"("status":422,"body":{"errors":"did not contain a required property: 'isrc'"})",
         "because details are missing, but none is empty here: did not contain a required property: 'isrc'",
         0},
        {"a connection that breaks",
         false,
         {songs[2]},
         R"("reset_after":1000)",
         "The connection broke after ",
         0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const QStringList options = each.isAlbum ? QStringList{"--album"} : QStringList();
        const Told line = onCommandLine(options, each.songs, each.fault);
        EXPECT_NE(line.sentence.find(each.sentence), std::string::npos) << line.sentence;
        EXPECT_EQ(line.arrived, each.arrived);
        Told shown = inWindow(each.isAlbum, each.songs, each.fault);
        if (line.sentence.find("The connection broke") == 0) { // how far it came differs from time to time
            EXPECT_EQ(shown.sentence.find("The connection broke after "), 0U) << shown.sentence;
            shown.sentence = line.sentence;
        }
        if (line.plan.empty()) {
            shown.plan.clear(); // what is not handed over shows what was there before
        }
        EXPECT_EQ(shown, line);
        stage.close();
    }
}

TEST_F(CasesTest, aFolderOfSongsWithoutTagsIsAnAlbumWithNumbersAndTitles) {
    std::vector<std::string> songs;
    for (int i = 1; i <= 12; ++i) {
        const std::string number = (i < 10 ? "0" : "") + std::to_string(i);
        songs.push_back(
            stage.untaggedSong(number + " Song " + std::string(1, static_cast<char>('A' + i - 1)) + ".wav"));
    }
    QStringList options{"--dry-run", "--album", "--album-title",  "Night Drive",
                        "--genre",   "Ambient", "--album-artist", "The Lamps"};
    for (const std::string& song : songs) {
        options << QString::fromStdString(song) << "--artist"
                << "The Lamps";
    }
    EXPECT_EQ(run(options, {}).first["exitCode"].toInt(), 0);
    options.removeFirst();
    const auto [last, plan] = run(options, {});
    EXPECT_EQ(last["text"].toString().toStdString(), "Published the album “Night Drive” with 12 songs.");
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

TEST_F(CasesTest, anUploadThatFindsNothingToSendSaysSo) {
    openReady(stage.songs());
    click(window(), "singles");
    setFault(R"("status":422,"body":{"errors":"did not contain a required property: 'isrc'"})");
    click(window(), "upload");
    EXPECT_TRUE(waitFor([&] { return states().find("|Missing Information") != std::string::npos; }));
    EXPECT_TRUE(statusSays("because details are missing"));
    setFault("");
    for (int i = 0; i < 2 && stage.status().find("Nothing waits") == std::string::npos; ++i) {
        click(window(), "upload");
        EXPECT_TRUE(
            waitFor([&] { return window().findChild<StatusLine*>()->notice().kind != NoticeKind::kBusy; }));
    }
    EXPECT_TRUE(statusSays("Nothing waits to be sent.")) << stage.status();
}

} // namespace xbr::host::tests
