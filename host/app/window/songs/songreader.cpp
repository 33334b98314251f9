#include "host/app/window/songs/songreader.h"

namespace xbr::host {

SongReader::SongReader(QObject* parent) : QObject(parent) {
    m_pool.setMaxThreadCount(1);
}

SongReader::~SongReader() {
    m_isEnding = true;
    m_pool.clear();
    m_pool.waitForDone();
}

void SongReader::read(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        m_pool.start([this, path] {
            if (!m_isEnding) {
                const Song song = readSong(path);
                QMetaObject::invokeMethod(
                    this, [this, song] { emit songRead(song); }, Qt::QueuedConnection);
            }
        });
    }
    m_pool.start([this, paths] {
        QMetaObject::invokeMethod(
            this, [this, paths] { emit allRead(paths); }, Qt::QueuedConnection);
    });
}

} // namespace xbr::host
