#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "host/gui/hostwidgets.h"
#include "tests/host/gui/panel.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMimeData>
#include <QStyleFactory>
#include <QTreeView>
#include <QWidget>

#include <iostream>

/// Writes pictures of the panel's forms in their main states, for a look at them.
///
///     formshots ARCHIVE FOLDER [LANGUAGE [NEWS]]      QT_SCALE_FACTOR=2 for 200 %
///
/// NEWS is the address of a feed.

namespace xbr::host::tests {
namespace {

class Shots {
public:
    Shots(const std::string& archive, std::string folder, std::string language, std::string news)
        : m_folder(std::move(folder)),
          m_language(std::move(language)),
          m_news(std::move(news)),
          m_module("brindlex", "Kestrova", "Brindlex Support", "1"),
          m_skin(archive, m_language) {}

    void take() {
        for (const auto appearance : {Appearance::kLight, Appearance::kDark}) {
            QApplication::setPalette(hostPalette(appearance));
            m_suffix = appearance == Appearance::kDark ? "-dark" : "-light";
            takePanel();
            takeDialog();
            takeNews();
        }
    }

private:
    void takePanel() {
        const auto panel = make<Panel>();
        const auto widget = m_skin.widget("BrindlexManager", *panel);
        widget->resize(480, 640);
        widget->show();
        save(*widget, "login");
        panel->signIn("Marisol Quintanilla-Featherstonehaugh", "https://example.org/account");
        save(*widget, "empty");
        panel->addTracks(5);
        panel->named("upload").setEnabled(true);
        auto& model = panel->tracks().model();
        auto& first = *brindlex::TrackItem::from(*model.items()[0]);
        first.uploading = true;
        first.progress = 0.37;
        brindlex::TrackItem::from(*model.items()[1])->state = brindlex::TrackUploadState::kFailed;
        brindlex::TrackItem::from(*model.items()[2])->state = brindlex::TrackUploadState::kMissingInformation;
        brindlex::TrackItem::from(*model.items()[3])->state = brindlex::TrackUploadState::kDone;
        panel->tracks().signalTracksChanged();
        save(*widget, "tracks");
        const std::int32_t rows[] = {1, 2};
        model.setSelection(rows, 2);
        model.setFocus(2);
        widget->activateWindow();
        widget->findChild<QLineEdit*>("songTitle")->setFocus();
        save(*widget, "editing");
        auto& genre = *widget->findChild<QComboBox*>("primaryGenre");
        genre.showPopup();
        save(*genre.view()->window(), "genres");
        genre.hidePopup();
        dragOver(*widget->findChild<QTreeView*>("tracks")->viewport());
        save(*widget, "dropping");
        panel->tracks().setCurrentUploadItem(brindlex::TrackItem::from(*model.items()[2]));
        panel->tracks().editor().findParameter(toText("songTitle"))->setValue(textValue(""));
        panel->tracks().validateForUpload(brindlex::Marks::kSet);
        panel->tracks().setCurrentUploadItem(nullptr);
        save(*widget, "missing");
    }

    static void dragOver(QWidget& target) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile("/music/song.wav")});
        QDragEnterEvent enter(QPoint(40, 40), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &enter);
    }

    void takeDialog() {
        const auto panel = make<Panel>();
        const auto widget = m_skin.widget("BrindlexConnectDialog", *panel);
        for (int state = 0; state <= 5; ++state) {
            panel->client().setState(state);
            widget->adjustSize();
            widget->show();
            save(*widget, "connect" + std::to_string(state));
        }
    }

    void takeNews() {
        for (const auto& [name, url] : {std::pair("news", m_news), {"news-offline", "http://127.0.0.1:9/"}}) {
            if (m_news.empty()) {
                return;
            }
            ModuleComponent& module = m_module;
            module.loadTheme("resource://brindlex/skin");
            PanelSkin::setNews(url);
            const auto panel = make<Panel>();
            const auto widget = m_skin.widget("BrindlexManager", *panel);
            panel->signIn("Marisol Quintanilla-Featherstonehaugh", "https://example.org/account");
            widget->resize(480, 640);
            widget->show();
            save(*widget, std::string(name) + "-closed");
            widget->findChild<QAbstractButton*>("showNews")->click();
            QElapsedTimer clock;
            for (clock.start(); clock.elapsed() < 1500;) {
                QApplication::processEvents(QEventLoop::AllEvents, 20);
            }
            save(*widget, name);
            PanelSkin::setNews({});
        }
    }

    void save(QWidget& widget, const std::string& name) {
        for (int i = 0; i < 5; ++i) {
            QApplication::processEvents();
        }
        const std::string path = m_folder + "/" + name + "-" + m_language + m_suffix + ".png";
        widget.grab().save(QString::fromStdString(path));
        std::cout << path << " " << widget.width() << "x" << widget.height() << "\n";
    }

    std::string m_folder;
    std::string m_language;
    std::string m_news;
    std::string m_suffix;
    ModuleComponent m_module;
    PanelSkin m_skin;
};

} // namespace
} // namespace xbr::host::tests

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    if (argc < 3) {
        std::cerr << "usage: formshots ARCHIVE FOLDER [LANGUAGE [NEWS]]\n";
        return 2;
    }
    xbr::host::tests::Shots(argv[1], argv[2], argc > 3 ? argv[3] : "en", argc > 4 ? argv[4] : "").take();
    return 0;
}
