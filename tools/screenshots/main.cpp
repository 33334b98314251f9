#include "host/app/texts/programtexts.h"
#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/frame/statusline.h"
#include "host/app/window/songs/songview.h"
#include "tests/window/person.h"
#include "tests/window/stage.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QStyleFactory>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

/// Writes pictures of the window in its main states.
///
///     xbrhost-screenshots FOLDER SUFFIX STATE…
///
/// QT_SCALE_FACTOR=2 makes them at 200 %; a suffix that begins with "-dark" makes them dark.

namespace xbr::host::tests {
namespace {

constexpr QSize kSize(1340, 760);

/// The words on a button of a question about the panel.
QString inLanguage(const char* words) {
    return QCoreApplication::translate("xbr::host::PanelNotices", words).remove('&');
}

class Shots {
public:
    Shots(QString folder, QString suffix) : m_folder(std::move(folder)), m_suffix(std::move(suffix)) {}

    void take(const std::string& state) {
        static const std::pair<const char*, void (Shots::*)()> kStates[] = {
            {"empty", &Shots::empty},           {"sign-in", &Shots::signIn},
            {"connecting", &Shots::connecting}, {"connect-failed", &Shots::connectFailed},
            {"tracks", &Shots::tracks},         {"album", &Shots::album},
            {"preparing", &Shots::preparing},   {"uploading", &Shots::uploading},
            {"missing", &Shots::missing},       {"done", &Shots::done},
            {"about", &Shots::about},           {"news", &Shots::news},
            {"stopped", &Shots::stopped},       {"partly", &Shots::partly},
            {"several", &Shots::several},       {"restored", &Shots::restored},
            {"genre", &Shots::genre},           {"question", &Shots::question},
        };
        for (const auto& [name, shoot] : kStates) {
            if (state == name) {
                m_stage = std::make_unique<Stage>(state == "uploading" || state == "stopped" ? 90 : 3);
                m_state = name;
                (this->*shoot)();
                m_stage.reset();
                return;
            }
        }
        std::fprintf(stderr, "there is no state '%s'\n", state.c_str());
    }

private:
    MainWindow& window() { return m_stage->window(); }

    /// In the order of the album.
    std::vector<std::string> songs() const { return {m_stage->songs().rbegin(), m_stage->songs().rend()}; }

    void open(const std::vector<std::string>& files) {
        m_stage->open(files);
        if (m_suffix.startsWith("-dark")) {
            window().findChild<QAction*>("appearanceDark")->trigger();
        }
        window().resize(kSize);
        auto* songs = window().findChild<SongView*>();
        waitFor([&] { // what stands there while a song is read is as long as a format in some languages
            const int last = static_cast<int>(files.size()) - 1;
            return files.empty() || cell(*songs, last, SongListModel::kFormat).find("·") != std::string::npos;
        });
    }

    void publish() {
        QTest::mouseClick(find(window(), "publish"), Qt::LeftButton);
        QTest::qWait(200);
    }

    void connectPanel() {
        click(window(), "connect");
        auto* user = window().findChild<QPushButton*>("user");
        const auto* line = window().findChild<StatusLine*>();
        waitFor([user, line] {
            return user->isVisible() && !user->text().isEmpty() && line->notice().kind != NoticeKind::kBusy;
        });
        click(window(), "dismiss"); // there is no keyring here, and the window says so
    }

    void openReady(bool isAlbum) {
        open(songs());
        publish();
        connectPanel();
        click(window(), isAlbum ? "album" : "singles");
        QTest::qWait(100);
    }

    void select(const std::vector<int>& rows) {
        selectRows(*findAs<QAbstractItemView>(window(), "tracks"), rows);
        QTest::qWait(100);
    }

    void empty() {
        open({});
        save();
    }

    void signIn() {
        open(songs());
        save();
    }

    void connecting() {
        m_stage->setVisit(Stage::Visit::kGoAway);
        open(songs());
        shootDialog();
    }

    void connectFailed() {
        m_stage->service().addFault(R"({"path":"/oauth/token","status":500,"times":9})");
        open(songs());
        click(window(), "connect");
        const auto* line = window().findChild<StatusLine*>();
        waitFor([line] { return line->notice().kind == NoticeKind::kError; });
        save();
    }

    void news() {
        std::ofstream(m_stage->path("services.ini"), std::ios::app)
            << "FeedURL=" << m_stage->service().origin() << "/feed.atom\n";
        openReady(false);
        click(window(), "showNews");
        waitFor([this] {
            const auto* picture = window().findChild<QLabel*>("picture");
            return picture && picture->isVisible();
        });
        QTest::qWait(500); // for the pictures
        save();
    }

    /// Presses "connect", and takes the picture in the dialog.
    void shootDialog() {
        auto ticks = std::make_shared<int>(0);
        const auto act = whenever([this, ticks] {
            static constexpr int kQuiet = 15;
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || ++*ticks < kQuiet) {
                return false;
            }
            save();
            dialog->reject();
            return true;
        });
        click(window(), "connect");
    }

    void tracks() {
        openReady(false);
        select({0, 1});
        save();
    }

    void album() {
        openReady(true);
        select({1});
        type(window(), "albumTitle", "Night Drive");
        save();
    }

    /// An album of the songs and of one more, which lacks its details.
    void openAlbumWith(const std::string& song) {
        auto files = songs();
        files.push_back(song);
        open(files);
        publish();
        connectPanel();
        click(window(), "album");
        select({0});
        type(window(), "albumTitle", "Night Drive");
    }

