#include "host/app/window/frame/mainwindow.h"

#include "framework/support/parts/path.h"
#include "host/app/publishing/words.h"
#include "host/app/window/dialogs/fileselector.h"
#include "host/app/window/dialogs/viewdialog.h"
#include "host/app/window/frame/header.h"
#include "host/app/window/frame/statusline.h"
#include "host/app/window/look/icon.h"
#include "host/app/window/look/tints.h"
#include "host/app/window/songs/songfiles.h"
#include "host/app/window/songs/songview.h"
#include "host/gui/hostwidgets.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr QSize kFirstSize(1440, 840);
constexpr int kPanelWidth = 500;

} // namespace

MainWindow::MainWindow(DialogPlace& place)
    : m_place(&place),
      m_appearance(this),
      m_reader(this),
      m_view(new SongView(m_songs, this)),
      m_empty(new EmptyState(this)),
      m_area(new QStackedWidget(this)),
      m_header(new Header(m_songs, this)),
      m_status(new StatusLine(this)),
      m_actions(std::make_unique<WindowActions>(*this, *m_view)) {
    m_place->window = this;
    build();
    connectActions();
    m_appearance.setChoice(m_layout.appearance());
    m_actions->setAppearance(m_layout.appearance(), [this](AppearanceChoice choice) {
        m_layout.setAppearance(choice);
        m_appearance.setChoice(choice);
    });
    connect(&m_appearance, &AppearanceSetting::applied, this, &MainWindow::applyAppearance);
    applyAppearance();
    updateActions();
    setCommandListener([this](IParameter& command) { commandPerformed(command); });
}

MainWindow::~MainWindow() {
    setCommandListener({});
    closePanels();
}

void MainWindow::build() {
    setWindowTitle(tr("Songs – xbrhost"));
    setWindowIcon(QIcon(":/xbrhost/icons/app.svg"));
    setDockOptions(AnimatedDocks | AllowTabbedDocks);
    setDocumentMode(true);
    resize(kFirstSize);
    m_area->addWidget(m_empty);
    m_area->addWidget(m_view);
    auto* center = new QWidget(this);
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_status);
    setCentralWidget(center);
    m_header->addButton(*m_actions->add);
    m_header->addButton(*m_actions->remove);
}

void MainWindow::connectActions() {
    connect(m_actions->add, &QAction::triggered, this, &MainWindow::askForSongs);
    connect(&m_empty->button(), &QPushButton::clicked, this, &MainWindow::askForSongs);
    connect(m_actions->edit, &QAction::triggered, m_view, &SongView::editCurrent);
    connect(m_actions->remove, &QAction::triggered, m_view, &SongView::removeSelected);
    connect(m_actions->up, &QAction::triggered, this, [this] { m_view->moveCurrent(-1); });
    connect(m_actions->down, &QAction::triggered, this, [this] { m_view->moveCurrent(1); });
    connect(m_actions->quit, &QAction::triggered, this, &QWidget::close);
    connect(m_actions->nextArea, &QAction::triggered, this, &MainWindow::focusNextArea);
    connect(m_actions->resetLayout, &QAction::triggered, this, &MainWindow::resetLayout);
    connect(m_actions->about, &QAction::triggered, this, [this] {
        auto* about = new AboutDialog(m_versions, this);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->open();
    });
    const auto* onView = new FileDrop(*m_view, *m_view->viewport());
    const auto* onEmpty = new FileDrop(*m_empty, *m_empty);
    connect(onView, &FileDrop::filesDropped, this, &MainWindow::addSongs);
    connect(onEmpty, &FileDrop::filesDropped, this, &MainWindow::addSongs);
    connect(&m_reader, &SongReader::songRead, this, [this](const Song& song) { m_songs.setSong(song); });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MainWindow::updateActions);
    connect(&m_songs, &QAbstractItemModel::rowsInserted, this, &MainWindow::updateActions);
    connect(&m_songs, &QAbstractItemModel::rowsRemoved, this, &MainWindow::updateActions);
}

void MainWindow::applyAppearance() {
    setStyleSheet(windowStyle(QApplication::palette()));
}

void MainWindow::updateActions() {
    const bool hasSongs = m_songs.rowCount() > 0;
    m_area->setCurrentWidget(hasSongs ? static_cast<QWidget*>(m_view) : m_empty);
    for (QAction* action : {m_actions->edit, m_actions->remove, m_actions->up, m_actions->down}) {
        action->setEnabled(m_view->hasSelection());
    }
    for (QAction* action : m_actions->publishMenu->actions()) {
        action->setEnabled(hasSongs);
    }
}

void MainWindow::addSongs(const std::vector<std::string>& paths) {
    if (m_place->session.activity().isWorking()) {
        return; // a drop from another program is no input that a sheet can block
    }
    m_reader.read(m_songs.addFiles(paths));
}

