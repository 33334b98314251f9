#pragma once

#include "host/app/window/songs/songview.h"
#include "tests/window/person.h"
#include "tests/window/stage.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace xbr::host::tests {

/// A test that plays on a stage.
class WindowTest : public testing::Test {
protected:
    explicit WindowTest(int seconds = 1) : stage(seconds) {}

    MainWindow& window() { return stage.window(); }
    QAbstractItemView& songList() { return *window().findChild<SongView*>(); }
    QAbstractItemView& trackList() { return *window().findChild<QAbstractItemView*>("tracks"); }

    /// What a cell of the list of songs shows.
    std::string song(int row, int column) { return cell(songList(), row, column); }

    bool isShown(const char* name) { return window().findChild<QWidget*>(name)->isVisible(); }

    /// What a field, a label or a button shows.
    std::string text(const char* name) {
        return window().findChild<QWidget*>(name)->property("text").toString().toStdString();
    }

    /// Opens the window and waits until the songs were read.
    void open(const std::vector<std::string>& files) {
        stage.open(files);
        const int last = static_cast<int>(files.size()) - 1;
        EXPECT_TRUE(waitFor([&] { return last < 0 || !song(last, SongListModel::kLength).empty(); }));
    }

    /// Signs in through the browser's stand-in.
    void signIn() {
        click(window(), "connect");
        EXPECT_TRUE(waitFor([this] { return isShown("user") && !text("user").empty(); }));
        stage.activate();
    }

    /// Opens the window, publishes the songs to the panel and signs in.
    void openReady(const std::vector<std::string>& files) {
        open(files);
        click(window(), "publish");
        signIn();
        EXPECT_EQ(trackList().model()->rowCount(), static_cast<int>(files.size()));
    }

    /// Makes one release of the tracks.
    void makeAlbum() {
        click(window(), "album");
        edit(0, "albumTitle", "Night Drive");
    }

    /// Types into a field of the editor for one track.
    void edit(int track, const char* name, const QString& words) {
        selectRows(trackList(), {track});
        type(window(), name, words);
    }

    bool areTracks(int count) {
        return waitFor([&] { return trackList().model()->rowCount() == count; });
    }

    /// The states of the tracks, one after the other.
    std::string states() {
        std::string all;
        for (int row = 0; row < trackList().model()->rowCount(); ++row) {
            all += (row > 0 ? "|" : "") + cell(trackList(), row, 2);
        }
        return all;
    }

    testing::AssertionResult statesBecome(const std::string& expected) {
        return waitFor([&] { return states() == expected; }) ? testing::AssertionSuccess()
                                                             : testing::AssertionFailure() << states();
    }

    testing::AssertionResult statusSays(const std::string& part) {
        return waitFor([&] { return stage.status().find(part) != std::string::npos; })
                   ? testing::AssertionSuccess()
                   : testing::AssertionFailure() << stage.status();
    }

    /// What the service does with the releases that come.
    void addFault(const std::string& fault) {
        stage.service().addFault(R"({"path":"/api/frontstage/release_ingestion",)" + fault + "}");
    }

    Stage stage;
};

} // namespace xbr::host::tests
