#include "bench/responsiveness/person.h"
#include "host/app/texts/programtexts.h"
#include "host/app/window/songs/songlistmodel.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyleFactory>
#include <QTest>
#include <QUrl>

#include <cstdlib>

// What a person does in the window, and how long it ever was deaf meanwhile. Each scene is a run of its own.

namespace xbr::host {

namespace {

constexpr int kPages = 1000;
constexpr int kSomePages = 40;
constexpr int kLook = 120;  // milliseconds for a page of news: their pictures come
constexpr int kGlance = 50; // for a page of a list

QString cell(const QAbstractItemView& list, int row, int column) {
    return list.model()->index(row, column).data().toString();
}

/// The songs of a folder.
QStringList filesIn(const QString& folder) {
    QStringList files;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
        files.append(file.absoluteFilePath());
    }
    return files;
}

/// Drops files on the list of songs, as a file manager does.
void drop(QWidget& target, const QStringList& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) {
        urls.append(QUrl::fromLocalFile(file));
    }
    data.setUrls(urls);
    const QPoint place = target.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &dropped);
}

void readNews(Person& person, const std::string& cache) {
    person.measure("news open, " + cache);
    person.click("showNews");
    auto* entries = person.find<QScrollArea>("entries");
    person.waitUntil(
        [&] { return entries->isVisible() && !entries->findChildren<QWidget*>("FeedEntry").empty(); });
    person.wait(2000); // while pictures come
    person.measure("news are scrolled, " + cache);
    person.pageDown(*entries, kPages, kLook);
    person.pause();
    person.click("showPublish");
}

/// Adds songs to the list and waits until they are read.
QAbstractItemView& addSongs(Person& person, const QStringList& files) {
    auto& songs = *person.find<QAbstractItemView>("songs");
    const auto count = static_cast<int>(files.size());
    drop(*songs.viewport(), files);
    person.waitUntil([&] {
        return songs.model()->rowCount() == count &&
               !cell(songs, count - 1, SongListModel::kLength).isEmpty();
    });
    return songs;
}

/// Hands all songs over; answers the list of the panel.
QAbstractItemView& handOver(Person& person, QAbstractItemView& songs) {
    songs.clearSelection();
    person.click("publish");
    auto& tracks = *person.find<QAbstractItemView>("tracks");
    person.waitUntil([&] { return tracks.model()->rowCount() == songs.model()->rowCount(); });
    person.wait(200);
    return tracks;
}

void workOnSongs(Person& person, const QStringList& files) {
    const std::string number = std::to_string(files.size());
    person.measure(number + " songs are added");
    QAbstractItemView& songs = addSongs(person, files);
    person.measure("their list is scrolled");
    person.pageDown(songs, kSomePages, kGlance);
    person.measure(number + " songs are handed over");
    QAbstractItemView& tracks = handOver(person, songs);
    person.find<QStackedWidget>("pages")->setCurrentIndex(1); // nobody is signed in
    person.wait(200);
    person.measure("the panel's list is scrolled");
    person.pageDown(tracks, kSomePages, kGlance);
    tracks.setCurrentIndex(tracks.model()->index(0, 0));
    person.wait(200);
    person.measure("a title is typed");
    person.type("songTitle", QStringLiteral("as long as the titles of some songs"));
}

/// Publishes the songs as an album; ends the process when they are `onlyPrepared`.
void upload(Person& person, const QStringList& files, bool onlyPrepared) {
    QAbstractItemView& tracks = handOver(person, addSongs(person, files));
    person.click("connect");
    person.waitUntil([&] { return person.isSeen("user"); });
    person.click("album");
    tracks.setCurrentIndex(tracks.model()->index(0, 0));
    person.type("albumTitle", QStringLiteral("Night Drive"));
    person.type("albumArtist", QStringLiteral("The Lamps"));
    person.wait(200);
    person.measure(onlyPrepared ? "a large album is prepared" : "an album is prepared");
    bool isPreparing = false;
    QTimer look; // the sheet runs an event loop inside the click
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (isPreparing && !person.isSeen("sheetBar")) {
            person.measure("it is sent");
            look.stop();
            if (onlyPrepared) {
                std::_Exit(0);
            }
        }
        isPreparing = isPreparing || person.isSeen("sheetBar");
    });
    look.start(1);
    person.click("upload");
    person.waitUntil([&] { return cell(tracks, 0, 2) == "Done"; });
}

void waitForKeyring(Person& person) {
    person.measure("a silent keyring is asked");
    person.click("connect");
    person.wait(8000);
}

int play(const std::string& scene, const QString& folder) {
    const QStringList files = filesIn(folder);
    Person person;
    person.measure("nobody does anything");
    person.wait(500);
    person.pause();
    if (scene == "empty" || scene == "full") {
        readNews(person, scene + " cache");
    } else if (scene == "songs") {
        workOnSongs(person, files);
    } else if (scene == "upload" || scene == "prepare") {
        upload(person, files, scene == "prepare");
    } else if (scene == "keyring") {
        waitForKeyring(person);
    } else if (scene == "all") {
        readNews(person, "full cache");
        workOnSongs(person, files);
    }
    person.measure("the window closes after scene " + scene);
    person.leave();
    person.pause();
    return 0;
}

} // namespace

} // namespace xbr::host

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const xbr::host::ProgramTexts texts;
    const std::string scene = argc > 1 ? argv[1] : "";
    const QString folder = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString();
    if (scene == "silence") {
        return xbr::host::beSilentKeyring();
    }
    return scene == "pictures" ? xbr::host::writePictures(folder) : xbr::host::play(scene, folder);
}
