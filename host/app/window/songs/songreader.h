#pragma once

#include "host/app/window/songs/song.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <string>
#include <vector>

namespace xbr::host {

/// Reads songs beside the event loop: a thousand files, or one on a slow disk, do not stop the window.
class SongReader final : public QObject {
    Q_OBJECT

public:
    explicit SongReader(QObject* parent);
    ~SongReader() override;

    /// Reads the songs one after the other.
    void read(const std::vector<std::string>& paths);

signals:
    /// A song was read, in the order of the calls.
    void songRead(const xbr::host::Song& song);

    /// All songs of one call were read.
    void allRead(const std::vector<std::string>& paths);

private:
    QThreadPool m_pool; ///< one thread: disks do not get faster from being asked twice
    std::atomic<bool> m_isEnding = false;
};

} // namespace xbr::host
