#include "host/app/window/frame/mainwindow.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/verdict/words.h"
#include "host/app/window/dialogs/fileselector.h"
#include "host/app/window/dialogs/question.h"
#include "host/app/window/dialogs/viewdialog.h"
#include "host/app/window/frame/handover.h"
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
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace xbr::host {

namespace {

constexpr QSize kFirstSize(1440, 840);
constexpr int kPanelWidth = 500;
constexpr double kShareOfScreen = 0.95; ///< the frame needs some

} // namespace

MainWindow::MainWindow(DialogPlace& place)
    : m_place(&place),
      m_notification(*this),
      m_appearance(this),
      m_view(new SongView(m_songs, this)),
      m_commands(m_songs, *m_view, this),
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
    setEntryListener([this](IParameter& parameter, const QString& text) { refuseEntry(parameter, text); });
    setCommandListener(
        [this](IParameter& command) {
            PanelNotices* panel = ownerOf(command, "upload");
            return !panel || panel->uploadComes();
        },
        [this](IParameter& command) {
            if (PanelNotices* panel = ownerOf(command, "upload")) {
                panel->publishing().uploadAsked(); // one that finds nothing to send is a word worth
            }
        });
}

MainWindow::~MainWindow() {
    setCommandListener({}, {});
    setEntryListener({});
    closePanels();
}

void MainWindow::build() {
    setWindowTitle(tr("Songs – xbrhost"));
    setWindowIcon(QIcon(":/xbrhost/icons/app.svg"));
    setDockOptions(AnimatedDocks | AllowTabbedDocks);
    setDocumentMode(true);
    const QScreen* screen = QGuiApplication::primaryScreen();
    resize(screen ? kFirstSize.boundedTo(screen->availableSize() * kShareOfScreen) : kFirstSize);
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
    connect(m_actions->remove, &QAction::triggered, &m_commands, &SongCommands::removeSelected);
    connect(m_actions->up, &QAction::triggered, this, [this] { m_commands.moveSelected(-1); });
    connect(m_actions->down, &QAction::triggered, this, [this] { m_commands.moveSelected(1); });
    connect(m_actions->nextProblem, &QAction::triggered, this, [this] { m_commands.showProblem(1); });
    connect(m_actions->previousProblem, &QAction::triggered, this, [this] { m_commands.showProblem(-1); });
    connect(&m_commands, &SongCommands::changed, this, &MainWindow::noteChange);
    connect(&m_commands, &SongCommands::noticed, this, &MainWindow::showNotice);
    connect(&m_commands, &SongCommands::settled, m_status, &StatusLine::clear);
    connect(m_actions->quit, &QAction::triggered, this, &QWidget::close);
    connect(m_actions->nextArea, &QAction::triggered, this, &MainWindow::focusNextArea);
    connect(m_actions->resetLayout, &QAction::triggered, this, &MainWindow::resetLayout);
    connect(m_actions->stop, &QAction::triggered, this, &MainWindow::stop);
    connect(m_status, &StatusLine::stopAsked, this, &MainWindow::stop);
    connect(m_actions->tryAgain, &QAction::triggered, this, [this] {
        if (PanelNotices* panel = panelToTryAgain()) {
            panel->tryAgain();
        }
    });
    connect(m_actions->undo, &QAction::triggered, this, [this] { m_changes.undo(); });
    connect(m_actions->redo, &QAction::triggered, this, [this] { m_changes.redo(); });
    connect(&m_changes, &Changes::moved, this, [this] {
        m_actions->undo->setEnabled(m_changes.canUndo());
        m_actions->redo->setEnabled(m_changes.canRedo());
    });
    connect(m_actions->about, &QAction::triggered, this, [this] {
        auto* about = new AboutDialog(m_versions, this);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->open();
    });
    const auto* onView = new FileDrop(*m_view, *m_view->viewport());
    const auto* onEmpty = new FileDrop(*m_empty, *m_empty);
    connect(onView, &FileDrop::filesDropped, this, &MainWindow::addSongs);
    connect(onEmpty, &FileDrop::filesDropped, this, &MainWindow::addSongs);
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
    for (QAction* action : m_publishEntries) {
        action->setEnabled(hasSongs);
    }
    m_actions->stop->setEnabled(isUploading());
    m_actions->tryAgain->setEnabled(panelToTryAgain() != nullptr);
}

