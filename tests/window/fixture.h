#pragma once

#include "host/app/window/songs/songview.h"
#include "tests/window/person.h"
#include "tests/window/stage.h"

#include <QApplication>
#include <QPushButton>
#include <gtest/gtest.h>

namespace xbr::host::tests {

/// A test that plays on a stage.
class WindowTest : public testing::Test {
protected:
    explicit WindowTest(int seconds = 1) : stage(seconds) {}

    MainWindow& window() { return stage.window(); }
    QAbstractItemView& songList() { return *window().findChild<SongView*>(); }
    QAbstractItemView& trackList() { return *window().findChild<QAbstractItemView*>("tracks"); }

    /// Opens the window and waits until the songs were read.
    void open(const std::vector<std::string>& files) {
        stage.open(files);
        EXPECT_TRUE(waitFor([&] {
            const int last = static_cast<int>(files.size()) - 1;
            return last < 0 || !cell(songList(), last, SongListModel::kLength).empty();
        }));
    }

    /// Signs in through the browser's stand-in.
    void signIn() {
        click(window(), "connect");
        auto* user = window().findChild<QPushButton*>("user");
        EXPECT_TRUE(waitFor([user] { return user->isVisible() && !user->text().isEmpty(); }));
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
        selectRows(trackList(), {0});
        type(window(), "albumTitle", "Night Drive");
    }

    /// The states of the tracks, one after the other.
    std::string states() {
        std::string all;
        for (int row = 0; row < trackList().model()->rowCount(); ++row) {
            all += (row > 0 ? "|" : "") + cell(trackList(), row, 2);
        }
        return all;
    }

    bool statusSays(const std::string& part) {
        return waitFor([&] { return stage.status().find(part) != std::string::npos; });
    }

    Stage stage;
};

} // namespace xbr::host::tests
