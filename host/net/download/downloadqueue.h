#pragma once

namespace xbr::host {

/// Waits for a turn.
struct Download {
    /// It is its turn to use the network.
    virtual void takeTurn() = 0;

    /// Ends it for good, without a message.
    virtual void endSilently() = 0;

protected:
    ~Download() = default;
};

/// Lets a few downloads at a time use the network: a feed may ask for a thousand pictures at once, and an
/// upload beside them should not notice.
class DownloadQueue {
public:
    static constexpr int kTurns = 6;

    /// Gives the download a turn, at once or when others are through. Not kept: it leaves before it dies.
    static void enter(Download& download);

    /// The download is through, or has lost interest.
    static void leave(const Download& download);

    /// Ends all without a message.
    static void endAll();
};

} // namespace xbr::host