void MainWindow::askForSongs() {
    FileQuestion question;
    question.title = tr("Add Songs");
    question.filters = QStringList{songFileFilter(), tr("All files (*)")};
    question.isForSeveral = true;
    QList<QUrl> chosen;
    for (const QString& path : askForFiles(*m_place, question)) {
        chosen.append(QUrl::fromLocalFile(path));
    }
    addSongs(songFilesOf(chosen));
}

void MainWindow::showModules(std::vector<VersionLine> versions) {
    m_versions = std::move(versions);
    int number = 0;
    for (const PublishEntry& entry : findPublishEntries()) {
        auto* action = new QAction(QString::fromStdString(entry.name), this);
        action->setIcon(symbolIcon("publish", IconColor::kOnAccent));
        action->setIconVisibleInMenu(false); // it is for the button
        ++number;
        action->setShortcut(number == 1 ? QKeySequence(Qt::CTRL | Qt::Key_U)
                                        : QKeySequence(QString("Ctrl+Alt+%1").arg(number)));
        action->setToolTip(tr("Publish the selected songs, or all"));
        connect(action, &QAction::triggered, this, [this, entry] { publish(entry); });
        m_actions->publishMenu->addAction(action);
    }
    m_header->setPublishEntries(m_actions->publishMenu->actions());
    number = 0;
    // A dialog hides the status line; its form shows what the module knows, which may be nothing.
    const auto tellInDialog = [this](const QString& text) {
        if (m_place->dialog) {
            m_place->dialog->setNotice(text);
        }
    };
    for (const GadgetClass& gadget : findGadgets()) {
        auto* dock = new GadgetDock(gadget, m_place->session, tellInDialog, this);
        m_docks.push_back(dock);
        addDockWidget(Qt::RightDockWidgetArea, dock);
        connectDock(*dock, ++number);
    }
    if (!m_docks.empty()) {
        resizeDocks({m_docks.front()}, {kPanelWidth}, Qt::Horizontal);
    }
    m_layout.restore(*this, *m_view->header());
    updateActions();
}

void MainWindow::connectDock(GadgetDock& dock, int number) {
    QAction* toggle = dock.toggleViewAction();
    toggle->setIcon(symbolIcon("panel"));
    toggle->setShortcut(QKeySequence(QString("Ctrl+%1").arg(number)));
    m_actions->panelMenu->insertAction(m_actions->panelMenu->actions().at(number - 1), toggle);
    connect(toggle, &QAction::triggered, &dock, [&dock](bool isShown) {
        if (isShown) {
            dock.bringToFront();
        }
    });
    if (dock.notices()) {
        connect(dock.notices(), &PanelNotices::noticed, this, &MainWindow::showNotice);
    }
    const QStringList genres = dock.genres();
    if (!genres.isEmpty()) {
        m_view->setGenres(genres);
    }
}

void MainWindow::closePanels() {
    m_actions->publishMenu->clear();
    m_header->setPublishEntries({});
    const auto docks = std::exchange(m_docks, {});
    for (const GadgetDock* dock : docks) {
        delete dock;
    }
    m_place->session.closePanels();
}

void MainWindow::showNotice(const Notice& notice) {
    if (notice.kind != NoticeKind::kNone) {
        m_status->showNotice(notice);
    }
}

void MainWindow::publish(const PublishEntry& entry) {
    std::vector<Song> songs;
    for (const int row : m_view->chosenRows()) {
        songs.push_back(m_songs.song(row));
    }
    const bool isReading =
        std::any_of(songs.begin(), songs.end(), [](const Song& song) { return song.isBeingRead; });
    if (songs.empty() || isReading) {
        showNotice({NoticeKind::kInfo, isReading
                                           ? tr("Some songs are still being read; try again in a moment.")
                                           : tr("Add songs first.")});
    } else if (isUploading()) {
        showNotice({NoticeKind::kWarning, tr("Wait until the upload that runs has ended.")});
    } else {
        const auto dock = std::find_if(m_docks.begin(), m_docks.end(),
                                       [](const GadgetDock* each) { return each->notices(); });
        if (dock == m_docks.end()) {
            showNotice({NoticeKind::kError, QString::fromStdString(judgeModule({}).sentence)});
        } else {
            handOver((*dock)->notices()->publishing(), entry, songs);
        }
    }
}

void MainWindow::handOver(Publishing& publishing, const PublishEntry& entry, const std::vector<Song>& songs) {
    ReleaseWish wish;
    wish.mode = ReleaseMode::kPanel;
    wish.songs.resize(songs.size());
    std::vector<SongFile> files;
    files.reserve(songs.size());
    for (const Song& song : songs) {
        files.push_back(fileOf(song));
    }
    Plan plan = publishing.plan(entry, wish, files);
    if (askWhetherToLeaveOut(plan)) {
        wish.skipsUnreadable = true;
        plan = publishing.plan(entry, wish, files);
    }
    const QPointer<MainWindow> self(this);
    const auto failed = publishing.handOver(entry, plan);
    if (!self) {
        return;
    }
    const Verdict verdict = failed ? *failed : judge(plan);
    if (!verdict.isGood()) {
        showNotice({failed ? verdict.kind : NoticeKind::kWarning, QString::fromStdString(verdict.sentence)});
        return;
    }
    const auto count = plan.songs().size();
    QString text =
        count == 1
            ? QCoreApplication::translate("xbr::host::Words",
                                          "One song handed over to the panel; nothing is sent yet. Check the "
                                          "details there, then upload.")
            : QCoreApplication::translate("xbr::host::Words",
                                          "%1 songs handed over to the panel; nothing is sent yet. Check the "
                                          "details there, then upload.")
                  .arg(count);
    for (const std::string& warning : verdict.warnings) {
        text += " " + QString::fromStdString(warning);
    }
    showNotice({verdict.warnings.empty() ? NoticeKind::kInfo : NoticeKind::kWarning, text});
}