void MainWindow::addSongs(const std::vector<std::string>& paths) {
    if (!m_place->session.activity()
             .isWorking()) { // a drop from another program is no input that a sheet blocks
        m_commands.addSongs(paths);
    }
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
        action->setToolTip(tr("Hands the selected songs, or all, over to the panel; nothing is sent yet"));
        connect(action, &QAction::triggered, this, [this, entry] { publish(entry); });
        m_publishEntries.append(action);
    }
    m_actions->publishMenu->insertActions(m_actions->publishMenu->actions().front(), m_publishEntries);
    m_header->setPublishEntries(m_publishEntries);
    number = 0;
    // A dialog hides the status line; its form shows what the module knows, which may be nothing.
    const auto tellInDialog = [this](const QString& text) {
        if (m_place->dialog) {
            m_place->dialog->setNotice(text);
        }
    };
    for (const GadgetClass& gadget : findGadgets()) {
        auto* dock = new GadgetDock(gadget, *m_place, tellInDialog, this);
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
    if (PanelNotices* panel = dock.notices()) {
        connect(panel, &PanelNotices::noticed, this, &MainWindow::showNotice);
        connect(panel, &PanelNotices::progressed, m_status, &StatusLine::showProgress);
        connect(panel, &PanelNotices::began, m_status, &StatusLine::clear);
        connect(panel, &PanelNotices::touched, this, &MainWindow::updateActions);
        connect(panel, &PanelNotices::uploadEnded, this, &MainWindow::tellDesktop);
        connect(&panel->memory(), &PanelMemory::changed, this, &MainWindow::noteChange);
    }
    const QStringList genres = dock.genres();
    if (!genres.isEmpty()) {
        m_view->setGenres(genres);
        m_songs.setGenres(genres);
    }
    if (dock.notices()) {
        m_songs.setPublished([panel = QPointer(dock.notices())](const Song& song) {
            return panel ? panel->wordsOfPublication(song.fingerprint) : QString();
        });
    }
}

void MainWindow::closePanels() {
    m_header->setPublishEntries({});
    qDeleteAll(std::exchange(m_publishEntries, {}));
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
    std::vector<SongFile> songs;
    bool isReading = false;
    const auto rows = m_view->chosenRows();
    songs.reserve(rows.size());
    for (const int row : rows) {
        songs.push_back(fileOf(m_songs.song(row)));
        isReading = isReading || m_songs.song(row).isBeingRead;
    }
    if (songs.empty() || isReading) {
        showNotice({NoticeKind::kInfo,
                    isReading ? tr("Some songs are still being read; try again in a moment.")
                              : tr("Add songs first."),
                    {},
                    {}});
    } else if (isUploading()) {
        showNotice({NoticeKind::kWarning, tr("Wait until the upload that runs has ended."), {}, {}});
    } else {
        const auto dock = std::find_if(m_docks.begin(), m_docks.end(),
                                       [](const GadgetDock* each) { return each->notices(); });
        if (dock == m_docks.end()) {
            showNotice({NoticeKind::kError, QString::fromStdString(judgeModule({}).sentence), {}, {}});
        } else {
            const QPointer<MainWindow> self(this);
            const Notice notice = handOverSongs(*m_place, *(*dock)->notices(), entry, std::move(songs));
            if (self) {
                showNotice(notice);
            }
        }
    }
}

