// The window's parts on their own.

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/app/publishing/verdict/words.h"
#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/frame/statusline.h"
#include "host/app/window/songs/song.h"
#include "host/app/window/songs/songfiles.h"
#include "host/app/window/songs/songlistmodel.h"
#include "tests/fixtures/testfolder.h"
#include "tests/window/fixture.h"

#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScreen>

namespace xbr::host::tests {

TEST(SongTexts, lengthsAndFormatsAreForPeople) {
    const std::pair<std::int64_t, const char*> lengths[] = {
        {0, ""},         {-5, ""},         {400, "0:00"},        {999, "0:01"},
        {59500, "1:00"}, {187000, "3:07"}, {3599600, "1:00:00"}, {7325000, "2:02:05"}};
    for (const auto& [milliseconds, text] : lengths) {
        EXPECT_EQ(wordsOfLength(milliseconds), text) << milliseconds;
    }
    EXPECT_EQ(formatText({"WAV", 1, 44100, 16, 0}).toStdString(), "WAV · 16 bit · 44.1 kHz");
    EXPECT_EQ(formatText({"MP3", 1, 48000, 0, 320}).toStdString(), "MP3 · 320 kbit/s · 48 kHz");
    EXPECT_EQ(formatText({}).toStdString(), "");
}

TEST(SongModel, filesComeOnceStayInOrderAndAreEditedWithinBounds) {
    SongListModel songs;
    EXPECT_EQ(songs.addFiles({"/a.wav", "/b.wav", "/a.wav"}).size(), 2U);
    EXPECT_EQ(songs.addFiles({"/b.wav", "/c.wav"}).size(), 1U);
    const auto title = [&songs](int row) { return songs.index(row, SongListModel::kTitle); };
    EXPECT_FALSE(songs.setData(title(0), "too early", Qt::EditRole)) << "its tags are still to come";

    Song read;
    read.path = "/b.wav";
    read.title = "B";
    read.isBeingRead = false;
    songs.setSong(read);
    EXPECT_TRUE(songs.setData(title(1), "  B  side\n", Qt::EditRole));
    EXPECT_EQ(songs.song(1).title, "B side");
    read.title = "read late";
    songs.setSong(read);
    EXPECT_EQ(songs.song(1).title, "B side") << "what the user wrote stays";
    EXPECT_TRUE(songs.setData(songs.index(1, SongListModel::kNumber), 123456, Qt::EditRole));
    EXPECT_EQ(songs.song(1).number, 9999);
    EXPECT_FALSE(songs.setData(songs.index(1, SongListModel::kLength), 3, Qt::EditRole));

    EXPECT_EQ(songs.moveSongs({1}, 0), 0);
    EXPECT_EQ(songs.song(0).path, "/b.wav");
    EXPECT_TRUE(songs.removeRows(0, 2));
    EXPECT_EQ(songs.song(0).path, "/c.wav");
    read.path = "/gone.wav";
    songs.setSong(read); // was removed while it was read
    EXPECT_EQ(songs.rowCount(), 1);
}

TEST_F(WindowTest, foldersAreSearchedAndForeignPlacesLeftOut) {
    std::vector<std::string> expected;
    for (const char* name : {"album/a.wav", "album/b.FLAC", "album/disc 2/c.mp3", "album/cover.png"}) {
        expected.push_back(stage.path(name));
        writeFile(expected.back(), "x");
    }
    const QString folder = QString::fromStdString(stage.path("album"));
    EXPECT_EQ(songFilesOf({QUrl::fromLocalFile(folder), QUrl("http://example.org/a.wav"),
                           QUrl::fromLocalFile(folder + "/cover.png")}),
              expected);

    open({});
    EXPECT_FALSE(drop(*find(window(), "emptyState"), {}));
    EXPECT_TRUE(drop(*find(window(), "emptyState"), {stage.path("album"), stage.path("none.wav")}));
    EXPECT_EQ(songList().model()->rowCount(), 4);
    EXPECT_TRUE(waitFor(
        [&] { return song(3, SongListModel::kFormat).find("it is not there") != std::string::npos; }));
    EXPECT_TRUE(choose(window(), "Upload to Brindlex"));
    EXPECT_TRUE(statusSays("cannot be published"));
}

TEST_F(WindowTest, aFileSelectorGivesWhatTheUserChose) {
    open({});
    for (const auto& [key, result] : {std::pair(Qt::Key_Return, kOk), std::pair(Qt::Key_Escape, kFalse)}) {
        const auto selector = createHostObject<IFileSelector>();
        Ref<IFileType> type;
        XBRGetFileTypeRegistry()->createType(toText("wav"), type.out());
        EXPECT_EQ(selector->addFilter(type.get()), kOk);
        EXPECT_EQ(selector->addFilter(nullptr), kInvalidArgument);
        const auto act = inDialog<QFileDialog>([&, pressed = key](QFileDialog& dialog) {
            EXPECT_EQ(dialog.nameFilters().front().indexOf("wav ("), -1);
            dialog.findChild<QLineEdit*>()->setText(QString::fromStdString(stage.songs().back()));
            QTest::keyClick(dialog.findChild<QLineEdit*>(), pressed);
            return true;
        });
        EXPECT_EQ(selector->run(IFileSelector::Mode::kOpenFiles, {}), result);
        EXPECT_EQ(selector->countUrls(), result == kOk ? 1 : 0);
        EXPECT_EQ(view(selector->urlAt(0)).starts_with("file:///"), result == kOk);
    }
}

TEST_F(WindowTest, aProgressIndicatorBlocksTheWindowAndCanBeCancelled) {
    open(stage.songs());
    const auto indicator = createHostObject<IProgressIndicator>();
    const auto progress = query<IProgress>(indicator.get());
    indicator->setTitle(toText("Working"));
    indicator->setOption(1);
    progress->update(0.5, toText("too early")); // before it begins: nothing
    indicator->begin();
    EXPECT_TRUE(waitFor([&] {
        progress->update(0.25, toText("Opening.wav"));
        return QApplication::activeModalWidget() != nullptr;
    }));
    QWidget* sheet = QApplication::activeModalWidget();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->windowTitle(), "Working");
    EXPECT_EQ(sheet->findChild<QProgressBar*>()->value(), 250);
    EXPECT_FALSE(progress->isCancelled());
    QTest::keyClick(&songList(), Qt::Key_Delete); // is for the list behind it
    EXPECT_TRUE(drop(*songList().viewport(), {stage.path("late.wav")}));
    EXPECT_EQ(songList().model()->rowCount(), 3);
    QTest::mouseClick(sheet->findChild<QPushButton*>("stopWork"), Qt::LeftButton);
    EXPECT_TRUE(progress->isCancelled());
    indicator->end();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(progress->isCancelled()) << "also afterwards";
    indicator->end();

