#pragma once

#include "host/app/audio/rendering.h"
#include "host/app/modules/publishentry.h"
#include "host/app/publishing/notice.h"
#include "host/app/session/activity.h"
#include "host/app/window/songs/song.h"

#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

/// Hands songs to publish entries of modules.
class Publishing {
public:
    explicit Publishing(Activity& activity) : m_activity(&activity) {}

    /// Hands the songs over: those of a type that the entry does not take are rendered before. Runs the event
    /// loop meanwhile; a second call in there does nothing. What to tell the user is the result.
    Notice publish(const PublishEntry& entry, const std::vector<Song>& songs);

private:
    /// A song on its way to the entry.
    struct Passage {
        const Song* song;
        bool isToRender = false;
        std::string file; ///< path of what is handed over
    };

    Notice handOver(const PublishEntry& entry, const std::vector<Song>& songs);
    static QString ask(IPublisher& publisher, Passage& passage);
    QString render(std::vector<Passage>& passages, RenderedSongs& rendered);

    Activity* m_activity;
    bool m_isRunning = false;
    std::unique_ptr<RenderedSongs> m_rendered; ///< what the entry got last
};

} // namespace xbr::host
