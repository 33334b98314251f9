#include "host/app/window/songs/songcommands.h"

#include <QFile>

#include <algorithm>
#include <numeric>

namespace xbr::host {

SongCommands::SongCommands(SongListModel& songs, SongView& view, QObject* parent)
    : QObject(parent),
      m_songs(&songs),
      m_view(&view),
      m_reader(this) {
    connect(&m_reader, &SongReader::songRead, this, [this](const Song& song) { m_songs->setSong(song); });
    connect(&m_reader, &SongReader::allRead, this, &SongCommands::tellProblems);
    connect(m_view, &SongView::moveAsked, this, &SongCommands::moveSongs);
}

void SongCommands::addSongs(const std::vector<std::string>& paths) {
    if (paths.empty()) {
        return;
    }
    const auto added = m_songs->addFiles(paths);
    const auto count = static_cast<int>(added.size());
    const std::size_t doubles = paths.size() - added.size();
    const QString text =
        doubles == 0 ? tr("%n song(s) added.", nullptr, count)
                     : tr("%n song(s) added; %1 were in the list already.", nullptr, count).arg(doubles);
    m_reader.read(added);
    std::vector<int> rows(added.size());
    std::iota(rows.begin(), rows.end(), m_songs->rowCount() - count);
    m_view->selectRows(rows);
    if (count == 0) {
        emit noticed({NoticeKind::kInfo, text, {}, {}});
        return;
    }
    emit changed({text, [this, added] { m_songs->removeFiles(added); },
                  [this, added] { m_reader.read(m_songs->addFiles(added)); }, -1});
}

void SongCommands::removeSelected() {
    const auto rows = m_view->selectedRows();
    if (rows.empty()) {
        return;
    }
    const std::vector<Song> before = m_songs->songs();
    m_view->removeSelected();
    const std::vector<Song> after = m_songs->songs();
    emit changed(
        {tr("%n song(s) removed from the list; the files stay.", nullptr, static_cast<int>(rows.size())),
         [this, before, rows] {
             m_songs->setSongs(before);
             m_view->selectRows(rows);
         },
         [this, after] { m_songs->setSongs(after); }, -1});
}

void SongCommands::moveSongs(const std::vector<int>& rows, int before) {
    const std::vector<Song> songs = m_songs->songs();
    std::vector<int> places(rows.size());
    std::iota(places.begin(), places.end(), m_songs->moveSongs(rows, before));
    m_view->selectRows(places);
    emit changed({{},
                  [this, songs] { m_songs->setSongs(songs); },
                  [this, moved = m_songs->songs()] { m_songs->setSongs(moved); },
                  -1});
}

void SongCommands::moveSelected(int by) {
    const auto rows = m_view->selectedRows();
    const bool isPossible = !rows.empty() && rows.front() + by >= 0 && rows.back() + by < m_songs->rowCount();
    if (isPossible) {
        moveSongs(rows, by < 0 ? rows.front() - 1 : rows.back() + 2);
    }
}

/// To the next song that needs a look, around the ends.
void SongCommands::showProblem(int by) {
    const int count = m_songs->rowCount();
    const int start = std::max(m_view->currentIndex().row(), 0);
    for (int step = 1; step <= count; ++step) {
        const int row = (start + by * step + count * step) % count;
        if (const auto trouble = m_songs->troubleOf(row)) {
            m_view->editCell(row, trouble->column);
            return;
        }
    }
}

/// Songs were read: in their order, and with what is wrong with them.
void SongCommands::tellProblems(const std::vector<std::string>& paths) {
    if (!m_isRestoring) {
        m_songs->orderByNumbers(paths);
    }
    m_isRestoring = false;
    int count = 0;
    int first = -1;
    for (int row = 0; row < m_songs->rowCount(); ++row) {
        const bool isTroubled = m_songs->troubleOf(row).has_value();
        first = isTroubled && first < 0 ? row : first;
        count += isTroubled ? 1 : 0;
    }
    if (count == 0) {
        return;
    }
    const auto trouble = *m_songs->troubleOf(first);
    std::vector<NoticeStep> steps;
    for (std::size_t i = 0; count == 1 && i < std::min<std::size_t>(trouble.near.size(), 2); ++i) {
        const QString genre = QString::fromStdString(trouble.near[i]);
        steps.push_back(
            {"near", genre, [this, path = m_songs->song(first).path, genre] { setGenre(path, genre); }});
    }
    steps.push_back(
        {"show", tr("&Show"), [this, first, column = trouble.column] { m_view->editCell(first, column); }});
    const QString text = count == 1 && trouble.column == SongListModel::kGenre
                             ? trouble.text
                             : tr("%1 of %n song(s) need a look before they can be published. %2", nullptr,
                                  m_songs->rowCount())
                                   .arg(QString::number(count), trouble.text);
    emit noticed({NoticeKind::kWarning, text, steps, {}});
}

void SongCommands::setGenre(const std::string& path, const QString& genre) {
    for (int row = 0; row < m_songs->rowCount(); ++row) {
        if (m_songs->song(row).path == path) {
            m_songs->setData(m_songs->index(row, SongListModel::kGenre), genre, Qt::EditRole);
        }
    }
    emit settled();
}

/// The list of the last time; files that are gone are marked as they are read.
void SongCommands::restore() {
    const std::vector<Song> saved = m_saved.load();
    if (saved.empty()) {
        return;
    }
    std::vector<std::string> paths;
    const auto gone = std::count_if(saved.begin(), saved.end(), [](const Song& song) {
        return !QFile::exists(QFile::decodeName(song.path.c_str()));
    });
    paths.reserve(saved.size());
    for (const Song& song : saved) {
        paths.push_back(song.path);
    }
    m_isRestoring = true;
    m_songs->setSongs(saved);
    m_reader.read(paths);
    const auto count = static_cast<int>(saved.size());
    const QString text = gone == 0 ? tr("%n song(s) from last time.", nullptr, count)
                                   : tr("%n song(s) from last time; %1 no longer there.", nullptr, count)
                                         .arg(tr("%n file(s)", nullptr, static_cast<int>(gone)));
    emit noticed({NoticeKind::kInfo,
                  text,
                  {{"startEmpty", tr("Start &Empty"),
                    [this] {
                        m_view->selectAll();
                        removeSelected();
                    }}},
                  {}});
}

} // namespace xbr::host
