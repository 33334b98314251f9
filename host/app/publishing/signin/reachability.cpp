#include "host/app/publishing/signin/reachability.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"

#include <QTimer>
#include <QUrl>

namespace xbr::host {

std::string serverOf(const std::string& url) {
    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    if (!parsed.isValid() || parsed.host().isEmpty()) {
        return url;
    }
    return parsed.adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment)
        .toString()
        .toStdString();
}

Reachability::~Reachability() {
    if (m_request) {
        m_request->abort();
    }
}

void Reachability::check(const std::string& url, Done done) {
    m_server = serverOf(url);
    m_done = std::move(done);
    m_listener = std::make_unique<Listener>([this](ISubject*, const IMessage& message) {
        if (isNamed(message, "onloadend") || isNamed(message, "onabort")) {
            finish();
        }
    });
    const bool isSent = XBRGetWebService()->createRequest(m_request.out()) == kOk &&
                        m_request->open(toText("GET"), toText(m_server), nullptr) == kOk &&
                        m_request->send(nullptr, m_listener->observer()) == kOk;
    if (!isSent) {
        m_request.reset();
        QTimer::singleShot(0, [observer = Ref<IObserver>::share(m_listener->observer())] {
            const auto message = make<Message>("onabort");
            observer->notify(nullptr, message.get());
        });
    }
}

void Reachability::finish() {
    std::string problem;
    if (!m_request) {
        problem = "'" + m_server + "' is not the address of a service";
    } else if (m_request->status() == 0) {
        Ref<IString> reason;
        m_request->getErrorText(reason.out());
        problem = "the service at " + m_server + " cannot be reached: " + take(reason);
    }
    m_request.reset();
    const Done done = std::move(m_done);
    done(problem);
}

} // namespace xbr::host
