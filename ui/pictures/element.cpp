#include "ui/pictures/element.h"

#include "framework/abi/webservice.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"

#include <utility>

namespace brindlex {

void Element::setLocation(std::string_view location) {
    if (location != m_location) {
        const auto self = xbr::Ref<Element>::share(this);
        dropTask();
        m_location = location;
        locationChanged();
        setDownloadState(xbr::DownloadState::kIdle);
    }
}

void Element::startDownload() {
    const bool isDone = m_state == xbr::DownloadState::kRunning || m_state == xbr::DownloadState::kComplete;
    if (!isDone && !m_location.empty()) {
        fetch(Freshness::kAsKept);
    }
}

void Element::restartDownload() {
    dropTask();
    if (!m_location.empty()) {
        fetch(Freshness::kAskServer);
    }
}

void Element::fetch(Freshness) {
    download();
}

void Element::dropTask() {
    m_taskSubject.reset();
    m_task.reset(); // which ends it
}

void Element::download(std::string_view entityTag, std::string_view lastModified) {
    dropTask();
    const auto service = xbr::query<xbr::IDownloadService>(XBRGetWebService());
    xbr::Ref<xbr::IDownloadTask> task;
    if (!service || service->createTask(xbr::toText(m_location), task.out()) != xbr::kOk) {
        setDownloadState(xbr::DownloadState::kFailed);
        return;
    }
    m_taskSubject = xbr::query<xbr::ISubject>(task.get());
    m_task = task;
    XBRGetSignalHandler()->addObserver(m_taskSubject.get(), this);
    task->setCopy(xbr::toText(entityTag), xbr::toText(lastModified));
    task->start();
    setDownloadState(task->state());
}

void Element::notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept {
    const auto self = xbr::Ref<Element>::share(this);
    if (subject && subject == m_taskSubject.get()) {
        taskChanged();
    } else if (xbr::isNamed(*message, "startDownload")) {
        startDownload();
    } else if (xbr::isNamed(*message, "restartDownload")) {
        restartDownload();
    }
}

void Element::taskChanged() {
    // Kept: what follows from it may start the next one.
    const auto task = m_task;
    m_state = task->state();
    if (m_state == xbr::DownloadState::kComplete) {
        downloadCompleted(*task);
    }
    if (task == m_task) {
        xbr::signal(*this, "propertyChanged");
    }
}

void Element::setDownloadState(xbr::DownloadState state) {
    if (std::exchange(m_state, state) != state) {
        xbr::signal(*this, "propertyChanged");
    }
}

xbr::Result Element::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    if (xbr::view(name) == "downloadState") {
        *out = xbr::integerValue(static_cast<std::int64_t>(m_state));
        return xbr::kOk;
    }
    if (xbr::view(name) == "url") {
        *out = xbr::textValue(m_location);
        return xbr::kOk;
    }
    return Component::getProperty(name, out);
}

xbr::Result Element::setProperty(xbr::Text name, const xbr::Value& value) noexcept {
    if (xbr::view(name) == "url" && value.kind == xbr::ValueKind::kText) {
        setLocation(xbr::textOf(value));
        return xbr::kOk;
    }
    return Component::setProperty(name, value);
}

} // namespace brindlex
