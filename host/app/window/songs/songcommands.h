#pragma once

#include "host/app/window/look/change.h"
#include "host/app/window/look/notice.h"
#include "host/app/window/songs/savedsongs.h"
#include "host/app/window/songs/songreader.h"
#include "host/app/window/songs/songview.h"

#include <string>
#include <vector>

namespace xbr::host {

/// What the user does with the list of songs: all of it can be taken back, and what needs a look is told.
class SongCommands final : public QObject {
    Q_OBJECT

public:
    SongCommands(SongListModel& songs, SongView& view, QObject* parent);

    /// Appends songs; their tags follow as they are read. Paths are bytes.
    void addSongs(const std::vector<std::string>& paths);
    void removeSelected();

    /// Moves the selected songs by one place; not beyond the ends.
    void moveSelected(int by);

    /// To the next song that needs a look, around the ends.
    void showProblem(int by);

    /// The songs that the list held when the program ended last.
    void restore();
    void save() const { m_saved.save(m_songs->songs()); }

signals:
    void changed(const xbr::host::Change& change);
    void noticed(const xbr::host::Notice& notice);

    /// What was told is no longer true.
    void settled();

private:
    void moveSongs(const std::vector<int>& rows, int before);
    void tellProblems(const std::vector<std::string>& paths);
    void setGenre(const std::string& path, const QString& genre);

    SongListModel* m_songs;
    SongView* m_view;
    SongReader m_reader;
    SavedSongs m_saved;
    bool m_isRestoring = false; ///< the songs that are read have their order
};

} // namespace xbr::host