/// The text that was typed names no choice: what may be meant is offered.
void MainWindow::refuseEntry(IParameter& parameter, const QString& text) {
    std::vector<std::string> choices;
    choices.reserve(static_cast<std::size_t>(parameter.countChoices()));
    for (std::int32_t i = 0; i < parameter.countChoices(); ++i) {
        choices.push_back(toString(parameter.choiceAt(i)));
    }
    Finding finding;
    finding.kind = Finding::Kind::kUnknownGenre;
    finding.text = text.toStdString();
    finding.isWish = true;
    finding.near = Genres(choices).near(finding.text);
    std::vector<NoticeStep> steps;
    for (std::size_t i = 0; i < std::min<std::size_t>(finding.near.size(), 2); ++i) {
        const auto choice = std::find(choices.begin(), choices.end(), finding.near[i]) - choices.begin();
        steps.push_back({"near", QString::fromStdString(finding.near[i]),
                         [this, kept = Ref<IParameter>::share(&parameter), choice] {
                             kept->setValue(integerValue(choice));
                             m_status->clear();
                         }});
    }
    m_status->showNotice({NoticeKind::kWarning, QString::fromStdString(wordsOf(finding)), steps, {}});
}

PanelNotices* MainWindow::ownerOf(const IParameter& command, const char* name) const {
    for (const GadgetDock* dock : m_docks) {
        if (dock->notices() && findParameter(dock->panel()->controller(), name) == &command) {
            return dock->notices();
        }
    }
    return nullptr;
}

PanelNotices* MainWindow::panelToTryAgain() const {
    const auto found = std::find_if(m_docks.begin(), m_docks.end(), [](const GadgetDock* dock) {
        return dock->notices() && dock->notices()->publishing().canTryAgain();
    });
    return found == m_docks.end() ? nullptr : (*found)->notices();
}

void MainWindow::stop() {
    for (const GadgetDock* dock : m_docks) {
        if (dock->notices() && dock->notices()->publishing().isBusy()) {
            dock->notices()->stop();
        }
    }
}

/// Something was changed, and can be taken back.
void MainWindow::noteChange(const Change& change) {
    m_changes.note(change);
    if (change.text.isEmpty()) {
        return; // it is seen
    }
    m_status->showNotice(
        {NoticeKind::kInfo, change.text, {{"undo", tr("&Undo"), [this] { m_changes.undo(); }}}, {}});
}

/// A long upload has ended, and the user is elsewhere.
void MainWindow::tellDesktop(const Notice& notice, qint64 seconds) {
    static constexpr qint64 kLong = 20;
    if (seconds > kLong && !isActiveWindow() && notice.kind != NoticeKind::kInfo) {
        m_notification.show(notice.text);
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
    if (m_status->notice().kind != NoticeKind::kNone) {
        areas.push_back(m_status);
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

/// What would be lost by quitting, in one question.
bool MainWindow::mayQuit() {
    QStringList losses;
    int edited = 0;
    bool isSending = false;
    for (const GadgetDock* dock : m_docks) {
        if (!dock->notices()) {
            continue;
        }
        if (dock->notices()->publishing().isBusy()) {
            isSending = true;
            losses.append(dock->notices()->wordsOfLoss());
        }
        edited += static_cast<int>(dock->notices()->memory().countEdited());
    }
    if (edited > 0) {
        losses.append(
            tr("%n song(s) in the panel have edits that were not sent; they would be lost. The list comes "
               "back at the next start.",
               nullptr, edited));
    }
    if (losses.isEmpty()) {
        return true;
    }
    const Question question =
        isSending
            ? Question{tr("Stop the upload?"),
                       losses.join(' '),
                       {tr("&Keep Uploading"), tr("&Stop and Quit")}}
            : Question{tr("Quit without publishing?"), losses.join(' '), {tr("&Keep Editing"), tr("&Quit")}};
    return ask(*m_place, question) == 1 || m_isEnding;
}

void MainWindow::end() {
    m_isEnding = true;
    close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!m_isEnding && !mayQuit()) {
        event->ignore();
        return;
    }
    m_isEnding = true;
    m_layout.save(*this, *m_view->header());
    m_commands.save();
    event->accept();
    m_place->session.activity().endAll();
    emit closed();
}

} // namespace xbr::host
