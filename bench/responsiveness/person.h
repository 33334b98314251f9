#pragma once

#include "host/app/window/start/windowfront.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace xbr::host {

/// Beats every two milliseconds on the main thread and remembers the longest time without a beat: so long
/// nothing that the user does is heard.
class Heartbeat {
public:
    Heartbeat();

    /// Begins anew, and forgets what was before.
    void start();

    /// In milliseconds.
    double longestGap();

private:
    void beat();

    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0; ///< nanoseconds
};

/// Somebody in front of the window: acts, waits, and writes a line in JSON for all that was measured.
class Person {
public:
    Person();

    WindowFront& host() { return *m_host; }

    /// What follows belongs to the measure `name`; ends the one before.
    void measure(const std::string& name);

    /// Nothing is measured for now.
    void pause() { measure({}); }

    void wait(int milliseconds);
    void waitUntil(const std::function<bool()>& done);

    template <class Widget>
    Widget* find(const char* name) {
        return m_host->window().findChild<Widget*>(name);
    }
    bool isSeen(const char* name);
    void click(const char* name);
    void type(const char* name, const QString& text);

    /// Scrolls with the key until the end is reached, or so many times; looks at each page so long.
    void pageDown(QAbstractScrollArea& area, int times, int milliseconds);

    /// Closes the window.
    void leave();

private:
    std::unique_ptr<WindowFront> m_host;
    Heartbeat m_heart;
    std::string m_name;
    QElapsedTimer m_clock;
};

/// Becomes the keyring of this session, and never answers. Runs until the process is ended.
int beSilentKeyring();

/// Writes a few pictures as news have them: 1200 x 630 pixels.
int writePictures(const QString& folder);

} // namespace xbr::host