/// Asked when some of the songs cannot be published, and others can.
bool MainWindow::askWhetherToLeaveOut(const Plan& plan) {
    QStringList sentences;
    for (const Finding& finding : plan.findings) {
        if (finding.kind == Finding::Kind::kUnreadable) {
            sentences.append(QString::fromStdString(wordsOf(finding)));
        }
    }
    if (sentences.isEmpty() || plan.releases.empty()) {
        return false;
    }
    QMessageBox question(QMessageBox::Warning,
                         QCoreApplication::translate("xbr::host::Words", "Leave out songs?"),
                         sentences.join('\n'), QMessageBox::NoButton, this);
    question.setInformativeText(
        QCoreApplication::translate("xbr::host::Words", "The other songs can be handed over without them."));
    question.setTextFormat(Qt::PlainText);
    auto* leaveOut = question.addButton(QCoreApplication::translate("xbr::host::Words", "Leave out"),
                                        QMessageBox::AcceptRole);
    auto* keep = question.addButton(QCoreApplication::translate("xbr::host::Words", "Cancel"),
                                    QMessageBox::RejectRole);
    question.setDefaultButton(keep);
    question.setEscapeButton(keep);
    const Activity::Run run(m_place->session.activity(), Activity::Kind::kDialog,
                            [&question] { question.reject(); });
    question.exec();
    return question.clickedButton() == leaveOut;
}

/// An upload that finds nothing to send is a word worth.
void MainWindow::commandPerformed(IParameter& command) {
    for (const GadgetDock* dock : m_docks) {
        if (dock->notices() && findParameter(dock->panel()->controller(), "upload") == &command) {
            dock->notices()->publishing().uploadAsked();
        }
    }
}

bool MainWindow::isUploading() const {
    return std::any_of(m_docks.begin(), m_docks.end(), [](const GadgetDock* dock) {
        return dock->notices() && dock->notices()->publishing().isBusy();
    });
}

void MainWindow::focusNextArea() {
    std::vector<QWidget*> areas{m_songs.rowCount() > 0 ? static_cast<QWidget*>(m_view) : m_empty};
    for (GadgetDock* dock : m_docks) {
        if (dock->isVisible()) {
            areas.push_back(dock);
        }
    }
    const QWidget* focus = QApplication::focusWidget();
    const auto present = std::find_if(areas.begin(), areas.end(), [focus](const QWidget* area) {
        return focus && (area == focus || area->isAncestorOf(focus));
    });
    const auto next = present == areas.end() || present + 1 == areas.end() ? areas.begin() : present + 1;
    QWidget* first = (*next)->focusPolicy() == Qt::NoFocus ? (*next)->nextInFocusChain() : *next;
    for (int tries = 0; tries < 100 && !(first->isVisible() && (first->focusPolicy() & Qt::TabFocus));
         ++tries) {
        first = first->nextInFocusChain();
    }
    first->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::resetLayout() {
    for (GadgetDock* dock : m_docks) {
        dock->setFloating(false);
        addDockWidget(Qt::RightDockWidgetArea, dock);
        dock->show();
        resizeDocks({dock}, {kPanelWidth}, Qt::Horizontal);
    }
}

bool MainWindow::askWhetherToStop() {
    QMessageBox question(QMessageBox::Warning, tr("Stop the Upload?"), tr("An upload is running."),
                         QMessageBox::NoButton, this);
    question.setInformativeText(
        tr("When you quit now, it is stopped; songs that have not arrived are not published."));
    auto* stop = question.addButton(tr("&Stop and Quit"), QMessageBox::DestructiveRole);
    auto* goOn = question.addButton(tr("&Keep Uploading"), QMessageBox::RejectRole);
    question.setDefaultButton(goOn);
    question.setEscapeButton(goOn);
    const Activity::Run run(m_place->session.activity(), Activity::Kind::kDialog,
                            [&question] { question.reject(); });
    question.exec();
    return question.clickedButton() == stop || m_isEnding;
}

void MainWindow::end() {
    m_isEnding = true;
    close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_isEnding && isUploading() && !askWhetherToStop()) {
        event->ignore();
        return;
    }
    m_isEnding = true;
    m_layout.save(*this, *m_view->header());
    event->accept();
    m_place->session.activity().endAll();
    emit closed();
}

} // namespace xbr::host
