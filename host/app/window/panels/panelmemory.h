#pragma once

#include "host/app/publishing/publishing.h"
#include "host/app/window/look/change.h"

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <string>
#include <unordered_set>
#include <vector>

namespace xbr::host {

/// Remembers what the list of a panel held, so that what the user removes or changes there can come back, and
/// what was edited since the songs were handed over is known.
class PanelMemory final : public QObject {
    Q_OBJECT

public:
    PanelMemory(GadgetPanel& panel, Publishing& publishing, QObject* parent);

    /// The list may look different.
    void look();

    /// Songs are handed over: what the list loses meanwhile is not for the user to bring back.
    void pause() { m_isPaused = true; }

    /// The list holds what the host gave; nothing is edited.
    void handedOver();

    /// Songs with edits that were not sent.
    std::size_t countEdited();

    /// Removes rows, as the user may.
    void remove(const std::vector<std::int32_t>& rows);

signals:
    void changed(const xbr::host::Change& change);

private:
    using Item = Ref<IObject>;
    struct Row {
        Item item;
        TrackReport report;
    };
    using Rows = std::vector<Row>;
    /// One field of several songs, with what it was.
    struct Edit {
        QString parameter;
        std::map<IObject*, std::string> before;
    };

    Rows read();
    static std::unordered_set<const IObject*> itemsOf(const Rows& rows);
    void catchUp();
    void findRemoval(const Rows& now);
    void findEdit(const std::vector<TrackReport>& now);
    void restore(const Rows& rows);
    void removeItems(const std::vector<Item>& items);
    void write(const Edit& edit);
    std::string valueOf(const TrackReport& report, const QString& parameter) const;

    GadgetPanel* m_panel;
    Publishing* m_publishing;
    Rows m_rows;
    Edit m_edit; ///< the last one, which goes on while the same songs are typed into
    std::map<std::string, TrackDetails> m_handed; ///< by file
    int m_series = 0;
    bool m_isPaused = false;
};

} // namespace xbr::host