    indicator->setOption(0);
    indicator->begin();
    progress->update(1.0, {});
    EXPECT_FALSE(progress->isCancelled());
    indicator->end();
}

TEST(Status, goodNewsDoNotHideAWarningAndWhatRunsOnlyCoversIt) {
    StatusLine line(nullptr);
    EXPECT_TRUE(line.findChild<QWidget*>("stop")->parentWidget()->isHidden()) << "nothing is being sent";
    const std::pair<Notice, const char*> steps[] = {
        {{NoticeKind::kDone, "good"}, "good"},    {{NoticeKind::kWarning, "careful"}, "careful"},
        {{NoticeKind::kDone, "good"}, "careful"}, {{NoticeKind::kError, "worse"}, "worse"},
        {{NoticeKind::kBusy, "runs"}, "runs"},    {{NoticeKind::kDone, "good"}, "worse"},
        {{NoticeKind::kInfo, "asked"}, "asked"}};
    for (const auto& [notice, shown] : steps) {
        line.showNotice(notice);
        EXPECT_EQ(line.notice().text, shown);
    }
}

TEST_F(WindowTest, aTypedGenreFindsItsOwnNameFirstAndTheWindowFitsTheScreen) {
    openReady({stage.songs().front()});
    EXPECT_TRUE(window().screen()->availableGeometry().contains(window().geometry())) << "the first window";
    selectRows(trackList(), {0});
    auto* genres = findAs<QComboBox>(window(), "primaryGenre");
    ASSERT_GT(genres->count(), 100);
    for (const auto& [typed, first] : {std::pair("techno", "Techno (Peak Time / Driving)"),
                                       {"POP", "Pop"},
                                       {"hous", "House"},
                                       {"blues", "Blues"}}) {
        genres->lineEdit()->selectAll();
        QTest::keyClicks(genres->lineEdit(), typed);
        EXPECT_EQ(genres->completer()->popup()->model()->index(0, 0).data().toString().toStdString(), first)
            << typed;
        genres->completer()->popup()->hide();
    }
}

TEST_F(WindowTest, theModulesOwnNamesAreInTheUsersLanguage) {
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "de_DE.UTF-8");
    open({stage.songs().front()});
    qputenv("LC_ALL", before);
    EXPECT_TRUE(choose(window(), "Zu Brindlex hochladen"));
}

TEST(Translations, areFinishedAndKeepTheirPlaceholders) {
    static const QRegularExpression kMessage("<source>(.*?)</source>.*?<translation(.*?)>(.*?)</translation>",
                                             QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression kPlaceholder("%L?(?:\\d|n)");
    for (const char* language : {"de", "es", "fr", "ja", "pt"}) {
        const std::string xml = readFile(std::string(TEST_TRANSLATIONS "/") + language + ".ts");
        int messages = 0;
        for (auto each = kMessage.globalMatch(QString::fromStdString(xml)); each.hasNext(); ++messages) {
            const auto message = each.next();
            const std::string where = language + (": " + message.captured(1).toStdString());
            EXPECT_FALSE(message.captured(2).contains("type=")) << where << " is not finished";
            EXPECT_FALSE(message.captured(3).trimmed().isEmpty()) << where;
            for (auto match = kPlaceholder.globalMatch(message.captured(1)); match.hasNext();) {
                EXPECT_TRUE(message.captured(3).contains(match.next().captured())) << where;
            }
        }
        EXPECT_GT(messages, 60) << language;
    }
}

} // namespace xbr::host::tests
