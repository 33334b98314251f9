#pragma once

namespace xbr::host {

class DownloadTask;

/// Lets a few downloads at a time use the network: a feed may ask for a thousand pictures at once, and an
/// upload beside them should not notice.
class DownloadQueue {
public:
    static constexpr int kTurns = 6;

    /// Gives the task a turn, at once or when others are through. Not kept: it leaves before it dies.
    static void enter(DownloadTask& task);

    /// The task is through, or has lost interest.
    static void leave(const DownloadTask& task);

    /// Ends all tasks without a message.
    static void endAll();
};

} // namespace xbr::host
