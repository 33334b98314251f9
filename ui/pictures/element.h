#pragma once

#include "framework/abi/download.h"
#include "framework/support/parts/component.h"

#include <string>
#include <string_view>

namespace brindlex {

/// A component that shows what is found at a location: it downloads the document once, or again on demand.
///
/// Properties: "downloadState" (a DownloadState as integer) and "url", which may be set. "propertyChanged" is
/// signalled when the state changed. The messages "startDownload" and "restartDownload", posted to it, do
/// what they say.
class Element : public xbr::Component {
public:
    explicit Element(std::string_view name) : Component(name) {}

    /// The location as it was given. Kept as text: taken apart and put together again, a signed address might
    /// not be the same.
    const std::string& location() const { return m_location; }

    /// Another location than before gives up what was found at the old one.
    void setLocation(std::string_view location);

    xbr::DownloadState downloadState() const { return m_state; }

    /// Starts the download unless it runs or is complete.
    void startDownload();

    /// Starts it in any case; one that runs is given up, and nothing of it is used.
    void restartDownload();

    /// The element that this one belongs to; null for none. Told again, with null, before that one goes.
    void setOwner(xbr::IController* owner) { m_owner = owner; }

    xbr::IController* parent() noexcept override { return m_owner ? m_owner : Component::parent(); }
    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;
    xbr::Result setProperty(xbr::Text name, const xbr::Value& value) noexcept override;
    void notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;

protected:
    enum class Freshness { kAsKept, kAskServer };

    /// Fetches the document. A derived class may find it elsewhere, and call `download` when it does not.
    virtual void fetch(Freshness freshness);

    /// Starts a new task for the location, with the copy that is at hand (both may be empty).
    void download(std::string_view entityTag = {}, std::string_view lastModified = {});

    /// The document is complete. The task is borrowed.
    virtual void downloadCompleted(xbr::IDownloadTask& task) = 0;

    /// The element has another location now.
    virtual void locationChanged() {}

    void setDownloadState(xbr::DownloadState state);

    /// Gives up a download that runs; nothing of it is used.
    void dropTask();

private:
    void taskChanged();

    std::string m_location;
    xbr::IController* m_owner = nullptr;
    xbr::DownloadState m_state = xbr::DownloadState::kIdle;
    xbr::Ref<xbr::IDownloadTask> m_task;
    xbr::Ref<xbr::ISubject> m_taskSubject; ///< the same object, as the sender of its messages
};

} // namespace brindlex
