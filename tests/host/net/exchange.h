#pragma once

#include "framework/abi/webservice.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "tests/fixtures/streams.h"
#include "tests/fixtures/testfolder.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host::test {

/// A handler that writes down what it hears.
class Recorder final : public Object<IObserver> {
public:
    Recorder() { ++s_alive; }
    ~Recorder() override { --s_alive; }

    void notify(ISubject* subject, IMessage* message) noexcept override {
        const auto name = toString(message->name());
        names.push_back(name);
        sender = subject;
        if (name == "onprogress") {
            fractions.push_back(numberOf(message->argument(0)));
        }
        if (const auto running = hook) {
            running(name);
        }
    }
    int heard(std::string_view name) const {
        return static_cast<int>(std::count(names.begin(), names.end(), name));
    }

    std::vector<std::string> names;
    std::vector<double> fractions;
    ISubject* sender = nullptr;
    std::function<void(const std::string& name)> hook; ///< called for each message

    static int alive() { return s_alive; }

private:
    static inline int s_alive = 0;
};

/// Null for those that are refused, as for requests.
inline Ref<IWebCredentials> makeCredentials(std::string_view user, std::string_view password,
                                            std::string_view scheme) {
    Ref<IWebCredentials> made;
    XBRGetWebService()->createCredentials(made.out());
    return made->set(toText(user), toText(password), toText(scheme)) == kOk ? made : Ref<IWebCredentials>();
}

inline Ref<IWebRequest> openRequest(std::string_view method, std::string_view url,
                                    const Ref<IWebCredentials>& credentials = {}) {
    Ref<IWebRequest> made;
    XBRGetWebService()->createRequest(made.out());
    return made->open(toText(method), toText(url), credentials.get()) == kOk ? made : Ref<IWebRequest>();
}

/// What came of a request.
struct Exchanged {
    int status = -1;
    std::string body;
    std::string error;
    std::vector<std::string> messages;
    std::vector<double> fractions;
};

/// Sends a request and waits for its end.
inline Exchanged exchange(IWebRequest& request, IStream* body = nullptr) {
    const auto recorder = make<Recorder>();
    if (request.send(body, recorder.get()) != kOk) {
        return {};
    }
    runUntil([&] { return recorder->heard("onloadend") + recorder->heard("onabort") > 0; });
    Ref<IStream> answered;
    Ref<IString> error;
    request.getErrorText(error.out());
    const bool isAnswered = request.getResponseBody(answered.out()) == kOk;
    return {request.status(), isAnswered ? readAll(*answered) : "", take(error), recorder->names,
            recorder->fractions};
}

inline Exchanged get(const std::string& url) {
    return exchange(*openRequest("GET", url));
}

} // namespace xbr::host::test
