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
#include "tests/window/fixture.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <filesystem>
#include <fstream>

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
    namespace fs = std::filesystem;
    fs::create_directories(stage.path("album/disc 2"));
    for (const char* name : {"album/b.FLAC", "album/a.wav", "album/cover.png", "album/disc 2/c.mp3"}) {
        std::ofstream(stage.path(name)) << "x";
    }
    const QString folder = QString::fromStdString(stage.path("album"));
    const auto files = songFilesOf({QUrl::fromLocalFile(folder), QUrl("http://example.org/a.wav"),
                                    QUrl::fromLocalFile(folder + "/cover.png")});
    const std::vector<std::string> expected{stage.path("album/a.wav"), stage.path("album/b.FLAC"),
                                            stage.path("album/disc 2/c.mp3"), stage.path("album/cover.png")};
    EXPECT_EQ(files, expected);

    open({});
    EXPECT_FALSE(drop(*find(window(), "emptyState"), {}));
    EXPECT_TRUE(drop(*find(window(), "emptyState"), {stage.path("album"), stage.path("none.wav")}));
    EXPECT_EQ(songList().model()->rowCount(), 4);
    EXPECT_TRUE(waitFor([&] {
        return cell(songList(), 3, SongListModel::kFormat).find("it is not there") != std::string::npos;
    }));
    EXPECT_TRUE(choose(window(), "Upload to Brindlex"));
    EXPECT_TRUE(statusSays("cannot be published")) << stage.status();
}

TEST_F(WindowTest, aFileSelectorGivesWhatTheUserChose) {
    open({});
    for (const bool isConfirmed : {true, false}) {
        const auto selector = createHostObject<IFileSelector>();
        Ref<IFileType> type;
        XBRGetFileTypeRegistry()->createType(toText("wav"), type.out());
        EXPECT_EQ(selector->addFilter(type.get()), kOk);
        EXPECT_EQ(selector->addFilter(nullptr), kInvalidArgument);
        const auto act = whenever([&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog) {
                EXPECT_EQ(dialog->nameFilters().front().toStdString().find("wav ("), std::string::npos);
                dialog->findChild<QLineEdit*>()->setText(QString::fromStdString(stage.songs().back()));
                QTest::keyClick(dialog->findChild<QLineEdit*>(),
                                isConfirmed ? Qt::Key_Return : Qt::Key_Escape);
            }
            return dialog != nullptr;
        });
        EXPECT_EQ(selector->run(IFileSelector::Mode::kOpenFiles, {}), isConfirmed ? kOk : kFalse);
        EXPECT_EQ(selector->countUrls(), isConfirmed ? 1 : 0);
        EXPECT_EQ(view(selector->urlAt(0)).starts_with("file:///"), isConfirmed);
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
    QElapsedTimer clock;
    clock.start();
    while (!QApplication::activeModalWidget() && clock.elapsed() < 5000) {
        progress->update(0.25, toText("Opening.wav"));
    }
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
    const struct {
        Notice notice;
        const char* shown;
    } steps[] = {{{NoticeKind::kDone, "good"}, "good"},    {{NoticeKind::kWarning, "careful"}, "careful"},
                 {{NoticeKind::kDone, "good"}, "careful"}, {{NoticeKind::kError, "worse"}, "worse"},
                 {{NoticeKind::kBusy, "runs"}, "runs"},    {{NoticeKind::kDone, "good"}, "worse"},
                 {{NoticeKind::kInfo, "asked"}, "asked"}};
    for (const auto& step : steps) {
        line.showNotice(step.notice);
        EXPECT_EQ(line.notice().text, step.shown);
    }
}

TEST(Translations, areFinishedAndKeepTheirPlaceholders) {
    static const QRegularExpression kPlaceholder("%L?(?:\\d|n)");
    int languages = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_TRANSLATIONS)) {
        if (entry.path().extension() != ".ts" || entry.path().stem() == "en") {
            continue;
        }
        ++languages;
        QFile file(QString::fromStdString(entry.path().string()));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QString source;
        int messages = 0;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement()) {
                continue;
            }
            if (xml.name() == u"source") {
                source = xml.readElementText();
                ++messages;
            } else if (xml.name() == u"translation") {
                const QString where = entry.path().filename().c_str() + QString(": ") + source;
                EXPECT_TRUE(xml.attributes().value("type").isEmpty()) << where.toStdString();
                const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
                EXPECT_FALSE(text.trimmed().isEmpty()) << where.toStdString();
                for (auto match = kPlaceholder.globalMatch(source); match.hasNext();) {
                    const QString placeholder = match.next().captured();
                    EXPECT_TRUE(text.contains(placeholder)) << where.toStdString();
                }
            }
        }
        EXPECT_FALSE(xml.hasError());
        EXPECT_GT(messages, 60) << entry.path();
    }
    EXPECT_EQ(languages, 5);
}

} // namespace xbr::host::tests