    void preparing() {
        openAlbumWith(m_stage->untaggedSong("Live at the Lighthouse.wav", 1U << 30U));
        const auto act = whenever([this] {
            auto* sheet = qobject_cast<ProgressSheet*>(QApplication::activeModalWidget());
            const auto* bar = sheet ? sheet->findChild<QProgressBar*>() : nullptr;
            if (!bar || bar->value() < bar->maximum() / 4) {
                return false;
            }
            save();
            sheet->cancel();
            return true;
        });
        const auto sending = answer(inLanguage("Send &Anyway"));
        click(window(), "upload");
    }

    /// Until the service has stopped reading the longest song for some seconds.
    void sendAndStall() {
        m_stage->service().addFault(
            R"({"path":"/api/frontstage/release_ingestion","stall_after":2500000,"stall_ms":60000,"times":3})");
        openReady(false);
        click(window(), "upload");
        waitFor([this] {
            const auto* details = window().findChild<QLabel*>("sendingDetails");
            return details->isVisible() && details->text().count(QString::fromUtf8("·")) == 2;
        });
    }

    void uploading() {
        sendAndStall();
        save();
        click(window(), "stop");
    }

    void stopped() {
        sendAndStall();
        click(window(), "stop");
        waitFor([this] { return window().findChild<StatusLine*>()->notice().kind == NoticeKind::kInfo; });
        save();
    }

    void partly() {
        m_stage->service().addFault(
            R"({"path":"/api/frontstage/release_ingestion","status":422,"body":{"errors":"This title already exists"},"times":2})");
        openReady(false);
        click(window(), "upload");
        waitFor([this] { return window().findChild<StatusLine*>()->notice().kind == NoticeKind::kWarning; });
        click(window(), "unfold");
        save();
    }

    void several() {
        openReady(true);
        select({0, 1, 2});
        type(window(), "songArtist", "The Lamps");
        QTest::qWait(100);
        save();
    }

    void restored() {
        open(songs());
        window().close();
        m_stage->close();
        std::filesystem::rename(m_stage->songs().front(), m_stage->songs().front() + ".away");
        open({});
        waitFor([this] { return m_stage->status().find("last time") != std::string::npos; }, 2000);
        QTest::qWait(500);
        save();
    }

    void genre() {
        open(songs());
        auto* list = window().findChild<SongView*>();
        list->model()->setData(list->model()->index(0, SongListModel::kGenre), "Tekno");
        publish();
        save();
    }

    void question() {
        auto files = songs();
        files.push_back(m_stage->untaggedSong("Demo take 4.wav"));
        open(files);
        publish();
        connectPanel();
        click(window(), "singles");
        const auto act = whenever([this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog) {
                save();
                dialog->reject();
            }
            return dialog != nullptr;
        });
        click(window(), "upload");
    }

    void missing() {
        m_stage->service().addFault(
            R"({"path":"/api/frontstage/release_ingestion","status":422,"body":{"errors":"The object did not contain a required property of 'primary_genre'"}})");
        openAlbumWith(m_stage->untaggedSong("Demo take 4.wav"));
        const auto sending = answer(inLanguage("Send &Anyway"));
        click(window(), "upload");
        auto* tracks = findAs<QAbstractItemView>(window(), "tracks");
        waitFor([tracks] { return !cell(*tracks, 3, 2).empty() && cell(*tracks, 3, 2).back() != '%'; });
        select({3});
        save();
    }

    void done() {
        openReady(false);
        click(window(), "upload");
        waitFor([this] { return m_stage->arrived() == 3; });
        QTest::qWait(300);
        save();
    }

    void about() {
        open(songs());
        window().findChild<QAction*>("about")->trigger();
        QTest::qWait(200);
        save();
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
    }

    void save() {
        QTest::qWait(150);
        QPixmap picture = window().grab();
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog) {
            const QPoint place = window().rect().center() - dialog->rect().center();
            QPainter painter(&picture);
            painter.fillRect(QRect(place, dialog->size()).adjusted(-1, -1, 1, 1), QColor(0, 0, 0, 70));
            painter.drawPixmap(place, dialog->grab());
        }
        const QString name = QString("%1/%2%3.png").arg(m_folder, m_state.c_str(), m_suffix);
        static constexpr int kSmallest = 0;
        const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
        image.convertToFormat(QImage::Format_Indexed8, paletteOf(image), Qt::AvoidDither)
            .save(name, "PNG", kSmallest);
    }

    /// The most frequent colours that differ. A palette keeps the pictures small; what is flat loses nothing.
    static QList<QRgb> paletteOf(const QImage& image) {
        static constexpr int kColors = 256;
        QHash<QRgb, int> counts;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                ++counts[image.pixel(x, y)];
            }
        }
        QList<QRgb> frequent = counts.keys();
        std::sort(frequent.begin(), frequent.end(), [&](QRgb a, QRgb b) { return counts[a] > counts[b]; });
        QList<QRgb> colors;
        for (const QRgb color : frequent) {
            const bool isNew = std::none_of(colors.begin(), colors.end(),
                                            [color](QRgb other) { return areAlike(color, other); });
            if (isNew && colors.size() < kColors) {
                colors.append(color);
            }
        }
        return colors;
    }

    static bool areAlike(QRgb a, QRgb b) {
        static constexpr int kLeast = 16;
        return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) <
               kLeast;
    }

    QString m_folder;
    QString m_suffix;
    std::string m_state;
    std::unique_ptr<Stage> m_stage;
};

} // namespace
} // namespace xbr::host::tests

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 4) {
        std::fputs("usage: xbrhost-screenshots FOLDER SUFFIX STATE...\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const xbr::host::ProgramTexts texts;
    xbr::host::tests::Shots shots(argv[1], argv[2]);
    for (int i = 3; i < argc; ++i) {
        shots.take(argv[i]);
    }
    return 0;
}
